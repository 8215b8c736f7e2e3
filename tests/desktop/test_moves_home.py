"""A program that runs from a download folder offers to move to its proper place."""

import shutil
from pathlib import Path

from harness.bus import PROGRAM_NAME, activate_action, owner_of
from harness.case import EXECUTABLE, DesktopTest
from harness.program import Program
from harness.waiting import wait_until


class MovesHome(DesktopTest):

    def setUp(self):
        super().setUp()
        self.home = Path(self.desktop.env["HOME"])
        downloads = self.home / "Downloads"
        downloads.mkdir()
        for program in (EXECUTABLE, EXECUTABLE.with_name("vantle-shortcuts")):
            shutil.copy2(program, downloads)
        self.downloaded = Program(downloads / "vantle", self.desktop)
        self.addCleanup(self.downloaded.kill)
        self.target = self.home / ".local" / "bin" / "vantle"

    def await_offer(self):
        wait_until("the offer", lambda: self.desktop.dialogs("vantle"))
        self.desktop.screenshot("offer")

    def test_not_now_goes_on_from_there_and_asks_again_next_time(self):
        for _ in range(2):
            self.downloaded.start()
            self.await_offer()
            self.desktop.press("Escape")
            wait_until("the program on the bus", lambda: owner_of(self.desktop, PROGRAM_NAME))
            self.assertEqual(self.downloaded.stop(), 0)
            wait_until("the name free", lambda: not owner_of(self.desktop, PROGRAM_NAME))
        self.assertFalse(self.target.exists())

    def test_a_terminate_signal_ends_the_program_and_not_only_the_offer(self):
        self.downloaded.start()
        self.await_offer()
        self.assertEqual(self.downloaded.stop(), 0)
        self.assertFalse(self.vantle.data_directory.exists())

    def test_moving_starts_the_copy_in_its_proper_place_and_gives_the_download_up(self):
        self.downloaded.start()
        self.await_offer()
        self.desktop.press("Return")
        self.assertEqual(self.downloaded.wait(), 0)
        wait_until("the copy on the bus", lambda: owner_of(self.desktop, PROGRAM_NAME))
        self.assertTrue(self.target.exists())
        self.assertTrue(self.target.with_name("vantle-shortcuts").exists())
        wait_until("the download gone", lambda: not (self.home / "Downloads" / "vantle").exists())
        activate_action(self.desktop, "toggle")
        wait_until("a session", self.vantle.marker)
        activate_action(self.desktop, "quit")
        wait_until("the record", self.vantle.sessions)
