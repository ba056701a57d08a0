#!/usr/bin/env python3
"""Each general property of a tool in drawings that have its record, lack it, and have another one of
its name: what is in force during the run, what is drawn, and what the drawing holds after each kind
of end.

Usage: tool_properties_test.py PROGRAMS [unittest's arguments]
"""

import sys
import unittest

import ezdxf

import tool_bench
from tool_variables_test import variables

PROGRAMS = "."


def prop(tag, value=None, info=""):
    text = "" if value is None else f' valueType="1" value="{value}"'
    return (f'<{tag}><BasicPropInfo><PropValue unspecified="FALSE"{text}/></BasicPropInfo>'
            f"{info}</{tag}>")


def color(value):
    return prop("Color", info=f'<ColorCreateInfo><AcCmColor mRGB="{value}"/></ColorCreateInfo>')


RECORD_NAME = "<SymbolTableNameRecord>{}</SymbolTableNameRecord>"
DASHED = (
    "<LineTypeCreateInfo><LinetypeTableRecord numberOfPatternElements=\"2\">"
    + RECORD_NAME.format("Dash") + "<Description>from the tool</Description>"
    "<TotalPatternLength>3</TotalPatternLength><LinetypeElements>"
    "<LinetypeElement><Dash>2</Dash></LinetypeElement>"
    "<LinetypeElement><Space>-1</Space></LinetypeElement>"
    "</LinetypeElements></LinetypeTableRecord></LineTypeCreateInfo>")

# Property: its XML, the variable that it drives, and what is shown while the tool runs.
PROPERTIES = {
    "Color": (color(0xC3000001), "CECOLOR", "1"),
    "Layer": (prop("Layer", "Walls", (
        '<LayerCreateInfo><LayerTableRecord isNotPlotted="TRUE" lineWeight="35">'
        + RECORD_NAME.format("Walls") + prop("Linetype", "Dash", DASHED) + color(0xC3000003)
        + "</LayerTableRecord></LayerCreateInfo>")), "CLAYER", "Walls"),
    "Linetype": (prop("Linetype", "Dash", DASHED), "CELTYPE", "Dash"),
    "LinetypeScale": (prop("LinetypeScale", "2.5"), "CELTSCALE", "2.5"),
    "PlotStyle": (prop("PlotStyle", "ByBlock"), "CEPSNTYPE", "1"),
    "LineWeight": (prop("LineWeight", "35"), "CELWEIGHT", "35"),
    "Transparency": (prop("Transparency", "40"), "CETRANSPARENCY", "40"),
    "Textstyle": (prop("Textstyle", "Notes", (
        '<TextStyleCreateInfo><TextstyleTableRecord isShapeFilePointer="FALSE" '
        'fontOrShapeFile="romans.shx" widthRatio="0.75">' + RECORD_NAME.format("Notes")
        + "<FixedTextHeight>4</FixedTextHeight></TextstyleTableRecord></TextStyleCreateInfo>")),
        "TEXTSTYLE", "Notes"),
    "Dimstyle": (prop("Dimstyle", "Site", (
        '<DimStyleCreateInfo><DimstyleTableRecord dimscale="20" dimtxt="7" dimtad="1">'
        + RECORD_NAME.format("Site") + "</DimstyleTableRecord></DimStyleCreateInfo>")),
        "DIMSTYLE", "Site"),
    "Tablestyle": (prop("Tablestyle", "Parts"), None, None),
}

# The records of the tools, as the tools have them and with other contents.
RECORDS = {
    "Layer": lambda document, other: document.layers.add(
        "WALLS" if other else "Walls", color=6 if other else 3),
    "Linetype": lambda document, other: document.linetypes.add(
        "DASH" if other else "Dash", [9.0, 5.0, -4.0] if other else [3.0, 2.0, -1.0]),
    "Textstyle": lambda document, other: document.styles.add(
        "NOTES" if other else "Notes", font="arial.ttf" if other else "romans.shx"),
    "Dimstyle": lambda document, other: document.dimstyles.add(
        "SITE" if other else "Site", dxfattribs={"dimscale": 3.0 if other else 20.0}),
}

MACROS = {
    "Line": "_LINE \\\\;",
    "Text": "_MTEXT 0,0 50,-20 Hello;;",
    "Dimension": "_DIMLINEAR 0,0 10,0 5,5",
    "Look": "SETVAR ?;",
}


def header(document):
    """The current values in a file; records by their names, in whatever case."""
    names = ("$CECOLOR", "$CLAYER", "$CELTYPE", "$CELTSCALE", "$CEPSNTYPE", "$CELWEIGHT",
             "$TEXTSTYLE", "$DIMSTYLE", "$DIMSCALE", "$DIMTXT", "$DIMTAD", "$CETRANSPARENCY")
    return {name: str(document.header.get(name)).upper() for name in names}


