"""Where windows, cards and the panel stand: on the screen in use, and clear of bars."""

import unittest

from harness.bus import activate, activate_action
from harness.case import PANEL_TITLE, DesktopTest
from harness.waiting import wait_until

SUMMARY = "Vantle Session Summary"
CAPSULE = "Vantle Capsule"

CARD_WIDTH = 380
RIGHT_INSET = 12
TOP_INSET = 10


class ScreensCase(DesktopTest):
    """Without a compositor the window of a card is the card."""

    def frame(self, title):
        window = wait_until(title, lambda: self.desktop.windows_named(title))[0]
        return self.desktop.frame_of(window)

    def end_with_card(self):
        """Plays a session and returns where its card stands."""
        self.begin_session()
        self.end_session()
        return self.frame(SUMMARY)


class TwoScreensCase(ScreensCase):
    """The two halves of the desktop, each 720 px wide; the left one is the main one."""

    tray_kind = DesktopTest.NO_TRAY
    LEFT, RIGHT = (300, 500), (1100, 500)

    def setUp(self):
        super().setUp()
        for monitor in (("left", "720/190x900/238+0+0", "screen"),
                        ("right", "720/190x900/238+720+0", "none")):
            self.desktop.tool("xrandr", "--setmonitor", *monitor)
        self.launch()

    def go_to(self, place):
        self.desktop.tool("xdotool", "mousemove", *map(str, place))


class TwoScreens(TwoScreensCase):

    def test_a_window_opens_on_the_screen_with_the_pointer(self):
        for place, left in ((self.RIGHT, 720), (self.LEFT, 0)):
            self.go_to(place)
            activate_action(self.desktop, "settings")
            x, _, width, _ = self.frame("Settings")
            self.assertAlmostEqual(x + width / 2, left + 360, delta=2)
            self.desktop.await_keyboard("Settings")
            self.desktop.press("ctrl+w")
            wait_until("no window", lambda: not self.desktop.windows_named("Settings"))

    def test_a_card_stands_on_the_screen_with_the_pointer_and_stays_there(self):
        self.go_to(self.RIGHT)
        card = self.end_with_card()
        self.assertEqual(card[:2], (1440 - RIGHT_INSET - CARD_WIDTH, TOP_INSET))
        self.go_to(self.LEFT)
        self.desktop.tool("xrandr", "--setmonitor", "more", "720/190x400/119+720+500", "none")
        self.desktop.tool("xrandr", "--delmonitor", "more")
        self.assertEqual(self.frame(SUMMARY), card)

    def test_a_card_stands_on_the_main_screen_while_the_pointer_is_there(self):
        self.go_to(self.LEFT)
        self.assertEqual(self.end_with_card()[:2], (720 - RIGHT_INSET - CARD_WIDTH, TOP_INSET))

    def test_the_alert_opens_on_the_screen_with_the_pointer(self):
        self.go_to(self.RIGHT)
        self.desktop.env["VANTLE_AUTOSTART"] = "1"  # a start at login
        self.new_program().start()
        x, _, width, _ = self.frame("Vantle")
        self.assertAlmostEqual(x + width / 2, 1080, delta=20)

    def test_the_panel_without_a_tray_opens_on_the_screen_with_the_pointer(self):
        for place, left in ((self.RIGHT, 720), (self.LEFT, 0)):
            self.go_to(place)
            activate(self.desktop)
            x, _, width, _ = self.frame(PANEL_TITLE)
            self.assertTrue(left <= x and x + width <= left + 720, (x, width))
            self.desktop.await_keyboard(PANEL_TITLE)
            self.desktop.press("Escape")
            wait_until("no panel", lambda: not self.desktop.windows_named(PANEL_TITLE))


class CapsuleOnTwoScreens(TwoScreensCase):

    compositor = True

    def test_the_capsule_stays_on_the_main_screen(self):
        self.go_to(self.RIGHT)
        self.begin_session()
        x, _, width, _ = self.frame(CAPSULE)
        self.assertEqual(x + width / 2, 360)


class BarsWithoutWorkArea(ScreensCase):
    """No window manager adds up what bars reserve."""

    tray_kind = DesktopTest.NO_TRAY
    window_manager = False
    BAR = 40

    def test_a_card_stands_clear_of_a_bar(self):
        self.desktop.open("trayer", "--edge", "top", "--align", "left", "--widthtype", "percent",
                          "--width", "100", "--height", str(self.BAR), "--SetDockType", "true",
                          "--SetPartialStrut", "true")
        wait_until("the bar", lambda: self.desktop.tool("xwininfo", "-root", "-tree").count(
            b'"trayer"'))
        self.launch()
        self.assertEqual(self.end_with_card()[1], self.BAR + TOP_INSET)


class Scales(DesktopTest):

    tray_kind = DesktopTest.NO_TRAY
    WIDTH = 480  # of the settings, unscaled

    def settings_width(self, dpi):
        self.desktop.tool("bash", "-c", f"echo Xft.dpi: {dpi} | xrdb -merge")
        self.launch()
        activate_action(self.desktop, "settings")
        return self.frame_of_settings()[2]

    def frame_of_settings(self):
        window, = wait_until("the settings", lambda: self.desktop.windows_named("Settings"))
        return self.desktop.frame_of(window)

    def test_a_factor_next_to_one_is_one(self):
        self.assertEqual(self.settings_width(100), self.WIDTH)

    def test_a_factor_next_to_two_is_two(self):
        self.assertEqual(self.settings_width(200), 2 * self.WIDTH)

    def test_a_factor_between_stays(self):
        self.assertEqual(self.settings_width(120), 1.25 * self.WIDTH)


if __name__ == "__main__":
    unittest.main()
