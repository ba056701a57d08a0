#include "drafton/desktop/color_choice.h"

#include <QColorDialog>

namespace drafton {
namespace {

constexpr int kMostRecent = 8;

QByteArray keyOf(int number) { return "Color" + QByteArray::number(number); }

} // namespace

std::vector<QColor> recentColors(Desktop& desktop) {
  std::vector<QColor> colors;
  for (int i = 1; i <= kMostRecent; ++i) {
    const QColor color(desktop.setting(keyOf(i).constData()).toString());
    if (color.isValid()) colors.push_back(color);
  }
  return colors;
}

std::optional<QColor> askColor(Desktop& desktop, const QColor& now, QWidget* parent) {
  std::vector<QColor> recent = recentColors(desktop);
  for (std::size_t i = 0; i < recent.size(); ++i)
    QColorDialog::setCustomColor(static_cast<int>(i), recent[i]);
  const QColor chosen = QColorDialog::getColor(now, parent);
  if (!chosen.isValid()) return std::nullopt;
  std::erase_if(recent, [&](const QColor& color) { return color.rgb() == chosen.rgb(); });
  recent.insert(recent.begin(), chosen);
  if (recent.size() > kMostRecent) recent.resize(kMostRecent);
  for (std::size_t i = 0; i < recent.size(); ++i)
    desktop.setSetting(keyOf(static_cast<int>(i) + 1).constData(), recent[i].name());
  return chosen;
}

OdCmColor trueColor(const QColor& color) {
  const auto part = [](int value) { return static_cast<std::uint8_t>(value); };
  return OdCmColor::fromRgb(part(color.red()), part(color.green()), part(color.blue()));
}

} // namespace drafton
