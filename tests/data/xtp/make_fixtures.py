#!/usr/bin/env python3
"""Writes the palettes of this folder, each for one habit of the programs that export them."""

import pathlib
import sys

HERE = pathlib.Path(__file__).parent
sys.path.insert(0, str(HERE.parents[2] / "samples" / "xtp"))

from xtp_writer import (BY_BLOCK, BY_LAYER, INDEX, INTEGER, NO_COLOR, REAL, TEXT,  # noqa: E402
                        TRUE_COLOR, Palette, dynamic_block_tree, guid)

RED, GREY = (200, 60, 50), (120, 120, 120)
fixtures = {}


def fixture(function):
    fixtures[function.__name__] = function
    return function


def new(title, **more):
    return Palette(HERE, title, title.replace("_", " "), "25.1.1", **more)


@fixture
def one_line(p):
    p.command("Quotes \" and '", "^C^C_TEXT 0,0 1 0 \"it's\"")
    p.command("Küche ©", "_LINE")


@fixture
def numbered_letters(p):
    p.write.numbered = True
    p.command("Küche ©", "_TEXT ä", description="größer & kleiner < als")


@fixture
def line_breaks(p):
    p.command("Macro", "^C^C_LINE 0,0\n10,0   10,10\r\n\t;", description="First\n  second   third\n")


@fixture
def names_by_parent(p):
    w = p.write
    p.tool("First", [p.general(), w.element("Command", Macro="_ONE")],
           before=w.element("Source", w.element("SourceFile", w.element("Path", "x")),
                            w.element("Tool", w.plain("ItemName", "no tool"))))
    p.block("Second", "C:\\b.dwg")


@fixture
def overlay(p):
    w = p.write
    more = (w.element("Overlay", w.element("Images", w.element("Image", cx=0)))
            + w.element("Time", createdUniversalDateTime="2026-01-05T08:00:00"))
    p.command("Tool", "_LINE", [p.image("tool.png", 64, RED)], after_images=more)


@fixture
def empty_elements(p):
    w = p.write
    p.tool("Stock", [p.general(), w.element("Command", Macro="_ONE")], stock=False)
    p.tool("No data", [])
    p.block("Block", "b.dwg", beside=w.element("DynamicProperties"))
    p.command("Behind", "_TWO")


@fixture
def texts_and_separators(p):
    p.command("Before", "_ONE")
    p.entry("Heading", 3)
    p.entry("", 4)
    p.command("Behind", "_TWO")


@fixture
def general_properties(p):
    p.command("All", "_LINE", general=p.general(
        p.color(TRUE_COLOR, 0x102030), p.layer("WALLS", 3), p.value("Linetype", "DASHED"),
        p.value("LinetypeScale", "0.5", REAL), p.value("PlotStyle", "ByLayer"),
        p.value("LineWeight", 50, INTEGER), p.value("Transparency", 40, INTEGER),
        p.value("Textstyle", "Standard"), p.value("Dimstyle", "Standard"),
        p.value("Tablestyle", "Standard")))
    p.command("None", "_LINE")


@fixture
def numbers_for_words(p):
    for weight in (-1, -2, -3, 25):
        p.command(f"Weight {weight}", "_LINE", general=p.general(
            p.value("LineWeight", weight, INTEGER), p.value("Transparency", "VonLayer", TEXT)))


@fixture
def color_methods(p):
    for name, method, rest in (("by layer", BY_LAYER, 0), ("by block", BY_BLOCK, 0),
                               ("true", TRUE_COLOR, 0xFF8000), ("index", INDEX, 5),
                               ("none", NO_COLOR, 0)):
        p.command(name, "_LINE", general=p.general(p.color(method, rest)))


@fixture
def four_images(p):
    images = [p.image(f"t{size}{'d' if dark else 'l'}.png", size, GREY if dark else RED, dark=dark)
              for size in (32, 64) for dark in (True, False)]
    p.command("Four", "_LINE", images)
    p.command("Dark alone", "_LINE", [p.image("t32d.png", 32, dark=True)])


@fixture
def missing_pictures(p):
    p.command("Gone", "_LINE", [p.image("gone.png", 64)])
    p.command("One of two", "_LINE", [p.image("gone32.png", 32), p.image("here.png", 64, RED)])
    p.command("Other case", "_LINE", [p.image("HERE.PNG", 64)])


@fixture
def dynamic_block(p):
    p.block("Dynamic", "D:\\lib\\dyn.dwg", beside=dynamic_block_tree(p.write, 18, 100))
    p.command("Behind", "_LINE")


