// DIMLINEAR, DIMALIGNED, DIMCONTINUE, DIMBASELINE, DIMRADIUS, DIMDIAMETER, DIMANGULAR.

#include "drafton/engine/value_parser.h"
#include "drawing/entities/dimension_kinds.h"
#include "engine/commands/scripts.h"

using namespace drafton;

namespace {

/// "rotated 90: 0,0,0 10,5,0 line 12,5,0 = 5": the points, and the text.
OdString describe(const OdDbDimension& dimension) {
  OdString line;
  if (const auto* rotated = odrxCast<OdDbRotatedDimension>(&dimension))
    line = QStringLiteral("rotated %1: ").arg(shownAngle(rotated->rotation()));
  else if (odrxCast<OdDbAlignedDimension>(&dimension))
    line = QStringLiteral("aligned: ");
  if (const auto* linear = odrxCast<OdDbAlignedDimension>(&dimension))
    line += QStringLiteral("%1 %2 line %3")
                .arg(shownPoint(linear->xLine1Point()), shownPoint(linear->xLine2Point()),
                     shownPoint(linear->dimLinePoint()));
  if (const auto* radius = odrxCast<OdDbRadialDimension>(&dimension))
    line = QStringLiteral("radius: %1 to %2 leader %3")
               .arg(shownPoint(radius->center()), shownPoint(radius->chordPoint()),
                    shownReal(radius->leaderLength()));
  if (const auto* diameter = odrxCast<OdDbDiametricDimension>(&dimension))
    line = QStringLiteral("diameter: %1 to %2 leader %3")
               .arg(shownPoint(diameter->chordPoint()), shownPoint(diameter->farChordPoint()),
                    shownReal(diameter->leaderLength()));
  if (const auto* angle = odrxCast<OdDb2LineAngularDimension>(&dimension))
    line = QStringLiteral("angle of lines: at %1").arg(shownPoint(angle->arcPoint()));
  if (const auto* angle = odrxCast<OdDb3PointAngularDimension>(&dimension))
    line = QStringLiteral("angle: %1 %2 %3 at %4")
               .arg(shownPoint(angle->centerPoint()), shownPoint(angle->xLine1Point()),
                    shownPoint(angle->xLine2Point()), shownPoint(angle->arcPoint()));
  line += QStringLiteral(" = ") + dimension.displayedText();
  if (dimension.textRotation() != 0)
    line += QStringLiteral(" turned ") + shownAngle(dimension.textRotation());
  if (dimension.dimBlockId().isNull()) line += QStringLiteral(" without a block");
  return line;
}

OdString describeDimensions(OdDbDatabase& database) {
  QStringList lines;
  const auto space = database.getModelSpaceId().openAs<OdDbBlockTableRecord>();
  for (auto at = space->newIterator(); !at->done(); at->step()) {
    const OdDbEntityPtr entity = at->entity();
    if (const auto* dimension = odrxCast<OdDbDimension>(entity.get()))
      lines << describe(*dimension);
  }
  return lines.join(u'\n');
}

/// The styles with their heights of texts; the current one has a star. Then the height that new
/// dimensions get.
OdString describeStyles(OdDbDatabase& database) {
  QStringList lines;
  const auto table = database.getDimStyleTableId().openAs<OdDbDimStyleTable>();
  for (auto at = table->newIterator(); !at->done(); at->step()) {
    const OdDbDimStyleTableRecordPtr style = at->getRecord();
    const bool isCurrent = style->objectId() == database.currentDimStyle();
    lines << (isCurrent ? QStringLiteral("*") : OdString()) + style->getName() + u' ' +
                 shownReal(style->dimtxt());
  }
  return lines.join(u'\n') + QStringLiteral("\nnew ") + shownReal(database.sysVarReal("DIMTXT"));
}

constexpr char16_t kShapes[] = u"LINE|0,0|10,4||CIRCLE|30,0|5|ARC|c|50,0|55,0|50,5";

constexpr char16_t kTwoStyles[] = u"DIMLINEAR|0,0|10,0|5,5|DIMTXT|4|DIMSTYLE|s|Large";

constexpr Script kDimensions[] = {
    {"Save", u"DIMSTYLE|s|Large", u"Standard 2.5;*Large 4;new 4", u"DIMTXT|4", describeStyles},
    {"SaveAfterAList", u"DIMSTYLE|s|?|*|a*b|Large", u"Standard 2.5;*Large 4;new 4", u"DIMTXT|4",
     describeStyles},
    {"SaveOver", u"DIMSTYLE|s|standard|y", u"*Standard 4;new 4", u"DIMTXT|4", describeStyles},
    {"SaveNotOver", u"DIMSTYLE|s|standard|n|Large", u"Standard 2.5;*Large 4;new 4", u"DIMTXT|4",
     describeStyles},
    {"Restore", u"DIMSTYLE|r|Standard", u"*Standard 2.5;Large 4;new 2.5", kTwoStyles,
     describeStyles},
    {"RestoreByEnter", u"DIMSTYLE||?|*|Nothing|Standard", u"*Standard 2.5;Large 4;new 2.5",
     kTwoStyles, describeStyles},
    {"RestoreThatOfADimension", u"-DIMSTYLE|r|s|l", u"*Standard 2.5;Large 4;new 2.5", kTwoStyles,
     describeStyles},
    {"Status", u"DIMSTYLE|st", u"*Standard 2.5;new 2.5", nullptr, describeStyles},
    {"Variables", u"DIMSTYLE|v|Standard", u"*Standard 2.5;new 2.5", nullptr, describeStyles},
    {"Apply", u"DIMSTYLE|a|l|", u"Standard 2.5;*Large 4;new 4", kTwoStyles, describeStyles},
    {"List", u"DIMSTYLE|?|*", u"*Standard 2.5;new 2.5", nullptr, describeStyles},
    {"TextWithCodes", u"DIMLINEAR|0,0|10,5|m|about <>|4,9",
     u"rotated 0: 0,0,0 10,5,0 line 10,9,0 = about 10", nullptr, describeDimensions},
    {"Row", u"DIMCONTINUE|14,0|20,1|",
     u"rotated 0: 0,0,0 10,5,0 line 10,9,0 = 10;rotated 0: 10,5,0 14,0,0 line 14,9,0 = 4;"
     u"rotated 0: 14,0,0 20,1,0 line 20,9,0 = 6",
     u"DIMLINEAR|0,0|10,5|4,9", describeDimensions},
    {"RowUndone", u"DIMCONTINUE|u|14,0|20,1|u|14,0|18,0|",
     u"rotated 0: 0,0,0 10,5,0 line 10,9,0 = 10;rotated 0: 10,5,0 14,0,0 line 14,9,0 = 4;"
     u"rotated 0: 14,0,0 18,0,0 line 18,9,0 = 4",
     u"DIMLINEAR|0,0|10,5|4,9", describeDimensions},
    {"RowOfAnAlignedOne", u"DIMCONTINUE|s|l|30,0|",
     u"aligned: 0,0,0 10,10,0 line 0,20,0 = 14,14;rotated 45: 10,10,0 30,0,0 line 5,25,0 = 7,07",
     u"DIMALIGNED|0,0|10,10|0,20", describeDimensions},
    {"RowWithoutAStart", u"DIMCONTINUE|l|", u"", u"LINE|0,0|10,0|", describeDimensions},
    {"Baseline", u"DIMBASELINE|14,0|20,1|",
     u"rotated 0: 0,0,0 10,5,0 line 10,9,0 = 10;rotated 0: 0,0,0 14,0,0 line 14,12.75,0 = 14;"
     u"rotated 0: 0,0,0 20,1,0 line 20,16.5,0 = 20",
     u"DIMLINEAR|0,0|10,5|4,9", describeDimensions},
    {"BaselineBelow", u"DBA|14,0|",
     u"rotated 0: 0,0,0 10,5,0 line 10,-9,0 = 10;rotated 0: 0,0,0 14,0,0 line 14,-16.5,0 = 14",
     u"DIMSCALE|2|DIMLINEAR|0,0|10,5|4,-9", describeDimensions},
    {"BaselineUndone", u"DIMBASELINE|u|14,0|u|20,0|",
     u"rotated 0: 0,0,0 10,5,0 line 10,9,0 = 10;rotated 0: 0,0,0 20,0,0 line 20,12.75,0 = 20",
     u"DIMLINEAR|0,0|10,5|4,9", describeDimensions},
    {"BaselineOfASelectedOne", u"DIMBASELINE|s|l|14,0|",
     u"rotated 0: 0,0,0 10,5,0 line 10,9,0 = 10;rotated 0: 0,0,0 14,0,0 line 14,12.75,0 = 14",
     u"DIMLINEAR|0,0|10,5|4,9", describeDimensions},
    {"BaselineWithoutAStart", u"DIMBASELINE|l|", u"", u"LINE|0,0|10,0|", describeDimensions},
    {"AngleAtAVertex", u"DIMANGULAR||0,0|10,0|0,10|3,3",
     u"angle: 0,0,0 10,0,0 0,10,0 at 3,3,0 = 90%%d", nullptr, describeDimensions},
    {"AngleOutside", u"DIMANGULAR||0,0|0,0|10,0|0,10|-3,-3",
     u"angle: 0,0,0 10,0,0 0,10,0 at -3,-3,0 = 270%%d", nullptr, describeDimensions},
    {"AngleOfLines", u"DAN|5,0|0,5|4,4", u"angle of lines: at 4,4,0 = 90%%d",
     u"LINE|0,0|10,0||LINE|0,0|0,8|", describeDimensions},
    {"AngleBesideLines", u"DIMANGULAR|5,0|4,4|-4,4", u"angle of lines: at -4,4,0 = 135%%d",
     u"LINE|0,0|10,0||LINE|0,0|8,8|", describeDimensions},
    {"AngleOfSides", u"DIMANGULAR|5,0|10,4|t|right|6,3", u"angle of lines: at 6,3,0 = right",
     u"RECTANG|0,0|10,8", describeDimensions},
    {"AngleOfAnArc", u"DIMANGULAR|l|60,6", u"angle: 50,0,0 55,0,0 50,5,0 at 60,6,0 = 90%%d",
     kShapes, describeDimensions},
    {"AngleOfACircle", u"DIMANGULAR|35,0|30,0|30,9|37,7",
     u"angle: 30,0,0 35,0,0 30,9,0 at 37,7,0 = 90%%d", kShapes, describeDimensions},
    {"AngleOfParallels", u"DIMANGULAR|5,0|5,3||", u"", u"LINE|0,0|10,0||LINE|0,3|10,3|",
     describeDimensions},
    {"AngleOfALineAndAnArc", u"DIMANGULAR|5,2|l||", u"", kShapes, describeDimensions},
    {"AngleOfAnEllipse", u"DIMANGULAR|l||0,0|5,0|0,5|3,3",
     u"angle: 0,0,0 5,0,0 0,5,0 at 3,3,0 = 90%%d", u"ELLIPSE|c|0,20|5,20|3", describeDimensions},
    {"Above", u"DIMLINEAR|0,0|10,5|4,9", u"rotated 0: 0,0,0 10,5,0 line 10,9,0 = 10", nullptr,
     describeDimensions},
    {"Beside", u"DIMLINEAR|0,0|10,5|12,3", u"rotated 90: 0,0,0 10,5,0 line 12,5,0 = 5", nullptr,
     describeDimensions},
    {"Horizontal", u"DIMLINEAR|0,0|10,5|h|12,3", u"rotated 0: 0,0,0 10,5,0 line 10,3,0 = 10",
     nullptr, describeDimensions},
    {"Vertical", u"DIMLINEAR|0,0|10,5|v|4,9", u"rotated 90: 0,0,0 10,5,0 line 4,5,0 = 5", nullptr,
     describeDimensions},
    {"Rotated", u"DIMLINEAR|0,0|10,10|r|45|0,20", u"rotated 45: 0,0,0 10,10,0 line 0,20,0 = 14,14",
     nullptr, describeDimensions},
    {"EqualOriginsAreAskedAgain", u"DIMLINEAR|0,0|0,0|10,5|4,9",
     u"rotated 0: 0,0,0 10,5,0 line 10,9,0 = 10", nullptr, describeDimensions},
    {"OfALine", u"DIMLINEAR||5,2|5,9", u"rotated 0: 0,0,0 10,4,0 line 10,9,0 = 10", kShapes,
     describeDimensions},
    {"OfACircle", u"DIMLINEAR||35,0|30,9", u"rotated 0: 25,0,0 35,0,0 line 35,9,0 = 10", kShapes,
     describeDimensions},
    {"OfAText", u"DIMLINEAR||l|0,0|10,5|4,9", u"rotated 0: 0,0,0 10,5,0 line 10,9,0 = 10",
     u"TEXT|0,0|5|0|abc|", describeDimensions},
    {"OwnText", u"DIMLINEAR|0,0|10,5|t|about <>|4,9",
     u"rotated 0: 0,0,0 10,5,0 line 10,9,0 = about 10", nullptr, describeDimensions},
    {"OwnLines", u"DIMLINEAR|0,0|10,5|m|wide|4,9", u"rotated 0: 0,0,0 10,5,0 line 10,9,0 = wide",
     nullptr, describeDimensions},
    {"MeasuredTextOnEnter", u"DIMLINEAR|0,0|10,5|t|wide|t|10|4,9",
     u"rotated 0: 0,0,0 10,5,0 line 10,9,0 = 10", nullptr, describeDimensions},
    {"TurnedText", u"DIMLINEAR|0,0|10,5|a|30|4,9",
     u"rotated 0: 0,0,0 10,5,0 line 10,9,0 = 10 turned 30", nullptr, describeDimensions},
    {"Along", u"DIMALIGNED|0,0|30,40|0,20", u"aligned: 0,0,0 30,40,0 line 20.4,47.2,0 = 50",
     nullptr, describeDimensions},
    {"AlongALine", u"DIMALIGNED||5,2|0,5", u"aligned: 0,0,0 10,4,0 line 8.2759,8.3103,0 = 10,77",
     kShapes, describeDimensions},
    {"AlongWithText", u"DIMALIGNED|0,0|30,40|t|<> m|a|90|0,20",
     u"aligned: 0,0,0 30,40,0 line 20.4,47.2,0 = 50 m turned 90", nullptr, describeDimensions},
    {"OutsideACircle", u"DIMRADIUS|35,0|30,12", u"radius: 30,0,0 to 30,5,0 leader 7 = R5", kShapes,
     describeDimensions},
    {"WithinACircle", u"DIMRADIUS|35,0|28,0", u"radius: 30,0,0 to 25,0,0 leader 0 = R5", kShapes,
     describeDimensions},
    {"OfAnArc", u"DIMRADIUS|l|60,0", u"radius: 50,0,0 to 55,0,0 leader 5 = R5", kShapes,
     describeDimensions},
    {"OfALineIsAskedAgain", u"DIMRADIUS|5,2|l|t|5 all round|60,0",
     u"radius: 50,0,0 to 55,0,0 leader 5 = 5 all round", kShapes, describeDimensions},
    {"GivenUp", u"DIMRADIUS|", u"", kShapes, describeDimensions},
    {"Across", u"DIMDIAMETER|35,0|30,12", u"diameter: 30,5,0 to 30,-5,0 leader 7 = %%c10", kShapes,
     describeDimensions},
};

} // namespace

std::span<const Script> dimensionScripts() { return kDimensions; }
