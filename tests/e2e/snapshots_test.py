#!/usr/bin/env python3
"""Snapshots arrive equal: of a drawing with every field off its default a palette is made, which
another process runs in a drawing that lacks all records; ezdxf compares them field by field.

Usage: snapshots_test.py PROGRAMS [unittest's arguments]
"""

import math
import re
import subprocess
import sys
import unittest

import ezdxf
from ezdxf.lldxf.types import DXFTag

import tool_bench

PROGRAMS = "."

# What catalogs do not keep: the big font of a text style, and how alternate units are written.
NOT_KEPT = {"STYLE": {"bigfont"}, "DIMSTYLE": {"dimaltu"}}
# What says where a record stands, and not what it is.
PLACE = {"handle", "owner"}
ARROWS = {"dimblk_handle", "dimblk1_handle", "dimblk2_handle", "dimldrblk_handle"}
STYLES = {"dimtxsty_handle"}
LINE_TYPES = {"dimltype_handle", "dimltex1_handle", "dimltex2_handle"}

DIM_VALUES = dict(
    dimpost="<> mm", dimapost="[] in", dimscale=2.5, dimasz=1.25, dimexo=0.75, dimdli=4.5,
    dimexe=1.5, dimrnd=0.5, dimdle=0.25, dimtp=0.125, dimtm=0.375, dimtol=1, dimlim=1, dimtih=0,
    dimtoh=0, dimse1=1, dimse2=1, dimtad=3, dimzin=8, dimazin=2, dimtxt=3.5, dimcen=-2.0,
    dimtsz=0.625, dimaltf=0.0393701, dimlfac=10.0, dimtvp=1.75, dimtfac=0.5, dimgap=0.875,
    dimaltrnd=0.0625, dimalt=1, dimaltd=4, dimtofl=1, dimsah=1, dimtix=1, dimsoxd=1, dimclrd=1,
    dimclre=2, dimclrt=3, dimadec=2, dimdec=3, dimtdec=5, dimaltu=4, dimalttd=3, dimaunit=1,
    dimfrac=2, dimlunit=4, dimdsep=44, dimtmove=2, dimjust=3, dimsd1=1, dimsd2=1, dimtolj=2,
    dimtzin=4, dimaltz=2, dimalttz=1, dimupt=1, dimatfit=1, dimfxlon=1, dimfxl=6.5,
    dimjogang=math.radians(30), dimtfill=2, dimtfillclr=4, dimarcsym=1, dimlwd=35, dimlwe=50)


def write_source(path):
    document = ezdxf.new("R2010")
    document.styles.add("Notes", font="romans.shx", dxfattribs={
        "height": 2.5, "width": 0.75, "oblique": 15, "generation_flags": 6, "last_height": 3.5,
        "flags": 4, "bigfont": "bigfont.shx"})
    fancy = document.styles.add("Fancy", font="arial.ttf")
    fancy.set_extended_font_data("Arial", italic=True, bold=True)
    document.styles.add_shx("ltypeshp.shx")
    document.linetypes.add("Dashed", [3.0, 1.5, -0.5, 0.0, -1.0], description="__ . __ .")
    document.linetypes.add(
        "Gas", 'A,.5,-.2,["GAS <&>",Notes,S=.125,U=45.0,X=-.1,Y=-.05],-.25',
        description="____GAS____", length=0.95)
    document.linetypes.add("Fence", "A,.25,-.1,[132,ltypeshp.shx,x=-.1,s=.1],-.1,1",
                           description="----0-----0", length=1.45)
    document.layers.add("Walls", color=3, linetype="Gas", lineweight=35, plot=False)
    document.layers.add("Exact", true_color=ezdxf.rgb2int((16, 32, 48)), linetype="Dashed",
                        lineweight=-3)
    write_arrows(document)
    style = document.dimstyles.add("Site", dxfattribs=DIM_VALUES)
    style.dxf.dimtxsty = "Fancy"
    style.dxf.dimblk, style.dxf.dimblk1, style.dxf.dimblk2 = "MyArrow", "MyArrow", "_Oblique"
    style.dxf.dimldrblk = "_Oblique"
    style.dxf.dimltype, style.dxf.dimltex1, style.dxf.dimltex2 = "Dashed", "Gas", "Fence"
    document.saveas(path)


def write_arrows(document):
    """The blocks of the arrows: a style finds them in a drawing, and does not bring them."""
    for name in ("MyArrow", "_Oblique"):
        document.blocks.new(name).add_line((-1, 0), (0, 0))


def named(document, handle):
    """A style or block by its name, a shape file by its file."""
    entity = document.entitydb.get(handle)
    return None if entity is None else entity.dxf.get("name") or entity.dxf.get("font")


def fields(document, record):
    """All that a record says, references by name."""
    kind = record.dxftype()
    found = {}
    for name, value in record.dxfattribs().items():
        if name in PLACE or name in NOT_KEPT.get(kind, ()):
            continue
        found[name] = named(document, value) if name in ARROWS | STYLES | LINE_TYPES else value
    if kind == "STYLE":
        found["font data"] = record.get_extended_font_data()
    if kind == "LTYPE":
        # The first tags are those of the common part.
        tags = [tag for tag in record.pattern_tags.tags if isinstance(tag, DXFTag)]
        found["pattern"] = [(tag.code, named(document, tag.value) if tag.code == 340 else tag.value)
                            for tag in tags]
    if kind == "LAYER":
        if "true_color" in found:
            found.pop("color")  # beside a true colour a file says any index
        found.pop("plotstyle_handle", None)
        found.pop("material_handle", None)
        found.pop("unknown1", None)
    return found


