"""The ceremony over the windows of a Wayland session, which still get all input."""

import time

from harness.case import FIRST_SKILL_COLOUR
from harness.ceremony import ALL_GONE, MAY_BE_LATE, OVERLAY
from harness.eyes import Eyes
from harness.page import install, write_page
from harness.picture import is_near, rgb_of
from harness.program import Program
from harness.waiting import wait_until
from harness.wayland import WaylandTest

GROUND = rgb_of(0x808080)
WHITE = (255, 255, 255)
TITLE = (540, 370, 200, 60)
CAPSULE = "Vantle Capsule"
SUMMARY = "Vantle Session Summary"

# All over the screen, but for what can be seen at its top: the capsule and a card.
PLACES = [(30, 30), (300, 100), (30, 400), (30, 770), (400, 600), (640, 300), (640, 400),
          (640, 500), (640, 770), (1000, 600), (1250, 770)]


class OverFullScreen(WaylandTest):
    """Over a native window that fills the screen, of one colour."""

    native_window = ("foot", "--fullscreen", "--override=colors.background=808080")
    has_played = False

    def setUp(self):
        super().setUp()
        self.eyes = Eyes(self.desktop.env["DISPLAY"])
        self.addCleanup(self.eyes.close)
        wait_until("the native window", lambda: self.spot(20, 700) == GROUND)

    def spot(self, x, y):
        return next(self.eyes.picture(x, y, 1, 1).pixels())

    def plays(self):
        """Whether the screen is dimmed in all of its corners but the one with the card."""
        return not any(is_near(self.spot(x, y), GROUND, 8)
                       for x, y in ((2, 2), (2, 797), (1277, 797)))

    def start_a_show(self):
        """Before a busy compositor has answered the program, sessions start without one: until the
        first show, that was no trial."""
        for _ in range(1 if self.has_played else 4):
            self.toggle()
            begun = time.monotonic()
            wait_until("the session", self.vantle.marker)
            while time.monotonic() < begun + 4:
                if self.plays():
                    self.has_played = True
                    return begun
            self.end_session()
            time.sleep(1.2)
        raise AssertionError("a start without a show")

    def end_session(self):
        self.toggle()
        wait_until("the session's end", lambda: self.vantle.marker() is None)

    def expect_presses_through(self, places):
        before = self.presses()
        steps = [word for x, y in places
                 for word in ("mousemove", str(x), str(y), "sleep", "0.05", "click", "1")]
        self.desktop.tool("xdotool", *steps)
        wait_until("the presses in the native window",
                   lambda: self.presses() == before + len(places), deadline=3)

    def in_a_show(self, act):
        """Does something while a show plays. Where a busy machine is so slow that the show is over
        before, that was no trial, and another one plays."""
        for _ in range(4):
            begun = self.start_a_show()
            act()
            if self.plays():
                return begun
            self.end_session()
            time.sleep(1.2)
        raise AssertionError("it never came about before the end of a show")

    def assert_all_gone(self, begun):
        time.sleep(max(begun + ALL_GONE - time.monotonic(), 0))
        wait_until("the ground again", lambda: self.spot(20, 700) == GROUND,
                   deadline=MAY_BE_LATE)
        self.assertFalse(self.eyes.picture(*TITLE).shows(WHITE))


