// UNDO, U and REDO; the commands around documents.

#include "engine/commands/scripts.h"

namespace {

constexpr char16_t kThreeCircles[] = u"CIRCLE|0,0|1|CIRCLE|0,0|2|CIRCLE|0,0|3";
constexpr char16_t kTwoDocuments[] = u"CIRCLE|0,0|7|NewDocument|CIRCLE|0,0|8";

constexpr Script kHistory[] = {
    {"Number", u"UNDO|2", u"CIRCLE 0,0,0 r1", kThreeCircles},
    {"One", u"UNDO|", u"CIRCLE 0,0,0 r1;CIRCLE 0,0,0 r2", kThreeCircles},
    {"NumberAboveZero", u"UNDO|0|-3|2.5|1", u"CIRCLE 0,0,0 r1;CIRCLE 0,0,0 r2", kThreeCircles},
    {"Mark", u"UNDO|m", u"CIRCLE 0,0,0 r1;CIRCLE 0,0,0 r2;CIRCLE 0,0,0 r3", kThreeCircles},
    {"BackToTheMark", u"UNDO|b", u"CIRCLE 0,0,0 r1",
     u"CIRCLE|0,0|1|UNDO|m|CIRCLE|0,0|2|CIRCLE|0,0|3"},
    {"BackToTheStart", u"UNDO|b|y", u"", kThreeCircles},
    {"NotBackToTheStart", u"UNDO|b|n", u"CIRCLE 0,0,0 r1;CIRCLE 0,0,0 r2;CIRCLE 0,0,0 r3",
     kThreeCircles},
    {"Begin", u"UNDO|be", u"CIRCLE 0,0,0 r1;CIRCLE 0,0,0 r2;CIRCLE 0,0,0 r3", kThreeCircles},
    {"End", u"UNDO|e", u"CIRCLE 0,0,0 r1;CIRCLE 0,0,0 r2", u"CIRCLE|0,0|1|UNDO|be|CIRCLE|0,0|2"},
    {"AGroup", u"U", u"CIRCLE 0,0,0 r1", u"CIRCLE|0,0|1|UNDO|be|CIRCLE|0,0|2|CIRCLE|0,0|3|UNDO|e"},
    {"One", u"REDO", u"CIRCLE 0,0,0 r1;CIRCLE 0,0,0 r2;CIRCLE 0,0,0 r3",
     u"CIRCLE|0,0|1|CIRCLE|0,0|2|CIRCLE|0,0|3|U"},
};

constexpr Script kDocuments[] = {
    {"Empty", u"NewDocument", u"", kThreeCircles},
    {"Opened", u"OpenDocument|%FOLDER%/wheel", u"CIRCLE 0,0,0 r4", kThreeCircles},
    {"Asked", u"Save|%FOLDER%/new", u"CIRCLE 0,0,0 r7", u"CIRCLE|0,0|7"},
    {"NotAsked", u"Save", u"CIRCLE 0,0,0 r7;CIRCLE 0,0,0 r8",
     u"CIRCLE|0,0|7|SaveAs|%FOLDER%/new|CIRCLE|0,0|8"},
    {"New", u"SaveAs|%FOLDER%/new name.dxf", u"CIRCLE 0,0,0 r7", u"CIRCLE|0,0|7"},
    {"InAVersion", u"SaveAs|v|R2000|v|R2004|v|R2007|v|R2010|v|R2013|v|R2018|%FOLDER%/new version",
     u"CIRCLE 0,0,0 r7", u"CIRCLE|0,0|7"},
    {"Replaced", u"SaveAs|%FOLDER%/wheel.dxf|y", u"CIRCLE 0,0,0 r7", u"CIRCLE|0,0|7"},
    {"NotReplaced", u"SaveAs|%FOLDER%/wheel.dxf|n", u"CIRCLE 0,0,0 r7", u"CIRCLE|0,0|7"},
    {"NotSaved", u"CloseDocument|n", u"CIRCLE 0,0,0 r7", kTwoDocuments},
    {"Saved", u"CloseDocument|y|%FOLDER%/new", u"CIRCLE 0,0,0 r7", kTwoDocuments},
    {"Kept", u"CloseDocument|c", u"CIRCLE 0,0,0 r8", kTwoDocuments},
    {"Kept", u"Exit|c", u"CIRCLE 0,0,0 r7", u"CIRCLE|0,0|7"},
    {"KeptAtTheSecond", u"Exit|n|c", u"CIRCLE 0,0,0 r8", kTwoDocuments},
    {"Changed", u"SETTING|Colour|dark red", u"CIRCLE 0,0,0 r7", u"CIRCLE|0,0|7"},
};

} // namespace

std::span<const Script> historyScripts() { return kHistory; }
std::span<const Script> documentScripts() { return kDocuments; }
