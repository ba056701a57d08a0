"""What must not end or harm Drafton's window: files that are no drawings, catalogs that vanish, settings
that cannot be used, modules that do not start, closing while something waits, hasty clicks, and two
programs on one settings file."""

import os
import pathlib
import shutil
import sys
import tempfile
import traceback

import ezdxf

import screen
from screen import wait_for

SAMPLES = pathlib.Path(__file__).resolve().parents[3] / "samples"
MODULE = "ToolPaletteManager.so"


class Bench:
    """A folder, a settings file with the palettes open, and programs on them."""

    def __init__(self, own_screen, programs, folder):
        self.screen = own_screen
        self.programs = pathlib.Path(programs)
        self.folder = folder
        self.profile = folder / "drafton.ini"
        self.profile.write_text("[Startup]\nToolPalettes=1\n", encoding="utf-8")
        self.drawing = folder / "plan.dxf"
        shutil.copy(SAMPLES / "drawings" / "floor-plan.dxf", self.drawing)
        self.catalogs = SAMPLES / "catalog"
        self.running = []

    def start(self, *drawings, programs=None, profile=None):
        program = screen.Program(self.screen, programs or self.programs, [
            "--profile", profile or self.profile, "--catalogs", self.catalogs, *drawings])
        self.running.append(program)
        return program

    def start_on_plan(self):
        program = self.start(self.drawing)
        program.find_started("plan.dxf - Drafton")
        program.find("table cell", "Drafton samples")
        return program

    def close(self):
        for program in self.running:
            program.kill()

    def title(self, program, title):
        return program.find("frame", title)

    def wait_for_history(self, program, text):
        wait_for(f"{text!r} in the history", lambda: text in program.history())

    def dismiss(self, program, text, title="Drafton"):
        """Reads a message that has to say `text`, and closes it."""
        def say():
            return [name for role, name, control in program.controls()
                    if role == "label" and text in name]
        wait_for(f"the message {text!r}", say)
        program.wait_for_window(title)
        self.screen.key("Return")
        wait_for("the message to go", lambda: not say())

    def draw(self, program):
        """It works: a line can be drawn."""
        self.screen.type("line 0,0 77,0 ")
        self.screen.key("Return")
        program.find("label", "Command:")
        wait_for("the changed drawing", lambda: program.has("frame", lambda n: "* - Drafton" in n))

    def leave(self, program, discard=False):
        self.screen.key("ctrl+q")
        if discard:
            program.find("push button", "Do Not Save")
            program.wait_for_window("Drafton")
            self.screen.key("alt+d")
        code = program.wait()
        assert code == 0, (code, program.kill())

    def show_tools(self, program, group, palette):
        program.click("table cell", group, count=2)
        program.click("table cell", palette)
        program.find("page tab", palette)
        program.click("push button", "Change active view")
        return program.find("list item")

    def start_tool(self, program):
        """A block hangs at the cursor."""
        self.show_tools(program, "Building", "Furniture")
        program.click("list item", "ARMCHAIR")
        program.find("label", lambda name: "insertion point" in name)


def closing_the_drawing_ends_its_tool(bench):
    program = bench.start_on_plan()
    bench.start_tool(program)
    bench.screen.key("ctrl+w")
    bench.title(program, "Drafton")
    # A tool without a drawing does nothing.
    program.click("list item", "BED-900")
    wait_for("the marked tool", lambda: screen.is_selected(program.find("list item", "BED-900")))
    bench.screen.key("ctrl+n")
    program.find("frame", lambda name: name.startswith("Drawing") and name.endswith(" - Drafton"))
    bench.draw(program)
    bench.leave(program, discard=True)


def closing_the_window_ends_its_tool(bench):
    program = bench.start_on_plan()
    bench.start_tool(program)
    bench.screen.key("alt+F4")
    assert program.wait() == 0, program.kill()


def ending_the_program_ends_its_command(bench):
    program = bench.start_on_plan()
    bench.screen.type("line 0,0 ")
    program.find("label", lambda name: name.startswith("Specify next point"))
    bench.leave(program)
    assert not ezdxf.readfile(bench.drawing).modelspace().query("LINE[layer=='Nowhere']")


def closing_the_palettes_leaves_the_tool(bench):
    program = bench.start_on_plan()
    bench.start_tool(program)
    bench.screen.key("ctrl+3")
    bench.draw(program)
    bench.leave(program, discard=True)


