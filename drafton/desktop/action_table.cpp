#include "drafton/desktop/action_table.h"

#include "drafton/engine/command_menu.h"
#include "drafton/engine/translator.h"

namespace drafton {
namespace {

using M = MenuId;
using T = ToolbarId;

constexpr ActionRow kActions[] = {
    {.name = u"new",
     .menu = M::kFile,
     .toolbar = T::kFile,
     .shortcut = u"Ctrl+N",
     .text = u"&New",
     .tip = u"Begin a new drawing",
     .icon = u"NewDocument"},
    {.name = u"open",
     .menu = M::kFile,
     .toolbar = T::kFile,
     .shortcut = u"Ctrl+O",
     .text = u"&Open...",
     .tip = u"Open a drawing",
     .icon = u"OpenDocument"},
    {u"recent", M::kFile, T::kNone, u"", u"Open &Recent", u"Drawings that were open lately"},
    {.name = u"close",
     .menu = M::kFile,
     .shortcut = u"Ctrl+W",
     .text = u"&Close",
     .tip = u"Close the drawing",
     .icon = u"CloseDocument"},
    {.name = u"save",
     .menu = M::kFile,
     .toolbar = T::kFile,
     .shortcut = u"Ctrl+S",
     .text = u"&Save",
     .tip = u"Save the drawing",
     .startsGroup = true},
    {u"saveAs", M::kFile, T::kNone, u"Ctrl+Shift+S", u"Save &As...",
     u"Save the drawing under another name"},
    {.name = u"print",
     .menu = M::kFile,
     .toolbar = T::kFile,
     .shortcut = u"Ctrl+P",
     .text = u"&Print...",
     .tip = u"Print the sheet that is shown",
     .startsGroup = true},
    {u"exportPdf", M::kFile, T::kNone, u"", u"Save as P&DF...",
     u"Save the sheet that is shown as PDF"},
    {.name = u"exit",
     .menu = M::kFile,
     .shortcut = u"Ctrl+Q",
     .text = u"E&xit",
     .tip = u"End Drafton",
     .startsGroup = true},

    {.name = u"UNDO",
     .menu = M::kEdit,
     .toolbar = T::kFile,
     .shortcut = u"Ctrl+Z",
     .macro = u"^C^C_U "},
    {.name = u"REDO", .menu = M::kEdit, .toolbar = T::kFile, .shortcut = u"Ctrl+Y; Ctrl+Shift+Z"},
    {.name = u"selectAll",
     .menu = M::kEdit,
     .shortcut = u"Ctrl+A",
     .text = u"Select &All",
     .tip = u"Select all objects that can be selected",
     .startsGroup = true},
    {u"selectNone", M::kEdit, T::kNone, u"Ctrl+Shift+A", u"Select N&one",
     u"Select no object any more"},
    {.name = u"QSELECT", .menu = M::kEdit},
    {.name = u"ERASE",
     .menu = M::kEdit,
     .toolbar = T::kModify,
     .shortcut = u"Del",
     .startsGroup = true},

    {.name = u"zoomExtents",
     .menu = M::kView,
     .toolbar = T::kView,
     .shortcut = u"Ctrl+0",
     .text = u"Zoom &Extents",
     .tip = u"Show all of the drawing",
     .macro = u"^C^C_ZOOM _Extents "},
    {.name = u"zoomWindow",
     .menu = M::kView,
     .toolbar = T::kView,
     .text = u"Zoom &Window",
     .tip = u"Show what lies between two corners",
     .macro = u"^C^C_ZOOM _Window "},
    {.name = u"zoomPrevious",
     .menu = M::kView,
     .toolbar = T::kView,
     .text = u"Zoom &Previous",
     .tip = u"Go back to the view before the last zoom",
     .macro = u"^C^C_ZOOM _Previous "},
    {.name = u"zoomIn",
     .menu = M::kView,
     .shortcut = u"Ctrl++; Ctrl+=",
     .text = u"Zoom &In",
     .tip = u"See the middle of the drawing larger"},
    {.name = u"zoomOut",
     .menu = M::kView,
     .shortcut = u"Ctrl+-",
     .text = u"Zoom &Out",
     .tip = u"See more of the drawing"},
    {.name = u"grid",
     .menu = M::kView,
     .shortcut = u"F7",
     .text = u"&Grid",
     .tip = u"Show a grid",
     .startsGroup = true,
     .isCheckable = true},
    {.name = u"ortho",
     .menu = M::kView,
     .shortcut = u"F8",
     .text = u"O&rtho",
     .tip = u"Draw along x and y only",
     .isCheckable = true},
    {.name = u"polar",
     .menu = M::kView,
     .shortcut = u"F10",
     .text = u"Po&lar Tracking",
     .tip = u"Hold the cursor to round angles",
     .isCheckable = true},
    {.name = u"snap",
     .menu = M::kView,
     .shortcut = u"F3",
     .text = u"Object &Snap",
     .tip = u"Snap to places of objects",
     .isCheckable = true},
    {.name = u"lineWeights",
     .menu = M::kView,
     .text = u"&Line Weights",
     .tip = u"Show lines as thick as they are printed",
     .isCheckable = true},
    {.name = u"panes",
     .menu = M::kView,
     .text = u"Pa&nes",
     .tip = u"Panes and toolbars",
     .startsGroup = true},

    {.name = u"LINE", .menu = M::kDraw, .toolbar = T::kDraw},
    {.name = u"PLINE", .menu = M::kDraw, .toolbar = T::kDraw},
    {.name = u"RECTANG", .menu = M::kDraw, .toolbar = T::kDraw},
    {.name = u"POLYGON", .menu = M::kDraw, .toolbar = T::kDraw},
    {.name = u"CIRCLE", .menu = M::kDraw, .toolbar = T::kDraw, .startsGroup = true},
    {.name = u"ARC", .menu = M::kDraw, .toolbar = T::kDraw},
    {.name = u"ELLIPSE", .menu = M::kDraw, .toolbar = T::kDraw},
    {.name = u"SPLINE", .menu = M::kDraw, .toolbar = T::kDraw},
    {.name = u"DONUT", .menu = M::kDraw},
    {.name = u"POINT", .menu = M::kDraw, .toolbar = T::kDraw},
    {.name = u"BHATCH", .menu = M::kDraw, .toolbar = T::kDraw, .startsGroup = true},
    {.name = u"BOUNDARY", .menu = M::kDraw},
    {.name = u"TEXT", .menu = M::kDraw, .toolbar = T::kDraw, .startsGroup = true},
    {.name = u"MTEXT", .menu = M::kDraw, .toolbar = T::kDraw},
    {.name = u"ADDSELECTED", .menu = M::kDraw, .startsGroup = true},

    {.name = u"MOVE", .menu = M::kModify, .toolbar = T::kModify},
    {.name = u"COPY", .menu = M::kModify, .toolbar = T::kModify},
    {.name = u"ROTATE", .menu = M::kModify, .toolbar = T::kModify},
    {.name = u"SCALE", .menu = M::kModify, .toolbar = T::kModify},
    {.name = u"MIRROR", .menu = M::kModify, .toolbar = T::kModify},
    {.name = u"OFFSET", .menu = M::kModify, .toolbar = T::kModify, .startsGroup = true},
    {.name = u"TRIM", .menu = M::kModify, .toolbar = T::kModify},
    {.name = u"EXTEND", .menu = M::kModify, .toolbar = T::kModify},
    {.name = u"EXPLODE", .menu = M::kModify, .toolbar = T::kModify},
    {.name = u"CHPROP", .menu = M::kModify, .startsGroup = true},
    {.name = u"MATCHPROP", .menu = M::kModify, .toolbar = T::kModify},

    {.name = u"layers",
     .menu = M::kFormat,
     .text = u"La&yers...",
     .tip = u"Make and change layers",
     .icon = u"LAYER"},
    {.name = u"COLOR", .menu = M::kFormat},
    {.name = u"LINETYPE", .menu = M::kFormat},
    {.name = u"LWEIGHT", .menu = M::kFormat},
    {.name = u"STYLE", .menu = M::kFormat, .startsGroup = true},
    {.name = u"DIMSTYLE", .menu = M::kFormat},

    {.name = u"blocks",
     .menu = M::kInsert,
     .text = u"&Blocks...",
     .tip = u"Choose a block to insert",
     .icon = u"BLOCK"},
    {.name = u"INSERT", .menu = M::kInsert, .toolbar = T::kDraw},
    {.name = u"BLOCK", .menu = M::kInsert, .toolbar = T::kDraw},
    {.name = u"WBLOCK", .menu = M::kInsert},
    {.name = u"ATTDEF", .menu = M::kInsert},
    {.name = u"XATTACH", .menu = M::kInsert, .startsGroup = true},
    {.name = u"XREF", .menu = M::kInsert},
    {.name = u"INSERTRASTER", .menu = M::kInsert},
    {.name = u"LAYOUT", .menu = M::kInsert, .startsGroup = true},
    {.name = u"MVIEW", .menu = M::kInsert},
    {.name = u"VPLAYER", .menu = M::kInsert},
    {.name = u"PAGESETUP", .menu = M::kInsert},

    {.name = u"DIMLINEAR", .menu = M::kDimension, .toolbar = T::kDraw},
    {.name = u"DIMALIGNED", .menu = M::kDimension},
    {.name = u"DIMRADIUS", .menu = M::kDimension},
    {.name = u"DIMDIAMETER", .menu = M::kDimension},
    {.name = u"LEADER", .menu = M::kDimension, .startsGroup = true},

    {.name = u"toolPalettes",
     .menu = M::kTools,
     .toolbar = T::kFile,
     .shortcut = u"Ctrl+3",
     .text = u"Tool &Palettes",
     .tip = u"Show the tool palettes",
     .macro = u"^C^C_ToolPalettes "},
    {.name = u"SETVAR", .menu = M::kTools, .startsGroup = true},
    {.name = u"SETTING", .menu = M::kTools},
    {.name = u"options",
     .menu = M::kTools,
     .text = u"&Options...",
     .tip = u"How Drafton looks and works",
     .startsGroup = true,
     .icon = u"SETTING"},

    {.name = u"help",
     .menu = M::kHelp,
     .shortcut = u"F1",
     .text = u"&Manual",
     .tip = u"Open the manual"},
    {.name = u"about", .menu = M::kHelp, .text = u"&About Drafton", .tip = u"What Drafton is"},
};

constexpr MenuTitle kMenus[] = {
    {M::kFile, u"&File"},     {M::kEdit, u"&Edit"},           {M::kView, u"&View"},
    {M::kDraw, u"&Draw"},     {M::kModify, u"&Modify"},       {M::kFormat, u"F&ormat"},
    {M::kInsert, u"&Insert"}, {M::kDimension, u"Dime&nsion"}, {M::kTools, u"&Tools"},
    {M::kHelp, u"&Help"},
};

constexpr ToolbarTitle kToolbars[] = {
    {T::kFile, u"toolbarFile", u"File"},
    {T::kView, u"toolbarView", u"View"},
    {T::kDraw, u"toolbarDraw", u"Draw"},
    {T::kModify, u"toolbarModify", u"Modify"},
};

const MenuRow* commandRow(QStringView name) {
  for (const MenuRow& row : commandMenu())
    if (name == QStringView(row.command)) return &row;
  return nullptr;
}

} // namespace

std::span<const ActionRow> actionTable() { return kActions; }
std::span<const MenuTitle> menuTitles() { return kMenus; }
std::span<const ToolbarTitle> toolbarTitles() { return kToolbars; }

ActionTexts textsOf(const ActionRow& row) {
  ActionTexts texts;
  const MenuRow* const command = commandRow(row.name);
  if (command) {
    texts = {translated(command->label), translated(command->tip).remove(u'&'),
             OdString::fromUtf16(command->macro)};
  }
  if (row.text) texts.text = translated(row.text);
  if (row.tip) texts.tip = translated(row.tip);
  if (row.macro) texts.macro = OdString::fromUtf16(row.macro);
  return texts;
}

} // namespace drafton
