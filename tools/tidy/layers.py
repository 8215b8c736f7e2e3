"""Includes point down only, and every edge between folders of src/ is stated in CMake.

The folders from the bottom to the top of the house. A folder may use those in lower rows. Folders
of a row do not know each other, but for launch, which alone sees the backends. What backends share
they alone see. Surfaces are seen by surfaces and by launch alone.
"""

import posixpath
import re

import cmakelists
from tree import CPP, Finding

RULE = "layers"
ROWS = (
    ("base",),
    ("platform", "surfaces/kit"),
    ("platform/bus", "tracking", "surfaces/panel"),
    ("sensing", "review/stats", "review/narrative", "ceremony/show", "surfaces/skills"),
    ("app", "surfaces/window"),
    ("review",),
    ("surfaces/*", "ceremony"),
    ("surfaces/welcome",),
    ("launch", "platform/*"),
)
RANKS = {folder: rank for rank, row in enumerate(ROWS) for folder in row}

INCLUDE = re.compile(r'\s*#\s*include\s*"([^"]+)"')
QML_IMPORT = re.compile(r"\s*import\s+(Vantle\.\w+)")


def folder_of(directory):
    """The folder of the table that a directory below src/ belongs to; empty when none."""
    parts = directory.split("/")
    pair = "/".join(parts[:2])
    if pair in RANKS or (len(parts) > 1 and f"{parts[0]}/*" in RANKS):
        return pair
    return parts[0] if parts[0] in RANKS else ""


def rank_of(folder):
    return RANKS.get(folder, RANKS.get(f"{folder.split('/')[0]}/*"))


def may_use(user, used):
    if user == used:
        return True
    if used.startswith("platform/"):
        return user == "launch" or (user.startswith("platform/") and rank_of(used) < rank_of(user))
    if used.startswith("surfaces/") and not user.startswith(("surfaces/", "launch")):
        return False
    return rank_of(used) < rank_of(user)


def _below_src(path):
    return folder_of(posixpath.dirname(path)[len("src/"):])


def _uses(tree, path, modules):
    """The files and modules of ours that a file uses: (line, how it is said, path of the used)."""
    if path.endswith(".qml"):
        for line, text in tree.lines(path):
            match = QML_IMPORT.match(text)
            if match and match.group(1) in modules:
                yield line, f"import {match.group(1)}", modules[match.group(1)].path
    else:
        for line, text in tree.lines(path):
            match = INCLUDE.match(text)
            if match and "/" in match.group(1):
                yield line, f'include "{match.group(1)}"', f"src/{match.group(1)}"


def _check_links(targets):
    for target in targets.values():
        user = _below_src(target.path)
        for name, path, line in target.links:
            used = targets.get(name) or targets.get(name.removesuffix("plugin"))
            if used is None:
                if name.startswith("vantle_"):
                    yield Finding(path, line, RULE, f"{name} is no target of src/")
            elif user and _below_src(used.path) and not may_use(user, _below_src(used.path)):
                yield Finding(path, line, RULE,
                              f"{user} may not link {_below_src(used.path)} ({name})")


def check(tree):
    targets = cmakelists.targets(tree, ("src",))
    yield from _check_links(targets)

    modules = {target.uri: target for target in targets.values() if target.uri}
    owners = {source: target for target in targets.values() for source in target.sources}
    owners |= {target.path: target for target in modules.values()}
    for path in tree.files(CPP + (".qml",), ("src",)):
        user = _below_src(path)
        if not user:
            yield Finding(path, 1, RULE, f"{posixpath.dirname(path)} has no place in the layers")
            continue
        owner = owners.get(path)
        for line, said, used_path in _uses(tree, path, modules):
            used = _below_src(used_path)
            if not used:
                yield Finding(path, line, RULE, f"{said}: no such folder in the layers")
            elif not may_use(user, used):
                yield Finding(path, line, RULE, f"{said}: {user} may not use {used}")
            elif owner and used_path in owners and owners[used_path] is not owner:
                stated = {name.removesuffix("plugin") for name, _, _ in owner.links}
                if owners[used_path].name not in stated:
                    yield Finding(path, line, RULE, f"{said}: {owner.name} does not state that "
                                                    f"it links {owners[used_path].name}")
