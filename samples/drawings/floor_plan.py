"""The ground floor of a house, in millimetres: sheets at 1:50 and 1:100."""

import doors
import furniture
import sanitary
import symbols
import titles
import trees
import windows
from library import define_from
from office import (Layer, dimension_style, layers, new_drawing, page, table, use_dimension_style,
                    view)
from outlines import outlines

W, H = 12500, 9500  # outside
FACING, INSULATION, MASONRY = 115, 145, 240
IN = FACING + INSULATION + MASONRY  # 500 to the inner face

LAYERS = [
    Layer("A-WALL", 7, 0.5, note="Masonry, cut"),
    Layer("A-WALL-FACE", 7, 0.35, note="Facing bricks, cut"),
    Layer("A-WALL-PART", 7, 0.35, note="Partitions, cut"),
    Layer("A-HATCH", 8, 0.13, note="Hatches of cut walls"),
    Layer("A-DOOR", 32, 0.25),
    Layer("A-WINDOW", 150, 0.25),
    Layer("A-STAIR", 7, 0.25),
    Layer("A-OVERHEAD", 8, 0.18, "HIDDEN", "What lies above the cut"),
    Layer("A-FURNITURE", 8, 0.18),
    Layer("A-SANITARY", 140, 0.18),
    Layer("A-FLOOR", 253, 0.09, note="Floor finishes"),
    Layer("A-OUTSIDE", 8, 0.18, note="Terrace, steps"),
    Layer("L-PLANT", 94, 0.18),
    Layer("A-GRID", 12, 0.13, "CENTER"),
    Layer("A-SECTION", 12, 0.5, "CENTER"),
    Layer("A-DIM", 7, 0.18, note="Dimensions"),
    Layer("A-TEXT", 7, 0.25),
    Layer("A-TAG", 7, 0.18, note="Marks of doors and windows"),
    Layer("A-SYMBOL", 7, 0.25),
    Layer("A-TITLE", 7, 0.25),
    Layer("A-VIEWPORT", 8, 0.0, note="Edges of views, not plotted"),
]

# Mark, block, width, side, middle of the opening along the wall, sill, height.
WINDOWS = [
    ("W01", "WINDOW-2510-SLIDE", 2510, "S", 2500, 0, 2260),
    ("W02", "WINDOW-2010-SLIDE", 2010, "S", 5900, 0, 2260),
    ("W03", "WINDOW-1760", 1760, "S", 10000, 875, 1260),
    ("W04", "WINDOW-1260", 1260, "E", 2700, 875, 1260),
    ("W05", "WINDOW-760", 760, "E", 5700, 1375, 760),
    ("W06", "WINDOW-1010", 1010, "N", 11150, 1375, 760),
    ("W07", "WINDOW-510", 510, "N", 8600, 1375, 760),
    ("W08", "WINDOW-760", 760, "N", 6710, 1375, 1260),
    ("W09", "WINDOW-1010", 1010, "N", 2300, 1060, 1010),
    ("W10", "WINDOW-1510", 1510, "W", 7000, 1060, 1010),
    ("W11", "WINDOW-1260", 1260, "W", 2700, 875, 1260),
]

# Number, block, place of the base point, angle, width, fire rating, place of the tag.
DOORS = [
    ("D01", "DOOR-1260-ENTRANCE", (5410, 9000), 180, 1260, "none", (4980, 8560)),
    ("D02", "DOOR-1260-DOUBLE", (5560, 4900), 180, 1260, "none", (4930, 5340)),
    ("D03", "DOOR-885-L", (3885, 5300), 90, 885, "none", (3560, 5620)),
    ("D04", "DOOR-885-R", (8000, 5180), 270, 885, "none", (8330, 5500)),
    ("D05", "DOOR-885-R", (8150, 4910), 180, 885, "none", (8480, 4580)),
    ("D06", "DOOR-760-R", (8220, 7485), 180, 760, "none", (8480, 7220)),
    ("D07", "DOOR-760-R", (9315, 6640), 270, 760, "none", (9580, 6960)),
    ("D08", "DOOR-1010-T30", (9315, 6210), 270, 1010, "T30-RS", (9010, 5800)),
]

LOAD_BEARING = [(7760, IN, 8000, H - IN), (IN, 4900, 7760, 5140)]
PARTITIONS = [
    (3885, 5140, 4000, 9000), (8000, 4910, 12000, 5025), (9200, 5025, 9315, 9000),
    (8000, 7485, 9200, 7600), (9315, 6370, 12000, 6485),
]
# In walls inside: the openings of doors, and the wide one between kitchen and dining.
PASSAGES = [
    (4300, 4900, 5560, 5140), (3885, 5300, 4000, 6185), (7760, 5180, 8000, 6065),
    (8150, 4910, 9035, 5025), (8220, 7485, 8980, 7600), (9200, 6640, 9315, 7400),
    (9200, 5200, 9315, 6210), (1400, 4900, 2910, 5140),
]

