#include "drafton/render/sheet.h"

#include "drafton/render/view.h"
#include "drawing/database.h"
#include "drawing/entities/viewport.h"
#include "drawing/tables/view_table.h"

#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

namespace drafton {
namespace {

constexpr double kMillimetresPerInch = 25.4;
constexpr double kShadow = 5;

struct StyleTable {
  const char16_t* name;
  Tones tones;
};
constexpr StyleTable kStyleTables[] = {{u"monochrome", Tones::kForeground},
                                       {u"grayscale", Tones::kGrays}};

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

/// What of a layout is plotted.
struct Plotted {
  OdGeExtents3d area; ///< empty for the layout as it stands on its paper
  bool isCut = false; ///< what is outside of the area is not plotted
};

OdGeExtents3d boxOf(const OdGePoint2d& a, const OdGePoint2d& b) {
  OdGeExtents3d box;
  box.addPoint({a.x, a.y, 0});
  box.addPoint({b.x, b.y, 0});
  return box;
}

/// What a view of so much around its middle shows.
OdGeExtents3d boxAround(const OdGePoint2d& middle, double width, double height) {
  if (!(width > 0) || !(height > 0)) return {};
  return boxOf({middle.x - width / 2, middle.y - height / 2},
               {middle.x + width / 2, middle.y + height / 2});
}

OdGeExtents3d namedView(const OdDbDatabase& database, const OdString& name) {
  const auto views = odrxCast<OdDbViewTable>(database.getViewTableId().openObject());
  const OdDbObjectPtr found = views ? views->getAt(name).openObject() : OdDbObjectPtr();
  const auto* view = odrxCast<OdDbViewTableRecord>(found);
  if (view == nullptr || !view->isPaperspaceView()) return {};
  return boxAround(view->centerPoint(), view->width(), view->height());
}

/// What the window that stands for the sheet showed last.
OdGeExtents3d lastDisplay(const OdDbLayout& layout) {
  const auto block = odrxCast<OdDbBlockTableRecord>(layout.getBlockTableRecordId().openObject());
  if (!block) return {};
  for (auto it = block->newIterator(); !it->done(); it->step()) {
    const OdDbEntityPtr entity = it->entity();
    const auto* viewport = odrxCast<OdDbViewport>(entity);
    if (viewport == nullptr || !viewport->isOverall()) continue;
    return boxAround(viewport->viewCenter(),
                     viewport->viewHeight() * viewport->width() / viewport->height(),
                     viewport->viewHeight());
  }
  return {};
}

/// The model stands on no paper by itself, and where it was last looked at counts for the screen.
bool plotsArea(const OdDbLayout& layout) {
  return layout.plotType() != OdDbPlotSettings::kLayout &&
         layout.plotType() != OdDbPlotSettings::kDisplay;
}

Plotted plottedOf(const OdDbLayout& layout, const std::function<OdGeExtents3d()>& drawn) {
  OdGePoint2d low, high;
  Plotted plotted;
  if (layout.isModelType() && !plotsArea(layout)) return {drawn(), false};
  switch (layout.plotType()) {
  case OdDbPlotSettings::kExtents:
    return {drawn(), false};
  case OdDbPlotSettings::kWindow:
    layout.getPlotWindowArea(low, high);
    plotted = {boxOf(low, high), true};
    break;
  case OdDbPlotSettings::kLimits:
    layout.getLimits(low, high);
    plotted = {boxOf(low, high), true};
    break;
  case OdDbPlotSettings::kView:
    plotted = {namedView(*layout.database(), layout.getPlotViewName()), true};
    break;
  case OdDbPlotSettings::kDisplay:
    plotted = {lastDisplay(layout), true};
    break;
  case OdDbPlotSettings::kLayout:
    return {};
  }
  // A window without size, or a view that is not there, hides nothing.
  if (plotted.area.isEmpty() || plotted.area.minPoint().x == plotted.area.maxPoint().x ||
      plotted.area.minPoint().y == plotted.area.maxPoint().y)
    return layout.isModelType() ? Plotted{drawn(), false} : Plotted();
  return plotted;
}

} // namespace

OdGePoint2d sheetSize(const OdDbLayout& layout) {
  const OdGePoint2d size = layout.getPlotPaperSize();
  const bool isTurned = layout.plotRotation() == OdDbPlotSettings::k90degrees ||
                        layout.plotRotation() == OdDbPlotSettings::k270degrees;
  return isTurned ? OdGePoint2d{size.y, size.x} : size;
}

bool hasPaper(const OdDbLayout& layout) {
  const OdGePoint2d size = sheetSize(layout);
  // New drawings have a paper for the model that nobody has chosen.
  const bool isSetUp = !layout.isModelType() || plotsArea(layout) ||
                       layout.getPlotCfgName() != QLatin1String("none_device");
  return isSetUp && size.x > 0 && size.y > 0;
}

Tones tonesOf(const OdDbLayout& layout) {
  if (!layout.plotFlag(OdDbPlotSettings::kPlotPlotStyles)) return Tones::kColors;
  const OdString name = layout.getCurrentStyleSheet();
  // Tables by colours and by names differ in what stands behind the dot.
  const auto at = std::ranges::find_if(kStyleTables, [&](const StyleTable& table) {
    return name.section(u'.', 0, -2).compare(QStringView(table.name), Qt::CaseInsensitive) == 0;
  });
  return at == std::end(kStyleTables) ? Tones::kColors : at->tones;
}

Sheet sheetOf(const OdDbLayout& layout, const std::function<OdGeExtents3d()>& drawn) {
  return layout.isModelType() ? Sheet() : plotOf(layout, drawn);
}

Sheet plotOf(const OdDbLayout& layout, const std::function<OdGeExtents3d()>& drawn) {
  Sheet sheet;
  const OdGePoint2d size = sheetSize(layout);
  if (!hasPaper(layout)) return sheet;
  const std::array<double, 4> free = margins(layout);
  const OdGePoint2d printable{size.x - free[0] - free[2], size.y - free[1] - free[3]};
  const Plotted plotted = plottedOf(layout, drawn);
  // Drawing units of a millimetre of paper.
  double unit = unitsPerMillimetre(layout) / layout.plotScale();
  const bool fits =
      layout.useStandardScale() && layout.stdScaleType() == OdDbPlotSettings::kScaleToFit;
  if (fits && plotted.area.isEmpty()) unit = unitsPerMillimetre(layout);
  if (fits && !plotted.area.isEmpty() && printable.x > 0 && printable.y > 0) {
    const OdGeVector3d reach = plotted.area.maxPoint() - plotted.area.minPoint();
    const double needed = std::max(reach.x / printable.x, reach.y / printable.y);
    if (needed > 0) unit = needed;
  }
  if (!std::isfinite(unit) || !(unit > 0)) unit = 1;
  OdGePoint3d corner{};
  if (!plotted.area.isEmpty()) corner = plotted.area.minPoint();
  OdGePoint2d offset = layout.getPlotOrigin();
  const bool isCentered = layout.plotFlag(OdDbPlotSettings::kPlotCentered) ||
                          (layout.isModelType() && !plotsArea(layout));
  if (!plotted.area.isEmpty() && isCentered) {
    const OdGeVector3d reach = plotted.area.maxPoint() - plotted.area.minPoint();
    offset = {(printable.x - reach.x / unit) / 2, (printable.y - reach.y / unit) / 2};
  }
  const double x = corner.x - (free[0] + offset.x) * unit;
  const double y = corner.y - (free[1] + offset.y) * unit;
  sheet.paper.addPoint({x, y, 0});
  sheet.paper.addPoint({x + size.x * unit, y + size.y * unit, 0});
  if (plotted.isCut) sheet.shown = plotted.area;
  sheet.scale = 1 / unit;
  return sheet;
}

void drawSheet(QPainter& painter, const OdDbLayout& layout, const Sheet& sheet, const View& view,
               QRgb desk, QRgb paper) {
  painter.fillRect(view.rect(), QColor::fromRgb(desk));
  if (sheet.paper.isEmpty()) return;
  const Projection projection = view.projection();
  const QRectF rect = projection.boxOf(sheet.paper);
  painter.fillRect(rect.translated(kShadow, kShadow), QColor(0, 0, 0, 90));
  painter.fillRect(rect, QColor::fromRgb(paper));
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QColor(0, 0, 0, 160));
  painter.drawRect(rect);
  const double unit = 1 / sheet.scale;
  const std::array<double, 4> free = margins(layout);
  const OdGePoint3d &low = sheet.paper.minPoint(), &high = sheet.paper.maxPoint();
  OdGeExtents3d printable;
  printable.addPoint({low.x + free[0] * unit, low.y + free[1] * unit, 0});
  printable.addPoint({high.x - free[2] * unit, high.y - free[3] * unit, 0});
  painter.setPen(QPen(QColor(0, 0, 0, 110), 1, Qt::DashLine));
  painter.drawRect(projection.boxOf(printable));
}

} // namespace drafton
