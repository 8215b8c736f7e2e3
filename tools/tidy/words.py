"""Every text that a user reads has words that are true on this desktop, in each catalogue.

The sources are written for another desktop. resources/translations/vantle_en.ts has an entry for
each one that this makes untrue, and no others; a catalogue of another language has them all.
lupdate tells which texts there are.
"""

import functools
import os
import re
import shutil
import subprocess
import tempfile
import xml.etree.ElementTree as ElementTree
from pathlib import Path

from tree import CPP, Finding

RULE = "words"
CATALOGUES = "resources/translations"
OWN = f"{CATALOGUES}/vantle_en.ts"

# Of the other desktop: its name, its keys, its places.
# Within an identifier ("notch.intro.flashed") they are none.
FOREIGN = re.compile(r"[⌘⌥]|(?<![\w.])(?:Mac|macOS|option command|Finder|Dock|menu bar|notch"
                     r"|Shortcuts app|Applications|System Settings|login item|Xcode)(?!\w|\.\w)")
LITERALS = re.compile(r'//[^\n]*|\'(?:\\.|[^\'\\\n])*\'|(?P<text>"(?:\\.|[^"\\\n])*"'
                      r'(?:\s*\+?\s*"(?:\\.|[^"\\\n])*")*)')
PART = re.compile(r'"((?:\\.|[^"\\\n])*)"')
# What is told to a language model, and is no text of the program.
HOMES = ("src/review/narrative/",)


def _messages(text):
    """Yields context, source, comment, translation (None while unfinished), location and line."""
    positions = [match.start() for match in re.finditer(r"<source", text)]
    lines = iter(text.count("\n", 0, position) + 1 for position in positions)
    for context in ElementTree.fromstring(text).iter("context"):
        for message in context.iter("message"):
            translation = message.find("translation")
            forms = [form.text or "" for form in translation.iter("numerusform")]
            finished = translation.get("type") is None
            words = forms or [translation.text or ""]
            yield (context.findtext("name"), message.findtext("source"),
                   message.findtext("comment") or ""), words if finished else None, \
                message.find("location"), next(lines)


@functools.lru_cache(maxsize=None)
def _extracted(root):
    """The texts of src as key -> (path, line), by lupdate."""
    lupdate = shutil.which("lupdate", path=f"/usr/lib/qt6/bin:{os.environ.get('PATH', '')}")
    if not lupdate:
        raise FileNotFoundError("lupdate is missing: it is in the package qt6-l10n-tools")
    with tempfile.TemporaryDirectory() as folder:
        file = Path(folder) / "all.ts"
        subprocess.run([lupdate, "-silent", "-locations", "absolute", "-I", "src", "src",
                        "-extensions", "cpp,h,qml", "-ts", file], cwd=root, check=True,
                       capture_output=True)
        found = {}
        for key, _, location, _ in _messages(file.read_text(encoding="utf-8")):
            path = (Path(folder) / location.get("filename")).resolve()
            found[key] = (path.relative_to(Path(root).resolve()).as_posix(),
                          int(location.get("line")))
        return found


def _catalogue(tree, path):
    return {key: (words, line) for key, words, _, line in _messages(tree.text(path))}


def _untranslatable(tree, sources):
    """Literals with a word of the other desktop that no catalogue can mend."""
    for path in tree.files(CPP + (".qml",), ("src",)):
        if path.startswith(HOMES):
            continue
        text = tree.text(path)
        for match in LITERALS.finditer(text):
            if not match.group("text"):
                continue
            words = "".join(PART.findall(match.group("text"))).replace('\\"', '"')
            if FOREIGN.search(words) and not words.startswith("/") and words not in sources:
                line = text.count("\n", 0, match.start()) + 1
                yield Finding(path, line, RULE, f'"{words}": not translatable')


def check(tree):
    catalogues = [path for path in (f"{CATALOGUES}/{name}" for name in
                                    (os.listdir(tree.root / CATALOGUES)
                                     if tree.exists(CATALOGUES) else ()))
                  if path.endswith(".ts")]
    if not catalogues:
        return
    extracted = _extracted(tree.root)
    yield from _untranslatable(tree, {source for _, source, _ in extracted})
    for catalogue in sorted(catalogues):
        entries = _catalogue(tree, catalogue)
        for key, (path, line) in extracted.items():
            if key in entries:
                continue
            if catalogue != OWN:
                yield Finding(path, line, RULE, f'"{key[1]}": not in {catalogue}')
            elif FOREIGN.search(key[1]):
                yield Finding(path, line, RULE, f'"{key[1]}": not true on this desktop; {OWN} '
                              "needs an entry")
        for key, (words, line) in entries.items():
            if key not in extracted:
                yield Finding(catalogue, line, RULE, f'"{key[1]}": src has no such text')
            elif not words or not all(words):
                yield Finding(catalogue, line, RULE, f'"{key[1]}": not translated')
            elif catalogue == OWN and words == [key[1]]:
                yield Finding(catalogue, line, RULE, f'"{key[1]}": the same as the source')
            elif any(FOREIGN.search(form) for form in words):
                yield Finding(catalogue, line, RULE, f'"{key[1]}": its translation has a word '
                              "of another desktop")
