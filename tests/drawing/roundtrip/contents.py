"""Inserts, hatches, dimensions, images, viewports, tables and named objects with every field off its
preset.

contents.py make VERSION FILE   writes a drawing that has them
contents.py compare A B         audits B and tells every value that is not as in A
contents.py audit FILE          audits FILE and tells every problem
contents.py show FILE           audits FILE and prints what is in it as JSON
"""

import json
import sys

import ezdxf
from ezdxf.entities import Hatch

import entities_a
from entities_a import audited, plain, without_presets

COMMON = {"layer": "Things", "color": 3, "linetype": "DASHED", "ltscale": 0.5, "lineweight": 50}
IGNORED = entities_a.IGNORED | {"image_def_reactor_handle", "ucs_handle", "base_ucs_handle"}


def make_inserts(doc, msp):
    inner = doc.blocks.new("INNER", base_point=(1, 2, 3))
    inner.add_line((0, 0), (1, 0))
    inner.add_attdef("NUMBER", (1, 2), "0", dxfattribs={"height": 1.5})
    outer = doc.blocks.new("Außen")
    outer.add_blockref("INNER", (5, 5), dxfattribs={"xscale": -1, "rotation": 45})
    for normal in ((0, 0, 1), (0, 0, -1), (0.36, 0.48, 0.8)):
        insert = msp.add_blockref("INNER", (3, 4, 5), dxfattribs=dict(
            COMMON, xscale=2, yscale=-3, zscale=0.5, rotation=33.3, extrusion=normal))
        insert.add_auto_attribs({"NUMBER": "12"})
    msp.add_blockref("Außen", (7, 8), dxfattribs=dict(
        COMMON, column_count=3, row_count=2, column_spacing=12.5, row_spacing=-7.5))


def make_hatches(doc, msp, version):
    pattern = msp.add_hatch(color=2, dxfattribs=dict(COMMON, hatch_style=1, elevation=(0, 0, 2.5),
                                                     extrusion=(0, 0, -1)))
    pattern.set_pattern_fill("ANSI33", color=3, angle=30, scale=2.5, double=0, style=1)
    pattern.paths.add_polyline_path([(0, 0, 0.5), (10, 0), (10, 10), (0, 10, -0.25)], flags=1 + 16)
    edges = pattern.paths.add_edge_path(flags=1)
    edges.add_line((1, 1), (5, 1))
    edges.add_arc((5, 3), 2, -90, 90)
    edges.add_arc((4, 5), 1, 0, 180, ccw=False)
    edges.add_ellipse((3, 4), (2, 0.5), 0.4, 10, 200)
    edges.add_ellipse((3, 4), (2, 0.5), 0.4, 200, 300, ccw=False)
    edges.add_spline(control_points=[(1, 4), (1, 3), (2, 2), (1, 1)],
                     knot_values=[0, 0, 0, 0, 1, 1, 1, 1], degree=3)
    edges.add_spline(control_points=[(1, 4), (1, 3), (2, 2), (1, 1)], weights=[1, 2, 0.5, 1],
                     knot_values=[0, 0, 0, 0, 1, 1, 1, 1], degree=3)
    pattern.seeds = [(2.5, 3.5), (4.5, 5.5)]
    circle = msp.add_circle((50, 50), 5)
    linked = msp.add_hatch(color=1)
    path = linked.paths.add_polyline_path([(45, 50, 1), (55, 50, 1)], flags=1)
    path.source_boundary_objects = [circle.dxf.handle]
    linked.dxf.associative = 1
    circle.append_reactor_handle(linked.dxf.handle)
    own = msp.add_hatch(color=4)
    own.set_pattern_fill("_USER", pattern_type=0, scale=3, angle=15, double=1,
                         definition=[[15, (0, 0), (-0.77, 2.9), []], [105, (0, 0), (-2.9, -0.77), []]])
    own.paths.add_polyline_path([(0, 0), (10, 0), (10, 10)])
    own.set_xdata("ACAD", [(1010, (3.0, 4.0, 0.0))])
    if version < "R2004":
        return
    own.bgcolor = (10, 20, 30)
    kinds = ["LINEAR", "CYLINDER", "INVCYLINDER", "SPHERICAL", "INVSPHERICAL", "HEMISPHERICAL",
             "INVHEMISPHERICAL", "CURVED", "INVCURVED"]
    for i, kind in enumerate(kinds):
        hatch = msp.add_hatch()
        hatch.set_gradient((i, 20, 30), (200, i, 10), rotation=i * 7.5, centered=i / 10,
                           one_color=i % 2, tint=i / 12, name=kind)
        hatch.paths.add_polyline_path([(i, 0), (i + 1, 0), (i + 1, 1)], is_closed=True)


