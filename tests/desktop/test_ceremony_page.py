"""A ceremony page in place of the native show: what it is told, what it may say, how it ends."""

import os
import shutil
import signal
import socket
import time
from pathlib import Path

from harness.bus import PROGRAM_NAME, activate_action, owner_of
from harness.case import EXECUTABLE, FIRST_SKILL_COLOUR, SHORTCUT
from harness.ceremony import ALL_GONE, GROUND_RGB, CeremonyCase
from harness.page import PARTS, install, write_page
from harness.picture import is_near, rgb_of
from harness.program import Program
from harness.waiting import wait_until

ACCENT = rgb_of(FIRST_SKILL_COLOUR)


class MovedProgram(CeremonyCase):

    def test_the_page_plays_after_the_program_was_moved(self):
        home = Path(self.desktop.env["HOME"])
        download = home / "Downloads" / "vantle-1"
        for part, folder in PARTS.items():
            (download / folder).mkdir(parents=True, exist_ok=True)
            shutil.copy2(EXECUTABLE.parent / part, download / folder / part)
        (download / "share" / "vantle").mkdir(parents=True)
        page = download / "share" / "vantle" / "ceremony.html"
        write_page(page, "done")
        if os.getuid() == 0:
            self.desktop.env["QTWEBENGINE_DISABLE_SANDBOX"] = "1"
        downloaded = Program(download / "bin" / "vantle", self.desktop)
        self.addCleanup(downloaded.kill)
        downloaded.start()
        wait_until("the offer", lambda: self.desktop.dialogs("vantle"))
        self.desktop.press("Return")
        self.assertEqual(downloaded.wait(), 0)
        wait_until("the copy on the bus", lambda: owner_of(self.desktop, PROGRAM_NAME))
        wait_until("the page in its new place",
                   lambda: (home / ".local" / "share" / "vantle" / "ceremony.html").exists())
        wait_until("the download gone", lambda: not page.exists())
        activate_action(self.desktop, "toggle")
        wait_until("the page", lambda: is_near(self.spot(720, 450), ACCENT, 4), deadline=5)
        activate_action(self.desktop, "quit")
        wait_until("the record", self.vantle.sessions)


class Page(CeremonyCase):

    def new_program(self):
        """A copy of the program that is installed with a page of its own."""
        executable, self.page = install(self.desktop)
        program = Program(executable, self.desktop)
        self.addCleanup(self._expect_silence, program)
        self.addCleanup(program.kill)
        program.write_preferences(dev__skipInstallPrompt="true")
        return program

    def launch_with(self, behaviour, address=""):
        write_page(self.page, behaviour, address)
        self.launch()

    def shows_square(self):
        return is_near(self.spot(720, 450), ACCENT, 4)

    def await_square(self):
        wait_until("the page", self.shows_square)

    def renderers(self):
        """The engine's processes that run the page."""
        found = []
        for entry in Path("/proc").glob("[0-9]*/cmdline"):
            try:
                words = entry.read_bytes()
                group = os.getpgid(int(entry.parent.name))
            except OSError:
                continue
            if b"--type=renderer" in words and group == self.vantle.pid:
                found.append(int(entry.parent.name))
        return found

    def test_a_page_plays_over_the_desktop_and_goes_when_it_is_done(self):
        self.launch_with("done")
        self.desktop.press(SHORTCUT)
        self.await_square()
        self.desktop.screenshot("page")
        self.assertEqual(self.spot(20, 700), GROUND_RGB, "the page is see-through")
        wait_until("the end of the page", lambda: not self.overlays(), deadline=2.6)
        self.assertEqual(self.spot(720, 450), GROUND_RGB)
        self.vantle.stop()
        wait_until("the end of the engine", lambda: not self.vantle.left_children())

    def test_the_work_below_goes_on_through_a_page(self):
        typed = self.open_editor("-geometry", "40x10+20+100")
        self.launch_with("never")

        def type_a_line():
            self.await_square()
            lines = typed.read_text() + "a line\n"
            self.desktop.type("a line\n")
            wait_until("the typed line", lambda: typed.read_text() == lines)

        self.in_a_show(type_a_line)

    def test_a_page_that_never_says_anything_goes_at_the_hard_stop(self):
        self.launch_with("never")
        self.assert_all_gone(self.press_and_play())

    def test_a_page_that_talks_nonsense_goes_at_the_hard_stop_and_not_before(self):
        self.launch_with("garbage")
        pressed = self.press_and_play()
        self.await_square()
        self.wait_for_moment(pressed, 2.9)
        self.assertEqual(len(self.overlays()), 1)
        self.assert_all_gone(pressed)

    def test_a_page_that_begins_late_has_its_whole_time_from_then(self):
        self.launch_with("late")
        pressed = self.press_and_play()
        self.wait_for_moment(pressed, ALL_GONE + 0.4)
        self.assertEqual(len(self.overlays()), 1)
        # A second to load, another one of silence.
        self.assert_all_gone(pressed, after=2 + ALL_GONE + 1)

    def test_a_page_that_crashes_is_gone_and_the_next_one_plays(self):
        self.launch_with("never")
        pressed = self.press_and_play()
        self.await_square()
        renderers = self.renderers()
        self.assertTrue(renderers)
        for renderer in renderers:
            os.kill(renderer, signal.SIGKILL)
        wait_until("nothing to see", lambda: self.spot(720, 450) == GROUND_RGB, deadline=2)
        self.assert_all_gone(pressed)
        self.assertTrue(self.vantle.is_running())
        self.desktop.press(SHORTCUT)  # ends the session, with the ring
        time.sleep(1.2)
        self.desktop.press(SHORTCUT)
        self.await_square()

    def test_a_page_has_no_network(self):
        with socket.create_server(("127.0.0.1", 0)) as server:
            server.settimeout(2.5)
            self.launch_with("reachOut", f"127.0.0.1:{server.getsockname()[1]}")
            self.desktop.press(SHORTCUT)
            self.await_square()
            with self.assertRaises(TimeoutError):
                server.accept()

    def test_a_page_reads_the_files_of_its_own_folder_and_no_others(self):
        folder = self.page.parent
        secret = "var SECRET = 1;"
        outside = self.desktop.directory / "outside"
        outside.mkdir()
        (folder / "art").mkdir()
        for path in (folder / "inside.js", folder / "art" / "inside.js",
                     folder.parent / "secret.js", outside / "secret.js"):
            path.write_text(secret)
        (folder / "link.js").symlink_to(outside / "secret.js")
        (folder / "up").symlink_to(folder.parent)
        self.launch_with("read", (outside / "secret.js").as_uri())
        self.desktop.press(SHORTCUT)
        self.await_square()

    def test_without_the_module_the_native_show_plays(self):
        module = "vantle-webceremony.so"
        (self.page.parents[2] / PARTS[module] / module).unlink()
        self.launch_with("done")
        pressed = self.press_and_play()
        wait_until("the title", lambda: self.desktop.picture(520, 400, 400, 100).shows(
            (255, 255, 255), tolerance=20))
        self.assert_all_gone(pressed)
