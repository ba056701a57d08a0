#!/usr/bin/env python3
"""Each field of block, hatch and raster tools: tools of a catalog on disk run on the command line of
`drafton batch`, and ezdxf reads the drawings that they leave.

Usage: tool_fields_test.py PROGRAMS [unittest's arguments]
"""

import math
import pathlib
import shutil
import struct
import sys
import unittest
import zlib

import ezdxf

import tool_bench

PROGRAMS = "."
PICTURES = pathlib.Path(__file__).parent.parent / "data" / "pictures"


def write_source(path, units=4):
    """A drawing with the blocks Door, Tag (with an attribute) and something in its model space."""
    document = ezdxf.new("R2010")
    document.header["$INSUNITS"] = units
    door = document.blocks.new("Door")
    door.add_line((0, 0), (10, 0))
    door.add_line((0, 0), (0, 10))
    tag = document.blocks.new("Tag")
    tag.add_circle((0, 0), 5)
    tag.add_attdef("MARK", (0, 0), text="7", dxfattribs={"prompt": "Mark", "height": 2})
    document.modelspace().add_line((0, 0), (100, 0))
    document.saveas(path)


def write_layout_host(path):
    """A drawing whose layout Layout1 is plotted at 1:4."""
    host = ezdxf.new("R2010")
    host.header["$INSUNITS"] = 4
    layout = host.layout("Layout1").dxf_layout
    layout.dxf.plot_layout_flags |= 16  # a standard scale
    layout.dxf.standard_scale_type = 18  # 1:4
    layout.dxf.scale_numerator = 1
    layout.dxf.scale_denominator = 4
    host.header["$TILEMODE"] = 0
    host.saveas(path)


def write_picture(path, width, height):
    """A PNG file of one colour."""
    def chunk(kind, data):
        return (struct.pack(">I", len(data)) + kind + data +
                struct.pack(">I", zlib.crc32(kind + data)))
    rows = b"".join(b"\0" + b"\x20\x80\x40" * width for _ in range(height))
    path.write_bytes(b"\x89PNG\r\n\x1a\n" +
                     chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)) +
                     chunk(b"IDAT", zlib.compress(rows)) + chunk(b"IEND", b""))


class Tools(tool_bench.DrawingCase):
    def setUp(self):
        self.bench = tool_bench.Bench(PROGRAMS)
        self.addCleanup(self.bench.close)

    def run_tool(self, agent, fields, answers, before="", drawing=None):
        """The drawing after one run of a tool with these fields."""
        self.bench.write_catalog([("T", agent, fields, "")])
        return self.draw(f"{before}TOOL:T\n{answers}", drawing)


