"""Every window worked by the keyboard alone, on a screen of twice the usual density.

There a window has half the room, so most of them scroll; what has the focus is in sight all the
same, with its ring.
"""

import unittest

from harness.bus import activate
from harness.case import PANEL_TITLE
from harness.eyes import Eyes
from harness.picture import rgb_of
from harness.waiting import wait_until
from harness.windows import (DASHBOARD, NOTES, QUICK_LOG, SETTINGS, WELCOME, WRAPPED, ReaderCase,
                             record)

SCALE = 2
SCREEN = (1440, 900)

RING = 0xA3A1FF  # around what the keyboard has brought the focus to
FIELD_EDGE = 0x7A78FF  # of a text field that has it
REACH = 16 * SCALE  # of a ring or an edge around what has the focus, at the most
ENOUGH = 150  # px of a colour that make up a ring, even around the knob of a slider

MODES = ("Build", "Design", "Marketing", "Distribution", "Founder Ops", "Connections")
STRIP = ("Minimise", "Close")


class ByKeysCase(ReaderCase):

    def setUp(self):
        super().setUp()
        resources = self.desktop.directory / "resources"
        resources.write_text(f"Xft.dpi: {96 * SCALE}\n")
        self.desktop.tool("xrdb", "-nocpp", "-merge", str(resources))
        self.eyes = Eyes(self.desktop.env["DISPLAY"])
        self.addCleanup(self.eyes.close)

    def focused(self, title):
        """The innermost element that has the focus, as soon as one has it."""
        def stops():
            return [one for one in self.reader.window(title).all() if "focused" in one.states]

        return wait_until("something with the focus", stops)[-1]

    def step(self, title, before):
        """Presses Tab; returns what has the focus now, once it shows that."""
        self.desktop.press("Tab")

        def moved():
            now = self.focused(title)
            return now.reference != before.reference and self.is_ringed(now) and now

        try:
            return wait_until("the focus on something else", moved)
        except AssertionError:
            self.desktop.screenshot("no-ring")
            self.fail(f"no ring around {self.focused(title)}, after {before}")

    def await_focus(self, title, name):
        try:
            wait_until(f"the focus on {name!r}", lambda: self.focused(title).name == name)
        except AssertionError as failure:
            self.fail(f"{failure}; it is on {self.focused(title)}")

    def is_ringed(self, element):
        colour = FIELD_EDGE if element.role == "text" else RING
        # Qt tells of places in the pixels of a plain screen.
        x, y, width, height = (SCALE * part for part in element.frame)
        left, top = max(x - REACH, 0), max(y - REACH, 0)
        right, bottom = min(x + width + REACH, SCREEN[0]), min(y + height + REACH, SCREEN[1])
        around = self.count(colour, left, top, right - left, bottom - top)
        alone = element.role == "text" or around == self.count(RING, 0, 0, *SCREEN)
        return around > ENOUGH and alone

    def count(self, colour, x, y, width, height):
        """How many pixels of a part of the screen have exactly that colour."""
        return self.eyes.raw(x, y, width, height).count(bytes(reversed(rgb_of(colour))))

    def tour(self, title):
        """Once around by the Tab key: the names of all stops, from the first that it leads to."""
        first = here = self.step(title, self.focused(title))
        names = []
        while not names or here.reference != first.reference:
            with self.subTest(stop=here.name):
                self.assertIn("showing", here.states)
            names.append(here.name)
            self.assertLess(len(names), 60, names)
            here = self.step(title, here)
        return names

    def go_to(self, title, name):
        """Presses Tab until something of that name has the focus."""
        here = self.focused(title)
        while here.name != name:
            here = self.step(title, here)


