"""A bearing block in three views with its parts list, in millimetres: a sheet at 1:1 with a detail
at 2:1."""

import fasteners
import symbols
import titles
from drafting import point, polar
from library import define_from
from office import Layer, dimension_style, layers, new_drawing, page, use_dimension_style, view

LAYERS = [
    Layer("M-PART", 7, 0.5, note="Visible edges"),
    Layer("M-THIN", 7, 0.25, note="Thin lines: threads, breaks"),
    Layer("M-HIDDEN", 8, 0.25, "HIDDEN", "Hidden edges"),
    Layer("M-CENTER", 12, 0.18, "CENTER", "Centre lines"),
    Layer("M-HATCH", 8, 0.18, note="Sections"),
    Layer("M-FASTENER", 7, 0.35),
    Layer("M-DIM", 7, 0.18),
    Layer("M-DIM-DETAIL", 7, 0.18, note="Dimensions of the detail at 2:1"),
    Layer("M-TEXT", 7, 0.25),
    Layer("M-SYMBOL", 7, 0.25),
    Layer("A-TITLE", 7, 0.25),
    Layer("A-VIEWPORT", 8, 0.0, note="Edges of views, not plotted"),
]

# The block: base 140 x 60 x 16, body 64 wide, bore 40 H7 on a height of 50.
LONG, DEEP, FOOT, BODY, HEIGHT, BORE, OUTER = 140, 60, 16, 64, 50, 40, 32
SLOT = 52  # of the fixing holes from the middle
FRONT, SIDE, TOP = (95, 130), (235, 130), (95, 45)


def front(s):
    """The foot is broken open at its right hole."""
    x, y = FRONT
    r = OUTER
    s.layer("M-PART")
    # Outside: foot with rounded corners, body, cap.
    s.pline([(x, y), (x - LONG / 2, y), (x - LONG / 2, y + FOOT - 3),
             ((x - LONG / 2 + 0.88, y + FOOT - 0.88), (x - LONG / 2 + 3, y + FOOT)),
             (x - r - 6, y + FOOT), ((x - r - 1.76, y + FOOT + 1.76), (x - r, y + FOOT + 6)),
             (x - r, y + HEIGHT), (polar((x, y + HEIGHT), r, 135), (x, y + HEIGHT + r))],
            closed=False)
    s.pline([(x, y), (x + LONG / 2, y), (x + LONG / 2, y + FOOT - 3),
             ((x + LONG / 2 - 0.88, y + FOOT - 0.88), (x + LONG / 2 - 3, y + FOOT)),
             (x + r + 6, y + FOOT), ((x + r + 1.76, y + FOOT + 1.76), (x + r, y + FOOT + 6)),
             (x + r, y + HEIGHT), (polar((x, y + HEIGHT), r, 45), (x, y + HEIGHT + r))],
            closed=False)
    s.circle((x, y + HEIGHT), BORE / 2)
    s.circle((x, y + HEIGHT), BORE / 2 - 5)
    s.circle((x, y + HEIGHT), BORE / 2 + 1.5)
    # The fixing hole in a broken-out section.
    at = x + SLOT
    for dx in (-9.5, 9.5):
        s.line((at + dx, y), (at + dx, y + FOOT))
    s.layer("M-THIN")
    s.spline([(x + 37, y), (x + 39, y + 5), (x + 36.5, y + 10), (x + 39, y + FOOT)])
    s.layer("M-HATCH")
    s.hatch("ANSI31", 0.8, 0, (x + 40.5, y + 8), (x + LONG / 2 - 5, y + 8))
    s.layer("M-HIDDEN")
    for dx in (-9.5, 9.5):
        s.line((x - SLOT + dx, y), (x - SLOT + dx, y + FOOT))
    s.layer("M-CENTER")
    s.line((x, y - 6), (x, y + HEIGHT + r + 14))
    s.line((x - r - 6, y + HEIGHT), (x + r + 6, y + HEIGHT))
    for side in (-1, 1):
        s.line((x + side * SLOT, y - 5), (x + side * SLOT, y + FOOT + 5))


