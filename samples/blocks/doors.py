"""Doors in plan. Base point: the jamb at the hinges, on the face of the wall to which the leaf
opens. The wall lies below the x axis, the leaf opens upwards; width along x."""

from drafting import polar
from library import Block, Library

FRAME, DEPTH, LEAF = 45, 80, 40


def data(s, number, width, height, fire, at):
    s.attribute("NUMBER", "Door number", number, at, 80, invisible=True)
    s.attribute("WIDTH", "Clear width of the opening", width, (at[0], at[1] - 120), 80,
                invisible=True)
    s.attribute("HEIGHT", "Clear height of the opening", height, (at[0], at[1] - 240), 80,
                invisible=True)
    s.attribute("FIRE", "Fire rating", fire, (at[0], at[1] - 360), 80, invisible=True)


def jamb(s, x, toward, depth=DEPTH):
    """A frame on one side, with its rebate."""
    f = FRAME * toward
    s.pline([(x, 0), (x + f, 0), (x + f, -LEAF), (x + f * 0.6, -LEAF), (x + f * 0.6, -depth),
             (x, -depth)])


def leaf(s, hinge, width, toward=1, opening=90):
    """The open leaf and the way of its edge."""
    if toward > 0:
        s.rect(hinge, 0, hinge + LEAF, width)
        s.arc((hinge, 0), width, 0, opening)
    else:
        s.rect(hinge - LEAF, 0, hinge, width)
        s.arc((hinge, 0), width, 180 - opening, 180)


def swing(width, left, fire="none", thick=False):
    def draw(s):
        clear = width - 2 * FRAME * 0.6
        for x, toward in ((0, 1), (width, -1)):
            jamb(s, x, toward)
        hinge = FRAME * 0.6 if left else width - FRAME * 0.6
        leaf(s, hinge, clear, 1 if left else -1)
        if thick:
            s.line((FRAME, 0), (width - FRAME, 0))
            s.line((FRAME * 0.6, -DEPTH), (width - FRAME * 0.6, -DEPTH))
        data(s, "D01", str(width), "2010", fire, (width / 2, width / 2))
    # The base point of a left-hand door is its left jamb, of a right-hand door its right one.
    return draw if left else moved(draw, width)


def moved(draw, width):
    """Draws, then brings the right jamb to the origin."""
    def shifted(s):
        draw(s)
        s.type("MOVE _ALL")
        s.type()
        s.type(f"{width},0 0,0")
        s.box = (s.box[0] - width, s.box[1], s.box[2] - width, s.box[3])
    return shifted


def double(width):
    def draw(s):
        clear = width / 2 - FRAME * 0.6
        for x, toward in ((0, 1), (width, -1)):
            jamb(s, x, toward)
        leaf(s, FRAME * 0.6, clear, 1)
        leaf(s, width - FRAME * 0.6, clear, -1)
        data(s, "D01", str(width), "2010", "none", (width / 2, width / 3))
    return draw


def sliding(s):
    width = 1010
    s.rect(-60, 10, width + 20, 50)
    for x in (0, width):
        s.line((x, 0), (x, -115))
    s.linetype("HIDDEN2")
    s.rect(width + 20, 10, 2 * width + 40, 50)
    s.linetype()
    s.line((-60, 62), (2 * width + 60, 62))
    arrow(s, width / 2, 150, width / 2 + 350)
    data(s, "D01", str(width), "2010", "none", (width / 2, -300))


def arrow(s, x1, y, x2):
    s.line((x1, y), (x2, y))
    s.line((x2 - 70, y + 28), (x2, y), (x2 - 70, y - 28))


def pocket(s):
    width = 885
    s.line((0, 0), (0, -115))
    s.rect(0, -37.5, 40, -77.5)
    s.rect(200, -37.5, width + 80, -77.5)
    s.linetype("HIDDEN2")
    s.pline([(width, -20), (2 * width + 60, -20), (2 * width + 60, -95), (width, -95)],
            closed=False)
    s.linetype()
    arrow(s, width / 2, -180, width / 2 + 320)
    data(s, "D01", str(width), "2010", "none", (width / 2, -420))


