#!/usr/bin/env python3
"""Sources and numbers that a tool cannot use: each is named with the reason on the command line of
`drafton batch`, and the drawing and the palette stay as they were.

Usage: tool_sources_test.py PROGRAMS [unittest's arguments]
"""

import os
import pathlib
import resource
import sys
import unittest

import ezdxf

import tool_bench
from tool_fields_test import write_picture, write_source

PROGRAMS = "."
DATA = pathlib.Path(__file__).parent.parent / "data" / "pictures"

LARGE = 500 << 20
MOST_MEMORY = 300 << 10  # kilobytes


def write_nothing(path):
    pass


def write_empty(path):
    path.write_bytes(b"")


def write_text(path):
    path.write_text("Dear reader\n", encoding="utf-8")


def write_folder(path):
    path.mkdir()


def write_cut(part):
    """A drawing that ends behind a part of its bytes."""
    def write(path):
        write_source(path)
        text = path.read_bytes()
        path.write_bytes(text[:int(len(text) * part)])
    return write


def write_looping(path):
    """The block Door inserts a block that inserts Door."""
    document = ezdxf.new("R2010")
    door = document.blocks.new("Door")
    door.add_line((0, 0), (10, 0))
    door.add_blockref("Inner", (0, 0))
    document.blocks.new("Inner").add_blockref("Door", (1, 0))
    document.modelspace().add_blockref("Inner", (0, 0))
    document.saveas(path)


def write_cut_png(path):
    write_picture(path, 40, 40)
    path.write_bytes(path.read_bytes()[:-20])


def write_cut_picture(name, length):
    """A picture that ends behind so many bytes."""
    return lambda path: path.write_bytes((DATA / name).read_bytes()[:length])


def write_large(start):
    """A file of 500 MB that takes no room on the disk."""
    def write(path):
        path.write_bytes(start)
        os.truncate(path, LARGE)
    return write


MISSING = 'Could not find the original file "{file}" for block "Door"'
NO_DRAWING = "this is not a DXF drawing"

# What the file is, how it is made, what is said of it ({file} is its path as catalogs have it, {path} as
# the system has it), and whether the command fails: after the messages of tools themselves the script
# goes on.
DRAWINGS = [
    ("missing", write_nothing, MISSING, False),
    ("a folder", write_folder, MISSING, False),
    ("of no bytes", write_empty, "{path}:1: the file is empty", True),
    ("a text", write_text, NO_DRAWING, True),
    ("a picture", lambda path: write_picture(path, 4, 4), NO_DRAWING, True),
    ("cut early", write_cut(1 / 3), "the file ends too early", True),
    ("cut in a record", write_cut(1 / 2), "{path}:", True),
    ("with a block in itself", write_looping,
     'Block "Door" of the source file "{file}" contains itself', False),
    ("500 MB of nothing", write_large(b""), NO_DRAWING, True),
    ("500 MB that begin well", write_large(b"  0\nSECTION\n  2\nHEADER\n"), "{path}:5: ", True),
]

CUT = "photo.png cannot be read as a picture: its end is missing"

PICTURES = [
    ("missing", write_nothing, "Could not find the image file {file}", False),
    ("a folder", write_folder, "Could not find the image file {file}", False),
    ("of no bytes", write_empty, "{shown}", True),
    ("a text", write_text, "{shown}", True),
    ("a drawing", write_source, "{shown}", True),
    ("500 MB of nothing", write_large(b""), "{shown}", True),
    ("cut PNG", write_cut_png, CUT, True),
    ("cut photograph", write_cut_picture("turned.jpg", 500), CUT, True),
    ("photograph without its end", write_cut_picture("turned.jpg", 691), CUT, True),
    ("cut animation", write_cut_picture("animated.gif", 76), CUT, True),
]

# Paths that lead to no file, before and after macros are resolved.
PATHS = ["", "%NOSUCHMACRO%\\x.dxf", "%UserProfileSamplesFolder%\\nothing\\x.dxf",
         "%ShxFolder%\\x.dxf", "..\\..\\x.dxf", "\\\\.\\nul", "NUL"]

