"""Symbols in millimetres of the sheet. In the model they are inserted at the scale of the plot, 50
for 1:50; on a sheet at 1. Base point: what the symbol points at, else its middle."""

from drafting import polar
from library import Block, Library


def north(s):
    s.circle((0, 0), 10)
    s.pline([(0, 14), (-4.5, -8.9), (0, -5.5)])
    s.hatch_last("SOLID")
    s.pline([(0, 14), (4.5, -8.9), (0, -5.5)])
    s.text((0, 16), 5, "N", "BC")


def grid_bubble(s):
    s.circle((0, 4), 4)
    s.attribute("AXIS", "Name of the axis", "A", (0, 4), 3.5)


def section_mark(s):
    s.weight(0.5)
    s.line((0, 0), (0, 12))
    s.weight()
    s.pline([(0, 12), (7, 12), (0, 5)])
    s.hatch_last("SOLID")
    s.attribute("NAME", "Name of the section", "A", (-3.2, 8.5), 5)


def section_mark_lower(s):
    s.weight(0.5)
    s.line((0, 0), (0, -12))
    s.weight()
    s.pline([(0, -12), (7, -12), (0, -5)])
    s.hatch_last("SOLID")
    s.attribute("NAME", "Name of the section", "A", (-3.2, -8.5), 5)


def level_plan(s):
    """Finished level in plan: a triangle half filled."""
    s.line((-2.5, 4.33), (2.5, 4.33), (0, 0), closed=True)
    s.line((-2.5, 4.33), (20, 4.33))
    s.attribute("LEVEL", "Level in metres", "%%p0.00", (4.2, 5.2), 2.5, "L")


def level_raw(s):
    s.pline([(-2.5, 4.33), (2.5, 4.33), (0, 0)])
    s.hatch_last("SOLID")
    s.line((2.5, 4.33), (20, 4.33))
    s.attribute("LEVEL", "Level in metres", "-0.12", (4.2, 5.2), 2.5, "L")


def spot_level(s):
    s.line((-1.5, 0), (1.5, 0))
    s.line((0, -1.5), (0, 1.5))
    s.attribute("LEVEL", "Level in metres", "112.45", (2.0, 0.6), 2, "L")


def room_label(s):
    s.attribute("NAME", "Name of the room", "Room", (0, 4.9), 3.5)
    s.line((-12, 1.6), (12, 1.6))
    s.attribute("AREA", "Area", "0.00 m2", (0, -0.8), 2.5)
    s.attribute("FLOOR", "Floor finish", "oak", (0, -4.6), 2)
    s.attribute("NUMBER", "Number of the room", "0.01", (0, 10), 2)


def door_tag(s):
    s.circle((0, 0), 3.5)
    s.attribute("NUMBER", "Door number", "D01", (0, 0), 2)


def window_tag(s):
    s.pline([polar((0, 0), 4, a) for a in range(0, 360, 60)])
    s.attribute("MARK", "Window mark", "W01", (0, 0), 2)
    s.attribute("SILL", "Sill height", "SH 875", (0, -5.6), 1.8)


def revision(s):
    s.pline([polar((0, 0), 4, a) for a in (90, 210, 330)])
    s.attribute("REVISION", "Revision", "A", (0, -0.3), 2.5)


def detail_bubble(s):
    s.circle((0, 0), 6)
    s.line((-6, 0), (6, 0))
    s.attribute("DETAIL", "Number of the detail", "1", (0, 2.7), 3)
    s.attribute("SHEET", "Sheet", "A-501", (0, -2.6), 2)


def elevation_mark(s):
    s.circle((0, 0), 5)
    s.pline([(-7.07, 0), (0, 7.07), (7.07, 0), polar((0, 0), 5, 0),
             (polar((0, 0), 5, 90), polar((0, 0), 5, 180))])
    s.hatch("SOLID", 1, 0, (0, 6))
    s.attribute("VIEW", "Name of the view", "1", (0, 0), 3)


def break_line(s):
    s.line((-20, 0), (-2, 0), (-1, 4), (1, -4), (2, 0), (20, 0))


def slope(s):
    s.line((-10, 0), (10, 0))
    s.pline([(10, 0), (6.5, 0.9), (6.5, -0.9)])
    s.hatch_last("SOLID")
    s.attribute("SLOPE", "Slope", "2 %", (-1, 2.2), 2.5)


def scale_bar(s):
    for i in range(5):
        s.rect(i * 10, 0, i * 10 + 10, 1.5)
        if i % 2 == 0:
            s.hatch_last("SOLID")
    s.attribute("ZERO", "First figure", "0", (0, 3.4), 2)
    s.attribute("MIDDLE", "Figure at 20 mm", "1", (20, 3.4), 2)
    s.attribute("END", "Figure at 50 mm", "2.5 m", (50, 3.4), 2)


