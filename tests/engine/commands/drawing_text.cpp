#include "engine/commands/drawing_text.h"

#include "drafton/engine/commands/drawing_view.h"
#include "drafton/engine/commands/layer_set.h"
#include "drafton/engine/value_parser.h"
#include "drawing/entities/arc.h"
#include "drawing/entities/circle.h"
#include "drawing/entities/line.h"
#include "drawing/entities/polyline.h"
#include "drawing/entities/text.h"

using drafton::shownAngle;
using drafton::shownPoint;
using drafton::shownReal;

namespace {

OdString shown(const OdGePoint2d& p) {
  return QStringLiteral("%1,%2").arg(shownReal(p.x), shownReal(p.y));
}

OdString raised(double thickness) {
  return thickness == 0 ? OdString() : QStringLiteral(" thick%1").arg(shownReal(thickness));
}

OdString describe(const OdDbLine& line) {
  return QStringLiteral("LINE %1 %2")
             .arg(shownPoint(line.startPoint()), shownPoint(line.endPoint())) +
         raised(line.thickness());
}

OdString describe(const OdDbCircle& circle) {
  return QStringLiteral("CIRCLE %1 r%2")
             .arg(shownPoint(circle.center()), shownReal(circle.radius())) +
         raised(circle.thickness());
}

OdString describe(const OdDbArc& arc) {
  return QStringLiteral("ARC %1 r%2 %3..%4")
             .arg(shownPoint(arc.center()), shownReal(arc.radius()), shownAngle(arc.startAngle()),
                  shownAngle(arc.endAngle())) +
         raised(arc.thickness());
}

OdString describe(const OdDbPolyline& polyline) {
  QStringList corners;
  for (unsigned i = 0; i < polyline.numVerts(); ++i) {
    const OdDbPolyline::Vertex& v = polyline.vertexAt(i);
    OdString corner = shown(v.point);
    if (v.bulge != 0) corner += QStringLiteral(" b") + shownReal(v.bulge);
    if (v.startWidth != 0 || v.endWidth != 0)
      corner += QStringLiteral(" w%1-%2").arg(shownReal(v.startWidth), shownReal(v.endWidth));
    corners << corner;
  }
  OdString head = QStringLiteral("PLINE");
  if (polyline.isClosed()) head += QStringLiteral(" closed");
  if (polyline.constantWidth() != 0)
    head += QStringLiteral(" width%1").arg(shownReal(polyline.constantWidth()));
  if (polyline.elevation() != 0)
    head += QStringLiteral(" z%1").arg(shownReal(polyline.elevation()));
  return head + raised(polyline.thickness()) + QStringLiteral(": ") +
         corners.join(QStringLiteral(" / "));
}

OdString describe(const OdDbText& text) {
  OdString line =
      QStringLiteral("TEXT \"%1\" at %2 h%3")
          .arg(text.textString(), shownPoint(text.position()), shownReal(text.height()));
  if (text.rotation() != 0) line += QStringLiteral(" rot") + shownAngle(text.rotation());
  if (text.widthFactor() != 1) line += QStringLiteral(" wide") + shownReal(text.widthFactor());
  if (!text.isDefaultAlignment())
    line += QStringLiteral(" to %1 %2/%3")
                .arg(shownPoint(text.alignmentPoint()))
                .arg(int{text.horizontalMode()})
                .arg(int{text.verticalMode()});
  return line;
}

OdString describe(const OdDbObject& object) {
  if (const auto* line = odrxCast<OdDbLine>(&object)) return describe(*line);
  if (const auto* circle = odrxCast<OdDbCircle>(&object)) return describe(*circle);
  if (const auto* arc = odrxCast<OdDbArc>(&object)) return describe(*arc);
  if (const auto* polyline = odrxCast<OdDbPolyline>(&object)) return describe(*polyline);
  if (const auto* text = odrxCast<OdDbText>(&object)) return describe(*text);
  return QLatin1String(object.dxfName());
}

} // namespace

OdString describeEntities(OdDbDatabase& database) {
  QStringList lines;
  const auto space = database.getModelSpaceId().openAs<OdDbBlockTableRecord>();
  for (auto at = space->newIterator(); !at->done(); at->step()) lines << describe(*at->entity());
  return lines.join(u'\n');
}

OdString describeLayers(OdDbDatabase& database) {
  QStringList lines;
  const auto table = database.getLayerTableId().openAs<OdDbLayerTable>();
  for (auto at = table->newIterator(); !at->done(); at->step()) {
    const OdDbLayerTableRecordPtr layer = at->getRecord();
    QStringList parts{layer->isOff() ? QStringLiteral("off") : QStringLiteral("on")};
    if (layer->isFrozen()) parts << QStringLiteral("frozen");
    if (layer->isLocked()) parts << QStringLiteral("locked");
    if (!layer->isPlottable()) parts << QStringLiteral("noplot");
    parts << (layer->color().isByColor() ? OdString::number(layer->color().rgb(), 16)
                                         : OdString::number(layer->color().colorIndex()));
    const OdDbLinetypeTableRecordPtr linetype = layer->linetypeObjectId().openObject();
    parts << (linetype ? linetype->getName() : QStringLiteral("Continuous"));
    parts << OdString::number(int{layer->lineWeight()});
    if (const OdString text = layer->description(); !text.isEmpty()) parts << text;
    const bool isCurrent = database.currentLayer() == layer->objectId();
    lines << (isCurrent ? QStringLiteral("*") : OdString()) + layer->getName() +
                 QStringLiteral(": ") + parts.join(QStringLiteral(", "));
  }
  return lines.join(u'\n');
}

OdString describeView(OdDbDatabase& database) {
  const drafton::DrawingView view = drafton::activeView(database);
  return QStringLiteral("%1 h%2").arg(shown(view.center), shownReal(view.height));
}
