"""What a screen reader hears without asking: the events of the desktop's accessibility service.

Run as a program, listens on the bus of the address and writes each event as a line of JSON.
"""

import json
import subprocess
import sys
from dataclasses import dataclass

import dbus
import dbus.bus
import dbus.mainloop.glib
from gi.repository import GLib

from .waiting import wait_until

EVENTS = "org.a11y.atspi.Event.Object"
WANTED = ("object:state-changed:showing", "object:state-changed:focused", "object:text-changed",
          "object:property-change")
ACCESSIBLE = "org.a11y.atspi.Accessible"
READY = {"kind": "ready"}


@dataclass(frozen=True)
class Heard:
    kind: str  # "StateChanged:showing"
    now: int  # of a state: whether it holds
    role: str
    name: str
    description: str
    text: str  # that came or went


class Ear:
    """Listens from start() to stop()."""

    def __init__(self, desktop, address):
        self._desktop = desktop
        self._address = address
        self._file = desktop.directory / "heard"
        self._process = None

    def start(self):
        self._process = subprocess.Popen(
            [sys.executable, "-m", __name__, self._address], cwd=sys.path[0],
            env=self._desktop.env, stdin=subprocess.PIPE, stdout=self._file.open("w"))
        wait_until("the ear", lambda: self._lines()[:1] == [READY])

    def stop(self):
        if self._process is not None:
            self._process.stdin.close()
            self._process.wait(10)

    def _lines(self):
        whole = self._file.read_text().rpartition("\n")[0]
        return [json.loads(line) for line in whole.splitlines()]

    def heard(self):
        """All events so far."""
        return [Heard(**line) for line in self._lines()[1:]]

    def announced(self):
        """The notifications so far, which readers speak whatever has the focus."""
        return [one.name for one in self.heard() if one.role == "notification"
                and one.kind == "StateChanged:showing" and one.now == 1]

    def await_announced(self, words, whole=True):
        """Waits for the notification of these words, or of one that begins with them."""
        def told():
            return any(one == words or not whole and one.startswith(words)
                       for one in self.announced())

        try:
            wait_until(f"{words!r} to be announced", told)
        except AssertionError as failure:
            raise AssertionError(f"{failure}: {self.announced()}") from None


def listen(address):
    dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
    bus = dbus.bus.BusConnection(address)
    bus.set_exit_on_disconnect(False)

    def ask(sender, path, method, *arguments):
        try:
            return str(bus.call_blocking(sender, path, *method, *arguments, timeout=5))
        except dbus.DBusException:
            return ""

    def on_event(detail, now, _length, text, *_rest, member=None, sender=None, path=None):
        properties = ("org.freedesktop.DBus.Properties", "Get", "ss")
        print(json.dumps({
            "kind": f"{member}:{detail}", "now": int(now),
            "role": ask(sender, path, (ACCESSIBLE, "GetRoleName", ""), ()),
            "name": ask(sender, path, properties, (ACCESSIBLE, "Name")),
            "description": ask(sender, path, properties, (ACCESSIBLE, "Description")),
            "text": str(text) if isinstance(text, str) else ""}), flush=True)

    bus.add_signal_receiver(on_event, dbus_interface=EVENTS, member_keyword="member",
                            sender_keyword="sender", path_keyword="path")
    for event in WANTED:
        bus.call_blocking("org.a11y.atspi.Registry", "/org/a11y/atspi/registry",
                          "org.a11y.atspi.Registry", "RegisterEvent", "s", (event,))
    print(json.dumps(READY), flush=True)
    loop = GLib.MainLoop()
    GLib.io_add_watch(sys.stdin.fileno(), GLib.IO_HUP, lambda *_: loop.quit())
    loop.run()


if __name__ == "__main__":
    listen(sys.argv[1])
