// The version in which drawings are saved.
#pragma once

#include "drawing/enums.h"
#include "host/variables.h"

namespace drafton {

class Document;
class Engine;

/// A version by its name ("R2000", "2000") or by the text of files ("AC1015"); nothing for versions
/// that are not written.
std::optional<OdDb::DwgVersion> dxfVersionNamed(const OdString& name);
/// "R2000"; "R12" and older for those that are only read.
OdString dxfVersionName(OdDb::DwgVersion version);
/// The names of all that are written, with blanks between them.
OdString dxfVersionNames();
/// In which version a document is saved: the one that was chosen for it; a new one in that of the
/// variable NEWDXFVERSION; any other as it was read, R12 as R2000.
OdDb::DwgVersion savingVersion(Engine& engine, Document& document);

// The variables DXFVERSION of a document and NEWDXFVERSION of the profile.
OdVariant dxfVersion(Engine& engine, Document* document);
bool setDxfVersion(Engine& engine, Document* document, const OdVariant& value);
OdVariant newDxfVersion(Engine& engine, Document* document);
bool setNewDxfVersion(Engine& engine, Document* document, const OdVariant& value);

} // namespace drafton
