#include "drafton/engine/native_command.h"

namespace drafton {

std::span<const NativeCommand> drawingCommands() { return {}; }

} // namespace drafton
