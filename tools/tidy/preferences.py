"""Every preference is declared in one header, and described in one document.

A declaration is `inline constexpr Preference<Type> name{"key", default, {limits}};`. Keys stand
nowhere else in src, and only the header's declarations reach the store, so no default does either.
"""

import re

from tree import CPP, Finding

RULE = "preferences"
HEADER = "src/tracking/Settings.h"
DOCUMENT = "docs/formats/preferences.ini.md"

DECLARATION = re.compile(r"inline constexpr (Preference<\w+>|WeekFlag) \w+\{\s*([^;]*?)\s*\};")
DECLARED = re.compile(r"^inline constexpr ", re.MULTILINE)
VALUE = re.compile(r'"(?P<key>[^"]+)"(?:,\s*(?P<default>[^{]+?))?(?:,\s*\{(?P<limits>.*)\})?',
                   re.DOTALL)
LIMIT = re.compile(r"\.(least|most) = (?:PreferenceLimits<double>::)?([\w.]+)")
ROW = re.compile(r"^\| `([^`]+)` \| (\w+) \| `?(\w+)`? \| ([^|]*)\|")
STORED = re.compile(r"[pP]references(?:\(\))?(?:\.|->)"
                    r"(?:boolean|integer|number|string|set(?:Boolean|Integer|Number|String))\(")
# Types that stand as themselves; others are enumerations, which stand as the name of their value.
TYPES = {"bool": "bool", "qint64": "integer", "double": "double", "QString": "string"}


def _number(text):
    return text.removesuffix(".0")


def _limits(text):
    """The limits as the document writes them: "> 0, ≤ 24"."""
    signs = {"least": "≥", "most": "≤"}
    return ", ".join("> 0" if value == "aboveZero" else f"{signs[end]} {_number(value)}"
                     for end, value in LIMIT.findall(text or ""))


def _described(declared, value):
    """The columns of the document's row for a declaration, up to its meaning."""
    if declared == "WeekFlag":
        return (f"{value['key']}.{{year}}-{{week}}", "bool", "false", "")
    kind = declared.removeprefix("Preference<").removesuffix(">")
    default = value["default"] or "none"
    if "::" in default:
        name = default.split("::")[1]
        default = name[0].lower() + name[1:]
    return (value["key"], TYPES.get(kind, "string"), _number(default), _limits(value["limits"]))


def _line(text, at):
    return text.count("\n", 0, at) + 1


def _declarations(tree):
    """Yields the line of each declaration, and its row; None for one that can't be read."""
    text = tree.text(HEADER)
    readable = {match.start(): match for match in DECLARATION.finditer(text)}
    for begin in (match.start() for match in DECLARED.finditer(text)):
        match = readable.get(begin)
        value = VALUE.fullmatch(match.group(2)) if match else None
        yield _line(text, begin), value and _described(match.group(1), value.groupdict())


def _rows(tree):
    for line, text in tree.lines(DOCUMENT):
        match = ROW.match(text)
        if match:
            yield line, tuple(column.strip() for column in match.groups())


def _words(row):
    return ", ".join(column for column in row if column)


def _compared(declared, described):
    """A finding for each row of one list that has no equal in the other."""
    for line, row in declared:
        if row not in [other for _, other in described]:
            yield Finding(HEADER, line, RULE, f"{DOCUMENT} has no row of {_words(row)}")
    for line, row in described:
        if row not in [other for _, other in declared]:
            yield Finding(DOCUMENT, line, RULE, f"{HEADER} does not declare {_words(row)}")


def _elsewhere(tree, keys):
    literal = re.compile("|".join(f'"{re.escape(key)}' for key in keys))
    for path in tree.files(CPP + (".qml",), ("src",)):
        if path == HEADER or path.startswith("src/platform/"):
            continue
        for line, text in tree.lines(path):
            if literal.search(text):
                yield Finding(path, line, RULE, f"a key of its own: {HEADER} has it")
            if STORED.search(text):
                yield Finding(path, line, RULE, f"goes past {HEADER} to the store")


def check(tree):
    if not tree.exists(HEADER):
        return
    found = list(_declarations(tree))
    for line, row in found:
        if row is None:
            yield Finding(HEADER, line, RULE, "not in the form of a declaration")
    declared = [(line, row) for line, row in found if row is not None]
    yield from _compared(declared, list(_rows(tree)))
    yield from _elsewhere(tree, [row[0].split("{")[0] for _, row in declared])
