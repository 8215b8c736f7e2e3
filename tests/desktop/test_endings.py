"""However the program is ended in order, the open session is in the log."""

import os
import signal
import time

from harness.bus import activate_action
from harness.case import DesktopTest
from harness.connections import cut_x_connection


class Endings(DesktopTest):

    def test_a_terminate_signal_logs_the_open_session(self):
        self._a_signal_logs_the_open_session(signal.SIGTERM)

    def test_an_interrupt_logs_the_open_session(self):
        self._a_signal_logs_the_open_session(signal.SIGINT)

    def test_a_hang_up_logs_the_open_session(self):
        self._a_signal_logs_the_open_session(signal.SIGHUP)

    def _a_signal_logs_the_open_session(self, number):
        self.launch()
        began = time.monotonic()
        marker = self.begin_session()
        time.sleep(1.2)  # work
        self.assertEqual(self.vantle.stop(number), 0)
        lasted = time.monotonic() - began
        self.assert_one_record_and_no_marker()
        record, = self.vantle.sessions()
        self.assertEqual(record["id"], marker["id"])
        self.assertGreaterEqual(record["activeSeconds"], 1)
        self.assertLessEqual(record["activeSeconds"], lasted)
        self.assertFalse(self.vantle.left_children())

    def test_a_signal_without_a_session_leaves_no_log(self):
        self.launch()
        self.assertEqual(self.vantle.stop(), 0)
        self.assertFalse(self.vantle.log_file.exists())
        self.assertIsNone(self.vantle.marker())

    def test_two_signals_at_once_log_one_record(self):
        self.launch()
        self.begin_session()
        self.vantle.send(signal.SIGTERM)
        self.vantle.send(signal.SIGINT)
        self.assertEqual(self.vantle.wait(), 0)
        self.assert_one_record_and_no_marker()

    def test_the_quit_action_logs_the_open_session(self):
        self.launch()
        self.begin_session()
        activate_action(self.desktop, "quit")
        self.assertEqual(self.vantle.wait(), 0)
        self.assert_one_record_and_no_marker()

    def test_the_end_of_the_x_server_logs_the_open_session(self):
        # The toolkit ends the process where it stands: what was in use then is no leak.
        self.desktop.env["ASAN_OPTIONS"] = "detect_leaks=0"
        self.launch()
        marker = self.begin_session()
        os.kill(self.desktop.x_server_process(), signal.SIGKILL)
        self.vantle.wait()
        self.assert_one_record_and_no_marker()
        self.assertEqual(self.vantle.sessions()[0]["id"], marker["id"])

    def test_each_lost_connection_to_the_x_server_logs_the_open_session_and_ends_the_program(self):
        # The program has one connection of its own, the toolkit another.
        self.desktop.env["ASAN_OPTIONS"] = "detect_leaks=0"
        for number in range(2):
            with self.subTest(connection=number):
                self.launch()
                marker = self.begin_session()
                # At once, while the ceremony is made ready.
                self.assertEqual(cut_x_connection(self.vantle.pid, number), 2)
                self.assertGreaterEqual(self.vantle.wait(), 0, "no signal ends it")
                self.assertIsNone(self.vantle.marker())
                self.assertEqual(len(self.vantle.sessions()), number + 1)
                self.assertEqual(self.vantle.sessions()[-1]["id"], marker["id"])
                self.await_empty_tray()

    def test_the_end_of_the_bus_does_not_end_the_session(self):
        self.launch()
        self.begin_session()
        os.kill(self.desktop.bus_process(), signal.SIGKILL)
        time.sleep(0.5)  # for a program that would follow it
        self.assertTrue(self.vantle.is_running())
        self.end_session()

    def test_the_next_start_works_after_each_end(self):
        self.launch()
        self.begin_session()
        self.assertEqual(self.vantle.stop(), 0)
        self.await_empty_tray()
        self.launch()
        self.begin_session()
        self.end_session()
        self.assertEqual(len(self.vantle.sessions()), 2)
