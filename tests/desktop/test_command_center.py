"""The panel that drops from the tray item, worked by pointer and keys."""

import time

from harness.bus import activate
from harness.case import FIRST_SKILL, PANEL_TITLE, DesktopTest
from harness.waiting import wait_until


class Panel(DesktopTest):
    """The panel as the user sees it, on a tray whose place is known."""

    def setUp(self):
        super().setUp()
        self.launch()

    def tray_item(self):
        """The middle of the item."""
        x, y, width, height = self.desktop.tray_frame()
        return x + width // 2, y + height // 2

    def click(self, x, y, button=1):
        self.desktop.tool("xdotool", "mousemove", str(x), str(y), "sleep", "0.1",
                          "click", str(button))

    def is_shown(self):
        return bool(self.desktop.windows_named(PANEL_TITLE))

    def await_shown(self):
        wait_until("the panel", self.is_shown)
        self.desktop.await_keyboard(PANEL_TITLE)
        self.desktop.await_still(*self.frame())  # it fades in

    def await_hidden(self):
        wait_until("no panel", lambda: not self.is_shown())

    def open(self):
        self.click(*self.tray_item())
        self.await_shown()

    def frame(self):
        window, = self.desktop.windows_named(PANEL_TITLE)
        return self.desktop.frame_of(window)

    def ground(self):
        """The part of its window that is drawn: without a compositor all of it."""
        return self.frame()

    def click_in(self, x, y):
        """A click at a place of the panel, from its top left."""
        left, top, _, _ = self.ground()
        self.click(left + x, top + y)

    def tab(self, times):
        for _ in range(times):
            self.desktop.press("Tab")

    def skills(self):
        path = self.vantle.data_directory / "skills.json"
        return path.read_text() if path.exists() else ""


class ByPointer(Panel):

    def test_a_click_on_the_brick_drops_the_panel_from_it_and_another_takes_it_away(self):
        self.open()
        self.desktop.screenshot("open")
        x, y, width, _ = self.frame()
        self.assertEqual(width, 360)
        item_x, item_y = self.tray_item()
        self.assertLess(item_y, y)
        self.assertLessEqual(y, 60)
        self.assertEqual(x + width, 1440 - 8, "as near to the item as the edge allows")
        self.assertGreater(item_x, x)
        self.click(item_x, item_y)
        self.await_hidden()
        time.sleep(0.5)
        self.assertFalse(self.is_shown(), "it does not come again by itself")
        self.open()

    def test_a_click_elsewhere_takes_it_away_and_reaches_what_is_there(self):
        self.desktop.open("xterm", "-T", "editor", "-geometry", "60x10+100+300")
        wait_until("the editor", lambda: self.desktop.windows_named("editor"))
        self.open()
        self.click(200, 380)
        self.await_hidden()
        wait_until("the editor in front",
                   lambda: self.desktop.active_window_title() == "editor")
        self.open()
        self.click(700, 800, button=3)  # the desktop itself
        self.await_hidden()

    def test_the_wide_button_starts_and_stops(self):
        self.open()
        self.click_in(180, 98)
        marker = wait_until("a marker", self.vantle.marker)
        self.assertEqual(marker["skillId"], FIRST_SKILL)
        self.desktop.screenshot("running")
        self.click_in(180, 98)
        wait_until("a record", self.vantle.sessions)
        self.assert_one_record_and_no_marker()

    def test_a_chip_chooses_the_mode_of_the_next_session(self):
        self.open()
        self.click_in(180, 225)
        self.desktop.screenshot("chosen")
        self.desktop.press("Escape")
        self.await_hidden()
        self.assertNotEqual(self.begin_session()["skillId"], FIRST_SKILL)


