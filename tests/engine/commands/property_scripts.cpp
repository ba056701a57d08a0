// CHPROP, MATCHPROP, COLOR, LWEIGHT, LINETYPE, STYLE.

#include "drafton/engine/commands/entity_thickness.h"
#include "drafton/engine/commands/font_names.h"
#include "drafton/engine/commands/shown_values.h"
#include "drafton/engine/value_parser.h"
#include "engine/commands/scripts.h"

using namespace drafton;

namespace {

/// "LINE 0 ByLayer ByLayer 1 ByLayer ByLayer ByLayer 0": layer, colour, line type, its scale, line
/// weight, transparency, plot style, thickness.
OdString describeProperties(OdDbDatabase& database) {
  QStringList lines;
  const auto space = database.getModelSpaceId().openAs<OdDbBlockTableRecord>();
  for (auto at = space->newIterator(); !at->done(); at->step()) {
    const OdDbEntityPtr e = at->entity();
    const std::optional<double> thickness = thicknessOf(*e);
    lines << QStringLiteral("%1 %2 %3 %4 %5 %6 %7 %8 %9")
                 .arg(QLatin1String(e->dxfName()), e->layer(), shownColor(e->color()),
                      e->linetype(), shownReal(e->linetypeScale()),
                      shownLineWeight(e->lineWeight()), shownTransparency(e->transparency()),
                      shownPlotStyle(e->plotStyleNameType(), e->plotStyleNameId()),
                      thickness ? shownReal(*thickness) : QStringLiteral("-"));
  }
  return lines.join(u'\n');
}

OdString describeCurrent(OdDbDatabase& database) {
  return QStringLiteral("%1 %2 %3 %4")
      .arg(shownColor(database.currentColor()), shownLineWeight(database.currentLineWeight()),
           recordName(database.currentLinetype()), recordName(database.currentTextStyle()));
}

OdString describeLinetypes(OdDbDatabase& database) {
  QStringList lines;
  const auto table = database.getLinetypeTableId().openAs<OdDbLinetypeTable>();
  for (auto at = table->newIterator(); !at->done(); at->step()) {
    const OdDbLinetypeTableRecordPtr linetype = at->getRecord();
    if (linetype->numDashes() == 0) continue;
    QStringList dashes;
    for (int i = 0; i < linetype->numDashes(); ++i)
      dashes << shownReal(linetype->dashLengthAt(i)) + (linetype->textAt(i).isEmpty()
                                                            ? OdString()
                                                            : u'"' + linetype->textAt(i) + u'"');
    lines << QStringLiteral("%1 (%2): %3")
                 .arg(linetype->getName(), linetype->comments(), dashes.join(u' '));
  }
  lines << QStringLiteral("current ") + recordName(database.currentLinetype());
  return lines.join(u'\n');
}

OdString describeStyles(OdDbDatabase& database) {
  QStringList lines;
  const auto table = database.getTextStyleTableId().openAs<OdDbTextStyleTable>();
  for (auto at = table->newIterator(); !at->done(); at->step()) {
    const OdDbTextStyleTableRecordPtr style = at->getRecord();
    if (style->isShapeFile()) continue;
    OdString line = QStringLiteral("%1%2: %3 h%4 w%5 o%6")
                        .arg(database.currentTextStyle() == style->objectId() ? u"*" : u"")
                        .arg(style->getName(), shownFont(*style), shownReal(style->textSize()),
                             shownReal(style->xScale()), shownAngle(style->obliquingAngle()));
    if (style->isBackwards()) line += QStringLiteral(" backwards");
    if (style->isUpsideDown()) line += QStringLiteral(" upside-down");
    if (style->isVertical()) line += QStringLiteral(" vertical");
    lines << line;
  }
  return lines.join(u'\n');
}

constexpr char16_t kLine[] = u"LINE|0,0|10,0|";
constexpr char16_t kTwo[] = u"COLOR|1|LINE|0,0|10,0||COLOR|2|CIRCLE|20,0|2";

constexpr Script kProperties[] = {
    {"Color", u"CHPROP|l||c|3|", u"LINE 0 3 (green) ByLayer 1 ByLayer ByLayer ByLayer 0", kLine,
     describeProperties},
    {"ColorByName", u"CHPROP|l||c|red|", u"LINE 0 1 (red) ByLayer 1 ByLayer ByLayer ByLayer 0",
     kLine, describeProperties},
    {"TrueColor", u"CHPROP|l||c|10,20,30|", u"LINE 0 10,20,30 ByLayer 1 ByLayer ByLayer ByLayer 0",
     kLine, describeProperties},
    {"TrueColorByKeyword", u"CHPROP|l||c|t|300,0,0|10,20,30|",
     u"LINE 0 10,20,30 ByLayer 1 ByLayer ByLayer ByLayer 0", kLine, describeProperties},
    {"BookColor", u"CHPROP|l||c|co|Ours|Warm Red|200,10,10|",
     u"LINE 0 Ours$Warm Red ByLayer 1 ByLayer ByLayer ByLayer 0", kLine, describeProperties},
    {"ColorThatIsNoneIsAskedAgain", u"CHPROP|l||c|999|pinkish|byblock|",
     u"LINE 0 ByBlock ByLayer 1 ByLayer ByLayer ByLayer 0", kLine, describeProperties},
    {"DifferentColorsStay", u"CHPROP|all||c||",
     u"LINE 0 1 (red) ByLayer 1 ByLayer ByLayer ByLayer 0;"
     u"CIRCLE 0 2 (yellow) ByLayer 1 ByLayer ByLayer ByLayer 0",
     kTwo, describeProperties},
    {"DifferentColorsBecomeOne", u"CHPROP|all||c|bylayer|",
     u"LINE 0 ByLayer ByLayer 1 ByLayer ByLayer ByLayer 0;"
     u"CIRCLE 0 ByLayer ByLayer 1 ByLayer ByLayer ByLayer 0",
     kTwo, describeProperties},
    {"Layer", u"CHPROP|l||la|Nowhere|Walls|",
     u"LINE Walls ByLayer ByLayer 1 ByLayer ByLayer ByLayer 0", u"LINE|0,0|10,0||LAYER|n|Walls|",
     describeProperties},
    {"Linetype", u"CHPROP|l||lt|?|Nothing|Continuous|",
     u"LINE 0 ByLayer Continuous 1 ByLayer ByLayer ByLayer 0", kLine, describeProperties},
    {"LinetypeScale", u"CHPROP|l||s|0|2.5|",
     u"LINE 0 ByLayer ByLayer 2.5 ByLayer ByLayer ByLayer 0", kLine, describeProperties},
    {"LineWeight", u"CHPROP|l||lw|5|0.26|", u"LINE 0 ByLayer ByLayer 1 0.25mm ByLayer ByLayer 0",
     kLine, describeProperties},
    {"LineWeightByBlock", u"CHPROP|l||lw|bb|",
     u"LINE 0 ByLayer ByLayer 1 ByBlock ByLayer ByLayer 0", kLine, describeProperties},
    {"LineWeightByLayer", u"CHPROP|l||lw|0.5|lw|bl|",
     u"LINE 0 ByLayer ByLayer 1 ByLayer ByLayer ByLayer 0", kLine, describeProperties},
    {"TransparencyByLayer", u"CHPROP|l||tr|40|tr|bl|",
     u"LINE 0 ByLayer ByLayer 1 ByLayer ByLayer ByLayer 0", kLine, describeProperties},
    {"LineWeightDefault", u"CHPROP|l||lw|default|",
     u"LINE 0 ByLayer ByLayer 1 Default ByLayer ByLayer 0", kLine, describeProperties},
    {"Thickness", u"CHPROP|all||t|4|",
     u"LINE 0 1 (red) ByLayer 1 ByLayer ByLayer ByLayer 4;"
     u"CIRCLE 0 2 (yellow) ByLayer 1 ByLayer ByLayer ByLayer 4",
     kTwo, describeProperties},
    {"Transparency", u"CHPROP|l||tr|91|40|", u"LINE 0 ByLayer ByLayer 1 ByLayer 40 ByLayer 0",
     kLine, describeProperties},
    {"TransparencyByBlock", u"CHPROP|l||tr|bb|",
     u"LINE 0 ByLayer ByLayer 1 ByLayer ByBlock ByLayer 0", kLine, describeProperties},
    {"PlotStyleFollowsColors", u"CHPROP|l||p|",
     u"LINE 0 ByLayer ByLayer 1 ByLayer ByLayer ByLayer 0", u"LINE|0,0|10,0||PSTYLEMODE|1",
     describeProperties},
    {"PlotStyle", u"CHPROP|l||p|?|Draft|byblock|",
     u"LINE 0 ByLayer ByLayer 1 ByLayer ByLayer ByBlock 0", u"LINE|0,0|10,0||PSTYLEMODE|0",
     describeProperties},
    {"SeveralInOneRun", u"CHPROP|l||c|5|lw|1|s|3|",
     u"LINE 0 5 (blue) ByLayer 3 1.00mm ByLayer ByLayer 0", kLine, describeProperties},
    {"MatchAll", u"MATCHPROP|l|0,0|10,0|",
     u"LINE 0 2 (yellow) ByLayer 1 ByLayer ByLayer ByLayer 0;"
     u"CIRCLE 0 2 (yellow) ByLayer 1 ByLayer ByLayer ByLayer 0",
     kTwo, describeProperties},
    {"CurrentColor", u"COLOR|5", u"5 (blue) ByLayer ByLayer Standard", nullptr, describeCurrent},
    {"CurrentTrueColor", u"COLOR|1,2,3", u"1,2,3 ByLayer ByLayer Standard", nullptr,
     describeCurrent},
    {"CurrentBookColor", u"COLOR|co|Ours|Deep|1,2,3", u"Ours$Deep ByLayer ByLayer Standard",
     nullptr, describeCurrent},
    {"CurrentColorAsItIs", u"COLOR|", u"ByLayer ByLayer ByLayer Standard", nullptr,
     describeCurrent},
    {"CurrentColorIsAskedAgain", u"COLOR|257|-1|green", u"3 (green) ByLayer ByLayer Standard",
     nullptr, describeCurrent},
    {"CurrentLineWeight", u"LWEIGHT|3|0.5mm", u"ByLayer 0.50mm ByLayer Standard", nullptr,
     describeCurrent},
    {"CurrentLineWeightAsItIs", u"LWEIGHT|", u"ByLayer ByLayer ByLayer Standard", nullptr,
     describeCurrent},
    {"Create", u"LINETYPE|c|Ours|Dash and dot|1,-0.5,0,-0.5||",
     u"Ours (Dash and dot): 1 -0.5 0 -0.5;current ByLayer", nullptr, describeLinetypes},
    {"CreateWithText", u"LINETYPE|c|Gas||1,-0.5,[\"GAS\",STANDARD,S=0.2],-1||",
     u"Gas (): 1 -0.5\"GAS\" -1;current ByLayer", nullptr, describeLinetypes},
    {"CreateIsAskedAgain", u"LINETYPE|c|a/b|ByLayer|Ours||long|1,-1||",
     u"Ours (): 1 -1;current ByLayer", nullptr, describeLinetypes},
    {"Set", u"LINETYPE|s|?|Nothing|Continuous|", u"current Continuous", nullptr, describeLinetypes},
    {"List", u"LINETYPE|?|C*|", u"current ByLayer", nullptr, describeLinetypes},
    {"LoadNoFile", u"LINETYPE|l|*|no such file|cancel|", u"current ByLayer", nullptr,
     describeLinetypes},
    {"NewTypeface", u"STYLE|Notes|Arial Bold|3|0.8|15|y|n",
     u"Standard: txt h0 w1 o0;*Notes: Arial Bold h3 w0.8 o15 backwards", nullptr, describeStyles},
    {"NewShapeFont", u"STYLE|Notes|simplex,bigfont|0|1|0|n|y|y",
     u"Standard: txt h0 w1 o0;*Notes: simplex,bigfont h0 w1 o0 upside-down vertical", nullptr,
     describeStyles},
    {"NewFontFile", u"STYLE|Notes|arial.ttf|0|1|0|n|n",
     u"Standard: txt h0 w1 o0;*Notes: arial.ttf h0 w1 o0", nullptr, describeStyles},
    {"ChangesAStyle", u"STYLE|?|*||romans|5|1|-20|n|n|n", u"*Standard: romans h5 w1 o-20", nullptr,
     describeStyles},
    {"AsksAgain", u"STYLE|a*b|Notes|arial.ttf,big|txt|-1|2|1000|1|89|5|n|n|n",
     u"Standard: txt h0 w1 o0;*Notes: txt h2 w1 o5", nullptr, describeStyles},
};

} // namespace

std::span<const Script> propertyScripts() { return kProperties; }
