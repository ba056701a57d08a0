"""The site of the house, in metres: a sheet at 1:500 and one at 1:200."""

import math

import floor_plan
import symbols
import titles
import trees
from drafting import point, shifted
from library import define_from
from office import (Layer, Placing, dimension_style, layers, new_drawing, page, table,
                    use_dimension_style, view)

LAYERS = [
    Layer("C-BOUNDARY", 12, 0.5, "PHANTOM", "Boundary of the plot"),
    Layer("C-NEIGHBOUR", 8, 0.18, note="Plots and buildings around"),
    Layer("C-SETBACK", 150, 0.25, "DASHED", "Building line"),
    Layer("C-BUILDING", 7, 0.5),
    Layer("C-BUILDING-HATCH", 8, 0.13),
    Layer("C-ROAD", 7, 0.25),
    Layer("C-ROAD-AXIS", 8, 0.13, "CENTER"),
    Layer("C-PAVING", 8, 0.18),
    Layer("C-PAVING-HATCH", 253, 0.09),
    Layer("C-CAR", 7, 0.18),
    Layer("C-CONTOUR", 43, 0.13),
    Layer("C-CONTOUR-MAIN", 43, 0.25),
    Layer("C-WATER", 150, 0.25),
    Layer("C-SEWER", 30, 0.35, "SEWER_LINE"),
    Layer("C-WATER-LINE", 150, 0.25, "WATER_LINE"),
    Layer("C-POWER", 1, 0.25, "POWER_LINE"),
    Layer("L-PLANT", 94, 0.18),
    Layer("C-DIM", 7, 0.18),
    Layer("C-TEXT", 7, 0.25, note="Words and levels"),
    Layer("A-TITLE", 7, 0.25),
    Layer("A-VIEWPORT", 8, 0.0, note="Edges of views, not plotted"),
]

# Corners of the plot, counterclockwise from the south-west, in the local grid.
PLOT = [(20.0, 18.0), (54.5, 16.2), (57.8, 55.6), (22.6, 58.4)]
HOUSE = (31.0, 30.0)  # the south-west corner of the house
SIZE = (floor_plan.W / 1000, floor_plan.H / 1000)
GARAGE = (45.6, 39.0, 51.8, 45.4)
NEIGHBOURS = [(2.0, 32.0, 12.5, 42.5), (66.5, 30.5, 79.0, 40.0), (71.5, 40.0, 79.0, 44.0)]


def ground_at(level, x):
    """Where a contour runs: the ground falls to the lake in the south."""
    return ((level - 100) * 9 + 2.2 * math.sin(x / 11 + level * 0.9) + 0.08 * x +
            1.1 * math.sin(x / 5.3 + level * 0.4))


LABEL = 14.4  # where the contours have their figures


def is_built(x, y):
    w, h = SIZE
    boxes = [(HOUSE[0], HOUSE[1] - 2.4, HOUSE[0] + w, HOUSE[1] + h), GARAGE] + NEIGHBOURS
    return any(b[0] <= x <= b[2] and b[1] <= y <= b[3] for b in boxes)


def thinned(run):
    """Every third point, and both ends."""
    return run[:-1:3] + [run[-1]]


def contour(s, level, has_figures):
    """A line that leaves out buildings and its own figures."""
    run = []
    for step in range(377):
        x = -4 + step * 0.25
        y = ground_at(level, x)
        is_open = not is_built(x, y) and not (has_figures and abs(x - LABEL) < 1.8)
        if is_open:
            run.append((x, y))
        if len(run) > 1 and (not is_open or step == 376):
            s.pline(thinned(run), closed=False)
        if not is_open:
            run = []


def ground(s):
    for i in range(17):
        level = 100 + i * 0.5
        is_main = i % 2 == 0
        s.layer("C-CONTOUR-MAIN" if is_main else "C-CONTOUR")
        contour(s, level, is_main)
    s.layer("C-WATER")
    shore = [(-4, -6), (8, -4.6), (20, -6.4), (34, -4.2), (48, -5.6), (62, -3.6), (76, -4.8),
             (90, -3)]
    s.spline(shore)
    for d in (1.1, 2.6, 4.6):
        s.spline([(x, y - d) for x, y in shore])


def road(s):
    s.layer("C-ROAD")
    for y in (64.0, 65.5, 71.0, 72.5):
        s.line((-4, y + 1.2), (90, y - 3.2))
    s.layer("C-ROAD-AXIS")
    s.line((-4, 69.45), (90, 65.05))


