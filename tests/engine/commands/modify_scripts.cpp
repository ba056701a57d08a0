// ERASE, MOVE, COPY and the ways of choosing.

#include "engine/commands/scripts.h"

namespace {

/// Three lines side by side; the last one is the shortest.
constexpr char16_t kThree[] = u"LINE|0,0|0,10||LINE|20,0|20,10||LINE|40,0|40,5|";

constexpr Script kModifications[] = {
    {"EraseNothing", u"ERASE|", u"LINE 0,0,0 0,10,0;LINE 20,0,0 20,10,0;LINE 40,0,0 40,5,0",
     kThree},
    {"EraseByPoint", u"ERASE|20,3|", u"LINE 0,0,0 0,10,0;LINE 40,0,0 40,5,0", kThree},
    {"EraseLast", u"ERASE|l|", u"LINE 0,0,0 0,10,0;LINE 20,0,0 20,10,0", kThree},
    {"EraseAll", u"ERASE|all|", u"", kThree},
    {"EraseByWindow", u"ERASE|w|-1,-1|30,11|", u"LINE 40,0,0 40,5,0", kThree},
    {"WindowTakesOnlyWhatIsInside", u"ERASE|w|-1,-1|30,9|",
     u"LINE 0,0,0 0,10,0;LINE 20,0,0 20,10,0;LINE 40,0,0 40,5,0", kThree},
    {"EraseByCrossing", u"ERASE|c|-1,4|30,6|", u"LINE 40,0,0 40,5,0", kThree},
    {"EmptyPlaceBeginsAWindow", u"ERASE|30,-1|50,6|", u"LINE 0,0,0 0,10,0;LINE 20,0,0 20,10,0",
     kThree},
    {"EmptyPlaceToTheLeftCrosses", u"ERASE|30,4|10,6|", u"LINE 0,0,0 0,10,0;LINE 40,0,0 40,5,0",
     kThree},
    {"RemoveAndAdd", u"ERASE|all|r|0,3|20,3|a|20,5|", u"LINE 0,0,0 0,10,0", kThree},
    {"MoveByTwoPoints", u"MOVE|l||40,0|50,1|",
     u"LINE 0,0,0 0,10,0;LINE 20,0,0 20,10,0;LINE 50,1,0 50,6,0", kThree},
    {"MoveByFirstPointAsDisplacement", u"MOVE|l||1,2||",
     u"LINE 0,0,0 0,10,0;LINE 20,0,0 20,10,0;LINE 41,2,0 41,7,0", kThree},
    {"MoveByDisplacement", u"MOVE|l||d|1,2,3",
     u"LINE 0,0,0 0,10,0;LINE 20,0,0 20,10,0;LINE 41,2,3 41,7,3", kThree},
    {"MoveByDisplacementOnEnter", u"MOVE|l|||1,2",
     u"LINE 0,0,0 0,10,0;LINE 20,0,0 20,10,0;LINE 41,2,0 41,7,0", kThree},
    {"MoveByFirstPointStaysAtItsHeight", u"MOVE|l||1,2||", u"LINE 1,2,3 1,12,3",
     u"ELEVATION|3|LINE|0,0|0,10|"},
    {"MoveByDisplacementStaysAtItsHeight", u"MOVE|l||d|1,2", u"LINE 1,2,3 1,12,3",
     u"ELEVATION|3|LINE|0,0|0,10|"},
    {"MoveByDisplacementOfNothing", u"MOVE|l||d|", u"LINE 0,0,0 0,10,0", u"LINE|0,0|0,10|"},
    {"MoveBetweenTypedPointsStaysAtItsHeight", u"MOVE|l||0,0|1,2", u"LINE 1,2,3 1,12,3",
     u"ELEVATION|3|LINE|0,0|0,10|"},
    {"MovePrevious", u"MOVE|p||0,0|0,1",
     u"LINE 0,0,0 0,10,0;LINE 20,0,0 20,10,0;LINE 41,1,0 41,6,0",
     u"LINE|0,0|0,10||LINE|20,0|20,10||LINE|40,0|40,5||MOVE|l||0,0|1,0"},
    {"CopyOnce", u"COPY|0,3||0,0|5,0|",
     u"LINE 0,0,0 0,10,0;LINE 20,0,0 20,10,0;LINE 40,0,0 40,5,0;LINE 5,0,0 5,10,0", kThree},
    {"CopySeveralTimesFromOneBase", u"COPY|l||0,0|@1,0|@2,0|e",
     u"LINE 0,0,0 0,10,0;LINE 20,0,0 20,10,0;LINE 40,0,0 40,5,0;LINE 41,0,0 41,5,0;"
     u"LINE 42,0,0 42,5,0",
     kThree},
    {"CopyUndo", u"COPY|l||0,0|1,0|2,0|u|3,0|",
     u"LINE 0,0,0 0,10,0;LINE 20,0,0 20,10,0;LINE 40,0,0 40,5,0;LINE 41,0,0 41,5,0;"
     u"LINE 43,0,0 43,5,0",
     kThree},
    {"CopyFirstPointAsDisplacement", u"COPY|l||1,2|",
     u"LINE 0,0,0 0,10,0;LINE 20,0,0 20,10,0;LINE 40,0,0 40,5,0;LINE 41,2,0 41,7,0", kThree},
    {"CopyByDisplacement", u"COPY|l||d|1,2",
     u"LINE 0,0,0 0,10,0;LINE 20,0,0 20,10,0;LINE 40,0,0 40,5,0;LINE 41,2,0 41,7,0", kThree},
    {"CopyByFirstPointStaysAtItsHeight", u"COPY|l||1,2|", u"LINE 0,0,3 0,10,3;LINE 1,2,3 1,12,3",
     u"ELEVATION|3|LINE|0,0|0,10|"},
    {"CopyInTheModeOfItsVariable", u"COPY|l||0,0|1,0", u"LINE 0,0,0 0,10,0;LINE 1,0,0 1,10,0",
     u"COPYMODE|1|LINE|0,0|0,10|"},
    {"CopyInSingleMode", u"COPY|l||o|s|0,0|1,0",
     u"LINE 0,0,0 0,10,0;LINE 20,0,0 20,10,0;LINE 40,0,0 40,5,0;LINE 41,0,0 41,5,0", kThree},
    {"CopyBackInMultipleMode", u"COPY|l||o|m|0,0|1,0|2,0|",
     u"LINE 0,0,0 5,0,0;LINE 0,1,0 5,1,0;LINE 1,1,0 6,1,0;LINE 2,1,0 7,1,0",
     u"LINE|0,0|5,0||COPY|l||o|s|0,0|0,1"},
};

} // namespace

std::span<const Script> modifyScripts() { return kModifications; }
