"""Drawings of another program, saved by ours: nothing that they have may be lost.

roundtrip.py RESAVE FOLDER    RESAVE is the program that reads and writes one drawing
"""

import pathlib
import subprocess
import sys

import ezdxf
from ezdxf.lldxf.encoding import decode_dxf_unicode

VERSIONS = ["R2000", "R2004", "R2007", "R2010", "R2013", "R2018"]
# Written anew by every program.
VOLATILE = {"$ACADMAINTVER", "$HANDSEED", "$TDUPDATE", "$TDUUPDATE", "$VERSIONGUID"}
# What holds without being written, and what the version in truth does not have.
MAY_MISS = {("POLYLINE", 70, 0.0), ("DIMSTYLE", 90, 2.0)}
# Attributes of R2018 have their place twice; once is enough.
TOLD_TWICE = {("ATTRIB", 11), ("ATTRIB", 21), ("ATTRIB", 31)}
# What holds without being written, and is.
MAY_COME = {("BLOCK", 67, 1.0), ("ENDBLK", 67, 1.0), ("MTEXT", 7, "STANDARD"), ("MTEXT", 72, 1.0),
            ("MTEXT", 73, 1.0), ("MTEXT", 44, 1.0), ("ATTRIB", 280, 0.0), ("ATTDEF", 280, 0.0)}
# What nobody can know stays tag by tag, in its order.
STRANGERS = {"F001", "F002", "section MYSECTION", "$DRAFTONVAR"}

resave, folder = sys.argv[1], pathlib.Path(sys.argv[2])
problems = []


def check(ok, *what):
    if not ok:
        problems.append(" ".join(str(w) for w in what))


def save(source, target, version=None):
    command = [resave, str(source), str(target)] + ([version] if version else [])
    done = subprocess.run(command, capture_output=True, text=True, check=False)
    check(done.returncode == 0, source.name, "is not saved:", done.stdout, done.stderr)
    check(done.stdout == "", source.name, "is not taken over whole:", done.stdout)


def rich(version):
    """A drawing with much that ours does not know."""
    doc = ezdxf.new(version, setup=True)
    doc.appids.add("DRAFTON_TEST")
    msp = doc.modelspace()
    line = msp.add_line((1.1, 2.2, 3.3), (4, 5, 6), dxfattribs={"color": 1})
    line.set_xdata(
        "DRAFTON_TEST",
        [
            (1000, "kept"), (1002, "{"), (1003, "0"), (1004, b"\x01\xfe\xff"), (1005, "2A"),
            (1002, "}"), (1010, (1.5, 2.5, 3.5)), (1011, (1, 2, 3)), (1040, 0.1), (1041, 2.0),
            (1042, 3.0), (1070, 7), (1071, 70000),
        ],
    )
    line.new_extension_dict().add_dictionary_var("NOTE", "in an extension dictionary")
    line.set_reactors(["FF"])
    msp.add_circle((10, 20), 2.5, dxfattribs={"extrusion": (0, 0, -1), "thickness": 4})
    msp.add_3dface([(0, 0), (1, 0), (1, 1), (0, 1)])
    msp.add_trace([(0, 0), (1, 0), (0, 1), (1, 1)])
    msp.add_ray((0, 0), (1, 0))
    msp.add_xline((0, 0), (1, 1))
    msp.add_mesh().vertices = [(0, 0, 0), (1, 0, 0), (0, 1, 0)]
    msp.add_polymesh((3, 3))
    msp.add_polyface()
    msp.add_polyline2d([(0, 0), (1, 1), (2, 0)])
    msp.add_polyline3d([(0, 0, 0), (1, 1, 1), (2, 0, 5)])
    msp.add_mline([(0, 0), (1, 0), (1, 1)])
    msp.add_mtext("{\\fArial|b0;Two}\\Plines", dxfattribs={"char_height": 2.5})
    msp.add_ellipse((3, 3), (2, 1), 0.4)
    msp.add_spline([(0, 0), (1, 2), (3, 1), (4, 4)])
    hatch = msp.add_hatch(color=2)
    hatch.paths.add_polyline_path([(0, 0), (10, 0), (10, 10)], is_closed=True)
    for kind in ("3DSOLID", "REGION", "BODY", "LIGHT", "TOLERANCE"):
        msp.new_entity(kind, {})
    block = doc.blocks.new("DOOR", base_point=(1, 2))
    block.add_line((0, 0), (1, 0))
    block.add_attdef("NUMBER", (0, 0), "0")
    msp.add_blockref("DOOR", (3, 3), dxfattribs={"xscale": 2}).add_auto_attribs({"NUMBER": "12"})
    msp.add_linear_dim(base=(0, 3), p1=(0, 0), p2=(7, 0)).render()
    record = doc.objects.add_xrecord(doc.rootdict.dxf.handle)
    record.reset([(1, "kept"), (10, (1.0, 2.0, 3.0)), (90, 5), (330, line.dxf.handle)])
    doc.rootdict["DRAFTON_RECORD"] = record
    doc.layouts.new("Second").add_circle((1, 1), 1)
    doc.groups.new("PAIR").extend([line])
    return doc