def neighbours(s):
    s.layer("C-NEIGHBOUR")
    s.pline([(-4, 19.3), PLOT[0], PLOT[3], (-4, 60.5)], closed=False)
    s.pline([(90, 14.4), PLOT[1], PLOT[2], (90, 53.0)], closed=False)
    for box in NEIGHBOURS:
        s.rect(*box)
    s.layer("C-BUILDING-HATCH")
    s.hatch("LINE", 0.35, 45, (7, 37), (70, 35), (75, 42))


def plot(s):
    s.layer("C-BOUNDARY")
    s.pline(PLOT)
    for corner in PLOT:
        s.circle(corner, 0.35)
    s.layer("C-SETBACK")
    s.pline([(23.2, 21.0), (51.7, 19.5), (54.4, 50.9), (25.4, 53.2)])


def house(s):
    x, y = HOUSE
    w, h = SIZE
    s.layer("C-PAVING")
    s.rect(x, y - 2.4, x + 8.2, y)
    s.rect(x + 3.8, y + h, x + 5.76, y + h + 1.3)
    # Drive and path to the road.
    s.pline([(46.0, 45.4), (51.4, 45.4), (51.9, 63.2), (45.2, 63.5)])
    s.pline([(x + 4.0, y + h + 1.3), (x + 5.6, y + h + 1.3), (x + 5.6, 46.6), (46.0, 46.6),
             (45.9, 48.2), (x + 4.0, 48.2)])
    s.layer("C-BUILDING")
    s.rect(x, y, x + w, y + h)
    s.rect(*GARAGE)
    s.layer("C-CAR")
    s.insert("CAR", (48.6, 57.2), angle=-88)
    s.layer("C-PAVING-HATCH")
    s.hatch("SETTS", 0.2, 0, (48.5, 50.0), (40.0, 47.4))
    s.hatch("NET", 0.16, 0, (x + 4, y - 1.2))
    s.layer("C-BUILDING-HATCH")
    s.hatch("LINE", 0.25, 45, (x + 3, y + 3), (48.0, 42.0))



def services(s):
    s.layer("C-SEWER")
    s.line((41.5, HOUSE[1] + SIZE[1]), (41.8, 66.6))
    s.layer("C-WATER-LINE")
    s.line((42.6, HOUSE[1] + SIZE[1]), (43.0, 66.5))
    s.layer("C-POWER")
    s.line((43.4, HOUSE[1] + SIZE[1]), (44.1, 66.4))


# Block, species, place, crown in metres.
TREES = [
    ("TREE-SHADED", "Tilia cordata", (26.5, 25.0), 7.5), ("TREE-BRANCHED", "Quercus robur",
                                                          (48.5, 24.0), 8.5),
    ("TREE-FRUIT", "Malus domestica", (26.6, 34.5), 4.0), ("TREE-FRUIT", "Pyrus communis",
                                                           (26.2, 40.0), 4.0),
    ("TREE-FRUIT", "Prunus avium", (27.2, 45.4), 4.5), ("TREE-DECIDUOUS", "Acer campestre",
                                                        (34.5, 22.5), 5.0),
    ("TREE-CONIFER", "Pinus sylvestris", (52.0, 33.0), 5.0), ("TREE-COLUMNAR", "Carpinus betulus",
                                                              (54.6, 49.5), 2.6),
    ("TREE-COLUMNAR", "Carpinus betulus", (54.9, 53.0), 2.6), ("TREE-EXISTING", "Fagus sylvatica",
                                                               (41.5, 20.0), 7.0),
    ("TREE-FELLED", "Picea abies", (40.5, 27.5), 3.5), ("TREE-DECIDUOUS-LARGE", "Platanus",
                                                        (15.0, 26.0), 9.0),
    ("TREE-DECIDUOUS", "Acer platanoides", (63.0, 24.5), 8.0), ("TREE-CONIFER-DENSE", "Taxus",
                                                                (62.0, 47.0), 4.5),
    ("SHRUB-GROUP", "Cornus", (44.0, 34.2), 2.6), ("SHRUB-GROUP", "Ribes", (29.4, 28.6), 2.2),
    ("SHRUB", "Lavandula", (44.6, 31.2), 1.2), ("SHRUB", "Rosa", (45.2, 37.6), 1.4),
    ("TREE-DECIDUOUS", "Tilia platyphyllos", (5.0, 62.5), 6.0), ("TREE-DECIDUOUS",
                                                                 "Tilia platyphyllos",
                                                                 (30.0, 61.2), 6.0),
    ("TREE-DECIDUOUS", "Tilia platyphyllos", (62.0, 59.8), 6.0), ("TREE-DECIDUOUS",
                                                                  "Tilia platyphyllos",
                                                                  (78.0, 59.0), 6.0),
]


