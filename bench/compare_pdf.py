#!/usr/bin/env python3
"""Times DXF to PDF as whole processes: ours and the converter of Debian's librecad package.

Writes drawings of mixed entities, has both programs draw each of them on a page, one after the
other in turns, and prints the ratios of the shortest times. The other program is only run; without
it the comparison is skipped with a message.

    bench/compare_pdf.py [--drafton PROGRAM] [--runs N] [--counts N,N,...] [--keep FOLDER]
"""

import argparse
import math
import os
import pathlib
import random
import shutil
import subprocess
import sys
import tempfile
import time

TARGET = 0.5
CONVERTER = "librecad"


class Dxf:
    """Writes an R12 drawing, which every program reads, tag by tag."""

    def __init__(self):
        self.lines = []

    def tags(self, *pairs):
        for code, value in pairs:
            self.lines += [f"{code:3d}", str(value)]

    def entity(self, kind, color, *pairs):
        self.tags((0, kind), (8, "0"), (62, color), *pairs)

    def text(self):
        return "\n".join(self.lines) + "\n"


def polyline(dxf, color, corners):
    dxf.entity("POLYLINE", color, (66, 1), (10, 0), (20, 0), (30, 0))
    for x, y, bulge in corners:
        dxf.tags((0, "VERTEX"), (8, "0"), (10, x), (20, y), (42, bulge))
    dxf.tags((0, "SEQEND"), (8, "0"))


def drawing(count):
    """A plan of many things, the same for each count: lines, arcs, polylines, texts, inserts."""
    rand = random.Random(7)
    side = 60 * math.sqrt(count)
    dxf = Dxf()
    dxf.tags((0, "SECTION"), (2, "HEADER"), (9, "$ACADVER"), (1, "AC1009"))
    dxf.tags((9, "$EXTMIN"), (10, 0), (20, 0), (9, "$EXTMAX"), (10, side), (20, side))
    dxf.tags((0, "ENDSEC"), (0, "SECTION"), (2, "BLOCKS"))
    dxf.tags((0, "BLOCK"), (8, "0"), (2, "CHAIR"), (70, 0), (10, 0), (20, 0), (30, 0), (3, "CHAIR"))
    for i in range(6):
        dxf.entity("LINE", 0, (10, i * 8), (20, 0), (11, i * 8), (21, 40))
    dxf.tags((0, "ENDBLK"), (8, "0"), (0, "ENDSEC"), (0, "SECTION"), (2, "ENTITIES"))
    near = lambda reach: round(rand.uniform(-reach, reach), 3)
    for i in range(count):
        x, y = round(rand.uniform(0, side), 3), round(rand.uniform(0, side), 3)
        color = 1 + i % 7
        kind = i % 10
        if kind == 0:
            dxf.entity("CIRCLE", color, (10, x), (20, y), (40, 5 + abs(near(60))))
        elif kind == 1:
            dxf.entity("ARC", color, (10, x), (20, y), (40, 20 + abs(near(80))), (50, 0),
                       (51, 60 + abs(near(200))))
        elif kind == 2:
            dxf.entity("TEXT", color, (10, x), (20, y), (40, 20), (1, f"Room {i}"))
        elif kind == 3:
            dxf.entity("INSERT", color, (2, "CHAIR"), (10, x), (20, y))
        elif kind in (4, 5):
            polyline(dxf, color, [(x + near(80), y + near(80), 0.4 if k % 3 == 0 else 0)
                                  for k in range(6)])
        else:
            dxf.entity("LINE", color, (10, x), (20, y), (11, x + near(120)), (21, y + near(120)))
    dxf.tags((0, "ENDSEC"), (0, "EOF"))
    return dxf.text()


def timed(command, made, environment):
    """The seconds of a run that makes a file which is a PDF."""
    made.unlink(missing_ok=True)
    start = time.perf_counter()
    run = subprocess.run(command, env=environment, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                         stdin=subprocess.DEVNULL, check=False)
    seconds = time.perf_counter() - start
    if not made.is_file() or not made.read_bytes().startswith(b"%PDF-"):
        raise SystemExit(f"{' '.join(map(str, command))}\nmade no page:\n"
                         f"{run.stdout.decode(errors='replace')}")
    return seconds


def main():
    arguments = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    arguments.add_argument("--drafton", default="build/release/bin/drafton")
    arguments.add_argument("--runs", type=int, default=5)
    arguments.add_argument("--counts", default="100,10000,100000")
    arguments.add_argument("--keep", help="a folder for the drawings and pages")
    options = arguments.parse_args()
    drafton = shutil.which(options.drafton)
    if drafton is None:
        raise SystemExit(f"there is no program {options.drafton}; build the release preset first")
    if shutil.which(CONVERTER) is None:
        print(f"skipped: {CONVERTER} is not installed (apt-get install --no-install-recommends "
              f"{CONVERTER})")
        return 0
    environment = dict(os.environ, QT_QPA_PLATFORM="offscreen", LC_ALL="C.UTF-8")
    missed = False
    with tempfile.TemporaryDirectory() as temporary:
        folder = pathlib.Path(options.keep or temporary).resolve()
        (folder / "theirs").mkdir(parents=True, exist_ok=True)
        environment["HOME"] = environment["XDG_RUNTIME_DIR"] = temporary
        for count in map(int, options.counts.split(",")):
            source = folder / f"plan{count}.dxf"
            source.write_text(drawing(count))
            ours, theirs = folder / f"plan{count}.pdf", folder / "theirs" / f"plan{count}.pdf"
            fastest = {}
            programs = {
                "ours": ([drafton, "batch", "--pdf", ours, source], ours),
                "theirs": ([CONVERTER, "dxf2pdf", "-a", "-c", "-t", theirs.parent, source], theirs),
            }
            for _ in range(options.runs):
                for name, (command, made) in programs.items():
                    seconds = timed(command, made, environment)
                    fastest[name] = min(seconds, fastest.get(name, seconds))
            ratio = fastest["ours"] / fastest["theirs"]
            missed |= ratio > TARGET
            print(f"{count:8d} entities: {fastest['ours']:8.3f} s, {CONVERTER} "
                  f"{fastest['theirs']:8.3f} s, ratio {ratio:6.2f}   target {TARGET:.2f}   "
                  f"{'ok' if ratio <= TARGET else 'MISSED'}", flush=True)
    return 1 if missed else 0


if __name__ == "__main__":
    sys.exit(main())
