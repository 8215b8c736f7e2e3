"""What is seen over the screens when a session starts and ends, and that it never stays."""

import time
from pathlib import Path

from harness.case import FIRST_SKILL_COLOUR, SHORTCUT
from harness.ceremony import ALL_GONE, GROUND_RGB, MAY_BE_LATE, CeremonyCase
from harness.picture import is_near, rgb_of
from harness.waiting import wait_until

PALETTE = [0x7A78FF, 0xFF375F, 0xFF9F0A, 0x30D158, 0x64D2FF]


def dimmed(rgb, plate):
    return tuple(channel * (1 - plate) for channel in rgb)


class Show(CeremonyCase):

    def test_a_start_is_celebrated_with_particles_over_a_dimmed_desktop(self):
        self.launch()
        pressed = self.press_and_play()
        # One area for the dots, and one across the title in the middle of the screen.
        dots = self.watch((100, 300, 200, 150), pressed + 1.6)
        titles = self.watch((620, 410, 200, 80), pressed + 3.0)
        self.assertTrue(any(self.has_dots(picture) for picture in dots))
        self.assertTrue(any(picture.shows((255, 255, 255), tolerance=20) for picture in titles))
        self.assertFalse(any(self.is_black(picture) for picture in dots + titles))
        self.assert_all_gone(pressed)

    def has_dots(self, picture):
        """Bright dots on a plate that the desktop shines through."""
        colours = picture.colours()
        plate = sum(count for colour, count in colours.items()
                    if is_near(colour, dimmed(GROUND_RGB, 0.52), 6))
        bright = sum(count for colour, count in colours.items() if max(colour) > 150)
        return plate > picture.size * 0.1 and bright > picture.size * 0.01

    def is_black(self, picture):
        colours = picture.colours()
        return sum(count for colour, count in colours.items()
                   if max(colour) < 16) > picture.size * 0.5

    def test_an_end_closes_a_ring_in_the_colour_of_the_skill(self):
        self.launch()
        self.assert_all_gone(self.press_and_play())
        pressed = time.monotonic()
        self.desktop.press(SHORTCUT)
        # A strip from the middle to the right edge, which the ring crosses on its way.
        pictures = self.watch((720, 448, 720, 4), pressed + 1.0 + MAY_BE_LATE, every=0.01)
        accent = rgb_of(FIRST_SKILL_COLOUR)
        bluest = max((colour for picture in pictures for colour in picture.colours()),
                     key=lambda colour: colour[2] - colour[0])
        # The ring is up to half opaque.
        for channel, ground, colour in zip(bluest, GROUND_RGB, accent):
            self.assertGreater(abs(channel - ground), abs(colour - ground) * 0.1)
            self.assertLess(abs(channel - ground), abs(colour - ground) * 0.6 + 3)
        self.assert_all_gone(pressed, after=1.0)

    def test_the_work_below_goes_on_through_a_show(self):
        clicks = self.desktop.directory / "clicks"
        self.desktop.open("bash", "-c",
                          f"exec xev -geometry 300x200+50+600 -event button >{clicks}")
        wait_until("the window for clicks", lambda: self.desktop.windows_named("Event Tester"))
        typed = self.open_editor()
        editor = self.desktop.active_window()
        self.launch()

        def type_a_line():
            self.assertEqual(self.desktop.active_window(), editor, "nothing takes the focus")
            lines = typed.read_text() + "a line\n"
            self.desktop.type("a line\n")
            wait_until("the typed line", lambda: typed.read_text() == lines)

        def click_below():
            count = clicks.read_text().count("ButtonPress")
            self.desktop.tool("xdotool", "mousemove", "200", "700", "click", "1")
            wait_until("the click in the window below",
                       lambda: clicks.read_text().count("ButtonPress") > count)

        def look_at_the_task_bar():
            listed = self.desktop.tool("xprop", "-root", "_NET_CLIENT_LIST").decode()
            for overlay in self.overlays():
                self.assertNotIn(f"{int(overlay):#x}", listed, "no task bar lists it")

        for act in (look_at_the_task_bar, type_a_line, click_below):
            self.assert_all_gone(self.in_a_show(act))
            self.desktop.press(SHORTCUT)
            wait_until("the session's end", lambda: self.vantle.marker() is None)
            self.assert_all_gone(time.monotonic(), after=1.2)

    def test_a_show_stands_above_a_window_that_fills_the_screen_on_any_workspace(self):
        self.desktop.tool("xdotool", "set_num_desktops", "2")
        self.launch()
        self.desktop.open("xterm", "-fullscreen", "-bg", "#204020", "-T", "film")
        wait_until("the film in front", lambda: self.desktop.active_window_title() == "film")
        pressed = self.press_and_play()
        self.assertTrue(self.sees((100, 300, 200, 150), pressed + 2.0, lambda picture: any(
            picture.shows(rgb_of(colour), tolerance=60) for colour in PALETTE)))
        self.desktop.tool("xdotool", "set_desktop", "1")
        self.assertTrue(self.sees((620, 410, 200, 80), pressed + ALL_GONE, lambda picture:
                                  picture.shows((255, 255, 255), tolerance=20)),
                        "the title, on the other workspace")
        self.assert_all_gone(pressed)

    def test_presses_in_quick_succession_cut_each_other_off(self):
        self.launch()
        for _ in range(3):
            self.desktop.press(SHORTCUT)
            wait_until("the session", self.vantle.marker)
            time.sleep(0.3)
            self.assertLessEqual(len(self.overlays()), 1)
            self.desktop.press(SHORTCUT)
            wait_until("its end", lambda: self.vantle.marker() is None)
            self.assertLessEqual(len(self.overlays()), 1)
        pressed = self.press_and_play()
        self.assertLessEqual(len(self.overlays()), 1)
        self.await_overlays()  # what was up at first may have been the ring of the end
        self.assert_all_gone(pressed)

    def test_switched_off_it_shows_nothing(self):
        self.vantle.write_preferences(ripple__disabled="true")
        self.launch()
        self.begin_session()
        for _ in range(10):
            self.assertEqual(self.overlays(), [])
            time.sleep(0.05)

    def test_with_less_movement_the_screen_dims_softly_at_both_ends(self):
        settings = Path(self.desktop.env["XDG_CONFIG_HOME"], "gtk-4.0")
        settings.mkdir()
        (settings / "settings.ini").write_text("[Settings]\ngtk-enable-animations=false\n")
        self.launch()
        dims = {"start": [], "end": []}
        for _ in range(4):  # a busy machine may draw no frame of a fade
            for colours in dims.values():
                pressed = self.press_and_play()
                seen = [next(picture.pixels())
                        for picture in self.watch((20, 700, 1, 1), pressed + 1.2, every=0.01)]
                colours += [colour for colour in seen if colour != GROUND_RGB]
                self.assert_all_gone(pressed, after=1.3)
            if all(dims.values()):
                break
        for end, colours in dims.items():
            self.assertTrue(colours, end)
            for colour in colours:
                self.assertGreaterEqual(min(a - b for a, b in zip(
                    colour, dimmed(GROUND_RGB, 0.24))), 0, "never darker than a soft fade")


