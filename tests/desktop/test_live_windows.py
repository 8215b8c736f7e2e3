"""Windows that are open while the log changes under them, or can't be changed."""

import os
import unittest

from harness.waiting import wait_until
from harness.windows import DASHBOARD, NOTES, SETTINGS, ReaderCase, record

SUMMARY = "Vantle Session Summary"

# Root may write everywhere unless that right is taken from it.
AS_A_PERSON = ["setpriv", "--bounding-set", "-dac_override", "--"] if os.geteuid() == 0 else []


class LiveCase(ReaderCase):

    def names(self, title, role):
        return [one.name for one in self.reader.window(title).all() if one.role == role]

    def await_name(self, title, role, part):
        wait_until(f"{role} {part!r}",
                   lambda: any(part in name for name in self.names(title, role)))

    def click(self, title, role, name):
        x, y, width, height = self.await_told(title, role, name).frame
        self.desktop.tool("xdotool", "mousemove", str(x + width // 2), str(y + height // 2),
                          "sleep", "0.1", "click", "1")


class Follows(LiveCase):

    def test_the_hours_and_the_notes_follow_a_session_that_ends(self):
        self.write_log("a draft")
        self.launch()
        self.open(*NOTES)
        self.open(*DASHBOARD)
        self.await_told("Your hours", "push button", "Start building")
        self.begin_session()
        self.await_name("Your hours", "push button", "In Vantle · ")
        self.await_name("Your hours", "label", "1 session · 30 min")
        self.end_session()
        self.await_told("Your hours", "push button", "Start building")
        self.await_name("Your hours", "label", "2 sessions · 30 min")
        self.click(SUMMARY, "text", "Work note")
        self.desktop.type("the last word")
        self.desktop.press("Return")
        self.await_name("Your notes", "list item", "the last word, ")
        self.await_told("Your notes", "heading", "2 notes")

    def test_open_windows_are_empty_after_an_erase(self):
        self.write_log("a draft", "another")
        self.launch()
        self.open(*DASHBOARD)
        self.open(*NOTES)
        self.open(*SETTINGS)
        for _ in range(3):  # backwards past the two buttons of the strip
            self.desktop.press("shift+Tab")
        self.desktop.press("Return")
        self.await_told("Settings", "push button", "Erase")
        self.desktop.press("Tab")
        self.desktop.press("Return")
        self.await_told("Your hours", "push button", "Start your first session")
        self.await_told("Your notes", "heading", "No notes yet")


class ReadOnly(LiveCase):

    def setUp(self):
        super().setUp()
        self.addCleanup(self.allow)

    def allow(self):
        self.vantle.data_directory.chmod(0o700)
        self.vantle.log_file.chmod(0o600)

    def forbid(self):
        self.vantle.log_file.chmod(0o400)
        self.vantle.data_directory.chmod(0o500)

    def edit(self, note):
        """Writes another note for the one that is there, which the keyboard is at."""
        self.desktop.press("Return")
        self.await_told("Your notes", "text", "Note")
        self.desktop.press("ctrl+a")
        self.desktop.type(note)
        self.desktop.press("Return")

    def test_an_edit_that_cannot_be_saved_says_so_and_loses_nothing(self):
        self.write_records([record(1, "a draft")])
        self.launch(through=AS_A_PERSON)
        self.open(*NOTES)
        before = self.vantle.log_bytes()
        self.forbid()
        for _ in range(2):
            self.desktop.press("Tab")
        self.edit("a better one")
        self.await_name("Your notes", "alert message",
                        "Couldn’t save your hours. Check available disk space and folder")
        self.assertEqual(self.names("Your notes", "list item"),
                         ["Nov 1, 2025, a draft, 09:00, Build, 30 min"])
        self.assertEqual(self.vantle.log_bytes(), before)
        self.assertEqual([path.name for path in self.vantle.data_directory.iterdir()
                          if path.name.startswith(("sessions", ".sessions"))], ["sessions.jsonl"])
        self.desktop.screenshot("refused")

        self.allow()
        self.edit("a better one")
        wait_until("the note saved", lambda: self.notes() == ["a better one"])
        self.await_told("Your notes", "list item",
                        "Nov 1, 2025, a better one, 09:00, Build, 30 min")
        self.assertEqual(self.names("Your notes", "alert message"), [])


if __name__ == "__main__":
    unittest.main()