# Numbers of a palette's file, and the refusal of the host; without one the tool runs.
NUMBERS = [
    ("Block", "Scale", "0", "A block cannot be inserted at the scale 0."),
    ("Block", "Scale", "nan", None),
    ("Block", "Scale", "inf", None),
    ("Block", "Scale", "-2", None),
    ("Block", "Scale", "1e300", None),
    ("Block", "Rotation", "1e300", None),
    ("Block", "Rotation", "nan", None),
    ("Raster", "Scale", "0", "A picture cannot be inserted at the scale 0."),
    ("Raster", "Scale", "-2", "A picture cannot be inserted at the scale -2."),
    ("Raster", "Scale", "nan", None),
    ("Raster", "Scale", "inf", None),
    ("Raster", "Rotation", "1e300", None),
    ("Raster", "Rotation", "inf", None),
    ("Hatch", "Scale", "0", None),
    ("Hatch", "Scale", "-2", None),
    ("Hatch", "Scale", "nan", None),
    ("Hatch", "Scale", "inf", None),
    ("Hatch", "Angle", "1e300", None),
    ("Hatch", "Spacing", "-1", None),
    ("Gradient", "GradientAngle", "1e300", None),
    ("Gradient", "GradientName", "PLAID", None),
    ("Gradient", "GradientName", "", None),
]

# Pattern files with the pattern MINE, or what should be it; what is said, and whether it fails.
PATTERNS = [
    ("one bad line", "*MINE, lines\n0, 0,0, 0,9\nx, y, z\n",
     "{file}: line 3: a pattern line needs at least five numbers", False),
    ("another bad pattern", "*OTHER\nx\n*MINE, lines\n0, 0,0, 0,9\n",
     "{file}: line 2: a pattern line needs at least five numbers", False),
    ("no lines", "*MINE, nothing\n",
     'There is no hatch pattern "MINE". {file}: the pattern MINE has no lines', True),
    ("a short line", "*MINE\n0,0\n",
     'There is no hatch pattern "MINE". {file}: line 2: a pattern line needs at least five numbers',
     True),
    ("no numbers", "*MINE\nnan, 0,0, 0,9\n", 'There is no hatch pattern "MINE". {file}: line 2: ',
     True),
    ("lines upon each other", "*MINE\n0, 0,0, 0,0\n",
     'There is no hatch pattern "MINE". {file}: line 2: ', True),
    ("a text", "Dear reader\n",
     'There is no hatch pattern "MINE". {file}: line 1: a line that belongs to no pattern', True),
    ("nothing", "", 'There is no hatch pattern "MINE".', True),
    ("missing", None, 'There is no hatch pattern "MINE". There is no file ', True),
]


