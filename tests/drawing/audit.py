"""Reads drawings with ezdxf and says what is in them.

audit.py audit FILE        audits FILE and prints every entity's values as JSON
audit.py make VERSION FILE writes a drawing with much in it
audit.py compare A B       compares two drawings object by object, tag by tag
"""

import json
import math
import sys

import ezdxf
from ezdxf.lldxf.encoding import decode_dxf_unicode

# Names and counts that every program writes anew.
VOLATILE = {"$ACADMAINTVER", "$HANDSEED", "$TDUPDATE"}
# What holds without being written, or what the version of the file in truth does not have.
LEFT_OUT = {("POLYLINE", 70, 0.0), ("DIMSTYLE", 90, 2.0)}
SPELT_OUT = {
    ("MTEXT", 41, 0.0), ("MTEXT", 44, 1.0), ("MTEXT", 7, "Standard"), ("MTEXT", 72, 1.0),
    ("MTEXT", 73, 1.0), ("VERTEX", 40, 0.0), ("VERTEX", 41, 0.0),
}


def audit(path):
    doc = ezdxf.readfile(path)
    auditor = doc.audit()
    result = {
        "version": doc.dxfversion,
        "problems": [f"{e.code}: {e.message}" for e in auditor.errors + auditor.fixes],
        "entities": [],
        "layers": {},
        "linetypes": {},
        "styles": {},
        "header": {},
    }
    for space, layout in (("model", doc.modelspace()), ("paper", doc.layout("Layout1"))):
        for e in layout:
            values = {"type": e.dxftype(), "space": space}
            for name, value in e.dxfattribs().items():
                values[name] = list(value) if hasattr(value, "xyz") else value
            if "text" in values:
                values["text"] = decode_dxf_unicode(values["text"])
            if e.dxftype() == "LWPOLYLINE":
                values["points"] = [list(p) for p in e.get_points("xyseb")]
            result["entities"].append(values)
    for layer in doc.layers:
        result["layers"][layer.dxf.name] = {
            "color": layer.dxf.color,
            "rgb": layer.dxf.true_color if layer.dxf.hasattr("true_color") else None,
            "linetype": layer.dxf.linetype,
            "lineweight": layer.dxf.lineweight,
            "plot": layer.dxf.plot,
            "frozen": layer.is_frozen(),
            "off": layer.is_off(),
            "locked": layer.is_locked(),
        }
    for linetype in doc.linetypes:
        result["linetypes"][linetype.dxf.name] = {
            "description": linetype.dxf.description,
            "tags": [[t.code, t.value] for t in linetype.pattern_tags.tags],
        }
    for style in doc.styles:
        values = dict(style.dxfattribs())
        if style.has_xdata("ACAD"):
            values["extended"] = [v for c, v in style.get_xdata("ACAD") if c in (1000, 1071)]
        result["styles"][style.dxf.name] = values
    for name in ("$INSUNITS", "$CLAYER", "$CELTYPE", "$CECOLOR", "$CELTSCALE", "$CELWEIGHT",
                 "$TEXTSTYLE", "$TEXTSIZE", "$DIMSTYLE", "$LTSCALE", "$LUNITS", "$PDMODE"):
        result["header"][name] = doc.header[name]
    print(json.dumps(result))


