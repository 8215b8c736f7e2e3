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

    def run_command(self, name):
        """Its exit code and the lines that it printed."""
        shutil.copy(ROOT / name, self.root)
        path = f"{self.root / 'bin'}:{os.environ['PATH']}"
        done = subprocess.run([self.root / name], env={**os.environ, "PATH": path}, check=False,
                              stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
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


if __name__ == "__main__":
    unittest.main()
