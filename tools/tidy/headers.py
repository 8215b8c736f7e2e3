"""Every header says first what it is for, and is safe to include twice."""

from tree import Finding

RULE = "headers"
FEWEST_WORDS = 3


def check(tree):
    for path in tree.files((".h",), ("src",)):
        lines = tree.text(path).splitlines()
        comment = []
        while len(comment) < len(lines) and lines[len(comment)].startswith("//"):
            comment.append(lines[len(comment)].lstrip("/ "))
        if len(" ".join(comment).split()) < FEWEST_WORDS:
            yield Finding(path, 1, RULE, "does not begin with a comment that says what it is for")
        code = [text for text in lines[len(comment):] if text.strip()]
        if not code or code[0].strip() != "#pragma once":
            yield Finding(path, len(comment) + 1, RULE, "#pragma once is not the first thing after "
                                                        "the comment")
