"""Fasteners, full size. Base point of screws: the middle under the head, the shank down; of nuts
and washers: the middle of the face that lies on the part. Plan views have it in their middle."""

from drafting import polar
from library import Block, Library

# Thread, pitch, width across flats, height of the head of ISO 4014/4017, of the nut of ISO 4032,
# washer of ISO 7089 (hole, outside, thickness), socket head of ISO 4762 (diameter, socket).
SIZES = {
    5: (0.8, 8, 3.5, 4.7, (5.3, 10, 1.0), (8.5, 4)),
    6: (1.0, 10, 4.0, 5.2, (6.4, 12, 1.6), (10, 5)),
    8: (1.25, 13, 5.3, 6.8, (8.4, 16, 1.6), (13, 6)),
    10: (1.5, 16, 6.4, 8.4, (10.5, 20, 2.0), (16, 8)),
    12: (1.75, 18, 7.5, 10.8, (13, 24, 2.5), (18, 10)),
}


def data(s, designation, standard):
    s.attribute("DESIGNATION", "Designation", designation, (0, -2), 1.5, invisible=True)
    s.attribute("STANDARD", "Standard", standard, (0, -4.5), 1.5, invisible=True)
    s.attribute("MATERIAL", "Material or class", "8.8", (0, -7), 1.5, invisible=True)


def axis(s, top, bottom, over=2.0):
    s.weight(0.18)
    s.linetype("CENTER2")
    s.line((0, top + over), (0, bottom - over))
    s.linetype()
    s.weight()


def core(d):
    return d - 1.2269 * SIZES[d][0]


def shank(s, d, length, thread):
    """From the origin down, with the thread's core in thin lines."""
    h, c = d / 2, core(d) / 2
    chamfer = h - c
    s.pline([(-h, 0), (-h, -length + chamfer), (-c, -length), (c, -length), (h, -length + chamfer),
             (h, 0)], closed=False)
    s.line((-h, -length + chamfer), (h, -length + chamfer))
    s.line((-h, -length + thread), (h, -length + thread))
    s.weight(0.18)
    for x in (-c, c):
        s.line((x, -length + thread), (x, -length))
    s.weight()


def hex_side(s, across, bottom, top, upper=True, lower=False):
    """A hexagon seen on three faces, with the arcs of its chamfers."""
    e = across / 0.8660254
    wide, edge, rise = e / 2, e / 4, e * 0.058
    y1 = bottom + (rise if lower else 0)
    y2 = top - (rise if upper else 0)
    s.line((-wide, y1), (-wide, y2))
    s.line((wide, y1), (wide, y2))
    for x in (-edge, edge):
        s.line((x, y1), (x, y2))
    for here, y, end, sign in ((upper, y2, top, 1), (lower, y1, bottom, -1)):
        if not here:
            s.line((-wide, end), (wide, end))
            continue
        flat = across / 2 * 0.95
        s.line((-flat, end), (flat, end))
        s.pline([(-edge, y), ((0, end), (edge, y))], closed=False)
        for side in (-1, 1):
            s.pline([(side * edge, y), ((side * (edge + wide) / 2, y + sign * rise * 0.72),
                                        (side * wide, y))], closed=False)
            s.line((side * flat, end), (side * wide, y))


def hexagon(s, across):
    e = across / 0.8660254
    s.pline([polar((0, 0), e / 2, a) for a in range(0, 360, 60)])


def cross(s, radius):
    s.weight(0.18)
    s.linetype("CENTER2")
    s.line((-radius, 0), (radius, 0))
    s.line((0, -radius), (0, radius))
    s.linetype()
    s.weight()


def bolt(d, length):
    def draw(s):
        pitch, across, head = SIZES[d][:3]
        hex_side(s, across, 0, head)
        shank(s, d, length, min(length - 2 * pitch, 2 * d + 6))
        axis(s, head, -length)
        data(s, f"M{d}x{length}", "ISO 4014")
    return draw


def socket_screw(d, length):
    def draw(s):
        pitch = SIZES[d][0]
        diameter, socket = SIZES[d][5]
        s.pline([(-diameter / 2, 0), (-diameter / 2, d - 0.6), (-diameter / 2 + 0.6, d),
                 (diameter / 2 - 0.6, d), (diameter / 2, d - 0.6), (diameter / 2, 0)])
        s.weight(0.18)
        s.linetype("HIDDEN2")
        half = socket / 2 / 0.866
        s.pline([(-half, d), (-half, d * 0.45), (0, d * 0.3), (half, d * 0.45), (half, d)],
                closed=False)
        s.linetype()
        s.weight()
        shank(s, d, length, min(length - 2 * pitch, 2 * d + 12))
        axis(s, d, -length)
        data(s, f"M{d}x{length}", "ISO 4762")
    return draw


