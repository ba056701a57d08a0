#!/usr/bin/env python3
"""Writes the sample palettes of this folder: one as releases of about 2005 exported them, one of
about 2012 and one of about 2026. Run it after a change and commit what it wrote."""

import pathlib

from xtp_writer import (BY_BLOCK, BY_LAYER, INDEX, INTEGER, NO_COLOR, REAL, TRUE_COLOR, Palette,
                        dynamic_block_tree)

HERE = pathlib.Path(__file__).parent
RED, GREEN, BLUE, GREY = (200, 60, 50), (60, 150, 80), (50, 90, 180), (120, 120, 120)


def site_2005():
    p = Palette(HERE, "site-2005", "Baustelle", "6.0", numbered=True)
    p.command("Wände & Türen", "^C^C_LINE 0,0 100,0;", [p.image("walls.png", 64, RED)])
    p.command("Kreis \"groß\"", "^C^C_CIRCLE 50,50 25",
              [p.image("circle.png", 64, BLUE)], general=p.general(p.color(INDEX, 1)),
              description="Zeichnet\neinen  Kreis\n\tmit Radius 25")
    p.command("Zwei Zeilen", "^C^C_LINE 0,0\n10,0\n10,10;", [p.image("gone.png", 64)])
    p.entry("Bauteile", 3)
    p.block("Küche", "%UserProfileFolder%\\Blocks\\Küche.dwg", "Kitchen©",
            [p.image("kitchen.png", 64, GREEN)], scale=2, rotation=1.5707963)
    p.block("Plan", "C:\\Projects\\Site\\plan.dwg", "plan", block_type=2, insert_as=2, xref_type=1)
    p.entry("", 4)
    p.hatch("Beton", hatchObjectType=0, HatchType=1, PatternName="AR-CONC",
            SourceFile="acadiso.pat", Angle=0.7853982, Scale=5.0)
    p.hatch("Raster", hatchObjectType=0, HatchType=0, PatternName="_USER", Spacing=10.0,
            Double="TRUE", Angle=0.0)
    p.hatch("Himmel", hatchObjectType=1, GradientName="CYLINDER", GradientAngle=0.5,
            GradientCentered="TRUE", colors=[(TRUE_COLOR, 0x3060C0), (INDEX, 4)])
    p.raster("Luftbild", "\\\\server\\share\\aerial.png", scale=10.0)
    p.save()


def office_2012():
    p = Palette(HERE, "office-2012", "Office", "18.1")
    p.command("Line", "^C^C_line \\\\;", [p.resource("acadbtn.xmx", "RCDATA_16_LINE")])
    p.command("Wall \"A\" 'outer'", "^C^C_PLINE 0,0 10,0;", [p.image("wall32.png", 32, RED),
                                                           p.image("wall64.png", 64, RED)],
              general=p.general(p.layer("WALLS", 3), p.value("LineWeight", 50, INTEGER),
                                p.value("Linetype", "ByLayer"),
                                p.value("LinetypeScale", "0.5", REAL)))
    p.command("Viewport", "^C^C_FitViewport", [])
    p.block("Desk", "D:\\Office\\Furniture\\desk.dwg", images=[p.image("desk.png", 64, GREY)],
            general=p.general(p.color(BY_BLOCK), p.value("Transparency", "VonLayer"),
                              p.value("LineWeight", -3, INTEGER)),
            beside=dynamic_block_tree(p.write, 12, 20))
    p.block("Chair", "chair.dwg", beside=p.write.element("DynamicProperties"))
    w = p.write
    flyout = w.element("Flyout", w.element("ShapePackage", idValue="{SP}"),
                       w.element("CurrentShape", idValue="{CS}"), enable="TRUE")
    custom = w.element("CustomData", w.plain("className", "OdDbCircle"), w.plain("idButton", "ID_C"))
    p.tool("Shapes", [p.general()], before=custom + flyout)
    p.tool("Version only", [p.general(), w.element("Command", Macro="_ZOOM _E")],
           before=w.element("CustomData", w.element("Version", value=3),
                            w.element("Translation", name="x")))
    for kind in ("VisualStyle", "Light", "MLeader", "Table"):
        p.tool(kind + " tool", [p.general(), w.element(kind, w.plain("Name", kind))],
               [p.image("unused.png", 64, GREY)])
    p.entry("Notes", 3)
    p.entry("", 4)
    p.hatch("Brick", [p.resource("AcTpCatalogRes.dll", "RCDATA_BRICK", 64)], hatchObjectType=0,
            HatchType=1, PatternName="BRICK", SourceFile="acad.pat", Angle=0, Scale=1)
    p.save()


def civil_2026():
    p = Palette(HERE, "civil-2026", "Civil", "25.1.1", dependent="civil-2026-files")
    w = p.write

    def four(name, color):
        return [p.image(f"{name}_{size}_{'dark' if dark else 'light'}.png", size,
                        GREY if dark else color, dark=dark)
                for size in (32, 64) for dark in (False, True)]

    overlay = (w.element("Overlay", w.element("Images", w.element("Image", cx=0)))
               + w.element("Time", createdUniversalDateTime="2026-01-05T08:00:00"))
    p.command("Kerb", "^C^C_LINE 0,0 50,0;", four("kerb", RED), after_images=overlay,
              general=p.general(p.color(TRUE_COLOR, 0x20A040)))
    p.command("Manhole", "^C^C_CIRCLE 10,10 0.5", four("manhole", BLUE),
              general=p.general(p.color(BY_LAYER), p.value("LineWeight", -1, INTEGER)))
    p.command("Nothing", "^C^C_POINT 1,1", [p.image("missing_32.png", 32, dark=False)],
              general=p.general(p.color(NO_COLOR), p.value("LineWeight", -2, INTEGER)))
    p.block("Valve", "%AECCONTENT_DIR%\\Valves\\valve.dwg", images=four("valve", GREEN),
            beside=dynamic_block_tree(w, 16, 60))
    p.block("Survey", "\\\\fileserver\\survey\\base.dwg", "base", block_type=2, insert_as=2,
            xref_type=2)
    units = w.element("Units", value=4)
    p.tool("Pipe run", [w.element("AecDbCommandObject",
                                  w.plain("CommandString", "^C^C_LINE 0,0 30,0;")), units])
    p.tool("Bare macro", [w.plain("CommandString", "^C^C_CIRCLE 0,0 3"), units])
    for record in ("AecDbScheduleTagObject", "AecDbGeo", "AEC_DTLCOMP_INFO", "Recipe101"):
        p.tool(record, [w.element(record, w.plain("Style", "Standard")), units])
    p.entry("", 4)
    p.save()


if __name__ == "__main__":
    site_2005()
    office_2012()
    civil_2026()
