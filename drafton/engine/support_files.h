// Finding the files that drawings and commands name without a folder.
#pragma once

#include "frame/string.h"

namespace drafton {

class Document;
class Engine;

/// The stored path of an existing file: `name` itself, or in the folder of the document's file, of
/// the user's data or of the program. `extension` ("lin") counts for a name that has none. Empty if
/// there is no such file.
OdString findSupportFile(Engine& engine, const Document* document, const OdString& name,
                         const OdString& extension);

/// What to tell a user when there is none: that something else has the name (a folder, a device),
/// or that nothing has.
OdString whyNoSupportFile(Engine& engine, const Document* document, const OdString& name,
                          const OdString& extension);

} // namespace drafton
