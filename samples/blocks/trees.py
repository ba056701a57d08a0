"""Trees and what stands around them, in plan. Base point: the middle of the trunk. Trees are drawn
with a crown of one metre: the scale of an insert is the crown's diameter in metres."""

from drafting import polar
from library import Block, Library

R = 500  # half of a metre


def data(s, species, at=(0, -640)):
    s.attribute("SPECIES", "Species", species, at, 90, invisible=True)
    s.attribute("CROWN", "Crown diameter in metres", "1.00", (at[0], at[1] - 130), 80,
                invisible=True)
    s.attribute("GIRTH", "Girth of the trunk in cm", "20/25", (at[0], at[1] - 250), 80,
                invisible=True)


def trunk(s, radius=30):
    s.dot((0, 0), 2 * radius)


def scallops(s, count, inner, outer, turn=0.0):
    """A closed line of arcs that bulge outwards."""
    step = 360 / count
    corners = [polar((0, 0), inner, turn + i * step) for i in range(count)]
    points = [corners[0]]
    for i in range(count):
        middle = polar((0, 0), outer, turn + (i + 0.5) * step)
        points.append((middle, corners[(i + 1) % count]))
    s.pline(points, closed=False)


def deciduous(species, count):
    def draw(s):
        scallops(s, count, R * 0.92, R)
        trunk(s)
        data(s, species)
    return draw


def branched(s):
    s.circle((0, 0), R)
    for i in range(9):
        a = i * 40 + (7 if i % 2 else -5)
        fork = polar((0, 0), R * 0.5, a)
        s.line((0, 0), fork)
        for side in (-18, 4, 22):
            s.line(fork, polar((0, 0), R * (0.93 if side == 4 else 0.84), a + side * 0.9))
    trunk(s, 25)
    data(s, "Quercus robur")


def shaded(s):
    scallops(s, 14, R * 0.9, R, 8)
    for radius, start, span in ((0.78, 200, 120), (0.62, 215, 100), (0.46, 225, 80),
                                (0.78, 340, 30), (0.62, 335, 25)):
        s.arc((0, 0), R * radius, start, start + span)
    trunk(s)
    data(s, "Tilia cordata")


def conifer(species, rays):
    def draw(s):
        step = 360 / rays
        points = []
        for i in range(rays):
            points.append(polar((0, 0), R, i * step))
            points.append(polar((0, 0), R * 0.8, (i + 0.5) * step))
        s.pline(points)
        for i in range(rays):
            s.line(polar((0, 0), R * (0.12 if i % 2 else 0.3), i * step),
                   polar((0, 0), R, i * step))
        trunk(s, 22)
        data(s, species)
    return draw


def fruit(s):
    s.circle((0, 0), R)
    s.circle((0, 0), R * 0.93)
    for i in range(6):
        s.circle(polar((0, 0), R * 0.62, i * 60 + 15), R * 0.1)
    trunk(s)
    data(s, "Malus domestica")


def columnar(s):
    s.circle((0, 0), R)
    for i in range(12):
        a = i * 30
        s.arc(polar((0, 0), R * 0.55, a), R * 0.26, a - 70, a + 70)
    trunk(s)
    data(s, "Carpinus betulus 'Fastigiata'")


def existing(s):
    s.linetype("DASHED2")
    s.circle((0, 0), R)
    s.linetype()
    s.line((-60, 0), (60, 0))
    s.line((0, -60), (0, 60))
    s.circle((0, 0), 40)
    data(s, "existing")


def felled(s):
    s.linetype("DASHED2")
    s.circle((0, 0), R)
    s.linetype()
    s.line(polar((0, 0), R, 45), polar((0, 0), R, 225))
    s.line(polar((0, 0), R, 135), polar((0, 0), R, 315))
    data(s, "to be felled")


def palm(s):
    for i in range(9):
        a = i * 40
        tip = polar((0, 0), R, a)
        s.pline([(0, 0), (polar((0, 0), R * 0.52, a + 9), tip),
                 (polar((0, 0), R * 0.52, a - 9), (0, 0))], closed=False)
    trunk(s, 35)
    data(s, "Trachycarpus")


def shrub(s):
    scallops(s, 7, R * 0.8, R, 13)
    scallops(s, 5, R * 0.38, R * 0.55, 40)
    data(s, "Viburnum opulus")


def shrub_group(s):
    for x, y, r in ((-240, -90, 260), (150, -200, 300), (60, 190, 300), (-260, 260, 180),
                    (380, 120, 150)):
        points = []
        count = 7
        corner = [polar((x, y), r * 0.82, i * 360 / count + r) for i in range(count)]
        points = [corner[0]] + [(polar((x, y), r, (i + 0.5) * 360 / count + r),
                                 corner[(i + 1) % count]) for i in range(count)]
        s.pline(points, closed=False)
    data(s, "Cornus sanguinea")


