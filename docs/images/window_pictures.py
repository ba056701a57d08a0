#!/usr/bin/env python3
"""Takes the manual's pictures of Drafton's window anew, on a display of its own:

    docs/images/window_pictures.py [FOLDER OF PROGRAMS]
"""

import pathlib
import shutil
import sys
import tempfile

IMAGES = pathlib.Path(__file__).resolve().parent
ROOT = IMAGES.parents[1]
sys.dont_write_bytecode = True
sys.path.insert(0, str(ROOT / "tests" / "e2e" / "window"))

import screen  # noqa: E402


class Window:
    """Drafton on the floor plan, with the sample catalogs beside it."""

    def __init__(self, own_screen, programs, folder, theme):
        self.screen = own_screen
        profile = folder / (theme + ".ini")
        profile.write_text(f"[Startup]\nToolPalettes=1\n[Desktop]\nTheme={theme}\n",
                           encoding="utf-8")
        drawing = folder / "floor-plan.dxf"
        shutil.copy(ROOT / "samples" / "drawings" / "floor-plan.dxf", drawing)
        self.program = screen.Program(own_screen, programs, [
            "--profile", profile, "--catalogs", ROOT / "samples" / "catalog", drawing])
        self.title = self.program.find("frame", "floor-plan.dxf - Drafton")
        self.program.find("table cell", "Drafton samples")

    def picture(self, name):
        self.screen.picture(name, self.program.box(self.title))

    def over(self, x, y):
        """Moves the cursor over the drawing area, by parts of its size."""
        (left, top), (width, height) = self.program.box(
            self.program.find("filler", "Drawing area"))
        # A snap shows itself when the cursor has come by.
        for step in (-2, -1, 0):
            self.place = left + width * x + step, top + height * y
            self.screen.move(self.place)

    def look_up_places(self):
        """Notes what the status bar says of two places, while no command runs."""
        self.ends = []
        for part in (0.03, 0.97):
            self.over(part, part)
            said = self.program.find("label", lambda n: n.startswith("Place of the cursor: "))
            self.ends.append([float(number) for number in said.get_name().split(":")[1].split(",")])

    def over_point(self, x, y):
        """Moves the cursor over a point of the drawing."""
        (left, top), (right, bottom) = self.ends
        self.over(0.03 + 0.94 * (x - left) / (right - left), 0.03 + 0.94 * (y - top) / (bottom - top))

    def type(self, text):
        self.screen.type(text)

    def close(self):
        self.program.kill()


def text_editing(window):
    window.look_up_places()
    window.over_point(10850, 3260)
    window.screen.click(window.place, count=2)
    window.program.find("text", "Text of the drawing")
    window.picture("desktop-text")
    window.screen.key("Escape", "Escape")
    window.program.find("label", "Command:")


def block_at_cursor(window):
    window.program.click("table cell", "Building", count=2)
    window.program.click("table cell", "Furniture")
    window.program.click("push button", "Change active view")
    window.program.click("list item", "ARMCHAIR")
    window.program.find("label", lambda name: "insertion point" in name)
    window.over(0.86, 0.42)
    window.picture("palettes")
    window.screen.key("Escape")


def chosen_line(window):
    window.screen.key("ctrl+0")
    window.look_up_places()
    window.type("line 14000,2000 19000,6000 ")
    window.screen.key("Return")
    window.program.find("label", "Command:")
    window.over_point(16500, 4000)
    window.screen.click(window.place)
    window.program.find("table cell", "LINE")
    window.picture("desktop-inspector")


def snapped(window):
    window.screen.key("Escape", "Escape")
    window.type("line 12500,-3000 ")
    window.over_point(12132, -1450)
    window.picture("desktop-snap")
    window.screen.key("Escape", "Escape")


def page_setup(window):
    window.program.click("page tab", "Ground_floor_1-50")
    window.program.find("label", "Command:")
    window.screen.key("alt+f", "g")
    window.program.wait_for_window("Page Setup: Ground_floor_1-50")
    window.picture("desktop-page-setup")
    window.screen.key("Escape")


def whole(name):
    return lambda window: (window.over(0.9, 0.3), window.picture(name))


PICTURES = [("Light", [whole("desktop"), block_at_cursor, chosen_line, snapped, page_setup]),
            ("Light", [text_editing]), ("Dark", [whole("desktop-dark")])]


def main(programs):
    own_screen = screen.Screen()
    own_screen.pictures = IMAGES
    with tempfile.TemporaryDirectory() as folder:
        for theme, takes in PICTURES:
            window = Window(own_screen, programs, pathlib.Path(folder), theme)
            try:
                for take in takes:
                    take(window)
            finally:
                window.close()
    own_screen.close()


if __name__ == "__main__":
    screen.run_on_own_screen()
    main(pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else ROOT / "build/release/bin")
