#!/usr/bin/env python3
"""Tools that are made from what is in a drawing: each road from the real command line, the tool run
in a fresh drawing that has nothing of what it needs, and the result compared with the original.

Usage: tools_from_drawing_test.py PROGRAMS [unittest's arguments]
"""

import json
import math
import subprocess
import sys
import unittest

import ezdxf
from ezdxf.math import BoundingBox

import tool_bench
from tool_fields_test import write_picture

PROGRAMS = "."

# What every entity has, and is given off its default.
GENERAL = {"layer": "Walls", "color": 30, "linetype": "DASHDOT", "ltscale": 2.5, "lineweight": 50,
           "transparency": 0x0200007F}
# Blocks, hatches and images leave the scale of line types to the drawing.
WITHOUT_SCALE = [name for name in GENERAL if name != "ltscale"]


def aligned(space, attributes):
    """ezdxf makes a turned linear dimension of it; the kind that other programs write is told in its
    type alone."""
    made = space.add_aligned_dim((0, 0), (20, 10), 5, dimstyle="Plans",
                                 dxfattribs=attributes).render().dimension
    made.dxf.dimtype = made.dxf.dimtype & ~7 | 1
    return made


# An entity of each kind that a command draws, the name of its tool, and what the command is told.
DRAWN = {
    "line": (lambda m, a: m.add_line((0, 0), (50, 0), a), "Line", "0,0\n50,0\n\n"),
    "circle": (lambda m, a: m.add_circle((0, 0), 5, a), "Circle", "0,0\n5\n"),
    "arc": (lambda m, a: m.add_arc((0, 0), 5, 0, 90, dxfattribs=a), "Arc", "0,0\n5,5\n10,0\n"),
    "polyline": (lambda m, a: m.add_lwpolyline([(0, 0), (9, 0), (9, 9)], dxfattribs=a), "Polyline",
                 "0,0\n9,0\n\n"),
    "point": (lambda m, a: m.add_point((1, 2), a), "Point", "1,2\n"),
    "ellipse": (lambda m, a: m.add_ellipse((0, 0), (9, 0), 0.5, dxfattribs=a), "Ellipse",
                "0,0\n9,0\n3\n"),
    "spline": (lambda m, a: m.add_spline([(0, 0), (5, 5), (9, 0)], dxfattribs=a), "Spline",
               "0,0\n5,5\n9,0\n\n\n\n"),
    "text": (lambda m, a: m.add_text("Note", height=3, dxfattribs={**a, "style": "Fancy"}), "Text",
             "0,0\n3\n0\nNote\n\n"),
    "mtext": (lambda m, a: m.add_mtext("Note", {**a, "style": "Fancy", "char_height": 3}),
              "Multiline Text", "0,0\n50,-20\nNote\n\n"),
    "linear": (lambda m, a: m.add_linear_dim((0, 5), (0, 0), (20, 0), dimstyle="Plans",
                                             dxfattribs=a).render().dimension,
               "Linear Dimension", "0,0\n20,0\n0,5\n"),
    "aligned": (lambda m, a: aligned(m, a), "Aligned Dimension", "0,0\n30,40\n0,20\n"),
    "radius": (lambda m, a: m.add_radius_dim((0, 0), radius=5, angle=45, dimstyle="Plans",
                                             dxfattribs=a).render().dimension,
               "Radius Dimension", "35,0\n30,12\n"),
    "diameter": (lambda m, a: m.add_diameter_dim((0, 0), radius=5, angle=45, dimstyle="Plans",
                                                 dxfattribs=a).render().dimension,
                 "Diameter Dimension", "35,0\n30,12\n"),
    "leader": (lambda m, a: m.add_leader([(0, 0), (10, 10), (15, 10)], "Plans", dxfattribs=a),
               "Leader", "0,0\n10,10\n\nnote\n\n"),
    "attribute": (lambda m, a: m.add_attdef("NO", (0, 0), "7", height=3,
                                            dxfattribs={**a, "style": "Fancy"}),
                  "Attribute", "\nNO\n\n7\n0,0\n3\n0\n"),
    "old polyline": (lambda m, a: m.add_polyline2d([(0, 0), (9, 0), (9, 9)], dxfattribs=a),
                     "Polyline", "0,0\n9,0\n\n"),
    "old polyline in space": (lambda m, a: m.add_polyline3d([(0, 0, 0), (9, 0, 5)], dxfattribs=a),
                              "Polyline", "0,0\n9,0\n\n"),
}
# What commands need in the drawing, and what they draw in place of the entity's own kind.
NEEDS = {"radius": "CIRCLE 30,0 5\n", "diameter": "CIRCLE 30,0 5\n"}
DRAWS = {"old polyline": "LWPOLYLINE", "old polyline in space": "LWPOLYLINE"}
TEXTS, DIMENSIONS = ("text", "mtext", "attribute"), ("linear", "aligned", "radius", "diameter", "leader")