def make_dimensions(doc, msp, version):
    style = doc.dimstyles.duplicate_entry("EZDXF", "Every")
    for name, value in (("dimscale", 2.5), ("dimasz", 3.5), ("dimexo", 0.7), ("dimtxt", 3.1),
                        ("dimclrd", 1), ("dimclre", 2), ("dimclrt", 5), ("dimpost", "L<>mm"),
                        ("dimapost", "[<>]"), ("dimtad", 1), ("dimdec", 3), ("dimzin", 8),
                        ("dimlwd", 35), ("dimlwe", 18), ("dimtol", 1), ("dimtp", 0.5),
                        ("dimtm", 0.25), ("dimsah", 1), ("dimse1", 1), ("dimsd2", 1),
                        ("dimgap", 0.9), ("dimcen", -1.5), ("dimrnd", 0.05), ("dimlfac", 2.0)):
        style.dxf.set(name, value)
    if version >= "R2007":
        style.dxf.dimfxl = 4.5
        style.dxf.dimfxlon = 1
        style.dxf.dimtfill = 2
        style.dxf.dimtfillclr = 6
        style.dxf.dimarcsym = 1
    rotated = msp.add_linear_dim(base=(0, 3), p1=(0, 0), p2=(7, 1), angle=15, dimstyle="Every",
                                 text="<> about", override={"dimtad": 4, "dimasz": 1.5},
                                 dxfattribs=COMMON).render()
    if version != "R12":
        rotated.dimension.dxf.oblique_angle = 75
    rotated.dimension.dxf.text_rotation = 12.5
    rotated.dimension.dxf.horizontal_direction = 7.5
    rotated.dimension.dxf.line_spacing_factor = 1.5
    msp.add_aligned_dim(p1=(0, 0), p2=(7, 2), distance=3, dimstyle="EZDXF").render()
    msp.add_radius_dim(center=(5, 5), radius=3, angle=45).render()
    msp.add_diameter_dim(center=(5, 5), radius=3, angle=135).render()
    msp.add_angular_dim_2l(base=(5, 5), line1=((0, 0), (5, 0)), line2=((0, 0), (4, 3))).render()
    msp.add_angular_dim_3p(base=(5, 5), center=(0, 0), p1=(5, 0), p2=(0, 5)).render()
    msp.add_ordinate_dim(feature_location=(3, 4), offset=(2, 5), dtype=1).render()
    msp.add_ordinate_x_dim(feature_location=(3, 4), offset=(2, 5)).render()
    if version != "R12":
        msp.add_arc_dim_3p(base=(5, 5), center=(0, 0), p1=(5, 0), p2=(0, 5)).render()


def make_images(doc, msp, version):
    definition = doc.add_image_def("pictures\\house.png", (640, 480), name="house")
    definition.dxf.pixel_size = (0.25, 0.5)
    definition.dxf.resolution_units = 2
    image = msp.add_image(definition, (1, 2, 3), (64, 48), rotation=30, dxfattribs=COMMON)
    image.dxf.brightness = 60
    image.dxf.contrast = 40
    image.dxf.fade = 20
    image.set_boundary_path([(100, 100), (500, 120), (300, 400)])
    box = msp.add_image(definition, (50, 2), (64, 48))
    box.set_boundary_path([(10, 20), (600, 400)])
    if version >= "R2010":
        box.dxf.clip_mode = 1
    msp.add_image(definition, (90, 2), (64, 48))