def with_strangers(path, version):
    """Puts sections, objects, entities and codes into a file that nobody can know."""
    text = path.read_bytes()
    unknown = (
        b"  0\nMYTHING\n  5\nF001\n330\n%s\n100\nAcDbEntity\n  8\n0\n 92\n4\n310\n01020304\n"
        b"100\nAcDbMyThing\n 10\n1.25\n 20\n2\n 30\n3\n  1\n  blanks  \n 70\n     5\n290\n1\n"
        b"1001\nDRAFTON_TEST\n1000\nof a thing\n"
    )
    space = text.index(b"*Model_Space") if b"*Model_Space" in text else text.index(b"*MODEL_SPACE")
    handle = text[:space].split(b"\n  5\n")[-1].split(b"\n")[0]
    text = text.replace(b"  2\nENTITIES\n", b"  2\nENTITIES\n" + unknown % handle, 1)
    text = text.replace(b"100\nAcDbLine\n", b"100\nAcDbLine\n  3\nstrange\n", 1)
    own = b"  0\nMYOBJECT\n  5\nF002\n102\n{MYGROUP\n 70\n1\n102\n}\n330\nC\n100\nMyObject\n  1\nx\n"
    at = text.index(b"  2\nOBJECTS\n")
    end = text.index(b"  0\nENDSEC\n", at)
    text = text[:end] + own + text[end:]
    section = b"  0\nSECTION\n  2\nMYSECTION\n  0\nROW\n  1\nvalue\n  0\nENDSEC\n"
    text = text.replace(b"  0\nEOF\n", section + b"  0\nEOF\n")
    text = text.replace(b"  9\n$CLAYER\n", b"  9\n$DRAFTONVAR\n 40\n1.5\n  9\n$CLAYER\n", 1)
    path.write_bytes(text)


def comparable(code, value):
    if code in (6, 7, 8, 2, 3, 330, 5):
        return value.strip().upper() if code != 3 else value
    try:
        return float(value)
    except ValueError:
        return value


def objects_of(path):
    """The tags of each object, variable and section by its handle or name."""
    encoding = "utf8" if ezdxf.readfile(path).dxfversion >= "AC1021" else "cp1252"
    lines = path.read_bytes().decode(encoding).replace("\r\n", "\n").split("\n")
    found, current, key, section = {}, [], None, None
    for i in range(0, len(lines) - 1, 2):
        code, value = int(lines[i]), lines[i + 1]
        if code == 9 and section == "HEADER":
            current = found.setdefault(value, [])
        elif code == 0:
            current, key = [(0, value)], None
            if value == "SECTION":
                section = ""
        elif section == "" and code == 2:
            section, current = value, []
            found["section " + value] = current
        else:
            if code in (5, 105) and key is None and section != "HEADER":
                key = value
                found[key] = current
            current.append((code, comparable(code, value)))
    return {k: v for k, v in found.items() if k not in VOLATILE}


