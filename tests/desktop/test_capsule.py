"""The capsule at the top of the screen: by real pointer and keys."""

import json
import time

from harness.case import FIRST_SKILL, DesktopTest
from harness.picture import is_near
from harness.waiting import wait_until

TITLE = "Vantle Capsule"

SCREEN_WIDTH = 1440
MIDDLE = SCREEN_WIDTH // 2
BLACK = (0, 0, 0)
GROUND = (0x5A, 0x64, 0x78)

# In px from the middle of the screen's top edge.
STRIP = (0, 4)
CHIP_BUILD = (-140, 72)
CHIP_DESIGN = (-70, 72)
ADD_ROW = (-140, 149)
BESIDE_THE_CHIPS = (60, 30)
BESIDE_THE_CAPSULE = (-230, 100)
MENU_RENAME = (-60, 106)

BAR_HEIGHT = 26  # px
PRESS = b"\x1b[M "  # as a terminal reports presses to what runs in it

DESIGN = "product_design"


class CapsuleTest(DesktopTest):
    """On a desktop with a compositor, where corners are round and shadows soft."""

    compositor = True

    def setUp(self):
        super().setUp()
        # Else it is as black as the capsule.
        self.desktop.tool("xsetroot", "-solid", f"#{bytes(GROUND).hex()}")
        self.desktop.env["VANTLE_AUTOSTART"] = "1"  # nothing else pops up
        self.vantle.write_preferences(ripple__disabled="true", notch__intro__flashed="true")

    # -- what the user does

    def point_at(self, place):
        self.desktop.tool("xdotool", "mousemove", str(MIDDLE + place[0]), str(place[1]),
                          "sleep", "0.1")

    def click(self, place, button=1):
        self.point_at(place)
        self.desktop.tool("xdotool", "click", str(button))

    def turn_away(self):
        self.desktop.tool("xdotool", "mousemove", "400", "700")

    def open_capsule(self):
        self.point_at(STRIP)
        wait_until("an open capsule", self.is_open)
        self.await_rest()

    def await_rest(self):
        """Waits until the springs have: below what counts and breathes in a running session."""
        self.desktop.await_still(MIDDLE - 270, 160, 540, 60)

    def await_keyboard(self):
        """Waits until the capsule's menu or editor has the keyboard."""
        self.desktop.await_keyboard(TITLE)

    def open_editor(self):
        """Another application, below the capsule."""
        return super().open_editor("-geometry", "120x40+300+0")

    # -- what can be seen

    def is_open(self):
        return is_near(next(self.desktop.picture(MIDDLE + 100, 50, 1, 1).pixels()), BLACK, 2)

    def skills(self):
        """The list as it stands in its file; empty before there is one."""
        path = self.vantle.data_directory / "skills.json"
        return json.loads(path.read_bytes()) if path.exists() else []

    def skill_names(self):
        return [skill["name"] for skill in self.skills()]

    def name_of(self, skill_id):
        return next((skill["name"] for skill in self.skills() if skill["id"] == skill_id), None)


class OpensAndCloses(CapsuleTest):

    def test_at_rest_nothing_is_drawn_and_the_pointer_at_the_top_centre_opens_it(self):
        self.launch()
        time.sleep(0.5)
        self.assertEqual(len(self.desktop.picture(MIDDLE - 270, 0, 540, 220).colours()), 1)
        self.open_capsule()
        self.desktop.screenshot("open")

    def test_it_closes_half_a_second_after_the_pointer_left(self):
        self.launch()
        self.open_capsule()
        before = time.monotonic()
        self.turn_away()
        left = time.monotonic()
        wait_until("a closed capsule", lambda: not self.is_open())
        self.assertGreater(time.monotonic() - before, 0.5)
        self.assertLess(time.monotonic() - left, 2.5)


