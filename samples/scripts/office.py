"""The standard of the office: layers, styles, dimensions, sheets."""

from dataclasses import dataclass

from drafting import Sheet, point, shifted


@dataclass
class Layer:
    name: str
    color: int
    weight: float
    linetype: str = ""
    note: str = ""


VIEW_EDGES = "A-VIEWPORT"  # not plotted


def new_drawing(dashes, *linetypes):
    """A drawing with the text style of the office; `dashes` is the scale of line types."""
    sheet = Sheet()
    sheet.set("LWDISPLAY", 1)
    sheet.set("LTSCALE", dashes)
    sheet.set("PSLTSCALE", 0)
    sheet.load_linetypes(*linetypes)
    text_style(sheet)
    return sheet


def layers(sheet, table):
    for row in table:
        sheet.type("LAYER _N", row.name, "_C", row.color, row.name, "_LW", row.weight, row.name, "")
        if row.linetype:
            sheet.type("LAYER _LT", row.linetype, row.name, "")
        if row.note:
            sheet.type("LAYER _D")
            sheet.type(row.note)
            sheet.type(row.name)
            sheet.type()
    sheet.type("LAYER _P _N", VIEW_EDGES, "")


def text_style(sheet, name="OFFICE", font="arial.ttf"):
    sheet.type("STYLE", name)
    sheet.type(font)
    sheet.type("0 1 0 _N _N")


# For all dimensions: text above the line and along it, in millimetres of the sheet.
COMMON = {
    "DIMTXT": 2.5, "DIMASZ": 2.5, "DIMEXO": 1.5, "DIMEXE": 1.5, "DIMGAP": 0.8, "DIMTAD": 1,
    "DIMTIH": 0, "DIMTOH": 0, "DIMTOFL": 1, "DIMLUNIT": 2, "DIMDSEP": 46, "DIMZIN": 8, "DIMDLI": 8,
    "DIMTXSTY": "OFFICE",
}


def dimension_style(sheet, name, scale, **values):
    for key, value in {**COMMON, "DIMSCALE": scale, **values}.items():
        sheet.set(key, value)
    sheet.type("DIMSTYLE _S", name)


def use_dimension_style(sheet, name):
    sheet.type("DIMSTYLE _R", name)


def page(sheet, layout, paper, orientation="_L"):
    """A layout with a sheet of the A series whose lower left corner is the origin."""
    sheet.type("LAYOUT _N", layout)
    sheet.type("LAYOUT _S", layout)
    sheet.type("PAGESETUP _P", paper, orientation, "_M 0 0 0 0 _S 1 1 ")


@dataclass
class Placing:
    """Where places of the model come to lie: in the model itself, or on a sheet over a view."""

    corner: tuple = (0.0, 0.0)  # of the view
    shown: tuple = (0.0, 0.0)  # in the model, at that corner
    scale: float = 1.0

    def __call__(self, p):
        return (self.corner[0] + (p[0] - self.shown[0]) * self.scale,
                self.corner[1] + (p[1] - self.shown[1]) * self.scale)

    def chain(self, sheet, along, line, places, foot=None):
        """Dimensions as Sheet.chain has them, given in the model."""
        axis = "xy".index(along)
        on = [None if v is None else self((v, v))[axis] for v in places]
        line, foot = (None if v is None else self((v, v))[1 - axis] for v in (line, foot))
        sheet.chain(along, line, on, foot)


def view(sheet, corner, width, height, center, scale, frozen=()):
    """A view of the model: on the sheet from its lower left corner, in the model around a place.
    `scale` is millimetres of the sheet by units of the model. Tells where the model lies."""
    sheet.layer(VIEW_EDGES)
    x, y = corner
    sheet.type("MVIEW", f"{x},{y} {x + width},{y + height}")
    dx, dy = width / scale / 2, height / scale / 2
    corners = [point(shifted(center, -dx, -dy)), point(shifted(center, dx, dy))]
    sheet.type("MVIEW _W _L")
    sheet.type()
    sheet.type(*corners)
    sheet.type("MVIEW _S _L")
    sheet.type()
    sheet.type(scale)
    sheet.type("MVIEW _L _L")
    sheet.type()
    sheet.type("_Y")
    if frozen:
        sheet.type("VPLAYER _F", ",".join(frozen), "_L")
        sheet.type()
        sheet.type()
    return Placing(corner, shifted(center, -dx, -dy), scale)


def table(sheet, corner, widths, rows, title, height=6.0, size=2.2):
    """A table whose upper left corner is given; the first row is its head."""
    x0, y = corner
    total = sum(widths)
    sheet.text((x0, y + 2), 3.5, title)
    for number, row in enumerate(rows):
        x = x0
        for width, word in zip(widths, row):
            if word != "":
                sheet.text((x + 1.5, y - height / 2), size, str(word), "ML")
            x += width
        y -= height
        if number == 0:
            sheet.weight(0.5)
        sheet.line((x0, y), (x0 + total, y))
        sheet.weight()
    top = corner[1]
    x = x0
    for width in widths[:-1]:
        x += width
        sheet.line((x, top), (x, y))
    sheet.weight(0.5)
    sheet.rect(x0, y, x0 + total, top)
    sheet.weight()
