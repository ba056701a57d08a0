// The run-time classes of the module.
#pragma once

#include "frame/module_object.h"

namespace tc {

/// Registers every class in the order of the table, says who fills the element table and where the
/// pictures of a palette lie. Classes are registered, with its factory, under the module's name
/// (may be null). Raises OdError(eClassAlreadyRegistered) at the first class that is registered
/// already; the classes before it stay registered.
void registerModuleClasses(OdRxModule* application = nullptr);

/// Deletes the descriptions, in an order of its own. Raises OdError(eClassNotRegistered) at the
/// first class that is not registered.
void unregisterModuleClasses();

} // namespace tc
