#include "engine/commands/drawing_text.h"

#include "drafton/engine/commands/drawing_view.h"
#include "drafton/engine/commands/layer_set.h"
#include "drafton/engine/value_parser.h"
#include "drawing/entities/arc.h"
#include "drawing/entities/attribute_definition.h"
#include "drawing/entities/block_reference.h"
#include "drawing/entities/circle.h"
#include "drawing/entities/ellipse.h"
#include "drawing/entities/leader.h"
#include "drawing/entities/line.h"
#include "drawing/entities/mtext.h"
#include "drawing/entities/point.h"
#include "drawing/entities/polyline.h"
#include "drawing/entities/raster_image.h"
#include "drawing/entities/spline.h"
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

OdString describe(const OdDbAttributeDefinition& definition) {
  const std::pair<bool, const char*> modes[] = {{definition.isInvisible(), " invisible"},
                                                {definition.isConstant(), " constant"},
                                                {definition.isVerifiable(), " verified"},
                                                {definition.isPreset(), " preset"},
                                                {definition.lockPositionInBlock(), " locked"}};
  OdString text = QStringLiteral("ATTDEF %1 \"%2\"").arg(definition.tag(), definition.prompt());
  for (const auto& [on, word] : modes)
    if (on) text += QLatin1String(word);
  return text + QStringLiteral(": ") + describe(static_cast<const OdDbText&>(definition));
}

OdString joined(const std::vector<OdGePoint3d>& points) {
  QStringList texts;
  for (const OdGePoint3d& point : points) texts << shownPoint(point);
  return texts.join(QStringLiteral(" / "));
}

OdString describe(const OdDbPoint& point) {
  return QStringLiteral("POINT ") + shownPoint(point.position()) + raised(point.thickness());
}

OdString describe(const OdDbEllipse& ellipse) {
  return QStringLiteral("ELLIPSE %1 axis%2 ratio%3 %4..%5")
      .arg(shownPoint(ellipse.center()), shownPoint(OdGePoint3d() + ellipse.majorAxis()),
           shownReal(ellipse.radiusRatio()), shownAngle(ellipse.startParam()),
           shownAngle(ellipse.endParam()));
}

OdString describe(const OdDbSpline& spline) {
  OdString text = QStringLiteral("SPLINE fit ") + joined(spline.fitPoints());
  if (!spline.startTangent().isZeroLength())
    text += QStringLiteral(" from") + shownPoint(OdGePoint3d() + spline.startTangent());
  if (!spline.endTangent().isZeroLength())
    text += QStringLiteral(" to") + shownPoint(OdGePoint3d() + spline.endTangent());
  return text;
}

OdString describe(const OdDbMText& text) {
  OdString line = QStringLiteral("MTEXT \"%1\" at %2 h%3 w%4 %5")
                      .arg(text.contents(), shownPoint(text.location()),
                           shownReal(text.textHeight()), shownReal(text.width()))
                      .arg(int{text.attachment()});
  if (text.lineSpacingFactor() != 1)
    line += QStringLiteral(" spacing") + shownReal(text.lineSpacingFactor());
  if (text.lineSpacingStyle() == OdDbMText::kExactly) line += QStringLiteral(" exactly");
  if (text.rotation() != 0) line += QStringLiteral(" rot") + shownAngle(text.rotation());
  return line;
}

OdString describe(const OdDbLeader& leader) {
  OdString head = QStringLiteral("LEADER ");
  if (leader.isSplined()) head += QStringLiteral("splined ");
  if (!leader.hasArrowHead()) head += QStringLiteral("noarrow ");
  std::vector<OdGePoint3d> corners;
  for (unsigned i = 0; i < leader.numVertices(); ++i) corners.push_back(leader.vertexAt(i));
  return head + joined(corners) + (leader.hasHookLine() ? QStringLiteral(" hook") : OdString());
}

OdString describe(const OdDbBlockReference& insert) {
  const OdGeScale3d scale = insert.scaleFactors();
  OdString text =
      QStringLiteral("INSERT %1 at %2").arg(insert.blockName(), shownPoint(insert.position()));
  if (scale != OdGeScale3d{})
    text += QStringLiteral(" x") + shownPoint({scale.sx, scale.sy, scale.sz});
  if (insert.rotation() != 0) text += QStringLiteral(" rot") + shownAngle(insert.rotation());
  for (const OdDbAttributePtr& attribute : insert.attributes())
    text += QStringLiteral(" %1=%2").arg(attribute->tag(), attribute->textString());
  return text;
}

OdString describe(const OdDbRasterImage& image) {
  OdGePoint3d origin;
  OdGeVector3d u, v;
  image.getOrientation(origin, u, v);
  return QStringLiteral("IMAGE at %1 along %2 up %3")
      .arg(shownPoint(origin), shownPoint(OdGePoint3d() + u), shownPoint(OdGePoint3d() + v));
}

template <class Entity>
bool describeAs(const OdDbObject& object, OdString& text) {
  const Entity* const entity = odrxCast<Entity>(&object);
  if (entity) text = describe(*entity);
  return entity != nullptr;
}

using Describer = bool (*)(const OdDbObject& object, OdString& text);
constexpr Describer kDescribers[] = {
    describeAs<OdDbAttributeDefinition>,
    describeAs<OdDbLine>,
    describeAs<OdDbCircle>,
    describeAs<OdDbArc>,
    describeAs<OdDbPolyline>,
    describeAs<OdDbText>,
    describeAs<OdDbPoint>,
    describeAs<OdDbEllipse>,
    describeAs<OdDbSpline>,
    describeAs<OdDbMText>,
    describeAs<OdDbLeader>,
    describeAs<OdDbBlockReference>,
    describeAs<OdDbRasterImage>,
};

OdString describe(const OdDbObject& object) {
  OdString text;
  for (const Describer describer : kDescribers)
    if (describer(object, text)) return text;
  return QLatin1String(object.dxfName());
}

} // namespace

QStringList describeEntitiesOf(const OdDbBlockTableRecord& block) {
  QStringList lines;
  for (auto at = block.newIterator(); !at->done(); at->step()) lines << describe(*at->entity());
  return lines;
}

OdString describeEntities(OdDbDatabase& database) {
  const auto space = database.getModelSpaceId().openAs<OdDbBlockTableRecord>();
  return describeEntitiesOf(*space).join(u'\n');
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
