"""Buttons that start a session, pressed while one runs."""

import unittest

from harness.case import SHORTCUT
from harness.waiting import wait_until
from harness.windows import DASHBOARD, WRAPPED, ReaderCase

STOP = "Stop Vantle"


class StartingButtons(ReaderCase):

    def assert_says_and_does_what_is_possible(self, window, start):
        self.vantle.write_preferences(ripple__disabled="true")
        self.launch()
        self.open(*window)
        title = window[1]
        self.await_told(title, "push button", start)
        self.desktop.press(SHORTCUT)
        marker = wait_until("a marker", self.vantle.marker)
        button = self.await_told(title, "push button", STOP)
        names = [one.name for one in self.reader.window(title).all()]
        self.assertNotIn(start, names, "there is a session")
        self.desktop.screenshot("running")
        self.click(button)
        wait_until("a record", self.vantle.sessions)
        self.assertEqual([one["id"] for one in self.vantle.sessions()], [marker["id"]])
        wait_until("no marker", lambda: self.vantle.marker() is None)

    def assert_starts(self, window, start):
        self.vantle.write_preferences(ripple__disabled="true")
        self.launch()
        self.open(*window)
        self.click(self.await_told(window[1], "push button", start))
        wait_until("a marker", self.vantle.marker)
        self.await_told(window[1], "push button", STOP)

    def click(self, element):
        x, y, width, height = element.frame
        self.desktop.tool("xdotool", "mousemove", str(x + width // 2), str(y + height // 2),
                          "sleep", "0.2", "click", "1")

    def test_the_hours_start_the_first_session(self):
        self.assert_starts(DASHBOARD, "Start your first session")

    def test_the_hours_do_not_invite_to_what_runs(self):
        self.assert_says_and_does_what_is_possible(DASHBOARD, "Start your first session")

    def test_the_empty_review_starts_a_session(self):
        self.assert_starts(WRAPPED, "Enter Vantle")

    def test_the_empty_review_does_not_invite_to_what_runs(self):
        self.assert_says_and_does_what_is_possible(WRAPPED, "Enter Vantle")


if __name__ == "__main__":
    unittest.main()
