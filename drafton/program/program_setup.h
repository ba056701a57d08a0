// What the program sets up alike with and without a window.
#pragma once

#include "frame/string.h"

namespace drafton {

class Engine;

/// The user's own settings file, as the platform names it.
OdString defaultProfile();

/// Gives modules pictures of drawings and icons of commands; patterns and commands are found as
/// typed ones are.
void offerPictures(Engine& engine);

/// Loads the module of the tool palettes that stands beside the program. False, and a message, if
/// that fails.
bool loadToolPalettes(Engine& engine);

} // namespace drafton
