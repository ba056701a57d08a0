#include "drafton/engine/commands/zoom_scale.h"

#include "drafton/engine/value_parser.h"

namespace drafton {
namespace {

struct Suffix {
  const char16_t* text;
  ZoomScale::Against against;
};

// The longer one first: it ends as none of the others does.
constexpr Suffix kSuffixes[] = {
    {u"xp", ZoomScale::Against::kPaper},
    {u"x", ZoomScale::Against::kCurrent},
    {u"", ZoomScale::Against::kLimits},
};

} // namespace

std::optional<ZoomScale> parseZoomScale(QStringView text) {
  for (const Suffix& suffix : kSuffixes) {
    const QStringView ending(suffix.text);
    if (!text.endsWith(ending, Qt::CaseInsensitive)) continue;
    const std::optional<double> factor = parseReal(text.chopped(ending.size()));
    if (!factor || *factor <= 0) return std::nullopt;
    return ZoomScale{*factor, suffix.against};
  }
  return std::nullopt;
}

} // namespace drafton
