"""One set-up on a private desktop, with the program on it, and what a user does there."""

import os
import re
import subprocess
import sys
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tests" / "desktop"))

from harness.bus import PROGRAM_NAME, activate_action, owner_of  # noqa: E402
from harness.case import FIRST_SKILL_COLOUR, PANEL_TITLE, SHORTCUT  # noqa: E402
from harness.desktop import Desktop  # noqa: E402
from harness.picture import is_near, rgb_of  # noqa: E402
from harness.program import Program  # noqa: E402
from harness.waiting import wait_until  # noqa: E402

OVERLAY = "Vantle ceremony"
CARD = "Vantle Session Summary"
PATIENCE = 12.0  # seconds; a set-up does not do what it has not done by then


class Scene:
    """Lives from start() to stop(). Everything in it ends with the private desktop."""

    def __init__(self, setup, executable, pictures):
        self.setup = setup
        self.desktop = Desktop(pictures, tray=False, window_manager=False)
        self.vantle = Program(executable, self.desktop)
        self.item = None  # where the tray shows the program: x, y, width, height
        self.locker = None
        self._processes = []

    def start(self):
        self.desktop.start()
        env = self.desktop.env
        env.update({"NO_AT_BRIDGE": "1", "GTK_A11Y": "none", "VANTLE_AUTOSTART": "1"},
                   **self.setup.env)
        for name, text in self.setup.files.items():
            path = Path(env["XDG_CONFIG_HOME"], name)
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text)
        self.shell(*self.setup.before)
        for start in self.setup.starts:
            self.run(*(word.format(config=env["XDG_CONFIG_HOME"]) for word in start.command))
            self._await_up(start)
        self.shell(*self.setup.after)
        self.desktop.tool("xsetroot", "-solid", "#808080")
        time.sleep(1)  # bars slide in and load their icons
        self.vantle.start()
        self.wait("the program on the bus", lambda: owner_of(self.desktop, PROGRAM_NAME))
        time.sleep(1)

    def stop(self):
        self.vantle.kill()
        for process in reversed(self._processes):
            process.terminate()
        self.desktop.stop()

    def run(self, *command):
        with open(self.desktop.directory / "setup.log", "ab") as log:
            process = subprocess.Popen(command, env=self.desktop.env, stdin=subprocess.DEVNULL,
                                       stdout=log, stderr=log, cwd=self.desktop.env["HOME"])
        self._processes.append(process)
        return process

    def shell(self, *commands):
        for command in commands:
            subprocess.run(["sh", "-c", command], env=self.desktop.env, check=False,
                           stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                           stderr=subprocess.DEVNULL, timeout=20)

    @staticmethod
    def wait(what, predicate):
        return wait_until(what, predicate, PATIENCE)

    def _await_up(self, start):
        kind, _, name = start.up.partition(":")
        program = Path(start.command[0]).name
        if kind == "bus":
            self.wait(f"{program} on the bus", lambda: owner_of(self.desktop, name))
        elif kind == "class":
            self.wait(f"the window of {program}", lambda: self.windows_of_class(name))
        elif kind == "wm":
            self.wait(program, lambda: "window id" in self.ask(
                "xprop", "-root", "_NET_SUPPORTING_WM_CHECK"))
        else:
            time.sleep(1)

    # -- what is on the screen

    def ask(self, *command):
        return subprocess.run(command, env=self.desktop.env, stdin=subprocess.DEVNULL, check=False,
                              capture_output=True, text=True).stdout

    def windows_of_class(self, name):
        return self.ask("xdotool", "search", "--onlyvisible", "--class", name).split()

    def window(self, title):
        return next(iter(self.desktop.windows_named(title)), None)

    def frame_of(self, window):
        """Where a window is: x, y, width, height. By the root window: what is told of the way
        through a window manager's frame differs among tools."""
        told = self.ask("xwininfo", "-id", window)
        return tuple(int(re.search(rf"{name}: +(-?\d+)", told)[1])
                     for name in ("Absolute upper-left X", "Absolute upper-left Y", "Width",
                                  "Height"))

    def panel(self):
        return self.window(PANEL_TITLE)

    def bar_picture(self):
        return self.desktop.picture(*self.setup.bar)

    def spots(self, colour, tolerance=24):
        """The places in the bar that have a colour."""
        x, y, width, _ = self.setup.bar
        return [(x + at % width, y + at // width)
                for at, pixel in enumerate(self.bar_picture().pixels())
                if is_near(pixel, colour, tolerance)]

    def find_item(self):
        """Where the bar shows the dot of a session: the last spot of that colour, since the capsule
        in the middle may have one too."""
        colour = rgb_of(FIRST_SKILL_COLOUR)
        spots = self.wait("the dot in the bar", lambda: self.spots(colour))
        last = max(x for x, _ in spots)
        columns, rows = zip(*(spot for spot in spots if spot[0] > last - 24))
        middle = (min(columns) + max(columns)) // 2, (min(rows) + max(rows)) // 2
        # As large as items are, and no larger than the bar.
        left, top, width, height = self.setup.bar
        size = min(24, height)
        self.item = (min(max(middle[0] - 12, left), left + width - size),
                     min(max(middle[1] - 12, top), top + height - size), size, size)

    # -- what a user does

    def click(self, x, y, button=1):
        self.desktop.tool("xdotool", "mousemove", str(x), str(y), "sleep", "0.3",
                          "click", str(button))

    def click_item(self, button=1):
        if self.item is None:
            raise AssertionError("no item was found in the bar")
        x, y, width, height = self.item
        self.click(x + width // 2, y + height // 2, button)

    def press(self, keys):
        self.desktop.press(keys)

    def toggle(self):
        activate_action(self.desktop, "toggle")

    def begin(self):
        self.toggle()
        self.wait("a marker", self.vantle.marker)

    def end(self):
        """Ends the session and returns its record."""
        before = len(self.vantle.sessions())
        self.toggle()
        self.wait("a record", lambda: len(self.vantle.sessions()) > before)
        return self.vantle.sessions()[-1]

    def await_calm(self):
        """Waits until nothing of a ceremony is left."""
        time.sleep(0.7)
        self.wait("the end of the ceremony", lambda: not self.window(OVERLAY))
        time.sleep(0.2)

    def open_editor(self, *options):
        """Another application with the keyboard; returns the file that its lines land in."""
        typed = self.desktop.directory / f"typed-{time.monotonic_ns()}"
        process = self.run("xterm", "-T", "editor", *options, "-e", f"cat > {typed}")
        self.wait("the editor", lambda: self.window("editor"))
        time.sleep(0.5)
        if not self.desktop.has_keyboard("editor"):
            x, y, width, height = self.frame_of(self.window("editor"))
            self.click(x + width // 2, y + height // 2)
        self.desktop.await_keyboard("editor")
        return typed, process

    def open_window(self, action, title):
        activate_action(self.desktop, action)
        window = self.wait(title, lambda: self.window(title))
        time.sleep(0.5)
        return window

    def clear(self):
        """Brings the desktop back to where a check began: no session, no window, no card."""
        self.shell(self.setup.other_workspace.replace("set_desktop 1", "set_desktop 0")
                   .replace("workspace 2", "workspace 1").replace("-f 2", "-f 1"))
        for _ in range(3):
            if self.vantle.marker() is None:
                break
            self.toggle()
            time.sleep(1)
        for process in self._processes[len(self.setup.starts):]:
            process.terminate()
        del self._processes[len(self.setup.starts):]
        self.press("Escape")
        for title in ("Settings", PANEL_TITLE):
            for window in self.desktop.windows_named(title):
                self.shell(f"xdotool windowfocus {window} key ctrl+w key Escape")
        card = self.window(CARD)
        if card:
            x, y, width, _ = self.frame_of(card)
            self.click(x + width - 27, y + 27)
        self.desktop.tool("xdotool", "mousemove", "400", "500")
        time.sleep(0.8)



def executable():
    return Path(os.environ.get("VANTLE_EXECUTABLE", ROOT / "build" / "release" / "vantle"))


__all__ = ["CARD", "OVERLAY", "PANEL_TITLE", "ROOT", "SHORTCUT", "Scene", "executable"]
