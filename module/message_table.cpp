#include "module/message_table.h"

#include "host/show_message.h"
#include "module/string_table.h"

#include <array>

namespace tc {
namespace {

constexpr char16_t kProduct[] = u"Drafton";

/// By code.
constexpr std::array kMessages = {StringId::kMustBeDigit,        StringId::kPaletteReadError,
                                  StringId::kNoBlockDefinitions, StringId::kFileReadError,
                                  StringId::kNoCatalogInFolder,  StringId::kSaveDrawingFirst};

} // namespace

OdString showMessage(int code, bool showBox) {
  if (code < 0 || static_cast<std::size_t>(code) >= kMessages.size()) return {};
  const OdString text = stringText(kMessages[static_cast<std::size_t>(code)]);
  return showBox && !text.isEmpty() ? showWarning(text) : text;
}

OdString showWarning(const OdString& text) {
  host::showMessage(text, OdString::fromUtf16(kProduct), messagebox::kWarning);
  return text;
}

} // namespace tc
