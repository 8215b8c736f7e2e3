"""The frame of tests that look at what plays over the screens."""

import time

from .case import SHORTCUT, DesktopTest
from .eyes import Eyes
from .picture import rgb_of
from .waiting import wait_until

OVERLAY = "Vantle ceremony"
# What a compositor shows where there is no window.
GROUND = 0x808080
GROUND_RGB = rgb_of(GROUND)

# No window is left this long after the press, whatever was played. A busy machine may be late.
ALL_GONE = 3.4
MAY_BE_LATE = 2


class CeremonyCase(DesktopTest):

    compositor = True

    def setUp(self):
        super().setUp()
        self.eyes = Eyes(self.desktop.env["DISPLAY"])
        self.addCleanup(self.eyes.close)
        self.desktop.tool("xsetroot", "-solid", f"#{GROUND:06x}")
        wait_until("the ground", lambda: self.spot(20, 700) == GROUND_RGB)

    def spot(self, x, y):
        return next(self.eyes.picture(x, y, 1, 1).pixels())

    def watch(self, area, until, every=0.1):
        """Pictures of an area, one after the other up to a moment of the monotonic clock."""
        pictures = []
        while time.monotonic() < until:
            pictures.append(self.eyes.picture(*area))
            time.sleep(every)
        return pictures

    def sees(self, area, until, shown):
        """Whether an area shows something before a moment of the monotonic clock."""
        while time.monotonic() < until:
            if shown(self.eyes.picture(*area)):
                return True
            time.sleep(0.05)
        return False

    def overlays(self):
        return self.desktop.windows_named(OVERLAY)

    def await_overlays(self, count=1):
        return wait_until("the overlays", lambda: len(self.overlays()) == count and self.overlays())

    def press_and_play(self, count=1):
        """Presses the shortcut; gives the moment of it once the overlays are up."""
        pressed = time.monotonic()
        self.desktop.press(SHORTCUT)
        self.await_overlays(count)
        return pressed

    def assert_all_gone(self, pressed, after=ALL_GONE):
        time.sleep(max(pressed + after - time.monotonic(), 0))
        wait_until("no overlays", lambda: not self.overlays(), deadline=MAY_BE_LATE)
        wait_until("the ground again", lambda: self.spot(20, 700) == GROUND_RGB,
                   deadline=MAY_BE_LATE)

    def in_a_show(self, act):
        """Does something while a show plays, and gives the moment of its press. Where a busy
        machine is so slow that the show is over before, that was no trial, and another one plays.
        """
        for _ in range(4):
            pressed = self.press_and_play()
            act()
            if self.overlays():
                return pressed
            self.desktop.press(SHORTCUT)
            wait_until("the session's end", lambda: self.vantle.marker() is None)
            self.assert_all_gone(time.monotonic(), after=1.2)
        raise AssertionError("it never came about before the end of a show")

    def wait_for_moment(self, pressed, moment):
        time.sleep(max(pressed + moment - time.monotonic(), 0))
