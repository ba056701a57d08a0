"""What the block libraries have in common: a block, and the legend that shows all of a file."""

import sys
from dataclasses import dataclass, field
from pathlib import Path
from typing import Callable

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "scripts"))

from drafting import Sheet  # noqa: E402
from office import new_drawing  # noqa: E402

MILLIMETRES = 4


@dataclass
class Block:
    """`draw` draws it around the origin, where it is inserted by."""

    name: str
    note: str
    draw: Callable[[Sheet], None]
    values: tuple = field(default_factory=tuple)  # what its attributes say in the legend


@dataclass
class Library:
    file: str
    title: str
    layer: str
    color: int
    blocks: list
    columns: int
    text: float  # height of the names
    weight: float = 0.25
    gap: float = 6.0  # between cells, in heights of the names
    dashes: float = 25.0  # the scale of line types


def define(sheet, blocks):
    """Makes the blocks in an empty drawing; gives the box of each by its name."""
    sheet.set("INSUNITS", MILLIMETRES)
    boxes = {}
    for block in blocks:
        block.draw(sheet)
        boxes[block.name] = sheet.block(block.name)
    return boxes


def define_from(sheet, names, *modules):
    """Makes those blocks of the libraries that are named."""
    blocks = [block for module in modules for block in module.LIBRARY.blocks]
    define(sheet, [block for block in blocks if block.name in names])


def legend(library):
    """The script of a library: its blocks, and one of each in rows with the names below."""
    sheet = new_drawing(library.dashes, "HIDDEN2", "CENTER2", "DASHED2")
    sheet.type("LAYER _N", library.layer + ",A-TEXT,A-FRAME", "_C", library.color, library.layer,
               "_LW", library.weight, library.layer, "_C 7 A-TEXT _LW 0.18 A-TEXT",
               "_C 8 A-FRAME _LW 0.13 A-FRAME ")
    boxes = define(sheet, library.blocks)
    sheet.set("ATTREQ", 1)
    height, pad = library.text, library.text * library.gap / 2
    # The names are as wide as their letters; a cell holds the wider of name and block.
    widest = [0.0] * library.columns
    rows = [library.blocks[i:i + library.columns]
            for i in range(0, len(library.blocks), library.columns)]
    for row in rows:
        for i, block in enumerate(row):
            box = boxes[block.name]
            words = max(len(block.name) * 0.78, len(block.note) * 0.5) * height
            widest[i] = max(widest[i], box[2] - box[0], words)
    width = sum(widest) + 2 * pad * library.columns
    top = 0.0
    lines = [top]
    for row in rows:
        tall = max(boxes[block.name][3] - boxes[block.name][1] for block in row)
        bottom = top - tall - 2 * pad - 4.2 * height
        left = 0.0
        for i, block in enumerate(row):
            box = boxes[block.name]
            middle = left + pad + widest[i] / 2
            base = top - pad - tall / 2
            sheet.layer(library.layer)
            sheet.insert(block.name, (middle - (box[0] + box[2]) / 2, base - (box[1] + box[3]) / 2),
                         values=block.values)
            sheet.layer("A-TEXT")
            sheet.text((middle, bottom + 2.5 * height), height, block.name, "MC")
            sheet.text((middle, bottom + 1.1 * height), height * 0.65, block.note, "MC")
            left += widest[i] + 2 * pad
        top = bottom
        lines.append(top)
    sheet.layer("A-FRAME")
    for y in lines[1:-1]:
        sheet.line((0, y), (width, y))
    left = 0.0
    for cell in widest[:-1]:
        left += cell + 2 * pad
        sheet.line((left, 0), (left, top))
    sheet.weight(0.5)
    sheet.rect(0, top, width, 0)
    sheet.weight()
    sheet.layer("A-TEXT")
    sheet.text((0, height * 1.4), height * 2.4, library.title)
    sheet.layer("0")
    sheet.type("ZOOM _E")
    return sheet.text_of()
