"""A Wayland session on a private desktop: the screen is an X server's, the desktop is sway."""

import copy
import os
import subprocess
import time
from pathlib import Path

from .bus import activate_action
from .case import DesktopTest
from .desktop import HOLDER
from .waiting import wait_until

WITH_SWAY = Path(__file__).resolve().parents[2] / "support" / "with-sway"


# As a terminal reports presses to what runs in it.
PRESS = "\x1b[M "


class WaylandSession:
    """Lives from start() to stop(). `desktop` is the session as an X11 program sees it, through
    Xwayland; pointer and keys come from the desktop around it. At a scale of 1.25 its screen is
    1024x640 of its own px."""

    def __init__(self, around, scale=1):
        self._around = around
        self._scale = scale
        self._holder = None
        self.desktop = None

    def start(self):
        self._holder = subprocess.Popen([WITH_SWAY, "--scale", str(self._scale), "--", *HOLDER],
                                        env=self._around.env, stdin=subprocess.PIPE,
                                        stdout=subprocess.PIPE)
        answer = b""
        while not answer.endswith(b"\0\n"):
            part = os.read(self._holder.stdout.fileno(), 65536)
            if not part:
                raise RuntimeError("the Wayland session did not come up")
            answer += part
        entries = (entry.partition("=") for entry in os.fsdecode(answer[:-2]).split("\0"))
        inside = {name: value for name, _, value in entries}
        self.desktop = copy.copy(self._around)
        self.desktop.env = dict(self._around.env)
        for name in ("DISPLAY", "WAYLAND_DISPLAY", "XDG_SESSION_TYPE"):
            self.desktop.env[name] = inside[name]
        self.desktop.look()

    def stop(self):
        if self._holder is None:
            return
        self.desktop.look_away()
        self._holder.stdin.close()
        self._holder.wait(10)
        self._holder.stdout.close()
        self._holder = None


class WaylandTest(DesktopTest):
    """The program in a Wayland session, beside a window that X11 knows nothing of."""

    tray_kind = DesktopTest.NO_TRAY
    window_manager = False
    scale = 1
    native_window = ("foot",)  # and its options

    def setUp(self):
        super().setUp()
        self.desktop.env["VANTLE_AUTOSTART"] = "1"  # nothing pops up
        session = WaylandSession(self.desktop, self.scale)
        self.addCleanup(session.stop)
        session.start()
        self.session = session.desktop
        self.vantle = self.new_program(self.session)
        self.vantle.write_preferences(notch__intro__flashed="true")
        self.open_native_window()

    def open_native_window(self):
        """A terminal over the whole screen, which writes down what it gets."""
        self._got = self.desktop.directory / "got"
        self.session.open(*self.native_window, "sh", "-c",
                          f"printf '\\033[?1000h'; stty -echo raw; exec cat >{self._got}")
        wait_until("the native window", self._got.exists)
        time.sleep(0.5)  # until it is in front

    def got(self):
        return self._got.read_bytes().decode("latin-1")

    def presses(self):
        return self.got().count(PRESS)

    def click(self, x, y):
        self.desktop.tool("xdotool", "mousemove", str(x), str(y), "sleep", "0.2", "click", "1",
                          "sleep", "0.2")

    def expect_press_through(self, x, y):
        before = self.presses()
        self.click(x, y)
        wait_until(f"a press at {x}, {y} in the native window",
                   lambda: self.presses() > before, deadline=3)

    def expect_keys_through(self, letters):
        self.desktop.type(letters)
        wait_until(f"{letters!r} in the native window", lambda: letters in self.got(), deadline=3)

    def toggle(self):
        activate_action(self.session, "toggle")

    def frames(self, title):
        return [self.session.frame_of(window) for window in self.session.windows_named(title)]
