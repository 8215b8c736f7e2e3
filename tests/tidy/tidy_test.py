#!/usr/bin/env python3
"""Each rule of tools/tidy finds its bad examples, and nothing in a clean tree.

examples/ holds one small tree a rule, with the findings it must give in expected.txt. Lengths are
tried on files made here, since long examples would be long, and commits in a repository made here.
"""

import contextlib
import io
import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

HERE = Path(__file__).resolve().parent
sys.dont_write_bytecode = True
sys.path.insert(0, str(HERE.parents[1] / "tools" / "tidy"))

import commits  # noqa: E402
import programs  # noqa: E402
import tidy  # noqa: E402
from tree import Tree  # noqa: E402

HEADER = "// The first type.\n#pragma once\n"


def findings(root):
    return [str(finding) for finding in tidy.findings(root)]


class Examples(unittest.TestCase):
    maxDiff = None

    def test_each_gives_the_findings_it_says(self):
        examples = sorted(path for path in (HERE / "examples").iterdir() if path.is_dir())
        self.assertIn(HERE / "examples" / "clean", examples)
        for example in examples:
            with self.subTest(example=example.name):
                expected = (example / "expected.txt").read_text(encoding="utf-8").splitlines()
                self.assertEqual(findings(example), expected)

    def test_every_rule_has_one(self):
        said = "".join(path.read_text(encoding="utf-8")
                       for path in (HERE / "examples").glob("*/expected.txt"))
        for check in tidy.CHECKS:
            if check.RULE not in ("length", "commits"):
                self.assertIn(f"[{check.RULE}]", said)


class Lengths(unittest.TestCase):
    def setUp(self):
        directory = tempfile.TemporaryDirectory()
        self.addCleanup(directory.cleanup)
        self.root = Path(directory.name)
        self.put("src/CMakeLists.txt", "vantle_library(vantle_base SOURCES base/A.h base/A.qml)\n")

    def put(self, path, text):
        file = self.root / path
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(text, encoding="utf-8")

    def put_header(self, lines):
        self.put("src/base/A.h", HEADER + "\n" * (lines - 2))

    def allow(self, text):
        self.put("tools/tidy/allowed_long.txt", "# A comment.\n\n" + text)

    def test_four_hundred_lines_are_enough(self):
        self.put_header(400)
        self.assertEqual(findings(self.root), [])
        self.put_header(401)
        self.assertEqual(findings(self.root),
                         ["src/base/A.h:1: 401 lines; split it, 400 are enough [length]"])

    def test_a_listed_file_may_stay_long_but_not_grow(self):
        self.allow("src/base/A.h 450\n")
        self.put_header(450)
        self.assertEqual(findings(self.root), [])
        self.put_header(451)
        self.assertEqual(findings(self.root),
                         ["src/base/A.h:1: has grown from 450 to 451 lines; split it [length]"])

    def test_the_list_follows_a_file_that_shrinks(self):
        self.allow("src/base/A.h 450\nsrc/base/Gone.h 500\n")
        self.put_header(449)
        self.assertEqual(findings(self.root), [
            "tools/tidy/allowed_long.txt:3: src/base/A.h is down to 449 lines: say so here"
            " [length]",
            "tools/tidy/allowed_long.txt:4: src/base/Gone.h is short or gone: take it off the list"
            " [length]"])

    def test_no_list_allows_more_than_six_hundred_lines(self):
        self.allow("src/base/A.h 700\n")
        self.put_header(600)
        self.assertNotIn("src/base/A.h:1", "".join(findings(self.root)))
        self.put_header(601)
        self.assertIn("src/base/A.h:1: 601 lines; 600 are the most [length]", findings(self.root))

    def test_a_view_has_four_hundred_lines_at_the_most(self):
        self.put("src/base/A.qml", "Item {}\n" + "\n" * 400)
        self.assertEqual(findings(self.root),
                         ["src/base/A.qml:1: 401 lines; 400 are the most [length]"])

    def test_a_line_has_a_hundred_columns_at_the_most(self):
        self.put("src/base/A.h", HEADER + "// " + "\u00e9" * 97 + "\n// " + "x" * 98 + "\n")
        self.assertEqual(findings(self.root),
                         ["src/base/A.h:4: 101 columns; 100 are the most [length]"])


