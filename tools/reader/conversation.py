"""A user with a screen reader and a keyboard, in front of the program on a private desktop."""

import json
import re
import sys
from contextlib import ExitStack
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tests" / "desktop"))

from harness.bus import PROGRAM_NAME, activate, activate_action, owner_of  # noqa: E402
from harness.desktop import Desktop  # noqa: E402
from harness.program import Program  # noqa: E402
from harness.reader import Reader  # noqa: E402
from harness.waiting import wait_until  # noqa: E402
from orca_session import Orca  # noqa: E402

SHORTCUT = "alt+super+b"
PANEL = "Vantle Command Center"

# What differs from one run to the next.
CHANGING = ((re.compile(r"\b\d+ sec\b"), "… sec"), (re.compile(r"\b\d+ percent\b"), "… percent"))


class Conversation:
    """Takes down what is done and what is said, a line each, between start() and stop()."""

    def __init__(self, executable, pictures, newcomer=False):
        self.lines = []
        self._executable = executable
        self._newcomer = newcomer
        self._desktop = Desktop(pictures, tray=True, compositor=True)
        self._ends = ExitStack()
        self._orca = None
        self.program = None

    def start(self, records=(), marker=None):
        """With the program running, its log holding the records, and nothing of it shown."""
        self._ends.callback(self._desktop.stop)
        self._desktop.start()
        if not self._newcomer:
            self._desktop.env["VANTLE_AUTOSTART"] = "1"
        reader = Reader(self._desktop)
        self._ends.callback(reader.stop)
        reader.start()
        self._orca = Orca(self._desktop)
        self._ends.callback(self._orca.stop)
        self._orca.start()
        self.program = Program(self._executable, self._desktop, self._newcomer)
        self._ends.callback(self.program.kill)
        directory = self.program.data_directory
        directory.mkdir(mode=0o700, parents=True)
        if records:
            self.program.log_file.write_text("".join(json.dumps(one) + "\n" for one in records))
        if marker:
            self.program.write_marker(**marker)
        self.program.start()
        wait_until("the program on the bus", lambda: owner_of(self._desktop, PROGRAM_NAME))
        self._note("The program starts", 6)

    def stop(self):
        self._ends.close()

    def open_panel(self):
        activate(self._desktop)
        self._desktop.await_keyboard(PANEL)
        self._note("The panel is opened", 20)

    def open(self, action, title):
        activate_action(self._desktop, action)
        self._desktop.await_keyboard(title)
        self._note(f"“{title}” is opened", 20)

    def press(self, *keys):
        for key in keys:
            self._desktop.press(key)
            self._note(f"`{key}`")

    def type(self, text):
        self._desktop.type(text)
        self._note(f"“{text}” is typed")

    def _note(self, done, longest=8.0):
        said = " / ".join(self._orca.said(longest)) or "(silence)"
        for pattern, words in CHANGING:
            said = pattern.sub(words, said)
        self.lines.append(f"- {done}: {said}")
