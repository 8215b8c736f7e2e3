"""What a process asked the kernel for, as strace wrote it down."""

import os
import re
from pathlib import Path

CALLS = "open,openat,openat2,creat,socket,connect,bind,execve,mkdir,mkdirat,rename,renameat," \
        "renameat2,link,linkat,symlink,symlinkat,truncate"

# One finished call: name, arguments, result.
LINE = re.compile(r"^\d+\s+(\w+)\((.*)\)\s+= (-?\d+|\?)")
BEGUN = re.compile(r"^(\d+)\s+(\w+\(.*) <unfinished \.\.\.>$")
RESUMED = re.compile(r"^(\d+)\s+<\.\.\. \w+ resumed>(.*)$")
WORDS = re.compile(r'"((?:[^"\\]|\\.)*)"')
FOR_WRITING = re.compile(r"\bO_(?:WRONLY|RDWR|CREAT|TRUNC|APPEND)\b")
MAKES_NAMES = {"creat", "mkdir", "mkdirat", "rename", "renameat", "renameat2", "link", "linkat",
               "symlink", "symlinkat", "truncate"}


class Trace:
    """Of one run of a program; readable once the program has ended."""

    def __init__(self, directory, home):
        self._file = Path(directory, f"trace-{os.urandom(4).hex()}")
        self._home = str(home)

    @property
    def command(self):
        """What the program is started through; it stays the process that is waited for."""
        return ["strace", "-D", "-f", "-qq", "-s", "400", "-e", f"trace={CALLS}",
                "-o", str(self._file)]

    def calls(self):
        """(name, arguments, result) of each call that was answered, in order."""
        begun = {}
        for line in self._file.read_text(errors="replace").splitlines():
            if found := BEGUN.match(line):
                begun[found[1]] = found[2]
                continue
            if found := RESUMED.match(line):
                line = f"{found[1]} {begun.pop(found[1], '')}{found[2]}"
            if found := LINE.match(line):
                yield found[1], found[2], -1 if found[3] == "?" else int(found[3])

    def sockets(self):
        """The families of the sockets that were made or connected."""
        return {family for name, arguments, result in self.calls() if name in ("socket", "connect")
                for family in re.findall(r"\b(?:AF|PF)_(\w+)", arguments)[:1]}

    def children(self):
        """The names of the programs that were started, the traced one first."""
        names = []
        for name, arguments, result in self.calls():
            if name == "execve" and result == 0:
                names.append(Path(WORDS.search(arguments)[1]).name)
        return names

    def written(self):
        """The paths that were opened for writing, made or renamed to."""
        paths = set()
        for name, arguments, result in self.calls():
            opened = name.startswith("open") and FOR_WRITING.search(arguments)
            if result >= 0 and (opened or name in MAKES_NAMES):
                paths |= {self._told(path) for path in WORDS.findall(arguments)}
        return paths

    def opened(self):
        """The places that were opened: files of the user by name, those of the system by folder."""
        return {_place(self._told(path)) for name, arguments, result in self.calls()
                if name.startswith("open") and result >= 0 for path in WORDS.findall(arguments)[:1]}

    def _told(self, path):
        """Without what differs from run to run."""
        path = os.path.normpath(path.replace(self._home, "~"))
        path = re.sub(r"[0-9A-Fa-f]{8}(-[0-9A-Fa-f]{4}){3}-[0-9A-Fa-f]{12}", "{id}", path)
        path = re.sub(r"^/proc/(self|\d+)/(task/\d+/)?", "/proc/{id}/", path)
        return re.sub(r"\.\w{6}$", ".{id}", path) if path.startswith("~/config") else path


def _place(path):
    if path.startswith("~/cache/vantle"):
        return "~/cache/vantle"
    if path.startswith(("~", "/proc")):
        return path
    return "/".join(path.split("/")[:3])