# Number, name, box, what does not count, finish, place of the label.
ROOMS = [
    ("0.01", "Hall", (4000, 5140, 7760, 9000), 2.1 * 2.89, "stoneware", (4830, 6200)),
    ("0.02", "Living, dining", (500, 500, 7760, 4900), 0, "oak parquet", (3450, 3950)),
    ("0.03", "Kitchen", (500, 5140, 3885, 9000), 0, "stoneware", (2250, 7350)),
    ("0.04", "Corridor", (8000, 5025, 9200, 7485), 0, "stoneware", (8600, 6380)),
    ("0.05", "WC", (8000, 7600, 9200, 9000), 0, "tiles", (8740, 8020)),
    ("0.06", "Bath", (9315, 6485, 12000, 9000), 0, "tiles", (10620, 7560)),
    ("0.07", "Utility", (9315, 5025, 12000, 6370), 0, "tiles", (10760, 5380)),
    ("0.08", "Bedroom", (8000, 500, 12000, 4910), 0, "oak parquet", (10850, 3300)),
]

FURNITURE = [
    ("TABLE-8", (2150, 2650), 0), ("SOFA-2300", (4100, 2000), 90),
    ("TABLE-COFFEE", (5700, 2000), 90), ("SIDEBOARD-1800", (7760, 2000), 270),
    ("ARMCHAIR", (5900, 3850), 0), ("PLANT", (7350, 920), 0), ("PLANT", (900, 4480), 0),
    ("SHELF-800", (7000, 4900), 0), ("SHELF-800", (6200, 4900), 0),
    ("KITCHEN-CORNER", (500, 9000), 0), ("KITCHEN-UNIT-600", (500, 7800), 90),
    ("KITCHEN-SINK", (500, 7000), 90), ("KITCHEN-DISHWASHER", (500, 6200), 90),
    ("KITCHEN-FRIDGE", (500, 5600), 90), ("KITCHEN-HOB", (1700, 9000), 0),
    ("KITCHEN-UNIT-600", (2300, 9000), 0), ("KITCHEN-UNIT-600", (2900, 9000), 0),
    ("KITCHEN-OVEN", (3500, 9000), 0),
    ("WARDROBE-1000", (4000, 7400), 90), ("BED-1800", (8000, 2350), 90),
    ("NIGHTSTAND", (8000, 1150), 90), ("NIGHTSTAND", (8000, 3550), 90),
    ("WARDROBE-2500", (10650, 4910), 0), ("DESK-1600", (12000, 1450), 270),
    ("CHAIR-OFFICE", (11000, 1450), 90),
]

SANITARY = [
    ("WC-WALL", (8600, 9000), 0), ("BASIN-450", (8000, 8050), 90), ("BATH-1700", (11150, 9000), 0),
    ("BASIN-1200", (9315, 8250), 90), ("SHOWER-900", (11550, 6485), 180),
    ("WC-WALL", (10560, 6485), 180), ("TOWEL-RADIATOR", (12000, 7815), 270),
    ("WASHER", (10700, 6370), 0), ("DRYER", (11330, 6370), 0), ("BOILER", (11690, 5025), 180),
]

STAIR = (5660, 6110, 7760, 9000)
FLIGHT, TREAD, RISER, STEPS = 1000, 270, 175, 7


def openings():
    """The openings of the outer walls, through all their layers."""
    boxes = [(4150, H - IN, 5410, H)]
    for _, _, width, side, middle, *_ in WINDOWS:
        a, b = middle - width / 2, middle + width / 2
        boxes.append({"S": (a, 0, b, IN), "N": (a, H - IN, b, H), "W": (0, a, IN, b),
                      "E": (W - IN, a, W, b)}[side])
    return boxes


def ring(outer, inner):
    """The four walls between two insets."""
    o, i = outer, inner
    return [(o, o, W - o, i), (o, H - i, W - o, H - o), (o, o, i, H - o), (W - i, o, W - o, H - o)]


