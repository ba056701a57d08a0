"""Writes palettes in the form in which AutoCAD exports them, and small pictures to go with them.

Ids are made from names, so that the same script gives the same files.
"""

import pathlib
import struct
import uuid
import zlib

BY_LAYER, BY_BLOCK, TRUE_COLOR, INDEX, NO_COLOR = 0xC0, 0xC1, 0xC2, 0xC3, 0xC8
TEXT, INTEGER, REAL = 1, 2, 3


def escaped(text, numbered=False):
    """Text as those files have it: quotes stand raw."""
    text = text.replace("&", "&amp;").replace("<", "&lt;").replace(">", "&gt;")
    if numbered:
        text = "".join(c if ord(c) < 128 else f"&#{ord(c)};" for c in text)
    return text


class Writer:
    """Makes elements; `numbered` writes letters outside of ASCII by their numbers."""

    def __init__(self, numbered=False):
        self.numbered = numbered

    def text(self, text):
        return escaped(text, self.numbered)

    def attribute(self, value):
        value = self.text(str(value)).replace('"', "&quot;")
        return value.replace("\r", "&#13;").replace("\n", "&#10;")

    def element(self, tag, /, *content, **attributes):
        """An element with attributes, and with elements or a text made by text()."""
        start = tag + "".join(f' {k}="{self.attribute(v)}"' for k, v in attributes.items())
        inner = "".join(content)
        return f"<{start}>{inner}</{tag}>" if inner else f"<{start}/>"

    def plain(self, name, value):
        return self.element(name, self.text(str(value)))


def guid(name):
    return "{" + str(uuid.uuid5(uuid.NAMESPACE_URL, "palette:" + name)).upper() + "}"


def color_value(method, rest=0):
    """A colour as one signed number: the method in the high byte, the rest below."""
    value = method << 24 | rest
    return value - (1 << 32) if value >= 1 << 31 else value


def picture(pixels, color, mark):
    """A PNG: a disc or a square of a colour on nothing."""
    rows = bytearray()
    middle, radius = (pixels - 1) / 2, pixels * 0.42
    for y in range(pixels):
        rows.append(0)
        for x in range(pixels):
            dx, dy = abs(x - middle), abs(y - middle)
            inside = dx * dx + dy * dy <= radius * radius if mark == "disc" else max(dx, dy) <= radius
            rows += bytes(color + (255,)) if inside else b"\0\0\0\0"

    def chunk(kind, data):
        body = kind + data
        return struct.pack(">I", len(data)) + body + struct.pack(">I", zlib.crc32(body))

    header = struct.pack(">IIBBBBB", pixels, pixels, 8, 6, 0, 0, 0)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header)
            + chunk(b"IDAT", zlib.compress(bytes(rows), 9)) + chunk(b"IEND", b""))


