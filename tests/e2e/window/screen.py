"""A screen of its own for a test, with a window manager, a mouse and a keyboard, and what an
assistive technology sees of the programs on it."""

import os
import pathlib
import signal
import subprocess
import sys
import tempfile
import time

SIZE = (2600, 1800)
PATIENCE = 60  # seconds for whatever is waited for; a loaded machine is slow


def run_on_own_screen():
    """Runs the calling script again with a display and a session bus that nobody else uses. Returns
    only in that second run."""
    if os.environ.get("DRAFTON_OWN_SCREEN"):
        return
    read, write = os.pipe()
    # It would start anew when its last program leaves it, and refuse one that comes at that moment.
    display = subprocess.Popen(
        ["Xvfb", "-displayfd", str(write), "-screen", "0", "%dx%dx24" % SIZE, "-nolisten", "tcp",
         "-noreset"], pass_fds=[write], stderr=subprocess.DEVNULL)
    os.close(write)
    number = os.fdopen(read).readline().strip()
    with tempfile.TemporaryDirectory() as home:
        os.chmod(home, 0o700)
        environment = {
            name: value for name, value in os.environ.items()
            if name not in ("WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "QT_SCALE_FACTOR")
        } | {
            "DRAFTON_OWN_SCREEN": "1", "DISPLAY": ":" + number, "HOME": home,
            "XDG_RUNTIME_DIR": home, "XDG_CONFIG_HOME": home + "/config",
            "XDG_DATA_HOME": home + "/data", "XDG_CACHE_HOME": home + "/cache",
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1", "LC_ALL": "C.UTF-8",
        }
        code = subprocess.call(["dbus-run-session", "--", sys.executable, "-B", *sys.argv],
                               env=environment)
    display.terminate()
    display.wait()
    sys.exit(code)


def wait_for(what, condition):
    """The first value of `condition` that counts as true; fails with `what` if there is none."""
    end = time.monotonic() + PATIENCE
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > end:
            raise AssertionError("waited in vain for " + what)
        time.sleep(0.05)


class Screen:
    """The mouse, the keyboard and the eyes."""

    def __init__(self):
        self._manager = subprocess.Popen(["openbox"], stdout=subprocess.DEVNULL,
                                         stderr=subprocess.DEVNULL)
        # Windows that show before there is a manager get no keyboard.
        wait_for("the window manager", lambda: subprocess.run(
            ["xdotool", "get_num_desktops"], capture_output=True).returncode == 0)
        self.pictures = os.environ.get("DRAFTON_PICTURES")

    def close(self):
        self._manager.terminate()
        self._manager.wait()

    def _do(self, *words):
        subprocess.run(["xdotool", *map(str, words)], check=True)

    def move(self, place):
        self._do("mousemove", round(place[0]), round(place[1]))

    def click(self, place, button=1, count=1, delay=30):
        self.move(place)
        self._do("click", "--repeat", count, "--delay", delay, button)

    def drag(self, start, end):
        self.move(start)
        self._do("mousedown", 1)
        # A drag begins with a small way.
        self.move(((start[0] * 9 + end[0]) / 10, (start[1] * 9 + end[1]) / 10))
        self.move(end)
        self._do("mouseup", 1)

    def key(self, *names):
        self._do("key", "--delay", 20, *names)

    def type(self, text):
        self._do("type", "--delay", 12, "--", text)

    def titles(self):
        """The titles of all windows that show."""
        found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", "."],
                               capture_output=True, text=True).stdout.split()
        return [subprocess.run(["xdotool", "getwindowname", window], capture_output=True,
                               text=True).stdout.strip() for window in found]

    def move_window(self, title, place):
        self._do("search", "--onlyvisible", "--name", f"^{title}$", "windowmove", *place)

    def pixels(self, place, size):
        """What the screen shows there, as bytes."""
        area = "%dx%d+%d+%d" % (*map(round, size), *map(round, place))
        return subprocess.run(["import", "-silent", "-window", "root", "-crop", area, "rgb:-"],
                              check=True, capture_output=True).stdout

    def picture(self, name, box=None):
        """Keeps a picture of the screen, if a run asks for that."""
        if not self.pictures:
            return
        time.sleep(0.4)
        area = ["-crop", "%dx%d+%d+%d" % (*map(round, box[1]), *map(round, box[0])),
                "+repage"] if box else []
        subprocess.run(["import", "-silent", "-window", "root", *area,
                        str(pathlib.Path(self.pictures) / (name + ".png"))], check=True)


