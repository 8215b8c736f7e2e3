"""What the window manager is told of the program's windows, and what it does with them."""

import re
import unittest

from harness.waiting import wait_until
from harness.windows import (DASHBOARD, NOTES, QUICK_LOG, SETTINGS, WELCOME, WRAPPED, WindowCase)


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
        self.new_program().start()
        alert, = wait_until("the alert", lambda: self.desktop.windows_named("Vantle"))
        self.assert_icon(alert)


class FirstWindow(IconCase):

    newcomer = True

    def test_the_welcome_brings_its_icon_along(self):
        self.vantle.start()
        welcome, = wait_until("the welcome", lambda: self.desktop.windows_named(WELCOME))
        self.assert_icon(welcome)


if __name__ == "__main__":
    unittest.main()
