"""Furniture and kitchens in plan. Base point: the middle of the back, which stands at the wall;
what stands free has it in its middle."""

import math

from drafting import polar
from library import Block, Library


def sofa(width, seats):
    def draw(s):
        half, depth, arm = width / 2, 900, 160
        s.rounded(-half, -depth, half, 0, 60)
        s.rounded(-half + arm, -200, half - arm, -20, 50)
        seat = (width - 2 * arm) / seats
        for i in range(seats):
            left = -half + arm + i * seat
            s.rounded(left + 8, -depth + 10, left + seat - 8, -215, 60)
        for side in (-1, 1):
            x1, x2 = sorted((side * half, side * (half - arm)))
            s.rounded(x1 + 12, -depth + 15, x2 - 12, -40, 45)
    return draw


def corner_sofa(s):
    s.pline([(0, 0), (2600, 0), (2600, -950), (950, -950), (950, -2100), (0, -2100)])
    s.pline([(200, -2090), (200, -200), (2590, -200)], closed=False)
    for x in (950, 1500, 2050):
        s.line((x, -200), (x, -950))
    s.line((200, -950), (950, -950))
    s.line((200, -1525), (950, -1525))
    for x, y in ((330, -1150), (1100, -330), (2300, -330)):
        s.rounded(x - 60, y - 190 + 60, x + 320, y + 130, 60)


def chair_shape(s, x=0.0, y=0.0, angle=0.0, size=450):
    """Looks up: the back is at its lower edge."""
    turn = math.radians(angle)

    def at(u, v):
        return (x + u * math.cos(turn) - v * math.sin(turn),
                y + u * math.sin(turn) + v * math.cos(turn))
    h = size / 2
    s.pline([at(-h * 0.9, -h * 0.75), at(-h, h * 0.8), (at(-h * 0.94, h * 0.94), at(-h * 0.8, h)),
             at(h * 0.8, h), (at(h * 0.94, h * 0.94), at(h, h * 0.8)), at(h * 0.9, -h * 0.75)])
    s.pline([at(-h, -h * 0.75), (at(0, -h * 1.05), at(h, -h * 0.75)), at(h * 0.93, -h * 0.5),
             (at(0, -h * 0.8), at(-h * 0.93, -h * 0.5)), at(-h, -h * 0.75)], closed=False)


def chair(s):
    chair_shape(s)


def armchair(s):
    s.rounded(-425, -850, 425, 0, 90)
    s.rounded(-275, -200, 275, -20, 60)
    s.rounded(-265, -840, 265, -215, 60)
    for side in (-1, 1):
        x1, x2 = sorted((side * 415, side * 285))
        s.rounded(x1, -800, x2, -60, 50)


def office_chair(s):
    s.circle((0, 0), 240)
    s.pline([polar((0, 0), 265, 215), (polar((0, 0), 265, 270), polar((0, 0), 265, 325)),
             polar((0, 0), 225, 325), (polar((0, 0), 225, 270), polar((0, 0), 225, 215))])
    for a in (90, 162, 234, 306, 18):
        s.line(polar((0, 0), 240, a), polar((0, 0), 315, a))
        s.circle(polar((0, 0), 340, a), 25)


def table(width, depth, across, ends):
    def draw(s):
        s.rounded(-width / 2, -depth / 2, width / 2, depth / 2, 40)
        step = width / across
        for i in range(across):
            x = -width / 2 + step * (i + 0.5)
            chair_shape(s, x, -depth / 2 - 190, 0)
            chair_shape(s, x, depth / 2 + 190, 180)
        if ends:
            chair_shape(s, -width / 2 - 190, 0, 270)
            chair_shape(s, width / 2 + 190, 0, 90)
    return draw


def round_table(s):
    s.circle((0, 0), 550)
    for a in (0, 90, 180, 270):
        x, y = polar((0, 0), 740, a)
        chair_shape(s, x, y, a + 90)


