// The options of selecting, SELECT and QSELECT; ADDSELECTED.

#include "engine/commands/scripts.h"

namespace {

/// Three lines side by side; the last one is the shortest.
constexpr char16_t kThree[] = u"LINE|0,0|0,10||LINE|20,0|20,10||LINE|40,0|40,5|";
constexpr char16_t kFirstTwo[] = u"LINE 0,0,0 0,10,0;LINE 20,0,0 20,10,0";
constexpr char16_t kLastOne[] = u"LINE 40,0,0 40,5,0";
constexpr char16_t kAllThree[] = u"LINE 0,0,0 0,10,0;LINE 20,0,0 20,10,0;LINE 40,0,0 40,5,0";
constexpr char16_t kMixed[] = u"LINE|0,0|0,10||COLOR|1|CIRCLE|20,0|2|LAYER|m|Walls||CIRCLE|30,0|2";

constexpr Script kSelections[] = {
    {"WindowPolygon", u"ERASE|wp|-1,-1|21,-1|21,11|-1,11||", kLastOne, kThree},
    {"CrossingPolygon", u"ERASE|cp|-1,4|21,4|21,6||", kLastOne, kThree},
    {"Fence", u"ERASE|f|-1,5|21,5||", kLastOne, kThree},
    {"FencePointTakenBack", u"ERASE|f|-1,5|21,5|41,5|u||", kLastOne, kThree},
    {"BoxToTheRight", u"ERASE|box|30,-1|50,6|", kFirstTwo, kThree},
    {"BoxToTheLeft", u"ERASE|box|21,6|-1,4|", kLastOne, kThree},
    {"Handle", u"ERASE|h|32|", kFirstTwo, kThree},
    {"HandleOfNothing", u"ERASE|h|zz|h|FFFF|h|32|", kFirstTwo, kThree},
    {"Single", u"ERASE|si|l", kFirstTwo, kThree},
    {"ChoiceTakenBack", u"ERASE|all|u|l|", kFirstTwo, kThree},
    {"RemovedAndAdded", u"ERASE|r|a|l|", kFirstTwo, kThree},
    {"OfAType", u"ERASE|fi|t|CIRCLE|all|", u"LINE 0,0,0 0,10,0", kMixed},
    {"OfALayer", u"ERASE|fi|l|W*|all|", u"LINE 0,0,0 0,10,0;CIRCLE 20,0,0 r2", kMixed},
    {"OfAColor", u"ERASE|fi|c|1|all|", u"LINE 0,0,0 0,10,0", kMixed},
    {"OfALinetype", u"ERASE|fi|lt|ByLayer|all|", u"", kMixed},
    {"OfAnyKindAgain", u"ERASE|fi|t|CIRCLE|fi|n|all|", u"", kMixed},

    {"ForPrevious", u"SELECT|w|-1,-1|30,11|", kAllThree, kThree},
    {"Previous", u"ERASE|p|", kLastOne,
     u"LINE|0,0|0,10||LINE|20,0|20,10||LINE|40,0|40,5||SELECT|w|-1,-1|30,11|"},
    {"Included", u"QSELECT|CIRCLE|*|*||i", u"LINE 0,0,0 0,10,0;CIRCLE 20,0,0 r2;CIRCLE 30,0,0 r2",
     kMixed},
    {"Excluded", u"QSELECT|CIRCLE|W*|*|1|e", u"LINE 0,0,0 0,10,0;CIRCLE 20,0,0 r2;CIRCLE 30,0,0 r2",
     kMixed},

    {"NothingThere", u"ADDSELECTED|33,33|", u"CIRCLE 0,0,0 r5", u"CIRCLE|0,0|5"},
};

} // namespace

std::span<const Script> selectionScripts() { return kSelections; }
