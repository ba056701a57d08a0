"""Prints the model space of a DXF file as JSON, after an audit. Fails if the audit finds errors."""

import json
import sys

import ezdxf


def describe(entity):
    row = {"type": entity.dxftype(), "layer": entity.dxf.layer, "color": entity.dxf.color}
    for name in ("start", "end", "center", "insert"):
        if entity.dxf.hasattr(name):
            row[name] = [round(c, 6) for c in entity.dxf.get(name)]
    for name in ("radius", "text", "height", "name", "xscale", "rotation", "pattern_name",
                 "pattern_scale", "lineweight", "linetype", "ltscale", "true_color"):
        if entity.dxf.hasattr(name):
            row[name] = entity.dxf.get(name)
    if entity.dxf.hasattr("transparency"):
        row["transparency"] = round(entity.transparency * 100)
    if entity.dxftype() == "LWPOLYLINE":
        row["points"] = [[round(c, 6) for c in p[:2]] for p in entity.get_points()]
        row["closed"] = bool(entity.closed)
    return row


def main():
    document = ezdxf.readfile(sys.argv[1])
    auditor = document.audit()
    if auditor.errors:
        sys.exit("\n".join(e.message for e in auditor.errors))
    print(json.dumps([describe(e) for e in document.modelspace()]))


if __name__ == "__main__":
    main()
