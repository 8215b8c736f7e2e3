"""What opening and closing windows leaves in memory."""

import unittest
from datetime import datetime, timedelta
from pathlib import Path

from harness.bus import activate
from harness.case import PANEL_TITLE, DesktopTest
from harness.records import worked
from harness.waiting import wait_until
from harness.windows import DASHBOARD, NOTES, QUICK_LOG, SETTINGS, WELCOME, WRAPPED, WindowCase

ROUNDS = 10
SESSIONS = 10000  # so many that a window that keeps them is noticed
MAY_KEEP = 5 * 1024  # KB


class Memory(WindowCase):

    tray_kind = DesktopTest.NO_TRAY

    def resident_kilobytes(self):
        for line in Path(f"/proc/{self.vantle.pid}/smaps_rollup").read_text().splitlines():
            if line.startswith("Rss:"):
                return int(line.split()[1])
        raise AssertionError("the kernel does not tell")

    def assert_rounds_keep_little(self, play):
        play()
        first = self.resident_kilobytes()
        for _ in range(ROUNDS):
            play()

        def kept():
            return self.resident_kilobytes() - first

        # What closed last is given back a moment later.
        try:
            wait_until("the memory back", lambda: kept() < MAY_KEEP)
        except AssertionError:
            self.fail(f"{kept()} KB more than after the first of {ROUNDS + 1} rounds")

    def play_window(self, window):
        self.open(*window)
        self.close(window[1])

    def play_welcome(self):
        """It is opened from the settings, five stops back from where the keyboard is at first."""
        self.open(*SETTINGS)
        self.desktop.tool("xdotool", "key", "--repeat", "5", "shift+Tab", "key", "Return")
        wait_until("the welcome", lambda: self.desktop.active_window_title() == WELCOME)
        self.close(WELCOME)
        wait_until("the settings", lambda: self.desktop.active_window_title() == SETTINGS[1])
        self.close(SETTINGS[1])

    def play_panel(self):
        activate(self.desktop)
        self.desktop.await_keyboard(PANEL_TITLE)
        self.desktop.press("Escape")
        wait_until("no panel", lambda: not self.desktop.windows_named(PANEL_TITLE))

    def test_rounds_of_every_window_leave_the_memory_as_it_was(self):
        self.desktop.env["VANTLE_AUTOSTART"] = "1"
        first = datetime(2025, 1, 1)
        self.write_records(worked(number, first + timedelta(minutes=40 * number), 30,
                                  note=f"note {number}") for number in range(SESSIONS))
        self.launch()
        for window in (DASHBOARD, NOTES, QUICK_LOG, SETTINGS, WRAPPED):
            with self.subTest(window=window):
                self.assert_rounds_keep_little(lambda: self.play_window(window))
        for window, play in ((WELCOME, self.play_welcome), (PANEL_TITLE, self.play_panel)):
            with self.subTest(window=window):
                self.assert_rounds_keep_little(play)


if __name__ == "__main__":
    unittest.main()
