"""Runs inside of FreeCAD: draws, or tells what it sees in drawings. What to do stands in JOB:

{"write": [[FILE, VERSION], ...]}          its own drawing; 12 or 14 are the versions that it has
{"read": [FILE, ...], "answer": FILE}      writes what is in each of them as JSON
"""

import json
import os

import FreeCAD
import Import
import Part
from FreeCAD import Vector


def shapes():
    spline = Part.BSplineCurve()
    spline.interpolate([Vector(0, 40), Vector(5, 45), Vector(10, 40), Vector(15, 48)])
    corners = [Vector(0, 20), Vector(10, 20), Vector(10, 30), Vector(0, 20)]
    return [
        Part.makeLine(Vector(0, 0, 0), Vector(10, 5, 0)),
        Part.makeLine(Vector(0, 0, 1), Vector(10, 5, 7)),
        Part.Wire([Part.makeCircle(3, Vector(20, 5, 0))]),
        Part.makeCircle(4, Vector(30, 5, 0), Vector(0, 0, 1), 30, 200),
        Part.makeCircle(4, Vector(40, 5, 0), Vector(0, 0, -1), 30, 200),
        Part.Ellipse(Vector(50, 5, 0), 5, 2).toShape(),
        Part.makePolygon(corners),
        Part.Wire(Part.makePlane(10, 6, Vector(20, 20, 0)).Edges),
        Part.Vertex(Vector(70, 5, 0)),
        spline.toShape(),
        Part.makeBox(5, 6, 7, Vector(80, 0, 0)),
        Part.makeCylinder(3, 8, Vector(95, 5, 0)),
    ]


def write(files):
    doc = FreeCAD.newDocument("drawn")
    objects = []
    for i, shape in enumerate(shapes()):
        objects.append(doc.addObject("Part::Feature", "Shape%d" % i))
        objects[-1].Shape = shape
    doc.recompute()
    for path, version in files:
        Import.writeDXFObject(objects, path, version, True)


def seen(path):
    """How many edges of each kind, and each with its length and its box."""
    doc = FreeCAD.newDocument("read")
    Import.readDXF(path, doc.Name)
    edges, others = [], []
    for thing in doc.Objects:
        shape = getattr(thing, "Shape", None)
        if shape is None or shape.isNull():
            # What a text says is no help: code pages are not understood here.
            place = getattr(thing, "Position", Vector())
            others.append([thing.TypeId, list(place)])
            continue
        for vertex in shape.Vertexes if not shape.Edges else []:
            edges.append(["Vertex", 0, [vertex.X, vertex.Y, vertex.Z]])
        for edge in shape.Edges:
            box = edge.BoundBox
            edges.append([type(edge.Curve).__name__, edge.Length,
                          [box.XMin, box.YMin, box.ZMin, box.XMax, box.YMax, box.ZMax]])
    FreeCAD.closeDocument(doc.Name)
    return {"edges": edges, "others": others}


with open(os.environ["JOB"], encoding="utf8") as file:
    job = json.load(file)
# Texts and points come in only if they are asked for.
options = FreeCAD.ParamGet("User parameter:BaseApp/Preferences/Mod/Draft")
for option in ("dxftext", "dxfImportPoints"):
    options.SetBool(option, True)
write(job.get("write", []))
if "read" in job:
    with open(job["answer"], "w", encoding="utf8") as file:
        json.dump({path: seen(path) for path in job["read"]}, file)