def countersunk(d, length):
    def draw(s):
        r, head = d * 0.93, d * 0.55
        s.pline([(-d / 2, -head), (-r, -0.3), (-r, 0), (r, 0), (r, -0.3), (d / 2, -head)])
        s.weight(0.18)
        s.linetype("HIDDEN2")
        s.pline([(-d * 0.35, 0), (-d * 0.35, -d * 0.3), (0, -d * 0.4), (d * 0.35, -d * 0.3),
                 (d * 0.35, 0)], closed=False)
        s.linetype()
        s.weight()
        h, c = d / 2, core(d) / 2
        chamfer = h - c
        s.pline([(-h, -head), (-h, -length + chamfer), (-c, -length), (c, -length),
                 (h, -length + chamfer), (h, -head)], closed=False)
        s.line((-h, -length + chamfer), (h, -length + chamfer))
        s.weight(0.18)
        for x in (-c, c):
            s.line((x, -head), (x, -length))
        s.weight()
        axis(s, 0, -length)
        data(s, f"M{d}x{length}", "ISO 10642")
    return draw


def nut_side(d):
    def draw(s):
        across, high = SIZES[d][1], SIZES[d][3]
        hex_side(s, across, 0, high, lower=True)
        axis(s, high, 0)
        data(s, f"M{d}", "ISO 4032")
    return draw


def nut_plan(d):
    def draw(s):
        across = SIZES[d][1]
        hexagon(s, across)
        s.circle((0, 0), across / 2 * 0.95)
        s.circle((0, 0), core(d) / 2)
        s.weight(0.18)
        s.arc((0, 0), d / 2, 100, 10)
        s.weight()
        cross(s, across * 0.72)
        data(s, f"M{d}", "ISO 4032")
    return draw


def head_plan(d):
    def draw(s):
        across = SIZES[d][1]
        hexagon(s, across)
        s.circle((0, 0), across / 2 * 0.95)
        cross(s, across * 0.72)
        data(s, f"M{d}", "ISO 4014")
    return draw


def socket_plan(d):
    def draw(s):
        diameter, socket = SIZES[d][5]
        s.circle((0, 0), diameter / 2)
        s.circle((0, 0), diameter / 2 - 0.6)
        hexagon(s, socket)
        cross(s, diameter * 0.65)
        data(s, f"M{d}", "ISO 4762")
    return draw


def washer_side(d):
    def draw(s):
        hole, outside, thick = SIZES[d][4]
        s.rect(-outside / 2, 0, outside / 2, thick)
        s.weight(0.18)
        s.linetype("HIDDEN2")
        for x in (-hole / 2, hole / 2):
            s.line((x, 0), (x, thick))
        s.linetype()
        s.weight()
        axis(s, thick, 0)
        data(s, f"{d}", "ISO 7089")
    return draw


def washer_plan(d):
    def draw(s):
        hole, outside, _ = SIZES[d][4]
        s.circle((0, 0), outside / 2)
        s.circle((0, 0), hole / 2)
        cross(s, outside * 0.6)
        data(s, f"{d}", "ISO 7089")
    return draw


def pin(s):
    s.pline([(-3, -1), (-2.6, 0), (2.6, 0), (3, -1), (3, -29), (2.6, -30), (-2.6, -30), (-3, -29)])
    s.line((-3, -1), (3, -1))
    s.line((-3, -29), (3, -29))
    axis(s, 0, -30)
    data(s, "6x30", "ISO 8734")


def stud(s):
    d, length, h, c = 8, 40, 4, core(8) / 2
    ch = h - c
    s.pline([(-c, 0), (c, 0), (h, -ch), (h, -length + ch), (c, -length), (-c, -length),
             (-h, -length + ch), (-h, -ch)])
    for y in (-ch, -length + ch, -12, -length + 20):
        s.line((-h, y), (h, y))
    s.weight(0.18)
    for x in (-c, c):
        s.line((x, 0), (x, -12))
        s.line((x, -length), (x, -length + 20))
    s.weight()
    axis(s, 0, -length)
    data(s, f"M{d}x{length}", "DIN 938")


