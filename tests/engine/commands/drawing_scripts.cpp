// LINE, CIRCLE, ARC and RECTANG.

#include "engine/commands/scripts.h"

namespace {

constexpr Script kLines[] = {
    {"SegmentsUntilEnter", u"LINE|0,0|10,0|10,5|", u"LINE 0,0,0 10,0,0;LINE 10,0,0 10,5,0"},
    {"Close", u"LINE|0,0|10,0|10,5|c", u"LINE 0,0,0 10,0,0;LINE 10,0,0 10,5,0;LINE 10,5,0 0,0,0"},
    {"Undo", u"LINE|0,0|10,0|10,5|u|10,7|", u"LINE 0,0,0 10,0,0;LINE 10,0,0 10,7,0"},
    {"UndoBeyondTheFirst", u"LINE|0,0|10,0|u|u|3,4|", u"LINE 0,0,0 3,4,0"},
    {"UndoSetsTheLastPointBack", u"LINE|0,0|10,0|10,5|u|@0,7|",
     u"LINE 0,0,0 10,0,0;LINE 10,0,0 10,7,0"},
    {"RelativeAndPolar", u"LINE|1,1|@10,0|@5<90|", u"LINE 1,1,0 11,1,0;LINE 11,1,0 11,6,0"},
    {"InSpace", u"LINE|0,0,1|10,0,2|", u"LINE 0,0,1 10,0,2"},
    {"OnFromTheLastLine", u"LINE||10,9|", u"LINE 0,0,0 10,0,0;LINE 10,0,0 10,9,0",
     u"LINE|0,0|10,0|"},
    {"OnFromAnArcKeepsItsDirection", u"LINE||4|", u"ARC 0,0,0 r10 0..90;LINE 0,10,0 -4,10,0",
     u"ARC|c|0,0|10,0|0,10"},
    {"OnFromAClockwiseArc", u"LINE||4|", u"ARC 0,0,0 r10 0..90;LINE 10,0,0 10,-4,0",
     u"ARC|0,10|e|10,0|a|-90"},
    {"TakesTheElevation", u"LINE|1,1|5,1|@3<90|7,1,0|",
     u"LINE 1,1,2 5,1,2;LINE 5,1,2 5,4,2;LINE 5,4,2 7,1,0", u"SETVAR|ELEVATION|2"},
    {"TakesTheThickness", u"LINE|0,0|10,0|", u"LINE 0,0,0 10,0,0 thick2", u"SETVAR|THICKNESS|2"},
};

constexpr Script kCircles[] = {
    {"CenterAndRadius", u"CIRCLE|5,5|3", u"CIRCLE 5,5,0 r3"},
    {"RadiusByPoint", u"CIRCLE|5,5|5,9", u"CIRCLE 5,5,0 r4"},
    {"Diameter", u"CIRCLE|5,5|d|3", u"CIRCLE 5,5,0 r1.5"},
    {"TwoPoints", u"CIRCLE|2p|0,0|6,8", u"CIRCLE 3,4,0 r5"},
    {"TwoEqualPointsAreAskedAgain", u"CIRCLE|2p|0,0|0,0|6,8", u"CIRCLE 3,4,0 r5"},
    {"ThreePoints", u"CIRCLE|3p|10,0|0,10|-10,0", u"CIRCLE 0,0,0 r10"},
    {"PointsInALineAreAskedAgain", u"CIRCLE|3p|10,0|0,0|-10,0|0,10|-10,0", u"CIRCLE 0,0,0 r10"},
    {"LastRadiusIsOffered", u"CIRCLE|5,5|", u"CIRCLE 0,0,0 r7;CIRCLE 5,5,0 r7", u"CIRCLE|0,0|7"},
    {"RadiusIsOfferedFromItsVariable", u"CIRCLE|5,5|", u"CIRCLE 5,5,0 r4", u"CIRCLERAD|4"},
    {"LastDiameterIsOffered", u"CIRCLE|5,5|d|", u"CIRCLE 0,0,0 r7;CIRCLE 5,5,0 r7",
     u"CIRCLE|0,0|7"},
    {"AtTheHeightOfItsCenter", u"CIRCLE|5,5,2|3", u"CIRCLE 5,5,2 r3"},
};

constexpr Script kArcs[] = {
    {"ThreePoints", u"ARC|10,0|0,10|-10,0", u"ARC 0,0,0 r10 0..180"},
    {"ThreePointsClockwise", u"ARC|-10,0|0,10|10,0", u"ARC 0,0,0 r10 0..180"},
    {"StartCenterEnd", u"ARC|10,0|c|0,0|0,3", u"ARC 0,0,0 r10 0..90"},
    {"StartCenterAngle", u"ARC|10,0|c|0,0|a|-90", u"ARC 0,0,0 r10 270..0"},
    {"StartCenterChord", u"ARC|10,0|c|0,0|l|10", u"ARC 0,0,0 r10 0..60"},
    {"StartCenterNegativeChord", u"ARC|10,0|c|0,0|l|-10", u"ARC 0,0,0 r10 0..300"},
    {"StartEndCenter", u"ARC|10,0|e|0,10|0,0", u"ARC 0,0,0 r10 0..90"},
    {"StartEndAngle", u"ARC|10,0|e|0,10|a|90", u"ARC 0,0,0 r10 0..90"},
    {"StartEndDirection", u"ARC|10,0|e|0,10|d|90", u"ARC 0,0,0 r10 0..90"},
    {"StartEndDirectionByPoint", u"ARC|10,0|e|0,10|d|10,1", u"ARC 0,0,0 r10 0..90"},
    {"StartEndRadius", u"ARC|10,0|e|0,10|r|10", u"ARC 0,0,0 r10 0..90"},
    {"StartEndNegativeRadius", u"ARC|10,0|e|0,10|r|-10", u"ARC 10,10,0 r10 270..180"},
    {"CenterStartEnd", u"ARC|c|0,0|10,0|0,7", u"ARC 0,0,0 r10 0..90"},
    {"CenterStartAngle", u"ARC|c|0,0|10,0|a|45", u"ARC 0,0,0 r10 0..45"},
    {"CenterStartChord", u"ARC|c|0,0|10,0|l|10", u"ARC 0,0,0 r10 0..60"},
    {"ZeroAngleIsAskedAgain", u"ARC|c|0,0|10,0|a|0|360|45", u"ARC 0,0,0 r10 0..45"},
    {"NoSuchArcIsAskedFromTheStart", u"ARC|0,0|5,0|10,0|10,0|0,10|-10,0", u"ARC 0,0,0 r10 0..180"},
    {"OnFromTheLastLine", u"ARC||10,10", u"LINE 0,0,0 10,0,0;ARC 10,5,0 r5 270..90",
     u"LINE|0,0|10,0|"},
    {"OnFromAnArc", u"ARC||0,30", u"ARC 0,0,0 r10 0..90;ARC 0,20,0 r10 90..270",
     u"ARC|c|0,0|10,0|0,10"},
    {"OnFromAPolyline", u"ARC||10,10", u"PLINE: 0,0 / 10,0;ARC 10,5,0 r5 270..90",
     u"PLINE|0,0|10,0|"},
};

constexpr Script kRectangles[] = {
    {"TwoCorners", u"RECTANG|0,0|10,5", u"PLINE closed: 0,0 / 10,0 / 10,5 / 0,5"},
    {"OtherWayRound", u"RECTANG|10,5|0,0", u"PLINE closed: 10,5 / 0,5 / 0,0 / 10,0"},
    {"FlatOneIsAskedAgain", u"RECTANG|0,0|10,0|10,5", u"PLINE closed: 0,0 / 10,0 / 10,5 / 0,5"},
    {"Chamfer", u"RECTANG|c|1|2|0,0|10,5",
     u"PLINE closed: 0,1 / 2,0 / 9,0 / 10,2 / 10,4 / 8,5 / 1,5 / 0,3"},
    {"ChamferSecondAsFirst", u"RECTANG|c|1||0,0|10,5",
     u"PLINE closed: 0,1 / 1,0 / 9,0 / 10,1 / 10,4 / 9,5 / 1,5 / 0,4"},
    {"Elevation", u"RECTANG|e|3|0,0|10,5", u"PLINE closed z3: 0,0 / 10,0 / 10,5 / 0,5"},
    {"Fillet", u"RECTANG|f|1|0,0|10,5",
     u"PLINE closed: 0,1 b0.4142 / 1,0 / 9,0 b0.4142 / 10,1 / 10,4 b0.4142 / 9,5 / 1,5 b0.4142 / "
     u"0,4"},
    {"Thickness", u"RECTANG|t|3|0,0|10,5", u"PLINE closed thick3: 0,0 / 10,0 / 10,5 / 0,5"},
    {"Width", u"RECTANG|w|3|0,0|10,5", u"PLINE closed width3: 0,0 / 10,0 / 10,5 / 0,5"},
    {"ModesAreKept", u"RECTANG|20,0|30,5",
     u"PLINE closed width3: 0,0 / 10,0 / 10,5 / 0,5;"
     u"PLINE closed width3: 20,0 / 30,0 / 30,5 / 20,5",
     u"RECTANG|w|3|0,0|10,5"},
    {"AreaByLength", u"RECTANG|0,0|a|50|l|10", u"PLINE closed: 0,0 / 10,0 / 10,5 / 0,5"},
    {"AreaByWidth", u"RECTANG|0,0|a|50|w|10", u"PLINE closed: 0,0 / 5,0 / 5,10 / 0,10"},
    {"AreaByDefaults", u"RECTANG|0,0|a|||", u"PLINE closed: 0,0 / 10,0 / 10,10 / 0,10"},
    {"Dimensions", u"RECTANG|0,0|d|8|4|1,1", u"PLINE closed: 0,0 / 8,0 / 8,4 / 0,4"},
    {"DimensionsToTheLeft", u"RECTANG|0,0|d|8|4|-1,-1", u"PLINE closed: 0,0 / -8,0 / -8,-4 / 0,-4"},
    {"Rotation", u"RECTANG|0,0|r|90|-5,10", u"PLINE closed: 0,0 / 0,10 / -5,10 / -5,0"},
    {"RotationByPoints", u"RECTANG|0,0|r|p|3,3|3,9|-5,10",
     u"PLINE closed: 0,0 / 0,10 / -5,10 / -5,0"},
};

} // namespace

std::span<const Script> lineScripts() { return kLines; }
std::span<const Script> circleScripts() { return kCircles; }
std::span<const Script> arcScripts() { return kArcs; }
std::span<const Script> rectangleScripts() { return kRectangles; }
