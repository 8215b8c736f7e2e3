"""Views take colours, lengths and times from the tokens of the look.

A number in a view is one of a few plain ones, a count, or a `readonly property` with a name of its
own, as a length is that only one view has. Views that had others when this was set are listed in
allowed_literals.txt with how many. The list may only shrink: the number follows the view down.
"""

import re

from tree import Finding

RULE = "literals"
ALLOWED = "tools/tidy/allowed_literals.txt"
PLAIN = {"0", "1", "2", "0.5", "0.0", "1.0"}

COLOR = re.compile(r'"#[0-9A-Fa-f]{3,8}"|\bQt\.(?:rgba|hsla|hsva)\b'
                   r'|\bcolor:\s*"(?!transparent")\w+"')
NUMBER = re.compile(r"(?<![\w.])\d+(?:\.\d+)?(?:e-?\d+)?(?![\w.])")
COUNT = re.compile(r"\s*(?:[\w.]+\.)?(?:order|columns|rows|maximumLineCount|maximumLength|z):")
NAMED = re.compile(r"\s*readonly property (?:real|int) (\w+):")
OF_THE_LOOK = re.compile(r"radius|time|duration|delay|opacity|fontSize|pixelSize", re.IGNORECASE)


def _literals(tree, path):
    """Each literal that belongs to the tokens: (line, what it is)."""
    raw = dict(tree.lines(path))
    for line, text in tree.code(path):
        if not raw[line].lstrip().startswith("//"):
            for match in COLOR.finditer(raw[line].split(" //")[0]):
                yield line, match.group()
        named = NAMED.match(text)
        if COUNT.match(text) or (named and not OF_THE_LOOK.search(named.group(1))):
            continue
        for match in NUMBER.finditer(text):
            if match.group() not in PLAIN:
                yield line, match.group()


def check(tree):
    allowed = tree.allowances(ALLOWED)
    for path, (count, number) in allowed.items():
        found = len(list(_literals(tree, path))) if tree.exists(path) else 0
        if found == 0:
            yield Finding(ALLOWED, number, RULE, f"{path} has none: take it off the list")
        elif found < count:
            yield Finding(ALLOWED, number, RULE, f"{path} is down to {found}: say so here")
    for path in tree.files((".qml",), ("src",)):
        if path.endswith("Tokens.qml"):
            continue
        found = list(_literals(tree, path))
        if len(found) > allowed.get(path, (0, 0))[0]:
            for line, what in found:
                yield Finding(path, line, RULE, f"{what}: a token of the look, or a property "
                                                "with a name")