class ToolSources(unittest.TestCase):
    def setUp(self):
        self.fresh()

    def fresh(self):
        self.bench = tool_bench.Bench(PROGRAMS)
        self.addCleanup(self.bench.close)

    def fields(self, agent, source):
        if agent == "Raster":
            return {"RasterName": "P", "SourceFile": source, "Scale": 1}
        if agent == "Block":
            return {"BlockType": 1, "BlockName": "Door", "SourceFile": source, "Scale": 1}
        return {"hatchObjectType": 1 if agent == "Gradient" else 0, "HatchType": 1,
                "PatternName": "ANSI31", "Scale": 1}

    # Something of everything that a failing run could take along.
    HOST = "LAYER _M WALLS _C 1  \nLINE 1,1 2,2 \nBLOCK Own 0,0 _L \nRECTANG 0,0 100,80\n"

    def run_tool(self, agent, fields, answers="", before=HOST):
        """A run that leaves the palette as it is."""
        self.bench.write_catalog(
            [("T", "Hatch" if agent == "Gradient" else agent, fields, "")])
        palette = self.bench.path("c") / "Palettes" / "palette.dtc"
        bytes_before = palette.read_bytes()
        run = self.bench.run(f"{before}TOOL:T\n{answers}", keep_going=True)
        self.assertEqual(palette.read_bytes(), bytes_before)
        return run

    def expect(self, run, message, fails, before=HOST):
        self.assertEqual(run.returncode, 1 if fails else 0, run.stdout + run.stderr)
        # A failure is told where failures are, with its reason.
        self.assertIn(message, run.stderr if fails else run.stdout)
        # Byte for byte the drawing of a run without the tool.
        self.bench.read()
        untouched = self.bench.run(before, out="untouched.dxf")
        self.assertEqual(untouched.returncode, 0, untouched.stdout + untouched.stderr)
        self.assertEqual(self.bench.path("out.dxf").read_bytes(),
                         self.bench.path("untouched.dxf").read_bytes())

    def look(self, agent, name, write, message, fails, **more):
        self.fresh()
        path = self.bench.path(name)
        write(path)
        run = self.run_tool(agent, {**self.fields(agent, self.bench.stored(name)), **more})
        said = message.format(file=self.bench.stored(name), path=path, shown=path.name)
        self.expect(run, said, fails)

    def test_drawings(self):
        for name, write, message, fails in DRAWINGS:
            for kind in (1, 2):
                with self.subTest(source=name, kind=kind):
                    self.look("Block", "source.dxf", write, message, fails, BlockType=kind)
        most = resource.getrusage(resource.RUSAGE_CHILDREN).ru_maxrss
        self.assertLess(most, MOST_MEMORY, "what is no drawing is not read whole")

    # What is said of drawings that are to be attached; without a reason they are attached.
    REFERENCES = {
        "missing": "There is no file ",
        "a folder": "{path} is not a file.",
        "of no bytes": "{path} was not attached: ",
        "a text": NO_DRAWING,
        "a picture": NO_DRAWING,
        "cut early": "the file ends too early",
        "cut in a record": "{path} was not attached: ",
        "with a block in itself": None,
        "500 MB of nothing": NO_DRAWING,
        "500 MB that begin well": "{path} was not attached: ",
    }

    def test_references(self):
        self.assertEqual(list(self.REFERENCES), [row[0] for row in DRAWINGS])
        for name, write, _, _ in DRAWINGS:
            for kind in (1, 2):
                message = self.REFERENCES[name]
                if not message:
                    continue  # test_reference_whose_source_is_in_itself
                with self.subTest(source=name, kind=kind):
                    self.look("Block", "source.dxf", write, message, True, BlockType=2, InsertAs=2,
                              XrefType=kind)

    def test_block_of_the_drawing_that_contains_itself(self):
        write_source(self.bench.path("source.dxf"))
        write_looping(self.bench.path("host.dxf"))
        self.bench.write_catalog([("T", "Block", self.fields("Block", self.bench.stored(
            "source.dxf")), "")])
        run = self.bench.run("TOOL:T\n", drawing="host.dxf", keep_going=True)
        self.assertEqual(run.returncode, 0, run.stdout + run.stderr)
        self.assertIn('Block "Door" of the drawing contains itself', run.stdout)
        # The drawing is not sound, before and after.
        drawing = ezdxf.readfile(self.bench.path("out.dxf"))
        self.assertEqual([i.dxf.name for i in drawing.modelspace().query("INSERT")], ["Inner"])

    def test_drawing_without_the_block(self):
        self.look("Block", "source.dxf", lambda path: ezdxf.new("R2010").saveas(path),
                  'Definition of block "Door" is not found in the source file "{file}"', False)

    def test_drawing_that_is_cut_behind_what_is_needed(self):
        path = self.bench.path("source.dxf")
        write_source(path)
        text = path.read_bytes()
        path.write_bytes(text[:text.index(b"ENTITIES") + 60])
        run = self.run_tool("Block", self.fields("Block", self.bench.stored("source.dxf")),
                            "5,6\n")
        self.assertEqual(run.returncode, 0, run.stdout + run.stderr)
        self.assertIn(f'Not all of "{self.bench.stored("source.dxf")}" could be read: ', run.stdout)
        self.assertIn("the file ends too early", run.stdout)
        self.assertEqual(len(self.bench.read().modelspace().query("INSERT")), 1)

    def test_reference_whose_source_is_in_itself(self):
        write_looping(self.bench.path("source.dxf"))
        run = self.run_tool("Block", {**self.fields("Block", self.bench.stored("source.dxf")),
                                      "BlockType": 2, "InsertAs": 2, "XrefType": 1}, "5,6\n")
        self.assertEqual(run.returncode, 0, run.stdout + run.stderr)
        self.assertEqual(len(self.bench.read().modelspace().query("INSERT")), 1)

    def test_pictures(self):
        for name, write, message, fails in PICTURES:
            with self.subTest(source=name):
                self.look("Raster", "photo.png", write, message, fails)

    def test_paths(self):
        for source in PATHS:
            with self.subTest(source=source):
                self.fresh()
                self.expect(self.run_tool("Block", self.fields("Block", source)),
                            "Could not find the original file", False)
            with self.subTest(source=source, agent="Raster"):
                self.fresh()
                self.expect(self.run_tool("Raster", self.fields("Raster", source)),
                            "Could not find the image file", False)
            if not source:
                continue  # an element without a text ends the reading of the tool
            with self.subTest(source=source, agent="Xref"):
                self.fresh()
                fields = {**self.fields("Block", source), "BlockType": 2, "InsertAs": 2}
                self.expect(self.run_tool("Block", fields), "", True)

    def test_numbers(self):
        for agent, field, value, refusal in NUMBERS:
            with self.subTest(agent=agent, field=field, value=value):
                self.fresh()
                write_source(self.bench.path("source.dxf"))
                write_picture(self.bench.path("photo.png"), 4, 4)
                file = self.bench.stored("photo.png" if agent == "Raster" else "source.dxf")
                is_hatch = agent in ("Hatch", "Gradient")
                run = self.run_tool(agent, {**self.fields(agent, file), field: value},
                                    "" if refusal else "50,40\n\n" if is_hatch else "5,6\n")
                if refusal:
                    self.expect(run, refusal, True)
                    continue
                self.assertEqual(run.returncode, 0, run.stdout + run.stderr)
                # What is no number is told, and the field has its usual value.
                self.assertEqual(f'{field}: "{value}" is no value' in run.stdout + run.stderr,
                                 value in ("nan", "inf"), run.stdout + run.stderr)
                kind = {"Block": "INSERT", "Raster": "IMAGE"}.get(agent, "HATCH")
                made = self.bench.read().modelspace().query(kind)
                self.assertEqual(len(made), 1)
                if field == "GradientName":
                    self.assertEqual(made[0].gradient.name, "LINEAR")

    def test_pattern_files(self):
        for name, text, message, fails in PATTERNS:
            with self.subTest(file=name):
                self.fresh()
                if text is not None:
                    self.bench.path("mine.pat").write_text(text, encoding="utf-8")
                file = self.bench.stored("mine.pat")
                run = self.run_tool(
                    "Hatch", {**self.fields("Hatch", ""), "HatchType": 2, "PatternName": "MINE",
                              "SourceFile": file},
                    "" if fails else "50,40\n\n")
                if fails:
                    self.expect(run, message.format(file=file), fails)
                    continue
                self.assertEqual(run.returncode, 0, run.stdout + run.stderr)
                self.assertIn(message.format(file=file), run.stdout)
                hatch, = self.bench.read().modelspace().query("HATCH")
                self.assertEqual(len(hatch.pattern.lines), 1)


if __name__ == "__main__":
    PROGRAMS = sys.argv.pop(1) if len(sys.argv) > 1 else "."
    unittest.main()
