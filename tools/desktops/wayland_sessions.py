"""The Wayland sessions that Debian 12 has: one entry each, in a window of a private X server.

Pointer and keys of that server reach the session. A new one is one more entry.
"""

import shutil
import subprocess
from dataclasses import dataclass
from pathlib import Path

from scene import ROOT

from harness.bus import owner_of  # noqa: E402  scene has made it known
from harness.waiting import wait_until  # noqa: E402

WIDTH, HEIGHT = 1280, 800
SOCKET = "wayland-vantle"
UP = 60.0  # seconds that a session may take to come up
WITH_SWAY = ROOT / "tests" / "support" / "with-sway"
EXTENSIONS = ROOT / "packaging" / "gnome-shell"
TELL = "env >{0}.part && mv {0}.part {0}"  # what a program of the session finds


class Sway:
    """The session that the desktop tests have."""

    def start(self, scene):
        told = scene.desktop.directory / "session"
        scene.start_process(str(WITH_SWAY), "--", "sh", "-c",
                            TELL.format(told) + "; exec sleep infinity")
        return _told(told)


class KWin:
    """KDE's compositor without Plasma; it hosts the service for shortcuts itself."""

    def start(self, scene):
        folder = scene.desktop.directory
        # A copy has no capability of its file, which a container may refuse to give.
        program = shutil.copy(shutil.which("kwin_wayland"), folder / "kwin_wayland")
        told = folder / "session"
        within = folder / "within"
        within.write_text("#!/bin/sh\n" + TELL.format(told) + "\nexec sleep infinity\n")
        within.chmod(0o755)
        scene.desktop.env["XDG_CURRENT_DESKTOP"] = "KDE"
        scene.start_process(program, "--x11-display", scene.desktop.env["DISPLAY"], "--xwayland",
                            "--width", str(WIDTH), "--height", str(HEIGHT), "--socket", SOCKET,
                            "--no-lockscreen", str(within), QT_QPA_PLATFORM="")
        return _told(told)


class Gnome:
    """GNOME's shell. It ends without a login1, and needs a store for its settings."""

    EXTENSION = "frontmost-44@vantle.local"

    def start(self, scene):
        env = scene.desktop.env
        env.update(XDG_CURRENT_DESKTOP="GNOME", GSETTINGS_BACKEND="keyfile",
                   DBUS_SYSTEM_BUS_ADDRESS=env["DBUS_SESSION_BUS_ADDRESS"])
        installed = Path(env["XDG_DATA_HOME"], "gnome-shell", "extensions")
        shutil.copytree(EXTENSIONS, installed)
        scene.start_process("/usr/bin/python3", "-m", "dbusmock", "--system", "--template",
                            "logind")
        wait_until("login1", lambda: owner_of(scene.desktop, "org.freedesktop.login1"), UP)
        # With more threads of the software renderer a child that the shell forks may deadlock.
        scene.start_process("gnome-shell", "--nested", "--wayland", "--wayland-display", SOCKET,
                            LP_NUM_THREADS="0", LIBGL_ALWAYS_SOFTWARE="1",
                            MUTTER_DEBUG_DUMMY_MODE_SPECS=f"{WIDTH}x{HEIGHT}")
        wait_until("the shell", lambda: owner_of(scene.desktop, "org.gnome.Shell"), UP)
        runtime = env["XDG_RUNTIME_DIR"]
        server = wait_until("Xwayland", lambda: _xwayland_of(runtime), UP)
        authority = wait_until("its key", lambda: next(
            Path(runtime).glob(".mutter-Xwaylandauth*"), None))
        wait_until("the end of the start", lambda: "Shell started at" in scene.log_text(), UP)
        scene.desktop.press("Escape")  # out of the overview
        # The tools of this process have no key.
        subprocess.run(["xhost", "+local:"], env={**env, "DISPLAY": server,
                                                  "XAUTHORITY": str(authority)},
                       check=True, capture_output=True)
        return {"DISPLAY": server, "WAYLAND_DISPLAY": SOCKET}


def _told(path):
    wait_until("the session", path.exists, UP)
    lines = (line.partition("=") for line in path.read_text().splitlines())
    told = {name: value for name, _, value in lines}
    return {name: told[name] for name in ("DISPLAY", "WAYLAND_DISPLAY")}


def _xwayland_of(runtime):
    """The display of the server that was started with that runtime directory."""
    for process in Path("/proc").glob("[0-9]*/cmdline"):
        try:
            words = process.read_text().split("\0")
        except OSError:  # it has ended meanwhile
            continue
        if "Xwayland" in words[0] and any(runtime in word for word in words):
            return words[1]
    return None


@dataclass(frozen=True)
class Session:
    name: str
    packages: tuple
    kind: type


WINDOW = ("python3-gi", "gir1.2-gtk-3.0", "xwayland")
SESSIONS = (
    Session("sway 1.7", ("sway", "foot", *WINDOW), Sway),
    Session("KWin 5.27", ("kwin-wayland", *WINDOW), KWin),
    Session("GNOME 43", ("gnome-shell", "python3-dbusmock", *WINDOW), Gnome),
)

__all__ = ["HEIGHT", "SESSIONS", "Session", "WIDTH"]
