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
    {u"ERASE", kOrdinary, erase},
    {u"MOVE", kOrdinary, move},
    {u"COPY", kOrdinary, copy},
    {u"UNDO", kNoUndoStep, undoSteps},
    {u"U", kNoUndoStep, undoLast},
    {u"REDO", kNoUndoStep, redo},
    // The view is part of the drawing, so going back over a ZOOM brings the former view again.
    {u"ZOOM", kOrdinary, zoom},
    {u"SETVAR", kOrdinary, setVariable},
    {u"LAYER", kOrdinary, layer},
    // With the dash users ask for the prompts where LAYER by itself may open a window.
    {u"-LAYER", kOrdinary, layer},
};

} // namespace

std::span<const NativeCommand> drawingCommands() { return kCommands; }

} // namespace drafton
