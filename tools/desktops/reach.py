"""The tables of docs/reach.md: read, and written again with the set-ups that were played."""

import re

HOLDS, FAILS, LACKS = "yes", "no", "-"
NOTE = re.compile(r"^\* (?P<setup>[^:]+): (?P<check>[^:]+): (?P<why>.*)$", re.MULTILINE)


class Table:
    """One table, between its marks; its columns are the checks."""

    def __init__(self, path, mark, checks):
        self._path = path
        self._begin, self._end = f"<!-- {mark} -->", f"<!-- end of the {mark} -->"
        self._checks = list(checks)

    def read(self):
        """set-up -> check -> (state, why)."""
        text = self._path.read_text().partition(self._begin)[2].partition(self._end)[0]
        notes = {(one["setup"], one["check"]): one["why"] for one in NOTE.finditer(text)}
        results = {}
        for line in text.splitlines():
            cells = [cell.strip() for cell in line.strip("|").split("|")]
            if len(cells) == len(self._checks) + 1 and cells[1] in (HOLDS, FAILS, LACKS):
                results[cells[0]] = {check: (state, notes.get((cells[0], check), ""))
                                     for check, state in zip(self._checks, cells[1:])}
        return results

    def write(self, results, order):
        """Replaces the table and the notes below it."""
        rows = [["set-up", *self._checks], ["---"] * (len(self._checks) + 1)]
        notes = []
        for setup in [name for name in order if name in results]:
            rows.append([setup, *(results[setup][check][0] for check in self._checks)])
            notes += [f"* {setup}: {check}: {why}"
                      for check, (state, why) in results[setup].items() if state != HOLDS]
        table = "\n".join("| " + " | ".join(row) + " |" for row in rows)
        text = self._path.read_text()
        head, tail = text.partition(self._begin)[0], text.partition(self._end)[2]
        self._path.write_text(f"{head}{self._begin}\n{table}\n\n" + "\n".join(notes) +
                              f"\n{self._end}{tail}")
