"""The review, opened and gone through as a person does."""

import unittest

from harness.bus import activate
from harness.case import PANEL_TITLE
from harness.records import work_of_last_week
from harness.waiting import wait_until
from harness.windows import WRAPPED, ReaderCase


class Wrapped(ReaderCase):

    def page(self):
        """Which page of how many is there; none without pages."""
        for one in self.reader.window("Wrapped").all():
            if one.role == "indicator":
                return tuple(int(word) for word in one.name.split() if word.isdigit())
        return None

    def selected(self):
        """The period that is shown."""
        return [one.name for one in self.reader.window("Wrapped").all()
                if one.role == "page tab" and one.description == "Selected"]

    def await_page(self, page):
        wait_until(f"page {page}", lambda: self.page() == page)

    def await_selected(self, period):
        wait_until(period, lambda: self.selected() == [period])

    def test_it_is_paged_to_its_end_and_back_by_keys(self):
        self.write_records(work_of_last_week())
        self.launch()
        self.open(*WRAPPED)
        self.await_selected("Last week")
        first, count = self.page()
        self.assertEqual(first, 1)
        self.assertGreater(count, 5)
        for page in range(2, count + 1):
            self.desktop.press("Right")
            self.await_page((page, count))
        self.desktop.screenshot("poster")
        self.desktop.press("Right")
        self.desktop.press("Home")
        self.await_page((1, count))
        self.desktop.press("End")
        self.await_page((count, count))

    def test_another_period_is_chosen_by_keys_and_escape_leaves(self):
        self.write_records(work_of_last_week())
        self.launch()
        self.open(*WRAPPED)
        self.await_selected("Last week")
        while "focused" not in self.await_told("Wrapped", "page tab", "Last week").states:
            self.desktop.press("Tab")
        self.desktop.press("End")
        self.await_selected("All time")
        self.desktop.press("Left")
        self.await_selected("Month")
        self.desktop.press("Home")
        self.await_selected("Today")
        self.await_told("Wrapped", "heading", "Nothing today yet")
        names = [one.name for one in self.reader.window("Wrapped").all()
                 if one.role == "page tab"]
        self.assertEqual(names, ["Today", "Week", "Month", "All time"])
        self.desktop.press("Escape")
        self.await_closed("Wrapped")

    def test_the_panel_offers_last_week_once(self):
        self.open_editor()
        self.write_records(work_of_last_week())
        self.launch()
        activate(self.desktop)
        wait_until("the panel", lambda: self.desktop.windows_named(PANEL_TITLE))
        offer, = wait_until("the offer", lambda: [
            one for one in self.reader.window(PANEL_TITLE).all()
            if one.role == "push button" and "Wrapped is ready" in one.name])
        self.reader.press(offer)
        wait_until("the review", lambda: self.desktop.windows_named("Wrapped"))
        self.await_selected("Last week")
        self.desktop.press("Escape")
        self.await_closed("Wrapped")
        # A window manager that hands the keyboard on later than this takes it from the panel.
        self.desktop.await_keyboard("editor")
        activate(self.desktop)
        self.desktop.await_keyboard(PANEL_TITLE)
        told = [one.name for one in self.reader.window(PANEL_TITLE).all()]
        self.assertFalse([name for name in told if "Wrapped is ready" in name], told)


if __name__ == "__main__":
    unittest.main()