def source_drawing():
    """Layers, line types and styles with nothing at its default, and a block."""
    document = ezdxf.new("R2010", setup=["linetypes"])
    document.header["$INSUNITS"] = 4
    document.header["$DIMSTYLE"] = "Standard"
    document.layers.add("Walls", color=3, linetype="DASHED", lineweight=70)
    style = document.styles.add("Fancy", font="romans.shx")
    style.dxf.width, style.dxf.oblique = 0.8, 10
    plans = document.dimstyles.new("Plans", dxfattribs={"dimtxt": 4.5, "dimasz": 3, "dimexo": 2})
    plans.dxf.dimtxsty = "Fancy"
    door = document.blocks.new("Door")
    door.block.dxf.description = "Opens inwards"
    door.add_line((0, 0), (10, 0))
    door.add_arc((0, 0), 10, 0, 90)
    return document


class Roads(unittest.TestCase):
    def setUp(self):
        self.bench = tool_bench.Bench(PROGRAMS)
        self.addCleanup(self.bench.close)
        self.bench.write_catalog([])
        self.source = source_drawing()
        self.space = self.source.modelspace()

    def script(self, script, drawing=None, out="out.dxf", code=0):
        run = self.bench.run(script, drawing, out)
        self.output = run.stdout + run.stderr
        self.assertEqual(run.returncode, code, self.output[-3000:])
        return self.output

    def make(self, source, code=0):
        """Makes tools on the palette P from the saved source drawing."""
        self.source.saveas(self.bench.path("source.dxf"))
        return self.script(f"ToolPalettesMake\nP\n{source}", "source.dxf", "unused.dxf", code)

    def make_of(self, entity):
        return self.make(f"Object\nHandle\n{entity.dxf.handle}\n\n")

    def run_tool(self, name, answers, before=""):
        """The drawing after a run of the tool in a fresh one."""
        self.script(f"{before}TOOL:{name}\n{answers}")
        return self.bench.read()

    def only(self, document, kind):
        found = document.modelspace().query(kind)
        self.assertEqual(len(found), 1, self.output[-3000:])
        return found[0]

    def assert_same(self, made, original, names):
        for name in names:
            self.assert_equal(made.dxf.get_default(name), original.dxf.get_default(name), name)

    def assert_equal(self, made, original, name=""):
        """Numbers have six digits in the files of palettes."""
        if isinstance(original, float):
            self.assertTrue(math.isclose(made, original, rel_tol=5e-6), f"{name}: {made}, {original}")
        else:
            self.assertEqual(made, original, name)

    def assert_same_layer(self, document):
        made, original = document.layers.get("Walls"), self.source.layers.get("Walls")
        self.assert_same(made, original, ("color", "linetype", "lineweight"))
        for name in ("DASHED", "DASHDOT"):
            self.assertEqual(self.pattern(document, name), self.pattern(self.source, name))

    @staticmethod
    def pattern(document, name):
        tags = document.linetypes.get(name).pattern_tags.tags
        return [round(tag.value, 9) for tag in tags if tag.code in (40, 49)]

    def tools(self):
        run = subprocess.run([str(self.bench.programs / "tpal"), "list", str(self.bench.path("c"))],
                             capture_output=True, text=True, encoding="utf-8")
        return run.stdout


