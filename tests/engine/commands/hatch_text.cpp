#include "engine/commands/hatch_text.h"

#include "drafton/engine/value_parser.h"
#include "drawing/entities/hatch.h"

using drafton::shownAngle;
using drafton::shownReal;

namespace {

OdString shownFill(const OdDbHatch& hatch) {
  if (hatch.isGradient())
    return QStringLiteral("%1 angle%2 shift%3 %4,%5")
        .arg(hatch.gradientName(), shownAngle(hatch.gradientAngle()),
             shownReal(hatch.gradientShift()))
        .arg(hatch.gradientColor1().colorIndex())
        .arg(hatch.gradientColor2().colorIndex());
  if (hatch.isSolidFill()) return hatch.patternName();
  return QStringLiteral("%1 scale%2 angle%3 lines%4")
             .arg(hatch.patternName(), shownReal(hatch.patternScale()),
                  shownAngle(hatch.patternAngle()))
             .arg(hatch.patternLines().size()) +
         (hatch.patternDouble() ? QStringLiteral(" double") : OdString());
}

OdString describe(const OdDbHatch& hatch) {
  static const char* const kStyles[] = {"normal", "outer", "ignore"};
  OdString text = QStringLiteral("HATCH %1 area%2 loops%3 %4")
                      .arg(shownFill(hatch), shownReal(hatch.getArea(), 1))
                      .arg(hatch.numLoops())
                      .arg(QLatin1String(kStyles[hatch.hatchStyle()]));
  if (hatch.associative()) text += QStringLiteral(" assoc%1").arg(hatch.getAssocObjIds().size());
  if (hatch.elevation() != 0) text += QStringLiteral(" up") + shownReal(hatch.elevation());
  if (!hatch.color().isByLayer())
    text += QStringLiteral(" color%1").arg(hatch.color().colorIndex());
  return text;
}

} // namespace

OdString describeHatches(OdDbDatabase& database) {
  QStringList lines;
  int entities = 0;
  const auto space = database.getModelSpaceId().openAs<OdDbBlockTableRecord>();
  for (const auto at = space->newIterator(); !at->done(); at->step()) {
    ++entities;
    if (const auto* hatch = odrxCast<OdDbHatch>(at->entity().get())) lines << describe(*hatch);
  }
  return (QStringList(QStringLiteral("%1 entities").arg(entities)) + lines).join(u'\n');
}
