"""A drafter's session from the first start to the second one, with mouse and keyboard, in both
themes and at two scales: opens a drawing and the palettes, places a block, hatches a room, runs a
command tool and cancels it with another one, undoes, saves, ends, and starts again."""

import pathlib
import shutil
import sys
import tempfile

import ezdxf

import screen
from screen import wait_for

SAMPLES = pathlib.Path(__file__).resolve().parents[3] / "samples"


class Walk:
    """One session in one theme and at one scale."""

    def __init__(self, own_screen, programs, folder, theme, scale):
        self.screen = own_screen
        self.programs = programs
        self.name = f"{theme.lower()}-{scale}"
        self.scale = scale
        self.drawing = folder / "plan.dxf"
        self.profile = folder / "drafton.ini"
        shutil.copy(SAMPLES / "drawings" / "floor-plan.dxf", self.drawing)
        self.profile.write_text(f"[Desktop]\nTheme={theme}\n", encoding="utf-8")
        self.program = None
        self.step = 0

    def start(self):
        self.program = screen.Program(
            self.screen, self.programs,
            ["--profile", self.profile, "--catalogs", SAMPLES / "catalog"], self.scale)
        return self.program.find_started(lambda name: name.endswith("- Drafton"))

    def picture(self, what):
        self.step += 1
        window = self.program.find("frame", lambda name: name.endswith("Drafton"))
        self.screen.picture(f"{self.name}-{self.step:02}-{what}", self.program.box(window))

    def place_of_cursor(self):
        name = self.program.find("label", lambda n: n.startswith("Place of the cursor: ")).get_name()
        return tuple(float(part) for part in name.split(":")[1].split(","))

    def look_up_scale(self):
        """Finds out where points of the drawing are on the screen, as anybody would: from what the
        status bar says at two of them."""
        (x, y), (width, height) = self.program.box(self.program.find("filler", "Drawing area"))
        corners = []
        for part in (0.1, 0.9):
            at = x + round(width * part), y + round(height * part)
            self.screen.move((at[0] - 3, at[1]))
            before = self.program.find("label", lambda n: n.startswith("Place of")).get_name()
            self.screen.move(at)
            wait_for("the place of the cursor", lambda: self.program.find(
                "label", lambda n: n.startswith("Place of the cursor: ")).get_name() != before)
            corners.append((at, self.place_of_cursor()))
        self.corners = corners

    def on_screen(self, x, y):
        (first, first_point), (second, second_point) = self.corners
        return tuple(
            first[i] + (value - first_point[i]) * (second[i] - first[i])
            / (second_point[i] - first_point[i]) for i, value in enumerate((x, y)))

    def prompt(self):
        """What the command line asks."""
        (x, y), _ = self.program.box(self.program.find("text", "Command line"))
        for role, name, control in self.program.controls():
            if role == "label" and screen.shows(control):
                (left, top), _ = self.program.box(control)
                if left < x and abs(top - y) < 12 * self.scale:
                    return name
        return ""

    def wait_for_prompt(self, text):
        wait_for(f"the prompt {text!r}; it is {self.prompt()!r}", lambda: text in self.prompt())

    def wait_until_idle(self):
        wait_for("the end of the command", lambda: self.prompt() == "Command:")

    def open_by_typing(self):
        self.screen.key("ctrl+o")
        self.program.wait_for_window("Open Drawing")
        self.picture("open-dialog")
        self.screen.type(str(self.drawing))
        self.screen.key("Return")
        self.program.wait_for_end_of("Open Drawing")
        self.program.find("frame", "plan.dxf - Drafton")

    def run(self):
        self.start()
        self.picture("started")
        self.open_by_typing()
        self.program.click("push button", "Tool Palettes")
        self.program.find("table cell", "Building")
        self.picture("palettes")
        self.show_palette("Building", "Furniture")
        self.place_block()
        self.hatch_room()
        self.run_commands()
        self.undo_and_save()
        self.look_at_file()
        self.end_and_start_again()

    def scroll_to(self, role, name):
        """Turns the wheel over the palettes until something of that name shows."""
        pane = self.program.middle(self.program.find("frame", "Tool Palettes"))
        self.screen.click(pane, button=4, count=30)
        for _ in range(30):
            if self.program.has(role, name):
                break
            self.screen.click(pane, button=5)
        return self.program.middle(self.program.find(role, name))

    def show_palette(self, group, palette):
        place = self.scroll_to("table cell", group)
        if not self.program.has("table cell", palette):
            self.screen.click(place, count=2)
        self.screen.click(self.scroll_to("table cell", palette))
        self.program.find("page tab", palette)
        self.program.click("push button", "Change active view")

    def place_block(self):
        self.screen.move(self.scroll_to("list item", "ARMCHAIR"))
        self.picture("list")
        self.screen.click(self.scroll_to("list item", "ARMCHAIR"))
        self.wait_for_prompt("insertion point")
        self.look_up_scale()
        # The block is at the cursor, and goes where it goes.
        where = self.on_screen(17000, 7000)
        around = (where[0] - 20 * self.scale, where[1] - 30 * self.scale), \
            (40 * self.scale, 40 * self.scale)
        empty = self.screen.pixels(*around)
        self.screen.move(where)
        wait_for("the block at the cursor", lambda: self.screen.pixels(*around) != empty)
        self.screen.move(self.on_screen(16500, 4000))
        wait_for("an empty place again", lambda: self.screen.pixels(*around) == empty)
        self.picture("block-follows")
        self.screen.click(self.on_screen(16500, 4000))
        self.program.wait_for_clicks()
        self.finish_prompts()
        self.picture("block-placed")

    def finish_prompts(self):
        """Takes what is offered until the command ends."""
        for _ in range(6):
            if self.prompt() == "Command:":
                return
            former = self.program.history()
            self.screen.key("Return")
            wait_for("the answer", lambda: self.program.history() != former)
        self.wait_until_idle()

    def hatch_room(self):
        self.program.click("push button", "Change active view")
        self.show_palette("Materials", "Surfaces")
        self.screen.click(self.scroll_to("list item", "Planks"))
        self.wait_for_prompt("internal point")
        self.picture("hatch-asked")
        self.screen.click(self.on_screen(10600, 2200))
        self.program.wait_for_clicks()
        self.finish_prompts()
        self.picture("hatched")

    def run_commands(self):
        self.program.click("push button", "Change active view")
        self.show_palette("Building", "Rooms")
        self.screen.click(self.scroll_to("list item", "Column 300"))
        self.wait_for_prompt("corner")
        self.picture("command-tool")
        # Another tool takes over.
        self.screen.click(self.scroll_to("list item", "Round column 400"))
        self.wait_for_prompt("center")
        self.screen.click(self.on_screen(2500, 11000))
        self.program.wait_for_clicks()
        self.finish_prompts()
        self.picture("second-tool")

    def undo_and_save(self):
        self.screen.key("ctrl+z")
        self.wait_until_idle()
        self.picture("undone")
        self.screen.key("ctrl+s")
        wait_for("the saved drawing", lambda: self.program.has("frame", "plan.dxf - Drafton") and
                 self.drawing.stat().st_mtime_ns != self.opened)
        self.picture("saved")

    def look_at_file(self):
        before = ezdxf.readfile(SAMPLES / "drawings" / "floor-plan.dxf").modelspace()
        drawing = ezdxf.readfile(self.drawing)
        assert not drawing.audit().errors, drawing.audit().errors
        after = drawing.modelspace()
        added = [entity for entity in after if entity.dxf.handle not in
                 {old.dxf.handle for old in before}]
        kinds = sorted(entity.dxftype() for entity in added)
        assert kinds == ["HATCH", "INSERT"], kinds
        chair = next(entity for entity in added if entity.dxftype() == "INSERT")
        assert chair.dxf.name == "ARMCHAIR", chair.dxf.name
        place = chair.dxf.insert
        assert abs(place.x - 16500) < 60 and abs(place.y - 4000) < 60, place
        hatch = next(entity for entity in added if entity.dxftype() == "HATCH")
        assert hatch.dxf.pattern_name.upper() == "PLANKS", hatch.dxf.pattern_name

    def looks(self):
        """What has to be the same at the next start."""
        pane = self.program.find("frame", "Tool Palettes")
        _, window_size = self.program.box(
            self.program.find("frame", lambda n: n.endswith("- Drafton")))
        (x, y), size = self.program.box(pane)
        tools = sorted(name for role, name, control in self.program.controls()
                       if role == "list item" and screen.shows(control))
        return window_size, size, tools, self.program.has("page tab", "Rooms")

    def end_and_start_again(self):
        before = self.looks()
        self.screen.key("ctrl+q")
        assert self.program.wait() == 0, self.program.kill()
        self.start()
        self.program.find("list item", "Column 300")
        wait_for(f"the former window {before}, which is {self.looks()}",
                 lambda: self.looks() == before)
        self.open_by_typing()
        self.picture("again")
        self.screen.key("ctrl+q")
        assert self.program.wait() == 0, self.program.kill()


def main(programs, variants):
    own_screen = screen.Screen()
    failed = False
    for theme, scale in variants:
        with tempfile.TemporaryDirectory() as folder:
            walk = Walk(own_screen, programs, pathlib.Path(folder), theme, scale)
            walk.opened = walk.drawing.stat().st_mtime_ns
            try:
                walk.run()
                print(f"{theme} at scale {scale}: {walk.step} steps")
            except AssertionError as error:
                failed = True
                print(f"{theme} at scale {scale}: after step {walk.step}: {error}")
                own_screen.picture(f"{walk.name}-failed")
            finally:
                if walk.program:
                    walk.program.kill()
    own_screen.close()
    return failed


if __name__ == "__main__":
    screen.run_on_own_screen()
    ALL = [(theme, scale) for scale in (1, 2) for theme in ("Light", "Dark")]
    chosen = [v for v in ALL if not sys.argv[2:] or f"{v[0].lower()}-{v[1]}" in sys.argv[2:]]
    sys.exit(main(sys.argv[1], chosen))