class Commits(unittest.TestCase):
    def setUp(self):
        directory = tempfile.TemporaryDirectory()
        self.addCleanup(directory.cleanup)
        self.root = Path(directory.name)

    def git(self, *words, **environment):
        subprocess.run(["git", "-C", str(self.root), *words], check=True, capture_output=True,
                       env={**os.environ, **environment})

    def commit(self, subject, day="2031-05-06"):
        self.git("-c", "user.name=Ada", "-c", "user.email=ada@example.org", "commit",
                 "--allow-empty", "--message", subject, GIT_AUTHOR_DATE=f"{day}T12:00:00+00:00")

    def messages(self):
        return [finding.message for finding in commits.check(Tree(self.root))]

    def test_a_subject_names_an_area_and_an_act(self):
        self.git("init")
        for subject in ("x11: follow the focus", "tests, demo: bring the rows together",
                        "Follow the focus", "x11: Follow the focus", "x11: follow the focus.",
                        "x11: followed the focus", "x11: following the focus", "x11: follows it",
                        "x11: " + "a" * 55, "x11: " + "a" * 56):
            self.commit(subject)
        form = "not of the form `area: imperative summary`"
        self.assertEqual(self.messages(), [
            f'"x11: {"a" * 56}": 61 columns; 60 are the most',
            '"x11: follows it": begins with follows, not with a lower-case imperative',
            '"x11: following the focus": begins with following, not with a lower-case imperative',
            '"x11: followed the focus": begins with followed, not with a lower-case imperative',
            f'"x11: follow the focus.": {form}',
            '"x11: Follow the focus": begins with Follow, not with a lower-case imperative',
            f'"Follow the focus": {form}'])

    def test_commits_from_before_the_form_are_left_alone(self):
        self.git("init")
        self.commit("Follow the focus", day="2001-02-03")
        self.assertEqual(self.messages(), [])

    def test_a_tree_without_history_has_nothing_to_check(self):
        self.assertEqual(self.messages(), [])
        self.git("init")
        self.assertEqual(self.messages(), [])
        (self.root / ".git" / "HEAD").unlink()
        self.assertEqual(self.messages(), [])

    def test_the_history_around_the_tree_is_not_the_tree_s(self):
        self.git("init")
        self.commit("Follow the focus")
        self.assertEqual(list(commits.check(Tree(HERE / "examples" / "clean"))), [])
        inner = self.root / "inner"
        inner.mkdir()
        self.assertEqual(list(commits.check(Tree(inner))), [])


class Programs(unittest.TestCase):

    @staticmethod
    def query(*words):
        return subprocess.run(["dpkg-query", *words], check=False, text=True,
                              capture_output=True).stdout.splitlines()

    def test_the_packages_that_the_table_names_have_them(self):
        """As far as they are installed. A package may depend on the one that has the program: some
        only point to that of their present version."""
        if shutil.which("dpkg-query") is None:
            return
        table = {program: package for program, (package, _) in
                 programs.table_of(Tree(HERE.parents[1])).items() if package != "-"}
        fields = "-f=${db:Status-Status} ${Package} ${Pre-Depends} ${Depends}\\n"
        installed = [re.findall(r"[\w.+-]+", line)[1:]
                     for line in self.query("-W", fields, *set(table.values()))
                     if line.startswith("installed ")]
        brought = {names[0]: set(names) for names in installed}
        owners = {}
        for line in self.query("-S", *(place for program in table for place in places(program))):
            package, _, path = line.partition(": ")
            owners[path] = package.split(":")[0]
        for program, package in table.items():
            with self.subTest(program=program):
                if package in brought:
                    found = {owners.get(place) for place in places(program)}
                    self.assertTrue(found & brought[package], f"{package} does not have it")


def places(program):
    """Where a program is installed, by all the names of the file, and where those are that the
    machine could have under its name instead."""
    path = shutil.which(program, path="/usr/bin:/bin:/usr/sbin:/sbin:/usr/libexec")
    if not path:
        return set()
    choices = Path("/var/lib/dpkg/alternatives", program)
    others = choices.read_text(encoding="utf-8").splitlines() if choices.is_file() else []
    return {path, path.removeprefix("/usr"), os.path.realpath(path),
            *(other for other in others if other.startswith("/"))}


class Command(unittest.TestCase):
    def test_the_exit_code_tells_whether_there_was_anything(self):
        for example, code in (("clean", 0), ("unlisted", 1)):
            with contextlib.redirect_stdout(io.StringIO()) as printed:
                self.assertEqual(tidy.main(["tidy.py", str(HERE / "examples" / example)]), code)
            expected = (HERE / "examples" / example / "expected.txt").read_text(encoding="utf-8")
            self.assertEqual(printed.getvalue(), expected)

    def test_the_examples_are_no_part_of_the_tree(self):
        self.assertNotIn("tests/tidy/examples", "".join(findings(HERE.parents[1])))


if __name__ == "__main__":
    unittest.main()
