#!/usr/bin/env python3
"""docs/architecture.md shows the layers and folders of src/ as they are.

Usage: house.py. Writes the table between its two marks, from the rows of layers.py and from the
comment at the head of each folder's CMakeLists.txt. The check compares.
"""

import posixpath
import sys
from pathlib import Path

sys.dont_write_bytecode = True

import layers  # noqa: E402
from tree import Finding, Tree  # noqa: E402

RULE = "house"
PAGE = "docs/architecture.md"
BEGIN = "<!-- begin: tools/tidy/house.py -->"
END = "<!-- end -->"


def _comment(tree, path):
    """The comment that a file begins with, as one line."""
    words = []
    for _, text in tree.lines(path):
        if not text.startswith("#"):
            break
        words.append(text.removeprefix("#").strip())
    return " ".join(words)


def _folders(tree):
    """Each folder of a layer with its subfolders: (layer, folder, its CMakeLists.txt)."""
    for path in tree.files(("/CMakeLists.txt",), ("src",)):
        folder = posixpath.dirname(path).removeprefix("src").lstrip("/")
        owner = layers.folder_of(folder)
        if owner:
            yield layers.rank_of(owner), folder, path


def table(tree):
    """The lines between the marks."""
    rows = ["| layer | folder of `src` | what stands there |", "|---|---|---|"]
    for rank, folder, path in sorted(_folders(tree)):
        rows.append(f"| {rank} | `{folder}` | {_comment(tree, path)} |")
    return rows


def _marked(tree):
    """The lines of the page, and where the table begins and ends in them; None without marks."""
    lines = tree.text(PAGE).split("\n")
    if BEGIN not in lines or END not in lines:
        return lines, None
    return lines, (lines.index(BEGIN) + 1, lines.index(END))


def check(tree):
    if not tree.exists(PAGE):
        return
    for _, folder, path in _folders(tree):
        if not _comment(tree, path):
            yield Finding(path, 1, RULE, f"begins with no comment that says what {folder} is")
    lines, place = _marked(tree)
    if place is None:
        yield Finding(PAGE, 1, RULE, f"has no table of the layers between {BEGIN} and {END}")
    elif lines[slice(*place)] != table(tree):
        yield Finding(PAGE, place[0], RULE, "the table is an old one: run tools/tidy/house.py")


def main():
    tree = Tree(Path(__file__).resolve().parents[2])
    lines, place = _marked(tree)
    if place is None:
        return f"{PAGE} lacks {BEGIN} or {END}"
    lines[slice(*place)] = table(tree)
    (tree.root / PAGE).write_text("\n".join(lines), encoding="utf-8")
    return 0


if __name__ == "__main__":
    sys.exit(main())
