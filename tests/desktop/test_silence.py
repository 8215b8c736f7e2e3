"""Time away from keyboard and mouse is cut out of the session."""

import time

from harness.case import DesktopTest
from harness.records import epoch

# The shortest threshold that the preference takes; the counter is looked at every 10 s, give or
# take 2, so a silence is noticed within 22 s and input after it within 12.
THRESHOLD = 10.0
NOTICES_SILENCE = THRESHOLD + 12
NOTICES_INPUT = 12


class Silence(DesktopTest):

    def test_silence_pauses_back_to_the_last_input_and_motion_resumes(self):
        self.vantle.write_preferences(idle__thresholdSeconds=THRESHOLD)
        self.launch()
        pressed = time.time()
        self.begin_session()
        begun = time.time()
        time.sleep(3)
        before_input = time.time()
        self.desktop.nudge_pointer()
        last_input = time.time()

        paused = self.vantle.await_next_marker(NOTICES_SILENCE + 2)
        self.assertGreaterEqual(time.time() - last_input, THRESHOLD)
        stopped = epoch(paused["lastSeenAt"])
        self.assertGreaterEqual(stopped, before_input - 1.5)
        self.assertLessEqual(stopped, last_input + 1.5,
                             "counting stopped at the last input, not when it was noticed")
        self.assertGreaterEqual(paused["activeSeconds"], int(before_input - begun))
        self.assertLessEqual(paused["activeSeconds"], last_input - pressed + 1)
        self.desktop.screenshot("paused")

        nudged = time.time()
        self.desktop.nudge_pointer()
        resumed = self.vantle.await_next_marker(NOTICES_INPUT + 2)
        came_back = time.time()
        self.assertEqual(resumed["id"], paused["id"])
        self.assertEqual(resumed["activeSeconds"], paused["activeSeconds"])
        self.desktop.screenshot("resumed")

        time.sleep(2)
        after_resume = time.time() - came_back
        record = self.end_session()
        worked = record["activeSeconds"] - paused["activeSeconds"]
        self.assertGreaterEqual(worked, after_resume - 1.5)
        self.assertLessEqual(worked, time.time() - nudged + 1.5)
        length = epoch(record["endedAt"]) - epoch(record["startedAt"])
        self.assertGreaterEqual(length - record["activeSeconds"], THRESHOLD - 1)

    def test_a_session_stopped_while_paused_keeps_what_was_worked(self):
        self.vantle.write_preferences(idle__thresholdSeconds=THRESHOLD)
        self.launch()
        self.begin_session()
        paused = self.vantle.await_next_marker(NOTICES_SILENCE + 2)
        self.assertIn(paused["activeSeconds"], (0, 1))
        # Not by a key press: that would be input.
        self.assertEqual(self.vantle.stop(), 0)
        self.assert_one_record_and_no_marker()
        record, = self.vantle.sessions()
        self.assertEqual(record["activeSeconds"], paused["activeSeconds"])
        self.assertGreaterEqual(epoch(record["endedAt"]) - epoch(record["startedAt"]), THRESHOLD)
