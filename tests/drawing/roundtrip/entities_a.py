"""Curves, texts, attributes and leaders with every field off its preset.

entities_a.py make VERSION FILE   writes a drawing that has them
entities_a.py compare A B         audits B and tells every value that is not as in A
entities_a.py show FILE           audits FILE and prints what is in its model space as JSON
"""

import json
import math
import sys

import ezdxf
from ezdxf.entities import factory

COMMON = {"layer": "Curves", "color": 3, "linetype": "DASHED", "ltscale": 0.5, "lineweight": 50}
NORMALS = {"up": (0, 0, 1), "down": (0, 0, -1), "askew": (0.36, 0.48, 0.8)}
# What programs write anew, or what says nothing.
IGNORED = {"handle", "owner", "graphic_properties"}


def make_flat(msp, version):
    for normal in NORMALS.values():
        at = dict(COMMON, extrusion=normal, thickness=2.5)
        msp.add_line((1.1, 2.2, 3.3), (4, 5, 6), dxfattribs=at)
        msp.add_circle((10, 20, 1.5), 2.5, dxfattribs=at)
        msp.add_arc((0.3, 0.7, -1), 1.7, 33.3, 271.123456789, dxfattribs=at)
        msp.add_point((9, 8, 7), dxfattribs=dict(at, angle=12.5))
        msp.add_solid([(0, 0, 2), (5, 0, 2), (0, 4, 2), (5, 3, 2)], dxfattribs=at)
        msp.add_trace([(0, 0), (5, 0), (0, 4), (5, 4)], dxfattribs=at)
        if version != "R12":
            msp.add_ellipse((3, 3, 1), axis(normal, 2), 0.4, 0.25, 4.5,
                            dxfattribs=dict(COMMON, extrusion=normal))
            light = msp.add_lwpolyline(
                [(0, 0, 0.1, 0.2, 1), (5, 0, 0, 0, -0.41421356), (5, 5, 0.3, 0.3, 0)],
                dxfattribs=dict(at, elevation=4.25, flags=128))
            light.closed = True
    msp.add_solid([(0, 0), (1, 0), (0, 1)])
    msp.add_3dface([(0, 0, 1), (5, 0, 2), (5, 4, 3), (0, 4, 4)], dxfattribs=dict(
        COMMON, invisible=5))
    msp.add_3dface([(0, 0, 1), (5, 0, 2), (5, 4, 3)])
    if version != "R12":
        msp.add_xline((1, 2, 3), (0.36, 0.48, 0.8), dxfattribs=COMMON)
        msp.add_ray((1, 2, 3), (0, -1, 0), dxfattribs=COMMON)
    if version != "R12":
        msp.add_ellipse((0, 0), (4, 0), 1.0)
        msp.add_lwpolyline([(0, 0), (7, 1)], dxfattribs={"const_width": 0.75})


def axis(normal, length):
    """An axis that stands on a normal."""
    x, y, z = normal
    size = math.hypot(x, y)
    return (-y / size * length, x / size * length, 0) if size else (length, 0, 0)


def make_splines(msp):
    points = [(0, 0, 0), (1, 2, 1), (3, 1, -1), (4, 4, 0), (6, 5, 2)]
    spline = msp.add_open_spline(points, degree=3, dxfattribs=COMMON)
    spline.dxf.knot_tolerance = 1e-9
    spline.dxf.control_point_tolerance = 1e-8
    spline.dxf.fit_tolerance = 1e-6
    msp.add_rational_spline([(0, 0, 0), (1, 2, 0), (3, 1, 0), (4, 4, 0)], [1, 2, 0.5, 1], degree=2)
    closed = msp.add_spline()
    closed.set_closed([(0, 0, 0), (1, 2, 0), (3, 1, 0), (4, 4, 0)], degree=3)
    fit = msp.add_spline(points)
    fit.dxf.start_tangent = (1, 0, 0)
    fit.dxf.end_tangent = (0, 1, 0)


def make_polylines(msp, version):
    flat = msp.add_polyline2d([(0, 0, 0.1, 0.4, 0.5), (6, 0, 0, 0, -0.25), (6, 4, 0.2, 0.2, 0)],
                              format="xyseb", dxfattribs=dict(COMMON, extrusion=(0, 0, -1),
                                                              thickness=1.5, elevation=(0, 0, 2.5)))
    flat.closed = True
    flat.dxf.default_start_width = 0.05
    flat.dxf.default_end_width = 0.06
    fitted = msp.add_polyline2d([(0, 0), (1, 1), (2, 0), (3, 3)])
    fitted.dxf.flags |= 4
    fitted.dxf.smooth_type = 5
    for vertex, flags in zip(fitted.vertices, (16, 8, 8, 16)):
        vertex.dxf.flags = flags
    curved = msp.add_polyline2d([(0, 0), (1, 1), (2, 0)])
    curved.dxf.flags |= 2
    curved.vertices[1].dxf.flags = 2
    curved.vertices[1].dxf.tangent = 33.25
    curved.vertices[1].dxf.layer = "0"
    curved.vertices[2].set_xdata("ACAD", [(1000, "kept with a vertex")])
    space = msp.add_polyline3d([(0, 0, 0), (1, 1, 1), (2, 0, 5)], dxfattribs=COMMON)
    space.close(True)
    mesh = msp.add_polymesh((3, 4), dxfattribs=COMMON)
    for m in range(3):
        for n in range(4):
            mesh.set_mesh_vertex((m, n), (m, n, m * n))
    mesh.n_close(True)
    faces = msp.add_polyface(dxfattribs=COMMON)
    faces.append_faces([[(0, 0, 0), (1, 0, 0), (1, 1, 0), (0, 1, 0)],
                        [(0, 0, 0), (1, 0, 0), (1, 0, 2)]])