class Entities(Roads):
    def check(self, kind):
        make, name, answers = DRAWN[kind]
        original = make(self.space, dict(GENERAL))
        self.make_of(original)
        document = self.run_tool(name, answers, NEEDS.get(kind, ""))
        made = self.only(document, DRAWS.get(kind, original.dxftype()))
        self.assert_same(made, original, GENERAL)
        self.assert_same_layer(document)
        # What was current before the run is so again.
        self.assertEqual(document.header["$CLAYER"], "0")
        self.assertEqual(document.header["$CELTYPE"].upper(), "BYLAYER")
        self.assertEqual(document.header["$CELTSCALE"], 1)
        return made, original, document

    def test_text_style_comes_along(self):
        for kind in TEXTS:
            with self.subTest(kind):
                self.setUp()
                made, original, document = self.check(kind)
                self.assert_same(made, original, ["style"])
                self.assert_same(document.styles.get("Fancy"), self.source.styles.get("Fancy"),
                                 ("font", "width", "oblique"))

    def test_dimension_style_comes_along(self):
        for kind in DIMENSIONS:
            with self.subTest(kind):
                self.setUp()
                made, original, document = self.check(kind)
                self.assert_same(made, original, ["dimstyle"])
                if original.dxftype() == "DIMENSION":
                    self.assertEqual(made.dimtype, original.dimtype)
                self.assert_same(document.dimstyles.get("Plans"),
                                 self.source.dimstyles.get("Plans"),
                                 ("dimtxt", "dimasz", "dimexo", "dimtxsty"))
                self.assertEqual(document.header["$DIMSTYLE"].upper(), "STANDARD")

    def test_entity_of_a_kind_that_no_command_draws(self):
        face = self.space.add_3dface([(0, 0), (1, 0), (1, 1)])
        output = self.make(f"Object\nHandle\n{face.dxf.handle}\n\n", 1)
        self.assertIn("no command draws objects of this kind", output)
        self.assertNotIn("[", self.tools())

    def test_many_at_once(self):
        for x in range(5):
            self.space.add_line((x, 0), (x, 9), GENERAL)
        self.space.add_3dface([(0, 0), (1, 0), (1, 1)])
        output = self.make("Object\nALL\n\n")
        self.assertEqual(output.count('is now the tool "Line"'), 5)
        self.assertEqual(output.count("gives no tool"), 1)
        self.assertEqual(self.tools().count("[command]"), 5)

    def test_choice_before_the_command(self):
        self.space.add_line((0, 0), (9, 0), GENERAL)
        self.source.saveas(self.bench.path("source.dxf"))
        output = self.script("QSELECT\nLINE\n*\n*\n\nInclude\nToolPalettesMake\nP\nObject\n",
                             "source.dxf", "unused.dxf")
        self.assertIn('is now the tool "Line"', output)

    def test_nothing_chosen(self):
        self.make("Object\n\n", 1)
        self.assertNotIn("[", self.tools().split("palette  P")[1])


for _kind in DRAWN:
    if _kind not in TEXTS + DIMENSIONS:
        setattr(Entities, "test_" + _kind.replace(" ", "_"), lambda self, kind=_kind: self.check(kind) and None)


