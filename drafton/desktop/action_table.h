// The table of everything that menus, toolbars and keys do.
#pragma once

#include "frame/string.h"

#include <span>

namespace drafton {

enum class MenuId {
  kFile,
  kEdit,
  kView,
  kDraw,
  kModify,
  kFormat,
  kInsert,
  kDimension,
  kTools,
  kHelp
};
enum class ToolbarId { kNone, kFile, kDraw, kModify, kView };

/// One action. Commands of the engine have their text and tip in its command menu, under their
/// name; other actions, which the window carries out itself, have them here.
struct ActionRow {
  const char16_t* name;
  MenuId menu;
  ToolbarId toolbar = ToolbarId::kNone;
  const char16_t* shortcut = u""; ///< as QKeySequence reads it; several are separated by "; "
  const char16_t* text = nullptr; ///< with "&" before the access key
  const char16_t* tip = nullptr;
  const char16_t* macro = nullptr; ///< where it differs from that of the command menu
  bool startsGroup = false;        ///< a separator stands before it
  bool isCheckable = false;
  const char16_t* icon = nullptr; ///< a command's name, where it is another than `name`
};

struct MenuTitle {
  MenuId menu;
  const char16_t* title;
};
struct ToolbarTitle {
  ToolbarId toolbar;
  const char16_t* name; ///< under which its place is kept
  const char16_t* title;
};

/// In the order of the menus.
std::span<const ActionRow> actionTable();
std::span<const MenuTitle> menuTitles();
std::span<const ToolbarTitle> toolbarTitles();

/// What an action shows and types, with that of the command menu filled in. In the user's language.
struct ActionTexts {
  OdString text, tip, macro;
};
ActionTexts textsOf(const ActionRow& row);

} // namespace drafton
