"""Time that must not count: the screen is locked, or the program is stopped."""

import signal
import socket
import time

from harness.case import SHORTCUT, DesktopTest
from harness.waiting import wait_until

# A program that is late by less than 20 s is busy, not stopped.
FROZEN = 24


class Frozen(DesktopTest):

    def test_the_time_for_which_the_program_was_stopped_is_not_counted(self):
        self.launch()
        self.begin_session()
        time.sleep(3)
        self.freeze()
        time.sleep(2)
        record = self.end_session()
        self.assertIn(record["activeSeconds"], (4, 5, 6))

    def test_nor_is_it_where_the_press_that_stops_comes_before_anything_else(self):
        self.launch()
        self.begin_session()
        time.sleep(3)
        self.freeze(lambda: self.desktop.press(SHORTCUT))
        self.assert_one_record_and_no_marker()
        record, = self.vantle.sessions()
        self.assertIn(record["activeSeconds"], (2, 3, 4))

    def test_a_lock_that_is_heard_only_after_it_counts_from_its_beginning(self):
        self.launch()
        self.begin_session()
        time.sleep(3)
        self.freeze(lambda: self.desktop.tool("xset", "s", "activate"))
        wait_until("a pause", lambda: self.vantle.marker()["activeSeconds"])
        time.sleep(1)
        paused = self.vantle.marker()
        self.assertIn(paused["activeSeconds"], (2, 3, 4))
        time.sleep(12)
        self.assertEqual(self.vantle.marker(), paused, "one pause, as long as the lock")
        self.desktop.nudge_pointer()  # ends the lock
        time.sleep(2)
        record = self.end_session()
        self.assertIn(record["activeSeconds"], (4, 5, 6, 7))

    def freeze(self, meanwhile=lambda: None):
        self.vantle.send(signal.SIGSTOP)
        time.sleep(FROZEN)
        meanwhile()
        self.vantle.send(signal.SIGCONT)


class Locked(DesktopTest):

    def test_a_locked_screen_is_not_counted_whatever_is_typed(self):
        self.launch()
        self.begin_session()
        time.sleep(3)
        self.say("76")  # any atom: BLANK and LOCK are two of them
        paused = wait_until("a pause", lambda: self.vantle.marker()["activeSeconds"] and
                            self.vantle.marker())
        for _ in range(13):
            time.sleep(1)
            self.desktop.nudge_pointer()
        self.assertEqual(self.vantle.marker(), paused)
        self.say("0")
        time.sleep(2)
        record = self.end_session()
        self.assertIn(record["activeSeconds"], (4, 5, 6))

    def say(self, state):
        """As xscreensaver does on the root window."""
        name = "_SCREENSAVER_STATUS"
        self.desktop.tool("xprop", "-root", "-f", name, "32i", "-set", name, state)


class MuteBuses(DesktopTest):
    """Buses that take calls and never answer, as where a daemon is stopped."""

    def test_neither_of_them_holds_the_start_up(self):
        for variable in ("DBUS_SYSTEM_BUS_ADDRESS", "DBUS_SESSION_BUS_ADDRESS"):
            with self.subTest(variable), socket.socket(socket.AF_UNIX) as bus:
                path = str(self.desktop.directory / variable)
                bus.bind(path)
                bus.listen(5)
                address = self.desktop.env[variable]
                self.desktop.env[variable] = f"unix:path={path}"
                try:
                    keyboard = self.desktop.keyboard()
                    started = time.time()
                    self.vantle.start()
                    self.desktop.await_tray_item()
                    self._turn_away_from_panel(keyboard)
                    self.begin_session()
                    self.assertLess(time.time() - started, 8)
                    self.assertEqual(self.vantle.stop(), 0)
                finally:
                    self.desktop.env[variable] = address