class OpensSquare(CapsuleTest):

    compositor = False

    def test_without_a_compositor_it_opens_and_closes_as_well(self):
        self.launch()
        self.open_capsule()
        self.desktop.screenshot("square")
        self.turn_away()
        wait_until("a closed capsule", lambda: not self.is_open())


class CompositorThatEnds(CapsuleTest):
    """The compositor is the test's own, so that it can end as a crash ends one."""

    compositor = False

    def start_compositor(self):
        self.compositor_process = self.desktop.open(
            "picom", "--config", "/dev/null", "--backend", "xrender", "--no-vsync")

    def end_compositor(self):
        self.compositor_process.kill()
        self.compositor_process.wait()

    def is_plain_at_the_top(self):
        """One colour and no black: picom has a grey of its own for a desktop without a picture."""
        colours = list(self.desktop.picture(MIDDLE - 270, 0, 540, 220).colours())
        return len(colours) == 1 and colours != [BLACK]

    def test_nothing_black_is_left_at_the_top_and_the_capsule_works_both_ways(self):
        self.start_compositor()
        self.launch()
        self.open_capsule()
        self.turn_away()
        wait_until("a closed capsule", lambda: not self.is_open())
        for _ in range(2):
            self.end_compositor()
            wait_until("no capsule's window", lambda: not self.desktop.windows_named(TITLE))
            wait_until("the plain desktop", self.is_plain_at_the_top)
            self.open_capsule()
            self.desktop.screenshot("square")
            self.turn_away()
            wait_until("a closed capsule", lambda: not self.is_open())
            self.start_compositor()
            wait_until("the plain desktop", self.is_plain_at_the_top)
            self.open_capsule()
            self.turn_away()
            wait_until("a closed capsule", lambda: not self.is_open())

    def test_an_open_menu_has_no_black_corners(self):
        self.launch()
        self.open_capsule()
        self.click(CHIP_DESIGN, button=3)
        self.await_keyboard()
        time.sleep(0.3)
        self.desktop.screenshot("menu")
        below = self.desktop.picture(MIDDLE - 270, 172, 540, 60).colours()
        self.assertNotIn(BLACK, below)


class LetsThrough(CapsuleTest):

    def test_clicks_beside_it_and_keys_go_to_the_window_below(self):
        typed = self.open_editor()
        self.desktop.open("xterm", "-T", "other", "-geometry", "40x10+900+600")
        wait_until("the other in front", lambda: self.desktop.active_window_title() == "other")
        self.launch()
        self.open_capsule()
        self.assertEqual(self.desktop.active_window_title(), "other")
        self.click(BESIDE_THE_CAPSULE)
        wait_until("the editor in front", lambda: self.desktop.active_window_title() == "editor")
        self.open_capsule()
        self.desktop.type("below\n")
        wait_until("the typed line", lambda: typed.read_text() == "below\n")
        self.assertEqual(self.vantle.sessions(), [])
        self.assertIsNone(self.vantle.marker())


