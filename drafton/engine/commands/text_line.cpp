#include "drafton/engine/commands/text_line.h"

#include "drafton/engine/commands/arc_path.h"
#include "drafton/engine/commands/new_entities.h"

namespace drafton {
namespace {

void applyStyle(OdDbText& text, const OdDbDatabase& database) {
  const OdDbTextStyleTableRecordPtr style = database.currentTextStyle().openObject();
  if (!style) return;
  text.setWidthFactor(style->xScale());
  text.setOblique(style->obliquingAngle());
  text.mirrorInX(style->isBackwards());
  text.mirrorInY(style->isUpsideDown());
}

/// The width of a text that stands straight at its left end.
double widthOf(const OdDbText& text) {
  OdGeExtents3d box;
  return text.getGeomExtents(box) ? box.maxPoint().x - box.minPoint().x : 0;
}

/// Stretches or scales a text to reach over the distance.
void fill(OdDbText& text, const TextLayout& layout, double distance) {
  const double width = widthOf(text);
  if (width <= 0 || distance <= 0) return;
  const double factor = distance / width;
  if (layout.justification->horizontal == OdDb::kTextAlign)
    text.setHeight(text.height() * factor);
  else
    text.setWidthFactor(text.widthFactor() * factor);
}

} // namespace

void layOutText(const OdDbDatabase& database, TextLayout& layout, OdDbText& text) {
  text.setDatabaseDefaults(database);
  applyStyle(text, database);
  if (layout.height > 0) text.setHeight(layout.height);
  const TextJustification& justification = *layout.justification;
  if (justification.hasTwoPoints()) fill(text, layout, layout.point.distanceTo(layout.secondPoint));

  const TextBox box{widthOf(text), text.height()};
  text.setPosition(baseLineStart(layout.point, justification, box, layout.rotation));
  text.setRotation(layout.rotation);
  text.setHorizontalMode(justification.horizontal);
  text.setVerticalMode(justification.vertical);
  if (!text.isDefaultAlignment())
    text.setAlignmentPoint(justification.hasTwoPoints() ? layout.secondPoint : layout.point);
  layout.height = text.height();
}

void advanceLine(TextLayout& layout) {
  layout.point = nextTextLine(layout.point, layout.height, layout.rotation);
  layout.secondPoint = nextTextLine(layout.secondPoint, layout.height, layout.rotation);
}

std::optional<TextLayout> layoutBelowLast(const OdDbDatabase& database, const OdRxClass* kind) {
  const auto space = database.getCurrentSpaceId().openAs<OdDbBlockTableRecord>();
  const std::vector<OdDbObjectId>& ids = space->entityIds();
  for (auto id = ids.rbegin(); id != ids.rend(); ++id) {
    const OdDbObjectPtr object = id->openObject();
    if (!object || !object->isKindOf(kind)) continue;
    const auto* const text = odrxCast<OdDbText>(object.get());
    TextLayout layout;
    layout.justification = &textJustification(text->horizontalMode(), text->verticalMode());
    layout.point = text->position();
    if (layout.justification->hasTwoPoints())
      layout.secondPoint = text->alignmentPoint();
    else if (!text->isDefaultAlignment())
      layout.point = text->alignmentPoint();
    layout.height = text->height();
    layout.rotation = text->rotation();
    advanceLine(layout);
    return layout;
  }
  return std::nullopt;
}

} // namespace drafton
