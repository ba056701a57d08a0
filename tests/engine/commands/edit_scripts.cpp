// ROTATE, SCALE, MIRROR, OFFSET and EXPLODE.

#include "engine/commands/scripts.h"

namespace {

OdString describeLayersOfEntities(OdDbDatabase& database) {
  QStringList layers;
  const auto space = database.getModelSpaceId().openAs<OdDbBlockTableRecord>();
  for (auto at = space->newIterator(); !at->done(); at->step()) layers << at->entity()->layer();
  return layers.join(u'\n');
}

constexpr char16_t kLine[] = u"LINE|0,0|10,0|";
constexpr char16_t kTwo[] = u"LINE|0,0|10,0||CIRCLE|20,0|2";

constexpr char16_t kLadder[] = u"LINE|3,-5|3,5||LINE|7,-5|7,5||LINE|0,0|10,0|";
constexpr char16_t kWall[] = u"LINE|20,-5|20,5||LINE|0,0|10,0|";

constexpr Script kEdits[] = {
    {"RotateByAngle", u"ROTATE|l||0,0|90", u"LINE 0,0,0 0,10,0", kLine},
    {"RotateByPoint", u"ROTATE|l||0,0|0,5", u"LINE 0,0,0 0,10,0", kLine},
    {"RotateByTheLastAngle", u"ROTATE|l||0,0|", u"LINE 0,0,0 -10,0,0",
     u"LINE|0,0|10,0||ROTATE|l||0,0|90"},
    {"RotateCopy", u"ROTATE|l||0,0|c|90", u"LINE 0,0,0 10,0,0;LINE 0,0,0 0,10,0", kLine},
    {"RotateReference", u"ROTATE|l||0,0|r|30|120", u"LINE 0,0,0 0,10,0", kLine},
    {"RotateReferenceByPoints", u"ROTATE|l||0,0|r|0,0|10,0|p|5,5|5,5|5,9", u"LINE 0,0,0 0,10,0",
     kLine},
    {"RotateReferenceCopy", u"ROTATE|l||0,0|c|r||90", u"LINE 0,0,0 10,0,0;LINE 0,0,0 0,10,0",
     kLine},
    {"RotateSeveral", u"ROTATE|all||0,0|90", u"LINE 0,0,0 0,10,0;CIRCLE 0,20,0 r2", kTwo},
    {"ScaleByFactor", u"SCALE|all||0,0|2", u"LINE 0,0,0 20,0,0;CIRCLE 40,0,0 r4", kTwo},
    {"ScaleByPoint", u"SCALE|l||20,0|20,3", u"LINE 0,0,0 10,0,0;CIRCLE 20,0,0 r6", kTwo},
    {"ScaleCopy", u"SCALE|l||0,0|c|0.5", u"LINE 0,0,0 10,0,0;LINE 0,0,0 5,0,0", kLine},
    {"ScaleReference", u"SCALE|l||0,0|r|10|25", u"LINE 0,0,0 25,0,0", kLine},
    {"ScaleReferenceByPoints", u"SCALE|l||0,0|r|0,0|10,0|p|7,7|7,27", u"LINE 0,0,0 20,0,0", kLine},
    {"ScaleZeroIsAskedAgain", u"SCALE|l||0,0|0|-1|2", u"LINE 0,0,0 20,0,0", kLine},
    {"ScaleByTheLastFactor", u"SCALE|l||0,0|", u"LINE 0,0,0 40,0,0",
     u"LINE|0,0|10,0||SCALE|l||0,0|2"},
    {"MirrorKeepsTheSource", u"MIRROR|l||0,5|10,5|", u"LINE 0,0,0 10,0,0;LINE 0,10,0 10,10,0",
     kLine},
    {"MirrorErasesTheSource", u"MIRROR|l||0,5|10,5|y", u"LINE 0,10,0 10,10,0", kLine},
    {"MirrorAskew", u"MIRROR|l||0,0|1,1|y", u"LINE 0,0,0 0,10,0", kLine},
    {"MirrorEqualPointsAreAskedAgain", u"MIRROR|l||0,5|0,5|10,5|y", u"LINE 0,10,0 10,10,0", kLine},
    {"MirrorArc", u"MIRROR|l||0,0|0,1|y", u"ARC 0,0,0 r10 90..180", u"ARC|c|0,0|10,0|0,10"},
    {"MirrorTextStaysReadable", u"MIRROR|l||0,0|0,1|y",
     u"TEXT \"abc\" at -25.625,-2.5,0 h5 to -20,0,0 1/2", u"MIRRTEXT|0|TEXT|j|mc|20,0|5|0|abc|"},
    {"MirrorTextUpsideDownIsTurned", u"MIRROR|l||0,0|1,0|y",
     u"TEXT \"abc\" at 22.5,-15.625,0 h5 rot90 to 20,-10,0 1/2",
     u"MIRRTEXT|0|TEXT|j|mc|20,10|5|90|abc|"},
    {"MirrorMtextStaysReadable", u"MIRROR|l||0,0|0,1|y", u"MTEXT \"abc\" at -10,5,0 h2.5 w20 5",
     u"MIRRTEXT|0|MTEXT|0,0|j|mc|20,10|abc|"},
    {"OffsetByDistance", u"OFFSET|2|5,0|5,5|", u"LINE 0,0,0 10,0,0;LINE 0,2,0 10,2,0", kLine},
    {"OffsetToTheOtherSide", u"OFFSET|2|5,0|5,-5|", u"LINE 0,0,0 10,0,0;LINE 0,-2,0 10,-2,0",
     kLine},
    {"OffsetByTwoPoints", u"OFFSET|0,0|0,3|5,0|5,5|", u"LINE 0,0,0 10,0,0;LINE 0,3,0 10,3,0",
     kLine},
    {"OffsetThrough", u"OFFSET|t|5,0|5,4|", u"LINE 0,0,0 10,0,0;LINE 0,4,0 10,4,0", kLine},
    {"OffsetTheLastDistance", u"OFFSET||5,0|5,5|", u"LINE 0,0,0 10,0,0;LINE 0,3,0 10,3,0",
     u"LINE|0,0|10,0||OFFSETDIST|3"},
    {"OffsetErases", u"OFFSET|e|y|2|5,0|5,5|", u"LINE 0,2,0 10,2,0", kLine},
    {"OffsetSeveral", u"OFFSET|2|5,0|m|5,5|5,5|5,5||",
     u"LINE 0,0,0 10,0,0;LINE 0,2,0 10,2,0;LINE 0,4,0 10,4,0;LINE 0,6,0 10,6,0", kLine},
    {"OffsetUndo", u"OFFSET|2|5,0|5,5|u|5,0|5,-5|e", u"LINE 0,0,0 10,0,0;LINE 0,-2,0 10,-2,0",
     kLine},
    {"OffsetUndoBringsTheErasedBack", u"OFFSET|e|y|2|5,0|5,5|u|", u"LINE 0,0,0 10,0,0", kLine},
    {"OffsetCircleInwards", u"OFFSET|1|22,0|20,0|",
     u"LINE 0,0,0 10,0,0;CIRCLE 20,0,0 r2;CIRCLE 20,0,0 r1", kTwo},
    {"OffsetCircleOutwards", u"OFFSET|1|22,0|30,0|",
     u"LINE 0,0,0 10,0,0;CIRCLE 20,0,0 r2;CIRCLE 20,0,0 r3", kTwo},
    {"OffsetIntoNothing", u"OFFSET|3|22,0|20,0.5|e", u"LINE 0,0,0 10,0,0;CIRCLE 20,0,0 r2", kTwo},
    {"OffsetRectangle", u"OFFSET|1|5,0|5,3|",
     u"PLINE closed: 0,0 / 10,0 / 10,8 / 0,8;PLINE closed: 1,1 / 9,1 / 9,7 / 1,7",
     u"RECTANG|0,0|10,8"},
    {"OffsetTextCannotBe", u"OFFSET|1|l|", u"TEXT \"abc\" at 0,0,0 h5", u"TEXT|0,0|5|0|abc|"},
    {"OffsetOnTheCurrentLayer", u"OFFSET|l|c|2|5,0|5,5|", u"0;Walls",
     u"LINE|0,0|10,0||LAYER|m|Walls|", describeLayersOfEntities},
    {"TrimBetween", u"TRIM||5,0|",
     u"LINE 3,-5,0 3,5,0;LINE 7,-5,0 7,5,0;LINE 0,0,0 3,0,0;LINE 7,0,0 10,0,0", kLadder},
    {"TrimAnEnd", u"TRIM||1,0|", u"LINE 3,-5,0 3,5,0;LINE 7,-5,0 7,5,0;LINE 3,0,0 10,0,0", kLadder},
    {"TrimBothEnds", u"TRIM||1,0|9,0|", u"LINE 3,-5,0 3,5,0;LINE 7,-5,0 7,5,0;LINE 3,0,0 7,0,0",
     kLadder},
    {"TrimByOneEdge", u"TRIM|3,3||5,0|", u"LINE 3,-5,0 3,5,0;LINE 7,-5,0 7,5,0;LINE 0,0,0 3,0,0",
     kLadder},
    {"TrimUndo", u"TRIM||5,0|u|1,0|", u"LINE 3,-5,0 3,5,0;LINE 7,-5,0 7,5,0;LINE 3,0,0 10,0,0",
     kLadder},
    {"TrimCircle", u"TRIM||0,5|", u"LINE -9,0,0 9,0,0;ARC 0,0,0 r5 180..0",
     u"LINE|-9,0|9,0||CIRCLE|0,0|5"},
    {"TrimCircleThroughItsStart", u"TRIM||5,0|", u"LINE 0,-9,0 0,9,0;ARC 0,0,0 r5 90..270",
     u"LINE|0,-9|0,9||CIRCLE|0,0|5"},
    {"TrimArc", u"TRIM||-3,4|", u"LINE 0,0,0 0,9,0;ARC 0,0,0 r5 0..90",
     u"LINE|0,0|0,9||ARC|c|0,0|5,0|-5,0"},
    {"TrimPolyline", u"TRIM||10,4|", u"LINE 5,-5,0 5,9,0;PLINE: 0,0 / 5,0;PLINE: 5,8 / 0,8",
     u"LINE|5,-5|5,9||PLINE|0,0|10,0|10,8|0,8|"},
    {"TrimRectangle", u"TRIM||10,4|", u"LINE 5,-5,0 5,9,0;PLINE: 5,8 / 0,8 / 0,0 / 5,0",
     u"LINE|5,-5|5,9||RECTANG|0,0|10,8"},
    {"TrimEllipse", u"TRIM||0,3|", u"LINE -9,0,0 9,0,0;ELLIPSE 0,0,0 axis5,0,0 ratio0.6 180..360",
     u"LINE|-9,0|9,0||ELLIPSE|c|0,0|5,0|3"},
    {"TrimNothingThere", u"TRIM||20,4|",
     u"LINE 3,-5,0 3,5,0;LINE 7,-5,0 7,5,0;LINE 0,0,0 10,0,0;LINE 20,0,0 20,9,0",
     u"LINE|3,-5|3,5||LINE|7,-5|7,5||LINE|0,0|10,0||LINE|20,0|20,9|"},
    {"ExtendLine", u"EXTEND||9,0|", u"LINE 20,-5,0 20,5,0;LINE 0,0,0 20,0,0", kWall},
    {"ExtendNothingThatWay", u"EXTEND||1,0|", u"LINE 20,-5,0 20,5,0;LINE 0,0,0 10,0,0", kWall},
    {"ExtendUndo", u"EXTEND||9,0|u|", u"LINE 20,-5,0 20,5,0;LINE 0,0,0 10,0,0", kWall},
    {"ExtendToAChosenEdge", u"EXTEND|30,2||9,0|",
     u"LINE 20,-5,0 20,5,0;LINE 0,0,0 30,0,0;LINE 30,-5,0 30,5,0",
     u"LINE|20,-5|20,5||LINE|0,0|10,0||LINE|30,-5|30,5|"},
    {"ExtendArc", u"EXTEND||0,5|", u"LINE -9,0,0 0,0,0;ARC 0,0,0 r5 0..180",
     u"LINE|-9,0|0,0||ARC|c|0,0|5,0|0,5"},
    {"ExtendArcAtItsStart", u"EXTEND||5,0|", u"LINE 0,-9,0 0,0,0;ARC 0,0,0 r5 270..90",
     u"LINE|0,-9|0,0||ARC|c|0,0|5,0|0,5"},
    {"ExtendPolyline", u"EXTEND||10,7|", u"LINE 0,20,0 20,20,0;PLINE: 0,0 / 10,0 / 10,20",
     u"LINE|0,20|20,20||PLINE|0,0|10,0|10,8|"},
    {"ExtendPolylineArc", u"EXTEND||5,0|", u"LINE 0,-9,0 0,0,0;PLINE: 0,5 b-1 / 0,-5",
     u"LINE|0,-9|0,0||PLINE|0,5|a|ce|0,0|a|-90|"},
    {"ExplodeRectangle", u"EXPLODE|l|",
     u"LINE 0,0,0 10,0,0;LINE 10,0,0 10,8,0;LINE 10,8,0 0,8,0;LINE 0,8,0 0,0,0",
     u"RECTANG|0,0|10,8"},
    {"ExplodeArcs", u"EXPLODE|l|", u"LINE 0,0,0 10,0,0;ARC 10,5,0 r5 270..90",
     u"PLINE|0,0|10,0|a|10,10|"},
    {"ExplodeWholeThings", u"EXPLODE|all|", u"LINE 0,0,0 10,0,0;CIRCLE 20,0,0 r2", kTwo},
};

} // namespace

std::span<const Script> editScripts() { return kEdits; }
