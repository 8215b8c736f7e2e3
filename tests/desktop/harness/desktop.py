"""A private desktop: X server, window manager, tray, bus and an empty home."""

import os
import re
import socket
import struct
import subprocess
import time
from pathlib import Path

from .display import Display
from .eyes import Eyes, NotOnTheScreen
from .waiting import wait_until

WITH_DESKTOP = Path(__file__).resolve().parents[2] / "support" / "with-desktop"

SCREEN = (1440, 900)  # px of the screen of with-desktop

# Answers with its environment, then lives until its standard input is closed.
HOLDER = ["bash", "-c", "env -0; echo; exec cat >/dev/null"]


class Desktop:
    """Lives from start() to stop(), and no longer than this process in any case.

    `env` is the environment in which programs of this desktop are to be started; `directory` holds
    its home and all XDG directories and goes with it; screenshots go to `pictures`, which stays.
    """

    def __init__(self, pictures, tray=True, compositor=False, window_manager=True):
        self.pictures = Path(pictures)
        self.env = {}
        self._options = ["--tray"] * tray + ["--compositor"] * compositor \
            + ["--no-wm"] * (not window_manager)
        self._holder = None
        self._display = None
        self._eyes = None

    def start(self):
        self._holder = subprocess.Popen([WITH_DESKTOP, *self._options, "--", *HOLDER],
                                        stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        answer = b""
        while not answer.endswith(b"\0\n"):
            part = os.read(self._holder.stdout.fileno(), 65536)
            if not part:
                raise RuntimeError("the private desktop did not come up")
            answer += part
        entries = (entry.partition("=") for entry in os.fsdecode(answer[:-2]).split("\0"))
        self.env = {name: value for name, _, value in entries}
        # The same words and dates on every machine; this locale is there without being generated.
        self.env["LC_ALL"] = "C.UTF-8"
        # Text that Qt would print goes to stderr, where the tests see it, not to a journal.
        self.env["QT_LOGGING_TO_CONSOLE"] = "1"
        self.look()
        # Away from the tray, and known: a window that appears under the pointer would be hovered.
        self.tool("xdotool", "mousemove", "400", "500")

    def stop(self):
        if self._holder is None:
            return
        self.look_away()
        self._holder.stdin.close()
        try:
            self._holder.wait(10)
        except subprocess.TimeoutExpired:
            self._holder.terminate()
            self._holder.wait()
        self._holder.stdout.close()
        self._holder = None

    def look(self):
        """Connects to the display that `env` names."""
        self._display = Display(self.env["DISPLAY"])
        self._eyes = Eyes(self.env["DISPLAY"])

    def look_away(self):
        for connection in (self._display, self._eyes):
            if connection is not None:
                connection.close()

    @property
    def directory(self):
        return Path(self.env["HOME"]).parent

    def tool(self, *command):
        """Runs a program of the desktop to its end and returns what it printed."""
        done = subprocess.run(command, env=self.env, check=True, stdin=subprocess.DEVNULL,
                              stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        return done.stdout

    def open(self, *command):
        """Opens another application, which ends with the desktop at the latest."""
        return subprocess.Popen(command, env=self.env, stdin=subprocess.DEVNULL,
                                stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def press(self, keys):
        """Presses and releases keys as the user would, such as "alt+super+b"."""
        self.tool("xdotool", "key", keys)

    def type(self, text):
        """Types text into whatever has the keyboard, at the speed of a quick hand."""
        self.tool("xdotool", "type", "--delay", "25", text)

    def nudge_pointer(self):
        """Moves the pointer a little and back: input that changes nothing."""
        self.tool("xdotool", "mousemove_relative", "3", "3",
                  "mousemove_relative", "--", "-3", "-3")

    def dialogs(self, window_class):
        """The visible windows of an application that are larger than an icon, by their ids."""
        self._display.wake_window_manager()
        return [window for window in self._display.windows_of_class(f"^{window_class}$")
                if self._geometry(window)["WIDTH"] > 100]

    def windows_named(self, title):
        """The visible windows of that title, by their ids."""
        return self._display.windows_named(title)

    def keyboard(self):
        """The window that gets what is typed, and those that it lies in; empty if there is none."""
        return self._display.keyboard()

    def has_keyboard(self, title):
        """Whether what is typed goes to a window of that title."""
        return bool(set(self.keyboard()) & set(self.windows_named(title)))

    def await_keyboard(self, title):
        """Waits until what is typed goes to a window of that title, which can be later than it
        shows, and says so in its active window later than that."""
        wait_until(f"the keyboard with {title!r}", lambda: self.has_keyboard(title))

    def frame_of(self, window):
        """Where a window is: x, y, width, height."""
        values = self._geometry(window)
        return (values["X"], values["Y"], values["WIDTH"], values["HEIGHT"])

    def active_window(self):
        """The id of the window in front, empty if none is."""
        self._display.wake_window_manager()
        return self._asked("xdotool", "getactivewindow").strip()

    def active_window_title(self):
        self._display.wake_window_manager()
        return self._asked("xdotool", "getactivewindow", "getwindowname").strip()

    def _geometry(self, window):
        """X, Y, WIDTH and HEIGHT of a window; zeros for one that has gone meanwhile."""
        lines = self._asked("xdotool", "getwindowgeometry", "--shell", window).split()
        values = {"X": 0, "Y": 0, "WIDTH": 0, "HEIGHT": 0}
        values.update((key, int(value)) for key, _, value in
                      (line.partition("=") for line in lines))
        return values

    def _asked(self, *command):
        """What a tool answers, nothing where it fails because there is no such window."""
        return subprocess.run(command, env=self.env, stdin=subprocess.DEVNULL,
                              capture_output=True, check=False, text=True).stdout

    def screenshot(self, name):
        """Takes a picture of the whole screen and returns where it is."""
        self.pictures.mkdir(parents=True, exist_ok=True)
        path = self.pictures / f"{name}.png"
        self.tool("import", "-window", "root", str(path))
        return path

    def picture(self, x, y, width, height):
        """The pixels of a rectangle of the screen."""
        return self._eyes.picture(x, y, width, height)

    def await_still(self, x, y, width, height, seconds=0.3):
        """Waits until nothing has moved in a rectangle, as far as it is on the screen."""
        left, top = max(x, 0), max(y, 0)
        right, bottom = min(x + width, SCREEN[0]), min(y + height, SCREEN[1])
        seen = [None, 0.0]

        def still():
            now = self._eyes.raw(left, top, right - left, bottom - top)
            if now != seen[0]:
                seen[:] = now, time.monotonic()
            return time.monotonic() - seen[1] >= seconds

        wait_until("a still picture", still)

    def tray_picture(self):
        """The pixels of the tray's whole bar, which is as wide as its icons."""
        def bar():
            frame = self._geometry(self._tray_window())
            try:
                return self.picture(frame["X"], frame["Y"], frame["WIDTH"], frame["HEIGHT"])
            except NotOnTheScreen:
                return None  # it has moved or grown since it was asked where it is

        return wait_until("the tray's bar on the screen", bar)

    def tray_frame(self):
        """Where the tray's bar is: x, y, width, height."""
        return self.frame_of(self._tray_window())

    def _tray_window(self):
        return wait_until("the tray", lambda: self._display.windows_of_class("^trayer$"))[0]

    def tray_has_item(self):
        picture = self.tray_picture()
        return picture.width >= 16 and picture.inked() >= 20

    def await_tray_item(self, deadline=30.0):
        wait_until("an icon in the tray", self.tray_has_item, deadline)

    def x_server_process(self):
        """The process id of the X server."""
        number = self.env["DISPLAY"].lstrip(":").partition(".")[0]
        return _process_behind(f"/tmp/.X11-unix/X{number}")

    def bus_process(self):
        """The process id of the bus."""
        address = self.env["DBUS_SESSION_BUS_ADDRESS"]
        return _process_behind(re.search("path=([^,;]+)", address)[1])


def _process_behind(path):
    """The process that listens at the socket, as the kernel tells its clients."""
    with socket.socket(socket.AF_UNIX) as connection:
        connection.connect(path)
        process_user_group = "3i"
        peer = connection.getsockopt(socket.SOL_SOCKET, socket.SO_PEERCRED,
                                     struct.calcsize(process_user_group))
    return struct.unpack(process_user_group, peer)[0]
