#!/usr/bin/env python3
"""Writes the palettes of blocks, plans, materials, gradients and pictures into the sample catalog.

    samples/catalog/make_palettes.py [--programs FOLDER]

Palettes that were made by hand stay as they are. Tools keep their ids and the pictures that they
have; pictures that are missing are made by `tpal`.
"""

import argparse
import importlib
import math
import re
import subprocess
import sys
import uuid
import xml.etree.ElementTree as ET
from pathlib import Path
from xml.sax.saxutils import escape

HERE = Path(__file__).resolve().parent
SAMPLES = HERE.parent
for folder in ("scripts", "blocks"):
    sys.path.insert(0, str(SAMPLES / folder))

TIME = "2026-11-21T00:00:00Z"
IDS = uuid.UUID("5852BAFD-5F2B-5649-92B2-06D17FA14AEF")
PICTURE_SIZE = "800x600"


def id_of(*names):
    """The same id each time."""
    return "{%s}" % str(uuid.uuid5(IDS, "/".join(names))).upper()


def properties(name, description, images=""):
    return (f"<Properties><ItemName>{escape(name)}</ItemName>"
            f"<Description>{escape(description)}</Description>{images}"
            f'<Time createdUniversalDateTime="{TIME}" modifiedUniversalDateTime="{TIME}"/>'
            "</Properties>")


def element(name, value):
    return f"<{name}>{escape(str(value))}</{name}>"


def agent(kind, **fields):
    return f"<{kind}>{''.join(element(name, value) for name, value in fields.items())}</{kind}>"


def color(rgb):
    # The method "by colour" stands in the highest byte.
    return ('<Color><BasicPropInfo><PropValue unspecified="FALSE"/></BasicPropInfo>'
            f'<ColorCreateInfo><AcCmColor mRGB="{0xC2000000 | rgb}"/></ColorCreateInfo></Color>')


class Tool:
    def __init__(self, name, description, data, general=""):
        self.name, self.description, self.data, self.general = name, description, data, general


class Palette:
    def __init__(self, name, description, group, tools):
        self.name, self.description, self.group, self.tools = name, description, group, tools
        self.id = id_of(name)
        self.file = f"{name}_{self.id}.dtc"

    def images(self):
        """The pictures that the tools of the present file have, by id."""
        path = HERE / "Palettes" / self.file
        if not path.exists():
            return {}
        found = {}
        for tool in ET.parse(path).getroot().iter("Tool"):
            images = tool.find("Properties/Images")
            if images is not None:
                found[tool.find("ItemID").get("idValue")] = ET.tostring(images, encoding="unicode")
        return found

    def xml(self):
        images = self.images()
        rows = []
        for tool in self.tools:
            own = id_of(self.name, tool.name)
            rows.append(f'<Tool><ItemID idValue="{own}"/>'
                        f"{properties(tool.name, tool.description, images.get(own, ''))}"
                        f"<ToolType>1</ToolType><Data><GeneralProperties>{tool.general}"
                        f"</GeneralProperties>{tool.data}</Data></Tool>")
        return (f'<Palette><ItemID idValue="{self.id}"/>{properties(self.name, self.description)}'
                f"<Tools>{''.join(rows)}</Tools></Palette>")


def blocks(module, name, description, group, turned=True, auxiliary_scale="NONE"):
    """A palette with a tool for each block of a library."""
    library = importlib.import_module(module).LIBRARY
    return Palette(name, description, group, [
        Tool(block.name, block.note,
             agent("Block", BlockType=1, BlockName=block.name,
                   SourceFile=f"..\\..\\blocks\\{library.file}.dxf", InsertAs=1, Scale=1,
                   PromptRotation="TRUE" if turned else "FALSE",
                   PromptAttributes="TRUE" if block.values else "FALSE",
                   AuxiliaryScale=auxiliary_scale))
        for block in library.blocks])


