#!/usr/bin/python3
"""native_window.py <application id> <file>

A window of Wayland's own over the whole screen, which X11 knows nothing of. Writes what it gets to
the file, a line each: "key a", "press 640 60".
"""

import sys

import gi

gi.require_version("Gdk", "3.0")
gi.require_version("Gtk", "3.0")
from gi.repository import Gdk, GLib, Gtk  # noqa: E402


def main():
    application, path = sys.argv[1:]
    with open(path, "w", buffering=1, encoding="utf-8") as log:
        GLib.set_prgname(application)  # what the compositor is told
        window = Gtk.Window(title=application)
        window.add_events(Gdk.EventMask.BUTTON_PRESS_MASK)
        window.connect("key-press-event",
                       lambda _, event: log.write(f"key {Gdk.keyval_name(event.keyval)}\n"))
        window.connect("button-press-event",
                       lambda _, event: log.write(f"press {event.x:.0f} {event.y:.0f}\n"))
        window.connect("destroy", Gtk.main_quit)
        window.fullscreen()
        window.show_all()
        Gtk.main()


if __name__ == "__main__":
    main()
