"""What a crash leaves behind, and what the next run makes of it."""

import signal
from datetime import datetime, timedelta, timezone

from harness.case import FIRST_SKILL, DesktopTest
from harness.waiting import wait_until

ID = "0F6B1D1E-4A52-4C1B-9A1E-7F3B2C5D8E90"


def stamp(moment):
    return moment.strftime("%Y-%m-%dT%H:%M:%SZ")


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

        # An unanswered offer comes again.
        self.assertEqual(self.vantle.stop(), 0)
        self.assertEqual(self.vantle.marker(), left)
        self.assertEqual(self.vantle.log_bytes(), b"")

    def test_less_than_a_minute_is_dropped_without_a_word(self):
        self._leave_marker(started=datetime.now(timezone.utc) - timedelta(hours=1), seconds=59,
                           lasting=timedelta(minutes=30))
        self.launch()
        self.assertIsNone(self.vantle.marker())
        self.assertEqual(self.tray.tool_tip(), "Vantle")

    def test_a_marker_of_garbage_is_removed(self):
        for garbage in (b"", b"\x00\xff{", b'{"id":"x"}', b"[" * 5000):
            with self.subTest(garbage=garbage[:12]):
                self.vantle.data_directory.mkdir(mode=0o700, exist_ok=True)
                self.vantle.marker_file.write_bytes(garbage)
                self.launch()
                self.assertIsNone(self.vantle.marker())
                self.assertEqual(self.vantle.stop(), 0)
                wait_until("an empty tray", lambda: not self.tray.items())

    def _leave_marker(self, started, seconds, lasting):
        self.vantle.write_marker(id=ID, skillId=FIRST_SKILL, activeSeconds=seconds,
                                 startedAt=stamp(started), lastSeenAt=stamp(started + lasting))