def make_texts(doc, msp, version):
    style = doc.styles.add("Notes", font="arial.ttf")
    style.dxf.width = 0.8
    aligns = ezdxf.enums.TextEntityAlignment
    for i, align in enumerate(aligns):
        text = msp.add_text(f"%%uRow {i}%%u %%c40 Größe", dxfattribs=dict(
            COMMON, style="Notes", height=2.5, rotation=12.5, oblique=10, width=0.75,
            thickness=0.5, text_generation_flag=2 * (i % 3), extrusion=(0, 0, (-1) ** i)))
        text.set_placement((i, 2 * i, 3), (i + 5, 2 * i + 1, 3), align=align)
    if version == "R12":
        return
    long = "".join(f"{{\\fArial|b1|i0|c0|p34;\\H1.5x;Wort {i}}}\\P" for i in range(40))
    for attachment in range(1, 10):
        msp.add_mtext(long if attachment == 5 else "Zwei\\PZeilen ^I\\S1/2;", dxfattribs=dict(
            COMMON, insert=(attachment, 2, 3), char_height=2.5, width=40, attachment_point=attachment,
            flow_direction=5, style="Notes", line_spacing_style=2, line_spacing_factor=1.25,
            rotation=7.5 * attachment))
    turned = msp.add_mtext("Turned", dxfattribs={"text_direction": (0.6, 0.8, 0), "char_height": 2,
                                                 "extrusion": (0, 0, 1)})
    if version >= "R2004":
        turned.set_bg_color(2, scale=1.75)
        msp.add_mtext("On red").set_bg_color((255, 0, 0), scale=2)
        msp.add_mtext("Ground").set_bg_color("canvas", scale=1.25)
    if version >= "R2018":
        msp.add_mtext_static_columns(["First", "Second", "Third"], width=20, gutter_width=2.5,
                                     height=30, dxfattribs={"insert": (5, 6), "char_height": 2})


def make_attributes(doc, msp, version):
    block = doc.blocks.new("DOOR")
    block.add_line((0, 0), (1, 0))
    block.add_attdef("NUMBER", (1, 2), "0", dxfattribs=dict(
        COMMON, prompt="Which number?", height=1.5, flags=4 + 8, style="Notes", field_length=7))
    block.add_attdef("HIDDEN", (1, 3), "x", dxfattribs={"flags": 1}).set_placement(
        (4, 4), align=ezdxf.enums.TextEntityAlignment.TOP_RIGHT)
    insert = msp.add_blockref("DOOR", (3, 3), dxfattribs={"xscale": 2, "rotation": 30})
    insert.add_auto_attribs({"NUMBER": "12", "HIDDEN": "y"})
    if version >= "R2010":
        insert.attribs[0].dxf.lock_position = 1
    if version >= "R2018":
        several = insert.add_attrib("SEVERAL", "", (5, 5))
        several.set_mtext(msp.add_mtext("One\\P{\\C1;Two}", dxfattribs={
            "char_height": 1.25, "insert": (5, 5, 1), "attachment_point": 4, "width": 12}))


def make_leaders(doc, msp):
    note = msp.add_mtext("Note", dxfattribs={"insert": (12, 11)})
    leader = msp.add_leader([(0, 0, 1), (5, 5, 1), (10, 10, 1)], override={"dimasz": 3.5},
                            dxfattribs=COMMON)
    leader.dxf.annotation_handle = note.dxf.handle
    leader.dxf.annotation_type = 0
    leader.dxf.has_hookline = 1
    leader.dxf.hookline_direction = 1
    leader.dxf.text_height = 2.5
    leader.dxf.text_width = 12.5
    leader.dxf.leader_offset_block_ref = (1, 2, 3)
    leader.dxf.leader_offset_annotation_placement = (4, 5, 6)
    leader.dxf.horizontal_direction = (0.6, 0.8, 0)
    leader.dxf.normal_vector = (0, 0, 1)
    bent = msp.add_leader([(0, 0), (5, 5), (10, 0)])
    bent.dxf.path_type = 1
    bent.dxf.has_arrowhead = 0
    bent.dxf.annotation_type = 3


