"""The settings window, worked by keys, with a look at what landed in the files."""

import stat
import unittest
from pathlib import Path

from harness.bus import activate_action
from harness.case import DesktopTest
from harness.waiting import wait_until

TITLE = "Settings"


class Settings(DesktopTest):

    def setUp(self):
        super().setUp()
        # What is installed here may ask which file manager to take, in front of the window.
        opener = self.desktop.directory / "bin" / "xdg-open"
        opener.parent.mkdir()
        opener.write_text("#!/bin/sh\n")
        opener.chmod(0o755)
        self.desktop.env["PATH"] = f"{opener.parent}:{self.desktop.env['PATH']}"
        self.launch()
        activate_action(self.desktop, "settings")
        self.await_in_front()

    def await_in_front(self):
        wait_until("the window in front",
                   lambda: self.desktop.active_window() in self.desktop.windows_named(TITLE))

    @property
    def config(self):
        return Path(self.desktop.env["XDG_CONFIG_HOME"])

    def stored(self, key):
        """What the preference file says of a key; none if nothing."""
        path = self.config / "Vantle" / "preferences.ini"
        for line in path.read_text().splitlines() if path.exists() else []:
            if line.startswith(key + "="):
                return line.partition("=")[2]
        return None

    def await_stored(self, key, value):
        wait_until(f"{key} = {value}", lambda: self.stored(key) == value)

    def await_rest(self):
        """Waits until the answer of the tool shows: Tab leads elsewhere before."""
        window, = self.desktop.windows_named(TITLE)
        self.desktop.await_still(*self.desktop.frame_of(window), seconds=1.0)

    def tab(self, times=1, key="Tab"):
        for _ in range(times):
            self.desktop.press(key)

    def go_to_erase(self):
        """From where the keyboard is at first, backwards: past the strip's two buttons."""
        self.tab(3, "shift+Tab")

    def test_every_preference_is_stored_as_soon_as_it_is_changed(self):
        self.tab()
        self.desktop.press("Right")
        self.await_stored("idle.thresholdSeconds", "240")
        self.tab()
        self.desktop.press("space")
        self.await_stored("idle.callsCount", "true")
        self.tab(2)
        self.desktop.press("space")
        self.await_stored("goal.dailyHours", "2.5")
        self.tab()
        self.desktop.press("space")
        self.await_stored("focus.linked", "true")
        self.desktop.press("space")
        self.await_stored("focus.linked", "false")
        self.tab()
        self.desktop.press("space")
        self.await_stored("ripple.disabled", "true")
        self.tab()
        self.desktop.press("space")
        self.await_stored("ceremony.blackout", "false")
        self.tab()
        self.desktop.press("space")
        self.await_stored("auto.enabled", "false")
        self.tab()
        self.desktop.press("space")
        self.await_stored("auto.autostart", "true")
        self.desktop.screenshot("changed")

    def test_the_login_switch_takes_the_entry_away_and_makes_it_again(self):
        entry = self.config / "autostart" / "local.vantle.Vantle.desktop"
        self.assertTrue(entry.exists(), "made at the first start")
        self.go_to_erase()
        self.tab(4, "shift+Tab")  # export, welcome, durations
        self.desktop.screenshot("login")
        self.desktop.press("space")
        wait_until("no entry", lambda: not entry.exists())
        self.desktop.press("space")
        wait_until("an entry", entry.exists)

    def test_export_leaves_a_log_even_when_there_was_none(self):
        self.go_to_erase()
        self.tab(1, "shift+Tab")
        self.desktop.press("Return")
        wait_until("a log", self.vantle.log_file.exists)
        self.assertEqual(self.vantle.log_bytes(), b"")
        self.assertEqual(stat.S_IMODE(self.vantle.log_file.stat().st_mode), 0o600)

    def test_the_folder_of_shortcuts_is_made_and_what_is_put_there_is_found(self):
        folder = self.config / "Vantle" / "shortcuts"
        self.tab(5)
        self.desktop.press("space")
        self.await_stored("focus.linked", "true")
        self.await_rest()
        self.desktop.screenshot("none")
        self.tab(3)  # past both menus, which those that come along are in

        def made():
            self.desktop.press("Return")
            return folder.is_dir()
        wait_until("the folder", made)
        self.assertEqual(stat.S_IMODE(folder.stat().st_mode), 0o700)
        ran = self.desktop.directory / "ran"
        shortcut = folder / "Deep Work"
        shortcut.write_text(f"#!/bin/sh\ntouch '{ran}'\n")
        shortcut.chmod(0o700)
        self.tab(3, "shift+Tab")
        self.desktop.press("space")
        self.await_stored("focus.linked", "false")
        self.desktop.press("space")
        self.await_stored("focus.linked", "true")
        self.await_rest()
        self.tab()

        def chosen():
            self.desktop.press("Return")  # opens the menu
            self.desktop.press("Home")
            self.desktop.press("Down")  # from the empty choice to the user's own
            self.desktop.press("Return")
            return self.stored("focus.shortcut.start") == "Deep Work"

        wait_until("the choice", chosen)
        self.desktop.screenshot("found")
        self.begin_session()
        wait_until("the shortcut's work", ran.exists)

    def test_erase_asks_and_then_takes_all_of_a_running_session(self):
        self.begin_session()
        self.await_in_front()
        self.go_to_erase()
        self.desktop.press("Return")
        self.desktop.screenshot("question")
        self.desktop.press("Escape")
        self.assertIsNotNone(self.vantle.marker(), "Escape cancels")
        self.desktop.press("Return")
        self.tab()
        self.desktop.press("Return")
        wait_until("no marker", lambda: self.vantle.marker() is None)
        self.desktop.screenshot("erased")
        self.assertEqual(self.vantle.sessions(), [])
        self.assertIsNone(self.stored("login.autoRegistered"))
        self.assertTrue(self.vantle.is_running())
        # All that comes until it is done is practice: so it can't be missed.
        wait_until("the welcome", lambda: self.desktop.windows_named("Welcome"))


if __name__ == "__main__":
    unittest.main()