class TwoScreens(CeremonyCase):

    def setUp(self):
        super().setUp()
        self.desktop.tool("xrandr", "--setmonitor", "left", "800/210x900/238+0+0", "screen")
        self.desktop.tool("xrandr", "--setmonitor", "right", "640/169x900/238+800+0", "none")

    def frames(self):
        return sorted(self.desktop.frame_of(window) for window in self.overlays())

    def test_every_screen_has_a_show_of_its_own(self):
        self.launch()
        pressed = self.press_and_play(count=2)
        self.assertEqual(self.frames(), [(0, 0, 800, 900), (800, 0, 640, 900)])
        self.wait_for_moment(pressed, 1.7)
        strips = self.watch((0, 440, 1440, 20), pressed + 3.0)
        for left, right in ((0, 800), (800, 1440)):
            self.assertTrue(any(picture.part(left, right).shows((255, 255, 255), tolerance=20)
                                for picture in strips), "its title")
        self.assert_all_gone(pressed)

    def test_a_screen_unplugged_in_the_middle_takes_its_show_with_it(self):
        self.launch()
        pressed = self.press_and_play(count=2)
        self.wait_for_moment(pressed, 0.8)
        self.desktop.tool("xrandr", "--delmonitor", "right")
        self.await_overlays(count=1)
        self.assertEqual(self.frames(), [(0, 0, 800, 900)])
        self.assert_all_gone(pressed)
        self.assertTrue(self.vantle.is_running())
        # The end of the session, on the screen that is left.
        self.assert_all_gone(self.press_and_play(count=1), after=1.0)


class NoCompositor(CeremonyCase):

    compositor = False

    def test_where_nothing_can_be_see_through_only_the_title_shows(self):
        self.launch()
        pressed = time.monotonic()
        self.desktop.press(SHORTCUT)
        titled = None
        while time.monotonic() < pressed + ALL_GONE:
            middle = self.eyes.picture(420, 300, 600, 300)
            ground = middle.colours().get(GROUND_RGB, 0)
            self.assertGreater(ground, middle.size * 0.35, "the desktop stays in sight")
            if titled is None and middle.shows((255, 255, 255)):
                titled = time.monotonic() - pressed
        self.assertIsNotNone(titled, "the title was seen")
        self.assertLess(titled, 1.0, "it stands from the first frame on")
        self.assert_all_gone(pressed)

    def test_the_ring_of_an_end_shows_there_too(self):
        self.launch()
        self.begin_session()
        time.sleep(ALL_GONE)
        pressed = time.monotonic()
        self.desktop.press(SHORTCUT)
        strips = self.watch((720, 448, 720, 4), pressed + 1.0 + MAY_BE_LATE, every=0.01)
        self.assertTrue(any(strip.inked(6) > 0 for strip in strips))
        for strip in strips:
            self.assertGreater(strip.colours().get(GROUND_RGB, 0), strip.size * 0.9)
        self.assert_all_gone(pressed, after=1.0)
