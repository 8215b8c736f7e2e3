"""What a start makes of the machine as it finds it."""

import json
import os
import stat
import subprocess
import time
from pathlib import Path

from harness.case import EXECUTABLE, PANEL_TITLE, SHORTCUT, DesktopTest
from harness.waiting import wait_until

LINE = (b'{"activeSeconds":60,"endedAt":"2026-03-01T10:01:00Z",'
        b'"id":"0F6B1D1E-4A52-4C1B-9A1E-7F3B2C5D8E90","note":"","skillId":"building",'
        b'"source":"mac_app","startedAt":"2026-03-01T10:00:00Z"}\n')

MIDDLE = 720  # of the screen, px

# The superuser reads every file, whatever its mode. This one is held to the modes as all others.
WITHOUT_ALL_ACCESS = (["setpriv", "--bounding-set=-dac_override,-dac_read_search"]
                      if os.geteuid() == 0 else [])


def mode_of(path):
    return stat.S_IMODE(path.stat().st_mode)


class FirstStart(DesktopTest):

    def test_the_program_adds_itself_to_the_autostart_once_and_never_again(self):
        entry = Path(self.desktop.env["XDG_CONFIG_HOME"],
                     "autostart", "local.vantle.Vantle.desktop")
        self.launch()
        text = wait_until("an entry", lambda: entry.exists() and entry.read_text())
        self.assertIn(str(EXECUTABLE), text)
        self.assertIn("VANTLE_AUTOSTART=1", text)
        self.assertEqual(self.vantle.stop(), 0)

        entry.unlink()
        self.await_empty_tray()
        self.launch()
        self.assertEqual(self.vantle.stop(), 0)
        self.assertFalse(entry.exists(), "who takes it off keeps it off")

    def test_data_under_the_earlier_name_is_taken_over(self):
        earlier = self.vantle.data_directory.with_name("Hourfold")
        earlier.mkdir()
        (earlier / "sessions.jsonl").write_bytes(LINE)
        self.launch()
        self.assertEqual(self.vantle.log_bytes(), LINE)
        self.assertFalse(earlier.exists())
        self.begin_session()
        self.end_session()
        self.assertTrue(self.vantle.log_bytes().startswith(LINE))

    def test_files_that_others_may_read_become_private_and_a_retired_one_goes(self):
        directory = self.vantle.data_directory
        directory.mkdir(mode=0o755)
        directory.chmod(0o755)
        self.vantle.log_file.write_bytes(LINE)
        self.vantle.log_file.chmod(0o644)
        (directory / "sync-queue.json").write_text("{}")
        self.launch()
        wait_until("the modes", (directory / "skills.json").exists)
        self.assertEqual(mode_of(directory), 0o700)
        self.assertEqual(mode_of(self.vantle.log_file), 0o600)
        self.assertFalse((directory / "sync-queue.json").exists())
        self.assertEqual(mode_of(directory / "skills.json"), 0o600)

    def test_modes_that_their_owner_may_not_read_are_kept(self):
        self.vantle.write_preferences(skills__taxonomyMigrationVersion="1")
        self.vantle.data_directory.mkdir(mode=0o700)
        skills = self.vantle.data_directory / "skills.json"
        own = [{"builtin": False, "hexRGB": 1193046, "id": "mine", "name": "Mine"}]
        skills.write_text(json.dumps(own))
        skills.chmod(0)
        self.launch(through=WITHOUT_ALL_ACCESS)
        self.assertEqual(self.begin_session()["skillId"], "mine")
        self.end_session()
        self.assertEqual(mode_of(skills), 0o600)
        self.assertEqual(json.loads(skills.read_text()), own)

    def test_damaged_lines_stay_where_they_are_while_new_ones_come(self):
        damaged = b"\x00\x01\x02\n" + LINE + b"{\"id\":\n\n" + "caf\u00e9 \u2028x\n".encode()
        self.vantle.data_directory.mkdir(mode=0o700)
        self.vantle.log_file.write_bytes(damaged)
        self.launch()
        marker = self.begin_session()
        self.desktop.press(SHORTCUT)
        wait_until("no marker", lambda: self.vantle.marker() is None)
        log = self.vantle.log_bytes()
        self.assertEqual(log[:len(damaged)], damaged)
        self.assertEqual(json.loads(log[len(damaged):])["id"], marker["id"])

    def test_started_by_the_autostart_it_works_just_the_same(self):
        self.desktop.env["VANTLE_AUTOSTART"] = "1"
        self.launch()
        self.begin_session()
        self.end_session()

    def test_without_a_desktop_it_ends_with_a_code_and_no_word(self):
        nowhere = {name: value for name, value in self.desktop.env.items() if name != "DISPLAY"}
        done = subprocess.run([EXECUTABLE], env=nowhere, stdin=subprocess.DEVNULL,
                              capture_output=True, timeout=30, check=False)
        self.assertEqual((done.returncode, done.stdout, done.stderr), (69, b"", b""))
        self.assertFalse(self.vantle.data_directory.exists())


class AtLogin(DesktopTest):

    compositor = True

    def test_it_shows_the_capsule_and_nothing_else(self):
        top = (MIDDLE - 60, 0, 120, 30)
        self.desktop.tool("xsetroot", "-solid", "#5A6478")
        before = self.desktop.picture(*top)
        self.desktop.env["VANTLE_AUTOSTART"] = "1"
        self.launch()
        until = time.monotonic() + 1.5
        while time.monotonic() < until:
            for title in (PANEL_TITLE, "Welcome", "Settings", "Your hours"):
                self.assertEqual(self.desktop.windows_named(title), [])
            time.sleep(0.1)
        self.desktop.tool("xdotool", "mousemove", str(MIDDLE), "8")
        wait_until("the capsule", lambda: self.desktop.picture(*top) != before)
        self.desktop.screenshot("capsule")
