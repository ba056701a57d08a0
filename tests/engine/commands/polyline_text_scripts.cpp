// PLINE, TEXT and ATTDEF.

#include "engine/commands/scripts.h"

namespace {

constexpr Script kPolylines[] = {
    {"SegmentsUntilEnter", u"PLINE|0,0|10,0|10,5|", u"PLINE: 0,0 / 10,0 / 10,5"},
    {"OnePointMakesNothing", u"PLINE|0,0|", u""},
    {"Close", u"PLINE|0,0|10,0|10,5|c", u"PLINE closed: 0,0 / 10,0 / 10,5"},
    {"Undo", u"PLINE|0,0|10,0|10,5|u|7,7|", u"PLINE: 0,0 / 10,0 / 7,7"},
    {"UndoAll", u"PLINE|0,0|10,0|u|u|", u""},
    {"UndoAllAndOn", u"PLINE|0,0|10,0|u|3,4|", u"PLINE: 0,0 / 3,4"},
    {"UndoSetsTheLastPointBack", u"PLINE|0,0|10,0|10,5|u|@0,7|", u"PLINE: 0,0 / 10,0 / 10,7"},
    {"LengthGoesOn", u"PLINE|0,0|3,4|l|5|", u"PLINE: 0,0 / 3,4 / 6,8"},
    {"LengthFirst", u"PLINE|0,0|l|5|", u"PLINE: 0,0 / 5,0"},
    {"Width", u"PLINE|0,0|w|1|2|10,0|20,0|", u"PLINE: 0,0 w1-2 / 10,0 w2-2 / 20,0 w2-2"},
    {"WidthEndsAsItStarts", u"PLINE|0,0|w|1||10,0|", u"PLINE: 0,0 w1-1 / 10,0 w1-1"},
    {"Halfwidth", u"PLINE|0,0|h|1|2|10,0|", u"PLINE: 0,0 w2-4 / 10,0 w4-4"},
    {"WidthIsKept", u"PLINE|0,5|10,5|", u"PLINE: 0,0 w1-2 / 10,0 w2-2;PLINE: 0,5 w2-2 / 10,5 w2-2",
     u"PLINE|0,0|w|1|2|10,0|"},
    {"UndoTakesTheWidthBack", u"PLINE|0,0|w|1|2|10,0|u|10,0|", u"PLINE: 0,0 w1-2 / 10,0 w2-2"},
    {"ArcGoesOnInItsDirection", u"PLINE|0,0|10,0|a|10,10|", u"PLINE: 0,0 / 10,0 b1 / 10,10"},
    {"ArcFirstGoesAlongX", u"PLINE|0,0|a|0,10|", u"PLINE: 0,0 b1 / 0,10"},
    {"ArcAndLineAgain", u"PLINE|0,0|a|0,10|l|-5,10|", u"PLINE: 0,0 b1 / 0,10 / -5,10"},
    {"ArcStraightAheadIsAskedAgain", u"PLINE|0,0|10,0|a|20,0|10,10|",
     u"PLINE: 0,0 / 10,0 b1 / 10,10"},
    {"ArcAngle", u"PLINE|0,0|a|a|90|10,10|", u"PLINE: 0,0 b0.4142 / 10,10"},
    {"ArcAngleCenter", u"PLINE|10,0|a|a|90|ce|0,0|", u"PLINE: 10,0 b0.4142 / 0,10"},
    {"ArcAngleRadius", u"PLINE|10,0|a|a|90|r|10|135|", u"PLINE: 10,0 b0.4142 / 0,10"},
    {"ArcAngleRadiusAlongX", u"PLINE|0,0|a|a|180|r|10||", u"PLINE: 0,0 b1 / 20,0"},
    {"ArcCenter", u"PLINE|10,0|a|ce|0,0|0,3|", u"PLINE: 10,0 b0.4142 / 0,10"},
    {"ArcCenterAngle", u"PLINE|10,0|a|ce|0,0|a|-90|", u"PLINE: 10,0 b-0.4142 / 0,-10"},
    {"ArcCenterChord", u"PLINE|10,0|a|ce|0,0|l|20|", u"PLINE: 10,0 b1 / -10,0"},
    {"ArcDirection", u"PLINE|10,0|a|d|90|0,10|", u"PLINE: 10,0 b0.4142 / 0,10"},
    {"ArcRadius", u"PLINE|10,0|a|r|10|0,10|", u"PLINE: 10,0 b0.4142 / 0,10"},
    {"ArcRadiusAngle", u"PLINE|10,0|a|r|10|a|90|135|", u"PLINE: 10,0 b0.4142 / 0,10"},
    {"ArcSecondPoint", u"PLINE|10,0|a|s|0,10|-10,0|", u"PLINE: 10,0 b1 / -10,0"},
    {"ArcUndo", u"PLINE|0,0|10,0|a|10,10|u||", u"PLINE: 0,0 / 10,0"},
    {"ArcWidth", u"PLINE|0,0|a|w|1|2|0,10|", u"PLINE: 0,0 b1 w1-2 / 0,10 w2-2"},
    {"ArcHalfwidth", u"PLINE|0,0|a|h|1|2|0,10|", u"PLINE: 0,0 b1 w2-4 / 0,10 w4-4"},
    {"ArcClose", u"PLINE|0,0|a|0,10|cl", u"PLINE closed: 0,0 b1 / 0,10 b1"},
    {"AtTheHeightOfItsStart", u"PLINE|0,0,3|10,0|", u"PLINE z3: 0,0 / 10,0"},
    {"TakesTheThickness", u"PLINE|0,0|10,0|", u"PLINE thick2: 0,0 / 10,0", u"SETVAR|THICKNESS|2"},
};

constexpr Script kTexts[] = {
    {"OneLine", u"TEXT|1,2|3|0|a b|", u"TEXT \"a b\" at 1,2,0 h3"},
    {"SeveralLines", u"TEXT|0,0|3|0|one|two|three|",
     u"TEXT \"one\" at 0,0,0 h3;TEXT \"two\" at 0,-5,0 h3;TEXT \"three\" at 0,-10,0 h3"},
    {"Turned", u"TEXT|0,0|3|90|one|two|",
     u"TEXT \"one\" at 0,0,0 h3 rot90;TEXT \"two\" at 5,0,0 h3 rot90"},
    {"SizesByPoints", u"TEXT|0,0|0,3|0,9|x|", u"TEXT \"x\" at 0,0,0 h3 rot90"},
    {"Defaults", u"TEXT|0,0|||x|", u"TEXT \"x\" at 0,0,0 h2.5"},
    {"HeightAndRotationAreKept", u"TEXT|0,0|||x|",
     u"TEXT \"y\" at 9,9,0 h4 rot30;TEXT \"x\" at 0,0,0 h4 rot30", u"TEXT|9,9|4|30|y|"},
    {"NoLineMakesNothing", u"TEXT|0,0|3|0|", u""},
    {"OnBelowTheLastText", u"TEXT||b|",
     u"TEXT \"a\" at 0,0,0 h3 rot90;TEXT \"b\" at 5,0,0 h3 rot90", u"TEXT|0,0|3|90|a|"},
    {"OnBelowACenteredText", u"TEXT||ab|",
     u"TEXT \"ab\" at -2.25,0,0 h3 to 0,0,0 1/0;TEXT \"ab\" at -2.25,-5,0 h3 to 0,-5,0 1/0",
     u"TEXT|j|c|0,0|3|0|ab|"},
    {"JustifyLeft", u"TEXT|j|l|0,0|3|0|ab|", u"TEXT \"ab\" at 0,0,0 h3"},
    {"JustifyCenter", u"TEXT|j|c|0,0|3|0|ab|", u"TEXT \"ab\" at -2.25,0,0 h3 to 0,0,0 1/0"},
    {"JustifyRight", u"TEXT|j|r|0,0|3|0|ab|", u"TEXT \"ab\" at -4.5,0,0 h3 to 0,0,0 2/0"},
    {"JustifyMiddle", u"TEXT|j|m|0,0|3|0|ab|", u"TEXT \"ab\" at -2.25,-1.5,0 h3 to 0,0,0 4/0"},
    {"JustifyTL", u"TEXT|j|tl|0,0|3|0|ab|", u"TEXT \"ab\" at 0,-3,0 h3 to 0,0,0 0/3"},
    {"JustifyTC", u"TEXT|j|tc|0,0|3|0|ab|", u"TEXT \"ab\" at -2.25,-3,0 h3 to 0,0,0 1/3"},
    {"JustifyTR", u"TEXT|j|tr|0,0|3|0|ab|", u"TEXT \"ab\" at -4.5,-3,0 h3 to 0,0,0 2/3"},
    {"JustifyML", u"TEXT|j|ml|0,0|3|0|ab|", u"TEXT \"ab\" at 0,-1.5,0 h3 to 0,0,0 0/2"},
    {"JustifyMC", u"TEXT|j|mc|0,0|3|0|ab|", u"TEXT \"ab\" at -2.25,-1.5,0 h3 to 0,0,0 1/2"},
    {"JustifyMR", u"TEXT|j|mr|0,0|3|0|ab|", u"TEXT \"ab\" at -4.5,-1.5,0 h3 to 0,0,0 2/2"},
    {"JustifyBL", u"TEXT|j|bl|0,0|3|0|ab|", u"TEXT \"ab\" at 0,1,0 h3 to 0,0,0 0/1"},
    {"JustifyBC", u"TEXT|j|bc|0,0|3|0|ab|", u"TEXT \"ab\" at -2.25,1,0 h3 to 0,0,0 1/1"},
    {"JustifyBR", u"TEXT|j|br|0,0|3|0|ab|", u"TEXT \"ab\" at -4.5,1,0 h3 to 0,0,0 2/1"},
    {"JustifyAlignFindsTheHeight", u"TEXT|j|a|0,0|0,12|ab|",
     u"TEXT \"ab\" at 0,0,0 h8 rot90 to 0,12,0 3/0"},
    {"JustifyFitFindsTheWidth", u"TEXT|j|f|0,0|12,0|5|ab|cd|",
     u"TEXT \"ab\" at 0,0,0 h5 wide1.6 to 12,0,0 5/0;"
     u"TEXT \"cd\" at 0,-8.3333,0 h5 wide1.6 to 12,-8.3333,0 5/0"},
    {"EqualEndsAreAskedAgain", u"TEXT|j|f|0,0|0,0|12,0|5|ab|",
     u"TEXT \"ab\" at 0,0,0 h5 wide1.6 to 12,0,0 5/0"},
    {"Style", u"TEXT|s|?|nothing|Standard|0,0|3|0|x|", u"TEXT \"x\" at 0,0,0 h3"},
};

constexpr Script kAttributes[] = {
    {"Asked", u"ATTDEF||no|Number?|1|1,2|3|0",
     u"ATTDEF NO \"Number?\" locked: TEXT \"1\" at 1,2,0 h3"},
    {"WithoutPromptAndValue", u"ATTDEF||no|||1,2|3|0",
     u"ATTDEF NO \"\" locked: TEXT \"\" at 1,2,0 h3"},
    {"Modes", u"ATTDEF|i|v|p|l||no|Number?|1|1,2|3|0",
     u"ATTDEF NO \"Number?\" invisible verified preset: TEXT \"1\" at 1,2,0 h3"},
    {"ModeTwiceIsOffAgain", u"ATTDEF|i|i||no|Number?|1|1,2|3|0",
     u"ATTDEF NO \"Number?\" locked: TEXT \"1\" at 1,2,0 h3"},
    {"ConstantHasNoPrompt", u"ATTDEF|c||maker|Us and co|1,2|3|0",
     u"ATTDEF MAKER \"\" constant locked: TEXT \"Us and co\" at 1,2,0 h3"},
    {"ModesAreKept", u"ATTDEF||b||2|0,0|3|0",
     u"ATTDEF A \"\" verified locked: TEXT \"1\" at 0,0,0 h3;"
     u"ATTDEF B \"\" verified locked: TEXT \"2\" at 0,0,0 h3",
     u"ATTDEF|v||a||1|0,0|3|0"},
    {"TagIsNeeded", u"ATTDEF||||no|||1,2|3|0", u"ATTDEF NO \"\" locked: TEXT \"\" at 1,2,0 h3"},
    {"TagHasNoBlanks", u"ATTDEF||\"n o\"|no|||1,2|3|0",
     u"ATTDEF NO \"\" locked: TEXT \"\" at 1,2,0 h3"},
    {"BelowTheLastAttribute", u"ATTDEF||b||2|",
     u"ATTDEF A \"\" locked: TEXT \"1\" at 0,0,0 h3 rot90;TEXT \"between\" at 50,0,0 h2.5;"
     u"ATTDEF B \"\" locked: TEXT \"2\" at 5,0,0 h3 rot90",
     u"ATTDEF||a||1|0,0|3|90|TEXT|50,0|2.5|0|between|"},
    {"NothingToGoOnFromIsAskedAgain", u"ATTDEF||b||2||0,0|3|0",
     u"TEXT \"x\" at 50,0,0 h2.5;ATTDEF B \"\" locked: TEXT \"2\" at 0,0,0 h3",
     u"TEXT|50,0|2.5|0|x|"},
    // The place follows from the tag, which is what is shown.
    {"JustifyRight", u"-ATTDEF||no||long|j|r|0,0|3|0",
     u"ATTDEF NO \"\" locked: TEXT \"long\" at -4.5,0,0 h3 to 0,0,0 2/0"},
    {"JustifyFit", u"ATTDEF||no||long|j|f|0,0|12,0|5",
     u"ATTDEF NO \"\" locked: TEXT \"long\" at 0,0,0 h5 wide1.6 to 12,0,0 5/0"},
    {"Style", u"ATTDEF||no|||s|?|nothing|Standard|0,0|3|0",
     u"ATTDEF NO \"\" locked: TEXT \"\" at 0,0,0 h3"},
};

} // namespace

std::span<const Script> attributeScripts() { return kAttributes; }
std::span<const Script> polylineScripts() { return kPolylines; }
std::span<const Script> textScripts() { return kTexts; }
