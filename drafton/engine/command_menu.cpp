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
    {u"ROTATE", u"Rotate", u"&Rotate objects", u"^C^C_ROTATE "},
    {u"SCALE", u"Scale", u"Make objects larger or &smaller", u"^C^C_SCALE "},
    {u"MIRROR", u"Mirror", u"M&irror objects", u"^C^C_MIRROR "},
    {u"STRETCH", u"Stretch", u"Stretch ob&jects by a part of them", u"^C^C_STRETCH "},
    {u"ARRAY", u"Array", u"Copy objects in rows or around a ce&nter", u"^C^C_ARRAY "},
    {u"OFFSET", u"Offset", u"Draw parallels to &objects", u"^C^C_OFFSET "},
    {u"TRIM", u"Trim", u"&Trim objects at others", u"^C^C_TRIM "},
    {u"EXTEND", u"Extend", u"Exten&d objects to others", u"^C^C_EXTEND "},
    {u"FILLET", u"Fillet", u"Round &corners", u"^C^C_FILLET "},
    {u"CHAMFER", u"Chamfer", u"Cut corn&ers off", u"^C^C_CHAMFER "},
    {u"BREAK", u"Break", u"&Break a piece out of an object, or part it", u"^C^C_BREAK "},
    {u"JOIN", u"Join", u"&Join objects into one", u"^C^C_JOIN "},
    {u"EXPLODE", u"Explode", u"Break objects into their &pieces", u"^C^C_EXPLODE "},
    {u"TEXTEDIT", u"Edit Text", u"Edit te&xts", u"^C^C_TEXTEDIT "},
    {u"CHPROP", u"Properties", u"Change the properties of ob&jects", u"^C^C_CHPROP "},
    {u"MATCHPROP", u"Match Properties", u"&Give the properties of one object to others",
     u"^C^C_MATCHPROP "},
    {u"SELECT", u"Select", u"Se&lect objects", u"^C^C_SELECT "},
    {u"QSELECT", u"Quick Select", u"Select objects by their &kind", u"^C^C_QSELECT "},
    {u"ADDSELECTED", u"Add Selected", u"Draw another object like a selected o&ne",
     u"^C^C_ADDSELECTED "},
    {u"LINE", u"Line", u"Draw straight &lines", u"^C^C_LINE "},
    {u"PLINE", u"Polyline", u"Draw a &polyline", u"^C^C_PLINE "},
    {u"CIRCLE", u"Circle", u"Draw a &circle", u"^C^C_CIRCLE "},
    {u"ARC", u"Arc", u"Draw an &arc", u"^C^C_ARC "},
    {u"RECTANG", u"Rectangle", u"Draw a &rectangle", u"^C^C_RECTANG "},
    {u"POLYGON", u"Polygon", u"Draw a polygon with e&qual sides", u"^C^C_POLYGON "},
    {u"ELLIPSE", u"Ellipse", u"Draw an &ellipse", u"^C^C_ELLIPSE "},
    {u"SPLINE", u"Spline", u"Draw a &smooth curve", u"^C^C_SPLINE "},
    {u"DONUT", u"Donut", u"Draw filled rin&gs", u"^C^C_DONUT "},
    {u"POINT", u"Point", u"Draw p&oints", u"^C^C_POINT "},
    {u"BHATCH", u"Hatch", u"Fill areas with a pattern, a color or a gra&dient", u"^C^C_BHATCH "},
    {u"BOUNDARY", u"Boundary", u"Draw the &boundary of an area", u"^C^C_BOUNDARY "},
    {u"TEXT", u"Text", u"Write a line of &text", u"^C^C_TEXT "},
    {u"MTEXT", u"Multiline Text", u"Write several lines of te&xt", u"^C^C_MTEXT "},
    {u"LEADER", u"Leader", u"Draw a leader with a &note", u"^C^C_LEADER "},
    {u"DIMLINEAR", u"Linear Dimension", u"Dimension a distance that is level or &upright",
     u"^C^C_DIMLINEAR "},
    {u"DIMALIGNED", u"Aligned Dimension", u"Dimension the distance of t&wo points",
     u"^C^C_DIMALIGNED "},
    {u"DIMCONTINUE", u"Continue Dimension", u"Dimension &on from where the last dimension ends",
     u"^C^C_DIMCONTINUE "},
    {u"DIMBASELINE", u"Baseline Dimension", u"Dimension from where the last dimension begin&s",
     u"^C^C_DIMBASELINE "},
    {u"DIMANGULAR", u"Angular Dimension", u"Dimension an an&gle", u"^C^C_DIMANGULAR "},
    {u"DIMRADIUS", u"Radius Dimension", u"Dimension a rad&ius", u"^C^C_DIMRADIUS "},
    {u"DIMDIAMETER", u"Diameter Dimension", u"Dimension a dia&meter", u"^C^C_DIMDIAMETER "},
    {u"INSERT", u"Insert", u"&Insert a block", u"^C^C_INSERT "},
    {u"BLOCK", u"Block", u"Make a &block of objects", u"^C^C_BLOCK "},
    {u"WBLOCK", u"Write Block", u"&Write a block to a file", u"^C^C_WBLOCK "},
    {u"COPYCLIP", u"Copy to Clipboard", u"Put objects on the clip&board", u"^C^C_COPYCLIP "},
    {u"CUTCLIP", u"Cut", u"Move obj&ects to the clipboard", u"^C^C_CUTCLIP "},
    {u"PASTECLIP", u"Paste", u"Put down objects of the clip&board", u"^C^C_PASTECLIP "},
    {u"ATTDEF", u"Attribute", u"Define an &attribute of a block", u"^C^C_ATTDEF "},
    {u"XATTACH", u"Attach Reference", u"Attach a drawing as a refe&rence", u"^C^C_XATTACH "},
    {u"XREF", u"References", u"&Manage attached drawings", u"^C^C_XREF "},
    {u"INSERTRASTER", u"Picture", u"Insert a &picture", u"^C^C_INSERTRASTER "},
    {u"LAYOUT", u"Layouts", u"Make and choose layou&ts", u"^C^C_LAYOUT "},
    {u"MODEL", u"Model", u"Go back to the mo&del", u"^C^C_MODEL "},
    {u"MVIEW", u"Layout View", u"Put a &view of the model on the layout", u"^C^C_MVIEW "},
    {u"VPLAYER", u"Layers of Views", u"Freeze layers in single views of a layo&ut",
     u"^C^C_VPLAYER "},
    {u"PAGESETUP", u"Page Setup", u"Set paper and plot &scale of a layout", u"^C^C_PAGESETUP "},
    {u"LAYER", u"Layers", u"Make and change la&yers", u"^C^C_LAYER "},
    {u"COLOR", u"Color", u"Set the &color of new objects", u"^C^C_COLOR "},
    {u"LWEIGHT", u"Line Weight", u"Set the line &weight of new objects", u"^C^C_LWEIGHT "},
    {u"LINETYPE", u"Line Types", u"Load line types and set t&hat of new objects",
     u"^C^C_LINETYPE "},
    {u"STYLE", u"Text Styles", u"Make and change text st&yles", u"^C^C_STYLE "},
    {u"DIMSTYLE", u"Dimension Styles", u"Make and change &dimension styles", u"^C^C_DIMSTYLE "},
    {u"ZOOM", u"Zoom", u"&Zoom the view", u"^C^C_ZOOM "},
    {u"DIST", u"Distance", u"Measure the distance of t&wo points", u"^C^C_DIST "},
    {u"AREA", u"Area", u"Measure an a&rea and its perimeter", u"^C^C_AREA "},
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
