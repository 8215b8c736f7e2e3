"""The program in a Wayland session, beside a window that X11 knows nothing of."""

import time

from harness.waiting import wait_until
from harness.wayland import WaylandTest

WIDTH = 1280
MIDDLE = WIDTH // 2
CAPSULE = "Vantle Capsule"
SUMMARY = "Vantle Session Summary"
PANEL = "Vantle Command Center"
OVERLAY = "Vantle ceremony"


class Rests(WaylandTest):

    def test_presses_and_keys_reach_the_window_below_a_resting_capsule(self):
        self.launch()
        wait_until("the capsule", lambda: self.frames(CAPSULE) == [(MIDDLE - 115, 0, 230, 10)])
        for x, y in ((MIDDLE, 60), (MIDDLE - 200, 20), (MIDDLE + 200, 150)):
            self.expect_press_through(x, y)
        self.expect_keys_through("abc")

    def test_the_capsule_opens_under_the_pointer_and_closes_behind_it(self):
        self.launch()
        wait_until("the capsule", lambda: self.frames(CAPSULE))
        self.desktop.tool("xdotool", "mousemove", str(MIDDLE), "300", "sleep", "0.2",
                          "mousemove", str(MIDDLE), "5")
        wait_until("an open capsule", lambda: self.frames(CAPSULE)[0][3] > 100)
        self.desktop.screenshot("open")
        self.click(MIDDLE + 60, 30)
        wait_until("a session", self.vantle.marker)
        self.desktop.tool("xdotool", "mousemove", "300", "600")
        wait_until("a closed capsule", lambda: self.frames(CAPSULE)[0][3] == 10)
        self.expect_press_through(MIDDLE, 60)


class Works(WaylandTest):

    def test_a_start_and_an_end_take_neither_presses_nor_keys(self):
        self.launch()
        self.toggle()
        wait_until("a session", self.vantle.marker)
        self.expect_keys_through("start")
        self.expect_press_through(300, 600)
        self.assertEqual(self.session.windows_named(OVERLAY), [])
        time.sleep(2.5)  # until the flash of the capsule is over
        self.toggle()
        wait_until("a record", self.vantle.sessions)
        card, = wait_until("the card", lambda: self.frames(SUMMARY))
        self.desktop.screenshot("card")
        self.assertEqual((card[0] + card[2], card[2]), (WIDTH - 12, 380),
                         "the window is the card, without room for a shadow")
        self.expect_keys_through("end")
        self.expect_press_through(card[0] - 10, card[1] + 50)


    def end_a_session(self):
        """Starts and ends one; returns the frame of its card."""
        self.toggle()
        wait_until("a session", self.vantle.marker)
        self.toggle()
        wait_until("a record", self.vantle.sessions)
        return wait_until("the card", lambda: self.frames(SUMMARY))[0]

    def test_a_note_typed_into_the_card_lands_in_the_log_and_the_keyboard_goes_back(self):
        self.launch()
        x, y, _, height = self.end_a_session()
        time.sleep(0.5)  # until it is drawn
        self.click(x + 120, y + height - 110)
        self.desktop.type("in order")
        self.desktop.screenshot("note")
        self.desktop.press("Return")
        wait_until("the note in the log",
                   lambda: self.vantle.sessions()[-1]["note"] == "in order", deadline=5)
        wait_until("no card", lambda: not self.frames(SUMMARY))
        self.assertNotIn("order", self.got())
        self.expect_keys_through("mine")


class Panel(WaylandTest):

    def setUp(self):
        super().setUp()
        del self.session.env["VANTLE_AUTOSTART"]

    def test_the_panel_has_the_keyboard_and_gives_it_back(self):
        self.vantle.start()
        wait_until("the panel", lambda: self.frames(PANEL))
        time.sleep(1.5)
        self.assertTrue(self.frames(PANEL), "it stays until the user turns away")
        self.desktop.screenshot("panel")
        self.desktop.type("abc")
        time.sleep(0.3)
        self.assertNotIn("abc", self.got())
        self.desktop.press("Escape")
        wait_until("no panel", lambda: not self.frames(PANEL))
        self.expect_keys_through("mine")
