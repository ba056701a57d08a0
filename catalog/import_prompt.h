// The notices that tell of tools which come in changed or not at all.
#pragma once

#include "module/string_table.h"

#include <string_view>
#include <vector>

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

/// While it lives, files are read on behalf of one import: each notice is shown at most once. A
/// silent one shows none, and prints nothing of what is only tried.
class ImportConversation {
 public:
  explicit ImportConversation(bool isSilent);
  ~ImportConversation();
  ImportConversation(const ImportConversation&) = delete;
  ImportConversation& operator=(const ImportConversation&) = delete;

  bool isSilent() const { return m_isSilent; }
  /// True for a notice that was not shown before.
  bool isNew(std::u16string_view key);

 private:
  ImportConversation* const m_outer;
  const bool m_isSilent;
  std::vector<std::u16string_view> m_shown;
};

/// Prints what became of a tool.
void printImported(const OdString& text);

/// Shows the notice unless the user has switched it off, and keeps the user's answer.
void showImportPrompt(const ImportPrompt& prompt);

} // namespace tc