def side(s):
    """Cut along the axis."""
    x, y = SIDE
    h = 22  # half of the body
    s.layer("M-PART")
    top, b = y + HEIGHT + OUTER, BORE / 2
    lower, upper = y + HEIGHT - b, y + HEIGHT + b
    f = DEEP / 2
    s.pline([(x - f, y), (x + f, y), (x + f, y + FOOT), (x + h, y + FOOT), (x + h, lower),
             (x - h, lower), (x - h, y + FOOT), (x - f, y + FOOT)])
    # Above: the wall over the bore, with the thread of the grease nipple.
    core = 4.46  # of the thread M10x1
    s.pline([(x - h, upper), (x - h, top - 2), (x - h + 2, top), (x - core, top),
             (x - core, upper)])
    s.pline([(x + h, upper), (x + h, top - 2), (x + h - 2, top), (x + core, top),
             (x + core, upper)])
    # The bush, 5 thick, with its collars.
    for y1, y2 in ((lower, lower + 5), (upper - 5, upper)):
        s.rect(x - h - 3, y1, x + h + 3, y2)
    s.line((x - h - 3, lower + 5), (x - h - 3, upper - 5))
    s.line((x + h + 3, lower + 5), (x + h + 3, upper - 5))
    s.line((x - core, top), (x + core, top))
    s.layer("M-HATCH")
    s.hatch("ANSI31", 0.8, 0, (x, y + 8), (x - 15, upper + 6),
            (x + 15, upper + 6))
    s.hatch("ANSI31", 0.5, 90, (x, lower + 2.5), (x, upper - 2.5))
    s.layer("M-THIN")
    for dx in (-5, 5):
        s.line((x + dx, top), (x + dx, upper))
    s.layer("M-CENTER")
    s.line((x, y - 6), (x, top + 14))
    s.line((x - DEEP / 2 - 6, y + HEIGHT), (x + DEEP / 2 + 6, y + HEIGHT))


def top(s):
    x, y = TOP
    h = 22
    s.layer("M-PART")
    s.rounded(x - LONG / 2, y - DEEP / 2, x + LONG / 2, y + DEEP / 2, 8)
    s.rect(x - OUTER, y - h, x + OUTER, y + h)
    for side_ in (-1, 1):
        s.rect(x - BORE / 2 + 0, y + side_ * h, x + BORE / 2, y + side_ * (h + 3))
    s.circle((x, y), 5)
    for side_ in (-1, 1):
        at = x + side_ * SLOT
        s.pline([(at - 4, y - 5.5), (at + 4, y - 5.5), ((at + 9.5, y), (at + 4, y + 5.5)),
                 (at - 4, y + 5.5), ((at - 9.5, y), (at - 4, y - 5.5))], closed=False)
    s.layer("M-THIN")
    s.arc((x, y), 4, 100, 10)
    s.layer("M-HIDDEN")
    for dx in (-BORE / 2 + 5, BORE / 2 - 5):
        s.line((x + dx, y - h), (x + dx, y + h))
    s.layer("M-CENTER")
    s.line((x - LONG / 2 - 6, y), (x + LONG / 2 + 6, y))
    s.line((x, y - DEEP / 2 - 6), (x, y + DEEP / 2 + 6))
    for side_ in (-1, 1):
        s.line((x + side_ * SLOT, y - 14), (x + side_ * SLOT, y + 14))


DETAIL = (370, 62)


def detail(s):
    """How it is screwed down: bolt, washer and nut through foot and plate. Shown at 2:1."""
    x, y = DETAIL
    foot, plate = y + FOOT, y - 12
    s.layer("M-PART")
    for side_ in (-1, 1):
        for y1, y2, hole in ((y, foot, 5.5), (plate, y, 5.5)):
            s.line((x + side_ * hole, y1), (x + side_ * hole, y2))
            s.line((x + side_ * hole, y1), (x + side_ * 24, y1))
            s.line((x + side_ * hole, y2), (x + side_ * 24, y2))
    s.layer("M-THIN")
    for side_ in (-1, 1):
        s.spline([(x + side_ * 24, plate), (x + side_ * 25.2, y - 6), (x + side_ * 24, y),
                  (x + side_ * 22.8, y + 8), (x + side_ * 24, foot)])
    s.layer("M-HATCH")
    s.hatch("ANSI31", 0.8, 0, (x - 15, y + 8), (x + 15, y + 8))
    s.hatch("ANSI31", 0.8, 90, (x - 15, y - 6), (x + 15, y - 6))
    s.layer("M-FASTENER")
    s.insert("WASHER-M10", (x, foot), values=("10", "ISO 7089", "200 HV"))
    s.insert("HEX-BOLT-M10", (x, foot + 2), values=("M10x40", "ISO 4014", "8.8"))
    s.insert("NUT-M10", (x, plate), angle=180, values=("M10", "ISO 4032", "8"))