class Hatches(Roads):
    RECTANGLE = "RECTANG 0,0 100,80\n"

    def hatch(self, setup, name):
        original = self.space.add_hatch(dxfattribs={k: v for k, v in GENERAL.items()
                                                    if k in WITHOUT_SCALE})
        original.paths.add_polyline_path([(0, 0), (100, 0), (100, 80), (0, 80)], is_closed=True)
        setup(original)
        self.make_of(original)
        document = self.run_tool(name, "50,40\n\n", self.RECTANGLE)
        made = self.only(document, "HATCH")
        self.assert_same(made, original, WITHOUT_SCALE)
        self.assert_same_layer(document)
        return made, original

    def test_predefined_pattern(self):
        made, original = self.hatch(
            lambda h: h.set_pattern_fill("ANSI31", color=30, scale=2.5, angle=30), "ANSI31")
        self.assert_same(made, original, ("pattern_name", "pattern_type", "pattern_scale",
                                          "pattern_angle", "pattern_double", "solid_fill"))

    def test_foreign_name_of_a_pattern(self):
        def setup(h):
            h.set_pattern_fill("ANSI32", color=30, scale=3)
            h.dxf.pattern_name = "ACAD_ISO02W100"
        made, _ = self.hatch(setup, "ISO02W100")
        self.assertEqual(made.dxf.pattern_name, "ISO02W100")
        self.assertEqual(made.dxf.pattern_scale, 3)

    def test_pattern_that_stands_in_no_file(self):
        def setup(h):
            h.set_pattern_fill("ANSI31", color=30)
            h.dxf.pattern_name = "HOUSEOWN"
        hatch = self.space.add_hatch()
        hatch.paths.add_polyline_path([(0, 0), (9, 0), (9, 9)], is_closed=True)
        setup(hatch)
        self.assertIn('The hatch pattern "HOUSEOWN" is in no file of patterns', self.make_of(hatch))
        self.assertIn("HOUSEOWN  [hatch]", self.tools())

    def test_solid(self):
        made, _ = self.hatch(lambda h: h.set_solid_fill(color=30), "SOLID")
        self.assertTrue(made.dxf.solid_fill)

    def test_lines(self):
        def setup(h):
            h.set_pattern_fill("_USER", color=30, pattern_type=0, double=1, scale=6, angle=45,
                               definition=[[45, (0, 0), (-4.2426, 4.2426), []],
                                           [135, (0, 0), (-4.2426, -4.2426), []]])
            h.dxf.pattern_double = 1
        made, original = self.hatch(setup, "From lines")
        self.assert_same(made, original, ("pattern_type", "pattern_scale", "pattern_angle",
                                          "pattern_double"))
        self.assertEqual(len(made.pattern.lines), 2)
        self.assertAlmostEqual(math.hypot(*made.pattern.lines[0].offset), 6, 3)

    def test_gradients(self):
        for centered in (0, 1):
            with self.subTest(centered):
                self.setUp()
                made, original = self.hatch(
                    lambda h, c=centered: h.set_gradient((1, 2, 3), (40, 50, 60), rotation=60,
                                                         centered=c, name="INVSPHERICAL"),
                    "Inversed-spherical")
                for name in ("color1", "color2", "name", "centered", "one_color"):
                    self.assertEqual(getattr(made.gradient, name), getattr(original.gradient, name))
                self.assert_equal(made.gradient.rotation, float(original.gradient.rotation))


class Blocks(Roads):
    def check_door(self, document, names=()):
        made = self.only(document, "INSERT")
        self.assertEqual(made.dxf.name, "Door")
        self.assertEqual(sorted(e.dxftype() for e in made.block()), ["ARC", "LINE"])
        return made

    def test_insert(self):
        original = self.space.add_blockref("Door", (5, 5), {
            k: v for k, v in GENERAL.items() if k in WITHOUT_SCALE})
        self.make_of(original)
        document = self.run_tool("Door", "5,5\n")
        made = self.check_door(document)
        self.assert_same(made, original, WITHOUT_SCALE)
        self.assertEqual(tuple(made.dxf.insert), (5, 5, 0))
        self.assert_same_layer(document)

    def test_block_of_the_open_drawing(self):
        self.make("Block\nDoor\n")
        self.check_door(self.run_tool("Door", "5,5\n"))
        self.assertIn("Opens inwards", next(self.bench.path("c/Palettes").glob("p*.dtc")).read_text())

    def test_block_that_is_not_there(self):
        self.assertIn("there is no such block", self.make("Block\nWindow\n", 1))

    def test_block_of_a_drawing_that_was_not_saved(self):
        output = self.script("LINE 0,0 1,1 \nBLOCK Door 0,0 ALL \nToolPalettesMake\nP\nBlock\nDoor\n",
                             code=1)
        self.assertIn("Before you create the tool you need to save the drawing.", output)
        self.assertNotIn("Door", self.tools())

    def test_block_of_a_drawing_that_was_changed(self):
        self.source.saveas(self.bench.path("source.dxf"))
        output = self.script("LINE 0,0 1,1 \nToolPalettesMake\nP\nBlock\nDoor\n", "source.dxf", code=1)
        self.assertIn("Before you create the tool you need to save the drawing.", output)

    def test_blocks_of_a_closed_drawing(self):
        self.source.blocks.new("Window").add_circle((0, 0), 3)
        self.source.saveas(self.bench.path("library.dxf"))
        output = self.script(f"ToolPalettesMake\nP\nDrawing\n{self.bench.path('library.dxf')}\n\n")
        self.assertEqual(output.count("is now the tool"), 2)
        self.check_door(self.run_tool("Door", "5,5\n"))

    def test_closed_drawing_without_blocks(self):
        ezdxf.new("R2010").saveas(self.bench.path("empty.dxf"))
        output = self.script(f"ToolPalettesMake\nP\nDrawing\n{self.bench.path('empty.dxf')}\n\n", code=1)
        self.assertIn("The drawing has no block definitions.", output)

    def test_closed_drawing_that_cannot_be_read(self):
        self.bench.path("cut.dxf").write_text("0\nSECTION\n2\nENTI")
        output = self.script(f"ToolPalettesMake\nP\nDrawing\n{self.bench.path('cut.dxf')}\nDoor\n", code=1)
        self.assertIn("Error reading file.", output)

    def test_block_that_contains_itself(self):
        loop = self.source.blocks.new("Loop")
        loop.add_circle((0, 0), 3)
        loop.add_blockref("Loop", (1, 1))
        self.make("Block\nLoop\n")
        self.assertIn("Loop  [block]", self.tools())

    def reference(self, path):
        self.source.add_xref_def(path, "Ref")
        return self.space.add_blockref("Ref", (0, 0), {"layer": "Walls"})

    def test_external_reference(self):
        other = ezdxf.new("R2010")
        other.modelspace().add_line((0, 0), (30, 0))
        other.saveas(self.bench.path("other.dxf"))
        original = self.reference("other.dxf")
        self.make_of(original)
        document = self.run_tool("Ref", "7,8\n")
        made = self.only(document, "INSERT")
        block = made.block().block
        self.assertTrue(block.dxf.flags & 4)
        self.assertFalse(block.dxf.flags & 8)
        self.assertTrue(block.dxf.xref_path.endswith("other.dxf"))
        self.assertEqual(made.dxf.layer, "Walls")

    def test_external_reference_is_the_file_that_the_drawing_shows(self):
        self.bench.path("parts").mkdir()
        for name in ("other.dxf", "parts/other.dxf"):
            other = ezdxf.new("R2010")
            other.modelspace().add_line((0, 0), (30, 0))
            other.saveas(self.bench.path(name))
        self.make_of(self.reference("parts\\other.dxf"))
        made = self.only(self.run_tool("Ref", "7,8\n"), "INSERT")
        path = made.block().block.dxf.xref_path.replace("\\", "/")
        self.assertTrue(path.endswith("/parts/other.dxf"), path)

    def test_external_reference_whose_file_has_vanished(self):
        original = self.reference("..\\gone\\other.dxf")
        output = self.make(f"Object\nHandle\n{original.dxf.handle}\n\n", 1)
        self.assertIn("Unable to create the tool. The xref file '..\\gone\\other.dxf' could not be "
                      "located.", output)


