"""Says as JSON what ezdxf finds in the hatches of a drawing, and whether it has complaints."""

import json
import sys

import ezdxf
import ezdxf.path


def area(points):
    return abs(sum(a.x * b.y - b.x * a.y for a, b in zip(points, points[1:] + points[:1]))) / 2


def loop_area(boundary):
    path = ezdxf.path.from_hatch_boundary_path(boundary)
    return area(list(path.flattening(1e-4, segments=64)))


def describe(hatch):
    result = {
        "pattern": hatch.dxf.pattern_name,
        "solid": hatch.dxf.solid_fill,
        "style": hatch.dxf.hatch_style,
        "associative": hatch.dxf.associative,
        "type": hatch.dxf.pattern_type,
        "areas": [loop_area(b) for b in hatch.paths],
        "flags": [b.path_type_flags for b in hatch.paths],
        "sources": [len(b.source_boundary_objects) for b in hatch.paths],
        "seeds": [[p[0], p[1]] for p in hatch.seeds],
        "lines": [
            {
  "angle" : line.angle, "offset" : list(line.offset), "dashes" : list(line.dash_length_items)}
            for line in (hatch.pattern.lines if hatch.pattern else [])
        ],
    }
    if not hatch.dxf.solid_fill:
        result["angle"] = hatch.dxf.pattern_angle
        result["scale"] = hatch.dxf.pattern_scale
    if hatch.has_gradient_data:
        result["gradient"] = [hatch.gradient.name, hatch.gradient.rotation, hatch.gradient.centered]
    return result


doc = ezdxf.readfile(sys.argv[1])
auditor = doc.audit()
print(
    json.dumps(
        {
            "problems": [f"{e.code}: {e.message}" for e in auditor.errors + auditor.fixes],
            "hatches": [describe(h) for h in doc.modelspace().query("HATCH")],
        }
    )
)
