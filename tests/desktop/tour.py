"""A session with all of the windows, for tools that slow the program down: it asks how little time
anything takes nowhere. No part of ./test, whose modules tell more of each step."""

from harness.bus import session_of
from harness.case import PANEL_TITLE, DesktopTest
from harness.waiting import wait_until
from harness.windows import DASHBOARD, NOTES, QUICK_LOG, SETTINGS, WRAPPED, WindowCase


class Tour(WindowCase):

    tray_kind = DesktopTest.STATUS_NOTIFIER

    def await_state(self, state):
        wait_until(f"a session that is {state}",
                   lambda: session_of(self.desktop)["State"] == state)

    def test_a_session_with_its_windows_from_the_start_to_the_menu_s_quit(self):
        self.vantle.write_preferences(idle__thresholdSeconds=10)  # the shortest
        self.write_log("first", "second", "third")
        self.launch()
        self.begin_session()
        self.await_state("paused")
        self.desktop.nudge_pointer()
        self.await_state("running")

        self.tray.choose("Open")
        wait_until("the panel", lambda: self.desktop.windows_named(PANEL_TITLE))
        self.desktop.await_keyboard(PANEL_TITLE)
        self.desktop.press("Escape")
        wait_until("no panel", lambda: not self.desktop.windows_named(PANEL_TITLE))
        for action, title in (DASHBOARD, NOTES, SETTINGS, WRAPPED):
            self.open(action, title)
            self.desktop.press("Tab")
            self.desktop.screenshot(action)
            self.close(title)
        self.open(*QUICK_LOG)
        self.desktop.press("Escape")
        self.await_closed("Quick Log")

        before = len(self.vantle.sessions())
        self.tray.choose("Stop")
        wait_until("a record", lambda: len(self.vantle.sessions()) > before)
        self.tray.choose("Quit")
        self.assertEqual(self.vantle.wait(), 0)
        self.assertIsNone(self.vantle.marker())
