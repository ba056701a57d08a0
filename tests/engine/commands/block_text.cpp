#include "engine/commands/block_text.h"

#include "drafton/engine/value_parser.h"
#include "drawing/entities/viewport.h"
#include "drawing/objects/layout.h"
#include "engine/commands/drawing_text.h"

using drafton::shownPoint;
using drafton::shownReal;

namespace {

OdString shown(double x, double y) { return shownReal(x) + u',' + shownReal(y); }

OdString describe(const OdDbViewport& view) {
  const OdGePoint3d middle = view.centerPoint();
  const double across = view.width() / 2, up = view.height() / 2;
  OdString text =
      QStringLiteral("%1 to %2 shows %3 h%4")
          .arg(shown(middle.x - across, middle.y - up), shown(middle.x + across, middle.y + up),
               shown(view.viewCenter().x, view.viewCenter().y), shownReal(view.viewHeight()));
  if (!view.isOn()) text += QStringLiteral(" off");
  if (view.isLocked()) text += QStringLiteral(" locked");
  for (const OdDbObjectId& layer : view.frozenLayers())
    text += QStringLiteral(" without ") + layer.openAs<OdDbLayerTableRecord>()->getName();
  return text;
}

OdString describeSheet(const OdDbLayout& layout) {
  double left = 0, bottom = 0, right = 0, top = 0;
  layout.getPlotPaperMargins(left, bottom, right, top);
  OdString text =
      QStringLiteral(" %1x%2 margins %3,%4")
          .arg(shownReal(layout.getPlotPaperSize().x), shownReal(layout.getPlotPaperSize().y),
               shown(left, bottom), shown(right, top));
  double paper = 1, drawing = 1;
  layout.getCustomPrintScale(paper, drawing);
  if (paper != drawing) text += QStringLiteral(" scale %1:%2").arg(paper).arg(drawing);
  if (layout.useStandardScale() && layout.stdScaleType() == OdDbPlotSettings::kScaleToFit)
    text += QStringLiteral(" fitted");
  if (layout.plotType() == OdDbPlotSettings::kExtents) text += QStringLiteral(" extents");
  if (layout.plotType() == OdDbPlotSettings::kWindow) {
    OdGePoint2d low, high;
    layout.getPlotWindowArea(low, high);
    text += QStringLiteral(" window %1 to %2").arg(shown(low.x, low.y), shown(high.x, high.y));
  }
  if (!layout.getCurrentStyleSheet().isEmpty()) text += u' ' + layout.getCurrentStyleSheet();
  QStringList views;
  const auto space = layout.getBlockTableRecordId().openAs<OdDbBlockTableRecord>();
  for (auto at = space->newIterator(); !at->done(); at->step()) {
    const OdDbEntityPtr entity = at->entity();
    const auto* const view = odrxCast<OdDbViewport>(entity);
    if (view && !view->isOverall()) views << describe(*view);
  }
  return views.isEmpty() ? text : text + QStringLiteral(": ") + views.join(QStringLiteral(" & "));
}

} // namespace

OdString describeBlocks(OdDbDatabase& database) {
  QStringList lines;
  const auto table = database.getBlockTableId().openAs<OdDbBlockTable>();
  for (auto at = table->newIterator(); !at->done(); at->step()) {
    const OdDbBlockTableRecordPtr block = at->getRecord();
    if (block->isLayout()) continue;
    OdString line = block->getName();
    if (block->isFromExternalReference()) {
      line += block->isFromOverlayReference() ? QStringLiteral(" overlay")
                                              : QStringLiteral(" attached");
      if (block->isUnloaded()) line += QStringLiteral(" unloaded");
    } else {
      line += QStringLiteral(" at ") + shownPoint(block->origin());
    }
    lines << line + QStringLiteral(": ") + describeEntitiesOf(*block).join(QStringLiteral(" & "));
  }
  return lines.join(u'\n');
}

OdString describeLayouts(OdDbDatabase& database) {
  QStringList lines;
  for (const OdDbLayoutPtr& layout : oddb::layouts(database)) {
    const bool isActive = layout->objectId() == oddb::activeLayout(database);
    lines << (isActive ? QStringLiteral("*") : OdString()) + layout->getLayoutName() +
                 (layout->isModelType() ? OdString() : describeSheet(*layout));
  }
  return lines.join(u'\n');
}
