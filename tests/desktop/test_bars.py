"""Bars that show the running time by the pieces that are installed for them."""

import re
import signal
import subprocess
import time

from harness.bus import PROGRAM_NAME, activate_action, owner_of, session_of
from harness.case import FIRST_SKILL_COLOUR, ROOT, DesktopTest
from harness.picture import rgb_of
from harness.waiting import wait_until
from harness.wayland import WaylandTest

BARS = ROOT / "packaging/bars"
BAR_HEIGHT = 40


def piece(name):
    """The piece for a bar, as it reads where the program is installed in this tree."""
    return (BARS / name).read_text("utf-8").replace("/usr/share/vantle/bars", str(BARS))


class Lines:
    """A program that prints lines, from its start to the end of the test."""

    def __init__(self, test):
        self._test = test
        self._printed = test.desktop.directory / "lines"

    def run(self, *command):
        with self._printed.open("wb") as printed:
            self.process = subprocess.Popen(command, env=self._test.desktop.env, stdout=printed,
                                            stdin=subprocess.DEVNULL, start_new_session=True)
        self._test.addCleanup(self._end)
        return self

    def _end(self):
        if self.process.poll() is None:
            self.process.send_signal(signal.SIGTERM)
            self.process.wait(10)

    def all(self):
        return self._printed.read_text("utf-8").splitlines()

    def last(self):
        lines = self.all()
        return lines[-1] if lines else None


def seconds_of(line):
    """How many seconds a line shows."""
    shown = re.search(r"(\d+):(\d\d):(\d\d)", line or "")
    return shown and 3600 * int(shown[1]) + 60 * int(shown[2]) + int(shown[3])


class Clock(DesktopTest):
    tray_kind = DesktopTest.NO_TRAY

    def setUp(self):
        super().setUp()
        self.desktop.env["VANTLE_AUTOSTART"] = "1"  # nothing pops up

    def test_it_never_starts_the_program_and_finds_one_that_comes_later(self):
        clock = Lines(self).run(BARS / "clock")
        wait_until("an empty line or none", lambda: clock.all() in ([], [""]))
        self.assertIsNone(owner_of(self.desktop, PROGRAM_NAME))
        self.launch()
        self.begin_session()
        wait_until("the running time", lambda: seconds_of(clock.last()) is not None)
        self.assertTrue(clock.last().startswith("Build 0:00:"), clock.last())
        self.end_session()
        wait_until("an empty line", lambda: clock.last() == "")
        self.begin_session()
        wait_until("the next session", lambda: seconds_of(clock.last()) is not None)
        self.vantle.stop()
        wait_until("an empty line after the end", lambda: clock.last() == "")

    def test_it_counts_each_second_and_asks_only_at_changes(self):
        self.launch()
        self.begin_session()
        clock = Lines(self).run(BARS / "clock")
        wait_until("five seconds", lambda: len(clock.all()) > 5)
        shown = [seconds_of(line) for line in clock.all() if line]
        self.assertEqual(shown, list(range(shown[0], shown[0] + len(shown))))
        told = session_of(self.desktop)
        elapsed = int(told["ActiveSeconds"]) + int(time.time()) - int(told["AsOf"])
        self.assertLessEqual(abs(seconds_of(clock.last()) - elapsed), 2)
        self.assertEqual(told["State"], "running")
        self.assertEqual(told["TodaySeconds"], told["ActiveSeconds"])

    def test_once_prints_one_line(self):
        self.launch()
        self.begin_session()
        printed = subprocess.run([BARS / "vantle.1s.sh"], env=self.desktop.env, check=True,
                                 capture_output=True, text=True)
        self.assertRegex(printed.stdout, r"^Build 0:\d\d:\d\d\n$")
        self.assertEqual(printed.stderr, "")

    def test_i3blocks_prints_it_as_a_block(self):
        settings = self.desktop.directory / "i3blocks.conf"
        settings.write_text(piece("i3blocks.conf"))
        self.launch()
        self.begin_session()
        blocks = Lines(self).run("i3blocks", "-c", settings)
        wait_until("the running time in a block",
                   lambda: re.search(r'"full_text":\s*"Build 0:\d\d:\d\d"', blocks.last() or ""))

    def test_polybar_shows_it_in_the_colour_of_the_skill(self):
        settings = self.desktop.directory / "polybar.ini"
        settings.write_text(piece("polybar.ini") + "[bar/top]\nwidth = 100%\nheight = 30\n"
                            "background = #000000\nforeground = #ffffff\nmodules-left = vantle\n")
        self.launch()
        self.desktop.open("polybar", "-q", "-c", settings, "top")
        self.begin_session()
        self.await_colour(self.desktop)
        self.end_session()
        wait_until("the bar without it", lambda: not self.bar_shows_colour(self.desktop))

    def bar_shows_colour(self, desktop):
        return desktop.picture(0, 0, 300, BAR_HEIGHT).shows(rgb_of(FIRST_SKILL_COLOUR), 8)

    def await_colour(self, desktop):
        wait_until("the skill's colour in the bar", lambda: self.bar_shows_colour(desktop))


class ClockInWayland(WaylandTest):

    def test_waybar_shows_it_in_the_colour_of_the_skill(self):
        settings = self.desktop.directory / "waybar.jsonc"
        settings.write_text(piece("waybar.jsonc").replace(
            '{\n    "custom/vantle"',
            '{\n    "height": 30, "modules-left": ["custom/vantle"],\n    "custom/vantle"'))
        style = self.desktop.directory / "waybar.css"
        style.write_text("* { background: black; color: white; }")
        self.launch()
        desktop = self.session
        desktop.open("waybar", "-c", settings, "-s", style)
        activate_action(self.session, "toggle")
        wait_until("a session", self.vantle.marker)
        wait_until("the skill's colour in the bar",
                   lambda: self.desktop.picture(0, 0, 300, BAR_HEIGHT)
                   .shows(rgb_of(FIRST_SKILL_COLOUR), 8))
