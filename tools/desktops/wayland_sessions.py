"""The Wayland sessions of Debian 12 and 13: one entry each, in a window of a private X server.

Pointer and keys of that server reach the session. A new one is one more entry.
"""

import os
import re
import shutil
import signal
import subprocess
import time
from dataclasses import dataclass
from pathlib import Path

from scene import ROOT

from harness.bus import owner_of  # noqa: E402  scene has made it known
from harness.picture import is_near  # noqa: E402
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

    def give_keys(self, scene):
        """As the settings say: the user binds a key to the command."""
        # Sway may run as another user, whom the bus rejects: its key only requests the command.
        presses = scene.desktop.directory / "presses"
        os.mkfifo(presses)
        presses.chmod(0o666)
        scene.desktop.directory.chmod(0o711)
        scene.start_process("sh", "-c", f"while read -r _; do '{_write_command(scene)}' & done"
                            f" <>'{presses}'")
        socket = next(Path(scene.inside.env["WAYLAND_DISPLAY"]).parent.glob("sway-ipc.*"))
        scene.desktop.tool("swaymsg", "-s", str(socket), "bindsym", "Mod1+Mod4+b", "exec",
                           f"'echo >>{presses}'")


class Labwc:
    """Another compositor on the library that sway stands on, with windows that float."""

    def start(self, scene):
        told = scene.desktop.directory / "session"
        within = f"sh -c '{TELL.format(told)}; exec sleep infinity'"
        self._labwc = scene.start_process("labwc", "-s", within, WLR_BACKENDS="x11",
                                          WLR_RENDERER="pixman")
        found = _told(told)
        window = wait_until("its window", lambda: _largest_window(scene))
        scene.desktop.tool("xdotool", "windowmove", window, "0", "0",
                           "windowsize", window, str(WIDTH), str(HEIGHT))
        return found

    def give_keys(self, scene):
        rules = Path(scene.desktop.env["XDG_CONFIG_HOME"], "labwc", "rc.xml")
        rules.parent.mkdir()
        rules.write_text("<labwc_config><keyboard><keybind key='A-W-b'><action name='Execute' "
                         f"command='{_write_command(scene)}'/></keybind></keyboard></labwc_config>")
        self._labwc.send_signal(signal.SIGHUP)
        time.sleep(1)  # until it has read them


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
        # It repeats keys itself, and takes the X server's repeats for presses of their own.
        scene.desktop.tool("xset", "r", "off")
        scene.start_process(program, "--x11-display", scene.desktop.env["DISPLAY"], "--xwayland",
                            "--width", str(WIDTH), "--height", str(HEIGHT), "--socket", SOCKET,
                            "--no-lockscreen", str(within), QT_QPA_PLATFORM="")
        return _told(told)

    def give_keys(self, scene):
        """It gives them by itself."""


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


    def give_keys(self, scene):
        """As a custom key, which the user allows in the settings."""
        scene.start_process("/usr/libexec/gsd-media-keys", where=scene.inside)
        wait_until("the daemon for keys", lambda: owner_of(
            scene.desktop, "org.gnome.SettingsDaemon.MediaKeys"), UP)
        scene.press_in_settings("Set up the shortcut", "Switch the shortcut off")


class Gnome48(Gnome):
    EXTENSION = "frontmost@vantle.local"
    PORTAL = (("/usr/libexec/gnome-control-center-global-shortcuts-provider",
               "org.gnome.Settings.GlobalShortcutsProvider"),
              ("/usr/libexec/xdg-desktop-portal-gnome",
               "org.freedesktop.impl.portal.desktop.gnome"),
              ("/usr/libexec/xdg-desktop-portal", "org.freedesktop.portal.Desktop"))
    BLUE = (0x35, 0x84, 0xE4)  # of the button that agrees

    def give_keys(self, scene):
        """By the portal, whose dialog asks the user."""
        # It serves programs that have an entry alone, whose command it can find.
        scene.install_entry("local.vantle.Vantle", "Vantle", scene.executable)
        for program, name in self.PORTAL:
            scene.start_process(program, where=scene.inside, GDK_BACKEND="wayland")
            wait_until(program, lambda wanted=name: owner_of(scene.desktop, wanted), UP)
        scene.press_in_settings("Set up the shortcut", "Switch the shortcut off",
                                meanwhile=self._agree)

    def _agree(self, scene):
        def blue():
            pixels = list(scene.desktop.picture(0, 0, WIDTH, HEIGHT).pixels())
            spots = [at for at, pixel in enumerate(pixels) if is_near(pixel, self.BLUE, 6)]
            return spots if len(spots) > 400 else None

        spots = wait_until("the portal's question", blue, UP)
        scene.desktop.screenshot("portal-asks")
        middle = spots[len(spots) // 2]
        columns = sorted(at % WIDTH for at in spots if at // WIDTH == middle // WIDTH)
        scene.click(columns[len(columns) // 2], middle // WIDTH)


def _write_command(scene):
    """The command that a user binds to a key, as a program of its own."""
    command = next(line for line in (ROOT / "README.md").read_text().splitlines()
                   if line.startswith("gdbus call"))
    path = scene.desktop.directory / "bound"
    address = scene.desktop.env["DBUS_SESSION_BUS_ADDRESS"]
    path.write_text(f"#!/bin/sh\nDBUS_SESSION_BUS_ADDRESS='{address}' exec {command}\n")
    path.chmod(0o755)
    return path


def _largest_window(scene):
    """The window of a nested compositor, which has no name."""
    tree = scene.desktop.tool("xwininfo", "-root", "-children").decode()
    sizes = {line.split()[0]: int(width) * int(height) for line in tree.splitlines()
             for width, height in re.findall(r"(\d+)x(\d+)[+-]", line) if "0x" in line}
    return max(sizes, key=sizes.get, default=None)


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
    suite: str  # the Debian that has it
    packages: tuple
    kind: type


WINDOW = ("python3-gi", "gir1.2-gtk-3.0", "xwayland")
GNOME = ("gnome-shell", "gnome-settings-daemon", "python3-dbusmock", *WINDOW)
SESSIONS = (
    Session("sway 1.7", "bookworm", ("sway", "foot", *WINDOW), Sway),
    Session("KWin 5.27", "bookworm", ("kwin-wayland", *WINDOW), KWin),
    Session("GNOME 43", "bookworm", GNOME, Gnome),
    Session("sway 1.10", "trixie", ("sway", "foot", *WINDOW), Sway),
    Session("labwc 0.8", "trixie", ("labwc", *WINDOW), Labwc),
    Session("KWin 6.3", "trixie", ("kwin-wayland", *WINDOW), KWin),
    Session("GNOME 48", "trixie",
            (*GNOME, "gnome-control-center", "xdg-desktop-portal-gnome"), Gnome48),
)

__all__ = ["HEIGHT", "SESSIONS", "Session", "WIDTH"]