class Program:
    """A running drafton, and its controls by role and name."""

    def __init__(self, screen, programs, arguments, scale=1, **environment):
        self.screen = screen
        self.scale = scale
        self.process = subprocess.Popen(
            [str(pathlib.Path(programs) / "drafton"), *map(str, arguments)],
            env=os.environ | {"QT_SCALE_FACTOR": str(scale)} | environment,
            stderr=subprocess.PIPE, text=True)

    def kill(self):
        if self.process.poll() is None:
            self.process.kill()
        return self.process.communicate()[1]

    def wait(self):
        """The exit code of a program that was told to end."""
        try:
            return self.process.wait(PATIENCE)
        except subprocess.TimeoutExpired:
            raise AssertionError("the program does not end") from None

    def _root(self):
        desktop = atspi().get_desktop(0)
        for i in range(desktop.get_child_count()):
            child = desktop.get_child_at_index(i)
            if child and child.get_process_id() == self.process.pid:
                child.clear_cache()
                return child
        return None

    def controls(self):
        """All controls that show, and the roots of what does not, as (role, name, accessible)."""
        root = self._root()
        return list(walk(root)) if root else []

    def _search(self, role, name):
        for own_role, own_name, control in self.controls():
            if own_role == role and (name is None or own_name == name or
                                     callable(name) and name(own_name)):
                if shows(control):
                    return control
        return None

    def has(self, role, name=None):
        return self.alive() and self._search(role, name) is not None

    def _windows(self):
        root = self._root()
        windows = [root.get_child_at_index(i) for i in range(root.get_child_count())] if root else []
        return [window for window in windows if window and shows(window)]

    def has_window(self, title):
        return any(window.get_name() == title for window in self._windows())

    def wait_for_window(self, title):
        """Until what is typed goes to the window of that title."""
        wait_for(f"the keyboard in the window {title!r}", lambda: any(
            window.get_name() == title and is_active(window) for window in self._windows()))

    def wait_for_end_of(self, title):
        """Until the window of that title is gone and what is typed goes to another one."""
        wait_for(f"the end of the window {title!r}", lambda: not self.has_window(title) and any(
            is_active(window) for window in self._windows()))

    def wait_for_clicks(self):
        """Until the program has all clicks. The window manager sees them first, and a key would
        overtake those that it still holds; where the pointer goes next, the program hears in turn."""
        def cursor_elsewhere(former=""):
            return self.find("label", lambda name: name.startswith("Place of the cursor: ")
                             and name != former).get_name()
        x, y = self.middle(self.find("filler", "Drawing area"))
        self.screen.move((x + 40, y + 40))
        former = cursor_elsewhere()
        self.screen.move((x + 80, y + 80))
        cursor_elsewhere(former)

    def find(self, role, name=None):
        def look():
            assert self.alive(), "the program ended: " + self.kill()
            return self._search(role, name)
        return wait_for(f"the {role} {name!r}", look)

    def find_started(self, name):
        """The main window of that name, once what is typed goes to it or to a pane of its own."""
        window = self.find("frame", name)
        wait_for("the keyboard in the program", lambda: any(
            role == "frame" and is_active(control) for role, _, control in self.controls()))
        return window

    def history(self):
        """What stands above the command line."""
        return read_text(self.find("text", "Command history"))

    def alive(self):
        return self.process.poll() is None

    def box(self, control):
        """Where a control is on the screen, as ((x, y), (width, height))."""
        rect = control.get_extents(atspi().CoordType.SCREEN)
        return (rect.x * self.scale, rect.y * self.scale), \
            (rect.width * self.scale, rect.height * self.scale)

    def middle(self, control):
        (x, y), (width, height) = self.box(control)
        return x + width / 2, y + height / 2

    def click(self, role, name, **how):
        self.screen.click(self.middle(self.find(role, name)), **how)


def is_active(window):
    return window.get_state_set().contains(atspi().StateType.ACTIVE)


def read_text(control):
    text = atspi().Text
    return text.get_text(control, 0, text.get_character_count(control))


def is_selected(item):
    return item.get_state_set().contains(atspi().StateType.SELECTED)


def atspi():
    import gi
    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi
    return Atspi


def shows(control):
    return control.get_state_set().contains(atspi().StateType.SHOWING)


def walk(control):
    from gi.repository import GLib
    try:
        role = control.get_role_name()
        yield role, control.get_name(), control
        # Lists that are folded up, and windows that are closed, have much in them.
        if role in ("combo box", "menu bar") or role != "application" and not shows(control):
            return
        for i in range(control.get_child_count()):
            child = control.get_child_at_index(i)
            if child:
                yield from walk(child)
    except GLib.Error:
        # It went while it was looked at.
        return


def give_up(signum, frame):
    raise AssertionError("ended from outside")


signal.signal(signal.SIGTERM, give_up)
