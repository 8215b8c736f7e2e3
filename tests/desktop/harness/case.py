"""The frame of every desktop test: a fresh desktop, the program on it, and a clean end."""

import os
import re
import unittest
from pathlib import Path

from .bus import PROGRAM_NAME, owner_of
from .desktop import Desktop
from .notifier import Notifier
from .program import Program
from .reader import Reader
from .waiting import wait_until

ROOT = Path(__file__).resolve().parents[3]
EXECUTABLE = Path(os.environ.get("VANTLE_EXECUTABLE",
                                 ROOT / "build" / "release" / "vantle")).absolute()
PICTURES = Path(os.environ.get("VANTLE_DESKTOP_PICTURES", ROOT / "build" / "desktop-pictures"))

SHORTCUT = "alt+super+b"
PANEL_TITLE = "Vantle Command Center"

# The skill that a first session runs under, and its colour.
FIRST_SKILL = "building"
FIRST_SKILL_COLOUR = 0x7A78FF


class DesktopTest(unittest.TestCase):
    """One desktop a test, with the tray that the class names; `self.vantle` is the program.

    An XEmbed tray is looked at on the screen; of the other kind `self.tray` tells what is in it.
    Every copy of the program has to have kept silent by the end of the test.
    """

    XEMBED, STATUS_NOTIFIER, NO_TRAY = range(3)
    tray_kind = XEMBED
    compositor = False
    window_manager = True
    newcomer = False  # the user has not been through the welcome

    def setUp(self):
        name = re.sub(r"^test_", "", self._testMethodName)
        self.desktop = Desktop(PICTURES / name, tray=self.tray_kind == self.XEMBED,
                               compositor=self.compositor,
                               window_manager=self.window_manager)
        self.addCleanup(self.desktop.stop)
        self.desktop.start()
        self.tray = None
        if self.tray_kind == self.STATUS_NOTIFIER:
            self.tray = Notifier(self.desktop)
            self.addCleanup(self.tray.stop)
            self.tray.start()
        self.vantle = self.new_program()

    def new_program(self, desktop=None):
        program = Program(EXECUTABLE, desktop or self.desktop, self.newcomer)
        self.addCleanup(self._expect_silence, program)
        self.addCleanup(program.kill)
        return program

    def start_reader(self):
        """A screen reader. To be started before the program is."""
        reader = Reader(self.desktop)
        self.addCleanup(reader.stop)
        reader.start()
        return reader

    def _expect_silence(self, program):
        self.assertEqual(program.printed(), "", "the program prints nothing")

    # -- what the user does, each time until it has come about

    def launch(self, program=None, **how):
        """Starts the program, waits until the user can see that it runs, and turns away from
        the panel that a start by hand shows."""
        program = program or self.vantle
        keyboard = self.desktop.keyboard()
        program.start(**how)
        if self.tray_kind == self.STATUS_NOTIFIER:
            self.tray.await_item()
        elif self.tray_kind == self.XEMBED:
            self.desktop.await_tray_item()
        wait_until("the program on the bus", lambda: owner_of(self.desktop, PROGRAM_NAME))
        self.assertTrue(program.is_running())
        if "VANTLE_AUTOSTART" not in self.desktop.env:
            self._turn_away_from_panel(keyboard)

    def _turn_away_from_panel(self, keyboard):
        wait_until("the panel", lambda: self.desktop.windows_named(PANEL_TITLE))
        # One press, once it has the keyboard: another one would go to the window below.
        self.desktop.await_keyboard(PANEL_TITLE)
        self.desktop.press("Escape")
        wait_until("no panel", lambda: not self.desktop.windows_named(PANEL_TITLE))
        wait_until("the keyboard back", lambda: not keyboard or self.desktop.keyboard() == keyboard)

    def install_application(self, entry_id, window_class):
        """A desktop entry of the user's for windows of that class."""
        folder = Path(self.desktop.env["XDG_DATA_HOME"], "applications")
        folder.mkdir(parents=True, exist_ok=True)
        (folder / f"{entry_id}.desktop").write_text(
            f"[Desktop Entry]\nType=Application\nName=Painter\nExec=xterm -class {window_class}\n"
            f"StartupWMClass={window_class}\n")

    def open_editor(self, *options):
        """Another application, with the keyboard; returns the file that its lines land in."""
        typed = self.desktop.directory / "typed"
        self.desktop.open("xterm", "-T", "editor", *options, "-e", f"cat > {typed}")
        wait_until("the editor in front", lambda: self.desktop.active_window_title() == "editor")
        self.desktop.await_keyboard("editor")
        wait_until("its file", typed.exists)
        return typed

    def begin_session(self):
        """Presses the shortcut and waits for the marker of the session, which it returns."""
        before = self.vantle.marker()  # of a session that was interrupted
        self.desktop.press(SHORTCUT)
        return wait_until("a marker", lambda: self.vantle.marker() not in (None, before)
                          and self.vantle.marker())

    def end_session(self):
        """Presses the shortcut and waits for one more record in the log, which it returns."""
        before = len(self.vantle.sessions())
        self.desktop.press(SHORTCUT)
        wait_until("a record", lambda: len(self.vantle.sessions()) > before)
        wait_until("no marker", lambda: self.vantle.marker() is None)
        self.assertEqual(len(self.vantle.sessions()), before + 1)
        return self.vantle.sessions()[-1]

    def await_empty_tray(self):
        """Waits until nothing of a copy that ended is left in the tray."""
        if self.tray_kind == self.STATUS_NOTIFIER:
            wait_until("an empty tray", lambda: not self.tray.items())
        else:
            wait_until("an empty tray", lambda: not self.desktop.tray_has_item())

    # -- what has to hold

    def assert_one_record_and_no_marker(self):
        # The marker goes after the record has come: never is there neither.
        wait_until("no marker", lambda: self.vantle.marker() is None)
        self.assertEqual(len(self.vantle.sessions()), 1)

    def await_tool_tip(self, part):
        wait_until(f"the tool tip with {part!r}", lambda: part in self.tray.tool_tip())
