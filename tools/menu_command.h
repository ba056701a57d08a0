// Commands of the host as its menu shows them.
#pragma once

#include "host/command_menu.h"

#include <optional>

namespace tc {

/// The entry of a command, by its internal name without regard to case; nothing if the host has no
/// menu or the menu no such command.
std::optional<HostMenuEntry> findMenuCommand(const OdString& name);

/// What a tool of that command is called: its label; without one its tip without the sign of the
/// access key; without either its internal name in the user's language. A command that the host
/// names as one with a display name of its own has its label translated.
OdString toolNameOf(const HostMenuEntry& command);

} // namespace tc