def coffee_table(s):
    s.rounded(-600, -350, 600, 350, 60)
    s.rounded(-560, -310, 560, 310, 40)
    s.rect(120, -180, 400, 20)
    s.circle((-280, 80), 90)


def bed(width, pillows):
    def draw(s):
        half, length = width / 2, 2060
        s.rect(-half, -length, half, 0)
        s.line((-half, -60), (half, -60))
        gap = width / pillows
        for i in range(pillows):
            left = -half + i * gap
            s.rounded(left + 60, -520, left + gap - 60, -110, 70)
        s.pline([(-half + 15, -length + 15), (-half + 15, -640), (half - 15, -640),
                 (half - 15, -length + 15)])
        s.line((-half + 15, -800), (half - 15, -800))
        s.pline([(half - 15, -1150), (half - 350, -800)], closed=False)
    return draw


def nightstand(s):
    s.rect(-250, -400, 250, 0)
    s.circle((0, -200), 110)
    s.line((-150, -200), (150, -200))
    s.line((0, -350), (0, -50))


def wardrobe(width):
    def draw(s):
        half = width / 2
        s.rect(-half, -600, half, 0)
        s.line((-half, -580), (half, -580))
        s.line((-half + 20, -290), (half - 20, -290))
        count = int(width / 130)
        for i in range(count):
            x = -half + 90 + i * (width - 180) / (count - 1)
            lean = (35, -20, 10, -35, 25)[i % 5]
            s.line((x - lean, -520), (x + lean, -70))
    return draw


def shelf(s):
    s.rect(-400, -350, 400, 0)
    s.line((-400, -350), (400, 0))


def sideboard(s):
    s.rect(-900, -450, 900, 0)
    for x in (-300, 300):
        s.line((x, -450), (x, 0))
    s.rect(-620, -290, 620, -230)
    s.pline([(-620, -290), (-420, -330), (420, -330), (620, -290)], closed=False)


def desk(s):
    s.rounded(-800, -800, 800, 0, 25)
    s.rect(-330, -190, 330, -130)
    s.rounded(-260, -560, 200, -400, 15)
    s.rounded(270, -540, 340, -420, 30)
    s.rect(-780, -780, -380, -20)
    s.line((-780, -520), (-380, -520))
    s.line((-780, -270), (-380, -270))


def piano(s):
    s.pline([(-740, 0), (-740, -1150), (740, -1150), (740, -700), ((600, -420), (300, -260)),
             ((-60, 60), (-300, 180)), ((-600, 190), (-740, 0))], closed=False)
    s.rect(-680, -1140, 680, -990)
    for i in range(1, 26):
        x = -680 + i * 1360 / 26
        s.line((x, -1140), (x, -990))
    s.line((-740, -960), (740, -960))
    s.rounded(-380, -1650, 380, -1310, 30)


def plant(s):
    s.circle((0, 0), 160)
    s.circle((0, 0), 135)
    for i in range(9):
        a = i * 40
        tip = polar((0, 0), 300 if i % 2 else 350, a)
        s.pline([(0, 0), (polar((0, 0), 190, a + 15), tip), (polar((0, 0), 190, a - 15), (0, 0))],
                closed=False)


def base_unit(s):
    s.rect(-300, -600, 300, 0)
    s.line((-300, -580), (300, -580))


def corner_unit(s):
    s.pline([(0, 0), (900, 0), (900, -600), (600, -600), (600, -900), (0, -900)])
    s.line((580, -900), (580, -580), (900, -580))


def hob(s):
    base_unit(s)
    s.rounded(-285, -545, 285, -45, 20)
    for x, y, r in ((-140, -170, 90), (140, -170, 72), (-140, -400, 72), (140, -400, 105)):
        s.circle((x, y), r)
        s.circle((x, y), r - 14)
        s.line((x - r - 12, y), (x + r + 12, y))
        s.line((x, y - r - 12), (x, y + r + 12))


