#!/usr/bin/env python3
"""Tools of each kind that came in from palettes of another program: they run on the command line of
`drafton batch`, and ezdxf reads of the drawings whether they do what they did.

Usage: imported_tools_test.py PROGRAMS [unittest's arguments]
"""

import json
import math
import subprocess
import sys
import unittest

import tool_bench
from tool_fields_test import write_picture, write_source

PROGRAMS = "."

TRUE, INDEX, BY_LAYER, BY_BLOCK = 0xC2000000, 0xC3000000, 0xC0000000, 0xC1000000


def signed(value):
    return value - (1 << 32) if value >= 1 << 31 else value


def given(tag, value=None, kind=1, info=""):
    """A general property as other programs write it."""
    attributes = "" if value is None else f' valueType="{kind}" value="{value}"'
    return (f'<{tag}><BasicPropInfo><PropValue unspecified="FALSE"{attributes}/></BasicPropInfo>'
            + (f"<CreateInfo>{info}</CreateInfo>" if info else "") + f"</{tag}>")


def color(value):
    return given("Color", info=f'<AcCmColor mRGB="{signed(value)}"/>')


NAME = "<SymbolTableNameRecord>{}</SymbolTableNameRecord>"
DASHED = given("Linetype", "Dash", info=(
    '<LinetypeTableRecord numberOfPatternElements="2">' + NAME.format("Dash")
    + "<TotalPatternLength>3</TotalPatternLength><LinetypeElements>"
    "<LinetypeElement><Dash>2</Dash></LinetypeElement>"
    "<LinetypeElement><Space>-1</Space></LinetypeElement></LinetypeElements>"
    "</LinetypeTableRecord>"))
WALLS = given("Layer", "Walls", info=(
    '<LayerTableRecord isNotPlotted="TRUE" lineWeight="35">' + NAME.format("Walls") + DASHED
    + color(INDEX | 3) + "</LayerTableRecord>"))
NOTES = given("Textstyle", "Notes", info=(
    '<TextstyleTableRecord isShapeFilePointer="FALSE" fontOrShapeFile="romans.shx" '
    'widthRatio="0.75">' + NAME.format("Notes")
    + "<FixedTextHeight>4</FixedTextHeight></TextstyleTableRecord>"))
SITE = given("Dimstyle", "Site", info=(
    '<DimstyleTableRecord dimscale="20" dimtxt="7" dimtad="1">' + NAME.format("Site")
    + "</DimstyleTableRecord>"))
LOOK = (color(TRUE | 0x123456) + WALLS + DASHED + given("LinetypeScale", "2.5", 3)
        + given("PlotStyle", "ByLayer") + given("LineWeight", "50", 2)
        + given("Transparency", "40", 2) + NOTES + SITE)


