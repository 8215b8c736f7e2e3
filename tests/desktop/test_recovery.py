"""What a crash leaves behind, and what the next run makes of it."""

import signal
import time
from datetime import datetime, timedelta, timezone

from harness.bus import activate, activate_action
from harness.case import FIRST_SKILL, PANEL_TITLE, SHORTCUT, DesktopTest
from harness.records import stamp
from harness.waiting import wait_until

ID = "0F6B1D1E-4A52-4C1B-9A1E-7F3B2C5D8E90"


class Recovery(DesktopTest):

    tray_kind = DesktopTest.STATUS_NOTIFIER

    def test_after_a_kill_the_session_is_offered_and_never_logged_by_itself(self):
        self.launch()
        marker = self.begin_session()
        self.vantle.stop(signal.SIGKILL)
        self.assertEqual(self.vantle.marker(), marker)
        self.assertEqual(self.vantle.log_bytes(), b"")

        # The same session, had it run for longer than a test may.
        started = datetime.now(timezone.utc) - timedelta(minutes=10)
        self._leave_marker(started=started, seconds=75, lasting=timedelta(seconds=80))
        left = self.vantle.marker()
        self.launch()
        wait_until("the offer", lambda: self.tray.tool_tip().endswith(
            "Found 1 min from the previous run · choose Keep or Discard"))
        self.assertEqual(self.vantle.marker(), left)
        self.assertEqual(self.vantle.log_bytes(), b"")

        # An offer without an answer comes again.
        self.assertEqual(self.vantle.stop(), 0)
        self.assertEqual(self.vantle.marker(), left)
        self.assertEqual(self.vantle.log_bytes(), b"")

    def test_after_a_crash_in_the_writing_of_preferences_it_answers_at_once(self):
        self.vantle.write_preferences()
        # Of the moment in which the program had made its lock and not yet signed it.
        self.vantle.preferences_file.with_name("preferences.ini.lock").touch()
        self.launch()
        self.begin_session()  # changes the skill that was used last
        began = time.monotonic()
        activate(self.desktop)
        wait_until("the panel", lambda: self.desktop.windows_named(PANEL_TITLE))
        self.assertLess(time.monotonic() - began, 15)  # the lock would hold it for half a minute
        self.desktop.press(SHORTCUT)
        wait_until("a record", self.vantle.sessions)
        self.assertEqual(self.vantle.stop(), 0)
        self.assertFalse(self.vantle.preferences_file.with_name("preferences.ini.lock").exists())

    def test_an_offer_without_an_answer_outlives_a_session_and_a_quit(self):
        self._crash_that_left(seconds=125)
        left = self.vantle.marker()
        self.launch()
        self.await_tool_tip("Found 2 min from the previous run")
        self.begin_session()
        self.desktop.press(SHORTCUT)
        wait_until("a record", self.vantle.sessions)
        wait_until("the old marker", lambda: self.vantle.marker() == left)
        self.assertEqual(self.vantle.stop(), 0)
        self.assertEqual(self.vantle.marker(), left)
        self.await_empty_tray()

        self.launch()
        self.await_tool_tip("Found 2 min from the previous run")
        self.begin_session()
        self.assertEqual(self.vantle.stop(), 0)  # in the middle of a session
        self.assertEqual(self.vantle.marker(), left)
        self.await_empty_tray()

        self.launch()
        self.await_tool_tip("Found 2 min from the previous run")
        activate_action(self.desktop, "keep")
        wait_until("no marker", lambda: self.vantle.marker() is None)
        self.assertEqual([one["activeSeconds"] for one in self.vantle.sessions()][2:], [125])

    def test_kept_it_is_logged_as_it_was_last_seen(self):
        started = self._crash_that_left(seconds=125)
        self.launch()
        activate_action(self.desktop, "keep")
        wait_until("no marker", lambda: self.vantle.marker() is None)
        record, = self.vantle.sessions()
        self.assertEqual(record["id"], ID)
        self.assertEqual(record["activeSeconds"], 125)
        self.assertEqual(record["startedAt"], stamp(started))
        self.assertEqual(record["endedAt"], stamp(started + timedelta(minutes=5)))
        self.assertEqual((record["note"], record["source"]), ("", "mac_app"))
        self.await_tool_tip("Recovered 2 min from the previous run")

        activate_action(self.desktop, "keep")  # the offer is answered: nothing more comes of it
        self.assertEqual(self.vantle.stop(), 0)
        self.assertEqual(len(self.vantle.sessions()), 1)

    def test_it_is_answered_by_keys_in_the_panel(self):
        self._crash_that_left(seconds=125)
        self.launch()
        self.await_tool_tip("Found 2 min from the previous run")
        activate(self.desktop)
        self.desktop.await_keyboard(PANEL_TITLE)
        for key in ("shift+Tab", "shift+Tab", "Return"):  # over Discard to Keep
            self.desktop.press(key)
        wait_until("a record", self.vantle.sessions)
        self.assertEqual([one["activeSeconds"] for one in self.vantle.sessions()], [125])
        wait_until("no marker", lambda: self.vantle.marker() is None)
        wait_until("no card", lambda: not self.desktop.windows_named("Vantle Recovery"))

    def test_discarded_it_leaves_nothing(self):
        self._crash_that_left(seconds=125)
        self.launch()
        activate_action(self.desktop, "discard")
        wait_until("no marker", lambda: self.vantle.marker() is None)
        self.assertEqual(self.vantle.log_bytes(), b"")
        self.await_tool_tip("Discarded the recovered session")

    def test_kept_after_a_crash_between_record_and_marker_it_is_not_logged_twice(self):
        self.launch()
        self.begin_session()
        logged = self.end_session()
        self.assertEqual(self.vantle.stop(), 0)
        self._crash_that_left(seconds=125, id=logged["id"])
        self.await_empty_tray()
        self.launch()
        activate_action(self.desktop, "keep")
        wait_until("no marker", lambda: self.vantle.marker() is None)
        self.assertEqual(self.vantle.sessions(), [logged])

    def test_less_than_a_minute_is_dropped_without_a_word(self):
        self._leave_marker(started=datetime.now(timezone.utc) - timedelta(hours=1), seconds=59,
                           lasting=timedelta(minutes=30))
        self.launch()
        self.assertIsNone(self.vantle.marker())
        wait_until("the plain tool tip", lambda: self.tray.tool_tip() == "Vantle")

    def test_a_marker_of_garbage_is_removed(self):
        for garbage in (b"", b"\x00\xff{", b'{"id":"x"}', b"[" * 5000):
            with self.subTest(garbage=garbage[:12]):
                self.vantle.data_directory.mkdir(mode=0o700, exist_ok=True)
                self.vantle.marker_file.write_bytes(garbage)
                self.launch()
                self.assertIsNone(self.vantle.marker())
                self.assertEqual(self.vantle.stop(), 0)
                self.await_empty_tray()

    def _crash_that_left(self, seconds, id=ID):
        """A session of five minutes, begun an hour ago; returns when."""
        started = datetime.now(timezone.utc) - timedelta(hours=1)
        self._leave_marker(started, seconds, timedelta(minutes=5), id)
        return started

    def _leave_marker(self, started, seconds, lasting, id=ID):
        self.vantle.write_marker(id=id, skillId=FIRST_SKILL, activeSeconds=seconds,
                                 startedAt=stamp(started), lastSeenAt=stamp(started + lasting))
