#!/usr/bin/python3
"""release_test.py <source tree>: the version is the same wherever it stands, and tools/release
keeps it so."""

import re
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path
from xml.etree import ElementTree

SOURCE = Path()
CHANGELOG = "packaging/debian/changelog"
METAINFO = "packaging/local.vantle.Vantle.metainfo.xml.in"
PLACES = ("CMakeLists.txt", "README.md", CHANGELOG, METAINFO)


class Release(unittest.TestCase):

    def setUp(self):
        directory = tempfile.TemporaryDirectory(prefix="vantle-release.")
        self.addCleanup(directory.cleanup)
        self.root = Path(directory.name)
        for place in PLACES:
            (self.root / place).parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(SOURCE / place, self.root / place)

    def release(self, *arguments, root=None):
        return subprocess.run([SOURCE / "tools/release", "--root", root or self.root, *arguments],
                              capture_output=True, text=True, check=False)

    def texts(self):
        return [(self.root / place).read_text("utf-8") for place in PLACES]

    def test_this_tree_tells_one_version(self):
        told = self.release(root=SOURCE)
        self.assertEqual((told.returncode, told.stdout), (0, ""))

    def test_release_is_told_everywhere_with_one_date(self):
        before = self.texts()
        told = self.release("7.0.1", "Counts calls & videos.", "Shows in bars.")
        self.assertEqual((told.returncode, told.stdout, told.stderr), (0, "", ""))
        project, readme, changelog, metainfo = self.texts()
        self.assertIn("project(Vantle VERSION 7.0.1 ", project)
        self.assertIn("vantle_7.0.1_amd64.deb", readme)
        self.assertTrue(changelog.startswith(
            "vantle (7.0.1) unstable; urgency=low\n\n"
            "  * Counts calls & videos.\n  * Shows in bars.\n\n -- The Vantle developers "))
        self.assertTrue(changelog.endswith("\n\n" + before[2]))
        releases = ElementTree.fromstring(metainfo).findall("releases/release")
        self.assertEqual(releases[0].get("version"), "7.0.1")
        self.assertEqual([item.text for item in releases[0].iterfind("description/ul/li")],
                         ["Counts calls & videos.", "Shows in bars."])
        self.assertEqual(len(releases), len(re.findall("<release ", before[3])) + 1)

    def test_what_differs_is_named(self):
        for place in PLACES[1:]:
            path = self.root / place
            text = path.read_text("utf-8")
            path.write_text(re.sub(r"(vantle_|vantle \(|<release version=\")\d+", r"\g<1>99", text),
                            "utf-8")
            told = self.release()
            self.assertEqual(told.returncode, 1)
            self.assertIn(place, told.stdout)
            path.write_text(text, "utf-8")

    def test_wrong_versions_change_nothing(self):
        before = self.texts()
        for arguments in (("0.0.1", "Older."), ("7.1", "Short."), ("9.9.9",)):
            self.assertNotEqual(self.release(*arguments).returncode, 0)
            self.assertEqual(self.texts(), before)


if __name__ == "__main__":
    SOURCE = Path(sys.argv[1]).resolve()
    unittest.main(argv=sys.argv[:1])
