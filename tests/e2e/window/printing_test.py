"""Printing as a drafter does: a page is set up and printed into a PDF file, which has the paper, lines and
letters, and no picture of them; the setup comes back with the saved drawing."""

import pathlib
import re
import sys
import tempfile
import zlib

import ezdxf

import screen
from bad_input_test import Bench
from screen import wait_for


class Pdf:
    """What a PDF file says of its pages."""

    def __init__(self, path):
        self.data = path.read_bytes()
        assert self.data.startswith(b"%PDF-") and self.data.rstrip().endswith(b"%%EOF")
        self.content = b""
        for packed in re.findall(rb"stream\r?\n(.*?)endstream", self.data, re.S):
            try:
                self.content += zlib.decompress(packed)
            except zlib.error:
                pass  # not every stream is packed

    def pages(self):
        """Their sizes in millimetres."""
        boxes = re.findall(rb"/MediaBox \[([^\]]*)\]", self.data)
        return [tuple(round(float(n) / 72 * 25.4) for n in box.split()[2:]) for box in boxes]

    def count(self, operator):
        return len(re.findall(rb"(?<=\s)" + operator + rb"(?=\s)", self.content))

    def is_gray(self):
        colors = re.findall(rb"([\d.]+) ([\d.]+) ([\d.]+) (?:SCN|scn)\b", self.content)
        return bool(colors) and all(len(set(color)) == 1 for color in colors)


def print_to(bench, program, path):
    bench.screen.key("ctrl+p")
    program.wait_for_window("Print")
    bench.screen.key("alt+f")
    bench.screen.key("ctrl+a")
    bench.screen.type(str(path))
    bench.screen.key("alt+p")
    program.wait_for_end_of("Print")
    wait_for("the printed file", lambda: path.exists() and b"%%EOF" in path.read_bytes()[-16:])
    return Pdf(path)


def a_sheet_is_printed_on_its_paper(bench):
    program = bench.start_on_plan()
    program.click("page tab", "Ground_floor_1-50")
    wait_for("the sheet", lambda: "_Set" in program.history() or
             "Ground_floor" in program.history())
    pdf = print_to(bench, program, bench.folder / "sheet.pdf")
    assert pdf.pages() == [(594, 420)], pdf.pages()
    assert pdf.count(b"l") > 2000 and pdf.count(b"Tj") + pdf.count(b"TJ") > 50
    assert b"/Subtype /Image" not in pdf.data
    assert not pdf.is_gray()
    bench.leave(program, discard=True)


def a_page_is_set_up_and_kept(bench):
    program = bench.start_on_plan()
    bench.screen.key("alt+f", "g")
    program.wait_for_window("Page Setup: Model")
    bench.screen.key("alt+p")
    bench.screen.type("A4")
    bench.screen.key("alt+o")
    bench.screen.type("P")
    bench.screen.key("alt+s", "ctrl+a")
    bench.screen.type("1:200")
    bench.screen.key("alt+y")
    bench.screen.type("M")
    bench.screen.picture("page-setup")
    bench.screen.key("Return")
    program.wait_for_end_of("Page Setup: Model")
    pdf = print_to(bench, program, bench.folder / "model.pdf")
    assert pdf.pages() == [(210, 297)], pdf.pages()
    assert pdf.is_gray()
    bench.screen.key("ctrl+s")
    wait_for("the saved drawing", lambda: not program.has("frame", lambda n: "* - Drafton" in n))
    bench.leave(program)
    plot = ezdxf.readfile(bench.drawing).layouts.get("Model").dxf_layout.dxf
    assert (plot.paper_width, plot.paper_height) == (210, 297)
    assert (plot.scale_numerator, plot.scale_denominator) == (1, 200)
    assert plot.current_style_sheet == "monochrome.ctb"


def main(programs):
    own_screen = screen.Screen()
    failed = False
    for test in (a_sheet_is_printed_on_its_paper, a_page_is_set_up_and_kept):
        with tempfile.TemporaryDirectory() as folder:
            bench = Bench(own_screen, programs, pathlib.Path(folder))
            try:
                test(bench)
                print("passed", test.__name__, flush=True)
            except AssertionError:
                failed = True
                own_screen.picture("failed-" + test.__name__)
                raise
            finally:
                bench.close()
    own_screen.close()
    return failed


if __name__ == "__main__":
    screen.run_on_own_screen()
    sys.exit(main(sys.argv[1]))
