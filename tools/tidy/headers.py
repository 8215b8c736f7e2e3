"""A header of src opens with one line that says what it holds, and includes itself once.

The line is a noun phrase, or an act of the type ("Arbitrates ..."), of at most twelve words, with
a full stop. The check looks for what such a phrase never has: a first word that opens a clause,
and a finite verb of being outside of a relative clause.
"""

import re

from tree import Finding

RULE = "headers"
WORDS = range(2, 13)
CLAUSE = re.compile(r"(?:What|Who|Whose|How|Whether|When|Where|Why|Which|That|This|These|There|It"
                    r"|If|Here|As|So|Is|Are)\b")
RELATIVE = re.compile(r"[ ,](?:that|which|who|whose|where|when|how)\b.*")
BEING = re.compile(r"\b(?:is|are|was|were|has|have|does|can|must|will)\b")


def _fault_of_opening(line):
    """What is wrong with the first line; empty when nothing is."""
    if not line.startswith("// "):
        return "does not begin with a comment that says what it holds"
    phrase = line.removeprefix("// ")
    if not phrase.endswith(".") or len(phrase.split()) not in WORDS:
        return f"its first line is not a phrase of {WORDS[0]} to {WORDS[-1]} words with a full stop"
    if CLAUSE.match(phrase) or BEING.search(RELATIVE.sub("", phrase)):
        return "its first line is a sentence, not a noun phrase"
    return ""


def check(tree):
    for path in tree.files((".h",), ("src",)):
        lines = tree.text(path).splitlines()
        fault = _fault_of_opening(lines[0] if lines else "")
        if fault:
            yield Finding(path, 1, RULE, fault)
        comment = 0
        while comment < len(lines) and lines[comment].startswith("//"):
            comment += 1
        code = [text for text in lines[comment:] if text.strip()]
        if not code or code[0].strip() != "#pragma once":
            yield Finding(path, comment + 1, RULE,
                          "#pragma once is not the first thing after the comment")