def make(version, path):
    doc = ezdxf.new(version, setup=True)
    doc.layers.add("Wände", color=3, linetype="DASHED", lineweight=35)
    doc.header["$CLAYER"] = "Wände"
    doc.appids.add("DRAFTON_TEST")
    msp = doc.modelspace()
    line = msp.add_line((1.1, 2.2, 3.3), (4, 5, 6), dxfattribs={"layer": "Wände", "color": 1})
    line.set_xdata("DRAFTON_TEST", [(1000, "kept"), (1040, 0.1), (1070, 7)])
    line.new_extension_dict().add_dictionary_var("NOTE", "text in an extension dictionary")
    line.set_reactors(["FF"])
    msp.add_circle((10, 20), 2.5, dxfattribs={"extrusion": (0, 0, -1), "thickness": 4})
    msp.add_arc((0.3, 0.7), 1.7, 33.3, 271.123456789, dxfattribs={"ltscale": 0.25})
    poly = msp.add_lwpolyline([(0, 0, 0.1, 0.2, 1), (5, 0, 0, 0, -0.41421356), (5, 5, 0, 0, 0)])
    poly.closed = True
    text = msp.add_text("Größe %%c \U0001F4D0" if version >= "R2007" else "Größe %%c",
                        dxfattribs={"height": 3.5, "rotation": 12.34, "style": "OpenSans"})
    text.set_placement((7, 8), align=ezdxf.enums.TextEntityAlignment.MIDDLE_CENTER)
    msp.add_text("A\\U+0416B")
    msp.add_mtext("{\\fArial|b0;Two}\\Plines", dxfattribs={"char_height": 2.5})
    msp.add_ellipse((3, 3), (2, 1), 0.4)
    msp.add_spline([(0, 0), (1, 2), (3, 1), (4, 4)])
    msp.add_point((9, 9, 9))
    msp.add_solid([(0, 0), (1, 0), (0, 1), (1, 1)])
    hatch = msp.add_hatch(color=2)
    hatch.paths.add_polyline_path([(0, 0), (10, 0), (10, 10)], is_closed=True)
    msp.add_polyline2d([(0, 0), (1, 1), (2, 0)])
    msp.add_polyline3d([(0, 0, 0), (1, 1, 1), (2, 0, 5)])
    block = doc.blocks.new("DOOR", base_point=(1, 2))
    block.add_line((0, 0), (1, 0))
    block.add_attdef("NUMBER", (0, 0), "0")
    insert = msp.add_blockref("DOOR", (3, 3), dxfattribs={"xscale": 2, "rotation": 30})
    insert.add_auto_attribs({"NUMBER": "12"})
    msp.add_linear_dim(base=(0, 3), p1=(0, 0), p2=(7, 0)).render()
    doc.layout("Layout1").add_line((0, 0), (297, 210))
    doc.layouts.new("Second").add_circle((1, 1), 1)
    doc.groups.new("PAIR").extend([line, poly])
    doc.saveas(path)


def tags_by_object(path):
    """Sorted tags of every object and header variable, by handle or name."""
    with open(path, encoding="utf8", errors="surrogateescape") as file:
        lines = file.read().split("\n")
    objects, current, key, section = {}, None, None, None
    pairs = [(int(lines[i]), lines[i + 1]) for i in range(0, len(lines) - 1, 2)]
    for code, value in pairs:
        if code == 9 and section == "HEADER":
            current, key = [], value
            objects[key] = current
        elif code == 0:
            current, key = [(0, value)], None
            if value == "SECTION":
                section = ""
        elif section == "" and code == 2:
            section, current = value, []
            objects["section " + value] = current
        elif current is not None:
            if code in (5, 105) and key is None:
                key = value.upper()
                objects[key] = current
            # Names of line types are the same in any case.
            current.append((code, comparable(value.upper() if code == 6 else value)))
    return {k: sorted(v, key=str) for k, v in objects.items() if k not in VOLATILE}


def comparable(value):
    try:
        return float(value)
    except ValueError:
        return value


def stands_in(tag, tags):
    """Angles go through radians, which can cost the last bit."""
    code, value = tag
    if not isinstance(value, float) or not 50 <= code <= 58:
        return tag in tags
    return any(c == code and math.isclose(v, value, rel_tol=4e-16) for c, v in tags if c == code)


def compare(a, b):
    first, second = tags_by_object(a), tags_by_object(b)
    for key in sorted(set(first) | set(second)):
        left, right = first.get(key), second.get(key)
        if left is None or right is None:
            print(f"{key}: only in {'the second' if left is None else 'the first'}")
            continue
        lost = [t for t in left if not stands_in(t, right)]
        added = [t for t in right if not stands_in(t, left)]
        # Presets may be spelt out or left out.
        kind = left[0][1] if left else ""
        lost = [t for t in lost if (kind, *t) not in LEFT_OUT]
        added = [t for t in added if t not in ((67, 1.0), (73, 0.0)) and (kind, *t) not in SPELT_OUT]
        if (0, "TABLE") in left:
            # The count of records is written anew.
            lost, added = ([t for t in tags if t[0] != 70] for tags in (lost, added))
        if lost or added:
            print(f"{key} {left[0]}: lost {lost} added {added}")


if __name__ == "__main__":
    {"audit": audit, "make": make, "compare": compare}[sys.argv[1]](*sys.argv[2:])