class ByKeys(ByKeysCase):

    def test_the_hours(self):
        self.write_records([record(1, ""), record(2, "")])
        self.launch()
        window = self.open(*DASHBOARD)
        self.assertEqual(self.desktop.frame_of(window)[2], 612 * SCALE)
        self.assertEqual(self.tour("Your hours"),
                         ["Today: 2 h goal · a session starts the bar",
                          "Hour wall, 1 completed hours, current hour 0 percent complete",
                          "Build, 1 h, 100%", "Nov 2 · 09:30, Build, 30 min",
                          *STRIP, "Log time", "Wrapped", "Start building"])
        # The lines of a list are led to by the arrow keys.
        self.go_to("Your hours", "Nov 2 · 09:30, Build, 30 min")
        self.desktop.press("Down")
        self.await_focus("Your hours", "Nov 1 · 09:30, Build, 30 min")
        self.desktop.screenshot("toured")

    def test_the_notes(self):
        self.write_log("first draft", "second draft")
        self.launch()
        self.open(*NOTES)
        newest = "Nov 2, 2025, second draft, 09:00, Build, 30 min"
        self.assertEqual(self.tour("Your notes"), ["All", newest, "Copy this note",
                                                   "Edit this note", *STRIP, "Search notes"])
        # An arrow key leads to the note below, from a button as well; it is copied and edited
        # without the pointer, and has the focus again each time.
        self.go_to("Your notes", "Copy this note")
        self.desktop.press("Down")
        oldest = "Nov 1, 2025, first draft, 09:00, Build, 30 min"
        self.await_focus("Your notes", oldest)
        self.go_to("Your notes", "Copy this note")
        self.desktop.press("space")
        self.await_told("Your notes", "label", "Copied")
        self.await_focus("Your notes", oldest)
        self.go_to("Your notes", "Edit this note")
        self.desktop.press("Return")
        self.await_focus("Your notes", "Note")
        self.desktop.press("Escape")
        self.await_focus("Your notes", oldest)

    def test_the_form_for_time_by_hand(self):
        self.launch()
        self.open(*QUICK_LOG)
        self.assertEqual(self.tour("Quick Log"),
                         ["Minutes worked", "Time worked, 5 minutes less",
                          "Time worked, 5 minutes more", "Work note", "Cancel", "Add to history",
                          *STRIP, "Skill", "Hours worked"])

    def test_the_settings(self):
        self.launch()
        self.open(*SETTINGS)
        self.assertEqual(
            self.tour("Settings"),
            ["Auto-pause after 3 min", "Calls and videos count as being here",
             "Daily goal, half an hour less",
             "Daily goal, half an hour more",
             "Focus with sessions", "Ripple ceremony", "Black out the screen", "Auto mode",
             "Start sessions automatically", "Launch at login", "How time reads",
             "Show the welcome again", "Export my data", "Erase everything", *STRIP])

    def test_the_review(self):
        self.write_records([record(1, ""), record(2, "")])
        self.launch()
        self.open(*WRAPPED)
        self.assertEqual(self.tour("Wrapped"), ["Week", "Enter Vantle", *STRIP])
        self.go_to("Wrapped", "Week")
        for _ in range(2):
            self.desktop.press("Right")
        self.await_focus("Wrapped", "All time")
        self.assertEqual(self.tour("Wrapped"), ["Next page", *STRIP, "All time"])

    def test_escape_on_the_review_gives_the_keyboard_to_the_window_below(self):
        self.open_editor()
        self.launch()
        self.open(*WRAPPED)
        self.desktop.press("Escape")
        self.await_closed("Wrapped")
        self.desktop.await_keyboard("editor")

    def test_the_panel(self):
        self.launch()
        activate(self.desktop)
        self.desktop.await_keyboard(PANEL_TITLE)
        self.assertEqual(self.tour(PANEL_TITLE),
                         ["Build", "Dashboard", "Wrapped", "Notes", "Settings", "Quit",
                          "Enter Vantle"])


class ByKeysAtFirst(ByKeysCase):

    newcomer = True

    def test_the_welcome(self):
        self.launch()
        wait_until("the welcome", lambda: self.desktop.active_window_title() == WELCOME)
        self.assertEqual(self.tour(WELCOME), ["skip the welcome", "Continue", *STRIP, "Project"])
        self.go_to(WELCOME, "Continue")
        self.desktop.press("Return")
        self.await_told(WELCOME, "heading", "These are your modes")
        modes = [f"{verb} {name}" for name in MODES for verb in ("Rename", "Remove")]
        self.assertEqual(self.tour(WELCOME), [*STRIP, *modes, "Add your own", "Continue"])


if __name__ == "__main__":
    unittest.main()
