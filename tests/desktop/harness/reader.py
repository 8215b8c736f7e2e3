"""What a screen reader is told: names, roles and states of what stands in the windows."""

import subprocess
from dataclasses import dataclass, field

import dbus
import dbus.bus

from .bus import call, owner_of
from .ear import Ear
from .waiting import wait_until

LAUNCHER = "/usr/libexec/at-spi-bus-launcher"
LAUNCHER_NAME = "org.a11y.Bus"

ROOT = ("org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root")
ACCESSIBLE = "org.a11y.atspi.Accessible"
COMPONENT = "org.a11y.atspi.Component"
ACTION = "org.a11y.atspi.Action"
TEXT = "org.a11y.atspi.Text"
EDITABLE = "org.a11y.atspi.EditableText"
PROPERTIES = "org.freedesktop.DBus.Properties"

ON_THE_SCREEN = 0  # of the two kinds of coordinates

# The bits of a state that tests ask about.
STATES = {"active": 1, "checked": 4, "editable": 7, "enabled": 8, "focusable": 11, "focused": 12,
          "modal": 16, "showing": 25, "visible": 30, "checkable": 41, "read-only": 43}


@dataclass(frozen=True)
class Element:
    """One thing in a window, as it was when it was read."""

    role: str
    name: str
    description: str
    states: frozenset
    frame: tuple  # on the screen, px: x, y, width, height
    reference: tuple = field(repr=False, compare=False)
    children: tuple = field(repr=False, default=())

    def all(self):
        """This and all below it, in the order of reading."""
        yield self
        for child in self.children:
            yield from child.all()

    def find(self, role, name):
        """The one element of that role and name; LookupError where there is not exactly one."""
        found = [one for one in self.all() if (one.role, one.name) == (role, name)]
        if len(found) != 1:
            raise LookupError(f"{len(found)} of {role} {name!r} in:\n{self.told()}")
        return found[0]

    def told(self):
        """All of it as text, a line each."""
        lines = [f"{self.role} {self.name!r} {self.description!r} {sorted(self.states)}"]
        for child in self.children:
            lines += ["  " + line for line in child.told().splitlines()]
        return "\n".join(lines)


class Reader:
    """The desktop's accessibility service from start() to stop(), and questions to it.

    To be started before the program is, which speaks to it from its own start on.
    """

    def __init__(self, desktop):
        self._desktop = desktop
        self._launcher = None
        self._connection = None
        self.ear = None

    def start(self):
        self._desktop.env["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
        self._launcher = subprocess.Popen(
            [LAUNCHER, "--launch-immediately"], env=self._desktop.env, stdin=subprocess.DEVNULL,
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        wait_until("the service", lambda: owner_of(self._desktop, LAUNCHER_NAME))
        address = call(self._desktop, LAUNCHER_NAME, "/org/a11y/bus", LAUNCHER_NAME, "GetAddress")
        self._connection = dbus.bus.BusConnection(address)
        self._connection.set_exit_on_disconnect(False)
        self.ear = Ear(self._desktop, address)
        self.ear.start()

    def stop(self):
        if self.ear is not None:
            self.ear.stop()
        if self._connection is not None:
            self._connection.close()
        if self._launcher is not None:
            self._launcher.terminate()
            self._launcher.wait(10)

    def windows(self):
        """The titles of the windows that are told of."""
        return [str(self._property(window, "Name")) for window in self._windows()]

    def window(self, title):
        """What stands in the window of that title, be it scrolled out of sight."""
        return wait_until(f"{title} to be told of", lambda: self._read_window(title))

    def press(self, element):
        """Does what a press of it does."""
        actions = [str(name) for name, *_ in self._ask(element.reference, ACTION, "GetActions")]
        self._ask(element.reference, ACTION, "DoAction", "i", actions.index("Press"))

    def part_of_text(self, element, which, offset, boundary):
        """A part of a field's text, "At", "Before" or "After" the offset: text, start, end."""
        text, start, end = self._ask(element.reference, TEXT, f"GetText{which}Offset", "iu", offset,
                                     boundary)
        return str(text), int(start), int(end)

    def attribute_run(self, element, offset):
        """Where the run of equal attributes around the offset begins and ends."""
        _, start, end = self._ask(element.reference, TEXT, "GetAttributeRun", "ib", offset, True)
        return int(start), int(end)

    def edit(self, element, text):
        """Puts the text into a field in place of what stands there."""
        return bool(self._ask(element.reference, EDITABLE, "SetTextContents", "s", text))

    def _read_window(self, title):
        # What is being changed can't be read: then it is read once more.
        try:
            for window in self._windows():
                if self._property(window, "Name") == title:
                    return self._read(window)
        except dbus.DBusException:
            pass
        return None

    def _windows(self):
        for application in self._children(ROOT):
            yield from self._children(application)

    def _read(self, reference):
        """The element with what is below it; none while it is hidden."""
        states = self._states(reference)
        if "visible" not in states:
            return None
        children = (self._read(child) for child in self._children(reference))
        frame = self._ask(reference, COMPONENT, "GetExtents", "u", ON_THE_SCREEN)
        return Element(role=str(self._ask(reference, ACCESSIBLE, "GetRoleName")),
                       name=str(self._property(reference, "Name")),
                       description=str(self._property(reference, "Description")),
                       states=states, frame=tuple(int(part) for part in frame),
                       reference=reference,
                       children=tuple(child for child in children if child is not None))

    def _states(self, reference):
        low, high = self._ask(reference, ACCESSIBLE, "GetState")
        bits = int(low) | int(high) << 32
        return frozenset(name for name, bit in STATES.items() if bits >> bit & 1)

    def _children(self, reference):
        return [tuple(child) for child in self._ask(reference, ACCESSIBLE, "GetChildren")]

    def _property(self, reference, name):
        return self._ask(reference, PROPERTIES, "Get", "ss", ACCESSIBLE, name)

    def _ask(self, reference, interface, method, signature="", *arguments):
        return self._connection.call_blocking(*reference, interface, method, signature, arguments,
                                              timeout=25)
