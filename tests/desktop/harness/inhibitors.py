"""A session manager that applications ask to keep the session awake, as GNOME's is asked.

It and the application in a call are processes of their own (this file as a program). An inhibitor
lasts until its application gives it back or leaves the bus.
"""

import subprocess
import sys
from pathlib import Path

import dbus
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

NAME = "org.gnome.SessionManager"
PATH = "/org/gnome/SessionManager"
IDLE = 8


class _Process:
    """Lives from start() to stop()."""

    role = None

    def __init__(self, desktop):
        self._desktop = desktop
        self._process = None

    def start(self):
        self._process = subprocess.Popen([sys.executable, "-m", __name__, self.role],
                                         cwd=Path(__file__).resolve().parents[1],
                                         env=self._desktop.env, stdin=subprocess.PIPE,
                                         stdout=subprocess.PIPE)
        if self._process.stdout.readline() != b"ready\n":
            raise RuntimeError(f"the {self.role} did not come up")

    def kill(self):
        self._process.kill()

    def stop(self):
        if self._process is not None:
            self._process.stdin.close()
            self._process.wait(10)
            self._process.stdout.close()
            self._process = None


class SessionManager(_Process):
    """Started without anything that keeps the session awake."""

    role = "manager"


class Phone(_Process):
    """An application that is in a call while it runs."""

    role = "phone"


class _Manager(dbus.service.Object):

    def __init__(self, connection):
        super().__init__(connection, PATH)
        self._connection = connection
        self._flags = {}  # by cookie

    @dbus.service.method(NAME, in_signature="susu", out_signature="u", sender_keyword="sender")
    def Inhibit(self, _application, _window, _reason, flags, sender=None):
        cookie = len(self._flags) + 1
        self._flags[cookie] = int(flags)
        self._connection.watch_name_owner(sender, lambda owner: owner or self._drop(cookie))
        self.InhibitorAdded(f"{PATH}/Inhibitor{cookie}")
        return cookie

    def _drop(self, cookie):
        if self._flags.get(cookie):
            self._flags[cookie] = 0
            self.InhibitorRemoved(f"{PATH}/Inhibitor{cookie}")

    @dbus.service.signal(NAME, signature="o")
    def InhibitorAdded(self, _inhibitor):
        """Told after the fact."""

    @dbus.service.signal(NAME, signature="o")
    def InhibitorRemoved(self, _inhibitor):
        """Told after the fact."""

    @dbus.service.method(NAME, in_signature="u", out_signature="b")
    def IsInhibited(self, flags):
        return any(held & flags for held in self._flags.values())


def _manage(connection):
    manager = _Manager(connection)  # answers for as long as it is held
    connection.request_name(NAME)
    return manager


def _call(connection):
    manager = dbus.Interface(connection.get_object(NAME, PATH, introspect=False), NAME)
    manager.Inhibit("a phone", dbus.UInt32(0), "in a call", dbus.UInt32(IDLE))


def _serve(role):
    dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
    connection = dbus.SessionBus()
    kept = (_manage if role == SessionManager.role else _call)(connection)
    print("ready", flush=True)
    loop = GLib.MainLoop()
    GLib.io_add_watch(sys.stdin.fileno(), GLib.IO_HUP, lambda *_: loop.quit())
    loop.run()
    del kept


if __name__ == "__main__":
    _serve(sys.argv[1])