def a_catalog_that_vanishes_leaves_what_is_shown(bench):
    bench.catalogs = bench.folder / "catalog"
    shutil.copytree(SAMPLES / "catalog", bench.catalogs)
    program = bench.start_on_plan()
    bench.show_tools(program, "Building", "Rooms")
    shutil.rmtree(bench.catalogs)
    program.click("list item", "Round column 400")
    program.find("label", lambda name: "center" in name)
    bench.screen.type("20000,0 ")
    program.find("label", "Command:")
    # What was not looked at before has to be looked for now.
    program.click("push button", "Change active view")
    program.click("table cell", "Windows")
    program.find("page tab", "Windows")
    program.click("push button", "Change active view")
    x, y = program.middle(program.find("push button", "Change icon size"))
    below = (x, y + 20), (60, 40)
    former = bench.screen.pixels(*below)
    bench.screen.click((x, y))
    wait_for("the menu", lambda: bench.screen.pixels(*below) != former)
    bench.screen.key("Down", "Down", "Down", "Return")
    program.find("list item")
    bench.draw(program)
    bench.leave(program, discard=True)
    assert not bench.catalogs.exists(), "nothing is written where the catalog was"


def write_large_catalog(folder):
    """Palettes that take a while to read, in one group."""
    (folder / "Palettes").mkdir(parents=True)
    names = [f"P{number}" for number in range(1500)]
    tools = "".join(f'<Tool><ItemID idValue="T{number}"/><Properties><ItemName>Tool {number}</ItemName>'
                    f'</Properties><ToolType>1</ToolType><Data><Command Macro="_LINE"/></Data></Tool>'
                    for number in range(80))
    for name in names:
        (folder / "Palettes" / f"{name}.dtc").write_text(
            f'<Palette><ItemID idValue="{name}"/><Properties><ItemName>{name}</ItemName></Properties>'
            f'<Tools>{tools}</Tools></Palette>')
    loaders = "".join(f'<Palette><ItemID idValue="{name}"/><Url href="Palettes\\{name}.dtc"/></Palette>'
                      for name in names)
    inside = "".join(f'<ToolPalette ID="{name}"/>' for name in names)
    (folder / "DrfTcCatalog.dtc").write_text(
        f'<Catalog><Properties><ItemName>Large</ItemName></Properties><Palettes>{loaders}</Palettes>'
        f'<Groups><ToolPaletteGroup><ItemID idValue="G"/><Properties><ItemName>All of them</ItemName>'
        f'</Properties><Contents>{inside}</Contents></ToolPaletteGroup></Groups></Catalog>')


def palettes_that_are_still_read_hold_nobody_up(bench):
    bench.catalogs = bench.folder / "large"
    write_large_catalog(bench.catalogs)
    # The program may end before they are all there.
    program = bench.start(bench.drawing)
    bench.title(program, "plan.dxf - Drafton")
    program.find("table cell", "All of them")
    bench.leave(program)

    # One that cannot be read holds the others up until that was seen.
    broken = bench.catalogs / "Palettes" / "P1000.dtc"
    broken.write_text(broken.read_text()[:-30])
    program = bench.start(bench.drawing)
    bench.title(program, "plan.dxf - Drafton")
    program.find("table cell", "All of them")
    program.find("label", "Error while reading tool palette file.")
    program.find("label", lambda name: name.startswith("Reading palettes, "))
    bench.dismiss(program, "Error while reading tool palette file.", "Tool Palettes")
    wait_for("the last palette",
             lambda: not program.has("label", lambda name: name.startswith("Reading palettes, ")))
    bench.wait_for_history(program, "P1000.dtc")
    program.click("table cell", "All of them")
    program.find("page tab", "All of them")
    bench.draw(program)
    bench.leave(program, discard=True)


def click_hastily(bench, palette, *tools):
    program = bench.start_on_plan()
    bench.show_tools(program, "Building", palette)
    first, second = (program.middle(program.find("list item", name)) for name in tools)
    canvas = program.middle(program.find("filler", "Drawing area"))
    for _ in range(25):
        for place in (first, second, canvas, first):
            bench.screen.click(place, count=5, delay=2)
    program.wait_for_clicks()
    # One Esc ends all that was clicked before it.
    bench.screen.key("Escape")
    program.find("label", "Command:")
    bench.draw(program)
    bench.leave(program, discard=True)


def hasty_clicks_on_tools_of_commands_do_no_harm(bench):
    click_hastily(bench, "Rooms", "Column 300", "Round column 400")


def hasty_clicks_on_tools_of_blocks_do_no_harm(bench):
    """Their module waits on the stack."""
    click_hastily(bench, "Furniture", "ARMCHAIR", "BED-900")


def what_is_no_drawing_is_named(bench):
    garbage = bench.folder / "garbage.dxf"
    garbage.write_bytes(bytes(range(256)) * 50)
    missing = bench.folder / "missing.dxf"
    program = bench.start(garbage, missing, bench.drawing)
    bench.dismiss(program, "garbage.dxf cannot be opened")
    bench.dismiss(program, "missing.dxf cannot be opened")
    bench.title(program, "plan.dxf - Drafton")
    # And by a double click on its name.
    bench.screen.key("ctrl+o")
    program.wait_for_window("Open Drawing")
    program.click("table cell", "garbage.dxf", count=2)
    bench.dismiss(program, "garbage.dxf cannot be opened")
    bench.title(program, "plan.dxf - Drafton")
    assert garbage.read_bytes() == bytes(range(256)) * 50
    bench.draw(program)
    bench.leave(program, discard=True)