def circlip(s):
    s.arc((0, 0), 9.3, 115, 65)
    s.arc((0, -0.4), 11.3, 104, 76)
    for side in (-1, 1):
        a, b = polar((0, 0), 9.3, 90 + side * 25), polar((0, -0.4), 11.3, 90 + side * 14)
        s.line(a, shifted_up(a, 4.5), (b[0], a[1] + 4.5), b)
        s.circle((polar((0, 0), 9.3, 90 + side * 25)[0] * 0.87, a[1] + 2.6), 0.9)
    cross(s, 15)
    data(s, "20x1.2", "DIN 471")


def shifted_up(p, dy):
    return (p[0], p[1] + dy)


def rivet(s):
    d, length = 5, 16
    s.pline([(-4.4, 0), ((0, 3.2), (4.4, 0)), (-4.4, 0)], closed=False)
    s.pline([(-d / 2, 0), (-d / 2, -length), (d / 2, -length), (d / 2, 0)], closed=False)
    axis(s, 3.2, -length)
    data(s, "5x16", "ISO 1051")


def key(s):
    s.pline([(-8, -3), (8, -3), ((11, 0), (8, 3)), (-8, 3), ((-11, 0), (-8, -3))], closed=False)
    s.weight(0.18)
    s.linetype("CENTER2")
    s.line((-13, 0), (13, 0))
    s.linetype()
    s.weight()
    data(s, "A6x6x22", "DIN 6885")


def parts():
    made = []
    for d, length in ((5, 16), (6, 20), (8, 30), (10, 40), (12, 50)):
        made.append(Block(f"HEX-BOLT-M{d}", f"ISO 4014, M{d}x{length}", bolt(d, length),
                          (f"M{d}x{length}", "ISO 4014", "8.8")))
    for d, length in ((5, 20), (6, 25), (8, 30)):
        made.append(Block(f"SOCKET-SCREW-M{d}", f"ISO 4762, M{d}x{length}",
                          socket_screw(d, length), (f"M{d}x{length}", "ISO 4762", "12.9")))
    made.append(Block("COUNTERSUNK-M6", "ISO 10642, M6x20", countersunk(6, 20),
                      ("M6x20", "ISO 10642", "10.9")))
    made.append(Block("STUD-M8", "DIN 938, M8x40", stud, ("M8x40", "DIN 938", "5.8")))
    for d in (6, 8, 10):
        made.append(Block(f"NUT-M{d}", "ISO 4032, side", nut_side(d), (f"M{d}", "ISO 4032", "8")))
    made.append(Block("NUT-M8-PLAN", "ISO 4032, plan", nut_plan(8), ("M8", "ISO 4032", "8")))
    made.append(Block("HEX-HEAD-M8-PLAN", "ISO 4014, plan", head_plan(8),
                      ("M8", "ISO 4014", "8.8")))
    made.append(Block("SOCKET-HEAD-M6-PLAN", "ISO 4762, plan", socket_plan(6),
                      ("M6", "ISO 4762", "12.9")))
    made.append(Block("SOCKET-HEAD-M8-PLAN", "ISO 4762, plan", socket_plan(8),
                      ("M8", "ISO 4762", "12.9")))
    for d in (6, 8, 10):
        made.append(Block(f"WASHER-M{d}", "ISO 7089, side", washer_side(d),
                          (f"{d}", "ISO 7089", "200 HV")))
    made.append(Block("WASHER-M8-PLAN", "ISO 7089, plan", washer_plan(8),
                      ("8", "ISO 7089", "200 HV")))
    made.append(Block("PIN-6x30", "ISO 8734", pin, ("6x30", "ISO 8734", "St")))
    made.append(Block("RIVET-5x16", "ISO 1051", rivet, ("5x16", "ISO 1051", "St")))
    made.append(Block("CIRCLIP-20", "DIN 471", circlip, ("20x1.2", "DIN 471", "C75S")))
    made.append(Block("KEY-6x6x22", "DIN 6885 A", key, ("A6x6x22", "DIN 6885", "C45")))
    return made


LIBRARY = Library("fasteners", "Fasteners 1:1", "M-PART", 7, parts(), columns=5, text=2.5,
                  weight=0.5, dashes=0.35)
