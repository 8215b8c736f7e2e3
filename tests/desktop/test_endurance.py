"""Sessions with their ceremonies, one after the other, and windows in between: the program holds no
more memory, files, threads and windows in the end than after the first."""

import os
from pathlib import Path

from harness.ceremony import CeremonyCase
from harness.case import DesktopTest
from harness.waiting import wait_until

# Sessions of a run: more of them with VANTLE_ENDURANCE, as ./prove asks for.
SESSIONS = int(os.environ.get("VANTLE_ENDURANCE", "3"))
WARM_UP = 1
MAY_KEEP = 5 * 1024  # KB


class Endurance(CeremonyCase):

    tray_kind = DesktopTest.NO_TRAY

    def play_session(self):
        """A start and an end, each with its ceremony up to the end."""
        before = len(self.vantle.sessions())
        self.press_and_play()
        wait_until("the end of the show", lambda: not self.overlays())
        self.end_session()
        wait_until("the end of the show", lambda: not self.overlays())
        self.assertEqual(len(self.vantle.sessions()), before + 1)

    def held(self):
        """What the program holds: open files, threads, top-level windows, KB of memory."""
        process = Path("/proc", str(self.vantle.pid))
        memory = next(int(line.split()[1]) for line in
                      (process / "smaps_rollup").read_text().splitlines()
                      if line.startswith("Rss:"))
        tree = self.desktop.tool("xwininfo", "-root", "-tree").decode(errors="replace").lower()
        return {"files": len(list((process / "fd").iterdir())),
                "threads": len(list((process / "task").iterdir())),
                "windows": sum('"vantle"' in line for line in tree.splitlines()),
                "memory": memory}

    def test_sessions_leave_nothing_behind(self):
        self.desktop.env["VANTLE_AUTOSTART"] = "1"
        self.launch()
        for _ in range(WARM_UP):
            self.play_session()
        first = self.held()

        def grown():
            now = self.held()
            may = dict.fromkeys(now, 0) | {"memory": MAY_KEEP}
            return {what: (first[what], now[what]) for what in now
                    if now[what] > first[what] + may[what]}

        for _ in range(SESSIONS):
            self.play_session()
        print(f"\nlab: endurance: sessions: {SESSIONS}")
        # What the last session took is given back a moment later.
        try:
            wait_until("all given back", lambda: not grown())
        except AssertionError:
            self.fail(f"before and after {SESSIONS} sessions: {grown()}")
