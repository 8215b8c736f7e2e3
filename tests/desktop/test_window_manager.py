"""What the window manager is told of the program's windows, and what it does with them."""

import re
import unittest

from harness.bus import activate_action
from harness.waiting import wait_until
from harness.windows import (DASHBOARD, NOTES, QUICK_LOG, SETTINGS, WELCOME, WRAPPED, ReaderCase,
                             WindowCase)


class IconCase(WindowCase):

    def icon_sizes(self, window):
        """The sizes of the pictures that the window has for task bars, as "16 x 16"."""
        told = self.desktop.tool("xprop", "-id", window, "-len", "1000000", "_NET_WM_ICON")
        return re.findall(r"Icon \((\d+ x \d+)\)", told.decode())

    def assert_icon(self, window):
        sizes = self.icon_sizes(window)
        for size in ("16 x 16", "32 x 32", "48 x 48", "64 x 64", "128 x 128"):
            self.assertIn(size, sizes)


class WindowIcons(IconCase):

    def test_every_window_brings_its_icon_along(self):
        self.launch()
        for which in (DASHBOARD, NOTES, QUICK_LOG, SETTINGS, WRAPPED):
            with self.subTest(which[1]):
                self.assert_icon(self.open(*which))

    def test_the_alert_brings_its_icon_along(self):
        self.launch()
        self.desktop.env["VANTLE_AUTOSTART"] = "1"  # a start at login
        self.new_program().start()
        alert, = wait_until("the alert", lambda: self.desktop.windows_named("Vantle"))
        self.assert_icon(alert)


class FirstWindow(IconCase):

    newcomer = True

    def test_the_welcome_brings_its_icon_along(self):
        self.vantle.start()
        welcome, = wait_until("the welcome", lambda: self.desktop.windows_named(WELCOME))
        self.assert_icon(welcome)


class Workspaces(WindowCase):
    """The window stands on the first of two workspaces, the user on the other one."""

    def setUp(self):
        super().setUp()
        self.desktop.tool("xdotool", "set_num_desktops", "2")
        self.launch()

    def workspace(self):
        return self.desktop.tool("xdotool", "get_desktop").decode().strip()

    def go_to(self, number):
        self.desktop.tool("xdotool", "set_desktop", number)
        wait_until("the other workspace", lambda: self.workspace() == number)

    def assert_comes(self):
        activate_action(self.desktop, "settings")
        window, = wait_until("the window here", lambda: self.desktop.windows_named("Settings"))
        wait_until("the window in front", lambda: self.desktop.active_window() == window)
        self.desktop.await_keyboard("Settings")
        self.assertEqual(self.workspace(), "1", "the user stays where they are")

    def test_a_window_comes_to_the_workspace_in_use(self):
        self.open(*SETTINGS)
        self.go_to("1")
        wait_until("no window here", lambda: not self.desktop.windows_named("Settings"))
        self.assert_comes()

    def test_a_minimised_window_comes_to_the_workspace_in_use(self):
        window = self.open(*SETTINGS)
        self.desktop.tool("xdotool", "windowminimize", window)
        wait_until("the window gone", lambda: not self.desktop.windows_named("Settings"))
        self.go_to("1")
        self.assert_comes()

    def test_a_window_comes_over_one_that_was_just_typed_into(self):
        self.open(*SETTINGS)
        self.go_to("1")
        typed = self.open_editor()
        self.desktop.type("busy\n")
        wait_until("the line", lambda: typed.read_text() == "busy\n")
        self.assert_comes()


class BareServer(ReaderCase):
    """No window manager at first."""

    window_manager = False

    def open_settings(self):
        self.launch()
        activate_action(self.desktop, "settings")
        window, = wait_until("the window", lambda: self.desktop.windows_named("Settings"))
        self.desktop.await_still(*self.desktop.frame_of(window))
        return window

    def drag(self, window, steps):
        """Drags it by its strip, 60 px each way at the end, and waits until it stands there."""
        x, y, width, height = self.desktop.frame_of(window)
        self.desktop.tool("xdotool", "mousemove", str(x + 100), str(y + 15), "mousedown", "1")
        for step in steps:
            self.desktop.tool("xdotool", "mousemove", str(x + 100 + step), str(y + 15 + step))
        self.desktop.tool("xdotool", "mouseup", "1")
        moved = (x + 60, y + 60, width, height)
        wait_until("the window there", lambda: self.desktop.frame_of(window) == moved)
        return moved

    def test_a_quick_pull_moves_a_window_as_far_as_a_slow_one(self):
        self.drag(self.open_settings(), (60,))

    def test_the_strip_moves_a_window_that_no_window_manager_moves(self):
        window = self.open_settings()
        moved = self.drag(window, (20, 40, 60))
        self.desktop.tool("xdotool", "mousemove", "100", "800")
        self.desktop.await_still(0, 0, 1440, 900)
        self.assertEqual(self.desktop.frame_of(window), moved, "it stays where it was dropped")

    def test_the_button_that_minimises_comes_and_goes_with_the_window_manager(self):
        self.open_settings()
        self.await_told("Settings", "push button", "Close")
        self.assertRaises(LookupError, self.find_minimise)
        manager = self.desktop.open("openbox")
        self.await_told("Settings", "push button", "Minimise")
        manager.kill()
        manager.wait()
        wait_until("no button", self.is_minimise_gone)

    def find_minimise(self):
        return self.reader.window("Settings").find("push button", "Minimise")

    def is_minimise_gone(self):
        try:
            self.find_minimise()
            return False
        except LookupError:
            return True


if __name__ == "__main__":
    unittest.main()