class LetsPressesThrough(CapsuleTest):
    """Over a window on the whole screen, which writes down what it gets."""

    tray_kind = CapsuleTest.NO_TRAY  # the window covers it

    def setUp(self):
        super().setUp()
        self._got = self.desktop.directory / "got"
        self.desktop.open("xterm", "-T", "whole", "-fullscreen", "-bg", f"#{bytes(GROUND).hex()}",
                          "-e", "sh", "-c",
                          f"printf '\\033[?1000h'; stty -echo raw; exec cat >{self._got}")
        wait_until("the window", self._got.exists)
        wait_until("the window at the top edge",
                   lambda: set(self.desktop.picture(MIDDLE, 4, 1, 1).colours()) == {GROUND})

    def presses(self):
        return self._got.read_bytes().count(PRESS)

    def arrive(self, *then):
        """The pointer comes from below, and that happens without a moment between."""
        self.turn_away()
        time.sleep(0.4)  # until it has been seen there
        self.desktop.tool("xdotool", "mousemove", str(MIDDLE + STRIP[0]), str(STRIP[1]), *then)

    def test_a_press_at_the_top_edge_is_for_the_window_there(self):
        self.launch()
        for count in range(1, 4):
            self.arrive("click", "1")
            wait_until("the press in the window", lambda: self.presses() == count, deadline=3)
        time.sleep(1)
        self.assertFalse(self.is_open(), "the pointer is there for the window")
        self.desktop.tool("xdotool", "click", "1")
        wait_until("another press", lambda: self.presses() == 4, deadline=3)
        self.assertIsNone(self.vantle.marker())
        self.turn_away()
        time.sleep(0.4)
        self.open_capsule()

    def test_no_press_is_lost_while_it_opens(self):
        self.launch()
        delays = (0, 0.01, 0.03, 0.1, 0.2, 0.25, 0.28, 0.3, 0.31, 0.32, 0.33, 0.35, 0.38, 0.42,
                  0.5, 0.7)
        for count, delay in enumerate(delays, 1):
            pause = ("sleep", str(delay)) if delay else ()
            self.arrive(*pause, "click", "1")
            wait_until(f"the press after {delay} s", lambda: self.heard() == count, deadline=5)
            self.turn_away()
            wait_until("a closed capsule", lambda: not self.is_open())

    def heard(self):
        """How many presses have come about, in the window or in the capsule."""
        running = self.vantle.marker() is not None
        return self.presses() + 2 * len(self.vantle.sessions()) + running

    def test_with_a_button_down_it_stays_closed(self):
        self.launch()
        self.open_capsule()  # by now it feels the pointer
        self.turn_away()
        wait_until("a closed capsule", lambda: not self.is_open())
        self.desktop.tool("xdotool", "mousemove", "400", "700", "mousedown", "1")
        self.desktop.tool("xdotool", "mousemove", str(MIDDLE), str(STRIP[1]))
        time.sleep(1)
        self.assertFalse(self.is_open())
        self.desktop.tool("xdotool", "mouseup", "1")
        time.sleep(1)
        self.assertFalse(self.is_open(), "something was dropped there")


class LetsPressesThroughSquare(LetsPressesThrough):

    compositor = False


class BelowABar(CapsuleTest):
    """The bar keeps its part of the screen for itself, as it tells the window manager."""

    tray_kind = CapsuleTest.NO_TRAY

    def setUp(self):
        super().setUp()
        self.desktop.open("trayer", "--edge", "top", "--align", "center", "--widthtype", "percent",
                          "--width", "100", "--height", str(BAR_HEIGHT), "--SetDockType", "true",
                          "--SetPartialStrut", "true", "--expand", "false")
        wait_until("the bar", lambda: self.bar_row(0) != {GROUND})
        time.sleep(0.5)  # until the window manager has made room for it

    def bar_row(self, y):
        return set(self.desktop.picture(MIDDLE - 270, y, 540, 1).colours())

    def test_it_opens_below_the_bar_and_closes_behind_the_pointer(self):
        self.launch()
        bar = [self.bar_row(y) for y in range(BAR_HEIGHT)]
        self.open_capsule()
        self.desktop.screenshot("below-the-bar")
        self.assertTrue([self.bar_row(y) for y in range(BAR_HEIGHT)] == bar, "the bar is as it was")
        self.assertTrue(is_near(next(self.desktop.picture(MIDDLE, BAR_HEIGHT + 2, 1, 1).pixels()),
                                BLACK, 2))
        time.sleep(1)
        self.assertTrue(self.is_open(), "the pointer rests on the bar")
        self.point_at((500, 4))  # along the bar
        wait_until("a closed capsule", lambda: not self.is_open())
        self.open_capsule()
        self.point_at((0, 60))  # into the capsule
        time.sleep(1)
        self.assertTrue(self.is_open())
        self.click((60, BAR_HEIGHT + 30))
        wait_until("a session", self.vantle.marker)


