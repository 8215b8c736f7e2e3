#!/usr/bin/python3
"""other_hands_test.py <source tree>: the commands that docs/formats/sessions.jsonl.md gives.

Each runs as it stands there, on a log with all that makes such commands stumble.
"""

import csv
import json
import os
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

SOURCE = Path()
NOTES = ("", "tests / docs", 'a "quoted", comma; and a back\\slash', "two\nlines",
         "ünï → 👩‍💻 " * 12)


def record(number, note):
    return {"activeSeconds": 1500 + number, "endedAt": f"2026-03-0{number + 1}T10:30:00Z",
            "id": f"0F6B1D1E-4A52-4C1B-9A1E-7F3B2C5D8E9{number}", "note": note,
            "skillId": ("building", "a,b;c")[number % 2], "source": "mac_app",
            "startedAt": f"2026-03-0{number + 1}T10:00:00Z"}


RECORDS = [record(number, note) for number, note in enumerate(NOTES)]


class InOtherHands(unittest.TestCase):

    @classmethod
    def setUpClass(cls):
        page = (SOURCE / "docs/formats/sessions.jsonl.md").read_text("utf-8")
        part = page.partition("\n## In other hands\n")[2].partition("\n## ")[0]
        cls.commands = re.findall(r"^```sh\n(.*?)^```$", part, re.MULTILINE | re.DOTALL)

    def setUp(self):
        directory = tempfile.TemporaryDirectory(prefix="vantle-hands.")
        self.addCleanup(directory.cleanup)
        self.folder = Path(directory.name)
        lines = [json.dumps(one, ensure_ascii=False, separators=(",", ":")).replace("/", "\\/")
                 for one in RECORDS]
        lines[2:2] = ["{damaged", ""]
        self.log = "\n".join(lines) + "\n"
        (self.folder / "sessions.jsonl").write_text(self.log, "utf-8")

    def tearDown(self):
        self.assertEqual((self.folder / "sessions.jsonl").read_text("utf-8"), self.log)

    def run_command(self, number):
        ran = subprocess.run(["sh", "-ec", self.commands[number]], cwd=self.folder, text=True,
                             env={**os.environ, "TZ": "UTC"}, capture_output=True, check=False)
        self.assertEqual((ran.returncode, ran.stderr), (0, ""))
        return ran.stdout

    def test_the_page_has_four(self):
        self.assertEqual(len(self.commands), 4)

    def test_table_holds_every_record_to_the_letter(self):
        self.run_command(0)
        with (self.folder / "sessions.csv").open(encoding="utf-8", newline="") as table:
            rows = list(csv.DictReader(table))
        self.assertEqual(rows, [{key: str(one[key]) for key in
                                 ("startedAt", "endedAt", "activeSeconds", "skillId", "note",
                                  "source")} for one in RECORDS])

    def test_calendar_has_an_event_for_every_record(self):
        self.run_command(1)
        content = (self.folder / "sessions.ics").read_bytes()
        self.assertEqual(content.count(b"\n"), content.count(b"\r\n"))
        self.assertTrue(content.endswith(b"END:VCALENDAR\r\n"))
        self.assertLessEqual(max(map(len, content.split(b"\r\n"))), 75)
        unfolded = content.replace(b"\r\n ", b"").decode("utf-8").split("\r\n")
        summaries = [line.partition(":")[2] for line in unfolded if line.startswith("SUMMARY:")]
        meant = [re.sub(r"\\(.)", lambda m: {"n": "\n"}.get(m[1], m[1]), one) for one in summaries]
        self.assertEqual(meant, [one["note"] or one["skillId"] for one in RECORDS])
        self.assertIn("DTSTART:20260301T100000Z", unfolded)
        self.assertIn("DTEND:20260301T103000Z", unfolded)
        self.assertIn("CATEGORIES:a\\,b\\;c", unfolded)
        self.assertEqual(unfolded.count("BEGIN:VEVENT"), len(RECORDS))

    def test_database_holds_every_record_and_may_be_made_again(self):
        self.run_command(2)
        self.run_command(2)
        asked = subprocess.run(["sqlite3", "-json", self.folder / "sessions.db",
                                "select * from session order by startedAt"],
                               capture_output=True, check=True)
        self.assertEqual(json.loads(asked.stdout), RECORDS)
        hours = self.run_command(3)
        self.assertRegex(hours, r"2026-03 +building +1\.3")

    def test_empty_log_is_an_empty_table(self):
        (self.folder / "sessions.jsonl").write_bytes(b"")
        self.log = ""
        for number in range(3):
            self.run_command(number)
        self.assertEqual(len((self.folder / "sessions.csv").read_text("utf-8").splitlines()), 1)
        subprocess.run(["jq", "--version"], check=True, stdout=subprocess.DEVNULL)


if __name__ == "__main__":
    SOURCE = Path(sys.argv[1]).resolve()
    unittest.main(argv=sys.argv[:1])