def make_layouts(doc, version):
    sheet = doc.layout("Layout1")
    sheet.page_setup(size=(420, 297), margins=(10, 11, 12, 13), units="mm", offset=(3, 4),
                     rotation=1, scale=24, name="ISO A3", device="DWG to PDF.pc3")
    view = sheet.add_viewport(center=(100, 120), size=(150, 90), view_center_point=(12, 34),
                              view_height=55, dxfattribs=COMMON)
    view.dxf.view_twist_angle = 22.5
    view.dxf.view_target_point = (1, 2, 3)
    view.dxf.view_direction_vector = (0, 0.6, 0.8)
    view.dxf.perspective_lens_length = 35
    view.dxf.status = 5
    view.dxf.flags = 0x4000 + 0x200
    view.frozen_layers = ["Things"]
    second = doc.layouts.new("Zweites Blatt")
    second.add_circle((1, 1), 1)
    clip = second.add_lwpolyline([(0, 0), (50, 0), (25, 40)], close=True)
    cut = second.add_viewport(center=(25, 20), size=(50, 40), view_center_point=(0, 0), view_height=40)
    cut.dxf.clipping_boundary_handle = clip.dxf.handle
    cut.dxf.flags = 0x10000


# What the parts of the window and saved views have in common.
LOOK = {"direction": (0, -0.6, 0.8), "target": (1, 2, 3), "height": 33, "focal_length": 35,
        "front_clipping": 5.5, "back_clipping": -6.5, "view_twist": 12.5, "view_mode": 17}
LOOK_SINCE_R2000 = {"render_mode": 2, "ucs_origin": (4, 5, 6), "ucs_xaxis": (0, 1, 0),
                    "ucs_yaxis": (-1, 0, 0), "ucs_ortho_type": 3, "elevation": 7.5}


def make_views(doc, ucs, version):
    view = doc.views.new("Front", dxfattribs=dict(LOOK, center=(4, 5), width=44))
    doc.views.new("Sheet", dxfattribs={"flags": 1, "center": (100, 80), "height": 20})
    port = doc.viewports.new("Three", dxfattribs=dict(
        LOOK, center=(7, 8), lower_left=(0.25, 0.5), upper_right=(0.75, 1), snap_base=(1, 2),
        snap_spacing=(0.5, 0.25), grid_spacing=(5, 6), aspect_ratio=1.75, snap_rotation=15,
        circle_sides=200, fast_zoom=0, ucs_icon=1, snap_on=1, grid_on=1, snap_style=1,
        snap_isopair=2))
    if version == "R12":
        return
    for one in (view, port):
        one.update_dxf_attribs(LOOK_SINCE_R2000)
        one.dxf.ucs_handle = ucs.dxf.handle
    view.dxf.ucs = 1
    port.dxf.ucs_vp = 1
    port.dxf.unknown1 = 3
    if version >= "R2007":
        view.dxf.camera_plottable = 1
        port.update_dxf_attribs({
            "plot_style_sheet": "mono.ctb", "shade_plot_setting": 2, "major_grid_lines": 7,
            "default_lighting_on": 0, "default_lighting_type": 0, "brightness": 0.5,
            "contrast": 0.25, "ambient_color_aci": 5, "ambient_true_color": 0x102030})


def make_tables(doc, version):
    doc.layers.add("Things", color=5, linetype="DASHED", lineweight=35, true_color=0x102030,
                   plot=False)
    doc.layers.add("Off").off()
    doc.layers.add("Frozen").freeze()
    doc.layers.add("Locked").lock()
    shapes = doc.styles.add_shx("ltypeshp.shx")
    doc.linetypes.add("WITHTEXT", 'A,.5,-.2,["GAS",Standard,S=.1,U=0.0,X=-0.1,Y=-.05],-.25',
                      description="Gas ----GAS----", length=0.95)
    doc.linetypes.add("WITHSHAPE", "A,.25,-.1,[132,ltypeshp.shx,x=-.1,s=.1,r=45,y=.2],-.1,1",
                      description="Fence", length=1.45)
    style = doc.styles.add("Every", font="romans.shx")
    style.dxf.bigfont = "bigfont.shx"
    style.dxf.height = 2.75
    style.dxf.width = 0.85
    style.dxf.oblique = 12.5
    style.dxf.last_height = 3.25
    style.dxf.flags = 4
    style.dxf.generation_flags = 6
    doc.styles.add("Bold", font="arialbd.ttf").set_extended_font_data("Arial", bold=True, italic=True)
    ucs = doc.ucs.new("Turned", dxfattribs={"origin": (1, 2, 3), "xaxis": (0, 1, 0),
                                            "yaxis": (-1, 0, 0)})
    make_views(doc, ucs, version)
    doc.appids.add("DRAFTON_TEST")
    doc.layers.add("VIEWPORTS")


