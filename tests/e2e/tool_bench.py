"""What the tests of running tools share: catalogs, runs of `drafton batch`, and what ezdxf reads of
the drawings that come of them."""

import os
import pathlib
import struct
import subprocess
import tempfile
import unittest
import uuid
import xml.sax.saxutils
import zlib

import ezdxf

CATALOG = """<Catalog><ItemID idValue="{%s}"/><Palettes><Palette><ItemID idValue="{%s}"/>
<Url href="Palettes\\palette.dtc"/></Palette></Palettes><Groups><ToolPaletteGroup>
<ItemID idValue="{%s}"/><Contents><ToolPalette ID="{%s}"/></Contents></ToolPaletteGroup></Groups>
</Catalog>"""


def fresh_id():
    return str(uuid.uuid4()).upper()


class Xml(str):
    """Contents of an element that are XML already."""


def elements(fields):
    """Elements of that names, with text or XML in them."""
    return "".join(
        f"<{name}>{value if isinstance(value, Xml) else xml.sax.saxutils.escape(str(value))}</{name}>"
        for name, value in fields.items())


def pixels(path):
    """Rows of red, green and blue of a PNG as the programs write it: eight bits, not interlaced."""
    data = path.read_bytes()
    width, height, bits, kind, _, _, interlaced = struct.unpack(">IIBBBBB", data[16:29])
    if bits != 8 or kind not in (2, 6) or interlaced:
        raise AssertionError(f"{path} is no plain PNG")
    packed, at = b"", 8
    while at < len(data):
        length, name = struct.unpack(">I4s", data[at:at + 8])
        if name == b"IDAT":
            packed += data[at + 8:at + 8 + length]
        at += length + 12
    raw, size = zlib.decompress(packed), 3 if kind == 2 else 4
    rows, above = [], bytes(width * size)
    for y in range(height):
        start = y * (width * size + 1)
        row = bytearray(raw[start + 1:start + 1 + width * size])
        unfilter(raw[start], row, above, size)
        rows.append([tuple(row[x:x + 3]) for x in range(0, len(row), size)])
        above = row
    return rows


def unfilter(kind, row, above, size):
    """Adds to each byte what its row's filter has taken away."""
    for i, byte in enumerate(row):
        left = row[i - size] if i >= size else 0
        corner = above[i - size] if i >= size else 0
        guess = left + above[i] - corner
        nearest = min((left, above[i], corner), key=lambda value: abs(guess - value))
        row[i] = (byte + (0, left, above[i], (left + above[i]) // 2, nearest)[kind]) & 255


def grey_pixels(path):
    return [sum(pixel) // 3 for row in pixels(path) for pixel in row]


class Bench:
    """A folder for one test, with the programs of a build."""

    def __init__(self, programs):
        self.programs = pathlib.Path(programs)
        self._folder = tempfile.TemporaryDirectory()
        self.folder = pathlib.Path(self._folder.name)

    def close(self):
        self._folder.cleanup()

    def path(self, name):
        return self.folder / name

    def write_catalog(self, tools):
        """A catalog with one palette; `tools` gives (name, agent's element, its fields, XML of
        general properties)."""
        palette = fresh_id()
        rows = "".join(
            f'<Tool><ItemID idValue="{{{fresh_id()}}}"/><Properties><ItemName>{name}</ItemName>'
            f"</Properties><ToolType>1</ToolType><Data><GeneralProperties>{general}"
            f"</GeneralProperties><{agent}>{elements(fields)}</{agent}></Data></Tool>"
            for name, agent, fields, general in tools)
        (self.folder / "c" / "Palettes").mkdir(parents=True, exist_ok=True)
        (self.folder / "c" / "Palettes" / "palette.dtc").write_text(
            f'<Palette><ItemID idValue="{{{palette}}}"/><Properties><ItemName>P</ItemName>'
            f"</Properties><Tools>{rows}</Tools></Palette>", encoding="utf-8")
        (self.folder / "c" / "DrfTcCatalog.dtc").write_text(
            CATALOG % (fresh_id(), palette, fresh_id(), palette), encoding="utf-8")

    def run(self, script, drawing=None, out="out.dxf", keep_going=False, more=()):
        """Runs a script over the catalog, with `more` options; the finished process, its output as
        text. The clock stands still, so that the same drawing gives the same bytes."""
        words = [self.programs / "drafton", "batch", "--profile", self.path("profile.ini"),
                 "--catalogs", self.path("c"), "--out", self.path(out), *more]
        if keep_going:
            words.append("--keep-going")
        if drawing:
            words.append(self.path(drawing))
        return subprocess.run([str(word) for word in words], input=script, text=True,
                              encoding="utf-8", capture_output=True, timeout=120,
                              env={**os.environ, "SOURCE_DATE_EPOCH": "1700000000", "TZ": "UTC"})

    def read(self, name="out.dxf"):
        """The drawing, after an audit that must find nothing."""
        document = ezdxf.readfile(self.path(name))
        errors = document.audit().errors
        if errors:
            raise AssertionError("; ".join(error.message for error in errors))
        return document

    def stored(self, name):
        """A path as catalogs have it."""
        return str(self.path(name)).replace("/", "\\")


class DrawingCase(unittest.TestCase):
    """A test that looks at what came of runs; it has a `bench`. `output` is what the last run said."""

    def draw(self, script, drawing=None):
        """The drawing after a script, which must succeed."""
        run = self.bench.run(script, drawing)
        self.assertEqual(run.returncode, 0, run.stdout[-2000:] + run.stderr)
        self.output = run.stdout
        return self.bench.read()

    def only(self, document, kind):
        found = document.modelspace().query(kind)
        self.assertEqual(len(found), 1, self.output[-2000:])
        return found[0]
