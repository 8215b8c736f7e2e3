#!/usr/bin/env python3
"""`./test` and `./measure` go to their end whatever fails on the way, and their exit code tells.

They run in a small tree of their own, in which every tool is a script that says what it is told to.
"""

import os
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]


class Commands(unittest.TestCase):

    def setUp(self):
        directory = tempfile.TemporaryDirectory()
        self.addCleanup(directory.cleanup)
        self.root = Path(directory.name)
        self.put("tools/setup/install")
        self.put("bin/cmake")

    def put(self, path, says="", code=0):
        """A script in the place of one of the tree."""
        file = self.root / path
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(f"#!/bin/sh\n{f'echo {says!r}' if says else ''}\nexit {code}\n")
        file.chmod(0o755)

    def run_command(self, name, *options):
        """Its exit code and the lines that it printed."""
        shutil.copy(ROOT / name, self.root)
        path = f"{self.root / 'bin'}:{os.environ['PATH']}"
        done = subprocess.run([self.root / name, *options], env={**os.environ, "PATH": path},
                              check=False, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT, text=True, timeout=60)
        return done.returncode, done.stdout.splitlines()


class Test(Commands):

    def setUp(self):
        super().setUp()
        self.put("tools/checks/format", "1 passed, 0 failed")
        self.put("tools/checks/build")
        self.put("tools/checks/analysis", "1 passed, 0 failed")
        self.put("tools/checks/suite", "30 passed, 0 failed")
        self.put("tools/checks/fuzz", "4 passed, 0 failed")

    def stages(self, lines):
        """The table at the end: passed and failed by the first word of the stage."""
        table = lines[lines.index(next(line for line in lines if line.startswith("stage"))) + 1:-2]
        return {row.split()[0]: tuple(int(word) for word in row.split()[-4:-2]) for row in table}

    def test_ends_with_the_sum_of_all_stages(self):
        code, lines = self.run_command("test")
        self.assertEqual(lines[-1], "96 passed, 0 failed")
        self.assertEqual(code, 0)

    def test_a_stage_that_fails_hides_none_after_it(self):
        self.put("tools/checks/format", "0 passed, 1 failed", code=1)
        code, lines = self.run_command("test")
        self.assertEqual(lines[-1], "95 passed, 1 failed")
        self.assertEqual(code, 1)
        stages = self.stages(lines)
        self.assertEqual(stages["Formatting"], (0, 1))
        self.assertEqual(stages["Fuzz"], (4, 0))
        self.assertEqual(stages["Static"], (1, 0))

    def test_a_stage_that_breaks_off_counts_as_a_failure(self):
        self.put("tools/checks/suite", "no such compiler", code=127)
        self.put("tools/checks/analysis", "29 passed, 0 failed", code=1)
        code, lines = self.run_command("test")
        self.assertEqual(lines[-1], "34 passed, 4 failed")
        self.assertEqual(code, 1)
        self.assertEqual(self.stages(lines)["Static"], (29, 1))

    def test_the_setup_may_fail_too(self):
        self.put("tools/setup/install", "no such package", code=1)
        code, lines = self.run_command("test")
        self.assertEqual(lines[-1], "96 passed, 1 failed")
        self.assertEqual(code, 1)


class Measure(Commands):

    TABLES = ["| of the library |", "| of the running program |"]

    def setUp(self):
        super().setUp()
        self.put_tables()

    def put_tables(self, library=0, program=0):
        self.put("build/release/bench/vantle_bench", self.TABLES[0], library)
        self.put("bench/program", self.TABLES[1], program)

    def test_prints_both_tables(self):
        code, lines = self.run_command("measure")
        self.assertEqual((code, lines), (0, self.TABLES))

    def test_a_missed_goal_hides_no_table_and_shows_in_the_exit_code(self):
        for codes in ((1, 0), (0, 1), (1, 1)):
            with self.subTest(codes=codes):
                self.put_tables(*codes)
                code, lines = self.run_command("measure")
                self.assertEqual(code, 1)
                self.assertEqual([line for line in lines if line.startswith("|")], self.TABLES)

    def put_document(self):
        """The document with both rows, and the tool that writes it."""
        (self.root / "docs").mkdir()
        self.document = self.root / "docs/performance.md"
        self.document.write_text(
            "# Cost\n\n<!-- measured -->\nlong ago\n<!-- /measured -->\n\nProse.\n\n"
            "| measure | ours | bound | ratio | goal | met |\n|---|---|---|---|---|---|\n"
            "| parse | 9 ms | 9 ms | 1 | 2 | yes |\n\nMore prose.\n\n"
            "| start | 9 ms | the goal | | 9 ms | no |\n")
        (self.root / "bench").mkdir(exist_ok=True)
        shutil.copy(ROOT / "bench/record", self.root / "bench")

    def test_writes_the_document_only_when_told_to(self):
        self.TABLES = ["| parse | 5 ms | 4 ms | 1.25 | 2 | yes |",
                       "| start | 7 ms | the goal |  | 9 ms | yes |"]
        self.put_tables()
        self.put_document()
        before = self.document.read_text()
        self.assertEqual(self.run_command("measure")[0], 0)
        self.assertEqual(self.document.read_text(), before)
        self.assertEqual(self.run_command("measure", "--record")[0], 0)
        written = self.document.read_text().splitlines()
        self.assertIn("| parse | 5 ms | 4 ms | 1.25 | 2 | yes |", written)
        self.assertIn("| start | 7 ms | the goal | | 9 ms | yes |", written)
        for line in ("# Cost", "Prose.", "More prose."):
            self.assertIn(line, written)
        self.assertNotIn("long ago", written)
        self.assertRegex(written[3], rf"{os.cpu_count()} cores.*\d{{4}}; load \d+\.\d at the start")

    def test_tells_of_rows_that_the_document_and_the_measures_do_not_share(self):
        self.TABLES = ["| parse | 5 ms | 4 ms | 1.25 | 2 | yes |",
                       "| frame | 7 ms | the goal |  | 9 ms | yes |"]
        self.put_tables()
        self.put_document()
        code, lines = self.run_command("measure", "--record")
        self.assertEqual(code, 1)
        self.assertIn("record: not in docs/performance.md: frame", lines)
        self.assertIn("record: not measured: start", lines)

    def test_other_programs_are_measured_by_themselves(self):
        self.put("bench/peers", "| beside |")
        self.assertEqual(self.run_command("measure", "--peers"), (0, ["| beside |"]))

    def test_knows_no_other_option(self):
        self.assertEqual(self.run_command("measure", "--peer")[0], 2)


if __name__ == "__main__":
    unittest.main()
