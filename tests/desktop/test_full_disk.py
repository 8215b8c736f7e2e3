"""A session that can't be written stays open, and is written once there is room."""

import json

from harness.case import SHORTCUT, DesktopTest
from harness.full_disk import PAGE, FileSizeLimit, disk_that_can_be_full
from harness.waiting import wait_until

APOLOGY = ("Couldn’t save your hours. Check available disk space and folder permissions, "
           "then try again.")


def record_of_length(length):
    """A line of the log with its line feed, filled up to the length by its note."""
    record = {"activeSeconds": 60, "endedAt": "2026-03-01T10:01:00Z",
              "id": "0F6B1D1E-4A52-4C1B-9A1E-7F3B2C5D8E90", "note": "", "skillId": "building",
              "source": "mac_app", "startedAt": "2026-03-01T10:00:00Z"}
    record["note"] = "n" * (length - len(line_of(record)))
    return line_of(record)


def line_of(record):
    return json.dumps(record, sort_keys=True, separators=(",", ":")) + "\n"


class FullDisk(DesktopTest):

    tray_kind = DesktopTest.STATUS_NOTIFIER

    def setUp(self):
        super().setUp()
        self.disk = disk_that_can_be_full(self.desktop.env["XDG_DATA_HOME"])

    def test_the_first_record_waits_for_room(self):
        self.disk.start(self.launch, self.vantle)
        self._stop_fails_until_there_is_room(earlier=b"")

    def test_a_record_that_fits_only_half_leaves_the_log_as_it_was(self):
        self._half_a_record()

    def test_the_same_with_a_limit_on_the_length_of_files(self):
        self.disk = FileSizeLimit()
        self._half_a_record()

    def _half_a_record(self):
        self.disk.start(self.launch, self.vantle)
        # Room for 100 bytes more, which is no whole record.
        earlier = (record_of_length(1500) + record_of_length(1500)
                   + record_of_length(PAGE - 3000 - 100)).encode()
        self.assertEqual(len(earlier), PAGE - 100)
        self.vantle.log_file.write_bytes(earlier)
        self._stop_fails_until_there_is_room(earlier)

    def _stop_fails_until_there_is_room(self, earlier):
        marker = self.begin_session()
        self.disk.fill(self.vantle)
        self.desktop.press(SHORTCUT)
        wait_until("the apology", lambda: APOLOGY in self.tray.tool_tip())
        self.assertTrue(self.vantle.is_running())
        self.assertEqual(self.vantle.marker(), marker)
        self.assertEqual(self.vantle.log_bytes(), earlier)
        self.assertEqual(self._temporary_files(), [])

        self.disk.free(self.vantle)
        record = self.end_session()
        self.assertEqual(record["id"], marker["id"])
        self.assertEqual(self.vantle.log_bytes(), earlier + line_of(record).encode())
        self.assertEqual(self._temporary_files(), [])

    def _temporary_files(self):
        return [path.name for path in self.vantle.data_directory.glob(".*.tmp")]