def walls(s):
    """All loops first: a hatch finds its area by them."""
    holes = openings()
    parts = (
        ("A-WALL", ring(FACING + INSULATION, IN) + LOAD_BEARING, holes + PASSAGES,
         ("ANSI31", 25, 0)),
        ("A-WALL-PART", PARTITIONS, PASSAGES, ("ANSI31", 25, 90)),
        ("A-WALL-FACE", ring(0, FACING), holes, ("ANSI31", 12, 90)),
    )
    fills = []
    for layer, solids, gaps, hatch in parts:
        loops, places = outlines(solids, gaps)
        s.layer(layer)
        for loop in loops:
            s.pline(loop)
        fills.append((hatch, places))
    insulation = outlines(ring(FACING, FACING + INSULATION), holes)
    s.layer("A-HATCH")
    for loop in insulation[0]:
        s.pline(loop)
    for (pattern, scale, angle), places in fills:
        s.hatch(pattern, scale, angle, *places)
    s.hatch("INSULATION", 28, 0, *insulation[1])


def stair(s):
    x1, y1, x2, y2 = STAIR
    top = y1 + STEPS * TREAD
    cut = y1 + 5.4 * TREAD
    s.layer("A-STAIR")
    for i in range(6):
        s.line((x1, y1 + i * TREAD), (x1 + FLIGHT, y1 + i * TREAD))
    s.line((x1 + FLIGHT, y1), (x1 + FLIGHT, cut + 200))
    lean = 130
    s.line((x1, cut - lean), (x1 + 430, cut + 10), (x1 + 470, cut + 120), (x1 + 530, cut - 90),
           (x1 + 570, cut + 40), (x1 + FLIGHT, cut + lean + 40))
    s.layer("A-OVERHEAD")
    for i in range(6, STEPS + 1):
        s.line((x1, y1 + i * TREAD), (x1 + FLIGHT, y1 + i * TREAD))
    for i in range(STEPS + 1):
        s.line((x2 - FLIGHT, y1 + i * TREAD), (x2, y1 + i * TREAD))
    s.line((x1 + FLIGHT, cut + 200), (x1 + FLIGHT, top))
    s.line((x2 - FLIGHT, top), (x2 - FLIGHT, y1))
    s.layer("A-STAIR")
    middle = x1 + FLIGHT / 2
    s.circle((middle, y1), 40)
    s.line((middle, y1 + 40), (middle, cut - 60))
    s.layer("A-OVERHEAD")
    s.line((middle, cut + 60), (middle, y2 - 500), (x2 - FLIGHT / 2, y2 - 500),
           (x2 - FLIGHT / 2, y1 + 90))
    s.layer("A-STAIR")
    s.pline([(x2 - FLIGHT / 2, y1), (x2 - FLIGHT / 2 - 55, y1 + 170),
             (x2 - FLIGHT / 2 + 55, y1 + 170)])
    s.hatch_last("SOLID")
    s.layer("A-TEXT")
    s.text((x1 - 70, y1 + 200), 110, f"16 x {RISER / 10:.1f} / {TREAD / 10:.0f}", angle=90)


def outside(s):
    s.layer("A-OUTSIDE")
    s.rect(300, -2100, 7900, 0)
    s.rect(0, -2400, 8200, 0)
    s.rect(3800, H, 5760, H + 1300)
    s.line((3800, H + 1000), (5760, H + 1000))
    s.layer("A-FLOOR")
    s.hatch("NET", 160, 0, (1000, -1000))
    s.hatch("NET", 160, 0, (4000, H + 500))
    s.layer("L-PLANT")
    for name, place, size, species in (("TREE-BRANCHED", (9200, -1500), 1.9, "Malus domestica"),
                                       ("TREE-SHADED", (11450, -1450), 2.2, "Prunus avium")):
        s.insert(name, place, size, values=(species, f"{size:.2f}", "14/16"))
    for x, y in ((8600, -560), (12250, -600)):
        s.insert("SHRUB", (x, y), 0.8, angle=x / 50, values=("Lavandula", "0.80", "-"))


def openings_filled(s):
    turn = {"S": 0, "E": 90, "N": 180, "W": 270}
    for mark, block, width, side, middle, sill, height in WINDOWS:
        place = {"S": (middle, 0), "N": (middle, H), "W": (0, middle), "E": (W, middle)}[side]
        s.layer("A-WINDOW")
        s.insert(block, place, angle=turn[side], values=(mark, f"{width}x{height}", sill))
        s.layer("A-TAG")
        beside = middle + (900 if width > 2000 else 0)
        outer = {"S": (beside, -330), "N": (middle, H + 450), "W": (-420, middle + 50),
                 "E": (W + 420, middle + 50)}[side]
        s.insert("WINDOW-TAG", outer, 50, values=(mark, f"SH {sill}"))
    for number, block, place, angle, width, fire, tag in DOORS:
        height = 2135 if number == "D01" else 2010
        values = (number, width, height, fire) + ((fire,) if block.endswith("T30") else ())
        s.layer("A-DOOR")
        s.insert(block, place, angle=angle, values=values)
        s.layer("A-TAG")
        s.insert("DOOR-TAG", tag, 50, values=(number,))
    s.layer("A-OVERHEAD")
    for y in (4900, 5140):
        s.line((1400, y), (2910, y))


