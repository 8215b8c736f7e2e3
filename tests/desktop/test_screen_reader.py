"""What a screen reader is told of every surface, and what it can do there."""

import unittest
from datetime import datetime, timedelta, timezone

from harness.bus import activate, activate_action
from harness.case import FIRST_SKILL, PANEL_TITLE
from harness.records import stamp
from harness.waiting import wait_until
from harness.windows import (DASHBOARD, NOTES, QUICK_LOG, SETTINGS, WELCOME, WRAPPED, ReaderCase,
                             record)

CAPSULE = "Vantle Capsule"
SUMMARY = "Vantle Session Summary"
RECOVERY = "Vantle Recovery"

MODES = ("Build", "Design", "Marketing", "Distribution", "Founder Ops", "Connections")


class ScreenReader(ReaderCase):

    def assert_told(self, window, *expected):
        """Of each role and name exactly one; a third text is the description."""
        for role, name, *description in expected:
            with self.subTest(name=name):
                found = window.find(role, name)
                self.assertIn("enabled", found.states)
                if description:
                    self.assertEqual([found.description], description)

    def assert_nothing_is_nameless(self, window):
        """Nor named by signs that no keyboard here has."""
        signs = [one for one in window.all() if set("⌘⌥") & set(one.name + one.description)]
        self.assertEqual(signs, [])
        pressed = ("push button", "check box", "combo box", "text", "slider", "radio button",
                   "link", "list item", "graphic", "dialog")
        nameless = [one for one in window.all() if one.role in pressed and not one.name]
        self.assertEqual(nameless, [], window.told())

    def page_of(self, window):
        """Which page of how many is there."""
        dots, = [one for one in window.all() if one.role == "indicator"]
        return [int(word) for word in dots.name.split() if word.isdigit()]