def compare(name, before, after):
    for key, tags in before.items():
        if key not in after:
            check(False, name, key, tags[:1], "is lost")
            continue
        if key in STRANGERS:
            check(after[key] == tags, name, key, "became", after[key], "and was", tags)
        rest = list(after[key])
        for tag in tags:
            if tag in rest:
                rest.remove(tag)
            elif (tags[0][1], *tag) not in MAY_MISS and " @ " not in str(tag[1]):
                check((tags[0][1], tag[0]) in TOLD_TWICE and tag in after[key],
                      name, key, tags[:1], "lost", tag)
        for tag in rest:
            check((tags[0][1], *tag) in MAY_COME or " @ " in str(tag[1]),
                  name, key, tags[:1], "got", tag)


def audit(name, path):
    auditor = ezdxf.readfile(path).audit()
    for e in auditor.errors + auditor.fixes:
        check(False, name, "audit:", e.code, e.message)


def same_version():
    for version in VERSIONS:
        before, after = folder / f"{version}.dxf", folder / f"{version}.saved.dxf"
        rich(version).saveas(before)
        with_strangers(before, version)
        save(before, after)
        compare(version, objects_of(before), objects_of(after))
        audit(version, after)


def other_versions():
    source = folder / "R2018.dxf"
    rich("R2018").saveas(source)
    for version in VERSIONS:
        target = folder / f"R2018-{version}.dxf"
        number = ezdxf.new(version).dxfversion
        save(source, target, number)
        check(ezdxf.readfile(target).dxfversion == number, target.name, "has another version")
        audit(target.name, target)
        kinds = sorted(e.dxftype() for e in ezdxf.readfile(target).modelspace())
        wanted = sorted(e.dxftype() for e in ezdxf.readfile(source).modelspace())
        check(kinds == wanted, target.name, "has", kinds, "instead of", wanted)


def columns():
    """What a text in columns says is the same in every version."""
    doc = ezdxf.new("R2018")
    msp = doc.modelspace()
    texts = ["First ", "Second ", "Third"]
    msp.add_mtext_static_columns(texts, width=20, gutter_width=2.5, height=30)
    msp.add_mtext_dynamic_auto_height_columns("".join(texts), width=20, gutter_width=2.5, height=30,
                                              count=3)
    msp.add_mtext_dynamic_manual_height_columns("".join(texts), width=20, gutter_width=2.5,
                                                heights=[10, 12.5, 30])
    source = folder / "columns.dxf"
    doc.saveas(source)

    def told(path):
        return [(t.all_columns_raw_content(), int(c.column_type), c.count, c.auto_height,
                 c.reversed_column_flow, c.defined_height, c.width, c.gutter_width, c.total_width,
                 c.total_height, list(c.heights))
                for t in ezdxf.readfile(path).modelspace() for c in [t.columns]]

    wanted = told(source)
    check(len(wanted) == 3 and wanted[1][2] == 3, "the texts in columns are", wanted)
    for version in VERSIONS:
        target, back = folder / f"columns-{version}.dxf", folder / f"columns-{version}-back.dxf"
        save(source, target, ezdxf.new(version).dxfversion)
        save(target, back, ezdxf.new("R2018").dxfversion)
        for path in (target, back):
            audit(path.name, path)
            check(told(path) == wanted, path.name, "tells", told(path), "instead of", wanted)