class FilesAndCommands(Roads):
    def test_drawing_file(self):
        self.space.add_line((0, 0), (40, 30))
        self.source.saveas(self.bench.path("plan.dxf"))
        self.script(f"ToolPalettesMake\nP\nFile\n{self.bench.path('plan.dxf')}\n")
        made = self.only(self.run_tool("plan", "5,6\n"), "INSERT")
        self.assertEqual(made.dxf.name, "plan")
        self.assertEqual([tuple(line.dxf.end) for line in made.block().query("LINE")], [(40, 30, 0)])

    def test_picture_file(self):
        write_picture(self.bench.path("photo.png"), 40, 20)
        self.script(f"ToolPalettesMake\nP\nFile\n{self.bench.path('photo.png')}\n")
        made = self.only(self.run_tool("photo", "5,6\n"), "IMAGE")
        self.assertTrue(made.image_def.dxf.filename.endswith("photo.png"))

    def test_file_of_no_kind(self):
        self.bench.path("notes.txt").write_text("nothing")
        for name, reason in (("notes.txt", "files of this kind give no tool"),
                             ("missing.dxf", "there is no such file or command")):
            output = self.script(f"ToolPalettesMake\nP\nFile\n{self.bench.path(name)}\n", code=1)
            self.assertIn(reason, output)

    def test_image_in_the_drawing(self):
        write_picture(self.bench.path("photo.png"), 40, 20)
        definition = self.source.add_image_def(str(self.bench.path("photo.png")), (40, 20), "Site")
        original = self.space.add_image(definition, (0, 0), (8, 4), dxfattribs={
            k: v for k, v in GENERAL.items() if k in WITHOUT_SCALE})
        self.make_of(original)
        document = self.run_tool("photo", "5,6\n")
        made = self.only(document, "IMAGE")
        self.assertEqual([name for name, _ in document.rootdict["ACAD_IMAGE_DICT"].items()], ["Site"])
        self.assertTrue(made.image_def.dxf.filename.endswith("photo.png"))
        self.assert_same(made, original, WITHOUT_SCALE)
        self.assert_same_layer(document)

    def test_image_whose_file_is_missing(self):
        definition = self.source.add_image_def("pictures\\gone.png", (40, 20), "Site")
        original = self.space.add_image(definition, (0, 0), (8, 4))
        output = self.make(f"Object\nHandle\n{original.dxf.handle}\n\n", 1)
        self.assertIn("Unable to create the tool. The image file 'pictures\\gone.png' could not be "
                      "located.", output)
        self.assertNotIn("[", self.tools())

    def test_image_beside_the_drawing(self):
        write_picture(self.bench.path("photo.png"), 40, 20)
        definition = self.source.add_image_def("photo.png", (40, 20), "Site")
        self.make_of(self.space.add_image(definition, (0, 0), (8, 4)))
        made = self.only(self.run_tool("photo", "5,6\n"), "IMAGE")
        self.assertTrue(made.image_def.dxf.filename.endswith("photo.png"))

    def test_command(self):
        self.script("ToolPalettesMake\nNew palette\nNew group\nCommand\nrectang\n")
        self.assertIn("palette  New palette", self.tools())
        made = self.only(self.run_tool("Rectangle", "0,0\n9,5\n"), "LWPOLYLINE")
        self.assertEqual(BoundingBox(made.vertices_in_wcs()).size.x, 9)

    def test_clipboard(self):
        self.space.add_line((10, 10), (50, 40), GENERAL)
        self.source.saveas(self.bench.path("source.dxf"))
        output = self.script("COPYCLIP ALL \nToolPalettesMake\nP\nPaste\n", "source.dxf", "unused.dxf")
        name = output.split('is now the tool "')[1].split('"')[0]
        made = self.only(self.run_tool(name, "0,0\n"), "INSERT")
        line = made.block().query("LINE")[0]
        self.assertEqual((tuple(line.dxf.start), tuple(line.dxf.end)), ((10, 10, 0), (50, 40, 0)))
        self.assertEqual(line.dxf.layer, "Walls")

    def test_empty_clipboard(self):
        output = self.script("ToolPalettesMake\nP\nPaste\n", code=1)
        self.assertIn("there is no drawing on the clipboard", output)

    def test_word_that_is_no_source(self):
        self.assertIn('Tools cannot be made from "Q".', self.script("ToolPalettesMake\nP\nQ\n", code=1))


