"""Services that a desktop case puts on the session bus: a module of this package as a process.

The module's program says "ready" when its services can be called, and serves until its standard
input closes.
"""

import subprocess
import sys

import dbus
import dbus.mainloop.glib
from gi.repository import GLib


class Service:
    """Lives from start() to stop()."""

    def __init__(self, desktop, module, *arguments):
        self._desktop = desktop
        self._command = [sys.executable, "-m", module, *arguments]
        self._process = None

    def start(self):
        self._process = subprocess.Popen(self._command, cwd=sys.path[0], env=self._desktop.env,
                                         stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        if self._process.stdout.readline() != b"ready\n":
            raise RuntimeError(f"{' '.join(self._command)} did not come up")

    def kill(self):
        self._process.kill()

    def stop(self):
        if self._process is not None:
            self._process.stdin.close()
            self._process.wait(10)
            self._process.stdout.close()
            self._process = None


def serve(begin):
    """The program of such a module; what `begin` makes of the connection is held until the end."""
    dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
    kept = begin(dbus.SessionBus())
    print("ready", flush=True)
    loop = GLib.MainLoop()
    GLib.io_add_watch(sys.stdin.fileno(), GLib.IO_HUP, lambda *_: loop.quit())
    loop.run()
    del kept
