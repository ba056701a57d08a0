#!/usr/bin/env python3
"""Pictures of tools from the command line of `drafton batch` and from `tpal`: buttons of the program,
pictures of every kind of file, folders that take none. What is not shown or not written is told with
its file and the reason, and the palette stays whole.

Usage: tool_pictures_test.py PROGRAMS [unittest's arguments]
"""

import pathlib
import resource
import shutil
import struct
import subprocess
import sys
import unittest
import xml.etree.ElementTree as xml
import zlib

import ezdxf

import tool_bench
from tool_fields_test import write_picture, write_source

PROGRAMS = "."
DATA = pathlib.Path(__file__).parent.parent / "data" / "pictures"
MOST_MEMORY = 300 << 10  # kilobytes


def png_chunk(kind, data):
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))


def write_huge(path):
    """A PNG that tells of 60,000 by 60,000 pixels."""
    path.write_bytes(b"\x89PNG\r\n\x1a\n" +
                     png_chunk(b"IHDR", struct.pack(">IIBBBBB", 60000, 60000, 8, 2, 0, 0, 0)) +
                     png_chunk(b"IDAT", zlib.compress(b"\0" * 1000)) + png_chunk(b"IEND", b""))


def copy_of(name):
    return lambda path: shutil.copy(DATA / name, path)


# The file's name, how it is made, and why it gives no picture; None for one that does.
FILES = [
    ("plain.png", lambda path: write_picture(path, 40, 20), None),
    ("one.png", lambda path: write_picture(path, 1, 1), None),
    ("cmyk.jpg", copy_of("cmyk.jpg"), None),
    ("grey16.png", copy_of("grey16.png"), None),
    ("animated.png", copy_of("animated.gif"), None),
    ("turned.jpg", copy_of("turned.jpg"), None),
    ("lying.jpg", lambda path: write_picture(path, 40, 20), None),
    ("huge.png", write_huge, "is too large to be shown: 60000 by 60000 pixels"),
    ("text.png", lambda path: path.write_text("Dear reader"), "is no picture that can be shown"),
    ("empty.png", lambda path: path.write_bytes(b""), "is no picture that can be shown"),
    ("cut.png", lambda path: (write_picture(path, 400, 200),
                              path.write_bytes(path.read_bytes()[:60])),
     "is no picture that can be shown"),
]


