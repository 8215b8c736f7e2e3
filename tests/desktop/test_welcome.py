"""The welcome of a new person, worked by keys, with a real practice session in its middle."""

import time
import unittest
from pathlib import Path

from harness.bus import PROGRAM_NAME, activate, activate_action, owner_of
from harness.case import PANEL_TITLE, SHORTCUT, DesktopTest
from harness.waiting import wait_until

TITLE = "Welcome"
SUMMARY = "Vantle Session Summary"
OVERLAY = "Vantle ceremony"

# The window is out of the ceremony's way for that long.
AWAY = 3.6


class Welcome(DesktopTest):

    newcomer = True

    def start(self, **preferences):
        if preferences:
            self.vantle.write_preferences(**preferences)
        self.vantle.start()
        wait_until("the program on the bus", lambda: owner_of(self.desktop, PROGRAM_NAME))
        self.await_in_front()

    def in_sight(self):
        return self.desktop.windows_named(TITLE)

    def await_in_front(self):
        wait_until("the welcome in front",
                   lambda: self.desktop.active_window() in self.in_sight())
        self.desktop.await_keyboard(TITLE)

    def walk_to_press(self):
        self.desktop.type("Lumen")
        self.desktop.press("Return")
        wait_until("the name", lambda: self.vantle.preference("project.name") == "Lumen")
        self.desktop.press("Return")  # the modes

    def practise(self):
        """Two presses of the shortcut, and a note on the card that comes after them."""
        self.desktop.press(SHORTCUT)
        wait_until("the session", self.vantle.marker)
        self.desktop.screenshot("running")
        self.desktop.press(SHORTCUT)
        self.close_card()

    def close_card(self):
        wait_until("the card", lambda: self.desktop.windows_named(SUMMARY))
        wait_until("its keyboard",
                   lambda: self.desktop.active_window() in self.desktop.windows_named(SUMMARY)
                   or self.desktop.active_window() not in self.in_sight())
        self.desktop.type("a first note")
        self.desktop.screenshot("card")
        self.desktop.press("Return")
        wait_until("no card", lambda: not self.desktop.windows_named(SUMMARY))
        self.await_in_front()

    def walk_to_end(self):
        for step in range(5):
            self.desktop.screenshot(f"after-{step}")
            self.desktop.press("Return")
        self.desktop.press("Return")
        wait_until("no window", lambda: not self.in_sight())

    def assert_over_and_untouched(self):
        wait_until("done", lambda: self.vantle.preference("onboard.done") == "true")
        self.assertEqual(self.vantle.sessions(), [])
        self.assertIsNone(self.vantle.marker())

    def begin_and_end_a_real_session(self):
        self.begin_session()
        self.end_session()


class WithCeremony(Welcome):

    compositor = True

    def test_the_whole_of_it_by_keys_leaves_nothing_but_the_name(self):
        self.start()
        self.assertEqual(self.desktop.windows_named(PANEL_TITLE), [])
        self.desktop.screenshot("first")
        self.walk_to_press()
        pressed = time.monotonic()
        self.desktop.press(SHORTCUT)
        wait_until("the ceremony", lambda: self.desktop.windows_named(OVERLAY))
        wait_until("the window out of its way", lambda: not self.in_sight(), deadline=3)
        self.await_in_front()
        self.assertGreater(time.monotonic() - pressed, AWAY - 0.2)
        self.desktop.screenshot("running")
        self.desktop.press("Return")  # the button that stops it
        wait_until("the session's end", lambda: self.vantle.marker() is None)
        self.close_card()
        self.walk_to_end()
        self.assert_over_and_untouched()
        self.begin_and_end_a_real_session()

    def test_a_press_that_cuts_the_ceremony_short_brings_the_window_back_with_the_card_gone(self):
        self.start()
        self.walk_to_press()
        self.desktop.press(SHORTCUT)
        wait_until("the window out of the way", lambda: not self.in_sight())
        self.desktop.press(SHORTCUT)
        self.close_card()
        self.assertEqual(self.vantle.sessions(), [])