def plans():
    rows = (("Floor plan", "floor-plan", "attached: seen in every drawing that refers to yours", 2, 1),
            ("Floor plan, overlaid", "floor-plan", "seen in this drawing alone", 2, 2),
            ("Site plan", "site-plan", "attached", 2, 1),
            ("Bearing block", "mechanical-sheet", "the drawing as one block", 1, 0))
    return Palette("Plans", "Whole drawings as references and as blocks", "Plans", [
        Tool(name, note, agent("Block", BlockType=2, BlockName=file,
                               SourceFile=f"..\\..\\drawings\\{file}.dxf", InsertAs=insert_as,
                               XrefType=xref, Scale=1, PromptRotation="FALSE"))
        for name, file, note, insert_as, xref in rows])


def pattern_rows():
    text = (SAMPLES.parent / "drafton/engine/data/draftoniso.pat").read_text(encoding="utf-8")
    return dict(re.findall(r"^\*(\w+), *(.*)$", text, re.MULTILINE))


def hatch(name, note, scale, angle=0.0, general=""):
    return Tool(name.replace("_", " ").capitalize(), note,
                agent("Hatch", hatchObjectType=0, HatchType=1, PatternName=name,
                      SourceFile="draftoniso.pat", Angle=angle, Scale=scale, AuxiliaryScale="None"),
                general)


MATERIALS = {
    "Masonry": ("Brick, block and stone, for plans at 1:50", 20, (
        "ANSI31", "BRICK", "BRICK_STACK", "BRICK_FLEMISH", "BLOCK", "ASHLAR", "ANSI35", "ANSI36",
        "CONCRETE", "CONCRETE_RC", "PLASTER", "SCREED")),
    "Ground and water": ("Soil, plants and water, for sections and site plans", 20, (
        "EARTH", "SAND", "GRAVEL", "CLAY", "ROCK", "GRASS", "LAWN", "MULCH", "SWAMP", "WATER",
        "WAVES")),
    "Surfaces": ("Floors, paving and roofs, for plans at 1:50", 20, (
        "TILE", "TILE_DIAGONAL", "OCTAGON", "SLABS", "SETTS", "HERRINGBONE", "BASKET", "PLANKS",
        "PARQUET", "CHEVRON", "SHINGLE", "ROOF_TILES", "SEAM", "GRATING", "TREAD", "MESH")),
    "Sections": ("Cut materials, for details and parts at 1:1", 1, (
        "ANSI31", "ANSI32", "ANSI33", "ANSI34", "ANSI37", "ANSI38", "STEEL", "GLASS", "CORK",
        "FELT", "INSULATION", "INSULATION_RIGID", "WOOD_GRAIN", "WOOD_END")),
}


def materials():
    notes = pattern_rows()
    for name, (description, scale, patterns) in MATERIALS.items():
        tools = [hatch(pattern, notes[pattern], scale) for pattern in patterns]
        if name == "Sections":
            tools.append(hatch("SOLID", "filled", 1, general=color(0x808080)))
        yield Palette(name, description, "Materials", tools)


def gradients():
    rows = (("Sky", "LINEAR", 0x2E6FB7, 0xDCEBFA, 90), ("Water", "LINEAR", 0x1F5F8B, 0x9AD0EC, 45),
            ("Pipe", "CYLINDER", 0x5A5A5A, 0xE8E8E8, 0), ("Groove", "INVCYLINDER", 0x5A5A5A, 0xE8E8E8, 0),
            ("Ball", "SPHERICAL", 0x7A1F1F, 0xF4C9C9, 0), ("Bowl", "INVSPHERICAL", 0x7A1F1F, 0xF4C9C9, 0),
            ("Dome", "HEMISPHERICAL", 0x2F5F2F, 0xD5EBC9, 0),
            ("Basin", "INVHEMISPHERICAL", 0x2F5F2F, 0xD5EBC9, 0),
            ("Sail", "CURVED", 0x8A6D1F, 0xFFF1C4, 0), ("Hollow", "INVCURVED", 0x8A6D1F, 0xFFF1C4, 0))
    tools = []
    for name, kind, first, second, angle in rows:
        colors = "".join(f"<GradientColor>{color(rgb)}</GradientColor>" for rgb in (first, second))
        fields = agent("Hatch", hatchObjectType=1, HatchType=1, GradientAngle=math.radians(angle),
                       GradientCentered="TRUE", GradientName=kind)
        tools.append(Tool(name, kind.capitalize(), fields.replace(
            "</Hatch>", f"<GradientColors>{colors}</GradientColors></Hatch>")))
    return Palette("Gradients", "Areas that pass from one colour into another", "Materials", tools)