def area(box, without):
    return (box[2] - box[0]) * (box[3] - box[1]) / 1e6 - without


def rooms(s):
    for number, name, box, without, floor, place in ROOMS:
        s.layer("A-TEXT")
        scale = 50 if area(box, without) > 6 else 36 if area(box, without) > 2 else 30
        s.insert("ROOM-LABEL", place, scale,
                 values=(name, f"{area(box, without):.2f} m\u00b2", floor, number))


def wet_floors(s):
    """Tiles, around all that stands on them."""
    s.layer("A-FLOOR")
    for _, _, box, _, floor, _ in ROOMS:
        if floor == "tiles":
            s.rect(*box)
    s.hatch("NET", 94, 0, (8300, 8700), (10000, 7500), (9700, 5300))


def grid(s):
    s.layer("A-GRID")
    lines = ((380, "1"), (7880, "2"), (W - 380, "3"))
    for x, name in lines:
        s.line((x, -300), (x, H + 300))
        s.line((x, H + 2650), (x, H + 3250))
        s.insert("GRID-BUBBLE", (x, H + 3250), 50, values=(name,))
    for y, name in ((380, "A"), (5020, "B"), (H - 380, "C")):
        s.line((-300, y), (W + 300, y))
        s.line((-2100, y), (-2450, y))
        s.insert("GRID-BUBBLE", (-2650, y - 200), 50, values=(name,))


def section(s):
    s.layer("A-SECTION")
    s.line((6180, -4300), (6180, -3950))
    s.line((6180, H + 2650), (6180, H + 2900))
    s.insert("SECTION-MARK-LOWER", (6180, -4300), 50, values=("A",))
    s.insert("SECTION-MARK", (6180, H + 2900), 50, values=("A",))


def cuts(side):
    """Where the openings of one side begin and end."""
    places = [0, W if side in "SN" else H]
    for _, _, width, at, middle, *_ in WINDOWS:
        if at == side:
            places += [middle - width / 2, middle + width / 2]
    if side == "N":
        places += [4150, 5410]
    return sorted(places)


CHAINS = {
    "S": [0, 500, 7760, 8000, 12000, W],
    "N": [0, 500, 3885, 4000, 7760, None, 8000, 9200, 9315, 12000, W],
    "E": [0, 500, 4910, 5025, 6370, 6485, 9000, H],
    "W": [0, 500, 4900, 5140, 9000, H],
}


def dimensions(s):
    s.layer("A-DIM")
    for side, at in {"S": -2850, "N": H + 1500, "W": -1000, "E": W + 1000}.items():
        along = "x" if side in "SN" else "y"
        step = 450 if at > 0 else -450
        s.chain(along, at, cuts(side))
        s.chain(along, at + step, CHAINS[side])
        s.chain(along, at + 2 * step, [0, W if along == "x" else H])


def overview_dimensions(s, placing):
    """They stand on the sheet: those of the model are meant for 1:50."""
    use_dimension_style(s, "SHEET-100")
    s.layer("A-DIM")
    placing.chain(s, "x", -3000, [0, 7760, 8000, W])
    placing.chain(s, "x", -3800, [0, W])
    placing.chain(s, "y", -900, [0, 4900, 5140, H])
    placing.chain(s, "y", -1700, [0, H])


def schedules(s, x, y):
    rows = [("Mark", "Width", "Height", "Sill", "Kind")]
    kinds = {"SLIDE": "lift and slide door"}
    for mark, block, width, _, _, sill, height in WINDOWS:
        rows.append((mark, width, height, sill, kinds.get(block.split("-")[-1], "tilt and turn")))
    table(s, (x, y), (20, 25, 25, 20, 60), rows, "Windows")
    rows = [("No.", "Width", "Height", "Fire", "Kind")]
    for number, block, _, _, width, fire, _ in DOORS:
        kind = {"ENTRANCE": "entrance, side light", "DOUBLE": "two leaves", "T30": "steel"}.get(
            block.split("-")[-1], "flush, hinges " + {"L": "left", "R": "right"}.get(block[-1], ""))
        rows.append((number, width, 2135 if number == "D01" else 2010,
                     fire if fire != "none" else "-", kind))
    table(s, (x, y - 6 * (len(WINDOWS) + 1) - 16), (20, 25, 25, 20, 60), rows, "Doors")


