// The functions that modules find in the program.
#pragma once

namespace drafton {

/// Keeps the exported functions in a program that links the engine's library: nothing else refers
/// to them.
void keepHostExports();

} // namespace drafton