def folding(s):
    width, folds = 1510, 4
    step = width / folds
    for x, toward in ((0, 1), (width, -1)):
        jamb(s, x, toward)
    rise = 260
    zigzag = [(i * step * 0.62 + FRAME, rise if i % 2 else 0) for i in range(folds + 1)]
    s.pline(zigzag, closed=False)
    s.pline([(x + 26, y) for x, y in zigzag], closed=False)
    s.linetype("HIDDEN2")
    s.line((FRAME, 0), (width - FRAME, 0))
    s.linetype()
    data(s, "D01", str(width), "2010", "none", (width / 2, 600))


def entrance(left):
    def draw(s):
        width, side = 1260, 250
        clear = width - side
        s.rect(0, 0, 70, -DEPTH)
        s.rect(width - side, 0, width - side + 70, -DEPTH)
        s.rect(width - 70, 0, width, -DEPTH)
        s.rect(width - side + 70, -30, width - 70, -55)
        s.rect(70, 0, 70 + 68, clear - 70)
        s.arc((70, 0), clear - 70, 0, 90)
        s.line((70, 0), (clear, 0))
        s.line((-0.0, -DEPTH), (width, -DEPTH))
        s.rect(-40, -DEPTH - 300, width + 40, -DEPTH - 340)
        data(s, "D01", str(width), "2135", "none", (width / 2, width / 2))
    return draw


def revolving(s):
    radius = 1100
    s.arc((radius, 0), radius, 40, 140)
    s.arc((radius, 0), radius, 220, 320)
    s.arc((radius, 0), radius - 60, 40, 140)
    s.arc((radius, 0), radius - 60, 220, 320)
    for a in (40, 140, 220, 320):
        s.line(polar((radius, 0), radius - 60, a), polar((radius, 0), radius, a))
    for a in (20, 110, 200, 290):
        s.line((radius, 0), polar((radius, 0), radius - 75, a))
    s.circle((radius, 0), 60)
    data(s, "D01", "2200", "2200", "none", (radius, -300))


def garage(s):
    width = 2500
    for x, toward in ((0, 1), (width, -1)):
        s.rect(x, 0, x + 90 * toward, -90)
    s.rect(90, -25, width - 90, -65)
    s.linetype("HIDDEN2")
    s.rect(90, 0, width - 90, 2100)
    s.line((90, 0), (width - 90, 2100))
    s.line((90, 2100), (width - 90, 0))
    s.linetype()
    data(s, "D01", str(width), "2125", "none", (width / 2, 1400))


def fire_door(s):
    swing(1010, True, "T30-RS", True)(s)
    s.attribute("MARK", "Visible mark", "T30-RS", (560, 250), 100)


def rows():
    values = lambda width, fire="none", height=2010: ("D01", str(width), str(height), fire)
    made = []
    for width, use in ((760, "WC, bath"), (885, "room"), (1010, "barrier-free")):
        for left in (True, False):
            hand = "left" if left else "right"
            made.append(Block(f"DOOR-{width}-{hand[0].upper()}", f"{use}, hinges {hand}",
                              swing(width, left), values(width)))
    made += [
        Block("DOOR-1010-T30", "fire and smoke rated", fire_door,
              values(1010, "T30-RS") + ("T30-RS",)),
        Block("DOOR-1260-DOUBLE", "two leaves", double(1260), values(1260)),
        Block("DOOR-1760-DOUBLE", "two leaves", double(1760), values(1760)),
        Block("DOOR-1260-ENTRANCE", "with side light", entrance(True), values(1260, height=2135)),
        Block("DOOR-1010-SLIDING", "before the wall", sliding, values(1010)),
        Block("DOOR-885-POCKET", "sliding into the wall", pocket, values(885)),
        Block("DOOR-1510-FOLDING", "folding", folding, values(1510)),
        Block("DOOR-2200-REVOLVING", "four wings", revolving, values(2200, height=2200)),
        Block("DOOR-2500-GARAGE", "up and over", garage, values(2500, height=2125)),
    ]
    return made


LIBRARY = Library("doors", "Doors, plan 1:50", "A-DOOR", 32, rows(), columns=5, text=110,
                  weight=0.25)