class ToolPictures(unittest.TestCase):
    def setUp(self):
        self.bench = tool_bench.Bench(PROGRAMS)
        self.addCleanup(self.bench.close)
        self.bench.write_catalog([])
        self.palette = self.bench.path("c") / "Palettes" / "palette.dtc"
        self.images = self.palette.parent / "Images"

    def tpal(self, *words, code=0):
        run = subprocess.run([pathlib.Path(PROGRAMS) / "tpal", *map(str, words)], text=True,
                             capture_output=True, timeout=120)
        self.assertEqual(run.returncode, code, run.stdout + run.stderr)
        return run.stdout

    def script(self, script, code=0):
        run = self.bench.run(script)
        self.assertEqual(run.returncode, code, run.stdout[-2000:] + run.stderr)
        return run.stdout + run.stderr

    def pictures_of(self, tool):
        """The picture elements of a tool in the palette's file."""
        for element in xml.parse(self.palette).iter("Tool"):
            if element.findtext("Properties/ItemName") == tool:
                return [image.attrib for image in element.iter("Image")]
        self.fail(f"there is no tool {tool} in {self.palette.read_text()[:2000]}")

    def test_buttons_of_the_program(self):
        said = self.script("ToolPalettesMake\nP\nCommand\nCIRCLE\n")
        self.assertIn('is now the tool "Circle"', said)
        pictures = self.pictures_of("Circle")
        self.assertEqual([(p["cx"], p["cy"], p["src"]) for p in pictures],
                         [(s, s, "%ProgramBtnRes%") for s in ("16", "32", "64")])
        self.assertTrue(all(p["resource"] for p in pictures))
        self.assertFalse(self.images.exists(), "a button never makes a file")
        # It runs, is written again with another tool, and lacks nothing.
        self.script("TOOL:Circle\n5,5\n3\n")
        self.assertEqual(len(self.bench.read().modelspace().query("CIRCLE")), 1)
        self.script("ToolPalettesMake\nP\nCommand\nLINE\n")
        self.assertEqual(self.pictures_of("Circle"), pictures)
        self.assertFalse(self.images.exists())
        self.assertEqual(self.tpal("images", self.bench.path("c")), "")
        self.assertEqual(self.tpal("check", self.bench.path("c")).count("C107"), 0)

    def test_buttons_of_other_programs_stay(self):
        self.palette.write_text(self.palette.read_text().replace(
            "<Tools>", '<Tools><Tool><ItemID idValue="{0A}"/><Properties><ItemName>Old</ItemName>'
            '<Images option="0"><Image cx="32" cy="32" src="acadbtn.xmx" '
            'resource="RCDATA_16_LINE"/></Images></Properties><ToolType>1</ToolType><Data>'
            '<Command Macro="_LINE"/></Data></Tool>'))
        self.script("ToolPalettesMake\nP\nCommand\nCIRCLE\n")
        self.assertEqual(self.pictures_of("Old"),
                         [{"cx": "32", "cy": "32", "src": "acadbtn.xmx",
                           "resource": "RCDATA_16_LINE"}])
        self.assertFalse(self.images.exists())

    def test_every_kind_of_file(self):
        for name, write, reason in FILES:
            with self.subTest(name):
                file = self.bench.path(name)
                write(file)
                title = name.split(".")[0]
                said = self.script(f"ToolPalettesMake\nP\nFile\n{file}\n")
                self.assertIn(f'is now the tool "{title}"', said)
                made = self.pictures_of(title)
                if reason:
                    self.assertEqual(made, [])
                    self.assertIn(f"{self.bench.stored(name)} {reason}", said)
                    said = self.tpal("images", self.bench.path("c"), "--missing", code=1)
                    self.assertIn(f"{self.bench.stored(name)} {reason}", said)
                    continue
                self.assertEqual([p["src"] for p in made],
                                 [f"\\Images\\{title}{size}.png" for size in (16, 32, 64)])
                for size in (16, 32, 64):
                    header = (self.images / f"{title}{size}.png").read_bytes()[16:24]
                    self.assertEqual(struct.unpack(">II", header), (size, size))
        most = resource.getrusage(resource.RUSAGE_CHILDREN).ru_maxrss
        self.assertLess(most, MOST_MEMORY, "no picture is decoded that is not shown")

    def test_folder_that_is_a_file(self):
        write_picture(self.bench.path("photo.png"), 40, 20)
        self.images.write_text("mine")
        said = self.script(f"ToolPalettesMake\nP\nFile\n{self.bench.path('photo.png')}\n")
        folder = self.bench.stored("c/Palettes/Images")
        for size in (16, 32, 64):
            self.assertIn(f"Cannot save the picture: {folder}\\photo{size}.png: "
                          f"{folder} is a file and no folder", said)
        self.assertEqual(len(self.pictures_of("photo")), 3)
        self.assertEqual(self.images.read_text(), "mine")
        # Once the folder can be made, the pictures are made again.
        self.images.unlink()
        self.tpal("images", self.bench.path("c"), "--missing")
        self.assertEqual(len(list(self.images.iterdir())), 3)
        self.assertEqual(self.tpal("images", self.bench.path("c")), "")

    def test_sources_that_lead_elsewhere(self):
        """They are kept as they stand, and nothing is written or deleted there."""
        sources = ["\\..\\..\\escaped.png", "\\Images\\..\\..\\..\\escaped.png", "C:\\x\\escaped.png",
                   str(self.bench.path("escaped.png")).replace("/", "\\"), "\\Images\\CON",
                   "\\Images\\nul.png", "\\Images\\COM1.png", "\\\\.\\nul", "/dev/zero",
                   "\\Images\\a:stream.png"]
        write_picture(self.bench.path("escaped.png"), 16, 16)
        before = self.bench.path("escaped.png").read_bytes()
        self.palette.write_text(self.palette.read_text().replace("<Tools>", "<Tools>" + "".join(
            f'<Tool><ItemID idValue="{{{i}}}"/><Properties><ItemName>T{i}</ItemName>'
            f'<Images option="0"><Image cx="16" cy="16" src="{src}"/></Images></Properties>'
            '<ToolType>1</ToolType><Data><Command Macro="_LINE"/></Data></Tool>'
            for i, src in enumerate(sources))))
        files = set(self.bench.folder.rglob("*"))
        self.script("ToolPalettesMake\nP\nCommand\nCIRCLE\n")
        for i, src in enumerate(sources):
            self.assertEqual(self.pictures_of(f"T{i}"), [{"cx": "16", "cy": "16", "src": src}])
        self.assertEqual(self.bench.path("escaped.png").read_bytes(), before)
        made = {path.name for path in set(self.bench.folder.rglob("*")) - files}
        self.assertLessEqual(made, {"out.dxf", "profile.ini"})
        self.tpal("images", self.bench.path("c"), "--rebuild")
        self.assertEqual(self.bench.path("escaped.png").read_bytes(), before)

    def test_huge_picture_is_inserted_without_being_decoded(self):
        write_huge(self.bench.path("huge.png"))
        self.bench.write_catalog([("T", "Raster", {
            "RasterName": "P", "Scale": 1, "SourceFile": self.bench.stored("huge.png")}, "")])
        self.script("TOOL:T\n5,6\n")
        image, = self.bench.read().modelspace().query("IMAGE")
        self.assertEqual(tuple(image.image_def.dxf.image_size)[:2], (60000, 60000))
        self.assertLess(resource.getrusage(resource.RUSAGE_CHILDREN).ru_maxrss, MOST_MEMORY)

    def test_previews_of_custom_and_user_defined_patterns(self):
        (self.bench.path("c") / "patterns").mkdir()
        file = self.bench.path("c") / "patterns" / "mine.pat"
        file.write_text("*MINE, lines\n0, 0,0, 0,9\n")
        (self.bench.path("c") / "patterns" / "other.pat").write_text("*MINE, steep\n90, 0,0, 0,9\n")
        hatch = {"hatchObjectType": 0, "Scale": 1, "PatternName": "MINE", "HatchType": 2}
        self.bench.write_catalog([
            ("Relative", "Hatch", {**hatch, "SourceFile": "..\\patterns\\mine.pat"}, ""),
            ("Absolute", "Hatch",
             {**hatch, "SourceFile": self.bench.stored("c/patterns/mine.pat")}, ""),
            ("Other", "Hatch", {**hatch, "SourceFile": "..\\patterns\\other.pat"}, ""),
            ("Lines", "Hatch", {**hatch, "HatchType": 0, "PatternName": "_USER"}, ""),
            ("Steep", "Hatch", {**hatch, "HatchType": 0, "PatternName": "_USER",
                                "Angle": 1.5707963267948966}, ""),
            ("Crossed", "Hatch", {**hatch, "HatchType": 0, "PatternName": "_USER",
                                  "Double": "TRUE"}, "")])
        self.assertEqual(self.tpal("check", self.bench.path("c")).count("C109"), 0)
        self.tpal("images", self.bench.path("c"), "--missing")
        shown = {}
        for tool in ("Relative", "Absolute", "Other", "Lines", "Steep", "Crossed"):
            picture, = [p for p in self.pictures_of(tool) if p["cx"] == "32"]
            shown[tool] = (self.palette.parent / picture["src"][1:].replace("\\", "/")).read_bytes()
        self.assertEqual(shown["Relative"], shown["Absolute"])
        self.assertNotEqual(shown["Relative"], shown["Other"])
        self.assertEqual(len({shown["Lines"], shown["Steep"], shown["Crossed"]}), 3)
        file.write_text("*OTHER\n0, 0,0, 0,9\n")
        said = self.tpal("check", self.bench.path("c"), code=1)
        self.assertEqual(said.count('there is no hatch pattern "MINE" in ' +
                                    self.bench.stored("c/patterns/mine.pat")), 2)


if __name__ == "__main__":
    PROGRAMS = sys.argv.pop(1) if len(sys.argv) > 1 else "."
    unittest.main()