def hedge(s):
    count, depth = 10, 300
    step = 1000 / count
    top = [(-500 + i * step, depth) for i in range(count + 1)]
    points = [(-500, 0), (-500, depth)]
    for i in range(count):
        points.append(((-500 + (i + 0.5) * step, depth + 55), top[i + 1]))
    points += [(500, 0)]
    for i in range(count):
        points.append(((500 - (i + 0.5) * step, -55), (500 - (i + 1) * step, 0)))
    s.pline(points, closed=False)
    s.attribute("SPECIES", "Species", "Carpinus betulus", (0, -250), 90, invisible=True)
    s.attribute("HEIGHT", "Height in metres", "1.80", (0, -370), 90, invisible=True)


def car(s):
    length, width = 4700, 1850
    h = width / 2
    s.pline([(350, -h), (length - 500, -h), ((length - 90, -h + 150), (length, -h + 520)),
             ((length + 40, 0), (length, h - 520)), ((length - 90, h - 150), (length - 500, h)),
             (350, h), ((90, h - 110), (0, h - 450)), ((-30, 0), (0, -h + 450)),
             ((90, -h + 110), (350, -h))], closed=False)
    s.pline([(700, -h + 190), (1150, -h + 300), ((1080, 0), (1150, h - 300)), (700, h - 190),
             ((560, 0), (700, -h + 190))], closed=False)
    s.pline([(3350, -h + 160), (2800, -h + 290), ((2920, 0), (2800, h - 290)), (3350, h - 160),
             ((3560, 0), (3350, -h + 160))], closed=False)
    for side in (-1, 1):
        s.line((1250, side * (h - 110)), (3150, side * (h - 110)), (2780, side * (h - 230)),
               (1250, side * (h - 230)), closed=True)
        s.line((2100, side * (h - 110)), (2100, side * (h - 230)))
        s.pline([(3180, side * h), (3120, side * (h + 170)), (3010, side * (h + 170)),
                 (3050, side * h)])
        s.line((3420, side * (h - 130)), (4560, side * (h - 380)))


def bicycle(s):
    for x in (0, 1050):
        s.rounded(x - 330, -25, x + 330, 25, 24)
    s.line((0, 0), (1050, 0))
    s.line((900, -290), (880, 290))
    s.rounded(180, -70, 440, 70, 60)


def bench(s):
    for i in range(4):
        s.rect(-900, -450 + i * 105, 900, -365 + i * 105)
    s.rect(-900, -20, 900, 0)
    for x in (-780, 780):
        s.rect(x - 30, -470, x + 30, 20)


def lamp(s):
    s.circle((0, 0), 90)
    s.dot((0, 0), 60)
    s.circle((0, 0), 250)
    for a in (45, 135, 225, 315):
        s.line(polar((0, 0), 90, a), polar((0, 0), 330, a))


def tree(name, note, draw, species):
    return Block(name, f"{species}: {note}", draw, (species, "1.00", "20/25"))


BLOCKS = [
    tree("TREE-DECIDUOUS", "crown 1 m", deciduous("Acer platanoides", 12),
         "Acer platanoides"),
    tree("TREE-DECIDUOUS-LARGE", "fine outline", deciduous("Platanus acerifolia", 22),
         "Platanus acerifolia"),
    tree("TREE-BRANCHED", "with branches", branched, "Quercus robur"),
    tree("TREE-SHADED", "with shade", shaded, "Tilia cordata"),
    tree("TREE-FRUIT", "fruit tree", fruit, "Malus domestica"),
    tree("TREE-COLUMNAR", "columnar", columnar, "Carpinus betulus"),
    tree("TREE-CONIFER", "conifer", conifer("Pinus sylvestris", 16), "Pinus sylvestris"),
    tree("TREE-CONIFER-DENSE", "conifer, dense", conifer("Taxus baccata", 28), "Taxus baccata"),
    tree("TREE-PALM", "palm", palm, "Trachycarpus"),
    tree("TREE-EXISTING", "to be kept", existing, "any"),
    tree("TREE-FELLED", "to be felled", felled, "any"),
    tree("SHRUB", "single shrub", shrub, "Viburnum opulus"),
    tree("SHRUB-GROUP", "group", shrub_group, "Cornus sanguinea"),
    Block("HEDGE-1000", "one metre of hedge", hedge, ("Carpinus betulus", "1.80")),
]

SITE = [
    Block("BICYCLE", "1710 long", bicycle),
    Block("BENCH", "1800 x 450, base at the back", bench),
    Block("LAMP-POST", "base in the middle", lamp),
    Block("CAR", "4700 x 1850, base at the rear", car),
]

LIBRARY = Library("trees", "Trees and site objects, plan 1:200", "L-PLANT", 94, BLOCKS + SITE,
                  columns=5, text=70, weight=0.18, dashes=8)
