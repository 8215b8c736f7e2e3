"""A session from key press to key press, as it stands in the files and in the tray."""

import json
import stat
import time

from harness.case import FIRST_SKILL, FIRST_SKILL_COLOUR, PANEL_TITLE, DesktopTest
from harness.picture import rgb_of
from harness.records import moment
from harness.waiting import wait_until

KEYS_OF_A_RECORD = ["activeSeconds", "endedAt", "id", "note", "skillId", "source", "startedAt"]


class Session(DesktopTest):

    def test_one_press_starts_and_the_same_press_ends_on_a_machine_that_never_saw_the_program(self):
        self.launch()
        pressed = time.monotonic()
        marker = self.begin_session()
        begun = time.monotonic()
        self.assertEqual(marker["skillId"], FIRST_SKILL)
        self.assertEqual(self.vantle.log_bytes(), b"")
        time.sleep(2.2)  # work
        least = time.monotonic() - begun
        record = self.end_session()
        most = time.monotonic() - pressed

        self.assertEqual(list(record), KEYS_OF_A_RECORD)
        self.assertEqual(record["id"], marker["id"])
        self.assertEqual(record["skillId"], FIRST_SKILL)
        self.assertEqual(record["startedAt"], marker["startedAt"])
        self.assertEqual((record["note"], record["source"]), ("", "mac_app"))
        self.assertGreaterEqual(record["activeSeconds"], int(least))
        self.assertLessEqual(record["activeSeconds"], most + 1)  # it is rounded
        length = (moment(record["endedAt"]) - moment(record["startedAt"])).total_seconds()
        self.assertLessEqual(abs(length - record["activeSeconds"]), 1)

    def test_the_line_has_its_canonical_form_and_only_the_owner_may_read_it(self):
        self.launch()
        self.begin_session()
        self.end_session()
        self.begin_session()
        record = self.end_session()
        text = json.dumps(record, sort_keys=True, separators=(",", ":")).replace("/", "\\/")
        lines = self.vantle.log_bytes().decode().split("\n")
        self.assertEqual(lines[1:], [text, ""])
        for path, mode in ((self.vantle.data_directory, 0o700), (self.vantle.log_file, 0o600)):
            self.assertEqual(stat.S_IMODE(path.stat().st_mode), mode, path.name)

    def test_the_marker_is_on_disk_within_a_second_of_the_press(self):
        self.launch()
        pressed = time.time()
        self.begin_session()
        self.assertLess(self.vantle.marker_file.stat().st_mtime - pressed, 1.0)
        self.assertEqual(stat.S_IMODE(self.vantle.marker_file.stat().st_mode), 0o600)

    def test_the_press_reaches_the_program_while_another_application_has_the_keyboard(self):
        typed = self.open_editor()
        self.launch()
        self.begin_session()
        self.desktop.type("a line\n")
        wait_until("the typed line", lambda: typed.read_text() == "a line\n")
        self.end_session()
        self.assertEqual(typed.read_text(), "a line\n", "no key of the shortcut gets through")

    def test_keys_held_down_count_as_one_press(self):
        self.launch()
        self.desktop.tool("xdotool", "keydown", "alt", "keydown", "super", "keydown", "b",
                          "sleep", "1.5", "keyup", "b", "keyup", "super", "keyup", "alt")
        wait_until("a marker", self.vantle.marker)
        self.assertEqual(self.vantle.sessions(), [])
        self.end_session()


class XEmbedTray(DesktopTest):

    def test_the_tray_shows_the_brick_then_the_dot_in_the_skill_s_colour_then_the_brick(self):
        colour = rgb_of(FIRST_SKILL_COLOUR)
        self.launch()
        wait_until("the brick", lambda: self.desktop.tray_picture().inked() > 60)
        self.desktop.await_still(*self.desktop.tray_frame())
        brick = self.desktop.tray_picture()
        self.assertFalse(brick.shows(colour, tolerance=40))
        self.desktop.screenshot("brick")

        self.begin_session()
        wait_until("the dot at its brightest",
                   lambda: self.desktop.tray_picture().shows(colour))
        self.desktop.screenshot("dot")
        dots = set()

        def breathes():
            dots.add(self.desktop.tray_picture())
            return len(dots) >= 3

        wait_until("the dot to breathe", breathes)

        self.end_session()
        self.turn_away_from_card()
        wait_until("the brick again", lambda: self.desktop.tray_picture() == brick)

    def turn_away_from_card(self):
        """The card after a session may cover the tray."""
        title = "Vantle Session Summary"
        card = wait_until("the card", lambda: self.desktop.windows_named(title))[0]
        x, y, width, _ = self.desktop.frame_of(card)
        self.desktop.tool("xdotool", "mousemove", str(x + width - 27), str(y + 27), "sleep", "0.2",
                          "click", "1", "mousemove", "400", "500")


class StatusNotifierTray(DesktopTest):

    tray_kind = DesktopTest.STATUS_NOTIFIER

    def test_a_panel_is_told_the_brick_then_the_dot_then_the_brick(self):
        colour = rgb_of(FIRST_SKILL_COLOUR)
        self.launch()
        wait_until("the plain tool tip", lambda: self.tray.tool_tip() == "Vantle")
        brick = self.tray.pixmap(18)
        self.assertEqual((brick.width, brick.height), (18, 18))
        corner_alphas = {brick.pixel(x, y)[0] for x in (0, 17) for y in (0, 17)}
        self.assertEqual(corner_alphas, {0}, "the brick's ground is clear")

        self.begin_session()
        brightest = wait_until("the dot at its brightest", self._centre_if_opaque)
        for channel, expected in zip(brightest[1:], colour):
            self.assertLessEqual(abs(channel - expected), 3)

        self.end_session()
        wait_until("the brick again", lambda: self.tray.pixmap(18) == brick)

    def test_the_menu_of_a_panel_opens_starts_stops_and_quits(self):
        self.launch()
        self.assertEqual(list(self.tray.menu()), ["Open", "Start", "Quit"])
        self.tray.choose("Open")
        wait_until("the panel", lambda: self.desktop.windows_named(PANEL_TITLE))
        self.desktop.press("Escape")

        self.tray.choose("Start")
        wait_until("a marker", self.vantle.marker)
        wait_until("the new text", lambda: list(self.tray.menu()) == ["Open", "Stop", "Quit"])
        self.tray.choose("Stop")
        wait_until("a record", self.vantle.sessions)
        wait_until("the old text", lambda: list(self.tray.menu()) == ["Open", "Start", "Quit"])
        self.assert_one_record_and_no_marker()
        self.tray.choose("Quit")
        wait_until("the program's end", lambda: not self.vantle.is_running())

    def _centre_if_opaque(self):
        centre = self.tray.pixmap(18).centre()
        return centre if centre[0] >= 250 else None


class NoTray(DesktopTest):

    tray_kind = DesktopTest.NO_TRAY

    def test_without_any_tray_the_shortcut_still_works(self):
        self.launch()
        self.begin_session()
        self.end_session()
