#include "catalog/import_prompt.h"

#include <algorithm>
#include <cstdint>

namespace tc {
namespace {

/// A message box with one button and the picture for information.
constexpr unsigned kInformationBox = 0x40;

KVPtr<IProfile> openStore() {
  const KVPtr<IProfile> section = host::profileSection(QStringLiteral("cmddata"));
  return section ? section->openSection(QStringLiteral("ToolPaletteManager"), true) : nullptr;
}

ImportConversation* g_conversation = nullptr;

} // namespace

ImportConversation::ImportConversation(bool isSilent)
  : m_outer(g_conversation)
  , m_isSilent(isSilent) {
  g_conversation = this;
}

ImportConversation::~ImportConversation() { g_conversation = m_outer; }

bool ImportConversation::isNew(std::u16string_view key) {
  if (std::find(m_shown.begin(), m_shown.end(), key) != m_shown.end()) return false;
  m_shown.push_back(key);
  return true;
}

void printImported(const OdString& text) {
  if (!g_conversation || !g_conversation->isSilent()) host::print(text);
}

void showImportPrompt(const ImportPrompt& prompt) {
  if (g_conversation && (g_conversation->isSilent() || !g_conversation->isNew(prompt.key))) return;
  const OdString key = QStringView(prompt.key).toString();
  const KVPtr<IProfile> store = openStore();
  OdVariant isOff;
  if (store && store->get(key, isOff) && isOff.toBool()) return;
  const KVPtr<IHostMessages> messages = host::service<IHostMessages>();
  if (!messages) return;
  const bool isTicked = messages->messageBoxWithCheckBox(
      QStringView(prompt.identifier).toString(), stringText(prompt.text),
      stringText(StringId::kImportCaption), kInformationBox);
  if (store) store->set(key, std::int32_t{isTicked});
}

} // namespace tc
