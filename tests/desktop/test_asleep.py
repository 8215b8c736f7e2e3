"""Time that must not count: the screen is locked, or the program is stopped."""

import signal
import socket
import time

from harness.case import SHORTCUT, DesktopTest
from harness.waiting import wait_until

# A program that is late by less than 20 s is busy, not stopped.
FROZEN = 24


class Asleep(DesktopTest):

    def work(self):
        """Begins a session, and works for three seconds; a busy machine makes more of them."""
        self.began = time.monotonic()
        self.begin_session()
        time.sleep(3)

    def assert_counted(self, record, least):
        """What was worked and no more, give or take a second."""
        self.assertGreaterEqual(record["activeSeconds"], least - 1)
        self.assertLessEqual(record["activeSeconds"], self.worked + 1)


class Frozen(Asleep):

    def test_the_time_for_which_the_program_was_stopped_is_not_counted(self):
        self.launch()
        self.work()
        self.freeze()
        going_on = time.monotonic()
        time.sleep(2)
        record = self.end_session()
        self.worked += time.monotonic() - going_on
        self.assert_counted(record, 5)

    def test_nor_is_it_where_the_press_that_stops_comes_before_anything_else(self):
        self.launch()
        self.work()
        self.freeze(lambda: self.desktop.press(SHORTCUT))
        self.assert_one_record_and_no_marker()
        record, = self.vantle.sessions()
        self.assert_counted(record, 3)

    def test_a_lock_that_is_heard_only_after_it_counts_from_its_beginning(self):
        self.launch()
        self.work()
        self.freeze(lambda: self.desktop.tool("xset", "s", "activate"))
        wait_until("a pause", lambda: self.vantle.marker()["activeSeconds"])
        time.sleep(1)
        paused = self.vantle.marker()
        self.assert_counted(paused, 3)
        time.sleep(12)
        self.assertEqual(self.vantle.marker(), paused, "one pause, as long as the lock")
        going_on = time.monotonic()
        self.desktop.nudge_pointer()  # ends the lock
        time.sleep(2)
        record = self.end_session()
        self.worked += time.monotonic() - going_on
        self.assert_counted(record, 5)

    def freeze(self, meanwhile=lambda: None):
        self.vantle.send(signal.SIGSTOP)
        self.worked = time.monotonic() - self.began
        time.sleep(FROZEN)
        meanwhile()
        self.vantle.send(signal.SIGCONT)


class Locked(Asleep):

    def test_a_locked_screen_is_not_counted_whatever_is_typed(self):
        self.launch()
        self.work()
        self.say("76")  # any atom: BLANK and LOCK are two of them
        self.worked = time.monotonic() - self.began
        paused = wait_until("a pause", lambda: self.vantle.marker()["activeSeconds"] and
                            self.vantle.marker())
        for _ in range(13):
            time.sleep(1)
            self.desktop.nudge_pointer()
        self.assertEqual(self.vantle.marker(), paused)
        going_on = time.monotonic()
        self.say("0")
        time.sleep(2)
        record = self.end_session()
        self.worked += time.monotonic() - going_on
        self.assert_counted(record, 5)

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
