#!/usr/bin/env python3
"""Checks the style of the tree that no compiler checks, one line a finding.

Usage: tidy.py [root]. Exit code 0 when there is nothing to say.
"""

import sys
from pathlib import Path

sys.dont_write_bytecode = True

import banned  # noqa: E402
import commits  # noqa: E402
import docs  # noqa: E402
import headers  # noqa: E402
import house  # noqa: E402
import layers  # noqa: E402
import lengths  # noqa: E402
import listed  # noqa: E402
import literals  # noqa: E402
import plain  # noqa: E402
import preferences  # noqa: E402
import programs  # noqa: E402
import words  # noqa: E402
from tree import Tree  # noqa: E402

CHECKS = (layers, banned, listed, lengths, literals, docs, house, headers, preferences, programs,
          words, plain, commits)


def findings(root):
    """All findings in the tree at the root, in the order of files and lines."""
    tree = Tree(root)
    return sorted(finding for check in CHECKS for finding in check.check(tree))


def main(arguments):
    root = Path(arguments[1]) if len(arguments) > 1 else Path(__file__).resolve().parents[2]
    found = findings(root)
    for finding in found:
        print(finding)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
