#!/usr/bin/env python3
"""Pictures of tools from the command line of `drafton batch` and from `tpal`: buttons of the program,
pictures of every kind of file, folders that take none. What is not shown or not written is told with
its file and the reason, and the palette stays whole.

Usage: tool_pictures_test.py PROGRAMS [unittest's arguments]
"""

import os
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


def cut(write, part):
    """A file that ends behind a part of its bytes."""
    def write_cut(path):
        write(path)
        whole = path.read_bytes()
        path.write_bytes(whole[:int(len(whole) * part)])
    return write_cut


def write_bitmap(width, height, rows):
    """A BMP file with so many of its rows."""
    def write(path):
        header = struct.pack("<IiiHHIIiiII", 40, width, height, 1, 24, 0, 0, 0, 0, 0, 0)
        path.write_bytes(b"BM" + struct.pack("<IHHI", 54 + rows * width * 3, 0, 0, 54) + header +
                         b"\x40\x80\x20" * (rows * width))
    return write


def write_tiff(path):
    """A grey TIFF file of 8 by 8 pixels."""
    entries = [(256, 3, 1, 8), (257, 3, 1, 8), (258, 3, 1, 8), (259, 3, 1, 1), (262, 3, 1, 1),
               (273, 4, 1, 8 + 2 + 12 * 9 + 4), (277, 3, 1, 1), (278, 3, 1, 8), (279, 4, 1, 64)]
    path.write_bytes(b"II*\0" + struct.pack("<IH", 8, len(entries)) +
                     b"".join(struct.pack("<HHII", *entry) for entry in entries) +
                     struct.pack("<I", 0) + b"\x80" * 64)


def write_damaged_extra(path):
    """A PNG whose resolution, which is no part of the picture, has a wrong checksum."""
    write_picture(path, 40, 20)
    whole, extra = path.read_bytes(), png_chunk(b"pHYs", struct.pack(">IIB", 1000, 1000, 1))
    start = whole.index(b"IDAT") - 4
    path.write_bytes(whole[:start] + extra[:-4] + b"\0\0\0\0" + whole[start:])


