"""Comments, names and documents hold none of the words that the style rules out.

docs/development.md has the style. Literals are not read: they quote what the program shows.
"""

import re

from tree import CODE_FOLDERS, CPP, Finding

RULE = "plain"
# What to write instead, by the word that a stranger stumbles over.
WORDS = {
    "anew": "again",
    "anybody": "the user, or what it is",
    "anyone": "the user, or what it is",
    "besides": "also",
    "deaf": "what does not reach it, and when",
    "dear": "slow, or large, with a figure",
    "heir": "what takes over",
    "heirs": "what takes over",
    "nobody": "no one thing by its name",
    "shall": "must, or the plain present",
    "somebody": "the user",
    "thereby": "so",
    "whoever": "the caller, the owner, the user",
}
WORD = re.compile(rf"\b(?:{'|'.join(WORDS)})\b", re.IGNORECASE)
IDENTIFIER = re.compile(r"\b[A-Za-z_]\w*\b")
PARTS = re.compile(r"[A-Z]?[a-z]+|[A-Z]+(?![a-z])")
LITERAL = re.compile(r'R"(?P<mark>[^(\s]*)\(.*?\)(?P=mark)"|"(?:\\.|[^"\\\n])*"'
                     r"|'(?:\\.|[^'\\\n])*'", re.DOTALL)
# A quote in a comment begins no literal.
COMMENT_OR_LITERAL = re.compile(rf"(?P<comment>//[^\n]*|/\*.*?\*/)|{LITERAL.pattern}", re.DOTALL)
SCRIPT_TEXT = re.compile(
    r'(?P<comment>(?:(?<=\s)|^)#[^\n]*|^[ ]*""".*?""")|""".*?"""|"(?:\\.|[^"\\\n])*"'
    r"|(?<![\w'])'(?:\\.|[^'\\\n])*'(?!\w)", re.DOTALL | re.MULTILINE)
# Written by a check, from what the program says.
GENERATED = ("docs/reader.md", "docs/gallery/")
COMMANDS = ("run", "test", "measure")
PAGES = ("README.md",)
HERE = "tools/tidy/plain.py"
SCRIPTS = (".py", ".cmake", "CMakeLists.txt", ".sh")


def _without_literals(text, pattern):
    return pattern.sub(lambda match: match.group() if match.group("comment")
                       else '""' + "\n" * match.group().count("\n"), text)


def _faults(text):
    for number, line in enumerate(text.splitlines(), start=1):
        spoken = {match.group().lower() for match in WORD.finditer(line)}
        spoken |= {part.lower() for name in IDENTIFIER.findall(line)
                   for part in PARTS.findall(name.replace("_", " ")) if part.lower() in WORDS}
        for word in sorted(spoken):
            yield number, word


def _sources(tree):
    """Each file that is read, with the pattern of what is left out of it."""
    for path in tree.files(CPP + (".qml", ".js")):
        yield path, COMMENT_OR_LITERAL
    for path in tree.files(SCRIPTS, CODE_FOLDERS + ("packaging",)):
        yield path, SCRIPT_TEXT
    for path in tree.files(("",), ("tools",)) + [name for name in COMMANDS if tree.exists(name)]:
        if path != HERE and not path.endswith(".txt"):
            yield path, SCRIPT_TEXT
    for path in tree.files((".md",), ("docs",)) + [name for name in PAGES if tree.exists(name)]:
        if not path.startswith(GENERATED):
            yield path, None


def check(tree):
    for path, left_out in _sources(tree):
        text = tree.text(path)
        if left_out:
            text = _without_literals(text, left_out)
        for line, word in _faults(text):
            yield Finding(path, line, RULE, f"{word}: say {WORDS[word]}")