def old():
    doc = ezdxf.new("R12", setup=True)
    msp = doc.modelspace()
    doc.layers.add("WALLS", color=3)
    line = msp.add_line((1, 2, 3), (4, 5, 6), dxfattribs={"layer": "WALLS"})
    msp.add_circle((1, 1), 2)
    msp.add_3dface([(0, 0, 1), (1, 0, 2), (1, 1, 3), (0, 1, 4)])
    msp.add_trace([(0, 0), (1, 0), (0, 1), (1, 1)])
    msp.add_solid([(0, 0), (1, 0), (0, 1), (1, 1)])
    msp.add_point((9, 9, 9))
    msp.add_text("old", dxfattribs={"height": 2})
    msp.add_polyline2d([(0, 0), (1, 1), (2, 0)])
    msp.add_polyline3d([(0, 0, 0), (1, 1, 1), (2, 0, 5)])
    block = doc.blocks.new("DOOR")
    block.add_line((0, 0), (1, 0))
    block.add_attdef("NUMBER", (0, 0), "0")
    msp.add_blockref("DOOR", (3, 3)).add_auto_attribs({"NUMBER": "12"})
    source = folder / "R12.dxf"
    doc.saveas(source)
    for version in VERSIONS:
        target = folder / f"R12-{version}.dxf"
        save(source, target, ezdxf.new(version).dxfversion)
        audit(target.name, target)
        read = ezdxf.readfile(target)
        kinds = [e.dxftype() for e in read.modelspace()]
        check(kinds == [e.dxftype() for e in msp], target.name, "has", kinds)
        for e in msp:
            other = read.entitydb.get(e.dxf.handle)
            check(other is not None and other.dxftype() == e.dxftype(), e, "has another handle")
        face = next(e for e in read.modelspace() if e.dxftype() == "3DFACE")
        check(face.dxf.vtx3 == (0, 1, 4), target.name, "3DFACE", face.dxf.vtx3)
        check(read.entitydb[line.dxf.handle].dxf.layer == "WALLS", "layer of the line")
        names = [b.name for b in read.blocks]
        check("DOOR" in names, target.name, "lacks the block, has", names)


def binary():
    for version in ["R12"] + VERSIONS:
        doc = rich(version) if version != "R12" else ezdxf.readfile(folder / "R12.dxf")
        text, bytes_ = folder / "text.dxf", folder / "binary.dxf"
        doc.saveas(text)
        doc.saveas(bytes_, fmt="bin")
        one, two = folder / "text.saved.dxf", folder / "binary.saved.dxf"
        save(text, one)
        save(bytes_, two)
        left, right = objects_of(one), objects_of(two)
        compare("binary " + version, left, right)
        compare("text " + version, right, left)


def code_pages():
    texts = {
        "ANSI_874": "ไทย", "ANSI_932": "日本語", "ANSI_936": "简体中文", "ANSI_949": "한국어",
        "ANSI_950": "繁體中文", "ANSI_1250": "Žluťoučký", "ANSI_1251": "Привет",
        "ANSI_1252": "Größe", "ANSI_1253": "Ελληνικά", "ANSI_1254": "Işık", "ANSI_1255": "שלום",
        "ANSI_1256": "مرحبا", "ANSI_1257": "Āžuols", "ANSI_1258": "Đường",
    }
    for page, words in texts.items():
        doc = ezdxf.new("R2000")
        doc.header["$DWGCODEPAGE"] = page
        doc.encoding = "cp" + page[5:] if page != "ANSI_936" else "gbk"
        doc.layers.add(words)
        doc.modelspace().add_text(words + " \u2603", dxfattribs={"layer": words})
        source = folder / f"{page}.dxf"
        doc.saveas(source)
        for version in ("AC1015", "AC1032"):
            target = folder / f"{page}-{version}.dxf"
            save(source, target, version)
            read = ezdxf.readfile(target)
            text = read.modelspace()[0]
            check(decode_dxf_unicode(text.dxf.text) == words + " \u2603", page, version, text.dxf.text)
            check(decode_dxf_unicode(text.dxf.layer) == words, page, version, text.dxf.layer)


for test in (same_version, other_versions, columns, old, binary, code_pages):
    test()
for problem in problems[:60]:
    print(problem)
print(len(problems), "problems")
sys.exit(1 if problems else 0)
