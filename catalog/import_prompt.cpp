#include "catalog/import_prompt.h"

#include <cstdint>

namespace tc {
namespace {

/// A message box with one button and the picture for information.
constexpr unsigned kInformationBox = 0x40;

KVPtr<IProfile> openStore() {
  const KVPtr<IProfile> section = host::profileSection(QStringLiteral("cmddata"));
  return section ? section->openSection(QStringLiteral("ToolPaletteManager"), true) : nullptr;
}

} // namespace

void showImportPrompt(const ImportPrompt& prompt) {
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
