"""A tour of the whole program under a trace of its system calls."""

import os
from pathlib import Path

from harness.case import PANEL_TITLE
from harness.trace import Trace
from harness.waiting import wait_until
from harness.windows import DASHBOARD, NOTES, QUICK_LOG, SETTINGS, WRAPPED, WindowCase

OPENED = Path(__file__).resolve().parent / "opened.txt"

# Where the program may leave something: its data, its preferences, the entry that starts it at
# login, and what only lives in memory. Views that the build did not compile, as in a debug build,
# Qt compiles once and keeps in its cache.
MAY_WRITE = ("~/data/Vantle", "~/config/Vantle", "~/config/autostart", "~/cache/vantle",
             "/dev/shm", "/dev/null", "/memfd:", "/proc/{id}/")


# What the C library and Qt read of the machine itself on some systems: how many processors and how
# much memory there is (where /sys is not mounted, as in a container), and who the user is.
SOMETIMES = {"/proc/stat", "/proc/cpuinfo", "/proc/meminfo", "/proc/filesystems", "/etc/passwd",
             "/etc/nsswitch.conf", "/etc/machine-id", "/lib64", "/usr/lib64"}


class Privacy(WindowCase):

    def tour(self):
        """A session, each window with something in it, and the end."""
        self.begin_session()
        self.desktop.type("work")
        for action, title in (DASHBOARD, NOTES, SETTINGS, WRAPPED):
            self.open(action, title)
            self.desktop.press("Tab")
            self.close(title)
        self.open(*QUICK_LOG)
        self.desktop.press("ctrl+a")
        self.desktop.type("1")
        self.desktop.press("Return")
        self.await_closed("Quick Log")
        self.end_session()
        self.desktop.press("Escape")
        wait_until("no panel", lambda: not self.desktop.windows_named(PANEL_TITLE))
        self.vantle.stop()

    def test_a_tour_of_the_program_leaves_the_machine_alone(self):
        self.write_log("first", "second", "third")
        trace = Trace(self.desktop.directory, self.desktop.directory)
        self.launch(through=trace.command)
        self.tour()
        self.assertLessEqual(trace.sockets(), {"UNIX"}, "no socket but Unix ones")
        self.assertEqual(trace.children()[1:], [], "no program but its own")
        stray = {path for path in trace.written() if not path.startswith(MAY_WRITE)}
        self.assertEqual(stray, set(), "nothing is written elsewhere")
        known = set(OPENED.read_text(encoding="utf-8").splitlines()) if OPENED.exists() else set()
        if os.environ.get("VANTLE_KEEP_OPENED"):
            OPENED.write_text("".join(f"{place}\n" for place in sorted(trace.opened())))
            return
        self.assertLessEqual(trace.opened(), known | SOMETIMES,
                             "places that were opened are in opened.txt")
