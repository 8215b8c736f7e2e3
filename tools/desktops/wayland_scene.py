"""One Wayland session with the program in it, and what a user does there."""

import copy
import subprocess
import time
from pathlib import Path

from scene import CARD, ROOT

from harness.bus import PROGRAM_NAME, activate_action, owner_of  # noqa: E402
from harness.desktop import Desktop  # noqa: E402
from harness.program import Program  # noqa: E402
from harness.reader import Reader  # noqa: E402
from harness.waiting import wait_until  # noqa: E402

SETTINGS = "Settings"
NATIVE_WINDOW = Path(__file__).resolve().parent / "native_window.py"


class WaylandScene:
    """Lives from start() to stop(). `desktop` is the X server around the session, whose pointer and
    keys are the user's; `inside` is the session as its X11 programs see it."""

    THRESHOLD = 10.0  # seconds until the user is away, the shortest that the preference takes

    def __init__(self, session, executable, pictures):
        self.session = session
        self.kind = session.kind()
        self.desktop = Desktop(pictures, tray=False, window_manager=False)
        self.inside = None
        self.reader = None
        self.vantle = None
        self.executable = executable
        self._processes = []
        self._got = None

    def start(self):
        self.desktop.start()
        self.desktop.env.update(NO_AT_BRIDGE="1", GTK_A11Y="none", VANTLE_AUTOSTART="1")
        found = self.kind.start(self)
        self.inside = copy.copy(self.desktop)
        self.inside.env = dict(self.desktop.env, XDG_SESSION_TYPE="wayland", **found)
        self.inside.look()
        self.reader = Reader(self.inside)
        self.reader.start()
        self.vantle = Program(self.executable, self.inside)
        self.vantle.write_preferences(notch__intro__flashed="true",
                                      idle__thresholdSeconds=self.THRESHOLD)
        self.vantle.start()
        wait_until("the program on the bus", lambda: owner_of(self.desktop, PROGRAM_NAME))
        _, self._got = self.open_native_window()

    def stop(self):
        if self.vantle is not None:
            self.vantle.kill()
        if self.reader is not None:
            self.reader.stop()
        for process in reversed(self._processes):
            process.terminate()
        if self.inside is not None:
            self.inside.look_away()
        self.desktop.stop()

    def start_process(self, *command, where=None, **variables):
        """Starts a program beside the session, or `where` else; it ends with the scene."""
        env = dict((where or self.desktop).env, **variables)
        with open(self.log, "ab") as log:
            process = subprocess.Popen(command, env=env, stdin=subprocess.DEVNULL, stdout=log,
                                       stderr=log, cwd=env["HOME"])
        self._processes.append(process)
        return process

    @property
    def log(self):
        return self.desktop.directory / "setup.log"

    def log_text(self):
        return self.log.read_text(errors="replace")

    # -- what is in the session

    def open_native_window(self, application="org.example.Editor"):
        """A window that X11 knows nothing of, over the whole screen and with the keyboard."""
        got = self.desktop.directory / f"got-{time.monotonic_ns()}"
        process = self.start_process("/usr/bin/python3", str(NATIVE_WINDOW), application,
                                     str(got), where=self.inside, GDK_BACKEND="wayland")
        wait_until("the native window", got.exists)
        time.sleep(2)  # until it is in front
        return process, got

    def got(self):
        return self._got.read_text()

    def frames(self, title):
        return [self.inside.frame_of(window) for window in self.inside.windows_named(title)]

    def install_entry(self, entry_id, name, command, *lines):
        folder = Path(self.desktop.env["XDG_DATA_HOME"], "applications")
        folder.mkdir(parents=True, exist_ok=True)
        (folder / f"{entry_id}.desktop").write_text("\n".join(
            ("[Desktop Entry]", "Type=Application", f"Name={name}", f"Exec={command}", *lines, "")))

    # -- what a user does

    def work(self, seconds):
        """Types into the native window, without a pause that would count."""
        until = time.monotonic() + seconds
        while time.monotonic() < until:
            self.desktop.type("w")
            time.sleep(0.4)

    def click(self, x, y):
        self.desktop.tool("xdotool", "mousemove", str(x), str(y), "sleep", "0.3", "click", "1",
                          "sleep", "0.4")

    def hold_shortcut(self, seconds):
        """Longer than keys rest before they repeat."""
        keys = ("alt", "super", "b")
        down = [word for key in keys for word in ("keydown", key)]
        up = [word for key in reversed(keys) for word in ("keyup", key)]
        self.desktop.tool("xdotool", *down, "sleep", str(seconds), *up)

    def press_in_settings(self, button, then, meanwhile=lambda scene: None):
        """Presses a button, which Tab leads to, and waits until it reads `then`."""
        activate_action(self.inside, "settings")
        self.reader.window(SETTINGS)

        def focused():
            return [one.name for one in self.reader.window(SETTINGS).all()
                    if "focused" in one.states]

        for _ in range(20):
            self.desktop.press("Tab")
            time.sleep(0.5)
            if button in focused():
                break
        else:
            raise AssertionError(f"Tab leads to no button {button!r}")
        name = button.replace(" ", "-").lower()
        self.desktop.screenshot(f"{name}-offered")
        self.desktop.press("space")
        meanwhile(self)
        wait_until(f"the button to read {then!r}", lambda: then in focused())
        time.sleep(1)  # until that is drawn, too
        self.desktop.screenshot(f"{name}-done")
        self.close_settings()

    def look_at_settings(self):
        """For pictures of all of the page."""
        activate_action(self.inside, "settings")
        self.reader.window(SETTINGS)
        for part in ("top", "middle", "end"):
            time.sleep(1)
            self.desktop.screenshot(f"settings-{part}")
            self.desktop.press("Next")
        self.close_settings()

    def close_settings(self):
        self.desktop.press("ctrl+w")
        wait_until("no window", lambda: not self.frames(SETTINGS))

    def toggle(self):
        activate_action(self.inside, "toggle")

    def begin(self):
        self.toggle()
        return wait_until("a session", self.vantle.marker)

    def end(self):
        before = len(self.vantle.sessions())
        self.toggle()
        wait_until("a record", lambda: len(self.vantle.sessions()) > before)
        return self.vantle.sessions()[-1]

    def clear(self):
        """No session, no card and no window."""
        if self.frames(SETTINGS):
            self.desktop.press("ctrl+w")
        for _ in range(3):
            if self.vantle.marker() is None:
                break
            self.toggle()
            time.sleep(2)
        for x, y, width, _ in self.frames(CARD):
            self.click(x + width - 27, y + 27)
        self.desktop.tool("xdotool", "mousemove", "300", "600")
        time.sleep(3.5)  # until the capsule rests


__all__ = ["ROOT", "WaylandScene"]