class BlockTools(Tools):
    def setUp(self):
        super().setUp()
        write_source(self.bench.path("source.dxf"))

    def fields(self, **more):
        return {"BlockType": 1, "BlockName": "Door",
                "SourceFile": self.bench.stored("source.dxf"), "Scale": 1, **more}

    def insert(self, answers="5,6\n", before="", **more):
        return self.only(self.run_tool("Block", self.fields(**more), answers, before), "INSERT")

    def test_name(self):
        insert = self.insert()
        self.assertEqual(insert.dxf.name, "Door")
        self.assertEqual(tuple(insert.dxf.insert), (5, 6, 0))
        self.assertEqual(len(insert.block()), 2)

    def test_scale(self):
        insert = self.insert(Scale=3)
        self.assertEqual((insert.dxf.xscale, insert.dxf.yscale, insert.dxf.zscale), (3, 3, 3))

    def test_scale_loses_its_fraction_when_the_file_is_read(self):
        self.assertEqual(self.insert(Scale=2.5).dxf.xscale, 2)

    def test_auxiliary_scale_of_dimensions(self):
        insert = self.insert(Scale=2, AuxiliaryScale="DIMSCALE", before="SETVAR DIMSCALE 50\n")
        self.assertEqual(insert.dxf.xscale, 100)

    def test_auxiliary_scale_of_the_plot_in_the_model_is_that_of_its_layout(self):
        self.assertEqual(self.insert(Scale=2, AuxiliaryScale="PLOTSCALE").dxf.xscale, 2)

    def test_auxiliary_scale_of_the_plot_in_a_layout(self):
        write_layout_host(self.bench.path("host.dxf"))
        document = self.run_tool("Block", self.fields(Scale=8, AuxiliaryScale="PLOTSCALE"),
                                 "5,6\n", "LAYOUT Set Layout1\n", "host.dxf")
        inserts = document.layout("Layout1").query("INSERT")
        self.assertEqual(len(inserts), 1)
        self.assertEqual(inserts[0].dxf.xscale, 2)

    def test_no_auxiliary_scale(self):
        insert = self.insert(Scale=2, AuxiliaryScale="NONE", before="SETVAR DIMSCALE 50\n")
        self.assertEqual(insert.dxf.xscale, 2)

    def test_rotation(self):
        self.assertAlmostEqual(self.insert(Rotation=math.pi / 6).dxf.rotation, 30)

    def test_rotation_that_is_asked_for(self):
        insert = self.insert("5,6\n45\n", Rotation=math.pi / 6, PromptRotation="TRUE")
        self.assertAlmostEqual(insert.dxf.rotation, 45)

    def test_attributes_that_are_asked_for(self):
        insert = self.insert("5,6\n12\n", BlockName="Tag", PromptAttributes="TRUE")
        self.assertEqual([(a.dxf.tag, a.dxf.text) for a in insert.attribs], [("MARK", "12")])

    def test_attributes_that_are_not_asked_for(self):
        insert = self.insert("5,6\n", BlockName="Tag", PromptAttributes="FALSE")
        self.assertEqual([(a.dxf.tag, a.dxf.text) for a in insert.attribs], [("MARK", "7")])

    def test_exploded(self):
        document = self.run_tool("Block", self.fields(Explode="TRUE", Scale=2), "5,6\n")
        self.assertEqual(len(document.modelspace().query("INSERT")), 0)
        ends = sorted(tuple(line.dxf.end) for line in document.modelspace().query("LINE"))
        self.assertEqual(ends, [(5, 26, 0), (25, 6, 0)])

    def test_block_that_is_there_already(self):
        host = ezdxf.new("R2010")
        host.header["$INSUNITS"] = 4
        host.blocks.new("Door").add_circle((0, 0), 3)
        host.saveas(self.bench.path("host.dxf"))
        document = self.run_tool("Block", self.fields(), "5,6\n", drawing="host.dxf")
        block = self.only(document, "INSERT").block()
        self.assertEqual([entity.dxftype() for entity in block], ["CIRCLE"])

    def test_block_that_is_there_needs_its_source_file_all_the_same(self):
        host = ezdxf.new("R2010")
        host.blocks.new("Door").add_circle((0, 0), 3)
        host.saveas(self.bench.path("host.dxf"))
        document = self.run_tool("Block", self.fields(SourceFile="C:\\no\\such.dxf"), "",
                                 drawing="host.dxf")
        self.assertEqual(len(document.modelspace()), 0)
        self.assertIn('Could not find the original file "C:\\no\\such.dxf" for block "Door"',
                      self.output)

    def test_block_that_the_source_lacks(self):
        document = self.run_tool("Block", self.fields(BlockName="Window"), "")
        self.assertEqual(len(document.modelspace()), 0)
        self.assertNotIn("Window", document.blocks)
        self.assertIn('Definition of block "Window" is not found in the source file', self.output)

    def test_units_of_the_source(self):
        write_source(self.bench.path("source.dxf"), units=6)  # metres into millimetres
        insert = self.insert()
        self.assertEqual(insert.dxf.xscale, 1000)
        self.assertEqual(insert.block().block_record.dxf.units, 6)

    def test_whole_drawing(self):
        document = self.run_tool(
            "Block", self.fields(BlockType=2, BlockName="Plan", InsertAs=1), "5,6\n")
        insert = self.only(document, "INSERT")
        self.assertEqual(insert.dxf.name, "Plan")
        self.assertEqual([tuple(line.dxf.end) for line in insert.block().query("LINE")],
                         [(100, 0, 0)])

    def reference(self, xref_type):
        return self.run_tool(
            "Block", self.fields(BlockType=2, InsertAs=2, XrefType=xref_type, Scale=2,
                                 Rotation=math.pi / 2), "5,6\n")

    def test_reference_attached(self):
        document = self.reference(1)
        insert = self.only(document, "INSERT")
        block = insert.block().block
        self.assertTrue(block.dxf.flags & 4)
        self.assertFalse(block.dxf.flags & 8)
        self.assertTrue(block.dxf.xref_path.endswith("source.dxf"))
        self.assertEqual(insert.dxf.xscale, 2)
        self.assertAlmostEqual(insert.dxf.rotation, 90)

    def test_whole_drawing_has_the_units_of_the_source(self):
        write_source(self.bench.path("source.dxf"), units=6)  # metres into millimetres
        insert = self.insert(BlockType=2, BlockName="Plan", InsertAs=1)
        self.assertEqual(insert.dxf.xscale, 1000)
        self.assertEqual(insert.block().block_record.dxf.units, 6)

    def test_reference_whose_rotation_is_asked_for(self):
        document = self.run_tool(
            "Block", self.fields(BlockType=2, InsertAs=2, XrefType=1, PromptRotation="TRUE"),
            "5,6\n30\n")
        self.assertAlmostEqual(self.only(document, "INSERT").dxf.rotation, 30)

    def test_reference_overlaid(self):
        self.assertTrue(self.only(self.reference(2), "INSERT").block().block.dxf.flags & 8)

    def nested(self, fields, before="", drawing=None):
        """A run in a drawing that lies elsewhere than the source, which refers to files of its own
        folder: a part as a reference, and a picture."""
        folder = self.bench.path("lib") / "parts"
        folder.mkdir(parents=True, exist_ok=True)
        part = ezdxf.new("R2010")
        part.modelspace().add_circle((0, 0), 3)
        part.saveas(folder / "bolt.dxf")
        write_picture(folder / "photo.png", 4, 4)
        source = ezdxf.new("R2010")
        source.header["$INSUNITS"] = 4
        source.add_xref_def("parts\\bolt.dxf", "bolt")
        picture = source.add_image_def("parts\\photo.png", (4, 4))
        source.modelspace().add_blockref("bolt", (7, 8))
        source.modelspace().add_image(picture, (0, 0), (4, 4))
        door = source.blocks.new("Door")
        door.add_blockref("bolt", (1, 1))
        door.add_image(picture, (0, 0), (4, 4))
        source.saveas(self.bench.path("lib") / "plan.dxf")
        return self.run_tool(
            "Block", {"SourceFile": self.bench.stored("lib/plan.dxf"), "Scale": 1, **fields},
            "5,6\n", before, drawing)

    def assert_refers_to_the_library(self, document):
        self.assertEqual(document.blocks.get("bolt").block.dxf.xref_path.replace("\\", "/"),
                         str(self.bench.path("lib") / "parts" / "bolt.dxf"))
        picture, = document.query("IMAGE") or [
            image for block in document.blocks for image in block.query("IMAGE")]
        self.assertEqual(picture.image_def.dxf.filename.replace("\\", "/"),
                         str(self.bench.path("lib") / "parts" / "photo.png"))

    def test_whole_drawing_brings_the_paths_of_its_files(self):
        document = self.nested({"BlockType": 2, "BlockName": "Plan", "InsertAs": 1})
        self.assert_refers_to_the_library(document)
        self.assertEqual(len(document.blocks.get("bolt")), 0, "a reference is saved without contents")

    def test_block_brings_the_paths_of_its_files(self):
        self.assert_refers_to_the_library(self.nested({"BlockType": 1, "BlockName": "Door"}))

    def dark_pixels(self, bolt, **kind):
        """How much is seen of a whole drawing in which nothing is but a reference to a bolt."""
        folder = self.bench.path("lib")
        folder.mkdir(exist_ok=True)
        if bolt:
            part = ezdxf.new("R2010")
            part.header["$INSUNITS"] = 4
            part.modelspace().add_circle((0, 0), 3)
            part.saveas(folder / "bolt.dxf")
        source = ezdxf.new("R2010")
        source.header["$INSUNITS"] = 4
        source.add_xref_def("bolt.dxf", "bolt", **kind)
        source.modelspace().add_blockref("bolt", (7, 8))
        source.saveas(folder / "plan.dxf")
        self.bench.write_catalog([("T", "Block", {
            "BlockType": 2, "BlockName": "Plan", "InsertAs": 1, "Scale": 1,
            "SourceFile": self.bench.stored("lib/plan.dxf")}, "")])
        run = self.bench.run("TOOL:T\n0,0\n", more=["--png", self.bench.path("o.png"), "--size",
                                                   "100x100", "--window", "0,0,20,20"])
        self.assertEqual(run.returncode, 0, run.stdout + run.stderr)
        self.output = run.stdout + run.stderr
        return sum(1 for pixel in tool_bench.grey_pixels(self.bench.path("o.png")) if pixel < 128)

    def test_whole_drawing_loads_its_references(self):
        for kind in ({}, {"flags": 4 | 8}):  # attached, laid over
            with self.subTest(**kind):
                self.assertGreater(self.dark_pixels(True, **kind), 60)
                self.assertNotIn("stays empty", self.output)

    def test_whole_drawing_tells_of_a_reference_whose_file_is_missing(self):
        self.assertEqual(self.dark_pixels(False), 0)
        self.assertIn('The reference "bolt" of "' + self.bench.stored("lib/plan.dxf") +
                      '" stays empty: The file "', self.output)
        self.assertIn('bolt.dxf" cannot be found', self.output)

    def test_paths_stay_relative_in_a_drawing_of_the_same_folder(self):
        host = ezdxf.new("R2010")
        host.header["$INSUNITS"] = 4
        self.bench.path("lib").mkdir()
        host.saveas(self.bench.path("lib") / "host.dxf")
        document = self.nested({"BlockType": 2, "BlockName": "Plan", "InsertAs": 1},
                               drawing="lib/host.dxf")
        self.assertEqual(document.blocks.get("bolt").block.dxf.xref_path.replace("/", "\\"),
                         "parts\\bolt.dxf")

    def test_whole_drawing_without_a_name(self):
        fields = self.fields(BlockType=2, InsertAs=1)
        del fields["BlockName"]
        document = self.run_tool("Block", fields, "")
        self.assertEqual(len(document.modelspace()), 0)
        self.assertIn('cannot be inserted: the tool names no block', self.output)

    def test_whole_drawing_with_a_name_that_no_block_can_have(self):
        document = self.run_tool("Block", self.fields(BlockType=2, BlockName="a|b/c*", InsertAs=1), "")
        self.assertEqual(len(document.modelspace()), 0)
        self.assertIn('Block "a|b/c*" of the source file "' + self.bench.stored("source.dxf") +
                      '" cannot be inserted: a block\'s name cannot have any of', self.output)

    def test_insert_as_reference_needs_a_whole_drawing(self):
        insert = self.insert(InsertAs=2)
        self.assertFalse(insert.block().block.dxf.flags & 4)


