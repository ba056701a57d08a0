"""Sheets with title blocks, in millimetres. Base point of a sheet: its lower left corner; of a
title block and of the rows that grow on it: the lower right corner."""

from library import Block, Library

WIDTH = 180

# Left, bottom, width, height, words above, tag, prompt, what it says first, height of its text.
CELLS = [
    (0, 45, 115, 18, "Project", "PROJECT", "Project", "House on the lake", 5),
    (0, 30, 115, 15, "Client", "CLIENT", "Client", "M. and T. Example", 3),
    (0, 9, 115, 21, "Drawing", "TITLE", "Title of the drawing", "Ground floor", 5),
    (115, 45, 65, 18, "Office", "OFFICE", "Office", "Studio North, architects", 3),
    (115, 30, 32.5, 15, "Drawn by", "DRAWN", "Drawn by", "A. Writer", 3),
    (147.5, 30, 32.5, 15, "Checked by", "CHECKED", "Checked by", "B. Reader", 3),
    (115, 18, 32.5, 12, "Date", "DATE", "Date", "2026-03-02", 3),
    (147.5, 18, 32.5, 12, "Scale", "SCALE", "Scale", "1:50", 3.5),
    (115, 0, 45, 18, "Drawing no.", "NUMBER", "Drawing number", "A-101", 5),
    (160, 0, 20, 18, "Rev.", "REVISION", "Revision", "-", 5),
    (0, 0, 57.5, 9, "Units, tolerances", "GENERAL", "Units and tolerances", "mm", 2.5),
    (57.5, 0, 57.5, 9, "File", "FILE", "File", "floor-plan.dxf", 2.5),
]
VALUES = tuple(cell[7] for cell in CELLS)


def title_block(s, right=0.0, bottom=0.0):
    left = right - WIDTH
    s.weight(0.25)
    for x, y, w, h, *_ in CELLS:
        s.rect(left + x, bottom + y, left + x + w, bottom + y + h)
    s.weight(0.7)
    s.rect(left, bottom, right, bottom + 63)
    s.weight()
    for x, y, w, h, words, tag, prompt, value, size in CELLS:
        s.text((left + x + 1.2, bottom + y + h - 2.6), 1.6, words)
        s.attribute(tag, prompt, value, (left + x + 2.5, bottom + y + (h - 2.4 - size) / 2), size,
                    "L")


def sheet(width, height):
    """The cut edge, the frame with its margins of 20 and 10, marks of the middle and the title."""
    def draw(s):
        s.weight(0.13)
        s.rect(0, 0, width, height)
        s.weight(0.7)
        s.rect(20, 10, width - 10, height - 10)
        inward = 5 if width > 300 else 0  # on a small sheet they would run into the title
        for a, b in (((width / 2, 0), (width / 2, 10 + inward)),
                     ((width / 2, height), (width / 2, height - 10 - inward)),
                     ((0, height / 2), (20 + inward, height / 2)),
                     ((width, height / 2), (width - 10 - inward, height / 2))):
            s.line(a, b)
        s.weight()
        title_block(s, width - 10, 10)
    return draw


def row(height, size, *cells):
    """A row as wide as the title block: width, tag, question and words of each cell."""
    def draw(s):
        x = -WIDTH
        for width, tag, prompt, value in cells:
            s.rect(x, 0, x + width, height)
            s.attribute(tag, prompt, value, (x + 2, (height - size) / 2), size, "L")
            x += width
    return draw


revision_row = row(6, 2.5, (15, "REV", "Revision", "A"),
                   (110, "CHANGE", "What has changed", "first issue"),
                   (30, "DATE", "Date", "2026-03-02"), (25, "BY", "By", "AW"))
parts_row = row(7, 2.5, (12, "ITEM", "Item", "1"), (15, "QUANTITY", "Quantity", "1"),
                (63, "NAME", "Name", "Base plate"),
                (50, "STANDARD", "Standard or drawing", "M-102"),
                (40, "MATERIAL", "Material", "S235JR"))


def stamp(s):
    s.weight(0.7)
    s.rounded(0, 0, 60, 18, 3)
    s.weight()
    s.attribute("STATE", "State of the drawing", "PRELIMINARY", (30, 11.5), 5)
    s.attribute("DATE", "Date", "2026-03-02", (30, 4.5), 2.5)


BLOCKS = [
    Block("SHEET-A1", "841 x 594", sheet(841, 594), VALUES),
    Block("SHEET-A2", "594 x 420", sheet(594, 420), VALUES),
    Block("SHEET-A3", "420 x 297", sheet(420, 297), VALUES),
    Block("SHEET-A4", "210 x 297", sheet(210, 297), VALUES),
    Block("TITLE-BLOCK", "180 x 63, ISO 7200", title_block, VALUES),
    Block("REVISION-ROW", "grows upwards", revision_row, ("A", "first issue", "2026-03-02", "AW")),
    Block("PARTS-ROW", "grows upwards", parts_row, ("1", "1", "Base plate", "M-102", "S235JR")),
    Block("STAMP", "state of the drawing", stamp, ("PRELIMINARY", "2026-03-02")),
]

LIBRARY = Library("titles", "Sheets and title blocks, in millimetres", "A-TITLE", 7, BLOCKS,
                  columns=2, text=14, weight=0.25, gap=3)
