#include "drafton/desktop/theme.h"

#include "drafton/desktop/options_dialog.h"

#include <QApplication>
#include <QCheckBox>
#include <QMenu>
#include <QPainter>
#include <QRadioButton>
#include <QStyleOption>

#include <gtest/gtest.h>

using namespace drafton;

namespace {

class ThemeTest : public ::testing::TestWithParam<const char*> {
 protected:
  ThemeTest() { applyTheme(QLatin1String(GetParam())); }
  ~ThemeTest() override {
    applyTheme(QStringLiteral("Light"));
    QApplication::setPalette(QPalette());
  }

  /// How much of a colour is seen as light, from 0 to 1.
  static double luminance(const QColor& color) {
    const auto linear = [](double part) {
      return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
  }
  static double contrast(const QColor& a, const QColor& b) {
    const double first = luminance(a) + 0.05, second = luminance(b) + 0.05;
    return std::max(first, second) / std::min(first, second);
  }
  /// The best contrast to `ground` in the middle row of what the style draws.
  static double edgeContrast(QStyle::PrimitiveElement element, QPalette::ColorRole ground) {
    QStyleOptionButton option;
    option.palette = QApplication::palette();
    option.rect = QRect(0, 0, 16, 16);
    option.state = QStyle::State_Enabled | QStyle::State_Off;
    QImage image(16, 16, QImage::Format_RGB32);
    const QColor behind = option.palette.color(ground);
    image.fill(behind);
    QPainter painter(&image);
    QApplication::style()->drawPrimitive(element, &option, &painter, nullptr);
    painter.end();
    double best = 0;
    for (const int x : {0, 1, 14, 15})
      best = std::max(best, contrast(image.pixelColor(x, 8), behind));
    return best;
  }
};

TEST_P(ThemeTest, EmptyBoxesAndMenusHaveEdgesThatAreSeen) {
  const double least = isDark(QApplication::palette()) ? 3 : 1.2;
  for (const QPalette::ColorRole ground : {QPalette::Window, QPalette::Base}) {
    EXPECT_GT(edgeContrast(QStyle::PE_IndicatorCheckBox, ground), least) << ground;
    EXPECT_GT(edgeContrast(QStyle::PE_IndicatorItemViewItemCheck, ground), least) << ground;
    EXPECT_GT(edgeContrast(QStyle::PE_IndicatorRadioButton, ground), least) << ground;
  }
  QMenu menu;
  menu.addAction(QStringLiteral("One"));
  menu.addAction(QStringLiteral("Two"));
  const QImage image = menu.grab().toImage();
  const int middle = image.height() / 2;
  EXPECT_GT(contrast(image.pixelColor(0, middle), QApplication::palette().color(QPalette::Window)),
            least);
}

INSTANTIATE_TEST_SUITE_P(Themes, ThemeTest, ::testing::Values("System", "Light", "Dark"));

} // namespace