def dimensions(s):
    x, y = FRONT
    s.layer("M-DIM")
    s.dimension("x", y - 14, x - SLOT, x + SLOT, y - 3)
    s.dimension("x", y - 24, x - LONG / 2, x + LONG / 2, y)
    s.dimension("y", x - LONG / 2 - 10, y, y + FOOT, x - LONG / 2)
    s.dimension("y", x - LONG / 2 - 20, y, y + HEIGHT, x - OUTER, text="<>%%p0.1")
    s.type("DIMDIAMETER", point(polar((x, y + HEIGHT), BORE / 2 - 5, 30)), "_T")
    s.type("%%c30 H7")
    s.type(f"{x + 46},{y + HEIGHT + 30}")
    s.type("DIMRADIUS", point(polar((x, y + HEIGHT), OUTER, 150)),
           point((x - 48, y + HEIGHT + 27)))
    x, y = SIDE
    s.dimension("x", y - 14, x - DEEP / 2, x + DEEP / 2, y)
    s.dimension("x", y + HEIGHT + OUTER + 18, x - 22, x + 22, y + HEIGHT + OUTER)
    s.dimension("y", x + DEEP / 2 + 12, y + HEIGHT - BORE / 2, y + HEIGHT + BORE / 2, x + 25,
                text="%%c<> H7/r6")
    s.dimension("x", y + HEIGHT + OUTER + 9, x - 5, x + 5, y + HEIGHT + OUTER, text="M10x1")
    x, y = TOP
    s.dimension("y", x - LONG / 2 - 12, y - DEEP / 2, y + DEEP / 2, x - LONG / 2)
    s.dimension("x", y - DEEP / 2 - 12, x + SLOT - 9.5, x + SLOT + 9.5, y)
    s.dimension("y", x + LONG / 2 + 12, y - 5.5, y + 5.5, x + SLOT, text="<> H13")
    s.type("DIMRADIUS", point((x - LONG / 2 + 2.3431, y + DEEP / 2 - 2.3431)),
           point((x - LONG / 2 - 8, y + DEEP / 2 + 9)))
    use_dimension_style(s, "MECH-2-1")
    s.layer("M-DIM-DETAIL")
    x, y = DETAIL
    s.dimension("x", y - 27, x - 5.5, x + 5.5, y - 12)
    s.dimension("y", x + 30, y - 12, y + FOOT, x + 24)
    use_dimension_style(s, "MECH-1-1")


def symbols_on(s):
    s.layer("M-SYMBOL")
    x, y = FRONT
    s.line((x + LONG / 2 + 2, y), (x + LONG / 2 + 20, y))
    s.insert("SURFACE-MACHINED", (x + LONG / 2 + 9, y), values=("Ra 1.6",))
    s.insert("DATUM-LOWER", (x + 30, y), values=("A",))
    x, y = SIDE
    s.insert("TOLERANCE-PARALLEL", (x + 33, y + HEIGHT + 42), values=("0.02", "A"))
    s.line((x + 33, y + HEIGHT + 42), (x + 27, y + HEIGHT + 42),
           (x + 20, y + HEIGHT + BORE / 2 - 5))
    for item, place, foot in (("1", (40, 196), (66, 172)), ("2", (140, 232), (108, 199)),):
        s.line(foot, place)
        s.dot(foot, 1.2)
        s.insert("ITEM-BALLOON", place, values=(item,))
    x, y = DETAIL
    for item, place, foot in (("3", (x - 20, y + 32), (x - 4, y + 21)),
                              ("4", (x - 24, y + 24), (x - 8, y + FOOT + 1)),
                              ("5", (x - 20, y - 26), (x - 5, y - 16))):
        s.line(foot, place)
        s.dot(foot, 0.6)
        s.insert("ITEM-BALLOON", place, 0.5, values=(item,))
    s.layer("M-THIN")
    s.circle((FRONT[0] + SLOT, FRONT[1] + 8), 19)
    s.layer("M-TEXT")
    s.text((FRONT[0] + SLOT + 17, FRONT[1] + 27), 5, "Z", "MC")
    s.text((SIDE[0], SIDE[1] + 116), 5, "A-A", "MC")
    s.layer("M-CENTER")
    x = FRONT[0]
    s.layer("M-TEXT")
    s.text((x - 4, FRONT[1] + 100), 5, "A", "MC")
    s.text((x - 4, FRONT[1] - 32), 5, "A", "MC")
    s.pline([(x, FRONT[1] + 100), (x + 7, FRONT[1] + 100)], closed=False)
    s.pline([(x + 7, FRONT[1] + 100), (x + 3.5, FRONT[1] + 101), (x + 3.5, FRONT[1] + 99)])
    s.hatch_last("SOLID")
    s.pline([(x, FRONT[1] - 32), (x + 7, FRONT[1] - 32)], closed=False)
    s.pline([(x + 7, FRONT[1] - 32), (x + 3.5, FRONT[1] - 31), (x + 3.5, FRONT[1] - 33)])
    s.hatch_last("SOLID")
    s.weight(0.7)
    for y1, y2 in ((FRONT[1] + 94, FRONT[1] + 104), (FRONT[1] - 36, FRONT[1] - 27)):
        s.line((x, y1), (x, y2))
    s.weight()