class Palette:
    """One palette on its way to a file."""

    def __init__(self, folder, title, name, revision, numbered=False, dependent=None):
        self.folder, self.title, self.name = pathlib.Path(folder), title, name
        self.revision, self.dependent = revision, title if dependent is None else dependent
        self.write = Writer(numbered)
        self.tools, self.order = [], []

    # --- pictures

    def image(self, file, pixels, color=None, mark="disc", dark=None):
        """An element for a picture; with a colour, the picture as well."""
        if color is not None:
            target = self.folder / self.dependent / "Images" / file
            target.parent.mkdir(parents=True, exist_ok=True)
            target.write_bytes(picture(pixels, color, mark))
        more = {} if dark is None else {"IsDark": "true" if dark else "false"}
        return self.write.element("Image", cx=pixels, cy=pixels, src=".\\Images\\" + file, **more)

    def resource(self, library, name, pixels=32):
        return self.write.element("Image", cx=pixels, cy=pixels, src=library, resource=name)

    # --- general properties

    def value(self, name, value, kind=TEXT, info=""):
        w = self.write
        given = {"unspecified": "FALSE", "valueType": kind, "value": value}
        if value is None:
            given = {"unspecified": "TRUE"}
        if name == "Color":
            given.pop("value", None)
            given.pop("valueType", None)
        return w.element(name, w.element("BasicPropInfo", w.element("PropValue", **given)), info)

    def color(self, method, rest=0):
        w = self.write
        info = w.element("CreateInfo", w.element("AcCmColor", mRGB=color_value(method, rest)))
        return self.value("Color", "", info=info)

    def layer(self, name, index=7):
        w = self.write
        record = w.element("LayerTableRecord", w.plain("SymbolTableNameRecord", name),
                           self.color(INDEX, index), isNotPlotted="FALSE", lineWeight=-3)
        return self.value("Layer", name, info=w.element("CreateInfo", record))

    def general(self, *values):
        """All the general properties, those that are not given unspecified."""
        names = ["Color", "Layer", "Linetype", "LinetypeScale", "PlotStyle", "LineWeight",
                 "Transparency", "Textstyle", "Dimstyle", "Tablestyle"]
        given = {v[1:].split(">")[0].split("/")[0].split(" ")[0]: v for v in values}
        return self.write.element("GeneralProperties",
                                  *(given.get(n, self.value(n, None)) for n in names))

    # --- tools

    def properties(self, name, images, description="", more=""):
        w = self.write
        return w.element(
            "Properties",
            w.plain("ItemName", name) if name is not None else "",
            w.plain("Description", description) if description else "",
            w.element("Images", *images, option=0), more)

    def tool(self, name, data, images=(), kind=1, stock=True, description="", before="",
             after_images="", in_order=True):
        w = self.write
        identity = guid(f"{self.title}/{len(self.tools)}/{name}")
        reference = w.element("StockToolRef", **({"idValue": guid("stock")} if stock else {}))
        self.tools.append(w.element(
            "Tool", w.element("ItemID", idValue=identity),
            self.properties(name, images, description, after_images),
            w.element("Source"), before, w.plain("ToolType", kind), reference,
            w.element("Data", *data), Revision=self.revision, option=0))
        if in_order:
            self.order.append(identity)
        return identity

    def command(self, name, macro, images=(), general=None, **more):
        agent = self.write.element("Command", Macro=macro)
        return self.tool(name, [self.general() if general is None else general, agent], images,
                         **more)

    def block(self, name, source, block=None, images=(), general=None, beside="", scale=1,
              rotation=0.0, block_type=1, insert_as=1, xref_type=0, **more):
        w = self.write
        fields = {"BlockType": block_type, "BlockName": name if block is None else block,
                  "SourceFile": source, "InsertAs": insert_as, "XrefType": xref_type,
                  "Scale": scale, "AuxiliaryScale": "NONE", "Rotation": rotation,
                  "PromptRotation": "FALSE", "Explode": "FALSE"}
        agent = w.element("Block", *(w.plain(k, v) for k, v in fields.items()))
        return self.tool(name, [self.general() if general is None else general, agent, beside],
                         images, **more)

    def hatch(self, name, images=(), general=None, **fields):
        w = self.write
        gradient = w.element("GradientColors", *(w.element("GradientColor", self.color(*c))
                                                 for c in fields.pop("colors", ())))
        agent = w.element("Hatch", *(w.plain(k, v) for k, v in fields.items()), gradient)
        return self.tool(name, [self.general() if general is None else general, agent], images)

    def raster(self, name, source, images=(), scale=1.0, rotation=0.0):
        w = self.write
        agent = w.element("Raster", w.plain("RasterName", name), w.plain("SourceFile", source),
                          w.plain("Scale", scale), w.plain("Rotation", rotation))
        return self.tool(name, [self.general(), agent], images)

    def entry(self, name, kind):
        """A text or a separator between tools."""
        w = self.write
        identity = guid(f"{self.title}/{len(self.tools)}/entry")
        self.tools.append(w.element(
            "Tool", w.element("ItemID", idValue=identity),
            w.element("Properties", w.plain("ItemName", name)) if name else "",
            w.plain("ToolType", kind), w.element("StockToolRef"), w.element("Data"),
            Revision=self.revision, option=0))
        self.order.append(identity)

    # --- the file

    def content(self, more=""):
        w = self.write
        return w.element(
            "Palette", w.element("ItemID", idValue=guid(self.title)),
            w.element("Properties", w.plain("ItemName", self.name)),
            w.element("Tools", *self.tools), more, Revision=self.revision, option=0)

    def document(self):
        w = self.write
        view = w.element(
            "CatalogView",
            w.element("ToolSource", w.element("Palette", idValue=guid(self.title))),
            w.element("Image", SizeCX=32), w.plain("Style", 1),
            w.element("ToolOrder", *(w.element("Tool", idValue=i) for i in self.order)))
        data = w.element(
            "PaletteData", w.element("PaletteContent", self.content()),
            w.element("PaletteUI", w.element("CAdUiPalette", PaletteStyle=1),
                      w.element("CAcTcUiToolPalette", view)))
        sets = w.element("PaletteSets", w.element(
            "PaletteSetData", w.element("PaletteSetContent", w.element("Palettes", data)),
            w.element("PaletteSetUI")))
        return w.element("ToolPaletteExport", w.plain("DependentFilesPath", self.dependent), sets)

    def save(self, text=None):
        """One line that ends in CRLF."""
        self.folder.mkdir(parents=True, exist_ok=True)
        text = self.document() if text is None else text
        (self.folder / (self.title + ".xtp")).write_bytes((text + "\r\n").encode("utf-8"))


def dynamic_block_tree(write, depth, width):
    """What dynamic blocks carry along: dictionaries in dictionaries, records, texts in CDATA."""
    def level(left):
        if left == 0:
            return write.element("Resbuf", "<![CDATA[<Tool>no tool</Tool> & so on]]>", code=1)
        records = "".join(write.element("Xrecord", write.element("Resbuf", write.text(str(i)), code=70))
                          for i in range(width))
        return write.element("Dictionary", records, level(left - 1), handle=left)
    return write.element("DynamicProperties", write.element("ExtensionDictionary", level(depth)))