class Snapshots(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.bench = tool_bench.Bench(PROGRAMS)
        cls.addClassCleanup(cls.bench.close)
        write_source(cls.bench.path("source.dxf"))
        made = subprocess.run([str(cls.bench.programs / "snapshot_palette"),
                               str(cls.bench.path("source.dxf")), str(cls.bench.path("c"))],
                              capture_output=True, text=True, timeout=60)
        if made.returncode != 0:
            raise AssertionError(made.stderr)
        # Tools are found in the palettes of groups.
        catalog = cls.bench.path("c") / "DrfTcCatalog.dtc"
        palette = re.search(r"Snapshots_\{(.*?)\}", catalog.read_text(encoding="utf-8")).group(1)
        catalog.write_text(tool_bench.CATALOG.replace("palette.dtc", f"Snapshots_{{{palette}}}.dtc")
                           % (tool_bench.fresh_id(), palette, tool_bench.fresh_id(), palette),
                           encoding="utf-8")
        cls.source = ezdxf.readfile(cls.bench.path("source.dxf"))
        target = ezdxf.new("R2010")
        write_arrows(target)
        target.saveas(cls.bench.path("target.dxf"))

    def arrived(self, tool):
        run = self.bench.run(f"TOOL:{tool}\n", "target.dxf")
        self.assertEqual(run.returncode, 0, run.stdout[-2000:] + run.stderr)
        for word in ("Cannot", "cannot"):
            self.assertNotIn(word, run.stdout)
        return self.bench.read()

    def assert_equal_fields(self, sent, came):
        self.assertEqual(set(sent), set(came))
        for name, value in sent.items():
            with self.subTest(name):
                self.assert_near(value, came[name])

    def assert_near(self, sent, came):
        """Catalogs write reals with six digits."""
        if isinstance(sent, (list, tuple)):
            self.assertEqual(len(sent), len(came))
            for one, other in zip(sent, came):
                self.assert_near(one, other)
        elif isinstance(sent, float):
            self.assertTrue(math.isclose(sent, came, rel_tol=1e-5, abs_tol=1e-9), (sent, came))
        else:
            self.assertEqual(sent, came)

    def compare(self, table, tool, name):
        target = ezdxf.readfile(self.bench.path("target.dxf"))
        self.assertNotIn(name, getattr(target, table))
        document = self.arrived(tool)
        self.assert_equal_fields(fields(self.source, getattr(self.source, table).get(name)),
                                 fields(document, getattr(document, table).get(name)))
        return document

    def test_layers(self):
        for name in ("Walls", "Exact"):
            with self.subTest(name):
                document = self.compare("layers", f"Layer {name}", name)
                self.assertEqual(document.modelspace()[0].dxf.layer, name)
                self.assertIn(self.source.layers.get(name).dxf.linetype, document.linetypes)

    def test_line_types(self):
        for name in ("Dashed", "Gas", "Fence"):
            with self.subTest(name):
                document = self.compare("linetypes", f"Linetype {name}", name)
                self.assertEqual(document.modelspace()[0].dxf.linetype, name)

    def test_the_style_of_a_text_in_a_line_type_comes_with_it(self):
        document = self.arrived("Linetype Gas")
        self.assert_equal_fields(fields(self.source, self.source.styles.get("Notes")),
                                 fields(document, document.styles.get("Notes")))

    def test_the_shape_file_of_a_line_type_comes_with_it(self):
        document = self.arrived("Linetype Fence")
        style = document.styles.find_shx("ltypeshp.shx")
        self.assertIsNotNone(style)
        self.assertEqual(style.dxf.name, "")
        self.assertTrue(style.dxf.flags & 1)

    def test_text_styles(self):
        for name in ("Notes", "Fancy"):
            with self.subTest(name):
                self.compare("styles", f"Textstyle {name}", name)

    def test_dimension_style(self):
        sent = fields(self.source, self.source.dimstyles.get("Site"))
        usual = fields(self.source, ezdxf.new("R2010").dimstyles.get("Standard"))
        self.assertEqual([name for name in DIM_VALUES
                          if name in sent and sent[name] == usual.get(name)], [], "all are off their defaults")
        document = self.compare("dimstyles", "Dimstyle Site", "Site")
        for name in ("Dashed", "Gas", "Fence"):
            self.assertIn(name, document.linetypes)
        self.assertIn("Fancy", document.styles)

    def test_a_dimension_style_without_its_arrows_has_the_usual_ones(self):
        ezdxf.new("R2010").saveas(self.bench.path("bare.dxf"))
        run = self.bench.run("TOOL:Dimstyle Site\n", "bare.dxf")
        self.assertEqual(run.returncode, 0, run.stdout[-2000:])
        style = self.bench.read().dimstyles.get("Site")
        self.assertEqual([style.dxf.get(name) for name in sorted(ARROWS) if style.dxf.hasattr(name)
                          and style.dxf.get(name) != "0"], [])


if __name__ == "__main__":
    PROGRAMS = sys.argv.pop(1) if len(sys.argv) > 1 else "."
    unittest.main()
