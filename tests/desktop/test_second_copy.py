"""Only one copy works on the data; another one says so and goes."""

from harness.case import DesktopTest
from harness.waiting import wait_until

ALERT = "Vantle is already running"


class SecondCopy(DesktopTest):

    def test_a_second_copy_says_so_and_leaves_the_first_alone(self):
        self.launch()
        marker = self.begin_session()
        second = self.new_program()
        second.start()
        wait_until("the alert", lambda: self.desktop.windows_titled(ALERT))
        wait_until("the alert in front", lambda: self.desktop.focused_window_title() == ALERT)
        self.desktop.screenshot("alert")
        self.assertEqual(self.vantle.marker(), marker)

        self.desktop.press("Return")
        self.assertEqual(second.wait(), 0)
        self.assertTrue(self.vantle.is_running())
        self.assertEqual(self.vantle.marker(), marker)
        self.assertEqual(self.end_session()["id"], marker["id"])

    def test_escape_closes_the_alert_as_well(self):
        self.launch()
        second = self.new_program()
        second.start()
        wait_until("the alert in front", lambda: self.desktop.focused_window_title() == ALERT)
        self.desktop.press("Escape")
        self.assertEqual(second.wait(), 0)

    def test_a_terminate_signal_ends_a_copy_that_shows_the_alert(self):
        self.launch()
        second = self.new_program()
        second.start()
        wait_until("the alert", lambda: self.desktop.windows_titled(ALERT))
        self.assertEqual(second.stop(), 0)
        self.assertTrue(self.vantle.is_running())

    def test_of_two_copies_started_at_once_exactly_one_works(self):
        copies = [self.vantle, self.new_program()]
        for copy in copies:
            copy.start()
        wait_until("the alert in front", lambda: self.desktop.focused_window_title() == ALERT)
        self.assertEqual(len(self.desktop.windows_titled(ALERT)), 1)
        self.desktop.await_tray_item()
        self.desktop.press("Return")
        wait_until("one copy", lambda: sum(copy.is_running() for copy in copies) == 1)
        self.begin_session()
        self.end_session()

    def test_after_a_kill_the_next_copy_is_not_taken_for_a_second_one(self):
        self.launch()
        self.vantle.kill()
        self.await_empty_tray()
        self.launch()
        self.assertEqual(self.desktop.windows_titled(ALERT), [])
