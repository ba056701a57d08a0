// The commands that menus show: all of Drafton's own, but for second names of the same and those
// that modules run.
#pragma once

#include "host/command_menu.h"

#include <span>

namespace drafton {

/// One row of the menu.
struct MenuRow {
  const char16_t* command;
  const char16_t* label;
  const char16_t* tip; ///< with a "&" before the access key
  const char16_t* macro;
};
std::span<const MenuRow> commandMenu();

/// The rows as modules see them; labels and tips are in the user's language.
class CommandMenu : public CKVUnknownImpl<IHostCommandMenu> {
 public:
  int count() override;
  HostMenuEntry entry(int index) override;
};

} // namespace drafton
