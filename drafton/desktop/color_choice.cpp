#include "drafton/desktop/color_choice.h"

#include "drafton/desktop/color_dialog.h"

#include <QColorDialog>

namespace drafton {
namespace {

constexpr std::size_t kMostRecent = 8;

QByteArray keyOf(std::size_t number) { return "Color" + QByteArray::number(number); }

OdCmColor trueColor(const QColor& color) {
  const auto part = [](int value) { return static_cast<std::uint8_t>(value); };
  return OdCmColor::fromRgb(part(color.red()), part(color.green()), part(color.blue()));
}

QColor painted(const OdCmColor& color) { return QColor::fromRgb(color.rgb() | 0xFF000000u); }

/// "30", "#102030", or "#102030|Book|Name".
OdString written(const OdCmColor& color) {
  if (color.isByACI()) return OdString::number(color.colorIndex());
  const OdString value = painted(color).name();
  return color.hasNames() ? QStringList{value, color.bookName(), color.colorName()}.join(u'|')
                          : value;
}

std::optional<OdCmColor> read(const OdString& text) {
  bool isNumber = false;
  if (const int index = text.toInt(&isNumber); isNumber && index >= 1 && index <= 255)
    return OdCmColor::fromColorIndex(index);
  const QStringList parts = text.split(u'|');
  const QColor value(parts[0]);
  if (!value.isValid() || !parts[0].startsWith(u'#')) return std::nullopt;
  OdCmColor color = trueColor(value);
  if (parts.size() == 3) color.setNames(parts[2], parts[1]);
  return color;
}

void remember(Desktop& desktop, const OdCmColor& color) {
  if (color.isByLayer() || color.isByBlock()) return;
  std::vector<OdCmColor> recent = recentChoices(desktop);
  std::erase(recent, color);
  recent.insert(recent.begin(), color);
  if (recent.size() > kMostRecent) recent.resize(kMostRecent);
  for (std::size_t i = 0; i < recent.size(); ++i)
    desktop.setSetting(keyOf(i + 1).constData(), written(recent[i]));
}

} // namespace

std::vector<OdCmColor> recentChoices(Desktop& desktop) {
  std::vector<OdCmColor> colors;
  for (std::size_t i = 1; i <= kMostRecent; ++i)
    if (const auto color = read(desktop.setting(keyOf(i).constData()).toString()))
      colors.push_back(*color);
  return colors;
}

std::vector<QColor> recentColors(Desktop& desktop) {
  std::vector<QColor> colors;
  for (const OdCmColor& color : recentChoices(desktop)) colors.push_back(painted(color));
  return colors;
}

std::optional<OdCmColor> askDrawingColor(Desktop& desktop, const OdCmColor& now, bool takesBy,
                                         QWidget* parent) {
  std::vector<OdCmColor> books;
  if (const OdDbDatabase* const database = desktop.database()) books = bookColorsOf(*database);
  ColorDialog dialog(now, takesBy, recentChoices(desktop), std::move(books), parent);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  remember(desktop, dialog.color());
  return dialog.color();
}

std::optional<QColor> askColor(Desktop& desktop, const QColor& now, QWidget* parent) {
  const std::vector<QColor> recent = recentColors(desktop);
  for (std::size_t i = 0; i < recent.size(); ++i)
    QColorDialog::setCustomColor(static_cast<int>(i), recent[i]);
  const QColor chosen = QColorDialog::getColor(now, parent);
  if (!chosen.isValid()) return std::nullopt;
  remember(desktop, trueColor(chosen));
  return chosen;
}

} // namespace drafton
