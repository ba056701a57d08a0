"""Sanitary objects in plan. Base point: the middle of the back, which stands at the wall."""

from drafting import polar
from library import Block, Library


def bowl(s, top, front, half):
    """A seat: a half circle at the front, straight at the back."""
    turn = front + half
    s.pline([(half * 0.8, top), ((half * 0.95, top - half * 0.15), (half, top - half * 0.5)),
             (half, turn), ((0, front), (-half, turn)), (-half, top - half * 0.5),
             ((-half * 0.95, top - half * 0.15), (-half * 0.8, top)), (half * 0.8, top)],
            closed=False)


def wc(s):
    s.rounded(-190, -170, 190, 0, 30)
    s.rounded(-40, -110, 40, -60, 15)
    bowl(s, -170, -660, 185)
    bowl(s, -235, -625, 140)


def wall_wc(s):
    s.rect(-250, -20, 250, 0)
    bowl(s, -20, -540, 180)
    s.line((-140, -75), (140, -75))
    bowl(s, -110, -505, 135)
    s.rounded(-110, -18, 110, -3, 5)


def bidet(s):
    s.rect(-250, -20, 250, 0)
    bowl(s, -20, -540, 180)
    s.ellipse((0, -310), 120, 175)
    s.circle((0, -310), 20)
    s.circle((0, -85), 25)
    s.line((0, -110), (0, -180))


def tap(s, x, y, length=110):
    s.circle((x, y), 22)
    s.line((x - 12, y - 18), (x - 9, y - length))
    s.line((x + 12, y - 18), (x + 9, y - length))
    s.line((x - 9, y - length), (x + 9, y - length))


def basin_at(s, x, width, depth):
    s.ellipse((x, -depth * 0.54), width * 0.40, depth * 0.34)
    s.circle((x, -depth * 0.54), 22)
    s.circle((x, -depth * 0.54), 12)
    tap(s, x, -55, depth * 0.26)


def basin(width, depth):
    def draw(s):
        half, round_ = width / 2, width * 0.22
        k = round_ * (1 - 0.5 ** 0.5)
        s.pline([(half, 0), (-half, 0), (-half, -depth * 0.95 + round_),
                 ((-half + k, -depth * 0.95 + k), (-half + round_, -depth * 0.95)),
                 ((0, -depth), (half - round_, -depth * 0.95)),
                 ((half - k, -depth * 0.95 + k), (half, -depth * 0.95 + round_)), (half, 0)],
                closed=False)
        basin_at(s, 0, width, depth)
    return draw


def double_basin(s):
    s.rounded(-600, -500, 600, 0, 25)
    for x in (-300, 300):
        basin_at(s, x, 560, 500)


def bath(width, depth):
    def draw(s):
        half = width / 2
        s.rect(-half, -depth, half, 0)
        x1, x2, y1, y2 = -half + 60, half - 55, -depth + 60, -60
        middle = (y1 + y2) / 2
        s.pline([(x1 + 60, y2 - 20), (x2 - middle + y1, y2), ((x2, middle), (x2 - middle + y1, y1)),
                 (x1 + 60, y1 + 20),
                 ((x1 + 18, y1 + 38), (x1, y1 + 80)), (x1, y2 - 80),
                 ((x1 + 18, y2 - 38), (x1 + 60, y2 - 20))], closed=False)
        s.circle((x1 + 190, middle), 30)
        s.circle((x1 + 190, middle), 16)
        s.circle((-half + 30, middle - 60), 16)
        s.circle((-half + 30, middle + 60), 16)
    return draw


def corner_bath(s):
    s.pline([(0, 0), (1450, 0), (1450, -500), ((1160, -1160), (500, -1450)), (0, -1450)])
    s.pline([(150, -90), (1250, -90), ((1340, -120), (1360, -220)), (1360, -470),
             ((1080, -1080), (470, -1360)), (220, -1360), ((120, -1340), (90, -1250)), (90, -150),
             ((108, -108), (150, -90))], closed=False)
    s.circle((360, -360), 30)
    s.circle((360, -360), 16)
    s.circle((60, -60), 18)


