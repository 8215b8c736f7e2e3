"""The program that follows the work by itself: auto mode and the person's shortcuts."""

import time
from pathlib import Path

from harness.case import FIRST_SKILL, DesktopTest
from harness.waiting import wait_until

DWELL = 45  # seconds in another application until a session follows it

ENTRY = """[Desktop Entry]
Type=Application
Name=Painter
Exec=xterm -class Painter
StartupWMClass=Painter
"""


class FollowsWork(DesktopTest):

    def install_application(self, entry_id):
        folder = Path(self.desktop.env["XDG_DATA_HOME"], "applications")
        folder.mkdir(parents=True, exist_ok=True)
        (folder / f"{entry_id}.desktop").write_text(ENTRY)

    def open_in_front(self, window_class, title):
        self.desktop.open("xterm", "-class", window_class, "-T", title)
        wait_until(f"{title} in front", lambda: self.desktop.active_window_title() == title)

    def test_a_while_in_a_known_application_files_the_rest_under_its_skill(self):
        self.install_application("gimp")
        self.launch()
        self.open_in_front("XTerm", "a terminal")
        self.begin_session()
        self.open_in_front("Painter", "a painting")
        stayed_from = time.monotonic()
        # Somebody works there: the pointer moves now and then.
        while not self.vantle.sessions() and time.monotonic() - stayed_from < DWELL + 20:
            self.desktop.nudge_pointer()
            time.sleep(1)
        self.assertGreater(time.monotonic() - stayed_from, DWELL - 2)
        record, = self.vantle.sessions()
        marker = wait_until("the session goes on", self.vantle.marker)
        self.assertEqual(record["skillId"], FIRST_SKILL)
        self.assertEqual(marker["skillId"], "product_design")
        self.assertEqual(marker["startedAt"], record["endedAt"], "nothing is lost at the seam")

    def test_the_persons_shortcuts_run_at_both_ends(self):
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
