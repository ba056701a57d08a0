#include "drafton/desktop/printing.h"

#include "drafton/render/renderer.h"
#include "drafton/render/scene_painter.h"
#include "drafton/render/sheet.h"

#include <QPainter>

namespace drafton {
namespace {

constexpr double kModelMargin = 0.02;
constexpr double kMillimetresPerInch = 25.4;

OdDbLayoutPtr shownLayout(const OdDbDatabase& database) {
  return odrxCast<OdDbLayout>(oddb::activeLayout(database).openObject().get());
}

} // namespace

OdString shownLayoutName(const OdDbDatabase& database) {
  const OdDbLayoutPtr layout = shownLayout(database);
  return layout ? layout->getLayoutName() : OdString();
}

void setPaper(QPrinter& printer, const OdDbDatabase& database) {
  const OdDbLayoutPtr layout = shownLayout(database);
  if (!layout || layout->isModelType()) return;
  const OdGePoint2d size = sheetSize(*layout);
  if (!(size.x > 0) || !(size.y > 0)) return;
  const bool isWide = size.x > size.y;
  const QSizeF upright(std::min(size.x, size.y), std::max(size.x, size.y));
  printer.setPageSize(QPageSize(upright, QPageSize::Millimeter));
  printer.setPageOrientation(isWide ? QPageLayout::Landscape : QPageLayout::Portrait);
}

bool printSheet(QPrinter& printer, OdDbDatabase& database) {
  printer.setFullPage(true);
  QPainter painter;
  if (!painter.begin(&printer)) return false;
  Scene scene(database);
  scene.update();
  const OdDbLayoutPtr layout = shownLayout(database);
  const bool isSheet = layout && !layout->isModelType();
  const OdDbObjectId block = isSheet ? layout->getBlockTableRecordId() : database.getModelSpaceId();
  View view;
  view.size = QSizeF(printer.width(), printer.height());
  OdGeExtents3d box;
  if (isSheet) box = sheetOf(*layout, [&] { return scene.boxOf(block, deviationFor(1)); }).paper;
  const double margin = box.isEmpty() ? kModelMargin : 0;
  if (box.isEmpty()) box = scene.boxOf(block, deviationFor(1));
  RenderOptions options;
  options.isPlotting = true;
  options.simplifies = false;
  options.pixelsPerMillimetre = printer.resolution() / kMillimetresPerInch;
  render(painter, scene, block, view.fitted(box, margin), options);
  return painter.end();
}

} // namespace drafton
