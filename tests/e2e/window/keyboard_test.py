"""Drafton without a mouse: Tab reaches every control and nothing that does not show, and a drafter
opens a palette, runs a tool, types its point, and saves."""

import pathlib
import sys
import tempfile

import ezdxf

import screen
from screen import wait_for

SAMPLES = pathlib.Path(__file__).resolve().parents[3] / "samples"
# Items are reached within their list, tab bar or menu by the arrows.
ITEMS = {"table cell", "list item", "page tab", "menu item", "check menu item", "frame"}
MOST_TABS = 60


class Keyboard:
    def __init__(self, own_screen, program, drawing):
        self.screen = own_screen
        self.program = program
        self.drawing = drawing

    def focused(self):
        """What has the focus: its role, name, description and place."""
        states = screen.atspi().StateType
        found = None
        # What hands the focus on, and what is inside of a control, count as focused too.
        for role, name, control in self.program.controls():
            if role not in ITEMS and control.get_state_set().contains(states.FOCUSED) and \
                    screen.shows(control):
                face = self.face(role, name, control)
                if found is None or face[1] or face[2]:
                    found = face
        return found

    def face(self, role, name, control):
        return role, name, control.get_description(), self.program.box(control)[0]

    def reachable(self):
        """All that takes the focus, as far as it has a size."""
        states = screen.atspi().StateType
        faces = set()
        for role, name, control in self.program.controls():
            state = control.get_state_set()
            if role in ITEMS or not screen.shows(control) or \
                    not all(state.contains(s) for s in (states.FOCUSABLE, states.ENABLED)):
                continue
            if role == "filler" and control.get_child_count() > 0:
                continue  # It hands the focus on.
            _, (width, height) = self.program.box(control)
            if width > 1 and height > 1:
                faces.add(self.face(role, name, control))
        return faces

    def tab(self):
        former = self.focused()
        self.screen.key("Tab")
        wait_for(f"the focus to leave {former}", lambda: self.focused() != former)

    def tab_round(self):
        # Where the program begins may be no place to come back to.
        self.tab()
        seen = set()
        for _ in range(MOST_TABS):
            face = self.focused()
            if face:
                seen.add(face)
            self.tab()
        reachable = self.reachable()
        assert seen == reachable, (
            f"Tab does not come to {sorted(reachable - seen)}, and comes to what shows nothing: "
            f"{sorted(seen - reachable)}")
        return len(seen)

    def tab_to(self, name):
        for _ in range(MOST_TABS):
            face = self.focused()
            if face and name in face[1:3]:
                return
            self.tab()
        raise AssertionError("Tab does not come to " + name)

    def selected(self):
        states = screen.atspi().StateType
        return [name for role, name, control in self.program.controls()
                if role in ITEMS and control.get_state_set().contains(states.SELECTED) and
                screen.shows(control)]

    def type(self, text):
        self.screen.type(text)

    def wait_for_idle(self):
        self.program.find("label", "Command:")

    def run(self):
        self.program.find("table cell", "Building")
        print(self.tab_round(), "places of the focus")
        self.run_tool()
        self.save()

    def run_tool(self):
        self.tab_to("Catalogs")
        self.screen.key("Home", "Down", "Down")
        wait_for("the group", lambda: "Building" in self.selected())
        self.screen.key("Right")
        self.program.find("table cell", "Rooms")
        self.screen.key("Right")
        wait_for("the palette", lambda: "Rooms" in self.selected())
        self.tab_to("Change active view")
        self.screen.key("space")
        self.program.find("list item", "Column 300")
        self.tab_to("Tools")
        self.screen.key("Home", "Right", "Right")
        wait_for("the tool", lambda: "Column 300" in self.selected())
        self.screen.key("space")
        self.program.find("label", lambda name: "corner" in name)
        # The keys go to the drawing from here on.
        self.type("20000,2000 ")
        self.wait_for_idle()

    def save(self):
        self.screen.key("ctrl+s")
        wait_for("the saved drawing", lambda: self.program.has("frame", "plan.dxf - Drafton"))
        self.screen.key("ctrl+q")
        assert self.program.wait() == 0
        drawing = ezdxf.readfile(self.drawing)
        columns = [c for c in drawing.modelspace().query("LWPOLYLINE")
                   if any(abs(p[0] - 20000) < 1 and abs(p[1] - 2000) < 1 for p in c.get_points())]
        assert len(columns) == 1, columns


def main(programs):
    own_screen = screen.Screen()
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        (folder / "drafton.ini").write_text("[Startup]\nToolPalettes=1\n", encoding="utf-8")
        drawing = folder / "plan.dxf"
        drawing.write_bytes((SAMPLES / "drawings" / "floor-plan.dxf").read_bytes())
        program = screen.Program(own_screen, programs, [
            "--profile", folder / "drafton.ini", "--catalogs", SAMPLES / "catalog", drawing])
        try:
            Keyboard(own_screen, program, drawing).run()
        finally:
            own_screen.picture("keyboard-end")
            program.kill()
            own_screen.close()


if __name__ == "__main__":
    screen.run_on_own_screen()
    main(sys.argv[1])
