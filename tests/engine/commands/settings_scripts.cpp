// ZOOM, SETVAR and LAYER.

#include "drafton/engine/value_parser.h"
#include "engine/commands/scripts.h"

namespace {

// A new drawing shows 210,148.5 with the height 297 in a window of 1.34 to 1; its limits reach from
// 0,0 to 420,297.

constexpr char16_t kBox[] = u"LINE|0,0|100,0|100,50|";

constexpr Script kZooms[] = {
    {"Window", u"ZOOM|w|0,0|10,50", u"5,25 h50", nullptr, describeView},
    {"WideWindow", u"ZOOM|w|0,0|134,50", u"67,25 h100", nullptr, describeView},
    {"WindowInFull", u"ZOOM|_window|0,0|10,50", u"5,25 h50", nullptr, describeView},
    {"ScaleInFull", u"ZOOM|_scale|0.5x", u"210,148.5 h594", nullptr, describeView},
    {"CenterInFull", u"ZOOM|_center|1,2|30", u"1,2 h30", nullptr, describeView},
    {"ExtentsInFull", u"ZOOM|_extents", u"50,25 h74.6269", kBox, describeView},
    {"AllInFull", u"ZOOM|_all", u"210,148.5 h313.4328", kBox, describeView},
    {"PreviousInFull", u"ZOOM|_previous", u"210,148.5 h297", u"ZOOM|2x", describeView},
    {"WindowByCorners", u"ZOOM|0,0|10,50", u"5,25 h50", nullptr, describeView},
    {"EqualCornersAreAskedAgain", u"ZOOM|0,0|0,0|10,50", u"5,25 h50", nullptr, describeView},
    {"Number", u"ZOOM|2", u"210,148.5 h156.7164", nullptr, describeView},
    {"NumberOfTimes", u"ZOOM|2x", u"210,148.5 h148.5", nullptr, describeView},
    {"NumberOfPaperUnits", u"ZOOM|2XP", u"210,148.5 h148.5", u"ZOOM|w|200,140|220,157",
     describeView},
    {"Scale", u"ZOOM|s|0.5x", u"210,148.5 h594", nullptr, describeView},
    {"ScaleIsAskedAgain", u"ZOOM|s|0|-1x|x|two|0.5x", u"210,148.5 h594", nullptr, describeView},
    {"Center", u"ZOOM|c|1,2|30", u"1,2 h30", nullptr, describeView},
    {"CenterTimes", u"ZOOM|c|1,2|2x", u"1,2 h148.5", nullptr, describeView},
    {"CenterSameHeight", u"ZOOM|c|1,2|", u"1,2 h297", nullptr, describeView},
    {"SameCenter", u"ZOOM|c||30", u"210,148.5 h30", nullptr, describeView},
    {"CenterIsAskedAgain", u"ZOOM|c|1,2|0|high|30", u"1,2 h30", nullptr, describeView},
    {"Extents", u"ZOOM|e", u"50,25 h74.6269", kBox, describeView},
    {"ExtentsOfNothingAreTheLimits", u"ZOOM|e", u"210,148.5 h313.4328", nullptr, describeView},
    {"AllShowsTheLimits", u"ZOOM|a", u"210,148.5 h313.4328", kBox, describeView},
    {"AllShowsWhatIsOutside", u"ZOOM|a", u"210,-1.5 h597", u"LINE|0,0|0,-300|", describeView},
    {"Previous", u"ZOOM|p", u"210,148.5 h148.5", u"ZOOM|2x|ZOOM|w|0,0|1,1", describeView},
    {"PreviousTwice", u"ZOOM|p", u"210,148.5 h297", u"ZOOM|2x|ZOOM|w|0,0|1,1|ZOOM|p", describeView},
    {"NoPrevious", u"ZOOM|p", u"210,148.5 h297", nullptr, describeView},
    {"NonsenseIsAskedAgain", u"ZOOM||nonsense|-2|0x|1,2,3,4|2x", u"210,148.5 h148.5", nullptr,
     describeView},
};

OdString describeVariables(OdDbDatabase& database) {
  OdCmColor color = database.currentColor();
  return QStringLiteral("%1 %2 %3 %4 %5")
      .arg(drafton::shownReal(database.sysVarReal("LTSCALE")))
      .arg(database.sysVarInt("PDMODE"))
      .arg(drafton::shownPoint(database.sysVarPoint("INSBASE")))
      .arg(color.colorIndex())
      .arg(database.sysVarText("PROJECTNAME"));
}

constexpr Script kVariables[] = {
    {"Measured", u"DIST|0,0|3,4", u""},
    {"MeasuredArea", u"AREA|0,0|3,0|9,9|u|3,4|", u""},
    {"MeasuredObject", u"AREA|o|0,0", u"", u"CIRCLE|5,0|5",
     [](OdDbDatabase&) { return OdString(); }},
    {"Real", u"SETVAR|LTSCALE|2.5", u"2.5 0 0,0,0 256 ", nullptr, describeVariables},
    {"NameInAnyCase", u"SETVAR|ltscale|2.5", u"2.5 0 0,0,0 256 ", nullptr, describeVariables},
    {"Integer", u"SETVAR|PDMODE|34", u"1 34 0,0,0 256 ", nullptr, describeVariables},
    {"Point", u"SETVAR|INSBASE|1,2,3", u"1 0 1,2,3 256 ", nullptr, describeVariables},
    {"Color", u"SETVAR|CECOLOR|red", u"1 0 0,0,0 1 ", nullptr, describeVariables},
    {"Text", u"SETVAR|PROJECTNAME|\"Old town\"", u"1 0 0,0,0 256 Old town", nullptr,
     describeVariables},
    {"TextTakenAway", u"SETVAR|PROJECTNAME|.", u"1 0 0,0,0 256 ", u"SETVAR|PROJECTNAME|x",
     describeVariables},
    {"EnterKeepsTheValue", u"SETVAR|LTSCALE|", u"2.5 0 0,0,0 256 ", u"SETVAR|LTSCALE|2.5",
     describeVariables},
    {"BadValueIsAskedAgain", u"SETVAR|LTSCALE|0|-1|wide|3", u"3 0 0,0,0 256 ", nullptr,
     describeVariables},
    {"UnknownNameIsAskedAgain", u"SETVAR|NOSUCHTHING|LTSCALE|3", u"3 0 0,0,0 256 ", nullptr,
     describeVariables},
    {"List", u"SETVAR|?|LT*", u"1 0 0,0,0 256 ", nullptr, describeVariables},
    {"ListAll", u"SETVAR|?|", u"1 0 0,0,0 256 ", nullptr, describeVariables},
    {"NoName", u"SETVAR|", u"1 0 0,0,0 256 ", nullptr, describeVariables},
    {"ByItsBareName", u"LTSCALE|4", u"4 0 0,0,0 256 ", nullptr, describeVariables},
};

constexpr char16_t kTwoLayers[] = u"LAYER|n|Walls,Doors|";

constexpr Script kLayers[] = {
    {"Make", u"LAYER|m|Walls|", u"0: on, 7, Continuous, -3;*Walls: on, 7, Continuous, -3", nullptr,
     describeLayers},
    {"MakeOneThatIsThere", u"LAYER|m|walls|",
     u"0: on, 7, Continuous, -3;*Walls: on, 7, Continuous, -3;Doors: on, 7, Continuous, -3",
     kTwoLayers, describeLayers},
    {"WithTheDash", u"-LAYER|m|Walls|", u"0: on, 7, Continuous, -3;*Walls: on, 7, Continuous, -3",
     nullptr, describeLayers},
    {"NewOnes", u"LAYER|n|\"Walls, Doors\"|",
     u"*0: on, 7, Continuous, -3;Walls: on, 7, Continuous, -3;Doors: on, 7, Continuous, -3",
     nullptr, describeLayers},
    {"NewOneWithBlanks", u"LAYER|n|\"Inner walls\"|",
     u"*0: on, 7, Continuous, -3;Inner walls: on, 7, Continuous, -3", nullptr, describeLayers},
    {"BadNamesAreAskedAgain", u"LAYER|n|a<b|a*|0|good|",
     u"*0: on, 7, Continuous, -3;good: on, 7, Continuous, -3", nullptr, describeLayers},
    {"Set", u"LAYER|s|Doors|",
     u"0: on, 7, Continuous, -3;Walls: on, 7, Continuous, -3;*Doors: on, 7, Continuous, -3",
     kTwoLayers, describeLayers},
    {"SetUnknownIsAskedAgain", u"LAYER|s|Roof|Doors|",
     u"0: on, 7, Continuous, -3;Walls: on, 7, Continuous, -3;*Doors: on, 7, Continuous, -3",
     kTwoLayers, describeLayers},
    {"SetRefusesFrozen", u"LAYER|f|Doors|s|Doors||",
     u"*0: on, 7, Continuous, -3;Walls: on, 7, Continuous, -3;Doors: on, frozen, 7, Continuous, -3",
     kTwoLayers, describeLayers},
    {"Rename", u"LAYER|r|Doors|Gates|",
     u"*0: on, 7, Continuous, -3;Walls: on, 7, Continuous, -3;Gates: on, 7, Continuous, -3",
     kTwoLayers, describeLayers},
    {"RenameRefusals", u"LAYER|r|0|Roof|Doors|Walls|a:b|Gates|",
     u"*0: on, 7, Continuous, -3;Walls: on, 7, Continuous, -3;Gates: on, 7, Continuous, -3",
     kTwoLayers, describeLayers},
    {"RenameCase", u"LAYER|r|Doors|DOORS|",
     u"*0: on, 7, Continuous, -3;Walls: on, 7, Continuous, -3;DOORS: on, 7, Continuous, -3",
     kTwoLayers, describeLayers},
    {"OffAndOn", u"LAYER|off|*s|on|D*|",
     u"*0: on, 7, Continuous, -3;Walls: off, 7, Continuous, -3;Doors: on, 7, Continuous, -3",
     kTwoLayers, describeLayers},
    {"OffForTheCurrentIsAsked", u"LAYER|off|0|n|", u"*0: on, 7, Continuous, -3", nullptr,
     describeLayers},
    {"OffForTheCurrentByDefaultNot", u"LAYER|off|0||", u"*0: on, 7, Continuous, -3", nullptr,
     describeLayers},
    {"OffForTheCurrent", u"LAYER|off|*|y|",
     u"*0: off, 7, Continuous, -3;Walls: off, 7, Continuous, -3;Doors: off, 7, Continuous, -3",
     kTwoLayers, describeLayers},
    {"FreezeKeepsTheCurrent", u"LAYER|f|*|",
     u"*0: on, 7, Continuous, -3;Walls: on, frozen, 7, Continuous, -3;"
     u"Doors: on, frozen, 7, Continuous, -3",
     kTwoLayers, describeLayers},
    {"Thaw", u"LAYER|f|Walls,Doors|t|Walls|",
     u"*0: on, 7, Continuous, -3;Walls: on, 7, Continuous, -3;Doors: on, frozen, 7, Continuous, -3",
     kTwoLayers, describeLayers},
    {"LockAndUnlock", u"LAYER|lo|*|u|~W*|",
     u"*0: on, 7, Continuous, -3;Walls: on, locked, 7, Continuous, -3;Doors: on, 7, Continuous, -3",
     kTwoLayers, describeLayers},
    {"NamesWithoutLayerAreToldAndTheOthersTaken", u"LAYER|lo|Roof,Walls|",
     u"*0: on, 7, Continuous, -3;Walls: on, locked, 7, Continuous, -3;Doors: on, 7, Continuous, -3",
     kTwoLayers, describeLayers},
    {"NoLayerAtAllIsAskedAgain", u"LAYER|lo|Roof|,|Walls|",
     u"*0: on, 7, Continuous, -3;Walls: on, locked, 7, Continuous, -3;Doors: on, 7, Continuous, -3",
     kTwoLayers, describeLayers},
    {"ColorByNumberForTheCurrent", u"LAYER|c|30||", u"*0: on, 30, Continuous, -3", nullptr,
     describeLayers},
    {"ColorByName", u"LAYER|c|red|W*|",
     u"*0: on, 7, Continuous, -3;Walls: on, 1, Continuous, -3;Doors: on, 7, Continuous, -3",
     kTwoLayers, describeLayers},
    {"TrueColor", u"LAYER|c|255,128,0||", u"*0: on, ff8000, Continuous, -3", nullptr,
     describeLayers},
    {"TrueColorByKeyword", u"LAYER|c|t|300,0,0|red|255,128,0||", u"*0: on, ff8000, Continuous, -3",
     nullptr, describeLayers},
    {"TrueColorInFull", u"LAYER|c|_truecolor|255,128,0||", u"*0: on, ff8000, Continuous, -3",
     nullptr, describeLayers},
    {"LineWeightDefaultInFull", u"LAYER|lw|_default||", u"*0: on, 7, Continuous, -3",
     u"LAYER|lw|1||", describeLayers},
    {"BadColorIsAskedAgain", u"LAYER|c|0|256|bylayer|pink|1,2|3||", u"*0: on, 3, Continuous, -3",
     nullptr, describeLayers},
    {"Linetype", u"LAYER|l|?|Dashed|ByLayer|continuous||", u"*0: on, 7, Continuous, -3", nullptr,
     describeLayers},
    {"LineWeight", u"LAYER|lw|0.26||", u"*0: on, 7, Continuous, 25", nullptr, describeLayers},
    {"ThickestLineWeight", u"LAYER|lw|2.11||", u"*0: on, 7, Continuous, 211", nullptr,
     describeLayers},
    {"LineWeightBackToDefault", u"LAYER|lw|d||", u"*0: on, 7, Continuous, -3", u"LAYER|lw|1||",
     describeLayers},
    {"BadLineWeightIsAskedAgain", u"LAYER|lw|-1|2.12|thick|1mm||", u"*0: on, 7, Continuous, 100",
     nullptr, describeLayers},
    {"Plot", u"LAYER|p|n|*|p|p|W*|",
     u"*0: on, noplot, 7, Continuous, -3;Walls: on, 7, Continuous, -3;"
     u"Doors: on, noplot, 7, Continuous, -3",
     kTwoLayers, describeLayers},
    {"Description", u"LAYER|d|What stands firm|W*|",
     u"*0: on, 7, Continuous, -3;Walls: on, 7, Continuous, -3, What stands firm;"
     u"Doors: on, 7, Continuous, -3",
     kTwoLayers, describeLayers},
    {"DescriptionInAnyScript", u"LAYER|d|T\u00fcren \u6249|Doors|",
     u"*0: on, 7, Continuous, -3;Walls: on, 7, Continuous, -3;"
     u"Doors: on, 7, Continuous, -3, T\u00fcren \u6249",
     kTwoLayers, describeLayers},
    {"DescriptionTakenAway", u"LAYER|d||*|", u"*0: on, 7, Continuous, -3", u"LAYER|d|old|||",
     describeLayers},
    {"List", u"LAYER|?||?|W*|?|X*|",
     u"*0: on, 7, Continuous, -3;Walls: on, 7, Continuous, -3;Doors: on, 7, Continuous, -3",
     kTwoLayers, describeLayers},
    {"EnterForEveryName", u"LAYER|s||n||r||f||", u"*0: on, 7, Continuous, -3", nullptr,
     describeLayers},
};

} // namespace

std::span<const Script> zoomScripts() { return kZooms; }
std::span<const Script> setvarScripts() { return kVariables; }
std::span<const Script> layerScripts() { return kLayers; }