NO_PICTURE = "is no picture that can be shown"
CUT = NO_PICTURE + ": its end is missing"

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
    ("extra.png", write_damaged_extra, None),
    ("wide.bmp", write_bitmap(40, 20, 20), None),
    ("grey.tiff", write_tiff, None),
    ("hugebmp.bmp", write_bitmap(60000, 60000, 0), "is too large to be shown: 60000 by 60000 pixels"),
    ("text.png", lambda path: path.write_text("Dear reader"), NO_PICTURE),
    ("empty.png", lambda path: path.write_bytes(b""), NO_PICTURE),
    ("cut.png", cut(lambda path: write_picture(path, 400, 200), 0.3), CUT),
    ("cutphoto.jpg", cut(copy_of("turned.jpg"), 0.9), CUT),
    ("cutmoving.png", cut(copy_of("animated.gif"), 0.6), CUT),
    ("cutbitmap.bmp", write_bitmap(40, 20, 10), CUT),
    ("cuttiff.tiff", cut(write_tiff, 0.9), CUT),
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
        self.assertEqual(run.stderr, "")
        return run.stdout

    def script(self, script, code=0):
        run = self.bench.run(script)
        self.assertEqual(run.returncode, code, run.stdout[-2000:] + run.stderr)
        self.errors = run.stderr
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
                self.assertEqual(self.errors, "", "decoders do not speak for themselves")
                made = self.pictures_of(title)
                if reason:
                    self.assertEqual(made, [])
                    self.assertIn(f"{self.bench.stored(name)} {reason}\n", said)
                    said = self.tpal("images", self.bench.path("c"), "--missing", code=1)
                    self.assertIn(f"{self.bench.stored(name)} {reason}\n", said)
                    continue
                self.assertEqual([p["src"] for p in made],
                                 [f"\\Images\\{title}{size}.png" for size in (16, 32, 64)])
                for size in (16, 32, 64):
                    header = (self.images / f"{title}{size}.png").read_bytes()[16:24]
                    self.assertEqual(struct.unpack(">II", header), (size, size))
        most = resource.getrusage(resource.RUSAGE_CHILDREN).ru_maxrss
        self.assertLess(most, MOST_MEMORY, "no picture is decoded that is not shown")

    def test_files_of_other_kinds(self):
        """A picture that no tool is made of is not told as missing."""
        for name, write in (("moving.gif", copy_of("animated.gif")), ("scan.tif", write_tiff),
                            ("notes.txt", lambda path: path.write_text("Dear reader"))):
            with self.subTest(name):
                write(self.bench.path(name))
                said = self.script(f"ToolPalettesMake\nP\nFile\n{self.bench.path(name)}\n", code=1)
                self.assertIn("files of this kind give no tool", said)
        said = self.script(f"ToolPalettesMake\nP\nFile\n{self.bench.path('gone.gif')}\n", code=1)
        self.assertIn("there is no such file or command", said)

    def test_pictures_in_drawings_that_cannot_be_shown(self):
        """They are drawn as their names and told, and no decoder speaks for itself."""
        write_huge(self.bench.path("huge.png"))
        write_picture(self.bench.path("cut.png"), 400, 200)
        copy_of("turned.jpg")(self.bench.path("cut.jpg"))
        names = ("huge.png", "cut.png", "cut.jpg")
        self.bench.write_catalog([(name, "Raster", {
            "RasterName": name, "Scale": 1, "SourceFile": self.bench.stored(name)}, "")
            for name in names])
        self.script("".join(f"TOOL:{name}\n{i},0\n" for i, name in enumerate(names)))
        for name in ("cut.png", "cut.jpg"):
            file = self.bench.path(name)
            file.write_bytes(file.read_bytes()[:-30])
        run = self.bench.run("", drawing="out.dxf", out="again.dxf",
                             more=["--png", self.bench.path("o.png"), "--size", "300x100",
                                   "--window", "0,0,3,1"])
        self.assertEqual(run.returncode, 0, run.stderr)
        self.assertEqual(sorted(run.stderr.splitlines()), sorted(
            f"drafton: {self.bench.path(name)} is no picture that can be shown; its name stands in "
            "its place" for name in names))
        self.assertLess(resource.getrusage(resource.RUSAGE_CHILDREN).ru_maxrss, MOST_MEMORY)
        pixels = tool_bench.pixels(self.bench.path("o.png"))
        # Of the photograph, which was red and blue, nothing is left but its name.
        colors = {pixel for row in pixels for pixel in row[205:295]}
        self.assertFalse([c for c in colors if abs(c[0] - c[2]) > 100], colors)

    def test_missing_decoder_is_named(self):
        """Without its plugin the kind of the picture is told, not that the file is broken."""
        programs = self.bench.path("programs")
        shutil.copytree(PROGRAMS, programs, ignore=lambda folder, names: [
            name for name in names if name.startswith(("test_", "bench_"))])
        plugins = pathlib.Path(subprocess.run(
            ["qtpaths6", "--query", "QT_INSTALL_PLUGINS"], text=True, capture_output=True,
            check=True).stdout.strip())
        (programs / "plugins" / "imageformats").mkdir(parents=True)
        (programs / "plugins" / "platforms").symlink_to(plugins / "platforms")
        for plugin in (plugins / "imageformats").iterdir():
            if "tiff" not in plugin.name:
                (programs / "plugins" / "imageformats" / plugin.name).symlink_to(plugin)
        (programs / "qt.conf").write_text("[Paths]\nPlugins=plugins\n")
        write_tiff(self.bench.path("grey.tiff"))
        self.bench.write_catalog([("T", "Raster", {
            "RasterName": "P", "Scale": 1, "SourceFile": self.bench.stored("grey.tiff")}, "")])
        run = subprocess.run([programs / "tpal", "images", self.bench.path("c"), "--missing"],
                             text=True, capture_output=True, timeout=120)
        self.assertEqual((run.returncode, run.stderr), (1, ""))
        self.assertIn(f"{self.bench.stored('grey.tiff')} cannot be shown: the image format plugin of "
                      'Qt for pictures of the kind "tiff" is not installed', run.stdout)
        self.bench.programs = programs
        run = self.bench.run("TOOL:T\n", keep_going=True)
        self.assertEqual(run.returncode, 1)
        self.assertIn("grey.tiff cannot be read as a picture: Qt's image format plugin for pictures "
                      'of the kind "tiff" is not installed', run.stderr)

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
        def write_huge_bitmap(path):
            write_bitmap(60000, 60000, 0)(path)
            os.truncate(path, 54 + 60000 * 60000 * 3)  # takes no room on the disk

        for name, write in (("huge.png", write_huge), ("huge.bmp", write_huge_bitmap)):
            with self.subTest(name):
                write(self.bench.path(name))
                self.bench.write_catalog([("T", "Raster", {
                    "RasterName": "P", "Scale": 1, "SourceFile": self.bench.stored(name)}, "")])
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