class BelowABarSquare(BelowABar):

    compositor = False


class Works(CapsuleTest):

    def test_a_click_beside_the_chips_starts_and_another_stops(self):
        self.launch()
        self.open_capsule()
        self.click(BESIDE_THE_CHIPS)
        marker = wait_until("a marker", self.vantle.marker)
        self.assertEqual(marker["skillId"], FIRST_SKILL)
        self.turn_away()
        time.sleep(2.5)  # until the flash of the start is over
        self.open_capsule()
        self.desktop.screenshot("running")
        self.click(BESIDE_THE_CHIPS)
        wait_until("a record", lambda: len(self.vantle.sessions()) == 1)
        wait_until("no marker", lambda: self.vantle.marker() is None)

    def test_a_click_on_a_chip_splits_the_session_and_no_second_is_lost(self):
        typed = self.open_editor()
        self.launch()
        pressed = time.time()
        self.begin_session()
        began = time.time()
        time.sleep(2.2)  # work, and the flash of the start
        self.open_capsule()
        self.click(CHIP_DESIGN)
        wait_until("the other skill", lambda: (self.vantle.marker() or {}).get("skillId") == DESIGN)
        self.turn_away()
        time.sleep(2.0)
        least = time.time() - began
        self.end_session()
        most = time.time() - pressed
        first, second = self.vantle.sessions()
        self.assertEqual([first["skillId"], second["skillId"]], [FIRST_SKILL, DESIGN])
        self.assertEqual(first["endedAt"], second["startedAt"])
        counted = first["activeSeconds"] + second["activeSeconds"]
        self.assertGreaterEqual(counted, least - 2)  # both are rounded
        self.assertLessEqual(counted, most + 2)
        self.desktop.type("still here\n")
        wait_until("the typed line", lambda: typed.read_text() == "still here\n")


class Edits(CapsuleTest):

    def test_a_name_typed_into_the_editor_lands_in_the_list_and_the_keyboard_goes_back(self):
        typed = self.open_editor()
        self.launch()
        self.open_capsule()
        self.click(CHIP_DESIGN, button=3)
        self.await_keyboard()
        time.sleep(0.2)  # until it is drawn
        self.desktop.screenshot("menu")
        self.click(MENU_RENAME)
        time.sleep(0.3)
        self.await_keyboard()
        self.desktop.type("Sketching")
        self.desktop.screenshot("rename")
        self.desktop.press("Return")
        wait_until("the new name", lambda: self.name_of(DESIGN) == "Sketching")
        self.assertEqual(typed.read_text(), "")
        self.desktop.type("mine\n")
        wait_until("the typed line", lambda: typed.read_text() == "mine\n")

    def test_a_new_skill_is_added_in_place_and_escape_adds_none(self):
        self.launch()
        self.open_capsule()
        self.click(ADD_ROW)
        self.await_keyboard()
        self.desktop.type("Nothing")
        self.desktop.press("Escape")
        time.sleep(0.3)
        self.click(ADD_ROW)
        self.await_keyboard()
        self.desktop.type("Research")
        self.desktop.screenshot("create")
        self.desktop.press("Return")
        wait_until("the new skill", lambda: "Research" in self.skill_names())
        self.assertEqual(self.skill_names()[-1], "Research")
        self.assertNotIn("Nothing", self.skill_names())

    def test_a_click_in_another_window_turns_away_from_the_editor(self):
        typed = self.open_editor()
        self.launch()
        self.open_capsule()
        self.click(ADD_ROW)
        self.await_keyboard()
        self.desktop.tool("xdotool", "mousemove", "400", "400", "sleep", "0.1", "click", "1")
        wait_until("a closed capsule", lambda: not self.is_open())
        self.desktop.type("mine\n")
        wait_until("the typed line", lambda: typed.read_text() == "mine\n")
