#!/usr/bin/python3
"""Runs the desktop tests of the modules named on the command line, all of them without a name.
With --list it names their cases instead, a line each.

$VANTLE_EXECUTABLE is the program, build/release/vantle if unset; pictures of the screen go to
$VANTLE_DESKTOP_PICTURES. With GTEST_OUTPUT=xml:<directory>/ it leaves the same kind of report
there as the C++ test programs do.
"""

import os
import sys
import time
import unittest
from pathlib import Path
from xml.etree import ElementTree

HERE = Path(__file__).resolve().parent


class Result(unittest.TextTestResult):
    """Keeps for each case how it went and how long it took."""

    def __init__(self, *arguments, **options):
        super().__init__(*arguments, **options)
        self.cases = {}
        self._began = 0.0

    def startTest(self, test):
        super().startTest(test)
        self._began = time.monotonic()
        self.cases[test.id()] = {"failures": []}

    def stopTest(self, test):
        self.cases[test.id()]["time"] = time.monotonic() - self._began
        super().stopTest(test)

    def addError(self, test, err):
        super().addError(test, err)
        self._note(test, err)

    def addFailure(self, test, err):
        super().addFailure(test, err)
        self._note(test, err)

    def addSubTest(self, test, subtest, err):
        super().addSubTest(test, subtest, err)
        if err is not None:
            self._note(test, err)

    def _note(self, test, err):
        # A class or a module that can't be set up is a case of its own.
        case = self.cases.setdefault(test.id(), {"failures": [], "time": 0.0})
        case["failures"].append(str(err[1]))


def run(names):
    tests = unittest.defaultTestLoader.loadTestsFromNames(names)
    return unittest.TextTestRunner(verbosity=2, resultclass=Result).run(tests).cases


def cases_of(tests):
    """The names of all cases of a suite."""
    if isinstance(tests, unittest.TestCase):
        return [tests.id()]
    return [name for one in tests for name in cases_of(one)]


def write_report(path, cases):
    suites = ElementTree.Element("testsuites", name="desktop", tests=str(len(cases)),
                                 failures=str(sum(bool(c["failures"]) for c in cases.values())))
    suite = ElementTree.SubElement(suites, "testsuite", name="desktop")
    for name, case in cases.items():
        classname, _, method = name.rpartition(".")
        element = ElementTree.SubElement(suite, "testcase", name=method, classname=classname,
                                         status="run", result="completed",
                                         time=f"{case['time']:.3f}")
        for failure in case["failures"]:
            ElementTree.SubElement(element, "failure", message=failure)
    path.parent.mkdir(parents=True, exist_ok=True)
    ElementTree.ElementTree(suites).write(path, encoding="UTF-8", xml_declaration=True)


def main():
    sys.path.insert(0, str(HERE))
    wanted = [name for name in sys.argv[1:] if name != "--list"]
    names = wanted or sorted(path.stem for path in HERE.glob("test_*.py"))
    if "--list" in sys.argv:
        print("\n".join(cases_of(unittest.defaultTestLoader.loadTestsFromNames(names))))
        return
    cases = run(names)
    wish, _, where = os.environ.get("GTEST_OUTPUT", "").partition(":")
    if wish == "xml" and where.endswith("/"):
        name = "_".join(["desktop", *(name.removeprefix("test_") for name in names)])
        write_report(Path(where) / f"{name}.xml", cases)
    sys.exit(0 if cases and not any(case["failures"] for case in cases.values()) else 1)


if __name__ == "__main__":
    main()
