#include "drafton/engine/commands/command_bodies.h"

namespace drafton {
namespace {

constexpr NativeCommand kCommands[] = {
    {u"LINE", kOrdinary, line},
    {u"PLINE", kOrdinary, polyline},
    {u"CIRCLE", kOrdinary, circle},
    {u"ARC", kOrdinary, arc},
    {u"RECTANG", kOrdinary, rectangle},
    {u"TEXT", kOrdinary, text},
    {u"ATTDEF", kOrdinary, defineAttribute},
    {u"-ATTDEF", kOrdinary, defineAttribute},
    {u"ERASE", kOrdinary, erase},
    {u"MOVE", kOrdinary, move},
    {u"COPY", kOrdinary, copy},
    {u"ROTATE", kOrdinary, rotate},
    {u"SCALE", kOrdinary, scale},
    {u"MIRROR", kOrdinary, mirror},
    {u"EXPLODE", kOrdinary, explode},
    {u"OFFSET", kOrdinary, offset},
    {u"TRIM", kOrdinary, trim},
    {u"EXTEND", kOrdinary, extend},
    {u"STRETCH", kOrdinary, stretch},
    {u"ARRAY", kOrdinary, array},
    {u"FILLET", kOrdinary, fillet},
    {u"CHAMFER", kOrdinary, chamfer},
    {u"MTEXT", kOrdinary, multilineText},
    {u"LINETYPE", kOrdinary, linetype},
    {u"-LINETYPE", kOrdinary, linetype},
    {u"STYLE", kOrdinary, textStyle},
    {u"-STYLE", kOrdinary, textStyle},
    {u"SELECT", kOrdinary, select},
    {u"QSELECT", kOrdinary, quickSelect},
    {u"CHPROP", kOrdinary, changeProperties},
    {u"MATCHPROP", kOrdinary, matchProperties},
    {u"COLOR", kOrdinary, currentColor},
    {u"-COLOR", kOrdinary, currentColor},
    {u"LWEIGHT", kOrdinary, currentLineWeight},
    {u"POINT", kOrdinary, point},
    {u"POLYGON", kOrdinary, polygon},
    {u"DONUT", kOrdinary, donut},
    {u"ELLIPSE", kOrdinary, ellipse},
    {u"SPLINE", kOrdinary, spline},
    {u"LEADER", kOrdinary, leader},
    {u"DIMLINEAR", kOrdinary, linearDimension},
    {u"DIMALIGNED", kOrdinary, alignedDimension},
    {u"DIMCONTINUE", kOrdinary, continueDimension},
    {u"DIMRADIUS", kOrdinary, radiusDimension},
    {u"DIMDIAMETER", kOrdinary, diameterDimension},
    {u"DIMSTYLE", kOrdinary, dimensionStyle},
    {u"-DIMSTYLE", kOrdinary, dimensionStyle},
    {u"ADDSELECTED", kOrdinary, addSelected},
    {u"DIST", kNoUndoStep, distance},
    {u"UNDO", kNoUndoStep, undoSteps},
    {u"U", kNoUndoStep, undoLast},
    {u"REDO", kNoUndoStep, redo},
    // The view is part of the drawing, so going back over a ZOOM brings the former view again.
    {u"ZOOM", kOrdinary, zoom},
    {u"SETVAR", kOrdinary, setVariable},
    {u"LAYER", kOrdinary, layer},
    // With the dash users ask for the prompts where LAYER by itself may open a window.
    {u"-LAYER", kOrdinary, layer},
    {u"BHATCH", kOrdinary, boundaryHatch},
    {u"FASTHATCHCMD", kOrdinary, fastHatch},
    {u"FASTGRADIENTCMD", kOrdinary, fastGradient},
    {u"BOUNDARY", kOrdinary, boundary},
};

} // namespace

std::span<const NativeCommand> drawingCommands() { return kCommands; }

} // namespace drafton
