#include "drafton/engine/command_menu.h"

#include "drafton/engine/translator.h"

namespace drafton {
namespace {

constexpr MenuRow kMenu[] = {
    {u"NewDocument", u"New", u"&New drawing", u"^C^C_NewDocument "},
    {u"OpenDocument", u"Open", u"&Open a drawing", u"^C^C_OpenDocument "},
    {u"Save", u"Save", u"&Save the drawing", u"^C^C_Save "},
    {u"SaveAs", u"Save As", u"Save the drawing under &another name", u"^C^C_SaveAs "},
    {u"CloseDocument", u"Close", u"&Close the drawing", u"^C^C_CloseDocument "},
    {u"Exit", u"Exit", u"E&xit Drafton", u"^C^C_Exit "},
    {u"UNDO", u"Undo", u"&Undo the last command", u"^C^C_UNDO "},
    {u"REDO", u"Redo", u"&Redo what was undone", u"^C^C_REDO "},
    {u"ERASE", u"Erase", u"&Erase objects", u"^C^C_ERASE "},
    {u"MOVE", u"Move", u"&Move objects", u"^C^C_MOVE "},
    {u"COPY", u"Copy", u"Cop&y objects", u"^C^C_COPY "},
    {u"LINE", u"Line", u"Draw straight &lines", u"^C^C_LINE "},
    {u"PLINE", u"Polyline", u"Draw a &polyline", u"^C^C_PLINE "},
    {u"CIRCLE", u"Circle", u"Draw a &circle", u"^C^C_CIRCLE "},
    {u"ARC", u"Arc", u"Draw an &arc", u"^C^C_ARC "},
    {u"RECTANG", u"Rectangle", u"Draw a &rectangle", u"^C^C_RECTANG "},
    {u"TEXT", u"Text", u"Write a line of &text", u"^C^C_TEXT "},
    {u"LAYER", u"Layers", u"Make and change la&yers", u"^C^C_LAYER "},
    {u"ZOOM", u"Zoom", u"&Zoom the view", u"^C^C_ZOOM "},
    {u"SETVAR", u"Variables", u"Show and set &variables", u"^C^C_SETVAR "},
    {u"SETTING", u"Settings", u"Change a setti&ng", u"^C^C_SETTING "},
};

} // namespace

std::span<const MenuRow> commandMenu() { return kMenu; }

int CommandMenu::count() { return static_cast<int>(std::size(kMenu)); }

HostMenuEntry CommandMenu::entry(int index) {
  if (index < 0 || index >= count()) return {};
  const MenuRow& row = kMenu[index];
  return {.isCommand = true,
          .commandName = OdString::fromUtf16(row.command),
          .label = translated(row.label),
          .shortText = translated(row.tip),
          .macro = OdString::fromUtf16(row.macro)};
}

} // namespace drafton
