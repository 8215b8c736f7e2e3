"""Auto mode and the user's shortcuts."""

import time
from pathlib import Path

from harness.case import FIRST_SKILL, DesktopTest
from harness.waiting import wait_until

DWELL = 45  # seconds in another application until a session follows it


class FollowsWork(DesktopTest):

    def open_in_front(self, window_class, title):
        self.desktop.open("xterm", "-class", window_class, "-T", title)
        wait_until(f"{title} in front", lambda: self.desktop.active_window_title() == title)

    def stay(self, seconds):
        """Works in the application in front: the pointer moves now and then."""
        until = time.monotonic() + seconds
        while time.monotonic() < until:
            self.desktop.nudge_pointer()
            time.sleep(0.5)

    def test_a_while_in_a_known_application_files_the_rest_under_its_skill(self):
        self.install_application("gimp", "Painter")
        self.launch()
        self.open_in_front("XTerm", "a terminal")
        self.begin_session()
        self.open_in_front("Painter", "a painting")
        self.stay(DWELL - 5)
        self.assertEqual(self.vantle.sessions(), [])
        self.stay(10)
        wait_until("the split", self.vantle.sessions)
        record, = self.vantle.sessions()
        marker = wait_until("the session goes on", self.vantle.marker)
        self.assertEqual(record["skillId"], FIRST_SKILL)
        self.assertEqual(marker["skillId"], "product_design")
        self.assertEqual(marker["startedAt"], record["endedAt"], "nothing is lost at the seam")

    def test_a_short_trip_elsewhere_keeps_what_was_banked(self):
        self.install_application("gimp", "Painter")
        self.launch()
        self.open_in_front("XTerm", "a terminal")
        self.begin_session()
        self.open_in_front("Painter", "a painting")
        self.stay(30)
        self.desktop.tool("xdotool", "search", "--name", "a terminal", "windowactivate")
        self.stay(3)
        self.assertEqual(self.vantle.sessions(), [])
        self.desktop.tool("xdotool", "search", "--name", "a painting", "windowactivate")
        self.stay(DWELL - 30 + 5)  # with what the first stay put by, this is enough
        wait_until("the split", self.vantle.sessions)
        self.assertEqual(self.vantle.marker()["skillId"], "product_design")

    def test_a_closed_application_is_not_in_front_any_more(self):
        self.install_application("gimp", "Painter")
        self.launch()
        self.begin_session()
        self.open_in_front("Painter", "a painting")
        self.stay(3)
        self.desktop.tool("xdotool", "search", "--name", "a painting", "windowkill")
        self.stay(DWELL + 5)
        self.assertEqual(self.vantle.sessions(), [], "no split for a window that is gone")
        self.end_session()
        record, = wait_until("the record", self.vantle.sessions)
        self.assertEqual(record["skillId"], FIRST_SKILL)

    def test_two_minutes_in_a_known_application_start_a_session_if_enabled(self):
        self.install_application("gimp", "Painter")
        self.vantle.write_preferences(auto__autostart="true")
        self.launch()
        self.open_in_front("Painter", "a painting")
        self.stay(110)
        self.assertIsNone(self.vantle.marker())
        self.stay(15)
        self.assertEqual(wait_until("a session", self.vantle.marker)["skillId"], "product_design")

    def test_the_users_shortcuts_run_at_both_ends(self):
        shortcuts = Path(self.desktop.env["XDG_CONFIG_HOME"], "Vantle", "shortcuts")
        shortcuts.mkdir(parents=True)
        told = self.desktop.directory / "told"
        for name in ("quiet 'please'", "all clear"):
            script = shortcuts / name
            script.write_text(f'#!/bin/sh\nprintf "%s;" "${{0##*/}}" >> {told}\n')
            script.chmod(0o700)
        self.vantle.write_preferences(focus__linked="true",
                                      focus__shortcut__start="quiet 'please'",
                                      focus__shortcut__stop="all clear")
        self.launch()
        self.begin_session()
        wait_until("the first shortcut",
                   lambda: told.exists() and told.read_text() == "quiet 'please';")
        self.end_session()
        wait_until("the second shortcut",
                   lambda: told.read_text() == "quiet 'please';all clear;")

    def test_the_users_shortcut_finds_the_environment_of_the_session(self):
        shortcuts = Path(self.desktop.env["XDG_CONFIG_HOME"], "Vantle", "shortcuts")
        shortcuts.mkdir(parents=True)
        told = self.desktop.directory / "told"
        script = shortcuts / "look around"
        script.write_text(f"#!/bin/sh\nenv -0 > {told}.new && mv {told}.new {told}\n")
        script.chmod(0o700)
        # As in a session, where the program chooses its own platform.
        del self.desktop.env["QT_QPA_PLATFORM"]
        session = dict(self.desktop.env, MARK="of the session")
        self.desktop.env.update(session, VANTLE_AUTOSTART="1", XDG_ACTIVATION_TOKEN="used",
                                DESKTOP_STARTUP_ID="used")
        self.vantle.write_preferences(focus__linked="true", focus__shortcut__start="look around")
        self.launch()
        self.begin_session()
        wait_until("the shortcut", told.exists)
        found = dict(entry.split("=", 1) for entry in told.read_text().split("\0") if entry)
        # The shell sets some itself.
        self.assertEqual({name for name in found if found[name] != session.get(name)}
                         - {"PWD", "OLDPWD", "SHLVL", "_"}, set())
        self.assertEqual(found["MARK"], "of the session")