class CatalogTool(Roads):
    """The same roads for whole libraries, without a drawing on the screen."""

    def tpal(self, *words, code=0):
        run = subprocess.run([str(word) for word in
                              (self.bench.programs / "tpal", "make", self.bench.path("c"), *words)],
                             capture_output=True, text=True, encoding="utf-8", timeout=120)
        self.output = run.stdout + run.stderr
        self.assertEqual(run.returncode, code, self.output)
        return run.stdout

    def test_library_becomes_a_palette_whose_tools_run(self):
        for number in range(40):
            self.source.blocks.new(f"Part {number}").add_circle((0, 0), number + 1)
        self.source.saveas(self.bench.path("library.dxf"))
        rows = json.loads(self.tpal("Parts", self.bench.path("library.dxf"), "--blocks", "--json",
                                     "--group", "Site"))
        self.assertEqual(len(rows), 41)
        self.assertTrue(all(row["pictures"] == [16, 32, 64] for row in rows), self.output)
        made = self.only(self.run_tool("Part 7", "3,4\n"), "INSERT")
        self.assertEqual([circle.dxf.radius for circle in made.block().query("CIRCLE")], [8])
        self.assertEqual(len(list(self.bench.path("c/Palettes/Images").glob("*.png"))), 41 * 3)

    def test_commands_by_their_names(self):
        self.assertIn("nothing_like_it: there is no such file or command",
                      self.tpal("P", "LINE", "move", "nothing_like_it", code=1))
        self.only(self.run_tool("Line", "0,0\n9,0\n\n"), "LINE")
        self.assertIn("Move  [command]  ^C^C_MOVE", self.tools())

    def test_nothing_is_shown_over_and_over_where_no_terminal_is(self):
        self.source.saveas(self.bench.path("library.dxf"))
        self.assertNotIn("\r", self.tpal("P", self.bench.path("library.dxf")) + self.output)


if __name__ == "__main__":
    PROGRAMS = sys.argv.pop(1) if len(sys.argv) > 1 else "."
    unittest.main()
