"""What the CMakeLists.txt files say: targets, their sources and their links."""

import posixpath
import re
from dataclasses import dataclass, field

COMMAND = re.compile(r"(\w+)\s*\(([^()]*)\)")
ARGUMENT = re.compile(r'"(?:\\.|[^"\\])*"|[^\s"]+')
COMMENT = re.compile(r'("(?:\\.|[^"\\])*")|#[^\n]*')
VARIABLE = re.compile(r"\$\{\w+\}")

MAKES_TARGET = {"vantle_library", "vantle_qml_module", "vantle_window", "vantle_test",
                "add_library", "add_executable", "qt_add_library", "qt_add_executable",
                "qt_add_qml_module"}
ALL_WINDOWS = "${windows}"
LINK_KEYWORDS = {"LINKS", "PRIVATE_LINKS"}
SCOPES = {"PUBLIC", "PRIVATE", "INTERFACE"}


@dataclass
class Target:
    name: str
    path: str  # of the CMakeLists.txt that makes it
    uri: str = ""  # of its QML module
    sources: set = field(default_factory=set)  # paths from the root
    links: list = field(default_factory=list)  # (name, path, line)


def commands(text):
    """Each command with its arguments as (text, line) pairs."""
    text = COMMENT.sub(lambda match: match.group(1) or "", text)
    for match in COMMAND.finditer(text):
        arguments = []
        for argument in ARGUMENT.finditer(match.group(2)):
            line = text.count("\n", 0, match.start(2) + argument.start()) + 1
            arguments.append((argument.group().strip('"'), line))
        yield match.group(1), arguments


def resolved(argument, folder):
    """The path from the root that an argument may stand for."""
    for variable, base in (("${CMAKE_SOURCE_DIR}/", ""),
                           ("${CMAKE_CURRENT_SOURCE_DIR}/", f"{folder}/")):
        if argument.startswith(variable):
            return posixpath.normpath(base + argument[len(variable):])
    return posixpath.normpath(f"{folder}/{argument}")


def _read_into(target, arguments, path):
    folder = posixpath.dirname(path)
    keyword = ""
    for text, line in arguments:
        if text.isupper() and text.isidentifier() and len(text) > 1:
            keyword = text
        elif keyword in LINK_KEYWORDS:
            target.links.append((text, path, line))
        elif keyword == "URI":
            target.uri = text
        else:
            target.sources.add(resolved(text, folder))


def targets(tree, folders):
    """All targets made below the folders, by name."""
    made, windows = {}, []
    for path in tree.files(("CMakeLists.txt",), folders):
        for name, arguments in commands(tree.text(path)):
            if not arguments:
                continue
            first = arguments[0][0]
            if name in MAKES_TARGET:
                target = made.setdefault(first, Target(first, path))
                _read_into(target, arguments[1:], path)
                windows += [first] if name == "vantle_window" else []
            elif name == "target_link_libraries" and first in made:
                made[first].links += [(text, path, line) for text, line in arguments[1:]
                                      if text not in SCOPES]
    for target in made.values():
        target.links = [(name, path, line) for text, path, line in target.links
                        for name in (windows if text == ALL_WINDOWS else [text])]
    return made


def named_paths(tree, folders):
    """Every path that a CMakeLists.txt below the folders could mean by one of its arguments, as
    patterns: the variables of a loop stand for any part of a name."""
    paths = set()
    for path in tree.files(("CMakeLists.txt",), folders):
        for _, arguments in commands(tree.text(path)):
            paths |= {VARIABLE.sub("*", resolved(text, posixpath.dirname(path)))
                      for text, _ in arguments if posixpath.splitext(text)[1]}
    return paths