def make(version, path):
    doc = ezdxf.new(version, setup=True)
    msp = doc.modelspace()
    make_tables(doc, version)
    make_inserts(doc, msp)
    make_dimensions(doc, msp, version)
    if version != "R12":
        make_hatches(doc, msp, version)
        make_images(doc, msp, version)
        make_layouts(doc, version)
        line = msp.add_line((0, 0), (1, 1))
        group = doc.groups.new("PAIR", description="A pair", selectable=False)
        group.extend([line, msp.add_point((1, 2))])
        doc.materials.new("Brick")
        doc.mline_styles.new("Wall").elements.append(1.5, 3)
    doc.saveas(path)


def edge_values(edge):
    names = [n for n in vars(edge) if not n.startswith("_")]
    return dict({n: plain(getattr(edge, n)) for n in sorted(names)}, edge=edge.EDGE_TYPE
                if hasattr(edge, "EDGE_TYPE") else type(edge).__name__)


def hatch_values(hatch):
    paths = []
    for path in hatch.paths:
        shown = {"flags": path.path_type_flags,
                 "sources": [h for h in path.source_boundary_objects]}
        if hasattr(path, "vertices"):
            shown["vertices"] = plain(list(path.vertices))
            shown["closed"] = path.is_closed
        else:
            shown["edges"] = [edge_values(e) for e in path.edges]
        paths.append(shown)
    result = {"paths": paths, "seeds": plain(list(hatch.seeds)), "bgcolor": plain(hatch.bgcolor)}
    if hatch.pattern and not hatch.dxf.solid_fill:
        result["pattern"] = [[plain(line.angle), plain(line.base_point), plain(line.offset),
                              plain(line.dash_length_items)] for line in hatch.pattern.lines]
    if hatch.gradient:
        result["gradient"] = {k: plain(v) for k, v in vars(hatch.gradient).items()}
    return result


def values(entity):
    result = entities_a.values(entity)
    for name in IGNORED:
        result.pop(name, None)
    if isinstance(entity, Hatch):
        result.update(hatch_values(entity))
    if entity.dxftype() == "IMAGE":
        result["boundary"] = plain(list(entity.boundary_path))
        result["reactor"] = entity.dxf.hasattr("image_def_reactor_handle")
    if entity.dxftype() == "VIEWPORT":
        result["frozen"] = list(entity.frozen_layers)
    if entity.dxftype() == "LTYPE":
        # Old files have neither a handle among these nor plain dashes told to be plain.
        result["tags"] = [[t.code, plain(t.value)] for t in entity.pattern_tags.tags
                          if t.code != 5 and (t.code, t.value) != (74, 0)]
    if entity.dxftype() == "DIMSTYLE" and entity.doc.dxfversion == "AC1009":
        # Files of R12 name the usual arrows without the line in front that their blocks have.
        for name in ("dimblk", "dimblk1", "dimblk2", "dimldrblk"):
            if result.get(name) in R12_ARROWS:
                result[name] = "_" + result[name]
    if entity.dxftype() == "STYLE" and entity.has_extended_font_data:
        result["font"] = plain(entity.get_extended_font_data())
    return result


R12_ARROWS = {"ARCHTICK", "CLOSEDBLANK"}