class ToolProperties(unittest.TestCase):
    def setUp(self):
        self.bench = tool_bench.Bench(PROGRAMS)
        self.addCleanup(self.bench.close)

    def prepare(self, name, records=None):
        """A catalog of tools with the property, and a drawing with its record or without."""
        self.bench.write_catalog(
            [(tool, "Command", {"Macro": macro}, PROPERTIES[name][0] if name else "")
             for tool, macro in MACROS.items()]
            + [("Other", "Command", {"Macro": MACROS["Line"]}, color(0xC3000002))])
        document = ezdxf.new("R2010")
        document.header["$DIMSTYLE"] = "Standard"
        if records and name in RECORDS:
            RECORDS[name](document, records == "other")
        document.saveas(self.bench.path("host.dxf"))

    def run_script(self, script):
        run = self.bench.run(script, "host.dxf")
        self.assertEqual(run.returncode, 0, run.stdout[-2000:] + run.stderr)
        return run.stdout

    def each_state(self, check):
        """Calls check(property, records) in each drawing."""
        for name in PROPERTIES:
            for records in (None, "same", "other") if name in RECORDS else (None,):
                with self.subTest(property=name, records=records):
                    self.prepare(name, records)
                    check(name, records)

    def test_in_force_during_the_run(self):
        def check(name, _):
            before, during = variables(self.run_script("SETVAR ?\n\nTOOL:Look\n\n"))[:2]
            changed = {key for key in during if during[key] != before.get(key)}
            _, variable, value = PROPERTIES[name]
            if variable is None:
                self.assertEqual(changed, set())
                return
            self.assertEqual(during[variable].upper().split()[0].strip('"'), value.upper())
            # A dimension style brings its variables; nothing else drives more than its own.
            self.assertEqual({key for key in changed if not key.startswith("DIM")}
                             - {variable}, set() if name != "Textstyle" else
                             changed & {"TEXTSIZE"})
        self.each_state(check)

    def test_what_is_drawn(self):
        attributes = {"Color": ("color", 1), "Linetype": ("linetype", "DASH"),
                      "Layer": ("layer", "WALLS"), "LinetypeScale": ("ltscale", 2.5),
                      "LineWeight": ("lineweight", 35)}
        def check(name, _):
            if name in attributes:
                self.run_script("TOOL:Line\n1,1\n2,2\n")
                line = self.bench.read().modelspace()[0]
                attribute, value = attributes[name]
                found = line.dxf.get(attribute)
                self.assertEqual(found.upper() if isinstance(found, str) else found, value)
            elif name == "Transparency":
                self.run_script("TOOL:Line\n1,1\n2,2\n")
                line = self.bench.read().modelspace()[0]
                self.assertAlmostEqual(line.transparency, 0.4, places=2)
            elif name == "Textstyle":
                self.run_script("TOOL:Text\n")
                text = self.bench.read().modelspace().query("MTEXT")[0]
                self.assertEqual((text.dxf.style.upper(), text.dxf.text), ("NOTES", "Hello"))
            elif name == "PlotStyle":
                self.run_script("TOOL:Line\n1,1\n2,2\nLINE 0,0 1,1 \n")
                line, plain = self.bench.read().modelspace()
                self.assertEqual(line.dxf.get("plotstyle_enum"), 1)
                self.assertEqual(plain.dxf.get("plotstyle_enum", 0), 0)
            elif name == "Dimstyle":
                self.run_script("TOOL:Dimension\n")
                dimension = self.bench.read().modelspace().query("DIMENSION")[0]
                self.assertEqual(dimension.dxf.dimstyle.upper(), "SITE")
        self.each_state(check)

    def test_named_plot_style_is_drawn(self):
        self.prepare(None)
        document = ezdxf.readfile(self.bench.path("host.dxf"))
        document.header["$PSTYLEMODE"] = 0
        styles = document.rootdict["ACAD_PLOTSTYLENAME"]
        styles["Grey"] = document.objects.add_placeholder(styles.dxf.handle)
        document.saveas(self.bench.path("host.dxf"))
        self.bench.write_catalog([("T", "Command", {"Macro": MACROS["Line"]},
                                   prop("PlotStyle", "Grey"))])
        self.assert_nothing_is_left("TOOL:T\n1,1\n2,2\n")
        made = self.bench.read()
        self.assertEqual(made.modelspace()[0].dxf.get("plotstyle_handle"),
                         made.rootdict["ACAD_PLOTSTYLENAME"]["Grey"].dxf.handle)

    def test_records_of_the_drawing_win(self):
        tables = {"Layer": ("layers", "Walls", "color", 6, 3),
                  "Linetype": ("linetypes", "Dash", "length", 9.0, 3.0),
                  "Textstyle": ("styles", "Notes", "font", "arial.ttf", "romans.shx"),
                  "Dimstyle": ("dimstyles", "Site", "dimscale", 3.0, 20.0)}
        def check(name, records):
            if name not in tables:
                return
            self.run_script("TOOL:Line\n1,1\n2,2\n")
            table, record, attribute, theirs, ours = tables[name]
            found = getattr(self.bench.read(), table).get(record)
            value = found.dxf.get(attribute) if attribute != "length" else (
                next(tag.value for tag in found.pattern_tags.tags if tag.code == 40))
            self.assertEqual(value, theirs if records == "other" else ours)
            if name == "Layer" and records is None:
                self.assertEqual((found.dxf.plot, found.dxf.lineweight, found.dxf.linetype),
                                 (0, 35, "Dash"))
        self.each_state(check)

    def assert_nothing_is_left(self, script):
        output = self.run_script(f"SETVAR ?\n\n{script}SETVAR ?\n\n")
        before, after = variables(output)[:1] + variables(output)[-1:]
        self.assertEqual({k: (before.get(k), v) for k, v in after.items() if before.get(k) != v},
                         {})

    ENDS = {
        "end": "TOOL:Line\n1,1\n2,2\n",
        "cancel at the first prompt": "TOOL:Line\n^C\n",
        "cancel at the second prompt": "TOOL:Line\n1,1\n^C\n",
        "replaced": "TOOL:Line\n1,1\nTOOL:Other\n3,3\n4,4\n",
        "replaced and cancelled": "TOOL:Line\nTOOL:Other\n^C\n",
        "undone": "TOOL:Line\n1,1\n2,2\nU\n",
        "undone and done again": "TOOL:Line\n1,1\n2,2\nU\nREDO\n",
        "undone to the start and done again": "TOOL:Line\n1,1\n2,2\nU\nU\nREDO\nREDO\n",
        "undone twice": "TOOL:Line\n1,1\n2,2\nTOOL:Line\n1,1\n2,2\nU\nU\n",
        "another kind": "TOOL:Dimension\n",
    }

    def test_nothing_is_left_after_each_end(self):
        def check(*_):
            for end, script in self.ENDS.items():
                with self.subTest(end=end):
                    self.assert_nothing_is_left(script)
        self.each_state(check)

    def test_a_tool_goes_on_when_another_drawing_is_closed(self):
        def check(*_):
            ezdxf.new("R2010").saveas(self.bench.path("other.dxf"))
            other = self.bench.path("other.dxf")
            for close in ("CloseDocument\n", "LINE 0,0 1,1\n\nCloseDocument\nNo\n"):
                with self.subTest(close=close):
                    self.assert_nothing_is_left(
                        f"OpenDocument {other}\nDOCUMENT:host.dxf\nTOOL:Line\n1,1\n"
                        f"DOCUMENT:other.dxf\n{close}2,2\n")
                    self.assertEqual(len(self.bench.read().modelspace()), 1)
        self.each_state(check)

    def test_values_are_back_in_the_file_that_is_saved_after_a_cancel_or_a_failure(self):
        def check(*_):
            ezdxf.readfile(self.bench.path("host.dxf")).saveas(self.bench.path("plain.dxf"))
            self.run_script("")
            before = header(self.bench.read())
            for script in ("TOOL:Line\n1,1\n^C\n", "TOOL:Line\n1,1\n2,2\nU\n"):
                with self.subTest(script=script):
                    self.run_script(script)
                    self.assertEqual(header(self.bench.read()), before)
        self.each_state(check)

    def test_unspecified_leaves_the_drawings_value_alone(self):
        def check(name, _):
            xml = PROPERTIES[name][0].replace('unspecified="FALSE"', 'unspecified="TRUE"', 1)
            self.bench.write_catalog([("Look", "Command", {"Macro": MACROS["Look"]}, xml)])
            before, during = variables(self.run_script("SETVAR ?\n\nTOOL:Look\n\n"))[:2]
            self.assertEqual({key: before[key] for key in during}, during)
        self.each_state(check)

    def test_bad_values_are_told_and_the_run_goes_on(self):
        bad = {
            "999": prop("LineWeight", "999"),
            "150": prop("Transparency", "150"),
            "a/b": prop("Layer", "a/b", "<LayerCreateInfo><LayerTableRecord>"
                        + RECORD_NAME.format("a/b") + "</LayerTableRecord></LayerCreateInfo>"),
            "2415919104": color(0x90000000),
        }
        for told, xml in bad.items():
            with self.subTest(told):
                self.prepare(None)
                self.bench.write_catalog([("T", "Command", {"Macro": MACROS["Line"]}, xml)])
                output = self.run_script("TOOL:T\n1,1\n2,2\n")
                self.assertIn(f'"{told}"', output)
                self.assertEqual(len(self.bench.read().modelspace()), 1)


if __name__ == "__main__":
    PROGRAMS = sys.argv.pop(1) if len(sys.argv) > 1 else "."
    unittest.main()
