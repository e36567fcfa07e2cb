"""The desktop of one test: an empty home folder, and our programs started there as a user would start them.

The test looks at them from outside: the accessibility tree, D-Bus, files, pictures, real key and mouse events. It
runs inside a virtual display and a private D-Bus session (see CMakeLists.txt).
"""

import contextlib
import os
import shutil
import subprocess
import tempfile
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

PROGRAMS = os.environ["ORVANTA_PROGRAMS"]


def wait_for(look, what, seconds=30):
    """The first true answer of look(), asked every 50 ms; fails with what was waited for. Objects that go while they
    are looked at are no answer."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        with contextlib.suppress(GLib.GError):
            answer = look()
            if answer:
                return answer
        time.sleep(0.05)
    raise AssertionError(f"{what}: not within {seconds} seconds")


class Desktop:
    """Makes its folder in __enter__, ends every program and removes the folder in __exit__."""

    def __init__(self, scale=1):
        self.scale = scale
        self.processes = []

    def __enter__(self):
        self.folder = tempfile.mkdtemp(prefix="orvanta-system-")
        self.environment = dict(os.environ, HOME=self.folder, XDG_CONFIG_HOME=self.path("config"),
                                XDG_DATA_HOME=self.path("data"), XDG_RUNTIME_DIR=self.path("runtime"),
                                QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", QT_SCALE_FACTOR=str(self.scale))
        os.mkdir(self.path("runtime"), 0o700)
        # The programs run from a copy, away from the place where they were built.
        shutil.copytree(PROGRAMS, self.path("programs"), ignore=shutil.ignore_patterns("test_*", "bench_*", "*.ini"))
        return self

    def __exit__(self, *failure):
        for process in reversed(self.processes):
            if process.poll() is None:
                process.kill()
            process.wait()
        shutil.rmtree(self.folder, ignore_errors=True)

    def path(self, *names):
        return os.path.join(self.folder, *names)

    def program(self, name):
        return self.path("programs", name)

    def start(self, name, *arguments):
        process = subprocess.Popen([self.program(name), *arguments], env=self.environment, cwd=self.folder)
        self.processes.append(process)
        return process

    def is_running(self, name):
        """Whether any process runs that program of this desktop."""
        for process in os.listdir("/proc"):
            try:
                if os.readlink(f"/proc/{process}/exe") == self.program(name):
                    return True
            except OSError:
                pass  # no process, or one that has just ended
        return False

    def run(self, *command):
        """Runs a command on this desktop to its end and gives what it printed."""
        return subprocess.run(command, env=self.environment, cwd=self.folder, check=True, text=True,
                              stdout=subprocess.PIPE, timeout=60).stdout

    def sample(self):
        database = self.path("sample.desk")
        self.run(self.program("contact-desk"), "--new-sample", database)
        return database

    def start_desk(self, *arguments):
        desk = self.start("contact-desk", *arguments)
        wait_for(self.desk_is_on_the_bus, "the contact desk on the bus")
        return desk

    def desk_is_on_the_bus(self):
        return "boolean true" in self.run("dbus-send", "--session", "--print-reply", "--dest=org.freedesktop.DBus", "/",
                                          "org.freedesktop.DBus.NameHasOwner", "string:org.orvanta.ContactDesk")

    def windows(self, title, process):
        """The ids of a process's visible windows whose title matches."""
        found = subprocess.run(["xdotool", "search", "--all", "--onlyvisible", "--pid", str(process.pid), "--name", title],
                               env=self.environment, text=True, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        return found.stdout.split()

    def wait_for_window(self, title, process):
        return wait_for(lambda: self.windows(title, process), f"a window '{title}'")[0]

    def picture(self, path, window="root"):
        self.run("import", "-silent", "-window", window, path)

    # Real events of mouse and keyboard

    def hands(self, *actions):
        self.run("xdotool", *map(str, actions))

    def focus(self, window):
        self.hands("windowraise", window, "windowfocus", "--sync", window)

    def keys(self, *keys):
        self.hands("key", "--delay", 5, *keys)

    def type(self, text):
        """Types over what the field in focus holds."""
        self.keys("ctrl+a")
        self.hands("type", "--delay", 5, text)

    def on_screen(self, place):
        """Programs tell their places before they are scaled."""
        return place[0] * self.scale, place[1] * self.scale

    def click(self, place, button=1, times=1):
        self.hands("mousemove", *self.on_screen(place), "click", "--repeat", times, "--delay", 30, button)

    def drag(self, start, end):
        x, y = self.on_screen(end)
        self.hands("mousemove", *self.on_screen(start), "mousedown", 1, "mousemove", x, y, "mousemove", x + 1, y + 1,
                   "mouseup", 1)

    def drag_with_ctrl(self, start, end):
        self.hands("keydown", "ctrl")
        self.drag(start, end)
        self.hands("keyup", "ctrl")


# The accessibility tree -----------------------------------------------------------------------------------------------

def application_of(process):
    def look():
        tree = Atspi.get_desktop(0)
        for index in range(tree.get_child_count()):
            child = tree.get_child_at_index(index)
            with contextlib.suppress(GLib.GError):  # a program that has just ended
                if child and child.get_process_id() == process.pid:
                    return child
        return None
    return wait_for(look, "the program in the accessibility tree")


def descendants(node):
    for index in range(node.get_child_count()):
        child = node.get_child_at_index(index)
        if child:
            yield child
            if child.get_role() != Atspi.Role.TABLE:
                yield from descendants(child)


def find(process, role, name=None):
    """The first object of that role, and name where one is given, in the program's tree; None if there is none."""
    for node in descendants(application_of(process)):
        if node.get_role() == role and (name is None or node.get_name() == name):
            return node
    return None


def wait_to_find(process, role, name=None):
    return wait_for(lambda: find(process, role, name), f"an object of role {role.value_nick} named {name!r}")


def names(process, role):
    """The names of all objects of that role."""
    return [node.get_name() for node in descendants(application_of(process)) if node.get_role() == role]


def in_sight(process, role):
    """All objects of that role that are to be seen in the program's windows."""
    return [node for node in descendants(application_of(process))
            if node.get_role() == role and has_state(node, Atspi.StateType.SHOWING)]


def has_state(node, state):
    return node.get_state_set().contains(state)


def wait_to_see(process, role, name):
    """The object of that role and name, once it is to be seen."""
    return wait_for(lambda: next((node for node in in_sight(process, role) if node.get_name() == name), None),
                    f"an object of role {role.value_nick} named {name!r} in sight")


def part_of_its_window(node, role, name):
    """The object of that role and name in the same window."""
    while node.get_parent().get_role() != Atspi.Role.APPLICATION:
        node = node.get_parent()
    return next(part for part in descendants(node) if part.get_role() == role and part.get_name() == name)


def is_busy(node):
    """Whether the program of an object is too busy to answer a question about it within a second."""
    Atspi.set_timeout(1000, 1000)
    try:
        Atspi.Component.get_extents(node, Atspi.CoordType.SCREEN)
        return False
    except GLib.GError:
        return True
    finally:
        Atspi.set_timeout(800, 15000)  # the library's own


def middle(node):
    """Where on the screen an object has its middle."""
    place = Atspi.Component.get_extents(node, Atspi.CoordType.SCREEN)
    return place.x + place.width // 2, place.y + place.height // 2


def text_in(process, name):
    """What the text field of that name holds; None without such a field in sight."""
    for field in in_sight(process, Atspi.Role.TEXT):
        if field.get_name() == name:
            return Atspi.Text.get_text(field, 0, -1)
    return None


def texts_in_sight(process, role):
    return [node.get_name() for node in in_sight(process, role)]


def press(process, role, name):
    """Does the default action of an object: a button's press, a menu entry's choice."""
    Atspi.Action.do_action(wait_to_find(process, role, name), 0)


def press_to_open_a_box(process, role, name):
    """The same where the action opens a box: the program answers only once the box has closed."""
    node = wait_to_find(process, role, name)
    Atspi.set_timeout(100, 100)
    try:
        Atspi.Action.do_action(node, 0)
    except GLib.GError:
        pass
    finally:
        Atspi.set_timeout(800, 15000)  # the library's own
    wait_to_find(process, Atspi.Role.PUSH_BUTTON, "OK")


class Grid:
    """The calendar's grid as the accessibility bus tells it."""

    def __init__(self, calendar):
        self.table = wait_to_find(calendar, Atspi.Role.TABLE)
        self.rows = Atspi.Table.get_n_rows(self.table)
        self.columns = Atspi.Table.get_n_columns(self.table)

    def text(self, row, column):
        return Atspi.Table.get_accessible_at(self.table, row, column).get_name()

    def middle(self, row, column):
        return middle(Atspi.Table.get_accessible_at(self.table, row, column))

    def column(self, column):
        return [self.text(row, column) for row in range(self.rows)]