class HatchTools(Tools):
    RECTANGLE = "RECTANG 0,0 100,80\n"

    def hatch(self, before="", answers="50,40\n\n", **fields):
        fields = {"hatchObjectType": 0, "HatchType": 1, "PatternName": "ANSI31", "Scale": 1,
                  **fields}
        return self.only(self.run_tool("Hatch", fields, answers, self.RECTANGLE + before), "HATCH")

    def test_pattern(self):
        hatch = self.hatch(PatternName="BRICK")
        self.assertEqual(hatch.dxf.pattern_name, "BRICK")
        self.assertEqual(hatch.dxf.pattern_type, 1)
        self.assertFalse(hatch.dxf.solid_fill)

    def test_angle(self):
        self.assertAlmostEqual(self.hatch(Angle=math.pi / 6).dxf.pattern_angle, 30)

    def test_scale(self):
        self.assertEqual(self.hatch(Scale=2.5).dxf.pattern_scale, 2.5)

    def test_auxiliary_scale_of_dimensions(self):
        hatch = self.hatch("SETVAR DIMSCALE 4\n", Scale=2.5, AuxiliaryScale="Dimscale")
        self.assertEqual(hatch.dxf.pattern_scale, 10)

    def test_auxiliary_scale_of_the_plot_takes_the_place_of_the_scale(self):
        hatch = self.hatch(Scale=7, AuxiliaryScale="Plot scale")
        self.assertEqual(hatch.dxf.pattern_scale, 1)

    def test_auxiliary_scale_of_the_plot_in_a_layout(self):
        write_layout_host(self.bench.path("host.dxf"))
        document = self.run_tool(
            "Hatch", {"hatchObjectType": 0, "HatchType": 1, "PatternName": "ANSI31", "Scale": 7,
                      "AuxiliaryScale": "Plot scale"},
            "50,40\n\n", "LAYOUT Set Layout1\n" + self.RECTANGLE, "host.dxf")
        hatches = document.layout("Layout1").query("HATCH")
        self.assertEqual(len(hatches), 1)
        self.assertEqual(hatches[0].dxf.pattern_scale, 0.25)

    def test_relative_custom_file_is_beside_the_palette(self):
        (self.bench.path("c") / "patterns").mkdir(parents=True)
        (self.bench.path("c") / "patterns" / "mine.pat").write_text("*MINE, lines\n0, 0,0, 0,9\n")
        hatch = self.hatch(HatchType=2, PatternName="MINE", SourceFile="..\\patterns\\mine.pat")
        self.assertEqual(hatch.dxf.pattern_name, "MINE")
        self.assertAlmostEqual(math.hypot(*hatch.pattern.lines[0].offset), 9)

    COLOR = ('<Color><BasicPropInfo><PropValue unspecified="{}"/></BasicPropInfo><ColorCreateInfo>'
             '<AcCmColor mRGB="3271557121"/></ColorCreateInfo></Color>')  # index 1

    def colored(self, unspecified):
        self.bench.write_catalog([("T", "Hatch", {
            "hatchObjectType": 0, "HatchType": 1, "PatternName": "ANSI31", "Scale": 1},
            self.COLOR.format(unspecified))])
        run = self.bench.run("SETVAR HPCOLOR 3\nSETVAR CECOLOR 5\n" + self.RECTANGLE +
                             "TOOL:T\n50,40\n\n")
        self.output = run.stdout + run.stderr
        self.assertEqual(run.returncode, 0, self.output)
        return self.only(self.bench.read(), "HATCH").dxf.color

    def test_general_color(self):
        self.assertEqual(self.colored("FALSE"), 1)

    def test_current_color_where_the_tool_has_none(self):
        self.assertEqual(self.colored("TRUE"), 5)

    def test_user_defined(self):
        hatch = self.hatch(HatchType=0, Spacing=6, Angle=math.pi / 4)
        self.assertEqual(hatch.dxf.pattern_type, 0)
        self.assertEqual(len(hatch.pattern.lines), 1)
        line = hatch.pattern.lines[0]
        self.assertAlmostEqual(line.angle, 45)
        self.assertAlmostEqual(math.hypot(*line.offset), 6)

    def test_user_defined_crosswise(self):
        hatch = self.hatch(HatchType=0, Spacing=6, Double="TRUE")
        self.assertEqual(len(hatch.pattern.lines), 2)
        self.assertTrue(hatch.dxf.pattern_double)

    def test_custom_file(self):
        self.bench.path("mine.pat").write_text("*MINE, lines\n0, 0,0, 0,9\n")
        hatch = self.hatch(HatchType=2, PatternName="MINE",
                           SourceFile=self.bench.stored("mine.pat"))
        self.assertEqual(hatch.dxf.pattern_name, "MINE")
        self.assertEqual(hatch.dxf.pattern_type, 2)
        self.assertAlmostEqual(math.hypot(*hatch.pattern.lines[0].offset), 9)

    def test_solid(self):
        hatch = self.hatch(PatternName="SOLID")
        self.assertTrue(hatch.dxf.solid_fill)

    def test_tool_that_is_neither_hatch_nor_gradient(self):
        document = self.run_tool("Hatch", {"hatchObjectType": 2}, "", self.RECTANGLE)
        self.assertEqual(len(document.modelspace()), 1)

    def gradient(self, name="LINEAR", **fields):
        return self.hatch(hatchObjectType=1, GradientName=name, **fields).gradient

    COLORS = tool_bench.Xml("".join(
        '<GradientColor><Color><BasicPropInfo><PropValue unspecified="FALSE"/></BasicPropInfo>'
        f'<ColorCreateInfo><AcCmColor mRGB="{0xC2000000 | rgb}"/></ColorCreateInfo></Color>'
        "</GradientColor>" for rgb in (0x102030, 0x405060)))

    def test_gradients(self):
        for name in ("LINEAR", "CYLINDER", "INVCYLINDER", "SPHERICAL", "INVSPHERICAL",
                     "HEMISPHERICAL", "INVHEMISPHERICAL", "CURVED", "INVCURVED"):
            for centered in ("TRUE", "FALSE"):
                with self.subTest(name=name, centered=centered):
                    gradient = self.gradient(name, GradientAngle=math.pi / 3,
                                             GradientCentered=centered, GradientColors=self.COLORS)
                    self.assertEqual(gradient.name, name)
                    self.assertEqual(gradient.kind, 1)
                    self.assertAlmostEqual(gradient.rotation, 60)
                    self.assertEqual(gradient.centered, 0 if centered == "TRUE" else 1)
                    self.assertEqual(tuple(gradient.color1), (0x10, 0x20, 0x30))
                    self.assertEqual(tuple(gradient.color2), (0x40, 0x50, 0x60))

    def test_gradient_angle(self):
        self.assertAlmostEqual(self.gradient(GradientAngle=math.pi / 3).rotation, 60)

    def test_gradient_shift(self):
        self.assertEqual(self.gradient(GradientCentered="TRUE").centered, 0)
        self.assertEqual(self.gradient(GradientCentered="FALSE").centered, 1)

    def test_gradient_colors(self):
        gradient = self.gradient(GradientColors=self.COLORS)
        self.assertEqual(tuple(gradient.color1), (0x10, 0x20, 0x30))
        self.assertEqual(tuple(gradient.color2), (0x40, 0x50, 0x60))


