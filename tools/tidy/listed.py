"""Every source stands in a CMake list: one that does not is never built, nor tested.

A header that only tests share may do without, as long as one of them includes it.
"""

import fnmatch
import re

import cmakelists
from tree import CODE_FOLDERS, CPP, Finding

RULE = "listed"
INCLUDE = re.compile(r'^\s*#\s*include\s*"([^"]+)"', re.MULTILINE)


def check(tree):
    named = cmakelists.named_paths(tree, CODE_FOLDERS)
    included = {include for path in tree.files(CPP) for include in INCLUDE.findall(tree.text(path))}
    for path in tree.files(CPP + (".qml",)):
        shared = path.endswith(".h") and not path.startswith("src/") and \
            any(path.endswith(f"/{include}") for include in included)
        listed = any(fnmatch.fnmatchcase(path, pattern) for pattern in named)
        if not listed and not shared:
            yield Finding(path, 1, RULE, "stands in no CMakeLists.txt")