def settings_that_cannot_be_used_are_told_and_left(bench):
    garbage = b"\x00\xff\x07 no settings at all\n[[[\n=\n"
    later = ("[Desktop]\nVersion=int:99\nTheme=Sepia\nGeometry=AAAA\nWindows=!!!\nAutosaveMinutes=many\n"
             "Recent1=\n[Future]\nthing=blob:7\n").encode()
    for name, content in (("garbage.ini", garbage), ("later.ini", later)):
        profile = bench.folder / name
        profile.write_bytes(content)
        program = bench.start(bench.drawing, profile=profile)
        bench.title(program, "plan.dxf - Drafton")
        if content is garbage:
            bench.wait_for_history(program, "garbage.ini cannot be used")
        bench.draw(program)
        bench.leave(program, discard=True)
        if content is garbage:
            assert profile.read_bytes() == garbage
        else:
            assert b"thing=blob:7" in profile.read_bytes(), "what later versions keep stays"
    # Where nothing can be written.
    program = bench.start(bench.drawing, profile="/proc/no/such/drafton.ini")
    bench.title(program, "plan.dxf - Drafton")
    bench.wait_for_history(program, "drafton.ini cannot be used")
    bench.draw(program)
    bench.leave(program, discard=True)


def without_a_working_module_drafton_goes_on(bench):
    own = bench.folder / "programs"
    own.mkdir()
    for name in ("drafton", "command_menu.xml", "command_routes.xml", "draftoniso.lin",
                 "draftoniso.pat"):
        shutil.copy(bench.programs / name, own)
    for library in bench.programs.glob("lib*.so"):
        os.symlink(library, own / library.name)
    for module, reason in ((None, "there is no such file"),
                           ("engine_old_module.so", "3.3.1.0"),
                           ("engine_failing_module.so", "does not start today")):
        (own / MODULE).unlink(missing_ok=True)
        if module:
            shutil.copy(bench.programs / module, own / MODULE)
        program = bench.start(bench.drawing, programs=own)
        bench.title(program, "plan.dxf - Drafton")
        bench.wait_for_history(program, f"{MODULE} is not loaded")
        assert reason in program.history(), program.history()
        bench.screen.key("ctrl+3")
        bench.wait_for_history(program, "Unknown command")
        bench.draw(program)
        bench.leave(program, discard=True)


def two_programs_share_their_settings(bench):
    first = bench.start_on_plan()
    second = bench.start()
    second.find_started(lambda name: name.startswith("Drawing"))
    second.find("table cell", "Drafton samples")
    # Both write: the second its options, then the first its window.
    bench.screen.key("alt+t", "o")
    second.wait_for_window("Options")
    bench.screen.key("alt+r")
    bench.screen.key("ctrl+a")
    bench.screen.type("31")
    bench.screen.key("Return")
    second.wait_for_end_of("Options")
    bench.leave(second)
    wait_for("the keys to come back", lambda: bench.title(first, "plan.dxf - Drafton")
             .get_state_set().contains(screen.atspi().StateType.ACTIVE))
    bench.leave(first)
    settings = bench.profile.read_text(encoding="utf-8")
    assert "AutosaveMinutes=int:31" in settings, settings
    assert "Recent1=" + str(bench.drawing) in settings, settings
    third = bench.start_on_plan()
    bench.leave(third)


TESTS = [closing_the_drawing_ends_its_tool, closing_the_window_ends_its_tool,
         ending_the_program_ends_its_command, closing_the_palettes_leaves_the_tool,
         a_catalog_that_vanishes_leaves_what_is_shown,
         palettes_that_are_still_read_hold_nobody_up, hasty_clicks_on_tools_of_commands_do_no_harm,
         hasty_clicks_on_tools_of_blocks_do_no_harm, what_is_no_drawing_is_named,
         settings_that_cannot_be_used_are_told_and_left, without_a_working_module_drafton_goes_on,
         two_programs_share_their_settings]


def main(programs, names):
    own_screen = screen.Screen()
    failed = []
    for test in TESTS:
        if names and test.__name__ not in names:
            continue
        with tempfile.TemporaryDirectory() as folder:
            bench = Bench(own_screen, programs, pathlib.Path(folder))
            try:
                test(bench)
                print("passed", test.__name__, flush=True)
            except AssertionError:
                traceback.print_exc()
                failed.append(test.__name__)
                own_screen.picture("failed-" + test.__name__)
            finally:
                bench.close()
    own_screen.close()
    print("failed:", ", ".join(failed) or "none")
    return bool(failed)


if __name__ == "__main__":
    screen.run_on_own_screen()
    sys.exit(main(sys.argv[1], sys.argv[2:]))
