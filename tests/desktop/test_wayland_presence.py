"""Who works in the native windows of a Wayland session, of which the X server sees nothing."""

import time

from harness.records import epoch
from harness.waiting import wait_until
from harness.wayland import WaylandTest


class Presence(WaylandTest):
    THRESHOLD = 10.0  # the shortest that the preference takes
    DWELL = 45  # seconds in another application until a session follows it

    def setUp(self):
        super().setUp()
        self.vantle.write_preferences(notch__intro__flashed="true",
                                      idle__thresholdSeconds=self.THRESHOLD)

    def begin(self):
        self.launch()
        self.toggle()
        return wait_until("a session", self.vantle.marker)

    def work(self, seconds):
        until = time.monotonic() + seconds
        while time.monotonic() < until:
            self.last_key = [time.time()]
            self.desktop.type("w")
            self.last_key.append(time.time())
            time.sleep(0.4)

    def test_silence_pauses_back_to_the_last_key_and_a_key_resumes(self):
        self.begin()
        self.work(3)
        pressed, released = self.last_key
        paused = self.vantle.await_next_marker(self.THRESHOLD + 14)
        self.assertGreaterEqual(time.time() - pressed, self.THRESHOLD - 1)
        # Counting stopped at the last input, not when it was noticed.
        self.assertGreaterEqual(epoch(paused["lastSeenAt"]), pressed - 2.5)
        self.assertLessEqual(epoch(paused["lastSeenAt"]), released + 2.5)
        self.desktop.type("w")
        resumed = self.vantle.await_next_marker(14)
        self.assertEqual(resumed["activeSeconds"], paused["activeSeconds"])
        self.toggle()
        record, = wait_until("the record", self.vantle.sessions)
        self.assertGreaterEqual(epoch(record["endedAt"]) - epoch(record["startedAt"])
                                - record["activeSeconds"], self.THRESHOLD - 1)

    def test_who_types_is_never_away(self):
        self.begin()
        began = time.monotonic()
        self.work(3 * self.THRESHOLD)
        worked = time.monotonic() - began
        self.toggle()
        record, = wait_until("the record", self.vantle.sessions)
        self.assertGreaterEqual(record["activeSeconds"], worked - 1)

    def test_work_in_a_native_application_is_filed_under_its_skill(self):
        self.install_application("gimp", "painter")
        self.begin()
        painted = self.desktop.directory / "painted"
        self.session.open("foot", "--app-id", "painter", "sh", "-c", f"cat >{painted}")
        wait_until("the painter", painted.exists)
        self.work(self.DWELL + 8)
        wait_until("the split", self.vantle.sessions)
        self.assertEqual(self.vantle.marker()["skillId"], "product_design")
        self.assertEqual(self.vantle.marker()["startedAt"],
                         self.vantle.sessions()[0]["endedAt"], "nothing is lost at the seam")
