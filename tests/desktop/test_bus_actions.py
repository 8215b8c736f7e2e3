"""The program's object on the session bus, for launchers and for keys bound on the desktop."""

import subprocess
import sys
import time
from pathlib import Path

import dbus

from harness.bus import activate, activate_action
from harness.case import PANEL_TITLE, ROOT, SHORTCUT, DesktopTest
from harness.waiting import wait_until

HOLD_KEY = Path(__file__).parent / "harness" / "hold_key.py"


class BusActions(DesktopTest):

    def test_the_toggle_action_starts_and_ends_a_session(self):
        self.launch()
        activate_action(self.desktop, "toggle")
        wait_until("a marker", self.vantle.marker)
        activate_action(self.desktop, "toggle")
        wait_until("a record", self.vantle.sessions)
        self.assert_one_record_and_no_marker()

    def test_activation_leaves_a_running_session_alone(self):
        self.launch()
        marker = self.begin_session()
        activate(self.desktop)
        self.assertEqual(self.vantle.marker(), marker)
        self.assertEqual(self.end_session()["id"], marker["id"])

    def test_an_unknown_action_changes_nothing(self):
        self.launch()
        try:
            activate_action(self.desktop, "no-such-action")
        except dbus.DBusException:
            pass  # to be refused is as good as to be ignored
        self.assertTrue(self.vantle.is_running())
        self.assertIsNone(self.vantle.marker())
        self.assertEqual(self.vantle.sessions(), [])


class BoundKey(DesktopTest):
    """A key that the user bound to the command, on a desktop that runs it at each repeat."""

    KEYS = "<openbox_config xmlns='http://openbox.org/3.4/rc'><keyboard>" \
        "<keybind key='A-F9'><action name='Execute'><command>{}</command></action></keybind>" \
        "</keyboard></openbox_config>"

    def test_a_held_key_starts_one_session_and_the_next_press_ends_it(self):
        self.launch()
        runs = self.desktop.directory / "runs"
        script = self.desktop.directory / "bound"
        script.write_text(f"#!/bin/sh\necho begun >>{runs}\n{self.command_of_the_readme()}\n"
                          f"echo done >>{runs}\n")
        script.chmod(0o755)
        rules = Path(self.desktop.env["XDG_CONFIG_HOME"], "openbox", "rc.xml")
        rules.parent.mkdir()
        rules.write_text(self.KEYS.format(script))
        self.desktop.tool("openbox", "--reconfigure")
        self.desktop.tool("xset", "r", "rate", "400", "25")

        def runs_so_far():
            lines = runs.read_text().splitlines() if runs.exists() else []
            return lines.count("begun"), lines.count("done")

        def hold():
            before, _ = runs_so_far()
            self.desktop.tool("xdotool", "keydown", "alt", "keydown", "F9")
            wait_until("repeats of the key", lambda: runs_so_far()[0] > before + 10)
            self.desktop.tool("xdotool", "keyup", "F9", "keyup", "alt")

        def has_rested():
            before = runs_so_far()
            time.sleep(1.5)  # a press within a second of the last one is a repeat
            return before[0] == before[1] and before == runs_so_far()

        hold()
        wait_until("a marker", self.vantle.marker)
        session = self.vantle.marker()["id"]
        wait_until("the last of the repeats", has_rested)
        self.assertEqual(self.vantle.marker()["id"], session)
        hold()
        wait_until("a record", self.vantle.sessions)
        wait_until("the last of the repeats", has_rested)
        self.assert_one_record_and_no_marker()

    @staticmethod
    def command_of_the_readme():
        return next(line for line in (ROOT / "README.md").read_text().splitlines()
                    if line.startswith("gdbus call"))


class WithoutTray(DesktopTest):

    tray_kind = DesktopTest.NO_TRAY

    def test_activation_brings_the_panel_back(self):
        self.launch()
        activate(self.desktop)
        wait_until("the panel", lambda: self.desktop.windows_named(PANEL_TITLE))
        self.desktop.screenshot("panel")

    def test_a_program_that_the_bus_started_shows_only_what_it_is_called_for(self):
        self.desktop.env["VANTLE_AUTOSTART"] = "1"
        self.launch()
        activate_action(self.desktop, "notes")
        wait_until("the notes", lambda: self.desktop.windows_named("Your notes"))
        self.assertEqual(self.desktop.windows_named(PANEL_TITLE), [])


class HeldKey(DesktopTest):

    tray_kind = DesktopTest.STATUS_NOTIFIER

    def setUp(self):
        super().setUp()
        self._holder = subprocess.Popen([sys.executable, HOLD_KEY], env=self.desktop.env,
                                        stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        self.addCleanup(self._let_go)
        self.assertEqual(self._holder.stdout.readline(), b"held\n")

    def _let_go(self):
        self._holder.stdin.close()
        self._holder.wait(10)
        self._holder.stdout.close()

    def test_with_the_shortcut_held_by_another_application_the_action_still_works(self):
        self.launch()
        self.await_tool_tip("Alt+Super+B is already used by another app.")
        self.desktop.press(SHORTCUT)
        self.assertIsNone(self.vantle.marker())
        activate_action(self.desktop, "toggle")
        wait_until("a marker", self.vantle.marker)
        self.desktop.press(SHORTCUT)
        self.assertIsNotNone(self.vantle.marker())
        activate_action(self.desktop, "toggle")
        wait_until("a record", self.vantle.sessions)
        self.assert_one_record_and_no_marker()
