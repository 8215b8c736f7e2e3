"""A Wayland session on a private desktop: the screen is an X server's, the desktop is sway."""

import copy
import os
import subprocess
from pathlib import Path

from .desktop import HOLDER

WITH_SWAY = Path(__file__).resolve().parents[2] / "support" / "with-sway"


class WaylandSession:
    """Lives from start() to stop(). `desktop` is the session as an X11 program sees it, through
    Xwayland; pointer and keys come from the desktop around it."""

    def __init__(self, around):
        self._around = around
        self._holder = None
        self.desktop = None

    def start(self):
        self._holder = subprocess.Popen([WITH_SWAY, "--", *HOLDER], env=self._around.env,
                                        stdin=subprocess.PIPE, stdout=subprocess.PIPE)
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