def make(version, path):
    doc = ezdxf.new(version, setup=True)
    doc.layers.add("Curves", color=5)
    msp = doc.modelspace()
    make_flat(msp, version)
    make_polylines(msp, version)
    make_texts(doc, msp, version)
    make_attributes(doc, msp, version)
    if version != "R12":
        make_splines(msp)
        make_leaders(doc, msp)
    doc.saveas(path)


def plain(value):
    if hasattr(value, "xyz"):
        return [plain(v) for v in value.xyz]
    if isinstance(value, float):
        return float(f"{value:.12g}") + 0.0
    if isinstance(value, (list, tuple)) or hasattr(value, "tolist"):
        return [plain(v) for v in value]
    return value


def values(entity):
    result = {"type": entity.dxftype()}
    for name, value in entity.dxfattribs().items():
        if name not in IGNORED:
            # Names of line types are the same in any case.
            result[name] = value.upper() if name == "linetype" else plain(value)
    kind = entity.dxftype()
    if kind == "LWPOLYLINE":
        result["points"] = [plain(p) for p in entity.get_points("xyseb")]
    if kind == "SPLINE":
        for name in ("control_points", "fit_points", "knots", "weights"):
            result[name] = plain(list(getattr(entity, name)))
    if kind == "MTEXT":
        result["text"] = entity.text
        if entity.has_columns:
            columns = entity.columns
            result["columns"] = plain([int(columns.column_type), columns.count, columns.width,
                                       columns.gutter_width, columns.defined_height,
                                       columns.total_width, columns.total_height,
                                       list(columns.heights)])
    if kind == "LEADER":
        result["vertices"] = plain(list(entity.vertices))
    if kind in ("ATTRIB", "ATTDEF") and entity.has_embedded_mtext_entity:
        result["mtext"] = values(entity.virtual_mtext_entity())
    if kind == "POLYLINE":
        result["vertices"] = [dict(values(v), handle=v.dxf.handle) for v in entity.vertices]
    if kind == "INSERT":
        result["attribs"] = [values(a) for a in entity.attribs]
    if entity.has_xdata("ACAD"):
        result["xdata"] = [plain(t.value) for t in entity.get_xdata("ACAD")]
    result.pop("annotation_handle", None)
    return result


# Values that say the same as their absence.
PRESETS = {"color": 256, "linetype": "BYLAYER", "ltscale": 1.0, "lineweight": -1, "invisible": 0,
           "thickness": 0.0, "extrusion": [0.0, 0.0, 1.0], "rotation": 0.0, "oblique": 0.0,
           "width": 1.0, "text_generation_flag": 0, "halign": 0, "valign": 0, "style": "Standard",
           "angle": 0.0, "elevation": 0.0, "const_width": 0.0, "bulge": 0.0, "start_width": 0.0,
           "end_width": 0.0, "flags": 0, "tangent": 0.0, "attribs_follow": 1, "field_length": 0,
           "lock_position": 0, "version": 0, "default_start_width": 0.0, "default_end_width": 0.0,
           "flow_direction": 1, "line_spacing_style": 1, "line_spacing_factor": 1.0,
           "bg_fill": 0, "annotation_type": 3, "attribute_type": 1, "m_count": 0, "n_count": 0,
           "m_smooth_density": 0, "n_smooth_density": 0, "smooth_type": 0, "defined_height": 0.0,
           "leader_offset_block_ref": [0.0, 0.0, 0.0],
           "leader_offset_annotation_placement": [0.0, 0.0, 0.0],
           "normal_vector": [0.0, 0.0, 1.0], "horizontal_direction": [1.0, 0.0, 0.0]}


def without_presets(tree):
    if isinstance(tree, dict):
        return {k: without_presets(v) for k, v in tree.items()
                if k not in PRESETS or v != PRESETS[k]}
    if isinstance(tree, list):
        return [without_presets(v) for v in tree]
    return tree


def content(doc):
    entities = [without_presets(values(e)) for e in doc.modelspace()]
    for block in doc.blocks:
        if not block.is_any_layout:
            entities += [without_presets(values(e)) for e in block]
    return entities


def audited(path):
    doc = ezdxf.readfile(path)
    auditor = doc.audit()
    for problem in auditor.errors + auditor.fixes:
        print(f"audit: {problem.code}: {problem.message}")
    return doc


def compare(a, b):
    first, second = ezdxf.readfile(a), audited(b)
    plainer = first.dxfversion == "AC1009"
    left, right = content(first), content(second)
    if len(left) != len(right):
        print(f"{len(left)} entities became {len(right)}")
    for one, two in zip(left, right):
        if plainer:
            # Old files have no handles that stay.
            for vertex in one.get("vertices", []) + two.get("vertices", []):
                if isinstance(vertex, dict):
                    vertex.pop("handle", None)
        for key in sorted(set(one) | set(two)):
            if one.get(key) != two.get(key):
                print(f"{one['type']}.{key}: {one.get(key)} became {two.get(key)}")


def show(path):
    print(json.dumps(content(audited(path))))


if __name__ == "__main__":
    {"make": make, "compare": compare, "show": show}[sys.argv[1]](*sys.argv[2:])
