"""Writes what a drafter would type, and hands it to `drafton batch`.

A Sheet collects command lines. Nothing here knows the file format: every object is made by a
command of the program, so the samples show what the command line can do.
"""

import math
import os
import subprocess
import tempfile


def number(value):
    """A coordinate as it is typed: at most six decimals, no trailing zeros."""
    text = f"{value:.6f}".rstrip("0").rstrip(".")
    return "0" if text == "-0" else text


def point(p):
    return f"{number(p[0])},{number(p[1])}"


def polar(center, radius, degrees):
    angle = math.radians(degrees)
    return (center[0] + radius * math.cos(angle), center[1] + radius * math.sin(angle))


def shifted(p, dx, dy):
    return (p[0] + dx, p[1] + dy)


class Sheet:
    """The lines of a script."""

    def __init__(self):
        self.lines = []
        self._layer = None
        self._flags = None
        self.box = None

    def type(self, *words):
        """One line: the words with blanks between them, and Enter."""
        self.lines.append(" ".join(str(word) for word in words))

    def text_of(self):
        return "\n".join(self.lines) + "\n"

    # --- settings

    def set(self, name, value):
        self.type(name, value)

    def layer(self, name):
        if self._layer != name:
            self.set("CLAYER", name)
            self._layer = name

    def weight(self, millimetres=None):
        """The line weight of what follows; that of the layer without a value."""
        self.type("LWEIGHT", "_ByLayer" if millimetres is None else number(millimetres))

    def load_linetypes(self, *names):
        self.type("LINETYPE _L")
        for line in (",".join(names), "", ""):
            self.type(line)

    def linetype(self, name=None):
        """The line type of what follows; that of the layer without a name."""
        self.set("CELTYPE", name or "ByLayer")

    def _grow(self, *points):
        xs, ys = [p[0] for p in points], [p[1] for p in points]
        if self.box:
            xs += self.box[::2]
            ys += self.box[1::2]
        self.box = (min(xs), min(ys), max(xs), max(ys))

    # --- shapes

    def line(self, *points, closed=False):
        self._grow(*points)
        self.type("LINE", *map(point, points), "_C" if closed else "")

    def pline(self, points, closed=True, width=None):
        """A polyline. A pair of points in the list, (middle, end), is an arc through both."""
        self._grow(*(p for place in points
                     for p in (place if isinstance(place[0], tuple) else [place])))
        words = ["PLINE", point(points[0])]
        if width is not None:
            words += ["_W", number(width), number(width)]
        in_arc = False
        for place in points[1:]:
            is_arc = isinstance(place[0], tuple)
            if is_arc != in_arc:
                words.append("_A" if is_arc else "_L")
                in_arc = is_arc
            words += ["_S", point(place[0]), point(place[1])] if is_arc else [point(place)]
        if in_arc and closed:
            words.append("_L")
        words.append("_C" if closed else "")
        self.type(*words)
        if width is not None:
            self.set("PLINEWID", 0)

    def rect(self, x1, y1, x2, y2):
        self.pline([(x1, y1), (x2, y1), (x2, y2), (x1, y2)])

    def rounded(self, x1, y1, x2, y2, radius):
        """A rectangle with rounded corners."""
        r, k = radius, radius * (1 - math.sqrt(0.5))
        self.pline([
            (x1 + r, y1), (x2 - r, y1), ((x2 - k, y1 + k), (x2, y1 + r)),
            (x2, y2 - r), ((x2 - k, y2 - k), (x2 - r, y2)),
            (x1 + r, y2), ((x1 + k, y2 - k), (x1, y2 - r)),
            (x1, y1 + r), ((x1 + k, y1 + k), (x1 + r, y1)),
        ], closed=False)

    def circle(self, center, radius):
        self._grow(shifted(center, -radius, -radius), shifted(center, radius, radius))
        self.type("CIRCLE", point(center), number(radius))

    def arc(self, center, radius, start, end):
        """Counterclockwise, angles in degrees."""
        span = (end - start) % 360
        self._grow(*(polar(center, radius, start + span * i / 16) for i in range(17)))
        self.type("ARC _C", point(center), point(polar(center, radius, start)),
                  point(polar(center, radius, end)))

    def ellipse(self, center, rx, ry):
        self._grow(shifted(center, -rx, -ry), shifted(center, rx, ry))
        self.type("ELLIPSE _C", point(center), point(shifted(center, rx, 0)), number(ry))

    def spline(self, points, closed=False):
        self._grow(*points)
        if closed:
            self.type("SPLINE", *map(point, points), "_C ")
        else:
            self.type("SPLINE", *map(point, points), "  ")

    def dot(self, center, diameter):
        self.type("DONUT 0", number(diameter), point(center), "")

    # --- words

    def text(self, place, height, words, justify=None, angle=0):
        self._grow(place, shifted(place, 0, height))
        self.type("TEXT", *(["_J", "_" + justify] if justify else []), point(place),
                  number(height), number(angle))
        self.type(words)
        self.type()

    def note(self, corner, width, height, paragraphs):
        """A text of several lines that breaks at a width."""
        self.type("MTEXT", point(corner), "_H", number(height), "_J _TL _W", number(width))
        for paragraph in paragraphs:
            self.type(paragraph)
        self.type()

    # --- hatches

    def hatch(self, pattern, scale, angle, *places):
        """Fills the areas around places, all in one hatch."""
        words = ["BHATCH _P"]
        words += ["_S"] if pattern == "SOLID" else ["_P", pattern, number(scale), number(angle)]
        self.type(*words, *map(point, places), "")

    def hatch_last(self, pattern, scale=1, angle=0):
        """Fills the closed object that was drawn last."""
        words = ["BHATCH _P"]
        words += ["_S"] if pattern == "SOLID" else ["_P", pattern, number(scale), number(angle)]
        self.type(*words, "_S _L")
        self.type()
        self.type()

    # --- dimensions

    def chain(self, along, at, places, foot=None):
        """Dimensions from place to place, None leaves a gap; `along` is x or y, `at` their line."""
        for a, b in zip(places, places[1:]):
            if a is not None and b is not None:
                self.dimension(along, at, a, b, foot)

    def dimension(self, along, at, a, b, foot=None, text=None):
        foot = at if foot is None else foot
        here = (lambda v, w: (v, w)) if along == "x" else (lambda v, w: (w, v))
        words = ["DIMLINEAR", point(here(a, foot)), point(here(b, foot)),
                 "_H" if along == "x" else "_V"]
        place = point(here((a + b) / 2, at))
        if text is None:
            self.type(*words, place)
        else:
            self.type(*words, "_T")
            self.type(text)
            self.type(place)

    # --- blocks

    def attribute(self, tag, prompt, value, place, height, justify="MC", invisible=False):
        """The definition of a text that every insert fills in."""
        if self._flags != invisible:
            self.set("AFLAGS", 17 if invisible else 16)
            self._flags = invisible
        if not invisible:
            self._grow(place)
        self.type("ATTDEF")
        self.type()
        self.type(tag)
        self.type(prompt)
        self.type(value)
        words = ["_J", "_" + justify, point(place)] if justify != "L" else [point(place)]
        self.type(*words, number(height), 0)

    def block(self, name, base=(0, 0)):
        """Makes a block of all that was drawn so far, and gives the box around it."""
        self.type("BLOCK", name, point(base), "_ALL")
        self.type()
        x, y = base
        box, self.box = self.box, None
        return (box[0] - x, box[1] - y, box[2] - x, box[3] - y)

    def insert(self, name, place, scale=1, angle=0, values=(), mirrored=False):
        words = ["INSERT", name]
        if mirrored:
            words += ["_X", number(-scale), "_Y", number(scale)]
        else:
            words += ["_S", number(scale)]
        self.type(*words, "_R", number(angle), point(place))
        for value in values:
            self.type(value)


