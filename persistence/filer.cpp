#include "persistence/filer.h"

namespace tc {
namespace {

struct BoolWords {
  const char16_t* yes;
  const char16_t* no;
};
constexpr BoolWords kBoolWords[] = {{u"TRUE", u"FALSE"}, {u"true", u"false"}, {u"1", u"0"}};

} // namespace

OdString boolText(bool value, BoolStyle style) {
  const BoolWords& words = kBoolWords[static_cast<std::size_t>(style)];
  return OdString::fromUtf16(value ? words.yes : words.no);
}

bool boolFromText(const OdString& text) {
  return text == QLatin1String("1") ||
         text.compare(QLatin1String("TRUE"), Qt::CaseInsensitive) == 0;
}

} // namespace tc
