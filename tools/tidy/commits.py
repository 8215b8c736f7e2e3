"""Commit subjects read `area: imperative summary`, in at most 60 columns.

A tree without history (an archive, a shallow clone, no git) has nothing to check.
"""

import re
import subprocess
from datetime import datetime
from pathlib import Path

from tree import Finding

RULE = "commits"
# Author date of the first commit that follows the form. A rebase keeps it, unlike the hash.
SINCE = "2026-11-22T02:10:07+00:00"
COLUMNS = 60
AREA = re.compile(r"[a-z][a-z0-9]*(?:, [a-z][a-z0-9]*)?: (?P<verb>\S+)")
# Past, gerund and third person. The base forms below end like one of them.
OTHER_FORMS = re.compile(r"(?:ed|ing|[^s]s)$")
BASE_FORMS = {"bring", "embed", "feed", "focus", "need", "ping", "shed", "speed", "string"}


def fault(subject):
    """What is wrong with the subject; empty when nothing is."""
    if len(subject) > COLUMNS:
        return f"{len(subject)} columns; {COLUMNS} are the most"
    match = AREA.match(subject)
    if not match or subject.endswith("."):
        return "not of the form `area: imperative summary`"
    verb = match.group("verb")
    if verb != verb.lower() or (OTHER_FORMS.search(verb) and verb not in BASE_FORMS):
        return f"begins with {verb}, not with a lower-case imperative"
    return ""


def _git(root, *words):
    return subprocess.run(["git", "-C", str(root), *words], check=True, text=True,
                          capture_output=True).stdout


def _subjects(root):
    """The short hash and the subject of each commit since SINCE, newest first."""
    try:
        if Path(_git(root, "rev-parse", "--show-toplevel").strip()).resolve() != root.resolve():
            return
        log = _git(root, "log", "--no-merges", "--format=%at %h %s")
    except (OSError, subprocess.CalledProcessError):
        return
    since = datetime.fromisoformat(SINCE).timestamp()
    for line in log.splitlines():
        written, commit, subject = line.split(" ", 2)
        if float(written) >= since:
            yield commit, subject


def check(tree):
    for commit, subject in _subjects(tree.root):
        wrong = fault(subject)
        if wrong:
            yield Finding(f"commit {commit}", 1, RULE, f'"{subject}": {wrong}')
