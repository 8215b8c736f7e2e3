"""The frame of tests about the program's windows."""

import json

from .bus import activate_action
from .case import DesktopTest
from .records import record
from .waiting import wait_until

# The action that opens a window, and its title.
DASHBOARD = ("dashboard", "Your hours")
NOTES = ("notes", "Your notes")
QUICK_LOG = ("quick-log", "Quick Log")
SETTINGS = ("settings", "Settings")
WRAPPED = ("wrapped", "Wrapped")
WELCOME = "Welcome"


class WindowCase(DesktopTest):

    compositor = True

    def write_records(self, records):
        directory = self.vantle.data_directory
        directory.mkdir(mode=0o700, parents=True, exist_ok=True)
        self.vantle.log_file.write_text("".join(json.dumps(one) + "\n" for one in records))

    def write_log(self, *notes):
        self.write_records(record(number, note) for number, note in enumerate(notes, 1))

    def notes(self):
        return [session["note"] for session in self.vantle.sessions()]

    def log_no_time(self):
        """Opens the form for time by hand and asks it to log 0 h 0 min."""
        self.open(*QUICK_LOG)
        self.desktop.press("ctrl+a")
        self.desktop.type("0")
        self.desktop.press("Tab")
        self.desktop.type("0")
        self.desktop.press("Return")

    def open(self, action, title):
        """Opens a window and waits until it has the keyboard."""
        activate_action(self.desktop, action)
        window, = wait_until(title, lambda: self.desktop.windows_named(title))
        wait_until("the window in front", lambda: self.desktop.active_window() == window)
        self.assertEqual(self.desktop.active_window_title(), title)
        return window

    def await_closed(self, title):
        wait_until("the window gone", lambda: not self.desktop.windows_named(title))

    def close(self, title):
        self.desktop.press("ctrl+w")
        self.await_closed(title)


class ReaderCase(WindowCase):
    """With a screen reader, `self.reader`; the capsule and the tray stay away."""

    tray_kind = DesktopTest.NO_TRAY

    def setUp(self):
        super().setUp()
        self.desktop.env["VANTLE_AUTOSTART"] = "1"  # nothing pops up by itself
        self.reader = self.start_reader()

    def await_told(self, title, role, name):
        """Waits until the window tells of the one element of that role and name."""
        def told():
            try:
                return self.reader.window(title).find(role, name)
            except LookupError:
                return None

        try:
            return wait_until(f"{role} {name!r}", told)
        except AssertionError as failure:
            raise AssertionError(f"{failure}:\n{self.reader.window(title).told()}") from None

    def await_focused(self, title, role, name):
        """The same of an element that has the keyboard, which comes after the window itself."""
        return wait_until(f"the keyboard on {name!r}", lambda: next((
            one for one in self.reader.window(title).all()
            if (one.role, one.name) == (role, name) and "focused" in one.states), None))
