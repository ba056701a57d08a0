#include "engine/commands/hatch_text.h"
#include "engine/commands/scripts.h"

namespace {

constexpr const char16_t* kRoom = u"RECTANG|0,0|10,8";
constexpr const char16_t* kSolidRoom = u"RECTANG|0,0|10,8|SETVAR|HPNAME|SOLID";
constexpr const char16_t* kNested =
    u"RECTANG|0,0|20,20|RECTANG|2,2|18,18|RECTANG|4,4|16,16|SETVAR|HPNAME|SOLID";
constexpr const char16_t* kOpenRoom = u"LINE|10,4|10,8|0,8|0,0|10,0|10,3.5||SETVAR|HPNAME|SOLID";

constexpr Script kHatches[] = {
    {"Solid", u"BHATCH|p|s|5,4|", u"2 entities;HATCH SOLID area80 loops1 outer assoc1", kRoom,
     describeHatches},
    {"UserDefined", u"BHATCH|p|u|45|2|n|5,4|",
     u"2 entities;HATCH _USER scale2 angle45 lines1 area80 loops1 outer assoc1", kRoom,
     describeHatches},
    {"Double", u"BHATCH|p|u||0.5|y|5,4|",
     u"2 entities;HATCH _USER scale0.5 angle0 lines2 double area80 loops1 outer assoc1", kRoom,
     describeHatches},
    {"Gradient", u"BHATCH|p|g|hemispherical|90|n|1|3|5,4|",
     u"2 entities;HATCH HEMISPHERICAL angle90 shift1 1,3 area80 loops1 outer assoc1", kRoom,
     describeHatches},
    {"FillChosenAfterTheArea", u"BHATCH|5,4|p|u|30|1|n|p|s|",
     u"2 entities;HATCH SOLID area80 loops1 outer assoc1", kSolidRoom, describeHatches},
    {"UnknownPatternIsAskedAgain", u"BHATCH|p|p|NoSuchPattern|?|SOLID|5,4|",
     u"2 entities;HATCH SOLID area80 loops1 outer assoc1", kRoom, describeHatches},
    {"BadSpacingIsAskedAgain", u"BHATCH|p|u|0|0|-1|3|n|5,4|",
     u"2 entities;HATCH _USER scale3 angle0 lines1 area80 loops1 outer assoc1", kRoom,
     describeHatches},
    {"OuterIslands", u"BHATCH|1,1|", u"4 entities;HATCH SOLID area144 loops2 outer assoc2", kNested,
     describeHatches},
    {"NormalIslands", u"BHATCH|st|n|1,1|", u"4 entities;HATCH SOLID area288 loops3 normal assoc3",
     kNested, describeHatches},
    {"IgnoredIslands", u"BHATCH|st|i|1,1|", u"4 entities;HATCH SOLID area400 loops1 ignore assoc1",
     kNested, describeHatches},
    {"AreaInTheIsland", u"BHATCH|1,1|10,10|",
     u"4 entities;HATCH SOLID area288 loops3 normal assoc3", kNested, describeHatches},
    {"TwoAreas", u"BHATCH|1,1|19,1|", u"4 entities;HATCH SOLID area160 loops2 outer assoc2",
     u"RECTANG|0,0|10,8|RECTANG|18,0|28,8|LINE|5,9|6,9||SETVAR|HPNAME|SOLID", describeHatches},
    {"ChosenTwice", u"BHATCH|5,4|6,5|", u"2 entities;HATCH SOLID area80 loops1 outer assoc1",
     kSolidRoom, describeHatches},
    {"Undo", u"BHATCH|5,4|u|u|", u"1 entities", kSolidRoom, describeHatches},
    {"UndoTheLast", u"BHATCH|1,1|10,10|u|", u"4 entities;HATCH SOLID area144 loops2 outer assoc2",
     kNested, describeHatches},
    {"GradientsOfEveryKind",
     u"BHATCH|p|g|linear||y|1|2|p|g|cylinder||n|1|2|p|g|invcylinder||n|1|2|p|g|spherical||n|1|2|"
     u"p|g|invspherical||n|1|2|p|g|invhemispherical||n|1|2|p|g|invcurved||n|1|2|p|g|curved||y|1|2|"
     u"5,4|",
     u"2 entities;HATCH CURVED angle0 shift0 1,2 area80 loops1 outer assoc1", kRoom,
     describeHatches},
    {"AssociativeAgain", u"BHATCH|a|n|a|y|5,4|",
     u"2 entities;HATCH SOLID area80 loops1 outer assoc1", kSolidRoom, describeHatches},
    {"Outside", u"BHATCH|11,4|", u"1 entities", kSolidRoom, describeHatches},
    {"OnALine", u"BHATCH|10,4|", u"1 entities", kSolidRoom, describeHatches},
    {"Nothing", u"BHATCH|", u"1 entities", kSolidRoom, describeHatches},
    {"OpenRoom", u"BHATCH|5,4|", u"5 entities", kOpenRoom, describeHatches},
    {"GapWithin", u"BHATCH|g|0.5|5,4|", u"6 entities;HATCH SOLID area80 loops1 outer assoc5",
     kOpenRoom, describeHatches},
    {"GapBeyond", u"BHATCH|g|0.4|5,4|", u"5 entities", kOpenRoom, describeHatches},
    {"GapTooLarge", u"BHATCH|g|5001|-1|1|5,4|",
     u"6 entities;HATCH SOLID area80 loops1 outer assoc5", kOpenRoom, describeHatches},
    {"NotAssociative", u"BHATCH|a|n|5,4|", u"2 entities;HATCH SOLID area80 loops1 outer",
     kSolidRoom, describeHatches},
    {"Color", u"BHATCH|co|3|5,4|", u"2 entities;HATCH SOLID area80 loops1 outer assoc1 color3",
     kSolidRoom, describeHatches},
    {"SelectObjects", u"BHATCH|s|all||", u"4 entities;HATCH SOLID area144 loops2 outer assoc2",
     kNested, describeHatches},
    {"SelectNothing", u"BHATCH|s||", u"1 entities", kSolidRoom, describeHatches},
    {"SelectWhatIsOpen", u"BHATCH|s|all||", u"5 entities", kOpenRoom, describeHatches},
    {"SelectAcrossAGap", u"BHATCH|g|0.5|s|all||",
     u"6 entities;HATCH SOLID area80 loops1 outer assoc5", kOpenRoom, describeHatches},
    {"Raised", u"BHATCH|5,4,3|", u"2 entities;HATCH SOLID area80 loops1 outer assoc1 up3",
     kSolidRoom, describeHatches},
    {"CurvedRoom", u"BHATCH|0,1|", u"3 entities;HATCH SOLID area39.3 loops1 outer assoc2",
     u"ARC|c|0,0|5,0|-5,0|LINE|-5,0|5,0||SETVAR|HPNAME|SOLID", describeHatches},
    {"TextIsKeptFree", u"BHATCH|st|i|1,1|st|o|14,1|",
     u"4 entities;HATCH SOLID area156 loops3 outer assoc2",
     u"RECTANG|0,0|10,8|RECTANG|13,0|23,8|TEXT|15,3|1|0|I||SETVAR|HPNAME|SOLID", describeHatches},

    {"FromVariables", u"FASTHATCHCMD|5,4|",
     u"2 entities;HATCH _USER scale2 angle45 lines2 double area80 loops1 outer assoc1 color1",
     u"RECTANG|0,0|10,8|SETVAR|HPNAME|_USER|SETVAR|HPSPACE|2|SETVAR|HPANG|0.785398163397448|"
     u"SETVAR|HPDOUBLE|1|SETVAR|HPCOLOR|1",
     describeHatches},
    {"FastInTwoAreas", u"FASTHATCHCMD|1,1|3,3|10,10|u|",
     u"4 entities;HATCH SOLID area256 loops2 outer assoc2", kNested, describeHatches},
    {"FastSelect", u"FASTHATCHCMD|s|all||", u"2 entities;HATCH SOLID area80 loops1 outer assoc1",
     kSolidRoom, describeHatches},
    {"FastOutside", u"FASTHATCHCMD|11,4|", u"1 entities", kSolidRoom, describeHatches},
    {"Gradient", u"FASTGRADIENTCMD|5,4|",
     u"2 entities;HATCH INVCURVED angle30 shift1 1,5 area80 loops1 outer assoc1",
     u"RECTANG|0,0|10,8|SETVAR|GFNAME|9|SETVAR|GFANG|0.523598775598299|SETVAR|GFSHIFT|1|"
     u"SETVAR|GFCLR1|1|SETVAR|GFCLR2|5",
     describeHatches},
    {"GradientAsItStands", u"FASTGRADIENTCMD|s|all||u|5,4|",
     u"2 entities;HATCH LINEAR angle0 shift0 5,2 area80 loops1 outer assoc1", kRoom,
     describeHatches},
};

constexpr Script kBoundaries[] = {
    {"Room", u"BOUNDARY|2,4|",
     u"PLINE closed: 0,0 / 10,0 / 10,8 / 0,8;"
     u"LINE 5,0,0 5,8,0;PLINE closed: 0,0 / 5,0 / 5,8 / 0,8",
     u"RECTANG|0,0|10,8|LINE|5,0|5,8|"},
    {"HalfCircle", u"BOUNDARY|0,1|",
     u"ARC 0,0,0 r5 0..180;LINE -5,0,0 5,0,0;PLINE closed: 5,0 b1 / -5,0",
     u"ARC|c|0,0|5,0|-5,0|LINE|-5,0|5,0|"},
    {"WholeCircle", u"BOUNDARY|0,1|", u"CIRCLE 0,0,0 r5;PLINE closed: 5,0 b1 / -5,0 b1",
     u"CIRCLE|0,0|5"},
    {"IslandsIgnored", u"BOUNDARY|i|i|1,1|",
     u"PLINE closed: 0,0 / 10,0 / 10,8 / 0,8;CIRCLE 5,4,0 r1;"
     u"PLINE closed: 0,0 / 10,0 / 10,8 / 0,8",
     u"RECTANG|0,0|10,8|CIRCLE|5,4|1"},
    {"Undo", u"BOUNDARY|1,1|u|u|", u"CIRCLE 0,0,0 r5", u"CIRCLE|0,0|5"},
    {"Gap", u"BOUNDARY|g|0.5|5,4|",
     u"LINE 10,4,0 10,8,0;LINE 10,8,0 0,8,0;LINE 0,8,0 0,0,0;LINE 0,0,0 10,0,0;"
     u"LINE 10,0,0 10,3.5,0;PLINE closed: 10,4 / 10,8 / 0,8 / 0,0 / 10,0 / 10,3.5",
     kOpenRoom},
    {"Outside", u"BOUNDARY|9,9|", u"CIRCLE 0,0,0 r5", u"CIRCLE|0,0|5"},
};

} // namespace

std::span<const Script> hatchScripts() { return kHatches; }
std::span<const Script> boundaryScripts() { return kBoundaries; }