LEGEND = [
    ("ANSI31", 0.5, 0, "Masonry, 240"), ("ANSI31", 0.24, 90, "Facing bricks, 115"),
    ("INSULATION", 0.56, 0, "Mineral wool, 145"), ("ANSI31", 0.5, 90, "Partition, 115"),
    ("NET", 1.88, 0, "Tiles"),
]


def legend(s, x, y):
    s.layer("A-TEXT")
    s.text((x, y + 2), 3.5, "Materials")
    for number, (pattern, scale, angle, words) in enumerate(LEGEND):
        top = y - 2 - number * 11
        s.layer("A-WALL-PART")
        s.rect(x, top - 8, x + 20, top)
        s.layer("A-HATCH")
        s.hatch(pattern, scale, angle, (x + 10, top - 4))
        s.layer("A-TEXT")
        s.text((x + 24, top - 4), 2.5, words, "ML")


def areas(s, x, y):
    rows = [("No.", "Room", "Floor", "Area m\u00b2")]
    total = 0
    for number, name, box, without, floor, _ in ROOMS:
        total += area(box, without)
        rows.append((number, name, floor, f"{area(box, without):.2f}"))
    rows.append(("", "Ground floor", "", f"{total:.2f}"))
    table(s, (x, y), (15, 40, 32, 23), rows, "Areas", height=5)


def sheets(s):
    values = list(titles.VALUES)
    page(s, "Ground_floor_1-50", "A2")
    view(s, (22, 12), 385, 396, (W / 2 + 200, H / 2 - 500), 1 / 50)
    s.layer("A-TITLE")
    s.insert("SHEET-A2", (0, 0), values=values)
    s.insert("NORTH-ARROW", (560, 378), angle=-12)
    legend(s, 414, 392)
    s.layer("A-TITLE")
    schedules(s, 414, 318)
    s.insert("SCALE-BAR", (414, 88), values=("0", "1", "2.5 m"))
    page(s, "Overview_1-100", "A4", "_P")
    placing = view(s, (22, 74), 176, 152, (W / 2 - 300, 3300), 1 / 100,
                   ("A-DIM", "A-GRID", "A-TAG", "A-SECTION"))
    overview_dimensions(s, placing)
    s.layer("A-TITLE")
    values[7], values[8] = "1:100", "A-102"
    s.insert("SHEET-A4", (0, 0), values=values)
    s.insert("NORTH-ARROW", (175, 262), angle=-12)
    s.insert("SCALE-BAR", (142, 232), values=("0", "2", "5 m"))
    areas(s, 26, 279)
    s.type("MODEL")
    s.type("ZOOM _E")


def script():
    s = new_drawing(20, "HIDDEN", "HIDDEN2", "CENTER", "CENTER2", "DASHED2")
    wanted = {row[0] for row in FURNITURE + SANITARY} | {row[1] for row in WINDOWS + DOORS} | {
        "ROOM-LABEL", "DOOR-TAG", "WINDOW-TAG", "GRID-BUBBLE", "SECTION-MARK",
        "SECTION-MARK-LOWER", "LEVEL-FINISHED",
        "NORTH-ARROW", "SCALE-BAR", "SHEET-A2", "SHEET-A4", "TREE-SHADED", "TREE-BRANCHED", "SHRUB"}
    define_from(s, wanted, doors, windows, furniture, sanitary, symbols, titles, trees)
    layers(s, LAYERS)
    dimension_style(s, "SHEET-100", 1, DIMLFAC=100, DIMTSZ=1.2, DIMDEC=0, DIMFXLON=1, DIMFXL=3)
    dimension_style(s, "MODEL-50", 50, DIMLFAC=1, DIMTSZ=1.2, DIMDEC=0, DIMFXLON=1, DIMFXL=3)
    walls(s)
    openings_filled(s)
    stair(s)
    for block, place, angle in FURNITURE:
        s.layer("A-FURNITURE")
        s.insert(block, place, angle=angle)
    for block, place, angle in SANITARY:
        s.layer("A-SANITARY")
        s.insert(block, place, angle=angle)
    rooms(s)
    wet_floors(s)
    outside(s)
    grid(s)
    section(s)
    dimensions(s)
    s.layer("A-SYMBOL")
    s.insert("LEVEL-FINISHED", (2200, 1050), 50, values=("%%p0.00",))
    sheets(s)
    # What is drawn and dimensioned next is as large as what is there.
    use_dimension_style(s, "MODEL-50")
    s.layer("0")
    return s.text_of()
