// Extended data of objects, by the application that keeps it. Not for use outside of the library.
#pragma once

#include "drawing/dxf/kept_tags.h"
#include "drawing/object.h"

namespace oddb {

/// The tags behind an application's name; empty if it keeps none.
std::vector<OdDbKeptTags::Tag> xdataOf(const OdDbObject& object, const char* application);
/// Replaces them; none takes the application away. In a drawing the application is entered in its
/// table.
void setXData(OdDbObject& object, const char* application,
              const std::vector<OdDbKeptTags::Tag>& tags);
/// Enters the applications of an object that came to a drawing.
void registerApplications(const OdDbObject& object);

} // namespace oddb
