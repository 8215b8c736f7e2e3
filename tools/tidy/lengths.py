"""Files and lines stay short.

Files that were longer than the limit when it was set are listed in allowed_long.txt with their
length. The list may only shrink: such a file must not grow, and its number follows it down.
"""

from tree import CODE_FOLDERS, CPP, Finding

RULE = "length"
LINE = 100
FILE = 400
LONGEST_FILE = 600
ALLOWED = "tools/tidy/allowed_long.txt"


def _file_length(path, length, allowed):
    if path.endswith(".qml") or length > LONGEST_FILE:
        limit = FILE if path.endswith(".qml") else LONGEST_FILE
        if length > limit:
            return f"{length} lines; {limit} are the most"
    elif length > FILE and path not in allowed:
        return f"{length} lines; split it, {FILE} are enough"
    elif path in allowed and length > allowed[path][0]:
        return f"has grown from {allowed[path][0]} to {length} lines; split it"
    return None


def check(tree):
    allowed = tree.allowances(ALLOWED)
    for path, (limit, number) in allowed.items():
        length = len(tree.lines(path)) if tree.exists(path) else 0
        if length <= FILE:
            yield Finding(ALLOWED, number, RULE, f"{path} is short or gone: take it off the list")
        elif length < limit:
            yield Finding(ALLOWED, number, RULE, f"{path} is down to {length} lines: say so here")

    for path in tree.files(CPP + (".qml", ".py"), CODE_FOLDERS + ("tools",)):
        for line, text in tree.lines(path):
            if len(text) > LINE:
                yield Finding(path, line, RULE, f"{len(text)} columns; {LINE} are the most")
        if not path.endswith(".py"):
            message = _file_length(path, len(tree.lines(path)), allowed)
            if message:
                yield Finding(path, 1, RULE, message)