# What the program answers to words that it cannot use. It would ask again, and the words after them
# would mean something else.
COMPLAINTS = ("Invalid", "The value cannot be set", "There is no", "cannot be", "is needed",
              "are needed", "must differ", "Nothing was hatched", "No boundary", "not found",
              "Unknown", "0 found", "is no ")


class Program:
    """The program that types."""

    def __init__(self, path, log=None):
        self.path = os.path.abspath(path)
        self.log = log

    def run(self, script, out=None, drawing=None, folder=None, extra=()):
        """Runs a script; raises with the program's last words if it fails."""
        with tempfile.TemporaryDirectory() as place:
            name = os.path.join(place, "drawing.scr")
            with open(name, "w", encoding="utf-8") as file:
                file.write(script)
            if self.log:
                with open(self.log, "w", encoding="utf-8") as file:
                    file.write(script)
            command = [self.path, "batch", "--profile", os.path.join(place, "drafton.ini"),
                       "--catalogs", place, "--script", name]
            if out:
                command += ["--out", os.path.abspath(out)]
            command += extra
            if drawing:
                command.append(os.path.abspath(drawing))
            # Drawings tell when they were made: the same time each time.
            clock = {**os.environ, "SOURCE_DATE_EPOCH": "1767225600", "TZ": "UTC"}
            done = subprocess.run(command, capture_output=True, text=True, cwd=folder, env=clock)
            if done.returncode:
                tail = "\n".join(done.stdout.splitlines()[-12:])
                raise RuntimeError(f"{out}: exit code {done.returncode}\n{tail}\n{done.stderr}")
            complaints = [line for line in done.stdout.splitlines()
                          if line.startswith(COMPLAINTS) or "is not closed" in line]
            if complaints:
                raise RuntimeError(f"{out}: {complaints[:5]}")
            return done.stdout