PICTURES = (("Floor plan, picture", "floor-plan"), ("Site plan, picture", "site-plan"))


def pictures():
    return Palette("Pictures", "Pictures of plans, a drawing unit wide at scale 1", "Plans", [
        Tool(name, f"{file}.png",
             agent("Raster", RasterName=file,
                   SourceFile=f"%UserProfileSamplesFolder%\\..\\pictures\\{file}.png", Scale=1000,
                   Rotation=0))
        for name, file in PICTURES])


def draw_pictures(programs):
    (SAMPLES / "pictures").mkdir(exist_ok=True)
    for _, file in PICTURES:
        subprocess.run([programs / "drafton", "batch", "--png", SAMPLES / "pictures" / f"{file}.png",
                        "--size", PICTURE_SIZE, SAMPLES / "drawings" / f"{file}.dxf"],
                       check=True, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL)


def all_palettes():
    return [
        blocks("doors", "Doors", "Doors of a plan at 1:50, set with their left jamb", "Building"),
        blocks("windows", "Windows", "Windows of a plan at 1:50", "Building"),
        blocks("furniture", "Furniture", "Furniture and kitchens", "Building"),
        blocks("sanitary", "Sanitary", "Baths, basins and laundry", "Building"),
        blocks("symbols", "Plan symbols", "Levels, grids, sections, north; as large as dimensions are",
               "Building", auxiliary_scale="DIMSCALE"),
        blocks("trees", "Trees", "Trees and shrubs in plan", "Site", turned=False),
        blocks("fasteners", "Fasteners", "Screws, nuts and washers", "Mechanical"),
        blocks("titles", "Title blocks", "Sheets and title blocks with attributes", "Sheets",
               turned=False),
        plans(), pictures(), *materials(), gradients(),
    ]


GROUPS = {"Building": "Plans and rooms", "Site": "Gardens and ground", "Mechanical": "Parts",
          "Sheets": "What a drawing is put on", "Materials": "Hatches and gradients",
          "Plans": "Whole drawings and pictures"}


def put_into_catalog(palettes):
    """Names the palettes in the catalog and its groups, where they are not yet."""
    path = HERE / "DrfTcCatalog.dtc"
    catalog = ET.parse(path)
    loaders, groups = catalog.find("Palettes"), catalog.find("Groups")
    known = {item.get("idValue") for item in loaders.iter("ItemID")}
    for palette in palettes:
        if palette.id not in known:
            loaders.append(ET.fromstring(
                f'<Palette><ItemID idValue="{palette.id}"/>'
                f"{properties(palette.name, palette.description)}"
                f'<Url href="Palettes\\{palette.file}"/></Palette>'))
        group = next((g for g in groups.findall("ToolPaletteGroup")
                      if g.findtext("Properties/ItemName") == palette.group), None)
        if group is None:
            group = ET.SubElement(groups, "ToolPaletteGroup")
            for part in (f'<ItemID idValue="{id_of("group", palette.group)}"/>',
                         properties(palette.group, GROUPS[palette.group]), "<Contents/>"):
                group.append(ET.fromstring(part))
        contents = group.find("Contents")
        if all(ref.get("ID") != palette.id for ref in contents.findall("ToolPalette")):
            contents.append(ET.fromstring(f'<ToolPalette ID="{palette.id}"/>'))
    catalog.write(path, encoding="utf-8")


def main():
    parser = argparse.ArgumentParser(description="Writes palettes into the sample catalog.")
    parser.add_argument("--programs", type=Path, default=SAMPLES.parent / "build/release/bin",
                        help="where drafton and tpal are")
    programs = parser.parse_args().programs
    draw_pictures(programs)
    palettes = all_palettes()
    for palette in palettes:
        (HERE / "Palettes" / palette.file).write_text(palette.xml(), encoding="utf-8")
    put_into_catalog(palettes)
    subprocess.run([programs / "tpal", "resave", HERE], check=True)
    subprocess.run([programs / "tpal", "images", HERE, "--missing"], check=True)


if __name__ == "__main__":
    main()
