#!/usr/bin/env python3
"""A catalog that moves with its drawings: every picture and every source is found where it is now.

Usage: moved_catalog_test.py PROGRAMS [unittest's arguments]
"""

import json
import pathlib
import shutil
import subprocess
import sys
import unittest

import ezdxf

import tool_bench
from tool_fields_test import write_picture

PROGRAMS = "."
COUNT = 100


class MovedCatalog(unittest.TestCase):
    def setUp(self):
        self.bench = tool_bench.Bench(PROGRAMS)
        self.addCleanup(self.bench.close)
        document = ezdxf.new("R2010")
        document.header["$INSUNITS"] = 4
        for i in range(COUNT):
            document.blocks.new(f"B{i}").add_circle((0, 0), i + 1)
        (self.bench.path("c") / "blocks").mkdir(parents=True)
        document.saveas(self.bench.path("c") / "blocks" / "all.dxf")
        self.bench.write_catalog([
            (f"T{i}", "Block", {"BlockType": 1, "BlockName": f"B{i}", "Scale": 1,
                                "SourceFile": "..\\blocks\\all.dxf"}, "") for i in range(COUNT)])

    def test_finds_patterns_and_pictures_beside_the_palette(self):
        (self.bench.path("c") / "more").mkdir()
        (self.bench.path("c") / "more" / "mine.pat").write_text("*MINE, lines\n0, 0,0, 0,9\n")
        write_picture(self.bench.path("c") / "more" / "photo.png", 40, 20)
        self.bench.write_catalog([
            ("H", "Hatch", {"hatchObjectType": 0, "HatchType": 2, "PatternName": "MINE", "Scale": 1,
                            "SourceFile": "..\\more\\mine.pat"}, ""),
            ("R", "Raster", {"RasterName": "R", "Scale": 1,
                             "SourceFile": "..\\more\\photo.png"}, "")])
        self.assertEqual(self.tpal("images", self.bench.path("c"), "--missing").returncode, 0)
        moved = self.bench.path("elsewhere")
        shutil.move(self.bench.path("c"), moved)
        self.assertEqual(self.tpal("check", moved).stdout, "")
        self.assertEqual(json.loads(self.tpal("images", moved, "--json").stdout), [])
        run = subprocess.run([pathlib.Path(PROGRAMS) / "drafton", "batch", "--profile",
                              self.bench.path("profile.ini"), "--catalogs", moved, "--out",
                              self.bench.path("out.dxf")], text=True, capture_output=True,
                             input="RECTANG 0,0 100,80\nTOOL:H\n50,40\n\nTOOL:R\n5,6\n",
                             timeout=120)
        self.assertEqual(run.returncode, 0, run.stdout[-1000:] + run.stderr)
        space = self.bench.read().modelspace()
        self.assertEqual(space.query("HATCH")[0].dxf.pattern_name, "MINE")
        self.assertEqual(pathlib.PurePath(space.query("IMAGE")[0].image_def.dxf.filename.replace(
            "\\", "/")), moved / "more" / "photo.png")

    def test_works_beside_other_catalogs(self):
        """Tools that were made while the catalog was the only one find their drawing among several."""
        blocks, others = self.bench.path("c") / "blocks" / "all.dxf", self.bench.path("a")
        made = self.tpal("make", self.bench.path("c"), "Made", blocks, "--blocks", "--group", "G")
        self.assertEqual(made.returncode, 0, made.stdout[-1000:] + made.stderr)
        palette, = (self.bench.path("c") / "Palettes").glob("Made*.dtc")
        macro = "%UserProfileSamplesFolder%\\blocks\\all.dxf"
        self.assertEqual(palette.read_text().count(macro), COUNT)
        self.tpal("make", others, "Others", "LINE")
        moved = self.bench.path("elsewhere")
        shutil.move(self.bench.path("c"), moved)
        palette = moved / "Palettes" / palette.name

        script = "TOOL:B7\n5,6\nToolPalettesMake\nMade\nC\nCIRCLE\n"
        for folders in (f"{others};{moved}", f"{moved};{others}"):
            run = subprocess.run(
                [pathlib.Path(PROGRAMS) / "drafton", "batch", "--profile",
                 self.bench.path("profile.ini"), "--catalogs", folders, "--out",
                 self.bench.path("out.dxf")],
                input=script, text=True, capture_output=True, timeout=120)
            self.assertEqual(run.returncode, 0, run.stdout[-1000:] + run.stderr)
            self.assertEqual([i.dxf.name for i in self.bench.read().modelspace().query("INSERT")],
                             ["B7"])
        text = palette.read_text()
        self.assertEqual(text.count("<Tool "), COUNT + 2, "it was saved, twice")
        self.assertEqual(text.count(macro), COUNT)

    def tpal(self, *words):
        return subprocess.run([pathlib.Path(PROGRAMS) / "tpal", *words], text=True,
                              capture_output=True, timeout=120)

    def test_finds_its_pictures_and_sources(self):
        made = self.tpal("images", self.bench.path("c"), "--missing")
        self.assertEqual(made.returncode, 0, made.stdout[-1000:] + made.stderr)
        moved = self.bench.path("elsewhere") / "deeper"
        moved.parent.mkdir()
        shutil.move(self.bench.path("c"), moved)

        looked = self.tpal("images", moved, "--json")
        self.assertEqual(json.loads(looked.stdout), [])
        self.assertEqual(len(list((moved / "Palettes" / "Images").glob("*.png"))), 3 * COUNT)

        script = "".join(f"TOOL:T{i}\n{i},0\n" for i in range(COUNT))
        run = subprocess.run([pathlib.Path(PROGRAMS) / "drafton", "batch", "--profile",
                              self.bench.path("profile.ini"), "--catalogs", moved, "--out",
                              self.bench.path("out.dxf")], input=script, text=True,
                             capture_output=True, timeout=120)
        self.assertEqual(run.returncode, 0, run.stdout[-1000:] + run.stderr)
        names = [insert.dxf.name for insert in self.bench.read().modelspace().query("INSERT")]
        self.assertEqual(names, [f"B{i}" for i in range(COUNT)])

    def test_keeps_relative_sources_when_it_is_written_anew(self):
        self.assertEqual(self.tpal("resave", self.bench.path("c")).returncode, 0)
        text = (self.bench.path("c") / "Palettes" / "palette.dtc").read_text(encoding="utf-8")
        self.assertEqual(text.count("<SourceFile>..\\blocks\\all.dxf</SourceFile>"), COUNT)


if __name__ == "__main__":
    PROGRAMS = sys.argv.pop(1) if len(sys.argv) > 1 else "."
    unittest.main()
