#include "drafton/render/sheet.h"

#include "drafton/render/view.h"

#include <QPainter>

#include <array>

namespace drafton {
namespace {

constexpr double kMillimetresPerInch = 25.4;
constexpr double kShadow = 5;

/// The margins from the left edge counterclockwise, as they lie once the sheet is turned under the
/// drawing.
std::array<double, 4> margins(const OdDbLayout& layout) {
  double left = 0, bottom = 0, right = 0, top = 0;
  layout.getPlotPaperMargins(left, bottom, right, top);
  const std::array given{left, bottom, right, top};
  std::array<double, 4> turned{};
  for (std::size_t i = 0; i < given.size(); ++i)
    turned[i] = given[(i + static_cast<std::size_t>(layout.plotRotation())) % given.size()];
  return turned;
}

double unitsPerMillimetre(const OdDbLayout& layout) {
  return layout.plotPaperUnits() == OdDbPlotSettings::kInches ? 1 / kMillimetresPerInch : 1;
}

} // namespace

OdGePoint2d sheetSize(const OdDbLayout& layout) {
  const OdGePoint2d size = layout.getPlotPaperSize();
  const bool isTurned = layout.plotRotation() == OdDbPlotSettings::k90degrees ||
                        layout.plotRotation() == OdDbPlotSettings::k270degrees;
  return isTurned ? OdGePoint2d{size.y, size.x} : size;
}

OdGeExtents3d sheetOf(const OdDbLayout& layout) {
  OdGeExtents3d sheet;
  const OdGePoint2d size = sheetSize(layout);
  if (layout.isModelType() || !(size.x > 0) || !(size.y > 0)) return sheet;
  const double unit = unitsPerMillimetre(layout);
  const std::array<double, 4> free = margins(layout);
  const OdGePoint2d origin = layout.getPlotOrigin();
  const double x = -(free[0] + origin.x) * unit, y = -(free[1] + origin.y) * unit;
  sheet.addPoint({x, y, 0});
  sheet.addPoint({x + size.x * unit, y + size.y * unit, 0});
  return sheet;
}

void drawSheet(QPainter& painter, const OdDbLayout& layout, const View& view, QRgb desk,
               QRgb paper) {
  painter.fillRect(view.rect(), QColor::fromRgb(desk));
  const OdGeExtents3d sheet = sheetOf(layout);
  if (sheet.isEmpty()) return;
  const Projection projection = view.projection();
  const QRectF rect = projection.boxOf(sheet);
  painter.fillRect(rect.translated(kShadow, kShadow), QColor(0, 0, 0, 90));
  painter.fillRect(rect, QColor::fromRgb(paper));
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QColor(0, 0, 0, 160));
  painter.drawRect(rect);
  const double unit = unitsPerMillimetre(layout);
  const std::array<double, 4> free = margins(layout);
  OdGeExtents3d printable;
  printable.addPoint({sheet.minPoint().x + free[0] * unit, sheet.minPoint().y + free[1] * unit, 0});
  printable.addPoint({sheet.maxPoint().x - free[2] * unit, sheet.maxPoint().y - free[3] * unit, 0});
  painter.setPen(QPen(QColor(0, 0, 0, 110), 1, Qt::DashLine));
  painter.drawRect(projection.boxOf(printable));
}

} // namespace drafton
