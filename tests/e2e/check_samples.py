"""Checks the sample drawings as an independent reader sees them.

    check_samples.py MADE COMMITTED

MADE is a folder that the sample scripts have just filled, COMMITTED the one in the tree. Prints what is
wrong; nothing if all is well.
"""

import itertools
import math
import sys
from pathlib import Path

import ezdxf
from ezdxf import bbox

LIBRARIES = {
    # Blocks that ask for texts have these.
    "doors": {"NUMBER", "WIDTH", "FIRE"},
    "windows": {"MARK", "SILL"},
    "furniture": set(),
    "sanitary": set(),
    "trees": {"SPECIES"},
    "fasteners": {"DESIGNATION", "STANDARD"},
    "symbols": set(),
    "titles": set(),
}
# Units of the model, and the scales of the views on each sheet in sheet millimetres by unit.
DRAWINGS = {
    "floor-plan": (4, {"Ground_floor_1-50": [1 / 50], "Overview_1-100": [1 / 100]}),
    "mechanical-sheet": (4, {"Bearing_block_A2": [1, 2]}),
    "site-plan": (6, {"Site_1-500": [2], "Garden_1-200": [5]}),
}
MOST_BYTES = 1_500_000
LEAST_BLOCKS = 60

problems = []


def expect(condition, words):
    if not condition:
        problems.append(words)


def lines_of(block):
    """What has a size that no font changes."""
    return [e for e in block if e.dxftype() not in ("ATTDEF", "TEXT", "HATCH")]


def named_blocks(document):
    return [b for b in document.blocks if not b.name.startswith("*")]


def is_number(text):
    try:
        return math.isfinite(float(text))
    except ValueError:
        return False


def are_alike(made, stored):
    """The last digits of a number may depend on how the program was compiled."""
    if made == stored:
        return True
    return (is_number(made) and is_number(stored) and "." in made
            and math.isclose(float(made), float(stored), rel_tol=1e-6, abs_tol=1e-6))


def first_difference(made, stored):
    """The number of the first line in which two files differ; none if they do not."""
    made, stored = (path.read_text(encoding="utf-8").splitlines() for path in (made, stored))
    for number, pair in enumerate(itertools.zip_longest(made, stored, fillvalue="<the end>"), 1):
        if not are_alike(*pair):
            return number
    return None


def opened(path):
    expect(path.stat().st_size < MOST_BYTES, f"{path} is too large to be looked at with ease")
    document = ezdxf.readfile(path)
    auditor = document.audit()
    for error in auditor.errors + auditor.fixes:
        expect(False, f"{path}: {error.message}")
    return document


def check_block(path, document, block, tags):
    name = f"{path.name}, {block.name}"
    expect(block.block_record.dxf.units == 4, f"{name}: not in millimetres")
    definitions = {a.dxf.tag: a for a in block.query("ATTDEF")}
    for attribute in definitions.values():
        expect(attribute.dxf.prompt and attribute.dxf.text, f"{name}: {attribute.dxf.tag} is bare")
    if tags and definitions:
        expect(tags <= set(definitions), f"{name}: lacks {tags - set(definitions)}")
    # The base point lies on the block or near to it, so that it follows the cursor.
    base = block.block.dxf.base_point
    box = bbox.extents(lines_of(block))
    size = max(box.size.x, box.size.y)
    near = all(box.extmin[i] - 0.25 * size <= base[i] <= box.extmax[i] + 0.25 * size
               for i in (0, 1))
    expect(near, f"{name}: the base point lies far off")
    expect(all(e.dxf.layer == "0" for e in block), f"{name}: does not take the layer of its insert")
    shown = document.modelspace().query(f'INSERT[name=="{block.name}"]')
    expect(len(shown) == 1, f"{name}: is not shown once in the legend")
    for insert in shown:
        expect({a.dxf.tag for a in insert.attribs} == set(definitions), f"{name}: lost attributes")


def check_library(path, tags):
    document = opened(path)
    expect(document.header["$INSUNITS"] == 4, f"{path}: not in millimetres")
    blocks = named_blocks(document)
    for block in blocks:
        check_block(path, document, block, tags)
    with_texts = sum(1 for b in blocks if b.query("ATTDEF"))
    expect(not tags or with_texts * 2 > len(blocks), f"{path}: few blocks have attributes")
    return len(blocks)


def check_drawing(path, units, sheets):
    document = opened(path)
    expect(document.header["$INSUNITS"] == units, f"{path}: wrong units")
    weights = {layer.dxf.lineweight for layer in document.layers}
    expect(len(weights) > 3 and {18, 25, 50} <= weights, f"{path}: few line weights")
    for kind in ("DIMENSION", "HATCH", "INSERT", "LWPOLYLINE", "TEXT"):
        expect(document.modelspace().query(kind), f"{path}: no {kind}")
    for name, scales in sheets.items():
        layout = document.layouts.get(name)
        views = [v for v in layout.query("VIEWPORT") if v.dxf.id != 1]
        found = [v.dxf.height / v.dxf.view_height for v in views]
        expect(len(found) == len(scales) and
               all(abs(a - b) < 1e-9 for a, b in zip(sorted(found), sorted(scales))),
               f"{path}, {name}: scales {found}")
        titles = [i for i in layout.query("INSERT") if i.dxf.name.startswith("SHEET-")]
        expect(len(titles) == 1 and all(a.dxf.text for a in titles[0].attribs),
               f"{path}, {name}: the title block is not filled in")
        for title in titles:
            frame = bbox.extents(lines_of(document.blocks.get(title.dxf.name))).size
            paper = (layout.dxf.paper_width, layout.dxf.paper_height)
            expect(abs(frame.x - paper[0]) < 1e-6 and abs(frame.y - paper[1]) < 1e-6,
                   f"{path}, {name}: the frame is not as large as the paper {paper}")


def main():
    made, committed = Path(sys.argv[1]), Path(sys.argv[2])
    count = sum(check_library(made / "blocks" / f"{name}.dxf", tags)
                for name, tags in LIBRARIES.items())
    expect(count >= LEAST_BLOCKS, f"only {count} blocks")
    for name, (units, sheets) in DRAWINGS.items():
        check_drawing(made / "drawings" / f"{name}.dxf", units, sheets)
    for folder in ("blocks", "drawings"):
        for path in sorted((made / folder).glob("*.dxf")):
            line = first_difference(path, committed / folder / path.name)
            expect(line is None, f"{folder}/{path.name} in the tree differs from line {line} on: "
                                 "run samples/make_samples.py")
    print("\n".join(problems))


if __name__ == "__main__":
    main()