def surface(s):
    s.line((0, 0), (-2.9, 5), (2.9, 5), closed=True)
    s.line((2.9, 5), (5.8, 10), (13, 10))
    s.attribute("ROUGHNESS", "Roughness", "Ra 3.2", (6.6, 7.2), 2, "L")


def surface_general(s):
    s.line((-2.9, 5), (0, 0), (5.8, 10), (11, 10))
    s.attribute("ROUGHNESS", "Roughness", "Ra 6.3", (6.6, 7.2), 2, "L")


def datum(s):
    s.pline([(-1.8, 0), (1.8, 0), (0, 3)])
    s.hatch_last("SOLID")
    s.line((0, 3), (0, 7))
    s.rect(-3, 7, 3, 13)
    s.attribute("DATUM", "Letter of the datum", "A", (0, 10), 3)


def datum_lower(s):
    s.pline([(-1.8, 0), (1.8, 0), (0, -3)])
    s.hatch_last("SOLID")
    s.line((0, -3), (0, -7))
    s.rect(-3, -13, 3, -7)
    s.attribute("DATUM", "Letter of the datum", "A", (0, -10), 3)


def tolerance(s):
    s.rect(0, -3, 6, 3)
    s.rect(6, -3, 20, 3)
    s.rect(20, -3, 26, 3)
    s.line((1.8, -1.8), (1.8, 1.8))
    s.line((4.2, -1.8), (4.2, 1.8))
    s.attribute("VALUE", "Tolerance", "0.05", (13, 0), 2.5)
    s.attribute("DATUM", "Datum", "A", (23, 0), 2.5)


def position(s):
    s.circle((0, 0), 4)
    s.attribute("ITEM", "Item number", "1", (0, 0), 3.5)


def weld(s):
    s.line((0, 0), (8, 6), (26, 6))
    s.pline([(0, 0), (2.6, 1.2), (1.8, 2.2)])
    s.hatch_last("SOLID")
    s.line((14, 6), (14, 10), (18, 6))
    s.attribute("SIZE", "Size of the weld", "a4", (11, 8.2), 2.5)


def projection(s):
    """First angle projection."""
    s.line((-9, -2.5), (-9, 2.5), (-2, 4.0), (-2, -4.0), closed=True)
    s.circle((7, 0), 4)
    s.circle((7, 0), 2.5)
    s.weight(0.18)
    s.linetype("CENTER2")
    s.line((-11, 0), (0, 0))
    s.line((1.5, 0), (12.5, 0))
    s.line((7, -5.5), (7, 5.5))
    s.linetype()
    s.weight()


BLOCKS = [
    Block("NORTH-ARROW", "base in the middle", north),
    Block("GRID-BUBBLE", "base at the end of the axis", grid_bubble, ("A",)),
    Block("SECTION-MARK", "base at the cutting line", section_mark, ("A",)),
    Block("SECTION-MARK-LOWER", "base at the cutting line", section_mark_lower, ("A",)),
    Block("LEVEL-FINISHED", "base at the level", level_plan, ("%%p0.00",)),
    Block("LEVEL-RAW", "base at the level", level_raw, ("-0.12",)),
    Block("LEVEL-SPOT", "base at the spot", spot_level, ("112.45",)),
    Block("ROOM-LABEL", "name, area, finish, number", room_label,
          ("Living", "31.94 m\u00b2", "oak parquet", "0.01")),
    Block("DOOR-TAG", "number", door_tag, ("D01",)),
    Block("WINDOW-TAG", "mark, sill height", window_tag, ("W01", "SH 875")),
    Block("REVISION-MARK", "letter", revision, ("A",)),
    Block("DETAIL-MARK", "detail, sheet", detail_bubble, ("1", "A-501")),
    Block("ELEVATION-MARK", "view", elevation_mark, ("1",)),
    Block("BREAK-LINE", "40 long", break_line),
    Block("SLOPE-ARROW", "downwards", slope, ("2 %",)),
    Block("SCALE-BAR", "five parts of 10 mm", scale_bar, ("0", "1", "2.5 m")),
    Block("SURFACE-MACHINED", "base on the surface", surface, ("Ra 3.2",)),
    Block("SURFACE-ANY", "base on the surface", surface_general, ("Ra 6.3",)),
    Block("DATUM", "base on the edge", datum, ("A",)),
    Block("DATUM-LOWER", "base on the edge", datum_lower, ("A",)),
    Block("TOLERANCE-PARALLEL", "value, datum", tolerance, ("0.05", "A")),
    Block("ITEM-BALLOON", "item of the parts list", position, ("1",)),
    Block("WELD-FILLET", "base at the joint", weld, ("a4",)),
    Block("PROJECTION-FIRST", "first angle", projection),
]

LIBRARY = Library("symbols", "Symbols, in millimetres of the sheet", "A-SYMBOL", 7, BLOCKS,
                  columns=6, text=2.5, weight=0.25, dashes=0.35)
