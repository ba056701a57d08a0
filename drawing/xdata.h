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
/// A text as kept lines have it, whatever the code page of their file: all but plain characters by
/// their numbers. And back; `database` is that of the lines, null outside of every drawing.
QByteArray keptText(const OdString& text);
OdString textOfKept(const QByteArray& line, const OdDbDatabase* database);
/// Enters the applications of an object that came to a drawing.
void registerApplications(const OdDbObject& object);

} // namespace oddb