class OfWindows(ScreenReader):

    def test_the_hours(self):
        self.write_records([record(1, ""), record(2, "", "manual"), record(3, "")])
        self.launch()
        self.open(*DASHBOARD)
        window = self.reader.window("Your hours")
        self.assert_nothing_is_nameless(window)
        self.assert_told(
            window, ("heading", "Your hours"), ("push button", "Log time"),
            ("push button", "Wrapped", "A recap of your work, computed on this computer"),
            ("push button", "Start building"),
            ("list item", "Today: 2 h goal · a session starts the bar"),
            ("list item", "All time: 1.5 h, next milestone 10 h"),
            ("graphic", "Hour wall, 1 completed hours, current hour 50 percent complete"),
            ("heading", "Hours by skill"), ("list item", "Build, 1.5 h, 100%"),
            ("heading", "Recent sessions"),
            ("list item", "Nov 3 · 09:30, Build, 30 min"),
            ("list item", "Nov 2 · 09:30, Build, 30 min, manual"))
        self.await_focused("Your hours", "push button", "Start building")
        self.desktop.press("Return")
        chip, = wait_until("the chip with the keyboard", lambda: [
            one for one in self.reader.window("Your hours").all()
            if one.name.endswith(". Stops the session.") and "focused" in one.states])
        self.assertRegex(chip.name, r"^In Vantle · \d+ sec\. Stops the session\.$")
        self.assertEqual((chip.role, chip.description), ("push button", "Stop the session"))

    def test_the_notes(self):
        self.write_log("first draft", "second draft")
        self.launch()
        self.open(*NOTES)
        window = self.reader.window("Your notes")
        self.assert_nothing_is_nameless(window)
        self.assert_told(
            window, ("heading", "2 notes"), ("label", "Across 1 h of tracked work."),
            ("text", "Search notes"), ("panel", "Filter by skill"), ("radio button", "All"),
            ("radio button", "Build"), ("list", "Notes"),
            ("list item", "Nov 2, 2025, second draft, 09:00, Build, 30 min"),
            ("list item", "Nov 1, 2025, first draft, 09:00, Build, 30 min"),
            ("label", "Longest noted session: 30 min. Most noted: Build."))
        self.assertIn("checked", window.find("radio button", "All").states)
        self.assertNotIn("checked", window.find("radio button", "Build").states)
        self.reader.press(window.find("radio button", "Build"))
        wait_until("the other chip to be checked", lambda: "checked" in self.reader.window(
            "Your notes").find("radio button", "Build").states)
        window = self.reader.window("Your notes")
        self.assertNotIn("checked", window.find("radio button", "All").states)
        self.reader.press(window.find("radio button", "All"))
        self.desktop.type("nowhere")
        self.await_told("Your notes", "label", "Nothing matches that yet.")
        window = self.reader.window("Your notes")
        self.assert_told(window, ("push button", "Clear the filters"), ("heading", "0 notes"))
        self.reader.press(window.find("push button", "Clear the filters"))
        self.await_told("Your notes", "heading", "2 notes")

    def test_the_form_for_time_by_hand(self):
        self.launch()
        self.open(*QUICK_LOG)
        window = self.reader.window("Quick Log")
        self.assert_nothing_is_nameless(window)
        self.assert_told(
            window, ("heading", "Add time manually"), ("combo box", "Skill", "Build"),
            ("text", "Hours worked"), ("text", "Minutes worked", "Enter a number of minutes"),
            ("push button", "Time worked, 5 minutes less", "30 minutes"),
            ("push button", "Time worked, 5 minutes more", "30 minutes"),
            ("text", "Work note", "Optional. Helps you remember what moved forward."),
            ("push button", "Cancel"), ("push button", "Add to history"))
        self.desktop.press("ctrl+a")
        self.desktop.type("0")
        self.desktop.press("Tab")
        self.desktop.type("0")
        self.desktop.press("Return")
        self.await_told("Quick Log", "alert message", "Enter a time between 1 minute and 16 hours.")

    def test_the_review(self):
        earlier = record(9, "")
        for moment in ("startedAt", "endedAt"):
            earlier[moment] = earlier[moment].replace("2025", "2024")
        drafts = [record(number, f"draft {number}") for number in range(1, 9)]
        self.write_records([earlier, *drafts])
        self.launch()
        self.open(*WRAPPED)
        window = self.reader.window("Wrapped")
        self.assert_nothing_is_nameless(window)
        self.assert_told(
            window, ("page tab list", "Period"), ("page tab", "Today", "Not selected"),
            ("page tab", "Week", "Selected"), ("page tab", "Month", "Not selected"),
            ("page tab", "All time", "Not selected"), ("heading", "Nothing this week yet"),
            ("push button", "Enter Vantle"))
        self.reader.press(window.find("page tab", "All time"))
        self.await_told("Wrapped", "push button", "Next page")
        told = {(one.role, one.name) for one in self.all_pages()}
        for expected in (("label", "4.5 h"),
                         ("graphic", "Daily activity across 2025, week by week"),
                         ("page tab", "Show 2025"), ("page tab", "Show 2024"),
                         ("graphic", "Session starts by hour of day"),
                         ("push button", "Copy image"), ("push button", "Save image…")):
            self.assertIn(expected, told)

    def all_pages(self):
        """What stands on the pages of the review, turned to the last."""
        found = []
        while True:
            window = self.reader.window("Wrapped")
            self.assert_nothing_is_nameless(window)
            found += window.all()
            before = self.page_of(window)
            if before[0] == before[1]:
                return found
            self.reader.press(window.find("push button", "Next page"))
            wait_until("the next page",
                       lambda: self.page_of(self.reader.window("Wrapped")) != before)