PARTS = [
    ("1", "1", "Bearing block", "M-201-01", "EN-GJL-250"),
    ("2", "1", "Bush 30/40 x 50", "M-201-02", "CuSn8"),
    ("3", "2", "Hexagon bolt M10x40", "ISO 4014", "8.8"),
    ("4", "2", "Washer 10", "ISO 7089", "200 HV"),
    ("5", "2", "Hexagon nut M10", "ISO 4032", "8"),
]


def sheets(s):
    page(s, "Bearing_block_A2", "A2")
    values = ["Conveyor drive", "Example works", "Bearing block", "Studio North, engineers",
              "A. Writer", "B. Reader", "2026-03-02", "1:1 (2:1)", "M-201", "A",
              "mm, ISO 2768-mK, ISO 8015", "mechanical-sheet.dxf"]
    view(s, (25, 100), 310, 300, (150, 122), 1, ("M-DIM-DETAIL",))
    view(s, (390, 205), 180, 150, DETAIL, 2, ("M-DIM",))
    s.layer("A-TITLE")
    s.insert("SHEET-A2", (0, 0), values=values)
    right, y = 584, 73
    for row in PARTS:
        s.insert("PARTS-ROW", (right, y), values=row)
        y += 7
    s.insert("PARTS-ROW", (right, y), values=("Item", "Qty", "Name", "Standard, drawing",
                                              "Material"))
    s.insert("REVISION-ROW", (right, y + 12), values=("A", "first issue", "2026-03-02", "AW"))
    s.insert("PROJECTION-FIRST", (375, 40))
    s.insert("SURFACE-ANY", (345, 62), values=("Ra 6.3",))
    s.layer("M-TEXT")
    s.text((480, 362), 5, "Z (2:1)", "MC")
    s.note((30, 80), 150, 2.5, ["General:", "1. Edges broken 0.5 x 45%%d.",
                                "2. Casting radii R6 where not shown.",
                                "3. Bush pressed in, then reamed to 30 H7.",
                                "4. Paint RAL 7031, not on machined faces."])
    s.type("MODEL")
    s.type("ZOOM _E")


def script():
    s = new_drawing(0.4, "HIDDEN", "HIDDEN2", "CENTER", "CENTER2")
    wanted = {"HEX-BOLT-M10", "NUT-M10", "WASHER-M10", "SURFACE-MACHINED", "SURFACE-ANY",
              "DATUM-LOWER",
              "TOLERANCE-PARALLEL", "ITEM-BALLOON", "PROJECTION-FIRST", "SHEET-A2", "PARTS-ROW",
              "REVISION-ROW"}
    define_from(s, wanted, fasteners, symbols, titles)
    layers(s, LAYERS)
    dimension_style(s, "MECH-2-1", 0.5, DIMDEC=1, DIMTXT=3.5, DIMASZ=3.5)
    dimension_style(s, "MECH-1-1", 1, DIMDEC=1, DIMTXT=3.5, DIMASZ=3.5)
    front(s)
    side(s)
    top(s)
    detail(s)
    dimensions(s)
    symbols_on(s)
    sheets(s)
    s.layer("0")
    return s.text_of()
