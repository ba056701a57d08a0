// The numbers of the palette window's commands.
#pragma once

#include <array>
#include <cstdint>

namespace tc {

enum TcUiCommand : int {
  kCommandNothing = 5000,
  kCommandSmallIcons = 5001,
  kCommandNormalIcons = 5002,
  kCommandLargeIcons = 5003,
  kCommandIconStyle = 6100,
  kCommandSmallIconStyle = 6110,
  kCommandListStyle = 6120,
  kCommandDetailsStyle = 6130,
  kCommandOpenCatalog = 40006,
  kCommandIconSize = 40007,
  kCommandViewStyle = 40008,
  kCommandToggleView = 40009,
  kCommandHelp = 40010,
};

/// How large pictures are shown; the numbers are stored in palettes and settings.
enum TcUiIconSize : std::int32_t {
  kSmallIcons = 1,
  kNormalIcons = 3,
  kLargeIcons = 4,
};

/// How the list shows its items; the numbers are stored in palettes and settings.
enum TcUiViewStyle : std::int32_t {
  kIconStyle = 0,
  kDetailsStyle = 1,
  kSmallIconStyle = 2,
  kListStyle = 3,
};

/// A command that puts a value in force.
struct TcUiValueCommand {
  int command;
  std::int32_t value;
};

/// The menu marks a size that is not here as large.
inline constexpr std::array kIconSizeCommands = {
    TcUiValueCommand{kCommandSmallIcons, kSmallIcons},
    TcUiValueCommand{kCommandNormalIcons, kNormalIcons},
    TcUiValueCommand{kCommandLargeIcons, kLargeIcons},
};

inline constexpr std::array kViewStyleCommands = {
    TcUiValueCommand{kCommandIconStyle, kIconStyle},
    TcUiValueCommand{kCommandSmallIconStyle, kSmallIconStyle},
    TcUiValueCommand{kCommandListStyle, kListStyle},
    TcUiValueCommand{kCommandDetailsStyle, kDetailsStyle},
};

} // namespace tc