def sink(s):
    s.rect(-500, -600, 500, 0)
    s.line((-500, -580), (500, -580))
    s.rounded(-470, -535, 470, -45, 25)
    s.rounded(-440, -500, -30, -115, 70)
    s.circle((-235, -300), 42)
    s.circle((-235, -300), 22)
    for i in range(8):
        y = -140 - i * 47
        s.line((50, y), (430, y))
    s.circle((20, -80), 26)
    s.line((8, -100), (-90, -215))
    s.line((32, -88), (-72, -228))
    s.arc((-81, -221), 12, 140, 320)


def dishwasher(s):
    base_unit(s)
    s.linetype("HIDDEN2")
    s.rect(-280, -560, 280, -20)
    s.linetype()
    s.text((0, -300), 110, "DW", "MC")


def fridge(s):
    s.rect(-300, -620, 300, 0)
    s.line((-300, -570), (300, -570))
    s.line((-300, 0), (300, -570))
    s.line((-300, -570), (300, 0))
    s.linetype("HIDDEN2")
    s.arc((-300, -620), 600, 300, 360)
    s.line((-300, -620), polar((-300, -620), 600, 300))
    s.linetype()


def oven_tower(s):
    s.rect(-300, -600, 300, 0)
    s.line((-300, -580), (300, -580))
    s.line((-300, -580), (300, 0))
    s.rect(-260, -600, 260, -625)


def island(s):
    s.rounded(-1200, -500, 1200, 500, 15)
    s.rounded(-1160, -260, -560, 260, 20)
    for x, y, r in ((-1010, 110, 90), (-710, 110, 75), (-1010, -130, 75), (-710, -130, 100)):
        s.circle((x, y), r)
        s.circle((x, y), r - 15)
    for x in (-150, 400, 950):
        s.circle((x, -640), 170)
        s.circle((x, -640), 150)


BLOCKS = [
    Block("SOFA-1800", "two seats", sofa(1800, 2)),
    Block("SOFA-2300", "three seats", sofa(2300, 3)),
    Block("SOFA-CORNER", "2600 x 2100, base in the corner", corner_sofa),
    Block("ARMCHAIR", "850 x 850", armchair),
    Block("TABLE-COFFEE", "1200 x 700", coffee_table),
    Block("CHAIR", "450 x 450", chair),
    Block("CHAIR-OFFICE", "swivel chair", office_chair),
    Block("TABLE-4", "1200 x 800, four chairs", table(1200, 800, 2, False)),
    Block("TABLE-8", "2000 x 1000, eight chairs", table(2000, 1000, 3, True)),
    Block("TABLE-ROUND-4", "diameter 1100", round_table),
    Block("DESK-1600", "1600 x 800", desk),
    Block("BED-900", "900 x 2000", bed(940, 1)),
    Block("BED-1400", "1400 x 2000", bed(1440, 2)),
    Block("BED-1800", "1800 x 2000", bed(1840, 2)),
    Block("NIGHTSTAND", "500 x 400", nightstand),
    Block("WARDROBE-1000", "1000 x 600", wardrobe(1000)),
    Block("WARDROBE-2500", "2500 x 600", wardrobe(2500)),
    Block("SHELF-800", "800 x 350", shelf),
    Block("SIDEBOARD-1800", "with screen", sideboard),
    Block("PIANO-GRAND", "with bench", piano),
    Block("PLANT", "in a pot", plant),
    Block("KITCHEN-UNIT-600", "base unit", base_unit),
    Block("KITCHEN-CORNER", "900 x 900, base in the corner", corner_unit),
    Block("KITCHEN-HOB", "600, four zones", hob),
    Block("KITCHEN-SINK", "1000, with drainer", sink),
    Block("KITCHEN-DISHWASHER", "600", dishwasher),
    Block("KITCHEN-FRIDGE", "600", fridge),
    Block("KITCHEN-OVEN", "600, tall unit", oven_tower),
    Block("KITCHEN-ISLAND", "2400 x 1000", island),
]

LIBRARY = Library("furniture", "Furniture and kitchens, plan 1:50", "A-FURNITURE", 8, BLOCKS,
                  columns=6, text=110, weight=0.18)
