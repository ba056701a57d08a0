// The language of the window.
#pragma once

#include "frame/string.h"

namespace drafton {

/// Loads the catalogue of a language ("System", "English", "Deutsch") from the folder
/// "translations" beside the program, and Qt's own one for its dialogs. The system's language
/// counts where it is one of ours. True if there is anything to translate with.
bool loadLanguage(const OdString& programFolder, const OdString& name);

} // namespace drafton
