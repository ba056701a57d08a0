// INSERT, BLOCK, WBLOCK and INSERTRASTER; XATTACH and XREF.

#include "engine/commands/scripts.h"

namespace {

constexpr char16_t kDoor[] = u"LINE|0,0|10,0||BLOCK|Door|0,0|l|";
constexpr char16_t kTag[] = u"ATTDEF|v||no|Number?|1|0,0|3|0|BLOCK|Tag|0,0|l|";
constexpr char16_t kDoorAndCircle[] = u"LINE|0,0|10,0||BLOCK|Door|0,0|l||CIRCLE|0,0|2";
constexpr char16_t kWheel[] = u"XATTACH|%FOLDER%/wheel.dxf|a|1,1|||";

constexpr Script kBlocks[] = {
    {"Scales", u"INSERT|Door|3,4|2|3|90", u"INSERT Door at 3,4,0 x2,3,2 rot90", kDoor},
    {"Defaults", u"INSERT|Door|3,4|||", u"INSERT Door at 3,4,0", kDoor},
    {"EachAxis", u"INSERT|Door|0,0|xyz|2|3|4|", u"INSERT Door at 0,0,0 x2,3,4", kDoor},
    {"ScaleAndRotationFirst", u"INSERT|Door|s|2|r|45|3,4", u"INSERT Door at 3,4,0 x2,2,2 rot45",
     kDoor},
    {"AxesFirst", u"INSERT|Door|x|2|y|3|z|4|3,4|", u"INSERT Door at 3,4,0 x2,3,4", kDoor},
    {"Nothing", u"INSERT|Door|0,0|0|2||", u"INSERT Door at 0,0,0 x2,2,2", kDoor},
    {"Pieces", u"INSERT|*Door|3,4|2|90", u"LINE 3,4,0 3,24,0", kDoor},
    {"PiecesScaledFirst", u"INSERT|*Door|s|2|r|90|3,4", u"LINE 3,4,0 3,24,0", kDoor},
    {"List", u"INSERT|?|*|Door|3,4|||", u"INSERT Door at 3,4,0", kDoor},
    {"TheLastBlock", u"-INSERT||3,4|||", u"INSERT Door at 3,4,0", kDoor},
    {"File", u"INSERT|%FOLDER%/wheel.dxf|1,1|||", u"INSERT wheel at 1,1,0"},
    {"FileUnderAName", u"INSERT|Door=%FOLDER%/wheel.dxf|1,1|||", u"Door at 0,0,0: CIRCLE 0,0,0 r4",
     kDoor, describeBlocks},
    {"Attributes", u"INSERT|Tag|0,0||||42|43", u"INSERT Tag at 0,0,0 NO=43", kTag},
    {"AttributesAsTheyAre", u"INSERT|Tag|0,0|||||", u"INSERT Tag at 0,0,0 NO=1", kTag},
    {"AsTyped", u"InsertBlock|Door|3,4|2|3|90", u"INSERT Door at 3,4,0 x2,3,2 rot90", kDoor},

    {"Made", u"BLOCK|Door|1,0|all|", u"Door at 1,0,0: LINE 0,0,0 10,0,0 & CIRCLE 5,0,0 r1",
     u"LINE|0,0|10,0||CIRCLE|5,0|1", describeBlocks},
    {"TakesTheObjectsAway", u"BLOCK|Door|0,0|l|", u"LINE 0,0,0 10,0,0",
     u"LINE|0,0|10,0||CIRCLE|5,0|1"},
    {"List", u"BLOCK|?|Seat|0,0|all|",
     u"Door at 0,0,0: LINE 0,0,0 10,0,0;Seat at 0,0,0: CIRCLE 0,0,0 r2", kDoorAndCircle,
     describeBlocks},
    {"BadName", u"BLOCK|a/b|Seat|0,0|all|", u"Seat at 0,0,0: CIRCLE 0,0,0 r2", u"CIRCLE|0,0|2",
     describeBlocks},
    {"Redefined", u"-BLOCK|door|y|0,0|all|", u"Door at 0,0,0: CIRCLE 0,0,0 r2", kDoorAndCircle,
     describeBlocks},
    {"Kept", u"BLOCK|door|n", u"Door at 0,0,0: LINE 0,0,0 10,0,0", kDoorAndCircle, describeBlocks},
    {"OfNothing", u"BLOCK|Seat|0,0|", u"Seat at 0,0,0: ", nullptr, describeBlocks},

    {"Block", u"WBLOCK|%FOLDER%/new.dxf|Door", u"CIRCLE 0,0,0 r2", kDoorAndCircle},
    {"BlockOfTheFilesName", u"WBLOCK|%FOLDER%/Door.dxf|=", u"CIRCLE 0,0,0 r2", kDoorAndCircle},
    {"NoSuchBlock", u"WBLOCK|%FOLDER%/new.dxf|Seat|Door", u"CIRCLE 0,0,0 r2", kDoorAndCircle},
    {"WholeDrawing", u"WBLOCK|%FOLDER%/new.dxf|*", u"CIRCLE 0,0,0 r2", kDoorAndCircle},
    {"Objects", u"-WBLOCK|%FOLDER%/new.dxf||0,0|all|", u"CIRCLE 0,0,0 r2", kDoorAndCircle},
    {"Replaced", u"WBLOCK|%FOLDER%/wheel.dxf|y|Door", u"CIRCLE 0,0,0 r2", kDoorAndCircle},
    {"NotReplaced", u"WBLOCK|%FOLDER%/wheel.dxf|n", u"CIRCLE 0,0,0 r2", kDoorAndCircle},

    {"Copied", u"COPYCLIP|all|", u"CIRCLE 0,0,0 r2", kDoorAndCircle},
    {"Cut", u"CUTCLIP|l|", u"LINE 0,0,0 10,0,0", u"LINE|0,0|10,0||CIRCLE|0,0|2"},
    {"ByTheLowerLeft", u"PASTECLIP|20,30",
     u"LINE 1,1,0 11,1,0;CIRCLE 4,4,0 r2;LINE 20,30,0 30,30,0;CIRCLE 23,33,0 r2",
     u"LINE|1,1|11,1||CIRCLE|4,4|2|COPYCLIP|all|"},
    {"Original", u"PASTECLIP|o", u"LINE 1,1,0 11,1,0", u"LINE|1,1|11,1||CUTCLIP|all|"},
    {"KeepsHeights", u"PASTECLIP|5,5", u"LINE 5,5,7 6,5,8", u"LINE|0,0,7|1,0,8||CUTCLIP|l|"},
    {"Blocks", u"PASTECLIP|50,0", u"INSERT Door at 3,4,0;INSERT Door at 50,0,0",
     u"LINE|0,0|10,0||BLOCK|Door|0,0|l||INSERT|Door|3,4||||COPYCLIP|l|"},

    {"Placed", u"INSERTRASTER|%FOLDER%/photo.png|5,6|10|0",
     u"IMAGE at 5,6,0 along 10,0,0 up 0,5,0"},
    {"Turned", u"INSERTRASTER|%FOLDER%/photo.png|5,6||90",
     u"IMAGE at 5,6,0 along 0,1,0 up -0.5,0,0"},
    {"ScaleAboveZero", u"INSERTRASTER|%FOLDER%/photo.png|5,6|0|-1|10|",
     u"IMAGE at 5,6,0 along 10,0,0 up 0,5,0"},
};

constexpr Script kReferences[] = {
    {"Attached", u"XATTACH|%FOLDER%/wheel.dxf|a|1,1|2||90", u"INSERT wheel at 1,1,0 x2,2,2 rot90"},
    {"Overlaid", u"XATTACH|%FOLDER%/wheel.dxf|o|1,1|||", u"wheel overlay: CIRCLE 0,0,0 r4", nullptr,
     describeBlocks},
    {"AttachedAgain", u"XATTACH|%FOLDER%/wheel.dxf||5,5|||",
     u"INSERT wheel at 1,1,0;INSERT wheel at 5,5,0", kWheel},
    {"List", u"XREF|?", u"INSERT wheel at 1,1,0", kWheel},
    {"Attached", u"XREF|a|%FOLDER%/wheel.dxf|1,1|||", u"INSERT wheel at 1,1,0"},
    {"AttachedByEnter", u"XREF||%FOLDER%/wheel.dxf|1,1|||", u"INSERT wheel at 1,1,0"},
    {"Overlaid", u"XREF|o|%FOLDER%/wheel.dxf|1,1|||", u"wheel overlay: CIRCLE 0,0,0 r4", nullptr,
     describeBlocks},
    {"Detached", u"-XREF|d|wheel", u"", kWheel, describeBlocks},
    {"DetachedIsGone", u"XREF|d|*", u"", kWheel},
    {"NothingFits", u"XREF|d|roof*", u"wheel attached: CIRCLE 0,0,0 r4", kWheel, describeBlocks},
    {"Path", u"XREF|p|wheel|%FOLDER%/ring.dxf", u"wheel attached: CIRCLE 0,0,0 r9", kWheel,
     describeBlocks},
    {"Bound", u"XREF|b|wheel", u"wheel at 0,0,0: CIRCLE 0,0,0 r4", kWheel, describeBlocks},
    {"BoundIsStillSeen", u"XREF|b|*", u"INSERT wheel at 1,1,0", kWheel},
    {"BoundWhileUnloaded", u"XREF|b|wheel", u"wheel at 0,0,0: CIRCLE 0,0,0 r4",
     u"XATTACH|%FOLDER%/wheel.dxf|a|1,1||||XREF|u|wheel", describeBlocks},
    {"Unloaded", u"XREF|u|wheel", u"wheel attached unloaded: ", kWheel, describeBlocks},
    {"Reloaded", u"XREF|r|wheel", u"wheel attached: CIRCLE 0,0,0 r4",
     u"XATTACH|%FOLDER%/wheel.dxf|a|1,1||||XREF|u|wheel", describeBlocks},
};

} // namespace

std::span<const Script> blockScripts() { return kBlocks; }
std::span<const Script> referenceScripts() { return kReferences; }
