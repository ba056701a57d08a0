#!/usr/bin/env python3
"""A run of a tool leaves no value behind, however it ends: all variables of the host are compared
before and after runs that end well, are cancelled at each of their prompts, fail, or give way to
another tool.

Usage: tool_variables_test.py PROGRAMS [unittest's arguments]
"""

import re
import sys
import unittest

import ezdxf

import tool_bench
from tool_fields_test import write_picture, write_source

# What drawing itself changes, and what tells of time.
MOVED_BY_DRAWING = re.compile(
    "LASTPOINT|LASTANGLE|EXTM|PEXTM|HANDSEED|TD|INSNAME|HPORIGIN|CDATE|DATE|MILLISECS|DBMOD|CMD")

# Values that no tool sets, so that one that is not put back shows.
SETUP = """SETVAR HPNAME ANSI37
SETVAR HPANG 0.25
SETVAR HPSCALE 3
SETVAR HPDOUBLE 1
SETVAR HPSPACE 7
SETVAR GFNAME 3
SETVAR GFANG 0.5
SETVAR GFSHIFT 1
SETVAR ATTREQ 0
SETVAR LTSCALE 2
SETVAR CELTSCALE 3
SETVAR CECOLOR 5
RECTANG 0,0 100,80
"""

GENERAL = (
    '<Color><BasicPropInfo><PropValue unspecified="FALSE"/></BasicPropInfo>'
    '<ColorCreateInfo><AcCmColor mRGB="3271557121"/></ColorCreateInfo></Color>'
    '<LinetypeScale><BasicPropInfo><PropValue unspecified="FALSE"/></BasicPropInfo>'
    "<LTScaleCreateInfo><Scale>5</Scale></LTScaleCreateInfo></LinetypeScale>")


def variables(output):
    """The lists that SETVAR printed, one after the other."""
    lists = []
    for line in output.splitlines():
        found = re.match(r"([A-Z][A-Za-z0-9]+) {1,}(.*)$", line)
        if not found:
            continue
        name, value = found.groups()
        if name == "ACADVER":
            lists.append({})
        if lists and not MOVED_BY_DRAWING.match(name):
            lists[-1][name] = value.strip()
    return lists