class ByKeys(Panel):

    def test_escape_takes_it_away_and_the_keyboard_goes_back(self):
        typed = self.open_editor()
        activate(self.desktop)
        self.await_shown()
        self.desktop.press("Escape")
        self.await_hidden()
        self.desktop.type("a line\n")
        wait_until("the typed line", lambda: typed.read_text() == "a line\n")

    def test_return_starts_and_stops(self):
        self.open()
        self.desktop.press("Return")
        wait_until("a marker", self.vantle.marker)
        self.desktop.press("Return")
        wait_until("a record", self.vantle.sessions)
        self.assert_one_record_and_no_marker()

    def test_a_mode_is_added_by_keys_alone(self):
        self.open()
        self.tab(1)  # the modes
        self.desktop.press("End")
        self.desktop.screenshot("ring")
        self.desktop.press("Return")
        self.desktop.await_still(*self.frame())
        self.desktop.type("Research")
        self.desktop.screenshot("editor")
        self.desktop.press("Return")
        wait_until("the mode", lambda: '"Research"' in self.skills())
        self.desktop.screenshot("added")

    def test_an_open_editor_waits_for_the_panel_to_come_again(self):
        self.open()
        self.tab(1)
        self.desktop.press("End")
        closed = self.frame()[3]
        self.desktop.press("Return")
        wait_until("the editor", lambda: self.frame()[3] != closed)
        self.desktop.await_still(*self.frame())
        height = self.frame()[3]
        self.desktop.type("Resea")
        self.desktop.press("Escape")
        self.await_hidden()
        self.open()
        self.assertEqual(self.frame()[3], height)
        self.desktop.screenshot("editor")
        self.assertNotIn("Resea", self.skills())


class Activated(Panel):

    def test_a_second_start_shows_it(self):
        activate(self.desktop)
        self.await_shown()


class FirstPanel(DesktopTest):
    """The panel that a start by hand shows, beside a tray that takes a moment."""

    def test_it_drops_from_the_item_and_never_stands_anywhere_else(self):
        self.vantle.start()
        frames = []

        def has_stood():
            for window in self.desktop.windows_named(PANEL_TITLE):
                frames.append(self.desktop.frame_of(window))
            return len(frames) > 20

        wait_until("the panel", has_stood)
        _, bar_y, _, bar_height = self.desktop.tray_frame()
        for x, y, width, _ in frames:
            self.assertEqual(x + width, 1440 - 8, "as near to the item as the edge allows")
            # The item is a pixel or two less high than the bar that it stands in.
            self.assertAlmostEqual(y, bar_y + bar_height + 4, delta=2)


class StatusNotifierPanel(Panel):

    tray_kind = DesktopTest.STATUS_NOTIFIER

    def test_it_stands_at_the_place_of_the_click_where_only_that_is_known(self):
        self.desktop.tool("xdotool", "mousemove", "705", "12")
        self.tray.activate(700, 10)
        self.await_shown()
        x, y, width, _ = self.frame()
        self.assertEqual((x + width // 2, y), (700, 14 + 1))
        self.tray.activate(700, 10)
        self.await_hidden()


    def test_a_host_that_gives_one_place_for_every_click_opens_and_closes_it_too(self):
        self.click(700, 10)
        self.tray.activate(0, 25)
        self.await_shown()
        x, y, width, _ = self.frame()
        self.assertEqual((x + width // 2, y), (700, 14 + 1))
        self.click(700, 10)
        self.tray.activate(0, 25)
        self.await_hidden()
        time.sleep(0.5)
        self.assertFalse(self.is_shown(), "the click that closed it does not open it again")


class NoTrayPanel(Panel):

    tray_kind = DesktopTest.NO_TRAY

    def test_without_a_tray_it_stands_at_the_top_right(self):
        activate(self.desktop)
        self.await_shown()
        x, y, width, _ = self.frame()
        self.assertEqual((x + width, y), (1440 - 12, 8))


class SeeThrough(Panel):

    compositor = True

    def test_its_corners_are_round_and_its_shadow_is_soft(self):
        self.open()
        self.desktop.screenshot("see-through")
        self.assertGreater(self.frame()[2], 360, "room for the shadow")
        self.desktop.press("Escape")
        self.await_hidden()