class WithoutCeremony(Welcome):

    def assert_stays_in_sight(self):
        self.walk_to_press()
        self.desktop.press(SHORTCUT)
        wait_until("the session", self.vantle.marker)
        until = time.monotonic() + 1
        while time.monotonic() < until:
            self.assertTrue(self.in_sight())
        self.desktop.screenshot("running")
        self.desktop.press(SHORTCUT)
        self.close_card()
        self.walk_to_end()
        self.assert_over_and_untouched()

    def test_with_the_ceremony_off_the_window_stays(self):
        self.start(ripple__disabled="true")
        self.assert_stays_in_sight()

    def test_with_less_movement_the_window_stays(self):
        settings = Path(self.desktop.env["XDG_CONFIG_HOME"], "gtk-4.0")
        settings.mkdir()
        (settings / "settings.ini").write_text("[Settings]\ngtk-enable-animations=false\n")
        self.start()
        self.assert_stays_in_sight()

    def test_skipped_it_is_over_and_does_not_come_again(self):
        self.start(ripple__disabled="true")
        self.desktop.press("Tab")
        self.desktop.press("Return")
        wait_until("no window", lambda: not self.in_sight())
        self.assert_over_and_untouched()
        self.begin_and_end_a_real_session()
        self.assertEqual(self.vantle.stop(), 0)
        self.await_empty_tray()
        self.launch()
        self.assertEqual(self.in_sight(), [])

    def test_closed_in_the_practice_nothing_is_logged(self):
        self.start(ripple__disabled="true")
        self.walk_to_press()
        self.desktop.press("Return")
        wait_until("the session", self.vantle.marker)
        self.desktop.press("ctrl+w")
        wait_until("no window", lambda: not self.in_sight())
        wait_until("no marker", lambda: self.vantle.marker() is None)
        self.assert_over_and_untouched()
        self.assertEqual(self.desktop.windows_named(SUMMARY), [])

    def test_quit_halfway_it_comes_again_from_the_start(self):
        self.start(ripple__disabled="true")
        self.walk_to_press()
        self.desktop.press(SHORTCUT)
        wait_until("the session", self.vantle.marker)
        self.assertEqual(self.vantle.stop(), 0)
        self.assertEqual(self.vantle.sessions(), [])
        self.assertNotEqual(self.vantle.preference("onboard.done"), "true")
        self.await_empty_tray()
        self.start()
        self.walk_to_press()

    def test_quit_over_the_bus_or_by_the_key_it_logs_nothing_and_comes_again(self):
        ways = (lambda: activate_action(self.desktop, "quit"), lambda: self.desktop.press("ctrl+q"))
        for number, quit_program in enumerate(ways):
            with self.subTest(way=number):
                self.start(ripple__disabled="true")
                self.walk_to_press()
                self.desktop.press("Return")
                wait_until("the session", self.vantle.marker)
                self.await_in_front()
                quit_program()
                self.assertEqual(self.vantle.wait(), 0)
                self.assertEqual(self.vantle.sessions(), [])
                self.assertIsNone(self.vantle.marker())
                self.assertNotEqual(self.vantle.preference("onboard.done"), "true")
                self.await_empty_tray()
        self.start()

    def test_started_at_login_and_called_much_later_it_is_the_panel_that_comes(self):
        self.desktop.env["VANTLE_AUTOSTART"] = "1"
        self.start()
        time.sleep(6)  # the call that the bus starts a program for comes within 5 s
        activate(self.desktop)
        wait_until("the panel", lambda: self.desktop.windows_named(PANEL_TITLE))


class ShownAgain(Welcome):

    def replay(self):
        """Opens the welcome from the settings, for a user who has been through it."""
        self.vantle.write_preferences(ripple__disabled="true", onboard__done="true")
        self.launch()
        self.begin_and_end_a_real_session()
        self.open_again()

    def open_again(self):
        activate_action(self.desktop, "settings")
        wait_until("the settings in front", lambda: self.desktop.active_window()
                   in self.desktop.windows_named("Settings"))
        for _ in range(5):
            self.desktop.press("shift+Tab")  # the strip's two buttons, erase, export, the welcome
        self.desktop.press("Return")
        self.await_in_front()

    def test_practice_by_its_button_leaves_the_log_as_it_is(self):
        self.replay()
        before = self.vantle.log_bytes()
        self.walk_to_press()
        self.desktop.press("Return")
        wait_until("the session", self.vantle.marker)
        self.desktop.screenshot("running")
        self.desktop.press(SHORTCUT)
        self.close_card()
        self.assertEqual(self.vantle.log_bytes(), before)

    def test_a_session_by_the_shortcut_is_work_and_stays(self):
        self.replay()
        self.walk_to_press()
        marker = self.begin_session()
        self.desktop.screenshot("working")
        self.assertEqual(self.end_session()["id"], marker["id"])
        wait_until("the card", lambda: self.desktop.windows_named(SUMMARY))
        self.desktop.screenshot("card")
        self.assertEqual(self.vantle.stop(), 0)
        self.assertEqual(self.vantle.sessions()[-1]["id"], marker["id"])

    def test_its_button_leaves_running_work_alone_and_so_does_its_end(self):
        self.replay()
        self.walk_to_press()
        for title in (TITLE, "Settings"):
            wait_until(f"{title} in front", lambda: self.desktop.active_window_title() == title)
            self.desktop.press("ctrl+w")
            wait_until("no window", lambda: not self.desktop.windows_named(title))
        marker = self.begin_session()
        self.open_again()
        self.walk_to_press()
        self.desktop.screenshot("button")
        self.desktop.press("Return")
        self.walk_to_end()
        self.assertEqual(self.vantle.marker()["id"], marker["id"])
        self.assertEqual(self.end_session()["id"], marker["id"])


if __name__ == "__main__":
    unittest.main()
