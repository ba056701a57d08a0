"""Palettes in a window of their own, as a drafter with two screens has them: the keys go to the drawing
and its command line all the same, and the next start brings the palettes back where they were."""

import pathlib
import sys
import tempfile

import ezdxf

import screen
from drafter_walk_test import Walk
from screen import wait_for


class FloatingWalk(Walk):
    def pane_box(self):
        return self.program.box(self.program.find("frame", "Tool Palettes"))

    def is_floating(self):
        return "Tool Palettes" in self.screen.titles()

    def run(self):
        with self.profile.open("a", encoding="utf-8") as settings:
            settings.write("[Startup]\nToolPalettes=1\n")
        self.start()
        self.program.find("table cell", "Building")
        self.open_by_typing()
        self.first_keys_leave_the_palettes()
        self.pull_out_the_pane()
        self.show_palette("Building", "Furniture")
        self.cancel_tool()
        self.place_by_typing()
        self.repeat_tool()
        self.type_on_a_pulled_out_page()
        self.end_and_start_again()

    def first_keys_leave_the_palettes(self):
        self.screen.click(self.program.middle(self.program.find("filler", "Drawing area")), button=2)
        for key in ("Return", "space", "Return"):
            self.screen.key(key)
        self.screen.type("REGEN ")
        self.wait_until_idle()
        assert self.program.has("table cell", "Building"), "the first keys closed the palettes"

    def pull_out_the_pane(self):
        (x, y), _ = self.pane_box()
        self.screen.click((x + 60, y + 8), count=2, delay=60)
        wait_for("the pane's own window", self.is_floating)
        # Beside the window.
        self.screen.move_window("Tool Palettes", (2100, 300))
        wait_for("the pane at its new place", lambda: self.pane_box()[0][0] > 2000)
        self.picture("floating")

    def start_tool(self):
        self.screen.click(self.scroll_to("list item", "ARMCHAIR"))
        self.wait_for_prompt("insertion point")

    def cancel_tool(self):
        self.start_tool()
        self.screen.key("Escape")
        self.wait_until_idle()

    def place_by_typing(self):
        self.start_tool()
        self.screen.type("16500,4000")
        self.screen.key("Return")
        self.finish_prompts()
        self.picture("floating-placed")

    def repeat_tool(self):
        self.screen.key("Return")
        self.wait_for_prompt("insertion point")
        self.screen.type("12000,4000 ")
        self.finish_prompts()

    def type_on_a_pulled_out_page(self):
        self.screen.click(self.program.middle(self.program.find("page tab", "Furniture")),
                          count=2, delay=60)
        wait_for("the page's own window", lambda: "Furniture" in self.screen.titles())
        self.cancel_tool()
        # A click beside the tools leaves the keys with the page.
        self.screen.click(self.program.middle(self.program.find("list item", "ARMCHAIR")), button=3)
        self.screen.type("LINE ")
        self.wait_for_prompt("first point")
        self.screen.key("Escape")
        self.wait_until_idle()
        self.picture("pulled-out")

    def end_and_start_again(self):
        self.screen.key("ctrl+s")
        wait_for("the saved drawing", lambda: self.drawing.stat().st_mtime_ns != self.opened)
        drawing = ezdxf.readfile(self.drawing)
        places = sorted((round(chair.dxf.insert.x), round(chair.dxf.insert.y))
                        for chair in drawing.modelspace().query('INSERT[name=="ARMCHAIR"]'))
        for place in ((12000, 4000), (16500, 4000)):
            assert place in places, places
        box = self.pane_box()
        self.screen.key("ctrl+q")
        assert self.program.wait() == 0, self.program.kill()
        self.start()
        self.program.find("frame", "Tool Palettes")
        assert self.is_floating(), "the palettes are docked"
        wait_for(f"the pane at {box}; it is at {self.pane_box()}", lambda: self.pane_box() == box)
        self.picture("floating-again")
        # Closed by the drafter it stays away.
        self.program.click("push button", "Tool Palettes")
        wait_for("the palettes to go", lambda: not self.program.has("frame", "Tool Palettes"))
        self.screen.key("ctrl+q")
        assert self.program.wait() == 0, self.program.kill()
        assert "ToolPalettes=" not in self.profile.read_text(encoding="utf-8")


def main(programs):
    own_screen = screen.Screen()
    with tempfile.TemporaryDirectory() as folder:
        walk = FloatingWalk(own_screen, programs, pathlib.Path(folder), "Light", 1)
        walk.opened = walk.drawing.stat().st_mtime_ns
        try:
            walk.run()
        finally:
            own_screen.picture("floating-end")
            if walk.program:
                walk.program.kill()
            own_screen.close()


if __name__ == "__main__":
    screen.run_on_own_screen()
    main(sys.argv[1])
