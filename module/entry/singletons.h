// The seven objects that the module has one of.
#pragma once

namespace tc {

/// Makes them in their order. An object that is there already is released for the new one.
void createSingletons();
/// Releases them in their order and leaves none.
void releaseSingletons();

} // namespace tc
