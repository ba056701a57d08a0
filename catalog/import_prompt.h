// The notices that tell of tools which come in changed or not at all.
#pragma once

#include "module/string_table.h"

#include <string_view>

namespace tc {

/// A notice that the user can switch off.
struct ImportPrompt {
  std::u16string_view key;        ///< the key in the store that holds the user's answer
  std::u16string_view identifier; ///< the prompt's name in the host
  StringId text;
};

inline constexpr ImportPrompt kMultitoolPrompt = {
    u"MultitoolConvertMessage", u"ToolPaletteManager\\MTMsg", StringId::kMultitoolNotice};
inline constexpr ImportPrompt kUnsupportedToolsPrompt = {
    u"UnsupportedToolsMessage", u"ToolPaletteManager\\UTMsg", StringId::kUnsupportedNotice};

/// Shows the notice unless the user has switched it off, and keeps the user's answer.
void showImportPrompt(const ImportPrompt& prompt);

} // namespace tc
