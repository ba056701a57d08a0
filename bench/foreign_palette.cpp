#include "bench/foreign_palette.h"

namespace bench {
namespace {

/// As each tool has it: a colour and a layer with what they are made of, and a value for the
/// others.
constexpr char kGeneralProperties[] =
    "<GeneralProperties><Color><BasicPropInfo><PropValue unspecified=\"FALSE\"/></BasicPropInfo>"
    "<CreateInfo><AcCmColor mRGB=\"-1038049216\"/></CreateInfo></Color><Layer><BasicPropInfo>"
    "<PropValue unspecified=\"FALSE\" valueType=\"1\" value=\"Doors\"/></BasicPropInfo><CreateInfo>"
    "<LayerTableRecord isNotPlotted=\"FALSE\" lineWeight=\"-3\"><SymbolTableNameRecord>Doors"
    "</SymbolTableNameRecord><Color><BasicPropInfo><PropValue unspecified=\"FALSE\"/>"
    "</BasicPropInfo><CreateInfo><AcCmColor mRGB=\"-1023410169\"/></CreateInfo></Color>"
    "</LayerTableRecord></CreateInfo></Layer><Linetype><BasicPropInfo><PropValue "
    "unspecified=\"FALSE\" valueType=\"1\" value=\"ByLayer\"/></BasicPropInfo></Linetype>"
    "<LinetypeScale><BasicPropInfo><PropValue unspecified=\"FALSE\" valueType=\"3\" value=\"2.5\"/>"
    "</BasicPropInfo></LinetypeScale><PlotStyle><BasicPropInfo><PropValue unspecified=\"FALSE\" "
    "valueType=\"1\" value=\"ByLayer\"/></BasicPropInfo></PlotStyle><LineWeight><BasicPropInfo>"
    "<PropValue unspecified=\"FALSE\" valueType=\"2\" value=\"-1\"/></BasicPropInfo></LineWeight>"
    "<Transparency><BasicPropInfo><PropValue unspecified=\"FALSE\" valueType=\"1\" "
    "value=\"VonLayer\"/></BasicPropInfo></Transparency><Textstyle><BasicPropInfo><PropValue "
    "unspecified=\"FALSE\" valueType=\"1\" value=\"Standard\"/></BasicPropInfo></Textstyle>"
    "<Dimstyle><BasicPropInfo><PropValue unspecified=\"FALSE\" valueType=\"1\" value=\"Standard\"/>"
    "</BasicPropInfo></Dimstyle><Tablestyle><BasicPropInfo><PropValue unspecified=\"FALSE\" "
    "valueType=\"1\" value=\"Standard\"/></BasicPropInfo></Tablestyle></GeneralProperties>";

QByteArray toolText(int number, const QByteArray& tree) {
  const QByteArray name = "Tool " + QByteArray::number(number);
  return "<Tool Revision=\"25.1.1\" option=\"0\"><ItemID idValue=\"{" + name +
         "}\"/><Properties><ItemName>" + name +
         "</ItemName><Images option=\"0\"/><Time createdUniversalDateTime=\"2026-01-01T00:"
         "00:00\" modifiedUniversalDateTime=\"2026-01-01T00:00:00\"/></Properties><Source/>"
         "<ToolType>1</ToolType><StockToolRef idValue=\"{S}\"/><Data>" +
         kGeneralProperties + "<Block><BlockType>1</BlockType><BlockName>" + name +
         "</BlockName><SourceFile>D:\\lib\\door.dwg</SourceFile><InsertAs>1</InsertAs><Scale>1"
         "</Scale><Rotation>0</Rotation></Block>" +
         tree + "</Data></Tool>";
}

QByteArray treeOf(qsizetype bytes) {
  if (bytes <= 0) return {};
  QByteArray records;
  for (int i = 0; records.size() < bytes; ++i)
    records +=
        "<Xrecord handle=\"" + QByteArray::number(i) +
        "\"><Resbuf code=\"70\">12</Resbuf><Resbuf><![CDATA[text & more]]></Resbuf></Xrecord>";
  return "<DynamicProperties><ExtensionDictionary><Dictionary>" + records +
         "</Dictionary></ExtensionDictionary></DynamicProperties>";
}

} // namespace

QByteArray foreignPaletteText(const ForeignPalette& palette) {
  const QByteArray tree = treeOf(palette.treeBytes / palette.tools);
  QByteArray text =
      "<ToolPaletteExport><DependentFilesPath>p</DependentFilesPath><PaletteSets><PaletteSetData>"
      "<PaletteSetContent><Palettes><PaletteData><PaletteContent><Palette><ItemID "
      "idValue=\"{P}\"/><Properties><ItemName>P</ItemName></Properties><Tools>";
  for (int i = 0; i < palette.tools; ++i) text += toolText(i, tree);
  return text + "</Tools></Palette></PaletteContent></PaletteData></Palettes></PaletteSetContent>"
                "</PaletteSetData></PaletteSets></ToolPaletteExport>\r\n";
}

QByteArray foreignPaletteOfSize(int tools, qsizetype bytes) {
  const qsizetype plain = foreignPaletteText({tools, 0}).size();
  return foreignPaletteText({tools, bytes - plain});
}

} // namespace bench
