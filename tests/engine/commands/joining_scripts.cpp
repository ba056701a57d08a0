// BREAK, JOIN and TEXTEDIT.

#include "engine/commands/scripts.h"

namespace {

constexpr char16_t kLine[] = u"LINE|0,0|10,0|";
constexpr char16_t kCircle[] = u"CIRCLE|0,0|5";
constexpr char16_t kArc[] = u"ARC|c|0,0|5,0|0,5";
constexpr char16_t kBox[] = u"RECTANG|0,0|10,8";
constexpr char16_t kPath[] = u"PLINE|0,0|10,0|10,8|";

constexpr char16_t kCorner[] = u"LINE|0,0|10,0||LINE|10,8|10,0|";
constexpr char16_t kGap[] = u"LINE|0,0|4,0||LINE|10,0|6,0||LINE|12,0|11,0|";
constexpr char16_t kArcs[] = u"ARC|c|0,0|5,0|0,5|ARC|c|0,0|-5,0|0,-5";

constexpr Script kJoining[] = {
    {"BreakLine", u"BREAK|4,0|6,0", u"LINE 0,0,0 4,0,0;LINE 6,0,0 10,0,0", kLine},
    {"BreakLineBackwards", u"BREAK|6,0|4,0", u"LINE 0,0,0 4,0,0;LINE 6,0,0 10,0,0", kLine},
    {"BreakLineUpToItsEnd", u"BREAK|4,0|15,3", u"LINE 0,0,0 4,0,0", kLine},
    {"BreakLineFromItsStart", u"BREAK|4,0|-3,0", u"LINE 4,0,0 10,0,0", kLine},
    {"BreakLineFirstPointGiven", u"BREAK|l|f|2,0|3,0", u"LINE 0,0,0 2,0,0;LINE 3,0,0 10,0,0",
     kLine},
    {"BreakLineAtOnePoint", u"BREAK|4,0|@", u"LINE 0,0,0 4,0,0;LINE 4,0,0 10,0,0", kLine},
    {"BreakSplits", u"BREAK|5,0|s|4,0", u"LINE 0,0,0 4,0,0;LINE 4,0,0 10,0,0", kLine},
    {"BreakNowhere", u"BREAK|5,0|s|10,0", u"LINE 0,0,0 10,0,0", kLine},
    {"BreakLeavesSomething", u"BREAK|5,0|f|0,0|10,0", u"LINE 0,0,0 10,0,0", kLine},
    {"BreakCircleCounterclockwise", u"BREAK|5,0|0,5", u"ARC 0,0,0 r5 90..0", kCircle},
    {"BreakCircleTheOtherWay", u"BREAK|0,5|5,0", u"ARC 0,0,0 r5 0..90", kCircle},
    {"BreakCircleAtOnePoint", u"BREAK|5,0|@", u"CIRCLE 0,0,0 r5", kCircle},
    {"BreakArc", u"BREAK|5,0|f|4,3|3,4", u"ARC 0,0,0 r5 0..36.8699;ARC 0,0,0 r5 53.1301..90", kArc},
    {"BreakPolyline", u"BREAK|5,0|10,4", u"PLINE: 0,0 / 5,0;PLINE: 10,4 / 10,8", kPath},
    {"BreakClosedPolyline", u"BREAK|5,0|10,4", u"PLINE: 10,4 / 10,8 / 0,8 / 0,0 / 5,0", kBox},
    {"BreakClosedPolylineTheOtherWay", u"BREAK|10,4|5,0", u"PLINE: 5,0 / 10,0 / 10,4", kBox},
    {"BreakClosedPolylineAtOnePoint", u"BREAK|5,0|@", u"PLINE: 5,0 / 10,0 / 10,8 / 0,8 / 0,0 / 5,0",
     kBox},
    {"BreakTextIsAskedAgain", u"BREAK|l|", u"TEXT \"x\" at 0,0,0 h2.5", u"TEXT|0,0|||x|"},
    {"JoinLines", u"JOIN|all|", u"LINE 0,0,0 12,0,0", kGap},
    {"JoinArcs", u"JOIN|all|", u"ARC 0,0,0 r5 0..270", kArcs},
    {"JoinArcsFromTheOther", u"JOIN|l|f|0,0|5,5||", u"ARC 0,0,0 r5 180..90", kArcs},
    {"JoinArcsToACircle", u"JOIN|all|", u"CIRCLE 0,0,0 r5",
     u"ARC|c|0,0|5,0|-5,0|ARC|c|0,0|-5,0|5,0"},
    {"JoinArcsThatMeetAtTheFirstOnesStart", u"JOIN|all|", u"ARC 0,0,0 r5 270..90",
     u"ARC|c|0,0|5,0|0,5|ARC|c|0,0|0,-5|5,0"},
    {"JoinArcsThatOverlapAtTheFirstOnesStart", u"JOIN|all|", u"ARC 0,0,0 r5 270..90",
     u"ARC|c|0,0|5,0|0,5|ARC|c|0,0|0,-5|4,3"},
    {"JoinArcsInAChainAroundTheStart", u"JOIN|all|", u"ARC 0,0,0 r5 180..90",
     u"ARC|c|0,0|5,0|0,5|ARC|c|0,0|-5,0|3,-4|ARC|c|0,0|0,-5|4,3"},
    {"JoinArcsOfWhichOneLiesWithinTheOther", u"JOIN|all|", u"ARC 0,0,0 r5 270..126.8699",
     u"ARC|c|0,0|5,0|0,5|ARC|c|0,0|0,-5|-3,4"},
    {"JoinArcsThatOverlapAllRound", u"JOIN|all|", u"CIRCLE 0,0,0 r5",
     u"ARC|c|0,0|5,0|-4,3|ARC|c|0,0|-3,4|4,3"},
    {"JoinLeavesGapsBesideWhatIsFarAway", u"JOIN|all|",
     u"LINE 0,0,0 5,0.1,0;LINE 5.9,0.1,0 9,3,0;LINE 100000000,0,0 100000001,5,0",
     u"LINE|0,0|5,0.1||LINE|5.9,0.1|9,3||LINE|100000000,0|100000001,5|"},
    {"JoinShortLinesBesideWhatIsFarAway", u"JOIN|all|",
     u"LINE 100000000,0,0 100000001,5,0;PLINE: 0,0 / 0.5,0 / 0.5,0.5",
     u"LINE|0,0|0.5,0||LINE|0.5,0|0.5,0.5||LINE|100000000,0|100000001,5|"},
    {"JoinCorner", u"JOIN|all|", u"PLINE: 0,0 / 10,0 / 10,8", kCorner},
    {"JoinRing", u"JOIN|all|", u"PLINE closed: 0,0 / 10,0 / 10,8",
     u"LINE|0,0|10,0||LINE|10,8|10,0||LINE|10,8|0,0|"},
    {"JoinWithAnArc", u"JOIN|all|", u"PLINE: 5,0 b0.4142 / 0,5 / 0,9",
     u"LINE|0,5|0,9||ARC|c|0,0|5,0|0,5"},
    {"JoinWidePolyline", u"JOIN|all|", u"PLINE: 0,0 w1-2 / 10,0 / 20,0",
     u"PLINE|0,0|w|1|2|10,0||LINE|20,0|10,0|"},
    {"JoinKeepsOneWidth", u"JOIN|all|", u"PLINE width1: 0,0 / 10,0 / 10,8",
     u"PLINE|0,0|w|1|1|10,0||PLINE|10,8|10,0|"},
    {"JoinTwoChains", u"JOIN|all|", u"PLINE: 0,0 / 10,0 / 10,8;PLINE: 50,0 / 60,0 / 60,8",
     u"LINE|0,0|10,0||LINE|10,0|10,8||LINE|50,0|60,0||LINE|60,0|60,8|"},
    {"JoinLeavesWhatTouchesNothing", u"JOIN|all|", u"CIRCLE 50,0,0 r2;PLINE: 0,0 / 10,0 / 10,8",
     u"LINE|0,0|10,0||LINE|10,0|10,8||CIRCLE|50,0|2"},
    {"JoinNothing", u"JOIN|", u"LINE 0,0,0 10,0,0", kLine},
    {"EditText", u"TEXTEDIT|0,0|two words|", u"TEXT \"two words\" at 0,0,0 h2.5",
     u"TEXT|0,0|||one|"},
    {"EditTextKept", u"TEXTEDIT|l|||", u"TEXT \"one\" at 0,0,0 h2.5", u"TEXT|0,0|||one|"},
    {"EditTextNeedsOne", u"ED|l|\"\"|two|", u"TEXT \"two\" at 0,0,0 h2.5", u"TEXT|0,0|||one|"},
    {"EditTextStaysRight", u"DDEDIT|l|longer|", u"TEXT \"longer\" at -2.5,0,0 h5 to 20,0,0 2/0",
     u"TEXT|j|r|20,0|5|0|ab|"},
    {"EditTextUndone", u"TEXTEDIT|l|two|l|three|u|", u"TEXT \"two\" at 0,0,0 h2.5",
     u"TEXT|0,0|||one|"},
    {"EditTextUndoneTwice", u"TEXTEDIT|l|two|l|three|u|u|", u"TEXT \"one\" at 0,0,0 h2.5",
     u"TEXT|0,0|||one|"},
    {"EditTextNothingToUndo", u"TEXTEDIT|u|", u"TEXT \"one\" at 0,0,0 h2.5", u"TEXT|0,0|||one|"},
    {"EditLines", u"TEXTEDIT|l|one\\Ptwo|", u"MTEXT \"one\\Ptwo\" at 0,10,0 h2.5 w20 1",
     u"MTEXT|0,0|20,10|abc|"},
    {"EditDefinition", u"TEXTEDIT|l|new|Which?|7|",
     u"ATTDEF NEW \"Which?\" locked: TEXT \"7\" at 0,0,0 h3", u"ATTDEF||old|||0,0|3|0"},
    {"EditDefinitionsTag", u"TEXTEDIT|l|\"n o\"|\"\"|new|||",
     u"ATTDEF NEW \"\" locked: TEXT \"\" at 0,0,0 h3", u"ATTDEF||old|||0,0|3|0"},
    {"EditLineIsAskedAgain", u"TEXTEDIT|l|", u"LINE 0,0,0 10,0,0", kLine},
};

} // namespace

std::span<const Script> joiningScripts() { return kJoining; }
