"""What README.md and docs/ name is there: paths of the tree in backticks, links, headings."""

import posixpath
import re

from tree import Finding

RULE = "docs"
CODE_SPAN = re.compile(r"`([^`]+)`")
LINK = re.compile(r"\]\(([^)\s]+)\)")
PATH = re.compile(r"(?:\./)?[\w.@+*{},-]+(?:/[\w.@+*{},-]*)*")
ALTERNATIVES = re.compile(r"\{([^{}]*)\}")
GENERATED = {"build"}


def _expanded(path):
    """The paths that one with {several,alternatives} stands for."""
    match = ALTERNATIVES.search(path)
    if not match:
        return [path]
    return [expanded for word in match.group(1).split(",")
            for expanded in _expanded(path[:match.start()] + word + path[match.end():])]


def _tree_paths(tree, span):
    """The paths of the tree that the text of a code span names: those that begin in it."""
    word = span.split()[0] if span.split() else ""
    word = re.sub(r":\d+$", "", word)
    first = word.removeprefix("./").split("/")[0]
    if "/" not in word or not PATH.fullmatch(word) or first in GENERATED:
        return []
    if word.startswith("./") or tree.exists(first) or tree.exists(f"src/{first}"):
        return _expanded(word.removeprefix("./"))
    return []


def _is_there(tree, path):
    pattern = path.rstrip("/")
    return any(next(tree.root.glob(f"{base}{pattern}"), None) for base in ("", "src/"))


def _prose(tree, path):
    """The lines outside fenced blocks, which hold commands and pictures of folders."""
    fenced = False
    for line, text in tree.lines(path):
        if text.lstrip().startswith("```"):
            fenced = not fenced
        elif not fenced:
            yield line, text


def _anchors(tree, path):
    """What a link may name after the #: the headings, as the pages of a repository spell them."""
    headings = (text.lstrip("#").strip().lower() for _, text in _prose(tree, path)
                if text.startswith("#"))
    return {re.sub(r"[^\w -]", "", heading).replace(" ", "-") for heading in headings}


def _missing(tree, document, link):
    """What a link leads to that is not there; empty when all is."""
    path, _, anchor = link.partition("#")
    target = posixpath.normpath(posixpath.join(posixpath.dirname(document), path))
    target = target if path else document
    if not tree.exists(target):
        return target
    if anchor and target.endswith(".md") and anchor not in _anchors(tree, target):
        return f"{target}#{anchor}"
    return ""


def check(tree):
    documents = ["README.md"] if tree.exists("README.md") else []
    for document in documents + tree.files((".md",), ("docs",)):
        for line, text in _prose(tree, document):
            for span in CODE_SPAN.findall(text):
                for path in _tree_paths(tree, span):
                    if not _is_there(tree, path):
                        yield Finding(document, line, RULE, f"there is no {path}")
            for link in LINK.findall(text):
                missing = "" if re.match(r"\w+:", link) else _missing(tree, document, link)
                if missing:
                    yield Finding(document, line, RULE, f"there is no {missing}")
