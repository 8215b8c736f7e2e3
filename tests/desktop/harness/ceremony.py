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

# No window is left this long after the press, whatever was played.
ALL_GONE = 3.4


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
        self.assertEqual(self.overlays(), [])
        wait_until("the ground again", lambda: self.spot(20, 700) == GROUND_RGB, deadline=1)

    def wait_for_moment(self, pressed, moment):
        time.sleep(max(pressed + moment - time.monotonic(), 0))
