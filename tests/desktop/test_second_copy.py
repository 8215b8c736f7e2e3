"""Only one copy works on the data; another one has that show itself, or says so, and goes."""

import signal
import time

from harness.case import PANEL_TITLE, DesktopTest
from harness.waiting import wait_until

TITLE = "Vantle"


class SecondCopy(DesktopTest):

    def test_a_second_copy_brings_the_panel_of_the_first_and_goes(self):
        self.launch()
        marker = self.begin_session()
        second = self.new_program()
        second.start()
        self.assertEqual(second.wait(), 0)
        self.desktop.await_keyboard(PANEL_TITLE)
        self.assertEqual(self.alerts(), [])
        self.assertEqual(self.vantle.marker(), marker)
        self.assert_one_item()

    def test_a_copy_that_does_not_answer_is_told_of(self):
        self.launch()
        self.vantle.send(signal.SIGSTOP)
        second = self.new_program()
        second.start()
        self.await_alert()
        self.assertEqual(second.stop(), 0)
        self.vantle.send(signal.SIGCONT)
        self.begin_session()
        self.end_session()

    def test_a_second_copy_says_so_and_leaves_the_first_alone(self):
        self.launch()
        marker = self.begin_session()
        second = self.start_out_of_reach()
        self.await_alert()
        self.desktop.screenshot("alert")
        self.assertEqual(self.vantle.marker(), marker)
        time.sleep(0.5)  # in which an item of the second copy would come
        self.assert_one_item()

        self.desktop.press("Return")
        self.assertEqual(second.wait(), 0)
        self.assertEqual(self.alerts(), [])
        self.assertTrue(self.vantle.is_running())
        self.assertEqual(self.vantle.marker(), marker)
        self.assertEqual(self.end_session()["id"], marker["id"])

    def test_escape_closes_the_alert_as_well(self):
        self.launch()
        second = self.start_out_of_reach()
        self.await_alert()
        self.desktop.press("Escape")
        self.assertEqual(second.wait(), 0)

    def test_a_terminate_signal_ends_a_copy_that_shows_the_alert(self):
        self.launch()
        second = self.start_out_of_reach()
        self.await_alert()
        self.assertEqual(second.stop(), 0)
        self.assertTrue(self.vantle.is_running())

    def test_the_shortcut_belongs_to_the_first_copy_while_the_alert_is_in_front(self):
        self.launch()
        second = self.start_out_of_reach()
        self.await_alert()
        self.begin_session()
        self.end_session()
        self.assertTrue(second.is_running())

    def test_of_two_copies_started_at_once_exactly_one_works(self):
        copies = [self.vantle, self.new_program()]
        for copy in copies:
            copy.start()
        wait_until("one copy", lambda: sum(copy.is_running() for copy in copies) == 1)
        self.await_item()
        self.desktop.await_keyboard(PANEL_TITLE)
        self.assertEqual(self.alerts(), [])
        self.begin_session()
        self.end_session()

    def test_after_a_kill_the_next_copy_is_not_taken_for_a_second_one(self):
        self.launch()
        self.vantle.kill()
        self.await_empty_tray()
        self.launch()
        self.assertEqual(self.alerts(), [])

    def start_out_of_reach(self):
        """A second copy that finds no bus over which it could ask the first."""
        second = self.new_program()
        second.start(through=("env", "DBUS_SESSION_BUS_ADDRESS=disabled:"))
        return second

    def await_item(self):
        self.desktop.await_tray_item()

    def assert_one_item(self):
        self.assertLessEqual(self.desktop.tray_frame()[2], 30, "the bar is as wide as one icon")

    def alerts(self):
        return self.desktop.windows_named(TITLE)

    def await_alert(self):
        """Waits until there is exactly one alert, and it has the keyboard."""
        alert, = wait_until("the alert", self.alerts)
        wait_until("the alert in front", lambda: self.desktop.active_window() == alert)


class SecondCopyBesideANotifier(SecondCopy):
    """The same in the other kind of tray."""

    tray_kind = DesktopTest.STATUS_NOTIFIER

    def await_item(self):
        self.tray.await_item()

    def assert_one_item(self):
        self.assertEqual(len(self.tray.items()), 1)
