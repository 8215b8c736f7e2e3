"""The table of docs/reach.md: read, and written again with the set-ups that were played."""

import re

from checks import CHECKS

BEGIN, END = "<!-- table -->", "<!-- end of the table -->"
HOLDS, FAILS, LACKS = "yes", "no", "-"
NOTE = re.compile(r"^\* (?P<setup>[^:]+): (?P<check>[^:]+): (?P<why>.*)$", re.MULTILINE)


def read(path):
    """set-up -> check -> (state, why)."""
    text = path.read_text() if path.exists() else ""
    notes = {(one["setup"], one["check"]): one["why"] for one in NOTE.finditer(text)}
    results = {}
    for line in text.partition(BEGIN)[2].partition(END)[0].splitlines():
        cells = [cell.strip() for cell in line.strip("|").split("|")]
        if len(cells) == len(CHECKS) + 1 and cells[1] in (HOLDS, FAILS, LACKS):
            results[cells[0]] = {check: (state, notes.get((cells[0], check), ""))
                                 for check, state in zip(CHECKS, cells[1:])}
    return results


def write(path, results, order):
    """Replaces the table between its marks, and the notes below it."""
    rows = [["set-up", *CHECKS], ["---"] * (len(CHECKS) + 1)]
    notes = []
    for setup in [name for name in order if name in results]:
        rows.append([setup, *(results[setup][check][0] for check in CHECKS)])
        notes += [f"* {setup}: {check}: {why}"
                  for check, (state, why) in results[setup].items() if state != HOLDS]
    table = "\n".join("| " + " | ".join(row) + " |" for row in rows)
    text = path.read_text()
    head, tail = text.partition(BEGIN)[0], text.partition(END)[2]
    path.write_text(f"{head}{BEGIN}\n{table}\n\n" + "\n".join(notes) + f"\n{END}{tail}")
