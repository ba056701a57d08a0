"""Whatever a screen reader finds in Drafton's windows has a name: the main window with the palettes,
menus, panes and dialogs. Prints the tree on request (DRAFTON_TREE=1)."""

import os
import pathlib
import sys
import tempfile

import screen
from screen import wait_for

SAMPLES = pathlib.Path(__file__).resolve().parents[3] / "samples"

# What a user can do something with.
CONTROLS = {
    "push button", "toggle button", "check box", "radio button", "combo box", "spin button",
    "slider", "text", "password text", "entry", "list", "tree", "tree table", "table", "menu item",
    "check menu item", "radio menu item", "menu", "page tab", "list item", "link", "dialog", "alert",
}
# Cells may be empty, and are told by their headings; frames stand around lists.
NO_CONTROLS = {"table cell", "frame"}

# Menu entries that open a window, with the window's title and the keys that close it.
WINDOWS = [
    (("alt+t", "o"), "Options", ("Escape",)),
    (("ctrl+o",), "Open Drawing", ("Escape",)),
    (("ctrl+shift+s",), "Save Drawing As", ("Escape",)),
    (("ctrl+p",), "Print", ("Escape",)),
    (("F1",), "Drafton's Manual", ("Escape",)),
    (("alt+h", "a"), "About Drafton", ("Escape",)),
]


def told(control, name):
    """What names a control: its own name, its label, or what it says of itself."""
    if name.strip():
        return name
    relations = control.get_relation_set()
    if any(relation.get_relation_type() == screen.atspi().RelationType.LABELLED_BY
           for relation in relations):
        return "by its label"
    return control.get_description() or ""


class Check:
    def __init__(self, own_screen, program):
        self.screen = own_screen
        self.program = program
        self.seen = 0
        self.nameless = set()

    def look(self, where):
        for role, name, control in self.program.controls():
            if role == "application" or not screen.shows(control):
                continue
            if os.environ.get("DRAFTON_TREE"):
                print(where, "|", role, "|", name, "|", control.get_description())
            # What has children hands the focus on.
            focusable = control.get_state_set().contains(screen.atspi().StateType.FOCUSABLE) and \
                not (role == "filler" and control.get_child_count() > 0)
            if role in NO_CONTROLS or not (focusable or role in CONTROLS):
                continue
            self.seen += 1
            if not told(control, name):
                parent = control.get_parent()
                self.nameless.add((where, role, parent.get_role_name(), parent.get_name()))

    def run(self):
        self.program.find_started(lambda name: name.endswith("- Drafton"))
        self.program.find("table cell", "Building")
        self.look("main window")
        for title in ("Layers", "Blocks"):
            self.screen.key(*{"Layers": ("alt+o", "y"), "Blocks": ("alt+i", "b")}[title])
            wait_for(title, lambda t=title: self.program.has("frame", t))
            self.look(title)
        for keys, title, close in WINDOWS:
            self.screen.key(*keys)
            self.program.wait_for_window(title)
            self.look(title)
            self.screen.key(*close)
            self.program.wait_for_end_of(title)


def main(programs):
    own_screen = screen.Screen()
    with tempfile.TemporaryDirectory() as folder:
        profile = pathlib.Path(folder) / "drafton.ini"
        profile.write_text("[Startup]\nToolPalettes=1\n", encoding="utf-8")
        program = screen.Program(own_screen, programs, [
            "--profile", profile, "--catalogs", SAMPLES / "catalog",
            SAMPLES / "drawings" / "floor-plan.dxf"])
        try:
            check = Check(own_screen, program)
            check.run()
        finally:
            own_screen.picture("names-end")
            program.kill()
            own_screen.close()
    print(f"{check.seen} controls")
    assert not check.nameless, "\n".join(map(str, sorted(check.nameless)))
    assert check.seen > 300, check.seen


if __name__ == "__main__":
    screen.run_on_own_screen()
    main(sys.argv[1])