class Show(OverFullScreen):

    def test_a_show_is_seen_over_a_full_screen_window_and_leaves_nothing(self):
        self.launch()
        begun = self.start_a_show()
        wait_until("the title", lambda: self.eyes.picture(*TITLE).shows(WHITE, tolerance=20),
                   deadline=3)
        self.desktop.screenshot("show")
        self.assertEqual(self.session.windows_named(OVERLAY), [], "none of Xwayland's")
        self.assert_all_gone(begun)
        self.end_session()
        # A strip from the middle to the right edge, which the ring crosses on its way.
        wait_until("the ring", lambda: max(blue - red for red, _, blue in self.eyes.picture(
            660, 398, 600, 4).colours()) > 15, deadline=1)
        self.assert_all_gone(time.monotonic())

    def test_every_press_and_key_reaches_the_window_below_while_it_plays(self):
        self.launch()
        self.in_a_show(lambda: self.expect_presses_through(PLACES))
        self.end_session()
        time.sleep(1.2)
        begun = self.in_a_show(lambda: self.expect_keys_through("through"))
        self.assert_all_gone(begun)

    def test_they_reach_it_while_the_ring_closes_and_a_card_comes(self):
        self.launch()
        self.assert_all_gone(self.start_a_show())
        self.toggle()
        self.expect_keys_through("ending")
        self.expect_presses_through(PLACES)
        wait_until("the card", lambda: self.frames(SUMMARY))
        self.expect_keys_through("ended")
        self.expect_presses_through(PLACES)

    def test_shows_in_quick_succession_cut_each_other_off(self):
        self.launch()
        for _ in range(3):
            self.start_a_show()
            self.end_session()
        self.assert_all_gone(time.monotonic())
        self.assert_all_gone(self.start_a_show())

    def test_the_end_of_the_program_ends_the_show(self):
        self.launch()
        self.start_a_show()
        self.vantle.stop()
        wait_until("the ground again", lambda: self.spot(20, 700) == GROUND, deadline=2)


class Capsule(OverFullScreen):

    def capsule(self):
        return self.frames(CAPSULE)[0]

    def test_presses_all_around_a_resting_capsule_reach_the_window_below(self):
        self.launch()
        wait_until("the capsule", lambda: self.frames(CAPSULE))
        x, y, width, height = self.capsule()
        around = [(x - 5, 5), (x + width + 5, 5), (640, height + 5), (x + 5, height + 5),
                  (x + width - 5, height + 5)]
        self.expect_presses_through(around + PLACES)

    def test_presses_all_around_an_open_capsule_reach_the_window_below(self):
        self.launch()
        wait_until("the capsule", lambda: self.frames(CAPSULE))

        def look_at_it():
            self.desktop.tool("xdotool", "mousemove", "640", "300", "sleep", "0.2",
                              "mousemove", "640", "5")
            wait_until("an open capsule", lambda: self.capsule()[3] > 100)
            x, _, width, height = self.capsule()
            return [(x - 8, 5), (x + width + 8, 5), (x - 8, 100), (x + width + 8, 100),
                    (640, height + 8), (x + 5, height + 8), (x + width - 5, height + 8)]

        for place in look_at_it():
            look_at_it()
            self.expect_presses_through([place])
        for place in PLACES:
            look_at_it()
            self.expect_presses_through([place])


class Scaled(OverFullScreen):

    scale = 1.25

    def test_a_show_fills_a_screen_of_a_fractional_scale(self):
        self.launch()
        begun = self.start_a_show()
        wait_until("the title", lambda: self.eyes.picture(*TITLE).shows(WHITE, tolerance=20),
                   deadline=3)
        self.desktop.screenshot("scaled")
        self.assert_all_gone(begun)


class Page(OverFullScreen):
    """A page's windows are Xwayland's, which would catch the presses."""

    def new_program(self, desktop=None):
        if desktop is None:
            return super().new_program()
        executable, page = install(desktop)
        write_page(page, "never")
        program = Program(executable, desktop)
        self.addCleanup(self._expect_silence, program)
        self.addCleanup(program.kill)
        program.write_preferences(dev__skipInstallPrompt="true")
        return program

    def setUp(self):
        super().setUp()
        self.vantle.write_preferences(dev__skipInstallPrompt="true", notch__intro__flashed="true")

    def test_the_native_show_plays_in_place_of_a_page(self):
        self.launch()
        begun = self.in_a_show(lambda: self.expect_presses_through(PLACES))
        self.assertFalse(is_near(self.spot(640, 400), rgb_of(FIRST_SKILL_COLOUR), 4))
        self.assertEqual(self.session.windows_named(OVERLAY), [])
        self.assert_all_gone(begun)
