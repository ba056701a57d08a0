#include "drafton/desktop/theme.h"

#include "drafton/icons/command_icon.h"

#include <QApplication>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleOption>

// Beside the icons of commands stand those of actions that only windows have. Qt wants this outside
// of namespaces.
static void bringResources() { Q_INIT_RESOURCE(desktop); }

namespace drafton {
namespace {

OdString g_styleName;

/// The edges that styles draw are darker than the window, which is not seen where all is dark.
class EdgedBoxes : public QProxyStyle {
 public:
  using QProxyStyle::QProxyStyle;

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool isCircle = element == PE_IndicatorRadioButton;
    const bool isMenu = element == PE_PanelMenu || element == PE_FrameMenu;
    const bool isBox = element == PE_IndicatorCheckBox || isMenu;
    if ((!isBox && !isCircle) || !isDark(option->palette)) return;
    QColor edge = option->palette.color(QPalette::WindowText);
    // Menus do not say that they are enabled.
    edge.setAlpha(option->state & State_Enabled || isMenu ? 130 : 60);
    painter->save();
    painter->setPen(edge);
    painter->setBrush(Qt::NoBrush);
    if (isBox) {
      painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
    } else {
      const QRectF box = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
      painter->setRenderHint(QPainter::Antialiasing);
      painter->drawEllipse(box.center(), box.height() / 2, box.height() / 2);
    }
    painter->restore();
  }
};

} // namespace

bool isDark(const QPalette& palette) {
  return palette.color(QPalette::WindowText).lightness() >
         palette.color(QPalette::Window).lightness();
}

void setStyle(const OdString& name) {
  if (name.compare(g_styleName, Qt::CaseInsensitive) == 0) return;
  g_styleName = name;
  QApplication::setStyle(new EdgedBoxes(name));
}

OdString styleName() { return g_styleName.isEmpty() ? QApplication::style()->name() : g_styleName; }

QIcon themeIcon(const OdString& command, bool dark) {
  bringResources();
  QIcon icon;
  for (const int pixels : {16, 24, 32, 48, 64}) {
    const QImage image =
        commandIcon(command, pixels, dark ? IconGround::kDark : IconGround::kLight);
    if (!image.isNull()) icon.addPixmap(QPixmap::fromImage(image));
  }
  return icon;
}

const CanvasColors& canvasColors(bool dark) {
  static const CanvasColors light{
      .ground = QColor(0xFF, 0xFF, 0xFF),
      .desk = QColor(0xD5, 0xD9, 0xDE),
      .cross = QColor(0x30, 0x38, 0x44),
      .band = QColor(0x5A, 0x66, 0x78),
      .window = QColor(0x1F, 0x6F, 0xD0),
      .crossing = QColor(0x2E, 0x9E, 0x4F),
      .marker = QColor(0xD0, 0x5A, 0x00),
      .track = QColor(0x2E, 0x9E, 0x4F),
      .grip = QColor(0x1F, 0x6F, 0xD0),
      .hotGrip = QColor(0xD8, 0x30, 0x30),
      .gridMinor = QColor(0xEE, 0xF0, 0xF3),
      .gridMajor = QColor(0xDD, 0xE1, 0xE6),
      .axisX = QColor(0xC0, 0x50, 0x50),
      .axisY = QColor(0x40, 0x90, 0x50),
      .tip = QColor(0x20, 0x26, 0x30),
      .tipGround = QColor(0xFF, 0xFF, 0xF0),
  };
  static const CanvasColors night{
      .ground = QColor(0x1E, 0x23, 0x2B),
      .desk = QColor(0x2B, 0x30, 0x38),
      .cross = QColor(0xE6, 0xEA, 0xF0),
      .band = QColor(0x9A, 0xA6, 0xB8),
      .window = QColor(0x4D, 0x9D, 0xFF),
      .crossing = QColor(0x5F, 0xD0, 0x80),
      .marker = QColor(0xFF, 0xB0, 0x40),
      .track = QColor(0x5F, 0xD0, 0x80),
      .grip = QColor(0x4D, 0x9D, 0xFF),
      .hotGrip = QColor(0xFF, 0x5A, 0x5A),
      .gridMinor = QColor(0x27, 0x2D, 0x36),
      .gridMajor = QColor(0x33, 0x3B, 0x47),
      .axisX = QColor(0xA0, 0x50, 0x50),
      .axisY = QColor(0x50, 0x90, 0x58),
      .tip = QColor(0xE8, 0xEC, 0xF2),
      .tipGround = QColor(0x38, 0x40, 0x4C),
  };
  return dark ? night : light;
}

} // namespace drafton