class OfTextFields(ScreenReader):

    def test_every_boundary_of_a_field_is_answered(self):
        self.write_log("first draft", "second draft")
        self.launch()
        self.open(*NOTES)
        for words in ("", "two words"):
            self.reader.edit(self.reader.window("Your notes").find("text", "Search notes"), words)
            field = self.reader.window("Your notes").find("text", "Search notes")
            for boundary in range(7):  # of characters, words, sentences and lines, at both ends
                for offset in (0, len(words) // 2, len(words)):
                    parts = [self.reader.part_of_text(field, which, offset, boundary)
                             for which in ("Before", "At", "After")]
                    self.assertIn("".join(text for text, _, _ in parts), words)
            self.assertEqual(self.reader.attribute_run(field, 0), (0, len(words)))
        word = self.reader.part_of_text(field, "At", len(words), 1)
        self.assertEqual(word, ("words", 4, 9))

    def test_what_is_typed_is_heard(self):
        self.write_log("first draft", "second draft")
        self.launch()
        self.open(*NOTES)
        self.desktop.type("ab")
        self.desktop.press("BackSpace")
        wait_until("the letters", lambda: [
            (one.kind, one.text) for one in self.reader.ear.heard()
            if one.kind.startswith("TextChanged")] == [
                ("TextChanged:insert", "a"), ("TextChanged:insert", "b"),
                ("TextChanged:delete", "b")])


class OfEvents(ScreenReader):
    """What is spoken without a question, whatever has the keyboard."""

    def test_the_course_of_a_session(self):
        self.launch()
        self.begin_session()
        self.reader.ear.await_announced("Session started, Build")
        self.end_session()
        wait_until("the sum", lambda: len(self.reader.ear.announced()) == 2)
        self.assertRegex(self.reader.ear.announced()[-1],
                         r"^Session stopped, \d+ sec of Build\. \d+ sec into your next dot$")

    def test_an_offer_and_its_answer(self):
        started = datetime.now(timezone.utc) - timedelta(hours=1)
        self.vantle.write_marker(
            id="0F6B1D1E-4A52-4C1B-9A1E-7F3B2C5D8E90", skillId=FIRST_SKILL, activeSeconds=125,
            startedAt=stamp(started), lastSeenAt=stamp(started + timedelta(minutes=5)))
        self.launch()
        self.reader.ear.await_announced(
            "Found 2 min from the previous run · choose Keep or Discard")
        activate_action(self.desktop, "keep")
        self.reader.ear.await_announced("Recovered 2 min from the previous run")

    def test_what_a_search_finds(self):
        self.write_log("first draft", "second draft")
        self.launch()
        self.open(*NOTES)
        self.desktop.type("first")
        self.reader.ear.await_announced("1 note")

    def test_why_time_was_not_logged(self):
        self.launch()
        self.log_no_time()
        wrong = "Enter a time between 1 minute and 16 hours."
        self.reader.ear.await_announced(wrong)
        field = self.reader.window("Quick Log").find("text", "Hours worked")
        self.assertEqual(field.description, wrong)

    def test_the_question_of_the_erase(self):
        self.launch()
        self.open(*SETTINGS)
        for key in ("shift+Tab",) * 3 + ("Return",):  # past the strip's two buttons
            self.desktop.press(key)
        for name in ("Cancel", "Erase"):
            button = self.await_told("Settings", "push button", name)
            self.assertEqual(button.description, "Erase everything? This cannot be undone.")

    def focused(self, role, name=None):
        """What has the keyboard in the review, if it is of that role and name."""
        found = [one for one in self.reader.window("Wrapped").all() if "focused" in one.states]
        return next((one for one in found if one.role == role and one.name
                     and name in (None, one.name)), None)

    def test_each_page_of_the_review(self):
        self.write_records([record(number, f"draft {number}") for number in range(1, 9)])
        self.launch()
        self.open(*WRAPPED)
        self.reader.press(self.await_told("Wrapped", "page tab", "All time"))
        self.await_told("Wrapped", "push button", "Next page")
        _, count = self.page_of(self.reader.window("Wrapped"))
        self.assertGreater(count, 3)
        # The keyboard is on the page, which is read out with the focus: the place alone is said.
        self.reader.press(self.reader.window("Wrapped").find("push button", "Next page"))
        self.reader.ear.await_announced(f"Page 2 of {count}")
        self.assertGreater(len(self.focused("panel").description), 5)
        self.assertEqual(self.reader.ear.announced()[-2], f"Page 1 of {count}")
        # From a button the page is said as a whole, each once.
        while not self.focused("push button", "Next page"):
            self.desktop.press("Tab")
        before = len(self.reader.ear.announced())
        for page in range(3, count + 1):
            self.desktop.press("Return")
            self.reader.ear.await_announced(f"Page {page} of {count}. ", whole=False)
            self.assertEqual(len(self.reader.ear.announced()), before + page - 2)
            self.assertRegex(self.reader.ear.announced()[-1], r"of \d+\. [A-Z ,]+\. .{5}")
        pane = wait_until("the focus on the page", lambda: [
            one for one in self.reader.window("Wrapped").all()
            if one.role == "panel" and one.name and "focused" in one.states])[-1]
        self.assertIn(pane.description, self.reader.ear.announced()[-1])


class OfStepsOfTheWelcome(ScreenReader):

    newcomer = True

    def test_each_step_is_spoken(self):
        self.launch()
        self.reader.press(self.await_told(WELCOME, "push button", "Continue"))
        said = wait_until("the step", self.reader.ear.announced)[-1]
        self.assertTrue(said.startswith("These are your modes. "), said)
        button = self.reader.window(WELCOME).find("push button", "Continue")
        self.assertEqual(button.description, said)


class OfTheWelcome(ScreenReader):

    newcomer = True

    def test_its_first_steps(self):
        self.launch()
        self.await_told(WELCOME, "heading", "What are you working towards?")
        window = self.reader.window(WELCOME)
        self.assert_nothing_is_nameless(window)
        field = self.await_focused(WELCOME, "text", "Project")
        self.assertEqual(field.description, "my app, my degree, 10,000 hours of guitar")
        self.assert_told(window, ("indicator", "Step 1 of 10"), ("push button", "Continue"),
                         ("push button", "skip the welcome"))
        self.reader.press(window.find("push button", "Continue"))
        self.await_told(WELCOME, "heading", "These are your modes")
        window = self.reader.window(WELCOME)
        self.assert_nothing_is_nameless(window)
        self.assert_told(window, ("indicator", "Step 2 of 10"),
                         *(("push button", f"Rename {name}") for name in MODES),
                         ("push button", "Remove Design"), ("push button", "Add your own"))
        self.reader.press(window.find("push button", "Add your own"))
        field = self.await_told(WELCOME, "text", "Category")
        self.assertEqual(field.description, "e.g. Investors, Support")

    def step(self, button, heading):
        """Presses a button of the welcome and waits for the heading that it leads to."""
        self.reader.press(self.await_told(WELCOME, "push button", button))
        self.await_told(WELCOME, "heading", heading)
        window = self.reader.window(WELCOME)
        self.assert_nothing_is_nameless(window)
        return [one.name for one in window.all() if one.role == "graphic"]

    def test_its_practice_and_its_samples(self):
        self.vantle.write_preferences(ripple__disabled="true")
        self.launch()
        self.step("Continue", "These are your modes")
        self.assertIn("The keys Alt, Super and B", self.step("Continue", "Press it now"))
        self.step("Enter Vantle", "You're building")
        self.reader.press(self.await_told(WELCOME, "push button", "Stop Vantle"))
        self.reader.press(self.await_told(SUMMARY, "push button", "Close"))
        self.await_told(WELCOME, "heading", "As easy as that")
        self.step("Continue", "Switch modes from the top edge")
        samples = []
        for heading in ("Your hours, one click away", "What is behind it", "Your work, wrapped",
                        "That is the whole app"):
            samples += self.step("Continue", heading)
        self.assertIn("A sample weekly Wrapped: builder type Night Owl, a week of day tiles, and "
                      "hours by category", samples)
        self.assertIn("A sample of the Your hours dashboard: totals for today, this week and all "
                      "time, and the hour wall", samples)


class OfFloatingSurfaces(ScreenReader):

    def test_the_panel_and_its_editor(self):
        self.launch()
        activate(self.desktop)
        self.await_told(PANEL_TITLE, "push button", "New Mode")
        window = self.reader.window(PANEL_TITLE)
        self.assert_nothing_is_nameless(window)
        self.assert_told(
            window, ("dialog", PANEL_TITLE), ("heading", "Ready to focus"),
            ("push button", "Enter Vantle"), ("panel", "Modes"),
            ("radio button", "Build", "Selected"),
            *(("radio button", name, "Not selected") for name in MODES[1:]),
            ("push button", "Dashboard"), ("push button", "Wrapped"), ("push button", "Notes"),
            ("push button", "Settings"), ("push button", "Quit", "Quit Vantle (Ctrl+Q)"))
        self.await_focused(PANEL_TITLE, "push button", "Enter Vantle")
        self.reader.press(window.find("push button", "New Mode"))
        self.await_told(PANEL_TITLE, "text", "New mode name")
        window = self.reader.window(PANEL_TITLE)
        self.assert_told(window, ("panel", "Name your mode"), ("push button", "Cancel"),
                         ("panel", "Color"))
        swatches = [one for one in window.all() if one.description.startswith("Color ")]
        self.assertEqual(len(swatches), 10)
        for one in swatches:
            chosen = "selected" if "checked" in one.states else "not selected"
            self.assertRegex(one.description, f"^Color [0-9A-F]{{6}}, {chosen}$")
        self.assertEqual([one.name for one in swatches if "checked" in one.states], ["Yellow"])

    def test_the_keys_that_the_panel_shows_are_those_that_work(self):
        self.launch()
        activate(self.desktop)
        self.await_told(PANEL_TITLE, "push button", "Enter Vantle")
        keys, = [one.name for one in self.reader.window(PANEL_TITLE).all() if "+" in one.name]
        self.desktop.press(keys.lower())
        wait_until("a marker", self.vantle.marker)
        self.desktop.press(keys.lower())
        wait_until("no marker", lambda: self.vantle.marker() is None)
        for title, window in (("Dashboard", "Your hours"), ("Settings", "Settings")):
            activate(self.desktop)
            door = self.await_told(PANEL_TITLE, "push button", title)
            self.desktop.await_keyboard(PANEL_TITLE)
            self.desktop.press(door.description.lower())
            wait_until(window, lambda: self.desktop.windows_named(window))
            self.desktop.await_keyboard(window)
            self.close(window)

    def test_the_capsule_and_its_editor(self):
        self.launch()
        self.desktop.tool("xdotool", "mousemove", "720", "2")
        self.await_told(CAPSULE, "push button", "Start")
        window = self.reader.window(CAPSULE)
        self.assert_nothing_is_nameless(window)
        self.assert_told(window, *(("push button", name) for name in MODES),
                         ("push button", "New skill", "Add a skill"))
        self.assertIn("checked", window.find("push button", "Build").states)
        self.reader.press(window.find("push button", "New skill"))
        field = self.await_told(CAPSULE, "text", "Skill name")
        self.assertEqual(field.description, "e.g. Writing")
        self.assert_told(self.reader.window(CAPSULE), ("heading", "Create a skill"),
                         ("push button", "Cancel"), ("radio button", "Violet"))

    def test_an_alert(self):
        self.launch()
        second = self.new_program()
        second.start()  # unasked, so it brings no panel
        self.await_told("Vantle", "push button", "OK")
        window = self.reader.window("Vantle")
        self.assert_nothing_is_nameless(window)
        alert, = [one for one in window.all() if one.role == "alert message"]
        self.assert_told(window, ("label", alert.name), ("label", alert.description))
        self.reader.press(window.find("push button", "OK"))
        self.assertEqual(second.wait(), 0)

    def test_the_card_after_a_session(self):
        self.launch()
        self.begin_session()
        self.end_session()
        self.await_told(SUMMARY, "text", "Work note")
        window = self.reader.window(SUMMARY)
        self.assert_nothing_is_nameless(window)
        dialog, = [one for one in window.all() if one.role == "dialog"]
        self.assertRegex(dialog.name, r"^\d+ sec of Build$")
        self.assert_told(window, ("label", dialog.name), ("push button", "Close"))
        x, y, width, height = window.find("text", "Work note").frame
        self.desktop.tool("xdotool", "mousemove", str(x + width // 2), str(y + height // 2),
                          "click", "1")
        self.desktop.type("a word")
        self.await_told(SUMMARY, "push button", "Close and save note")
        self.assert_told(self.reader.window(SUMMARY), ("push button", "Clear note"))

    def test_the_offer_to_keep_a_session(self):
        started = datetime.now(timezone.utc) - timedelta(hours=1)
        self.vantle.write_marker(
            id="0F6B1D1E-4A52-4C1B-9A1E-7F3B2C5D8E90", skillId=FIRST_SKILL, activeSeconds=125,
            startedAt=stamp(started), lastSeenAt=stamp(started + timedelta(minutes=5)))
        self.launch()
        title = "Recover your last session?"
        dialog = self.await_told(RECOVERY, "dialog", title)
        self.assertRegex(dialog.description, r"Keep 2 min of Build\?")
        window = self.reader.window(RECOVERY)
        self.assert_nothing_is_nameless(window)
        self.assert_told(
            window,
            ("push button", "Discard", "Deletes the interrupted session without saving it"),
            ("push button", "Keep", "Saves the interrupted session to your local log"))
        self.reader.press(window.find("push button", "Keep"))
        wait_until("a record", self.vantle.sessions)


if __name__ == "__main__":
    unittest.main()
