"""The program is killed at random moments while the user presses keys, again and again."""

import json
import os
import random
import time

from harness.bus import PROGRAM_NAME, activate_action, owner_of
from harness.case import SHORTCUT, DesktopTest
from harness.waiting import wait_until

# The rounds of a run: more of them with VANTLE_KILLS, as ./prove asks for.
ROUNDS = int(os.environ.get("VANTLE_KILLS", "12"))


class Kills(DesktopTest):

    tray_kind = DesktopTest.NO_TRAY

    def setUp(self):
        super().setUp()
        self.desktop.env["VANTLE_AUTOSTART"] = "1"  # nothing pops up by itself
        self.seed = int(os.environ.get("VANTLE_LAB_SEED", random.SystemRandom().randrange(2**32)))
        self.chance = random.Random(self.seed)
        print(f"first seed {self.seed}")

    def await_program(self):
        """Waits until the keys of the shortcut reach it: it has its name on the bus after that."""
        wait_until("the program on the bus", lambda: owner_of(self.desktop, PROGRAM_NAME))

    def some_deeds(self):
        """Presses keys and runs actions, without waiting for what comes of them."""
        for _ in range(self.chance.randrange(1, 6)):
            if self.chance.random() < 0.8:
                self.desktop.press(SHORTCUT)
            else:
                activate_action(self.desktop, self.chance.choice(("keep", "discard", "notes")))
            time.sleep(self.chance.choice((0, 0, 0.01, 0.05, 0.2)))
        time.sleep(self.chance.random() ** 3 / 2)

    def check_files(self, before):
        """What a kill left: all that was there, whole lines after it, each record once."""
        log = self.vantle.log_bytes()
        self.assertTrue(log.startswith(before), "what was in the log is still there")
        lines = log.split(b"\n")
        self.assertEqual(lines[-1], b"", "only whole lines")
        ids = [json.loads(line)["id"] for line in lines[:-1]]
        self.assertEqual(len(ids), len(set(ids)), "each record once")
        self.vantle.marker()  # is whole, or not there
        return log

    def test_a_kill_at_any_moment_loses_and_doubles_nothing(self):
        log, sessions = b"", 0
        for number in range(ROUNDS):
            with self.subTest(seed=self.seed, kill=number):
                self.vantle.start()
                self.await_program()
                self.some_deeds()
                self.vantle.kill()
                log = self.check_files(log)
                sessions = len(self.vantle.sessions())
        print(f"lab: kills: kills: {ROUNDS}\nlab: kills: records: {sessions}")
        self.vantle.start()
        self.await_program()
        left = [path.name for path in self.vantle.data_directory.glob(".*.tmp")]
        self.assertEqual(left, [], "what was half written is swept at the next start")
        before = len(self.vantle.sessions())
        self.desktop.press(SHORTCUT)
        wait_until("a marker", self.vantle.marker)
        self.desktop.press(SHORTCUT)
        wait_until("a record", lambda: len(self.vantle.sessions()) > before)
        self.assertEqual(self.vantle.stop(), 0)
