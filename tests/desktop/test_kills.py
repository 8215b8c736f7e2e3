"""The program is killed at random moments while the user presses keys, again and again."""

import json
import os
import random
import time
from concurrent.futures import ThreadPoolExecutor

from harness.bus import PROGRAM_NAME, activate_action, process_of
from harness.case import PICTURES, SHORTCUT, DesktopTest
from harness.desktop import Desktop
from harness.waiting import wait_until

# The rounds of a run: more of them with VANTLE_KILLS, as ./prove asks for.
ROUNDS = int(os.environ.get("VANTLE_KILLS", "200"))
# Desktops, each with a program of its own: a round mostly waits.
AT_ONCE = 4


class Victim:
    """The program of one desktop, and the moments at which it dies."""

    def __init__(self, test, desktop, chance):
        self.test, self.desktop, self.chance = test, desktop, chance
        desktop.env["VANTLE_AUTOSTART"] = "1"  # nothing pops up by itself
        self.program = test.new_program(desktop)
        self.log = b""

    def start(self):
        """Waits until the keys of the shortcut reach it: it has its name on the bus after that."""
        self.program.start()
        # The bus may not have noticed the death of the one before.
        wait_until("the program on the bus", lambda: process_of(
            self.desktop, PROGRAM_NAME) == self.program.pid)

    def some_deeds(self):
        """Presses keys and runs actions, without waiting for what comes of them."""
        for _ in range(self.chance.randrange(1, 6)):
            if self.chance.random() < 0.8:
                self.desktop.press(SHORTCUT)
            else:
                activate_action(self.desktop, self.chance.choice(("keep", "discard", "notes")))
            time.sleep(self.chance.choice((0, 0, 0.01, 0.05, 0.2)))
        time.sleep(self.chance.random() ** 3 / 2)

    def check_files(self):
        """What a kill left: all that was there, whole lines after it, each record once."""
        test, before = self.test, self.log
        self.log = self.program.log_bytes()
        test.assertTrue(self.log.startswith(before), "what was in the log is still there")
        lines = self.log.split(b"\n")
        test.assertEqual(lines[-1], b"", "only whole lines")
        ids = [json.loads(line)["id"] for line in lines[:-1]]
        test.assertEqual(len(ids), len(set(ids)), "each record once")
        self.program.marker()  # is whole, or not there

    def die(self, rounds):
        """Dies so many times; returns the number of its records."""
        for number in range(rounds):
            try:
                self.start()
                self.some_deeds()
                self.test.assertTrue(self.program.is_running(), "it ends by the kill alone")
                self.program.kill()
                self.check_files()
            except Exception as error:
                raise AssertionError(f"seed {self.test.seed}, kill {number}: {error}") from error
        records = len(self.program.sessions())
        self.check_that_work_goes_on()
        return records

    def check_that_work_goes_on(self):
        self.start()
        # Its own file of rules may just be on the way.
        wait_until("what was half written to be swept at the next start",
                   lambda: not list(self.program.data_directory.glob(".*.tmp")))
        before, marker = len(self.program.sessions()), self.program.marker()
        self.desktop.press(SHORTCUT)
        wait_until("a marker", lambda: self.program.marker() not in (None, marker))
        self.desktop.press(SHORTCUT)
        wait_until("a record", lambda: len(self.program.sessions()) > before)
        self.test.assertEqual(self.program.stop(), 0)


class Kills(DesktopTest):

    tray_kind = DesktopTest.NO_TRAY

    def setUp(self):
        super().setUp()
        self.seed = int(os.environ.get("VANTLE_LAB_SEED", random.SystemRandom().randrange(2**32)))
        print(f"first seed {self.seed}")

    def another_desktop(self, number):
        desktop = Desktop(PICTURES / f"kills-{number}", tray=False)
        self.addCleanup(desktop.stop)
        desktop.start()
        return desktop

    def test_a_kill_at_any_moment_loses_and_doubles_nothing(self):
        desktops = [self.desktop, *map(self.another_desktop, range(1, AT_ONCE))]
        victims = [Victim(self, desktop, random.Random(self.seed + number))
                   for number, desktop in enumerate(desktops)]
        with ThreadPoolExecutor(AT_ONCE) as pool:
            records = sum(pool.map(lambda victim: victim.die(ROUNDS // AT_ONCE), victims))
        kills = ROUNDS // AT_ONCE * AT_ONCE
        print(f"lab: kills: kills: {kills}\nlab: kills: records: {records}")
