"""Sessions with their ceremonies, one after the other, and windows that open and close: the program
holds no more memory, files, threads and windows in the end than after the first."""

import os
import time
from datetime import datetime, timedelta, timezone
from pathlib import Path

from harness.case import DesktopTest
from harness.ceremony import CeremonyCase
from harness.records import worked
from harness.waiting import wait_until
from harness.windows import DASHBOARD, NOTES, QUICK_LOG, SETTINGS, WRAPPED, WindowCase

# Sessions of a run, and minutes of windows: more with these variables, as ./prove asks for.
SESSIONS = int(os.environ.get("VANTLE_ENDURANCE", "3"))
MINUTES = float(os.environ.get("VANTLE_ENDURANCE_MINUTES", "0.2"))
MAY_KEEP = 5 * 1024  # KB
RECORDS = 2000


class Holding:
    """What the program holds, then and now."""

    def held(self):
        """Open files, threads, top-level windows, KB of memory."""
        process = Path("/proc", str(self.vantle.pid))
        memory = next(int(line.split()[1]) for line in
                      (process / "smaps_rollup").read_text().splitlines()
                      if line.startswith("Rss:"))
        tree = self.desktop.tool("xwininfo", "-root", "-tree").decode(errors="replace").lower()
        return {"files": len(list((process / "fd").iterdir())),
                "threads": len(list((process / "task").iterdir())),
                "windows": sum('"vantle"' in line for line in tree.splitlines()),
                "memory": memory}

    def grown_since(self, first):
        """What it holds more of than then: both numbers."""
        now = self.held()
        may = dict.fromkeys(now, 0) | {"memory": MAY_KEEP}
        return {what: (first[what], now[what]) for what in now
                if now[what] > first[what] + may[what]}

    def await_nothing_kept(self, first):
        # What went last is given back a moment later.
        try:
            wait_until("all given back", lambda: not self.grown_since(first))
        except AssertionError:
            self.fail(f"before and after: {self.grown_since(first)}")


class Endurance(Holding, CeremonyCase):

    tray_kind = DesktopTest.NO_TRAY

    def play_session(self):
        """A start and an end, each with its ceremony up to the end."""
        before = len(self.vantle.sessions())
        self.press_and_play()
        wait_until("the end of the show", lambda: not self.overlays())
        self.end_session()
        wait_until("the end of the show", lambda: not self.overlays())
        self.assertEqual(len(self.vantle.sessions()), before + 1)

    def test_sessions_leave_nothing_behind(self):
        self.desktop.env["VANTLE_AUTOSTART"] = "1"
        self.launch()
        self.play_session()
        first = self.held()
        for _ in range(SESSIONS):
            self.play_session()
        print(f"\nlab: endurance: sessions: {SESSIONS}")
        self.await_nothing_kept(first)


class Windows(Holding, WindowCase):

    tray_kind = DesktopTest.NO_TRAY

    def open_and_close_all(self):
        for window in (DASHBOARD, NOTES, SETTINGS, WRAPPED, QUICK_LOG):
            self.open(*window)
            self.close(window[1])

    def test_windows_of_a_session_leave_nothing_behind(self):
        self.desktop.env["VANTLE_AUTOSTART"] = "1"
        begin = datetime.now(timezone.utc) - timedelta(days=RECORDS)
        self.write_records([
            worked(number, begin + timedelta(days=number), 30, note=f"note {number}")
            for number in range(RECORDS)])
        self.launch()
        self.begin_session()
        self.open_and_close_all()
        first = self.held()
        rounds, until = 0, time.monotonic() + 60 * MINUTES
        while time.monotonic() < until:
            self.open_and_close_all()
            rounds += 1
        print(f"\nlab: endurance: windows: {5 * rounds}")
        self.await_nothing_kept(first)
        self.end_session()
        self.assertEqual(len(self.vantle.sessions()), RECORDS + 1)