@fixture
def paths(p):
    for source in ("%UserProfileFolder%\\a\\b.dwg", "%AECCONTENT_DIR%\\c.dwg", "C:\\d\\e.dwg",
                   "\\\\server\\share\\f.dwg", "g.dwg", "a%UserProfileFolder%\\h.dwg"):
        p.block(source, source, "B")


@fixture
def add_on_products(p):
    w = p.write
    units = w.element("Units", value=4)
    p.tool("Wrapped", [w.element("AecDbCommandObject",
                                 w.plain("CommandString", "^C^C_LINE 0,0\n1,1 ;")), units])
    p.tool("Bare", [w.plain("CommandString", "^C^C_CIRCLE 0,0 3"), units])
    for record in ("AecDbScheduleTagObject", "AecDbGeo", "AEC_DTLCOMP_INFO", "Recipe101"):
        p.tool(record, [w.element(record, w.plain("Style", "Standard")), units])


@fixture
def custom_data_alone(p):
    w = p.write
    p.tool("Version", [p.general(), w.element("Command", Macro="_ZOOM")],
           before=w.element("CustomData", w.element("Version", value=3),
                            w.element("Translation", name="x")))


@fixture
def multitool(p):
    w = p.write
    custom = w.element("CustomData", w.plain("className", "OdDbCircle"), w.plain("idButton", "ID"))
    flyout = w.element("Flyout", w.element("ShapePackage", idValue="{SP}"),
                       w.element("CurrentShape", idValue="{CS}"), enable="TRUE")
    p.tool("Shapes", [p.general()], before=custom + flyout)
    p.tool("Shapes again", [p.general()], before=flyout + custom)
    p.tool("Unknown", [p.general()],
           before=w.element("CustomData", w.plain("className", "OdDbNothing")) + flyout)


@fixture
def xrefs(p):
    for kind in (1, 2):
        p.block(f"Xref {kind}", "C:\\plans\\x.dwg", "x", block_type=2, insert_as=2, xref_type=kind)


@fixture
def unsupported_kinds(p):
    w = p.write
    p.command("Kept", "_LINE")
    for kind in ("VisualStyle", "Light", "MLeader", "Table"):
        p.tool(kind, [p.general(), w.element(kind, w.plain("Name", "n"), w.element("Deep"))],
               [p.image("theirs.png", 64, GREY)])


@fixture
def button_library(p):
    p.command("Line", "_LINE", [p.resource("acadbtn.xmx", "RCDATA_16_LINE", 32)])
    p.hatch("Brick", [p.resource("AcTpCatalogRes.dll", "RCDATA_BRICK", 64)], hatchObjectType=0,
            HatchType=1, PatternName="BRICK", SourceFile="acad.pat", Angle=0, Scale=1)


@fixture
def all_kinds(p):
    p.block("Block", "C:\\b.dwg", "Door", scale=2, rotation=1.5)
    p.hatch("Hatch", hatchObjectType=0, HatchType=1, PatternName="ANSI31", SourceFile="acad.pat",
            Angle=0.75, Scale=2.5)
    p.hatch("Gradient", hatchObjectType=1, GradientName="SPHERICAL", GradientAngle=0.5,
            GradientCentered="TRUE", colors=[(TRUE_COLOR, 0x3060C0), (INDEX, 4)])
    p.raster("Raster", "C:\\r.png", scale=3.0, rotation=0.25)
    p.command("Command", "^C^C_LINE 0,0 1,1 ;")


def store():
    """A store: a catalog that points to a palette, to another catalog, to itself and outside."""
    folder = HERE / "store"
    p = Palette(folder / "Palettes", "one", "Store palette", "25.1.1", dependent=".")
    p.command("From the store", "_LINE", [p.image("s.png", 64, RED)])
    (folder / "Palettes" / "one.atc").write_text(p.content(), encoding="utf-8")
    entries = ("Palettes\\one.atc", "more.atc", "catalog.atc", "..\\one_line.xtp", "gone.atc",
               "\\\\server\\x.atc")
    w = p.write

    def catalog(root, hrefs):
        return w.element(root, w.element("ItemID", idValue=guid(root)), w.element(
            "Palettes", *(w.element("Palette", w.element("ItemID", idValue=guid(h)),
                                    w.element("Url", href=h)) for h in hrefs)), option=0)
    (folder / "catalog.atc").write_text(catalog("Catalog", entries), encoding="utf-8")
    (folder / "more.atc").write_text(
        catalog("Category", ("catalog.atc", "Palettes\\one.atc")), encoding="utf-8")


if __name__ == "__main__":
    for name, fill in fixtures.items():
        palette = new(name)
        fill(palette)
        palette.save()
    store()