def planting(s):
    s.layer("L-PLANT")
    for block, species, place, crown in TREES:
        s.insert(block, place, crown, angle=(place[0] * 13) % 90,
                 values=(species, f"{crown:.2f}", "18/20"))
    # The hedge along the west side, metre by metre.
    (x1, y1), (x2, y2) = PLOT[0], PLOT[3]
    length = ((x2 - x1) ** 2 + (y2 - y1) ** 2) ** 0.5
    for i in range(2, int(length) - 2):
        t = (i + 0.5) / length
        s.insert("HEDGE-1000", (x1 + (x2 - x1) * t + 0.9, y1 + (y2 - y1) * t), angle=86.3,
                 values=("Carpinus betulus", "1.80"))
    s.insert("BENCH", (30.5, 24.0), angle=200)
    s.insert("LAMP-POST", (45.0, 52.0))
    s.insert("LAMP-POST", (52.6, 58.0))


# Words, place, height in millimetres of the sheet, angle.
WORDS = [
    ("House on the lake", (37.25, 36.2), 1.8, 0), ("FFL 105.40", (37.25, 33.9), 1.8, 0),
    ("Garage", (48.7, 42.2), 2, 0), ("Drive", (48.4, 60.4), 2, 0), ("Lake", (14, -11.5), 4, 0),
    ("Lake Road", (18, 68.4), 3.5, -2.7), ("117/2", (8.5, 50.0), 3.5, 0),
    ("117/3", (29.5, 54.2), 3.5, 0), ("117/4", (66.8, 51.5), 3.5, 0),
]


def words(s, placing, mm):
    """`mm` are the units of the drawing for one millimetre of the sheet. They come before hatches,
    which keep clear of them."""
    x, y = HOUSE
    w, h = SIZE
    s.layer("C-TEXT")
    for text, place, height, angle in WORDS:
        s.text(placing(place), height * mm, text, "MC", angle)
    for place, level in ((PLOT[0], "102.18"), (PLOT[1], "101.65"), (PLOT[2], "106.02"),
                         (PLOT[3], "106.71"), ((x + w, y), "104.30"), ((x, y + h), "105.25")):
        s.insert("LEVEL-SPOT", placing(place), 500 if mm < 1 else 1, values=(level,))
    for level in range(100, 109):
        rise = ground_at(level, LABEL + 0.5) - ground_at(level, LABEL - 0.5)
        slope = math.degrees(math.atan(rise))
        s.text(placing((LABEL, ground_at(level, LABEL))), 1.8 * mm, f"{level:.2f}", "MC",
               round(slope, 1))


def boundary_dimensions(s, placing, away):
    """`away` is how far off they stand, in metres."""
    x, y = HOUSE
    w, h = SIZE
    s.layer("C-DIM")
    placing.chain(s, "x", y - 2.6 - away, [x, x + w], y)
    placing.chain(s, "y", x - 0.6 - away, [y, y + h], x)
    for a, b, out in ((PLOT[0], PLOT[1], (0, -away)), (PLOT[1], PLOT[2], (away, 0)),
                      (PLOT[2], PLOT[3], (0, away)), (PLOT[3], PLOT[0], (-away, 0))):
        middle = ((a[0] + b[0]) / 2, (a[1] + b[1]) / 2)
        s.type("DIMALIGNED", point(placing(a)), point(placing(b)),
               point(placing(shifted(middle, *out))))


def distances(s, placing):
    """From the house to the boundary, and the garage: too much for the small scale."""
    x, y = HOUSE
    w, h = SIZE
    placing.chain(s, "x", y + 8, [21.29, x, None, x + w, 56.33])
    placing.chain(s, "y", x + 9.8, [y + h, 56.2])
    placing.chain(s, "x", GARAGE[3] + 1.5, [GARAGE[0], GARAGE[2]], GARAGE[3])


def plot_area():
    return sum(a[0] * b[1] - b[0] * a[1] for a, b in zip(PLOT, PLOT[1:] + PLOT[:1])) / 2


