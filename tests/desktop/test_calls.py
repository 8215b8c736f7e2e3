"""Calls and videos, which keep the desktop awake while no key is pressed."""

import time

from harness.bus import session_of
from harness.case import DesktopTest
from harness.inhibitors import Phone, SessionManager
from harness.waiting import wait_until
from harness.wayland import WaylandTest

THRESHOLD = 10.0  # the shortest that the preference takes
POLL = 12.0       # seconds between two looks at the counter, at most


CALL = 45         # seconds of a call


def await_state(desktop, state, deadline=THRESHOLD + 3 * POLL):
    """Waits for a state of the session, and returns what is shown of it."""
    wait_until(f"a session that is {state}", lambda: session_of(desktop)["State"] == state,
               deadline)
    return session_of(desktop)


class Calls(DesktopTest):

    def setUp(self):
        super().setUp()
        manager = SessionManager(self.desktop)
        self.addCleanup(manager.stop)
        manager.start()
        self.phone = Phone(self.desktop)
        self.addCleanup(self.phone.stop)

    def begin(self, counts):
        self.vantle.write_preferences(idle__thresholdSeconds=THRESHOLD,
                                      idle__callsCount="true" if counts else "false")
        self.launch()
        self.phone.start()  # before the session: that may take as long as the threshold
        self.began = time.monotonic()
        self.begin_session()

    def test_a_call_counts_until_its_application_is_killed(self):
        self.begin(counts=True)
        time.sleep(2 * THRESHOLD + POLL)
        shown = session_of(self.desktop)
        self.assertEqual(shown["State"], "running")
        self.assertGreaterEqual(shown["ActiveSeconds"], 2 * THRESHOLD - 1)
        self.phone.kill()
        lasted = time.monotonic() - self.began
        await_state(self.desktop, "paused")
        self.assertEqual(self.vantle.stop(), 0)
        record, = self.vantle.sessions()
        # The seconds from the first key to the next look belong to the silence before it.
        self.assertGreaterEqual(record["activeSeconds"], lasted - POLL - 3)
        self.assertLessEqual(record["activeSeconds"], lasted + 3)

    def test_with_the_switch_off_a_call_is_an_absence(self):
        self.begin(counts=False)
        shown = await_state(self.desktop, "paused")
        self.assertLessEqual(shown["ActiveSeconds"], THRESHOLD)


class CallsInWayland(WaylandTest):

    def test_a_call_that_the_compositor_knows_of_ends_an_absence(self):
        self.vantle.write_preferences(notch__intro__flashed="true",
                                      idle__thresholdSeconds=THRESHOLD, idle__callsCount="true")
        self.launch()
        self.toggle()
        away = await_state(self.session, "paused")
        rung = self.desktop.directory / "rung"
        self.session.open("foot", "--app-id", "call",
                          "sh", "-c", f"touch {rung}; exec sleep {CALL}")
        wait_until("the call", rung.exists)
        began = time.monotonic()
        await_state(self.session, "running")
        noticed = time.monotonic() - began
        shown = await_state(self.session, "paused", CALL + THRESHOLD + 3 * POLL)
        counted = shown["ActiveSeconds"] - away["ActiveSeconds"]
        self.assertGreaterEqual(counted, CALL - noticed - POLL)
        self.assertLessEqual(counted, CALL + 3)