class ImportedTools(tool_bench.DrawingCase):
    def setUp(self):
        self.bench = tool_bench.Bench(PROGRAMS)
        self.addCleanup(self.bench.close)
        write_source(self.bench.path("source.dxf"))
        write_picture(self.bench.path("photo.png"), 40, 20)

    def write_palette(self, tools):
        """One line in the envelope; `tools` as for a catalog."""
        rows = "".join(
            f'<Tool Revision="25.1.1" option="0"><ItemID idValue="{{{tool_bench.fresh_id()}}}"/>'
            f'<Properties><ItemName>{name}</ItemName><Images option="0"/></Properties><Source/>'
            f'<ToolType>1</ToolType><StockToolRef idValue="{{S}}"/><Data><GeneralProperties>'
            f"{general}</GeneralProperties>"
            f"{self.agent(element, fields)}<Units>0</Units></Data></Tool>"
            for name, element, fields, general in tools)
        self.bench.path("p.xtp").write_text(
            "<ToolPaletteExport><DependentFilesPath>p</DependentFilesPath><PaletteSets>"
            "<PaletteSetData><PaletteSetContent><Palettes><PaletteData><PaletteContent>"
            f'<Palette Revision="25.1.1" option="0"><ItemID idValue="{{{tool_bench.fresh_id()}}}"/>'
            f"<Properties><ItemName>P</ItemName></Properties><Tools>{rows}</Tools></Palette>"
            "</PaletteContent></PaletteData></Palettes></PaletteSetContent></PaletteSetData>"
            "</PaletteSets></ToolPaletteExport>\r\n", encoding="utf-8", newline="")

    @staticmethod
    def agent(element, fields):
        if element == "Command":
            return f'<Command Macro="{fields}"/>'
        return f"<{element}>{tool_bench.elements(fields)}</{element}>"

    def tpal(self, *words):
        run = subprocess.run([str(self.bench.programs / "tpal"), *map(str, words)], text=True,
                             encoding="utf-8", capture_output=True, timeout=120)
        self.assertEqual(run.returncode, 0, run.stdout + run.stderr)
        return run.stdout

    def bring(self, *tools):
        """Imports a palette of these tools; what the report says of each."""
        self.write_palette(tools)
        report = json.loads(self.tpal("import", self.bench.path("p.xtp"), "--into",
                                      self.bench.path("c"), "--group", "G", "--json"))
        return report[0]["tools"]

    def block(self, **more):
        return {"BlockType": 1, "BlockName": "Door", "SourceFile": self.bench.stored("source.dxf"),
                "InsertAs": 1, "Scale": 1, "Rotation": 0, "PromptRotation": "FALSE",
                "Explode": "FALSE", **more}

    RECTANGLE = "RECTANG 0,0 100,80\n"

    def test_block(self):
        rows = self.bring(("T", "Block", self.block(Scale=3, Rotation=math.pi / 6), ""))
        self.assertEqual((rows[0]["fate"], rows[0]["source"]), ("taken", "found"))
        insert = self.only(self.draw("TOOL:T\n5,6\n"), "INSERT")
        self.assertEqual(insert.dxf.name, "Door")
        self.assertEqual(tuple(insert.dxf.insert), (5, 6, 0))
        self.assertEqual(insert.dxf.xscale, 3)
        self.assertAlmostEqual(insert.dxf.rotation, 30, places=3)
        self.assertEqual([line.dxf.end.x for line in insert.block().query("LINE")], [10, 0])

    def test_block_exploded(self):
        self.bring(("T", "Block", self.block(Explode="TRUE", Scale=2), ""))
        document = self.draw("TOOL:T\n5,6\n")
        self.assertEqual(sorted(tuple(line.dxf.end) for line in document.modelspace()),
                         [(5, 26, 0), (25, 6, 0)])

    def test_references(self):
        for kind, is_overlay in ((1, False), (2, True)):
            with self.subTest(kind=kind):
                self.bring((f"T{kind}", "Block", self.block(
                    BlockType=2, InsertAs=2, XrefType=kind, Scale=2, Rotation=math.pi / 2), ""))
                insert = self.only(self.draw(f"TOOL:T{kind}\n5,6\n"), "INSERT")
                block = insert.block().block
                self.assertTrue(block.dxf.flags & 4)
                self.assertEqual(bool(block.dxf.flags & 8), is_overlay)
                self.assertTrue(block.dxf.xref_path.endswith("source.dxf"))
                self.assertEqual(insert.dxf.xscale, 2)
                self.assertAlmostEqual(insert.dxf.rotation, 90, places=3)

    def hatch(self, general="", **fields):
        self.bring(("T", "Hatch", fields, general))
        return self.only(self.draw(self.RECTANGLE + "TOOL:T\n50,40\n\n"), "HATCH")

    def test_pattern(self):
        hatch = self.hatch(color(INDEX | 5), hatchObjectType=0, HatchType=1, PatternName="BRICK",
                           Angle=math.pi / 6, Scale=2.5)
        self.assertEqual(hatch.dxf.pattern_name, "BRICK")
        self.assertAlmostEqual(hatch.dxf.pattern_angle, 30, places=3)
        self.assertEqual(hatch.dxf.pattern_scale, 2.5)
        self.assertEqual(hatch.dxf.color, 5)

    def test_lines_of_the_users_own(self):
        hatch = self.hatch(hatchObjectType=0, HatchType=0, Spacing=6, Angle=math.pi / 4,
                           Double="TRUE")
        self.assertEqual(hatch.dxf.pattern_type, 0)
        self.assertEqual(len(hatch.pattern.lines), 2)
        self.assertAlmostEqual(hatch.pattern.lines[0].angle, 45, places=3)
        self.assertAlmostEqual(math.hypot(*hatch.pattern.lines[0].offset), 6)

    def test_pattern_of_a_file(self):
        self.bench.path("mine.pat").write_text("*MINE, lines\n0, 0,0, 0,9\n")
        hatch = self.hatch(hatchObjectType=0, HatchType=2, PatternName="MINE", Scale=1,
                           SourceFile=self.bench.stored("mine.pat"))
        self.assertEqual(hatch.dxf.pattern_name, "MINE")
        self.assertAlmostEqual(math.hypot(*hatch.pattern.lines[0].offset), 9)

    def gradient(self, *colors, **fields):
        stops = "".join(f"<GradientColor>{color(value)}</GradientColor>" for value in colors)
        return self.hatch(hatchObjectType=1, GradientColors=tool_bench.Xml(stops),
                          **fields).gradient

    def test_gradient(self):
        gradient = self.gradient(TRUE | 0x102030, TRUE | 0x405060, GradientName="SPHERICAL",
                                 GradientAngle=math.pi / 3, GradientCentered="TRUE")
        self.assertEqual(gradient.name, "SPHERICAL")
        self.assertAlmostEqual(gradient.rotation, 60, places=3)
        self.assertEqual(gradient.centered, 0)
        self.assertEqual(tuple(gradient.color1), (0x10, 0x20, 0x30))
        self.assertEqual(tuple(gradient.color2), (0x40, 0x50, 0x60))

    def test_gradient_of_numbered_colors(self):
        gradient = self.gradient(INDEX | 1, INDEX | 5, GradientName="LINEAR",
                                 GradientCentered="FALSE")
        self.assertEqual(gradient.centered, 1)
        self.assertEqual(tuple(gradient.color1), (255, 0, 0))
        self.assertEqual(tuple(gradient.color2), (0, 0, 255))

    def test_picture(self):
        rows = self.bring(("T", "Raster", {
            "RasterName": "Site", "SourceFile": self.bench.stored("photo.png"), "Scale": 8,
            "Rotation": math.pi / 2}, LOOK))
        self.assertEqual((rows[0]["kind"], rows[0]["source"]), ("Raster", "found"))
        document = self.draw("TOOL:T\n5,6\n")
        image = self.only(document, "IMAGE")
        self.assertTrue(image.image_def.dxf.filename.endswith("photo.png"))
        self.assertEqual([name for name, _ in document.rootdict["ACAD_IMAGE_DICT"].items()],
                         ["Site"])
        self.assertEqual(tuple(image.dxf.insert), (5, 6, 0))
        self.assertAlmostEqual(image.dxf.u_pixel.magnitude * 40, 8)
        self.assertAlmostEqual(image.dxf.u_pixel.x, 0, places=3)
        self.assertEqual(image.dxf.layer, "Walls")

    def test_macro_over_several_lines(self):
        self.bring(("T", "Command", "^C^C_LINE 0,0&#10;10,0&#10;;_CIRCLE 5,5 &#10;  2", ""))
        document = self.draw("TOOL:T\n")
        self.assertEqual([e.dxftype() for e in document.modelspace()], ["LINE", "CIRCLE"])
        self.assertEqual(self.only(document, "CIRCLE").dxf.radius, 2)

    def assert_look(self, entity, scale=1):
        document = entity.doc
        self.assertEqual(entity.dxf.layer, "Walls")
        self.assertEqual(entity.dxf.linetype.upper(), "DASH")
        self.assertEqual(entity.dxf.true_color, 0x123456)
        self.assertEqual(entity.dxf.get("ltscale", 1), scale)
        self.assertEqual(entity.dxf.lineweight, 50)
        self.assertAlmostEqual(entity.transparency, 0.4, places=2)
        layer = document.layers.get("Walls")
        self.assertEqual((layer.dxf.color, layer.dxf.plot, layer.dxf.lineweight,
                          layer.dxf.linetype.upper()), (3, 0, 35, "DASH"))
        lengths = [tag.value for tag in document.linetypes.get("Dash").pattern_tags.tags
                   if tag.code == 49]
        self.assertEqual(lengths, [2, -1])

    def test_general_properties_of_each_kind(self):
        self.bring(
            ("Macro", "Command", "_LINE 0,0 9,9 ;", LOOK), ("Block", "Block", self.block(), LOOK),
            ("Xref", "Block", self.block(BlockType=2, InsertAs=2, XrefType=1), LOOK),
            ("Hatch", "Hatch", {"hatchObjectType": 0, "HatchType": 1, "PatternName": "ANSI31",
                                "Scale": 1}, LOOK))
        # Tools that bring something have no scale of line types.
        for name, answers, kind, scale in (
                ("Macro", "", "LINE", 2.5), ("Block", "5,6\n", "INSERT", 1),
                ("Xref", "5,6\n", "INSERT", 1), ("Hatch", "50,40\n\n", "HATCH", 1)):
            with self.subTest(name):
                self.assert_look(self.only(
                    self.draw(f"{self.RECTANGLE}TOOL:{name}\n{answers}"), kind), scale)

    def test_styles_of_texts_and_dimensions(self):
        self.bring(("Text", "Command", "_TEXT 0,0;;Hello;", LOOK),
                   ("Size", "Command", "_DIMLINEAR 0,0 10,0 5,5", LOOK))
        document = self.draw("TOOL:Text\n")
        text = self.only(document, "TEXT")
        self.assertEqual((text.dxf.style, text.dxf.height), ("Notes", 4))
        style = document.styles.get("Notes")
        self.assertEqual((style.dxf.font, style.dxf.width), ("romans.shx", 0.75))
        document = self.draw("TOOL:Size\n")
        self.assertEqual(self.only(document, "DIMENSION").dxf.dimstyle, "Site")
        style = document.dimstyles.get("Site")
        self.assertEqual((style.dxf.dimscale, style.dxf.dimtxt, style.dxf.dimtad), (20, 7, 1))

    def test_colors_of_each_method(self):
        for value, attributes in ((TRUE | 0xABCDEF, {"true_color": 0xABCDEF}),
                                  (INDEX | 6, {"color": 6}), (BY_BLOCK, {"color": 0}),
                                  (BY_LAYER, {"color": 256})):
            with self.subTest(hex(value)):
                name = f"C{value:X}"
                self.bring((name, "Command", "_POINT 1,1", color(value)))
                point = self.only(self.draw(f"COLOR 2\nTOOL:{name}\n"), "POINT")
                for attribute, wanted in attributes.items():
                    self.assertEqual(point.dxf.get(attribute, 256), wanted)

    def test_line_weights_by_number(self):
        for value in (-1, -2, -3, 25):
            with self.subTest(value):
                name = f"W{value}"
                self.bring((name, "Command", "_POINT 1,1", given("LineWeight", value, 2)))
                point = self.only(self.draw(f"TOOL:{name}\n"), "POINT")
                self.assertEqual(point.dxf.get("lineweight", -1), value)

    def test_once_more_after_an_export(self):
        self.bring(("Block", "Block", self.block(Scale=3), LOOK),
                   ("Picture", "Raster", {"RasterName": "Site", "Scale": 8,
                                          "SourceFile": self.bench.stored("photo.png")}, ""))
        self.tpal("export", self.bench.path("c"), "p", self.bench.path("back.xtp"))
        self.tpal("import", self.bench.path("back.xtp"), "--into", self.bench.path("d"),
                  "--group", "G")
        self.bench.path("c").rename(self.bench.path("former"))
        self.bench.path("d").rename(self.bench.path("c"))
        document = self.draw("TOOL:Block\n5,6\nTOOL:Picture\n1,2\n")
        insert = self.only(document, "INSERT")
        self.assertEqual((insert.dxf.name, insert.dxf.xscale), ("Door", 3))
        self.assert_look(insert)
        self.assertAlmostEqual(self.only(document, "IMAGE").dxf.u_pixel.magnitude * 40, 8)

    def test_imported_and_run_in_one_script(self):
        self.write_palette([("T", "Block", self.block(Scale=2), color(INDEX | 4))])
        self.bench.write_catalog([])
        document = self.draw(f"ToolPalettesImport\n{self.bench.path('p.xtp')}\n\nG\nTOOL:T\n5,6\n")
        insert = self.only(document, "INSERT")
        self.assertEqual((insert.dxf.name, insert.dxf.xscale, insert.dxf.color), ("Door", 2, 4))


if __name__ == "__main__":
    PROGRAMS = sys.argv.pop(1) if len(sys.argv) > 1 else "."
    unittest.main()
