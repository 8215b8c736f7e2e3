"""The windows for looking back and for correcting, worked by pointer and keys."""

import itertools
import unittest

from harness.waiting import wait_until
from harness.windows import DASHBOARD, NOTES, QUICK_LOG, WindowCase


class Windows(WindowCase):

    def drag(self, window, x, y, by_x, by_y):
        """Presses there, moves as a hand does until the window follows, and lets go."""
        before = self.desktop.frame_of(window)
        steps = itertools.cycle((2, 3))
        self.desktop.tool("xdotool", "mousemove", str(x), str(y), "mousedown", "1")

        def follows():
            # The window manager is told at the first step; the window follows one after that.
            part = next(steps)
            self.desktop.tool("xdotool", "mousemove", str(x + by_x // part), str(y + by_y // part))
            return self.desktop.frame_of(window) != before

        wait_until("the window to follow", follows)
        self.desktop.tool("xdotool", "mousemove", str(x + by_x), str(y + by_y), "mouseup", "1")
        self.desktop.await_still(0, 0, 1440, 900)

    def test_a_window_is_dragged_and_resized_and_comes_back_where_it_stood(self):
        self.launch()
        window = self.open(*DASHBOARD)
        x, y, width, height = self.desktop.frame_of(window)
        self.drag(window, x + 200, y + 15, 80, 60)
        self.desktop.tool("xdotool", "mousemove_relative", "--", "-300", "-100")
        moved = self.desktop.frame_of(window)
        self.assertGreater(moved[0], x, "it stays where it was dropped")

        self.drag(window, moved[0] + width - 2, moved[1] + height - 2, 100, 60)
        wait_until("the window larger", lambda: self.desktop.frame_of(window)[2] > width)
        frame = self.desktop.frame_of(window)
        self.close("Your hours")
        self.assertEqual(self.desktop.frame_of(self.open(*DASHBOARD)), frame)

    def test_a_note_is_searched_and_mended_by_keys_alone(self):
        self.write_log("first draft", "secnod draft", "a walk")
        self.launch()
        self.open(*NOTES)
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
        self.open(*DASHBOARD)
        empty = self.desktop.picture(*self.desktop.frame_of(self.desktop.active_window()))
        self.open(*QUICK_LOG)
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
        self.log_no_time()
        self.desktop.screenshot("refused")
        self.assertTrue(self.desktop.windows_named("Quick Log"))
        self.desktop.press("Escape")
        self.await_closed("Quick Log")
        self.assertEqual(self.vantle.sessions(), [])


if __name__ == "__main__":
    unittest.main()
