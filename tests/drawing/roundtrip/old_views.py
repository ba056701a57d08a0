"""Views of windows on a sheet in a file of R12, which has them in extended data.

old_views.py make FILE       writes a drawing that has them
old_views.py compare FILE    audits FILE and tells every value that is not as it was made
"""

import sys

import ezdxf

SAME = ("center", "width", "height", "view_center_point", "view_height", "view_target_point",
        "view_direction_vector", "view_twist_angle", "perspective_lens_length", "circle_zoom",
        "front_clip_plane_z_value", "back_clip_plane_z_value", "snap_angle", "snap_base_point",
        "snap_spacing", "grid_spacing")
FLAGS = 0x80 | 0x100 | 0x200 | 0x400 | 0x800


def made():
    doc = ezdxf.new("R12")
    for name in ("WALLS", "Türen"):
        doc.layers.add(name)
    doc.modelspace().add_line((0, 0), (100, 50))
    sheet = doc.layout()
    sheet.add_viewport((105, 80), (200, 150), (50, 25), 60)
    view = sheet.add_viewport((305, 80), (20, 15), (5, -2.5), 6.25)
    view.frozen_layers = ["WALLS", "Türen"]
    dxf = view.dxf
    dxf.view_target_point, dxf.view_direction_vector = (1, 2, 3), (0, -1, 1)
    dxf.view_twist_angle, dxf.snap_angle = 33.5, 12.25
    dxf.perspective_lens_length, dxf.circle_zoom = 35, 500
    dxf.front_clip_plane_z_value, dxf.back_clip_plane_z_value = 7, -8
    dxf.snap_base_point, dxf.snap_spacing, dxf.grid_spacing = (1, 2), (3, 4), (5, 6)
    dxf.flags = FLAGS
    return doc


def make(path):
    made().saveas(path)


def views(doc):
    # A sheet itself has the number 1.
    return [v for v in doc.layout().query("VIEWPORT") if v.dxf.id != 1]


def layers(doc, view):
    names = [doc.entitydb[n].dxf.name if n in doc.entitydb else n for n in view.frozen_layers]
    return sorted(names)


def compare(path):
    # The old data is only put into a file, not taken from it.
    first, second = made(), ezdxf.readfile(path)
    for problem in second.audit().errors:
        print(f"audit: {problem.message}")
    left, right = views(first), views(second)
    if len(left) != 2 or len(right) != 2:
        print(len(left), "views became", len(right))
    for one, two in zip(left, right):
        for name in SAME:
            if getattr(one.dxf, name) != getattr(two.dxf, name):
                print(name, getattr(one.dxf, name), "became", getattr(two.dxf, name))
        if one.dxf.flags & FLAGS != two.dxf.flags & FLAGS:
            print("flags", one.dxf.flags, "became", two.dxf.flags)
        if layers(first, one) != layers(second, two):
            print("frozen", layers(first, one), "became", layers(second, two))
        if two.has_xdata("ACAD"):
            print("the old data stayed")


if __name__ == "__main__":
    {"make": make, "compare": compare}[sys.argv[1]](*sys.argv[2:])
