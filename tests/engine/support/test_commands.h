// Commands that ask for one thing of each kind and tell what they got.
#pragma once

#include "drafton/engine/native_command.h"

/// ASKPOINT, ASKDISTANCE, ASKANGLE, ASKINTEGER, ASKREAL, ASKTEXT, ASKWORDS, ASKKEYWORD; DRAW (adds
/// lines until Enter), FAIL (draws and fails), NEST (runs DRAW inside), WORD (tells the parameter
/// "word").
std::span<const drafton::NativeCommand> testCommands();
