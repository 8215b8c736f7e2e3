"""The windows for looking back and for correcting, worked by pointer and keys."""

import json
import unittest

from harness.bus import activate_action
from harness.case import DesktopTest
from harness.waiting import wait_until


def record(number, note):
    """A session of half an hour on a day of long ago."""
    return {
        "id": f"5A3B1D1E-4A52-4C1B-9A1E-{number:012d}",
        "skillId": "building",
        "startedAt": f"2025-11-{number:02d}T09:00:00Z",
        "endedAt": f"2025-11-{number:02d}T09:30:00Z",
        "activeSeconds": 1800,
        "note": note,
        "source": "mac_app",
    }


class Windows(DesktopTest):

    compositor = True

    def write_log(self, *notes):
        directory = self.vantle.data_directory
        directory.mkdir(parents=True, exist_ok=True)
        lines = [json.dumps(record(number, note)) for number, note in enumerate(notes, 1)]
        (directory / "sessions.jsonl").write_text("".join(line + "\n" for line in lines))

    def notes(self):
        return [session["note"] for session in self.vantle.sessions()]

    def open(self, action, title):
        """Opens a window and waits until it has the keyboard."""
        activate_action(self.desktop, action)
        window, = wait_until(title, lambda: self.desktop.windows_named(title))
        wait_until("the window in front", lambda: self.desktop.active_window() == window)
        self.assertEqual(self.desktop.active_window_title(), title)
        return window

    def await_closed(self, title):
        wait_until("the window gone", lambda: not self.desktop.windows_named(title))

    def drag(self, x, y, by_x, by_y):
        """Presses there, moves in two steps as a hand does, and lets go."""
        half = (str(by_x // 2), str(by_y // 2))
        self.desktop.tool("xdotool", "mousemove", str(x), str(y), "mousedown", "1", "sleep", "0.2",
                          "mousemove_relative", "--", *half, "sleep", "0.2",
                          "mousemove_relative", "--", *half, "sleep", "0.3", "mouseup", "1")

    def test_a_window_is_dragged_and_resized_and_comes_back_where_it_stood(self):
        self.launch()
        window = self.open("dashboard", "Your hours")
        x, y, width, height = self.desktop.frame_of(window)
        self.drag(x + 200, y + 15, 80, 60)
        # The window manager is told at the first step, so the window follows from there.
        wait_until("the window moved", lambda: self.desktop.frame_of(window)[:2] != (x, y))
        self.desktop.tool("xdotool", "mousemove_relative", "--", "-300", "-100")
        moved = self.desktop.frame_of(window)
        self.assertGreater(moved[0], x, "the hand has let go of it")

        self.drag(moved[0] + width - 2, moved[1] + height - 2, 100, 60)
        wait_until("the window larger", lambda: self.desktop.frame_of(window)[2] > width)
        frame = self.desktop.frame_of(window)
        self.desktop.press("ctrl+w")
        self.await_closed("Your hours")
        self.assertEqual(self.desktop.frame_of(self.open("dashboard", "Your hours")), frame)

    def test_a_note_is_searched_and_mended_by_keys_alone(self):
        self.write_log("first draft", "secnod draft", "a walk")
        self.launch()
        self.open("notes", "Your notes")
        self.desktop.type("secnod")
        # The search, the clearing button, the chips, then the note that is left.
        for _ in range(3):
            self.desktop.press("Tab")
        self.desktop.press("Return")
        self.desktop.press("ctrl+a")
        self.desktop.type("second draft")
        self.desktop.press("Return")
        wait_until("the note mended",
                   lambda: self.notes() == ["first draft", "second draft", "a walk"])
        self.desktop.screenshot("mended")

    def test_time_added_by_hand_lands_in_the_log_and_in_the_open_dashboard(self):
        self.launch()
        self.open("dashboard", "Your hours")
        empty = self.desktop.picture(*self.desktop.frame_of(self.desktop.active_window()))
        self.open("quick-log", "Quick Log")
        self.desktop.press("ctrl+a")
        self.desktop.type("1")
        self.desktop.press("Return")
        self.await_closed("Quick Log")
        session, = self.vantle.sessions()
        self.assertEqual(session["activeSeconds"], 5400)
        self.assertEqual(session["source"], "manual")
        wait_until("the dashboard", lambda: self.desktop.active_window_title() == "Your hours")
        wait_until("the dashboard drawn anew", lambda: self.desktop.picture(
            *self.desktop.frame_of(self.desktop.active_window())) != empty)

    def test_a_time_of_nothing_is_refused_and_escape_leaves(self):
        self.launch()
        self.open("quick-log", "Quick Log")
        self.desktop.press("ctrl+a")
        self.desktop.type("0")
        self.desktop.press("Tab")
        self.desktop.type("0")
        self.desktop.press("Return")
        self.desktop.screenshot("refused")
        self.assertTrue(self.desktop.windows_named("Quick Log"))
        self.desktop.press("Escape")
        self.await_closed("Quick Log")
        self.assertEqual(self.vantle.sessions(), [])


if __name__ == "__main__":
    unittest.main()
