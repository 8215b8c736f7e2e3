"""The source tree as the checks see it: which files there are, and what is in them."""

import functools
import os
import re
from dataclasses import dataclass
from pathlib import Path

CODE_FOLDERS = ("src", "tests", "bench", "fuzz", "demo")
CPP = (".h", ".cpp")
SKIPPED = {"build", ".git", "__pycache__"}
# The bad examples that the tests of these checks are about.
EXAMPLES = "tests/tidy/examples"

# Comments, and literals of text and of one character, in the order in which they hide each other.
HIDDEN = re.compile(
    r'//[^\n]*|/\*.*?\*/|R"(?P<mark>[^(\s]*)\(.*?\)(?P=mark)"'
    r'|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])*\'', re.DOTALL)


@dataclass(frozen=True, order=True)
class Finding:
    """One thing that breaks a rule, at a line (from 1) of a file named from the tree's root."""

    path: str
    line: int
    rule: str
    message: str

    def __str__(self):
        return f"{self.path}:{self.line}: {self.message} [{self.rule}]"


class Tree:
    def __init__(self, root):
        self.root = Path(root)

    @functools.cached_property
    def _paths(self):
        paths = []
        for folder, names, files in os.walk(self.root):
            here = Path(folder).relative_to(self.root).as_posix()
            names[:] = sorted(name for name in names
                              if name not in SKIPPED and f"{here}/{name}" != EXAMPLES)
            paths += [name if here == "." else f"{here}/{name}" for name in sorted(files)]
        return paths

    def files(self, suffixes, folders=CODE_FOLDERS):
        """The files below the folders whose names end so; paths from the root, in order."""
        prefixes = tuple(f"{folder}/" for folder in folders)
        return [path for path in self._paths
                if path.endswith(suffixes) and path.startswith(prefixes)]

    def exists(self, path):
        return (self.root / path).exists()

    @functools.lru_cache(maxsize=None)
    def text(self, path):
        return (self.root / path).read_text(encoding="utf-8")

    def lines(self, path):
        """The lines with their numbers, from 1."""
        return list(enumerate(self.text(path).splitlines(), start=1))

    @functools.lru_cache(maxsize=None)
    def code(self, path):
        """The lines with their numbers, comments and the inside of literals blanked out."""
        def blank(match):
            hidden = match.group()
            rest = "\n" * hidden.count("\n")
            return rest if hidden.startswith("/") else f'""{rest}'
        return list(enumerate(HIDDEN.sub(blank, self.text(path)).splitlines(), start=1))

    def allowances(self, path):
        """What a list of exceptions has, one "file number" a line, "#" before comments: as
        file -> (number, line in the list). A list that is not there is empty."""
        if not self.exists(path):
            return {}
        entries = [(line, text.split()) for line, text in self.lines(path)
                   if text.strip() and not text.startswith("#")]
        return {words[0]: (int(words[1]), line) for line, words in entries}
