#!/usr/bin/env python3
"""Draws the sample libraries and drawings with `drafton batch`.

    samples/make_samples.py [--drafton PROGRAM] [--out FOLDER] [--scripts FOLDER] [NAME...]

Without names all are drawn. The same program draws the same bytes each time.
"""

import argparse
import importlib
import sys
from pathlib import Path

HERE = Path(__file__).resolve().parent
for folder in ("scripts", "blocks", "drawings"):
    sys.path.insert(0, str(HERE / folder))

from drafting import Program  # noqa: E402
from library import legend  # noqa: E402

LIBRARIES = ("doors", "windows", "furniture", "sanitary", "trees", "fasteners", "symbols", "titles")
DRAWINGS = ("floor-plan", "mechanical-sheet", "site-plan")


def script_of(name):
    if name in LIBRARIES:
        return legend(importlib.import_module(name).LIBRARY)
    return importlib.import_module(name.replace("-", "_")).script()


def main():
    parser = argparse.ArgumentParser(description="Draws the sample libraries and drawings.")
    parser.add_argument("--drafton", default=HERE.parent / "build/release/bin/drafton",
                        help="the program that draws")
    parser.add_argument("--out", type=Path, default=HERE,
                        help="where the folders blocks and drawings are filled")
    parser.add_argument("--scripts", type=Path, help="where to keep what was typed")
    parser.add_argument("names", nargs="*", metavar="NAME",
                        help="one of " + ", ".join(LIBRARIES + DRAWINGS))
    options = parser.parse_args()
    for name in options.names or LIBRARIES + DRAWINGS:
        if name not in LIBRARIES + DRAWINGS:
            parser.error(f"there is no sample {name}")
        folder = options.out / ("blocks" if name in LIBRARIES else "drawings")
        folder.mkdir(parents=True, exist_ok=True)
        if options.scripts:
            options.scripts.mkdir(parents=True, exist_ok=True)
        log = options.scripts / f"{name}.scr" if options.scripts else None
        file = folder / f"{name}.dxf"
        file.unlink(missing_ok=True)  # so that no backup is left beside it
        Program(options.drafton, log).run(script_of(name), file)
        print(file)


if __name__ == "__main__":
    main()