PRESETS = {"column_count": 1, "lineweight": -3, "row_count": 1, "column_spacing": 0, "row_spacing": 0, "xscale": 1,
           "yscale": 1, "zscale": 1, "text_rotation": 0, "horizontal_direction": 0,
           "oblique_angle": 0, "version": 0, "angle": 0, "insert": [0.0, 0.0, 0.0],
           "line_spacing_style": 1, "line_spacing_factor": 1, "actual_measurement": -1,
           "attachment_point": 5, "defpoint2": [0.0, 0.0, 0.0],
           "defpoint3": [0.0, 0.0, 0.0], "defpoint4": [0.0, 0.0, 0.0],
           "defpoint5": [0.0, 0.0, 0.0], "flip_arrow_1": 0, "flip_arrow_2": 0, "spare": 0, "text": "", "geometry": ""}


def shown(entity):
    return {k: v for k, v in without_presets(values(entity)).items()
            if k not in PRESETS or v != PRESETS[k]}


def content(doc):
    tables = {}
    for table in (doc.layers, doc.linetypes, doc.styles, doc.dimstyles, doc.views, doc.ucs,
                  doc.viewports, doc.appids):
        for record in table:
            for one in record if isinstance(record, list) else [record]:
                # Text styles that stand for shape files have no names.
                name = one.dxf.name or one.dxf.get("font", "")
                tables[f"{one.dxftype()} {name.upper()}"] = shown(one)
    spaces = {}
    for block in doc.blocks:
        # Programs number the blocks of dimensions and sheets as they like.
        spaces[block.name.upper()] = [shown(e) for e in block]
        tables[f"BLOCK {block.name.upper()}"] = plain(
            [block.block.dxf.base_point, block.block.dxf.flags, block.block.dxf.description])
    if doc.dxfversion > "AC1009":
        for name in doc.layout_names():
            tables[f"LAYOUT {name}"] = shown(doc.layout(name).dxf_layout)
        for name, group in doc.groups:
            tables[f"GROUP {name}"] = dict(shown(group), members=len(list(group)))
        for kind in ("materials", "mline_styles", "mleader_styles"):
            tables[kind] = sorted(name for name, _ in getattr(doc, kind))
        images = doc.rootdict.get("ACAD_IMAGE_DICT")
        if images is not None:
            for name, definition in images.items():
                tables[f"IMAGEDEF {name}"] = shown(definition)
    return {"tables": tables, "spaces": spaces}


HANDLES = {"owner", "handle", "block_record_handle", "viewport_handle", "image_def_handle",
           "clipping_boundary_handle", "dimblk_handle", "dimblk1_handle", "dimblk2_handle",
           "dimldrblk_handle", "dimtxsty_handle", "dimltype_handle", "dimltex1_handle",
           "dimltex2_handle", "material_handle", "plotstyle_handle", "sources"}


def without_handles(tree):
    if isinstance(tree, dict):
        return {k: without_handles(v) for k, v in tree.items() if k not in HANDLES}
    if isinstance(tree, list):
        return [without_handles(v) for v in tree]
    return tree


def compare(a, b):
    first, second = ezdxf.readfile(a), audited(b)
    left, right = content(first), content(second)
    plainer = first.dxfversion == "AC1009"
    if plainer:
        left, right = without_handles(left), without_handles(right)
    for part in ("tables", "spaces"):
        for name, one in left[part].items():
            two = right[part].get(name)
            # A drawing of today has what old ones lack.
            if two is None and not (plainer and name.startswith(("VPORT", "APPID"))):
                print(f"{name} is missing")
            elif part == "tables":
                tell(name, one, two)
            else:
                if len(one) != len(two):
                    print(f"{name}: {len(one)} entities became {len(two)}")
                for x, y in zip(one, two):
                    tell(f"{name} {x['type']}", x, y)


def tell(name, one, two):
    if not isinstance(one, dict):
        if one != two:
            print(f"{name}: {one} became {two}")
        return
    for key in sorted(set(one) | set(two)):
        if one.get(key) != two.get(key):
            print(f"{name}.{key}: {one.get(key)} became {two.get(key)}")


def show(path):
    print(json.dumps(content(audited(path))))


if __name__ == "__main__":
    {"make": make, "compare": compare, "audit": audited, "show": show}[sys.argv[1]](*sys.argv[2:])
