"""The review's poster on its way to other programs and into files."""

import unittest
from datetime import datetime, timedelta
from pathlib import Path

from harness.clipboard_manager import ClipboardManager
from harness.records import worked
from harness.waiting import wait_until
from harness.windows import DASHBOARD, ReaderCase

WRAPPED = ("wrapped", "Wrapped")
DIALOG = "Save image"
SUGGESTED = "wrapped-this-week.png"
REFUSED = "Couldn't save there. Try a different folder."

PNG = b"\x89PNG\r\n\x1a\n"
WIDTH = 844  # px of the picture


class Share(ReaderCase):

    def setUp(self):
        super().setUp()
        # It ends now, so that it belongs to this week in its first minutes too.
        self.write_records([worked(1, datetime.now() - timedelta(minutes=30), 30)])
        self.launch()
        self.open(*WRAPPED)
        self.desktop.press("End")

    def press(self, button):
        self.reader.press(self.await_told("Wrapped", "push button", button))

    def clipboard(self, kind):
        return self.desktop.tool("xclip", "-selection", "clipboard", "-o", "-t", kind)

    def await_dialog(self):
        dialog, = wait_until("the dialog", lambda: self.desktop.windows_named(DIALOG))
        wait_until("the dialog in front", lambda: self.desktop.active_window() == dialog)

    def save_as(self, path):
        self.await_dialog()
        self.desktop.press("ctrl+a")
        self.desktop.type(str(path))
        self.desktop.press("Return")
        wait_until("no dialog", lambda: not self.desktop.windows_named(DIALOG))

    def assert_is_poster(self, png):
        self.assertTrue(png.startswith(PNG))
        self.assertEqual(int.from_bytes(png[16:20], "big"), WIDTH)

    def test_the_copied_poster_is_a_picture_to_other_programs(self):
        self.press("Copy image")
        self.await_told("Wrapped", "push button", "Copied")
        kinds = self.clipboard("TARGETS").decode().split()
        self.assertLess(kinds.index("image/png"), kinds.index("image/bmp"))
        self.assert_is_poster(self.clipboard("image/png"))
        self.assertTrue(self.clipboard("image/bmp").startswith(b"BM"))
        self.await_told("Wrapped", "push button", "Copy image")

    def test_the_copied_poster_outlives_the_program(self):
        manager = ClipboardManager(self.desktop.env["DISPLAY"], "image/png")
        manager.start()
        self.addCleanup(manager.stop)
        self.press("Copy image")
        self.await_told("Wrapped", "push button", "Copied")
        copied = self.clipboard("image/png")
        self.assertEqual(self.vantle.stop(), 0)
        self.assertEqual(manager.taken, copied)

    def test_the_poster_is_saved_where_the_user_says_while_the_clock_runs_on(self):
        self.press("Save image…")
        self.await_dialog()
        self.desktop.screenshot("dialog")
        self.begin_session()
        self.desktop.press("Return")
        saved = Path(self.desktop.env["HOME"], SUGGESTED)
        wait_until("the file", saved.exists)
        self.assert_is_poster(saved.read_bytes())
        self.assertEqual([one.name for one in saved.parent.iterdir() if "wrapped" in one.name],
                         [SUGGESTED], "and nothing beside it")
        self.end_session()

    def test_a_folder_that_takes_nothing_is_told_of_and_another_one_does(self):
        self.press("Save image…")
        # No folder that not even the superuser writes to is less of a surprise than this one.
        self.save_as("/proc/poster")
        self.await_told("Wrapped", "alert message", REFUSED)
        self.desktop.screenshot("refused")
        self.press("Save image…")
        saved = Path(self.desktop.env["HOME"], "my week.png")
        self.save_as(saved)
        wait_until("the file", saved.exists)
        wait_until("nothing to be told any more",
                   lambda: REFUSED not in self.reader.window("Wrapped").told())

    def test_the_dialog_goes_with_its_window(self):
        self.press("Save image…")
        self.await_dialog()
        self.open(*DASHBOARD)  # which closes the review
        wait_until("no dialog", lambda: not self.desktop.windows_named(DIALOG))
        self.begin_session()


if __name__ == "__main__":
    unittest.main()