def shower(width, depth):
    def draw(s):
        half = width / 2
        s.rect(-half, -depth, half, 0)
        s.rounded(-half + 40, -depth + 40, half - 40, -40, 60)
        s.line((-half + 58, -58), (half - 58, -depth + 58))
        s.line((-half + 58, -depth + 58), (half - 58, -58))
        s.circle((0, -depth / 2), 55)
        s.circle((0, -depth / 2), 35)
        s.rect(-half, -depth, half, -depth + 12)
    return draw


def quarter_shower(s):
    s.pline([(0, 0), (900, 0), (900, -350), ((739, -739), (350, -900)), (0, -900)])
    s.pline([(50, -50), (850, -50), (850, -345), ((702, -702), (345, -850)), (50, -850)])
    s.circle((320, -320), 55)
    s.circle((320, -320), 35)


def urinal(s):
    s.pline([(160, 0), (-160, 0), (-175, -165), ((0, -340), (175, -165)), (160, 0)], closed=False)
    s.ellipse((0, -165), 110, 125)
    s.circle((0, -165), 18)


def appliance(word):
    def draw(s):
        s.rounded(-300, -600, 300, 0, 20)
        s.line((-300, -510), (300, -510))
        s.circle((0, -270), 190)
        s.circle((0, -270), 165)
        s.text((0, -270), 110, word, "MC")
        s.circle((220, -555), 20)
    return draw


def drain(s):
    s.rect(-75, -75, 75, 75)
    s.rect(-60, -60, 60, 60)
    for i in range(-2, 3):
        s.line((-50, i * 20), (50, i * 20))


def channel(s):
    s.rect(-450, -40, 450, 40)
    s.rect(-430, -25, 430, 25)
    for i in range(-14, 15):
        s.line((i * 30 - 8, -18), (i * 30 + 8, 18))


def heater(s):
    s.rect(-300, -90, 300, -40)
    for i in range(9):
        x = -270 + i * 67.5
        s.line((x, -90), (x, -40))
    for x in (-240, 240):
        s.line((x, -40), (x, 0))


def boiler(s):
    s.circle((0, -300), 300)
    s.circle((0, -300), 250)
    for a in (45, 135):
        s.line(polar((0, -300), 250, a), polar((0, -300), 250, a + 180))


BLOCKS = [
    Block("WC", "with cistern, 380 x 660", wc),
    Block("WC-WALL", "wall-hung, 360 x 540", wall_wc),
    Block("BIDET", "wall-hung", bidet),
    Block("URINAL", "350 x 340", urinal),
    Block("BASIN-450", "hand basin, 450 x 350", basin(450, 350)),
    Block("BASIN-600", "wash basin, 600 x 480", basin(600, 480)),
    Block("BASIN-1200", "two basins, 1200 x 500", double_basin),
    Block("BATH-1700", "1700 x 750", bath(1700, 750)),
    Block("BATH-1800", "1800 x 800", bath(1800, 800)),
    Block("BATH-CORNER", "1450 x 1450, base in the corner", corner_bath),
    Block("SHOWER-900", "900 x 900", shower(900, 900)),
    Block("SHOWER-1200", "1200 x 900", shower(1200, 900)),
    Block("SHOWER-QUARTER", "900 x 900, base in the corner", quarter_shower),
    Block("WASHER", "600 x 600", appliance("WM")),
    Block("DRYER", "600 x 600", appliance("TD")),
    Block("TOWEL-RADIATOR", "600 wide", heater),
    Block("BOILER", "diameter 600", boiler),
    Block("FLOOR-DRAIN", "150 x 150, base in the middle", drain),
    Block("SHOWER-CHANNEL", "900 long, base in the middle", channel),
]

LIBRARY = Library("sanitary", "Sanitary objects, plan 1:50", "A-SANITARY", 140, BLOCKS, columns=5,
                  text=60, weight=0.18)