def figures(s, x, y):
    built = SIZE[0] * SIZE[1]
    garage = (GARAGE[2] - GARAGE[0]) * (GARAGE[3] - GARAGE[1])
    area = plot_area()
    table(s, (x, y), (60, 35), [
        ("What", "m\u00b2"), ("Plot 117/3", f"{area:.1f}"), ("House", f"{built:.1f}"),
        ("Garage", f"{garage:.1f}"), ("Built-up", f"{built + garage:.1f}"),
        ("Site occupancy", f"{(built + garage) / area:.2f}")], "Areas")


def species(s, x, y):
    rows = [("Tree", "Crown m", "No.")]
    seen = {}
    for block, name, _, crown in TREES:
        seen[(name, crown)] = seen.get((name, crown), 0) + 1
    for (name, crown), count in sorted(seen.items()):
        rows.append((name, f"{crown:.2f}", count))
    table(s, (x, y), (50, 25, 20), rows, "Planting", height=5.5)


LEGEND = [("C-BOUNDARY", "Boundary"), ("C-SETBACK", "Building line"), ("C-CONTOUR-MAIN", "Contour"),
          ("C-SEWER", "Sewer"), ("C-WATER-LINE", "Water"), ("C-POWER", "Power")]


def legend(s, x, y):
    s.set("CELTSCALE", 5)  # from metres of the ground to millimetres of the sheet
    for number, (layer, name) in enumerate(LEGEND):
        left, row = x + number // 3 * 80, y - number % 3 * 9
        s.layer(layer)
        s.line((left, row), (left + 34, row))
        s.layer("A-TITLE")
        s.text((left + 38, row), 2.5, name, "ML")
    s.set("CELTSCALE", 1)


def sheets(s):
    values = ["House on the lake", "M. and T. Example", "Site plan", "Studio North, architects",
              "A. Writer", "B. Reader", "2026-03-02", "1:500", "L-001", "-",
              "m, levels above datum", "site-plan.dxf"]
    s.set("INSUNITS", 4)  # the sheets are in millimetres
    page(s, "Site_1-500", "A3")
    view(s, (24, 70), 188, 212, (43, 32), 2)
    s.layer("A-TITLE")
    s.insert("SHEET-A3", (0, 0), values=values)
    s.insert("NORTH-ARROW", (385, 258), angle=-12)
    figures(s, 232, 270)
    s.insert("SCALE-BAR", (232, 212), values=("0", "10", "25 m"))
    species(s, 232, 196)
    legend(s, 30, 58)
    page(s, "Garden_1-200", "A2")
    # Words and dimensions of the model are meant for 1:500; here the sheet has its own.
    placing = view(s, (24, 14), 340, 392, (39, 38), 5, ("C-DIM", "C-TEXT"))
    words(s, placing, 1)
    use_dimension_style(s, "SHEET-200")
    boundary_dimensions(s, placing, 1.6)
    distances(s, placing)
    s.layer("A-TITLE")
    values[7], values[8], values[2] = "1:200", "L-002", "Garden"
    s.insert("SHEET-A2", (0, 0), values=values)
    s.insert("NORTH-ARROW", (560, 378), angle=-12)
    species(s, 420, 330)
    legend(s, 420, 190)
    s.insert("SCALE-BAR", (420, 88), values=("0", "4", "10 m"))
    s.type("MODEL")
    s.set("INSUNITS", 6)
    s.type("ZOOM _E")


def script():
    s = new_drawing(0.2, "HIDDEN2", "CENTER", "CENTER2", "DASHED", "DASHED2", "PHANTOM",
                    "SEWER_LINE", "WATER_LINE", "POWER_LINE")
    wanted = {row[0] for row in TREES} | {"HEDGE-1000", "BENCH", "LAMP-POST", "CAR", "NORTH-ARROW",
                                          "SCALE-BAR", "LEVEL-SPOT", "SHEET-A2", "SHEET-A3"}
    define_from(s, wanted, trees, symbols, titles)
    s.set("INSUNITS", 6)  # from here in metres; the blocks are scaled to them
    layers(s, LAYERS)
    dimension_style(s, "SHEET-200", 1, DIMLFAC=0.2, DIMDEC=2, DIMTSZ=1.2, DIMZIN=0)
    dimension_style(s, "MODEL-500", 0.5, DIMLFAC=1, DIMDEC=2, DIMTSZ=1.2, DIMZIN=0)
    words(s, Placing(), 0.5)
    house(s)
    neighbours(s)
    plot(s)
    road(s)
    ground(s)
    services(s)
    planting(s)
    boundary_dimensions(s, Placing(), 2.4)
    sheets(s)
    s.layer("0")
    return s.text_of()