class RasterTools(Tools):
    def setUp(self):
        super().setUp()
        write_picture(self.bench.path("photo.png"), 40, 20)

    def image(self, answers="5,6\n", drawing=None, **fields):
        fields = {"RasterName": "Photo", "SourceFile": self.bench.stored("photo.png"), "Scale": 1,
                  **fields}
        document = self.run_tool("Raster", fields, answers, drawing=drawing)
        return document, self.only(document, "IMAGE")

    def test_absolute_source(self):
        document, image = self.image()
        self.assertTrue(image.image_def.dxf.filename.endswith("photo.png"))
        self.assertEqual(tuple(image.dxf.insert), (5, 6, 0))
        self.assertEqual(tuple(image.image_def.dxf.image_size)[:2], (40, 20))

    def test_relative_source_is_beside_the_drawing(self):
        ezdxf.new("R2010").saveas(self.bench.path("host.dxf"))
        _, image = self.image(SourceFile="photo.png", drawing="host.dxf")
        self.assertTrue(image.image_def.dxf.filename.endswith("photo.png"))

    def test_name(self):
        document, image = self.image(RasterName="Site")
        names = [name for name, _ in document.rootdict["ACAD_IMAGE_DICT"].items()]
        self.assertEqual(names, ["Site"])

    def test_scale_is_the_width(self):
        _, image = self.image(Scale=8)
        self.assertAlmostEqual(image.dxf.u_pixel.magnitude * 40, 8)
        self.assertAlmostEqual(image.dxf.v_pixel.magnitude * 20, 4)

    def test_rotation(self):
        _, image = self.image(Rotation=math.pi / 2)
        self.assertAlmostEqual(image.dxf.u_pixel.x, 0)
        self.assertGreater(image.dxf.u_pixel.y, 0)

    def test_picture_that_its_camera_held_upright(self):
        """Its pixels are counted and shown as they lie in the file: red at the left, blue at the
        right."""
        shutil.copy(PICTURES / "turned.jpg", self.bench.path("turned.jpg"))
        _, image = self.image("0,0\n", SourceFile=self.bench.stored("turned.jpg"), Scale=16)
        self.assertEqual(tuple(image.image_def.dxf.image_size)[:2], (16, 8))
        self.assertAlmostEqual(image.dxf.v_pixel.magnitude * 8, 8)
        run = self.bench.run("", drawing="out.dxf", out="again.dxf", more=[
            "--png", self.bench.path("o.png"), "--size", "160x80", "--window", "0,0,16,8"])
        self.assertEqual(run.returncode, 0, run.stdout + run.stderr)
        pixels = tool_bench.pixels(self.bench.path("o.png"))
        for y in (20, 60):
            red, _, blue = pixels[y][40]
            self.assertGreater(red, 150)
            self.assertLess(blue, 100)
            red, _, blue = pixels[y][120]
            self.assertLess(red, 100)
            self.assertGreater(blue, 150)

    def test_pictures_of_all_kinds(self):
        """The size is that of the file's own pixels, whatever it is called."""
        for name, source, size in (("one.png", None, (1, 1)), ("cmyk.jpg", "cmyk.jpg", (8, 8)),
                                   ("grey16.png", "grey16.png", (8, 8)),
                                   ("moving.gif", "animated.gif", (8, 8)),
                                   ("lying.jpg", "animated.gif", (8, 8))):
            with self.subTest(name):
                if source:
                    shutil.copy(PICTURES / source, self.bench.path(name))
                else:
                    write_picture(self.bench.path(name), *size)
                _, image = self.image(SourceFile=self.bench.stored(name), Scale=3)
                self.assertEqual(tuple(image.image_def.dxf.image_size)[:2], size)
                self.assertAlmostEqual(image.dxf.u_pixel.magnitude * size[0], 3)

    def test_scale_of_zero_is_handed_on_and_refused_by_the_host(self):
        self.bench.write_catalog([("T", "Raster", {
            "RasterName": "P", "Scale": 0, "SourceFile": self.bench.stored("photo.png")}, "")])
        run = self.bench.run("TOOL:T\n")
        self.assertEqual(run.returncode, 1)
        self.assertIn("A picture cannot be inserted at the scale 0", run.stdout)

    def test_missing_source(self):
        document = self.run_tool("Raster", {"RasterName": "P", "SourceFile": "C:\\no.png"}, "")
        self.assertEqual(len(document.modelspace()), 0)
        self.assertIn("Could not find the image file C:\\no.png", self.output)


if __name__ == "__main__":
    PROGRAMS = sys.argv.pop(1) if len(sys.argv) > 1 else "."
    unittest.main()