class ToolVariables(unittest.TestCase):
    def setUp(self):
        self.bench = tool_bench.Bench(PROGRAMS)
        self.addCleanup(self.bench.close)
        write_source(self.bench.path("source.dxf"))
        write_picture(self.bench.path("photo.png"), 40, 20)
        self.bench.path("mine.pat").write_text("*MINE, lines\n0, 0,0, 0,9\n")
        source, photo = self.bench.stored("source.dxf"), self.bench.stored("photo.png")
        block = {"BlockType": 1, "BlockName": "Tag", "SourceFile": source, "Scale": 2,
                 "PromptRotation": "TRUE", "PromptAttributes": "TRUE"}
        self.bench.write_catalog([
            ("Block", "Block", block, GENERAL),
            ("LostBlock", "Block", {**block, "SourceFile": "C:\\no.dxf"}, GENERAL),
            ("NoBlock", "Block", {**block, "BlockName": "Nothing"}, GENERAL),
            ("Xref", "Block", {"BlockType": 2, "InsertAs": 2, "XrefType": 1, "SourceFile": source,
                               "Scale": 1, "PromptRotation": "TRUE"}, GENERAL),
            ("Hatch", "Hatch", {"hatchObjectType": 0, "HatchType": 1, "PatternName": "BRICK",
                                "Scale": 2, "Angle": 1, "Spacing": 4, "Double": "FALSE"}, GENERAL),
            ("NoPattern", "Hatch", {"hatchObjectType": 0, "HatchType": 1,
                                    "PatternName": "NOTHING", "Scale": 2}, GENERAL),
            ("Gradient", "Hatch", {"hatchObjectType": 1, "GradientName": "CURVED",
                                   "GradientAngle": 1, "GradientCentered": "TRUE"}, GENERAL),
            ("Raster", "Raster", {"RasterName": "P", "SourceFile": photo, "Scale": 4}, GENERAL),
            ("LostRaster", "Raster", {"RasterName": "P", "SourceFile": "C:\\no.png"}, GENERAL),
            ("Line", "Command", {"Macro": "_LINE \\\\;"}, GENERAL),
            ("ZeroBlock", "Block", {**block, "Scale": 0}, GENERAL),
            ("BrokenBlock", "Block", {**block, "SourceFile": photo, "PromptAttributes": "FALSE"},
             GENERAL),
            ("NamelessDrawing", "Block", {"BlockType": 2, "InsertAs": 1, "SourceFile": source},
             GENERAL),
            ("Mine", "Hatch", {"hatchObjectType": 0, "HatchType": 2, "PatternName": "MINE",
                               "SourceFile": self.bench.stored("mine.pat"), "Scale": 1}, GENERAL),
            ("Own", "Hatch", {"hatchObjectType": 0, "HatchType": 0, "Spacing": 6, "Scale": 1},
             GENERAL),
            ("LostXref", "Block", {"BlockType": 2, "InsertAs": 2, "SourceFile": "C:\\no.dxf"},
             GENERAL),
            ("LostFile", "Hatch", {"hatchObjectType": 0, "HatchType": 2, "PatternName": "MINE",
                                   "SourceFile": "C:\\no.pat", "Scale": 2}, GENERAL),
            ("ZeroRaster", "Raster", {"RasterName": "P", "SourceFile": photo, "Scale": 0}, GENERAL),
            ("NoRaster", "Raster", {"RasterName": "P", "SourceFile": source, "Scale": 1}, GENERAL),
            ("NoCommand", "Command", {"Macro": "_NOSUCHCOMMAND "}, GENERAL)])

    # The answers that bring each tool to its end.
    ANSWERS = {
        "Block": ["5,6", "30", "12"],
        "Xref": ["5,6", "30"],
        "Hatch": ["50,40", ""],
        "Gradient": ["50,40", ""],
        "Raster": ["5,6"],
        "Line": ["1,1", "2,2"],
        "LostBlock": [],
        "NoBlock": [],
        "LostRaster": [],
        "NamelessDrawing": [],
    }

    # Tools whose command fails, and what is said of it.
    FAILING = {
        "NoPattern": 'There is no hatch pattern "NOTHING".',
        "LostFile": 'There is no hatch pattern "MINE".',
        "ZeroBlock": "A block cannot be inserted at the scale 0.",
        "BrokenBlock": "this is not a DXF drawing",
        "LostXref": "no.dxf",
        "ZeroRaster": "A picture cannot be inserted at the scale 0.",
        "NoRaster": "cannot be read as a picture",
        "NoCommand": "NOSUCHCOMMAND",
    }

    def values_after(self, script, fails=False):
        run = self.bench.run(f"{SETUP}SETVAR ?\n\n{script}SETVAR ?\n\n", keep_going=fails)
        self.assertEqual(run.returncode, 1 if fails else 0, run.stdout[-1500:] + run.stderr)
        self.errors = run.stderr
        lists = variables(run.stdout)
        self.assertEqual(len(lists), 2, run.stdout[-1500:])
        self.assertGreater(len(lists[0]), 150)
        return lists

    def assert_nothing_is_left(self, script, fails=False):
        before, after = self.values_after(script, fails)
        self.assertEqual({k: v for k, v in after.items() if before.get(k) != v}, {})

    def test_is_compared_with_care(self):
        before, after = self.values_after("SETVAR HPSPACE 9\n")
        self.assertNotEqual(before, after)
        for name in ("HPNAME", "HPANG", "HPSCALE", "HPDOUBLE", "HPSPACE", "HPCOLOR", "GFNAME",
                     "GFANG", "GFSHIFT", "GFCLR1", "GFCLR2", "ATTREQ", "CECOLOR", "CELTSCALE",
                     "CLAYER", "DIMSCALE"):
            self.assertIn(name, before)

    def test_a_run_to_its_end(self):
        for tool, answers in self.ANSWERS.items():
            with self.subTest(tool):
                self.assert_nothing_is_left(
                    f"TOOL:{tool}\n" + "".join(answer + "\n" for answer in answers))

    def test_failed(self):
        for tool, message in self.FAILING.items():
            with self.subTest(tool):
                self.assert_nothing_is_left(f"TOOL:{tool}\n", fails=True)
                self.assertIn(message, self.errors)
                self.assertEqual(self.errors.count("drafton: "), 1, self.errors)

    def test_failed_after_another_tool_was_replaced(self):
        for tool in ("Block", "Xref", "Hatch", "Gradient", "Raster", "Line"):
            for other in self.FAILING:
                with self.subTest(tool=tool, other=other):
                    self.assert_nothing_is_left(f"TOOL:{tool}\nTOOL:{other}\n", fails=True)

    def test_failed_and_run_again(self):
        for tool in self.FAILING:
            for other in ("Block", "Hatch", "Gradient"):
                with self.subTest(tool=tool, other=other):
                    self.assert_nothing_is_left(
                        f"TOOL:{tool}\nTOOL:{other}\n" +
                        "".join(a + "\n" for a in self.ANSWERS[other]), fails=True)

    def test_attribute_requests_in_each_way(self):
        """ATTREQ is as it was after every end, with either value and with tools of either wish."""
        for value in (0, 1):
            for tool in ("Block", "LostBlock", "NoBlock", "ZeroBlock", "BrokenBlock",
                         "NamelessDrawing", "LostXref"):
                for end in ("^C\n", "TOOL:Line\n1,1\n2,2\n", "TOOL:Block\n5,6\n30\n^C\n"):
                    with self.subTest(value=value, tool=tool, end=end):
                        before, after = self.values_after(
                            f"SETVAR ATTREQ {value}\nTOOL:{tool}\n{end}",
                            fails=tool in self.FAILING)
                        self.assertEqual(after["ATTREQ"], str(value))

    def test_cancelled_at_each_prompt(self):
        for tool, answers in self.ANSWERS.items():
            for count in range(len(answers)):
                with self.subTest(tool=tool, prompt=count + 1):
                    self.assert_nothing_is_left(
                        f"TOOL:{tool}\n" + "".join(a + "\n" for a in answers[:count]) + "^C\n")

    def test_replaced_by_another_tool_at_each_prompt(self):
        for tool, answers in self.ANSWERS.items():
            for count in range(len(answers)):
                for other in ("Hatch", "Block", "Gradient", "Line", "Xref", "Raster"):
                    with self.subTest(tool=tool, prompt=count + 1, other=other):
                        self.assert_nothing_is_left(
                            f"TOOL:{tool}\n" + "".join(a + "\n" for a in answers[:count]) +
                            f"TOOL:{other}\n" +
                            "".join(a + "\n" for a in self.ANSWERS[other]))

    def test_replaced_and_then_cancelled(self):
        for tool in ("Block", "Hatch", "Gradient", "Line"):
            for other in ("Hatch", "Block", "Gradient", "Line", "Xref", "Raster"):
                with self.subTest(tool=tool, other=other):
                    self.assert_nothing_is_left(f"TOOL:{tool}\nTOOL:{other}\n^C\n")

    # How a run ends, whether it fails, and the hatches that it leaves.
    ENDS = {
        "to its end": ("50,40\n\n", False, 1),
        "cancelled": ("^C\n", False, 0),
        "cancelled at the last prompt": ("50,40\n^C\n", False, 0),
        "replaced": ("TOOL:Line\n1,1\n2,2\n", False, 0),
        "replaced by a hatch": ("TOOL:Hatch\n50,40\n\n", False, 1),
        "replaced by one that fails": ("TOOL:NoPattern\n", True, 0),
    }

    def test_settings_of_hatches(self):
        """The kind of pattern and its file are no variables. A pattern of the tool's own file must
        not be found afterwards, and lines of its own must not be drawn by the next hatch."""
        for tool in ("Mine", "Own", "LostFile"):
            for end, (answers, fails, count) in self.ENDS.items():
                if tool == "LostFile":
                    if end != "to its end":
                        continue
                    answers, fails, count = "", True, 0
                with self.subTest(tool=tool, end=end):
                    run = self.bench.run(f"RECTANG 0,0 100,80\nTOOL:{tool}\n{answers}"
                                         "FASTHATCHCMD 50,40\n\n", keep_going=True)
                    self.assertEqual(run.returncode, int(fails), run.stdout[-1500:] + run.stderr)
                    hatches = self.bench.read().modelspace().query("HATCH")
                    self.assertEqual(len(hatches), count + 1, run.stdout[-1500:])
                    self.assertEqual((hatches[-1].dxf.pattern_name, hatches[-1].dxf.pattern_type),
                                     ("ANSI31", 1))
                    run = self.bench.run(f"RECTANG 0,0 100,80\nTOOL:{tool}\n{answers}"
                                         "SETVAR HPNAME MINE\nFASTHATCHCMD\n", keep_going=True)
                    self.assertEqual(run.returncode, 1, run.stdout[-1500:])
                    self.assertIn('There is no hatch pattern "MINE"', run.stderr)
                    self.assertEqual(len(self.bench.read().modelspace().query("HATCH")), count)

    def test_undone(self):
        for tool, answers in self.ANSWERS.items():
            if answers:
                with self.subTest(tool):
                    self.assert_nothing_is_left(
                        f"TOOL:{tool}\n" + "".join(a + "\n" for a in answers) + "U\n")


if __name__ == "__main__":
    PROGRAMS = sys.argv.pop(1) if len(sys.argv) > 1 else "."
    unittest.main()
