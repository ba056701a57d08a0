"""Windows in plan, for walls 500 deep. Base point: the middle of the opening on the outer face;
outside is below the x axis, inside above."""

from library import Block, Library

WALL, REVEAL, DEPTH = 500, 115, 82


def data(s, width, mark, sill, height):
    s.attribute("MARK", "Window mark", mark, (0, 700), 80, invisible=True)
    s.attribute("SIZE", "Width x height", f"{width}x{height}", (0, 580), 80, invisible=True)
    s.attribute("SILL", "Sill height above floor", sill, (0, 460 + WALL), 80, invisible=True)


def sills(s, half):
    """The outer sill, and the inner one with its overhang."""
    s.pline([(-half, REVEAL), (-half, -40), (half, -40), (half, REVEAL)], closed=False)
    s.line((-half, 0), (half, 0))
    s.pline([(-half, WALL), (-half - 30, WALL), (-half - 30, WALL + 40), (half + 30, WALL + 40),
             (half + 30, WALL), (half, WALL)], closed=False)


def casements(s, half, parts):
    """Frame, mullions, sashes and panes."""
    y1, y2 = REVEAL + 40, REVEAL + 40 + DEPTH
    s.rect(-half, y1, half, y2)
    step = (2 * half - 60) / parts
    for i in range(parts):
        left = -half + 30 + i * step
        s.rect(left + 20, y1 + 14, left + step - 20, y2 + 14)
        s.rect(left + 75, (y1 + y2) / 2 - 2, left + step - 75, (y1 + y2) / 2 + 30)
        if i:
            s.rect(left - 20, y1, left + 20, y2)


def window(width, parts, height=1260, sill="875", opens=False):
    def draw(s):
        half = width / 2
        sills(s, half)
        casements(s, half, parts)
        data(s, width, "W01", sill, height)
    return draw


def terrace(width, parts):
    def draw(s):
        half = width / 2
        for y in (0, WALL):
            s.line((-half, y), (half, y))
        s.rect(-half, REVEAL + 30, half, REVEAL + 30 + 180)
        step = (width - 60) / parts
        for i in range(parts):
            y = REVEAL + 45 + (i % 2) * 85
            left = -half + 30 + i * step
            s.rect(left - (45 if i else 0), y, left + step + (45 if i < parts - 1 else 0), y + 68)
            s.line((left + 60, y + 34), (left + step - 60, y + 34))
        s.line((-half * 0.5, -130), (half * 0.3, -130))
        s.line((half * 0.3 - 90, -95), (half * 0.3, -130), (half * 0.3 - 90, -165))
        data(s, width, "W01", "0", 2260)
    return draw


def door_window(s):
    width = 1010
    half = width / 2
    s.line((-half, 0), (half, 0))
    s.line((-half, WALL), (half, WALL))
    y1, y2 = REVEAL + 40, REVEAL + 40 + DEPTH
    s.rect(-half, y1, -half + 70, y2)
    s.rect(half - 70, y1, half, y2)
    s.rect(-half + 70, y2, -half + 138, y2 + width - 140)
    s.arc((-half + 70, y2), width - 140, 0, 90)
    s.line((-half + 70, y1 + 20), (half - 70, y1 + 20))
    data(s, width, "W01", "0", 2135)


def fixed(s):
    half = 755
    sills(s, half)
    y1, y2 = REVEAL + 40, REVEAL + 40 + DEPTH
    s.rect(-half, y1, half, y2)
    s.line((-half + 50, y1 + 25), (half - 50, y1 + 25))
    s.line((-half + 50, y1 + 57), (half - 50, y1 + 57))
    data(s, 1510, "W01", "500", 1635)


def roof(s):
    w, h = 780, 1180
    s.rect(-w / 2, 0, w / 2, h)
    s.rect(-w / 2 + 45, 45, w / 2 - 45, h - 45)
    s.rect(-w / 2 + 90, 90, w / 2 - 90, h - 90)
    s.linetype("HIDDEN2")
    s.line((-w / 2 + 90, 90), (0, h - 90), (w / 2 - 90, 90))
    s.linetype()
    data(s, 780, "W01", "900", 1180)


def skylight(s):
    w = 1000
    s.rect(-w / 2, -w / 2, w / 2, w / 2)
    s.rect(-w / 2 + 100, -w / 2 + 100, w / 2 - 100, w / 2 - 100)
    s.linetype("HIDDEN2")
    s.line((-w / 2, -w / 2), (w / 2, w / 2))
    s.line((-w / 2, w / 2), (w / 2, -w / 2))
    s.linetype()
    data(s, 1000, "W01", "2800", 1000)


def bay(s):
    outer = [(-1250, 0), (-800, -600), (800, -600), (1250, 0)]
    inner = [(-1110, 90), (-735, -470), (735, -470), (1110, 90)]
    s.pline(outer + inner[::-1])
    middle = [((a[0] + b[0]) / 2, (a[1] + b[1]) / 2) for a, b in zip(outer, inner)]
    s.pline(middle, closed=False)
    for a, b in zip(outer[1:3], inner[1:3]):
        s.line(a, b)
    s.line((0, -600), (0, -470))
    data(s, 2500, "W01", "875", 1260)


def rows():
    made = []
    for width, parts in ((510, 1), (760, 1), (1010, 1), (1260, 2), (1510, 2), (1760, 2), (2010, 3)):
        height = 760 if width == 510 else 1260
        note = "fixed and casement" if parts == 3 else f"{parts} sash" + ("es" if parts > 1 else "")
        sill = "1375" if width == 510 else "875"
        made.append(Block(f"WINDOW-{width}", note, window(width, parts, height, sill),
                          ("W01", f"{width}x{height}", sill)))
    made += [
        Block("WINDOW-1510-FIXED", "fixed glazing", fixed, ("W01", "1510x1635", "500")),
        Block("WINDOW-1010-DOOR", "French window", door_window, ("W01", "1010x2135", "0")),
        Block("WINDOW-2010-SLIDE", "lift and slide door", terrace(2010, 2),
              ("W01", "2010x2260", "0")),
        Block("WINDOW-2510-SLIDE", "lift and slide door", terrace(2510, 2),
              ("W01", "2510x2260", "0")),
        Block("WINDOW-2500-BAY", "bay", bay, ("W01", "2500x1260", "875")),
        Block("WINDOW-780-ROOF", "roof window", roof, ("W01", "780x1180", "900")),
        Block("WINDOW-1000-DOME", "domed roof light", skylight, ("W01", "1000x1000", "2800")),
    ]
    return made


LIBRARY = Library("windows", "Windows, plan 1:50", "A-WINDOW", 150, rows(), columns=5, text=110,
                  weight=0.25)
