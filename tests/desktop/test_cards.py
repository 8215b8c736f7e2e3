"""The small cards in the corner of the screen: by real clicks and keys."""

import json
import time
from datetime import datetime, timedelta, timezone
from pathlib import Path

from harness.bus import PROGRAM_NAME, activate, activate_action, owner_of
from harness.case import FIRST_SKILL, PANEL_TITLE, SHORTCUT, DesktopTest
from harness.records import stamp
from harness.waiting import wait_until

SUMMARY = "Vantle Session Summary"
RECOVERY = "Vantle Recovery"
WELCOME = "Welcome"
QUESTION = "Vantle Question"
SAVED = "Vantle Saved Time"

CARD_WIDTH = 380
RIGHT_INSET = 12
TOP_INSET = 10
SCREEN_WIDTH = 1440

SPOTLIGHT = 45  # seconds that the first card waits for its note
UNKNOWN_FOR = 90  # seconds in an unknown application until it is asked about

ENTRY = """[Desktop Entry]
Type=Application
Name=Quern
Exec=xterm -class Quern
StartupWMClass=Quern
"""


class CardTest(DesktopTest):
    """Without a compositor the window of a card is the card."""

    def await_card(self, title):
        """Waits for the card and returns where it is: x, y, width, height."""
        window = wait_until(f"the card {title}", lambda: self.desktop.windows_named(title))[0]
        frame = self.desktop.frame_of(window)
        self.assertEqual(frame[2], CARD_WIDTH)
        self.assertEqual(frame[0], SCREEN_WIDTH - RIGHT_INSET - CARD_WIDTH)
        return frame

    def is_up(self, title):
        return bool(self.desktop.windows_named(title))

    def click(self, x, y):
        self.desktop.tool("xdotool", "mousemove", str(x), str(y), "sleep", "0.1", "click", "1")

    def focused_window(self):
        """The window that has the keyboard, managed or not."""
        return self.desktop.tool("xdotool", "getwindowfocus").decode().strip()


class StopSummary(CardTest):

    def click_note(self, card):
        x, y, _, height = card
        self.click(x + 120, y + height - 110)

    def test_a_note_typed_into_the_card_lands_in_the_log_and_the_keyboard_goes_back(self):
        typed = self.open_editor()
        self.launch()
        self.begin_session()
        self.end_session()
        card = self.await_card(SUMMARY)
        self.desktop.type("still mine\n")
        wait_until("the line in the editor", lambda: typed.read_text() == "still mine\n")
        self.click_note(card)
        self.desktop.await_keyboard(SUMMARY)
        self.desktop.type("Retries land in order")
        self.desktop.screenshot("note")
        self.desktop.press("Return")
        wait_until("the note in the log",
                   lambda: self.vantle.sessions()[-1]["note"] == "Retries land in order")
        wait_until("the card gone", lambda: not self.is_up(SUMMARY))
        self.desktop.await_keyboard("editor")
        self.desktop.type("mine again\n")
        wait_until("the keyboard back", lambda: typed.read_text() == "still mine\nmine again\n")

    def test_a_note_is_written_by_keys_alone(self):
        typed = self.open_editor()
        self.launch()
        self.begin_session()
        self.end_session()
        self.await_card(SUMMARY)
        activate(self.desktop)
        self.desktop.await_keyboard(PANEL_TITLE)
        for key in ("shift+Tab", "Return"):
            self.desktop.press(key)
        self.desktop.await_keyboard(SUMMARY)
        self.desktop.press("Escape")  # changed their mind: no note, and the card goes
        wait_until("the card gone", lambda: not self.is_up(SUMMARY))
        self.desktop.type("mine\n")
        wait_until("the keyboard back", lambda: typed.read_text() == "mine\n")
        activate_action(self.desktop, "note")
        self.desktop.await_keyboard(SUMMARY)
        self.desktop.type("Retries land in order")
        self.desktop.press("Return")
        wait_until("the note in the log",
                   lambda: self.vantle.sessions()[-1]["note"] == "Retries land in order")
        wait_until("the card gone", lambda: not self.is_up(SUMMARY))
        self.desktop.await_keyboard("editor")
        self.desktop.type("mine again\n")
        wait_until("the keyboard back", lambda: typed.read_text() == "mine\nmine again\n")

    def test_left_alone_the_card_goes_by_itself(self):
        self.launch()
        self.begin_session()
        self.end_session()
        self.await_card(SUMMARY)
        shown = time.monotonic()
        wait_until("the card gone", lambda: not self.is_up(SUMMARY), deadline=60)
        self.assertGreater(time.monotonic() - shown, 18)
        self.assertEqual(self.vantle.sessions()[-1]["note"], "")

    def test_the_card_takes_no_keyboard_from_a_click_on_its_button(self):
        typed = self.open_editor()
        self.launch()
        self.begin_session()
        self.end_session()
        x, y, width, height = self.await_card(SUMMARY)
        self.click(x + width - 50, y + height - 36)
        wait_until("the card gone", lambda: not self.is_up(SUMMARY))
        self.desktop.type("still mine\n")
        wait_until("the line in the editor", lambda: typed.read_text() == "still mine\n")


class FirstSummary(CardTest):
    """The card after the practice of the welcome, which has the keyboard from the start."""

    newcomer = True

    def test_left_alone_it_goes_by_itself_and_gives_the_keyboard_back(self):
        self.vantle.start()
        wait_until("the program on the bus", lambda: owner_of(self.desktop, PROGRAM_NAME))
        wait_until("the welcome in front",
                   lambda: self.desktop.active_window_title() == WELCOME)
        self.desktop.type("Lumen")
        self.desktop.press("Return")
        wait_until("the name", lambda: self.vantle.preference("project.name") == "Lumen")
        self.desktop.press("Return")  # the modes
        self.desktop.press(SHORTCUT)
        wait_until("the session", self.vantle.marker)
        self.desktop.press(SHORTCUT)
        card, = wait_until("the card", lambda: self.desktop.windows_named(SUMMARY))
        shown = time.monotonic()
        wait_until("its keyboard", lambda: self.focused_window() == card)
        self.desktop.screenshot("asks")
        wait_until("the card gone", lambda: not self.is_up(SUMMARY), deadline=SPOTLIGHT + 10)
        self.assertGreater(time.monotonic() - shown, SPOTLIGHT - 5)
        wait_until("the welcome in front",
                   lambda: self.focused_window() in self.desktop.windows_named(WELCOME))


class ScreenThatGoes(CardTest):
    """The card stands where the pointer is, on the screen on the right, until that is unplugged."""

    def setUp(self):
        super().setUp()
        self.desktop.tool("xrandr", "--setmonitor", "*right", "640/169x900/238+800+0", "screen")
        self.desktop.tool("xrandr", "--setmonitor", "left", "800/210x900/238+0+0", "none")
        self.desktop.tool("xdotool", "mousemove", "1100", "500")

    def test_the_card_comes_to_the_other_screen_with_its_half_written_note(self):
        self.launch()
        self.begin_session()
        self.end_session()
        x, y, _, height = self.await_card(SUMMARY)
        self.click(x + 120, y + height - 110)
        self.desktop.await_keyboard(SUMMARY)
        self.desktop.type("half a")
        # As the server does when the screen under the pointer goes.
        self.desktop.tool("xdotool", "mousemove", "400", "500")
        self.desktop.tool("xrandr", "--delmonitor", "right")
        window, = self.desktop.windows_named(SUMMARY)
        wait_until("the card on the other screen",
                   lambda: self.desktop.frame_of(window)[0] == 800 - RIGHT_INSET - CARD_WIDTH)
        self.desktop.screenshot("moved")
        self.desktop.await_keyboard(SUMMARY)
        self.desktop.type(" note")
        self.desktop.press("Return")
        wait_until("the note in the log",
                   lambda: self.vantle.sessions()[-1]["note"] == "half a note")


class Recovery(CardTest):

    tray_kind = DesktopTest.STATUS_NOTIFIER

    def setUp(self):
        super().setUp()
        started = datetime.now(timezone.utc) - timedelta(hours=1)
        self.vantle.write_marker(
            id="0F6B1D1E-4A52-4C1B-9A1E-7F3B2C5D8E90", skillId=FIRST_SKILL, activeSeconds=125,
            startedAt=stamp(started), lastSeenAt=stamp(started + timedelta(minutes=5)))
        self.launch()
        self.card = self.await_card(RECOVERY)

    def answer(self, from_right):
        x, y, width, height = self.card
        self.click(x + width - from_right, y + height - 36)
        wait_until("no marker", lambda: self.vantle.marker() is None)
        wait_until("the card gone", lambda: not self.is_up(RECOVERY))

    def test_a_click_on_keep_logs_the_session(self):
        self.desktop.screenshot("notice")
        self.answer(from_right=50)
        wait_until("a record", self.vantle.sessions)
        self.assertEqual(self.vantle.sessions()[0]["activeSeconds"], 125)
        self.await_tool_tip("Recovered 2 min from the previous run")

    def test_a_click_on_discard_leaves_nothing(self):
        self.answer(from_right=130)
        self.assertEqual(self.vantle.log_bytes(), b"")
        self.await_tool_tip("Discarded the recovered session")

    def test_pushed_out_by_a_summary_the_notice_comes_back(self):
        offered = self.vantle.marker()
        self.begin_session()
        wait_until("a marker of its own", lambda: self.vantle.marker() not in (None, offered))
        self.desktop.press(SHORTCUT)
        x, y, width, height = self.await_card(SUMMARY)
        wait_until("the offer's marker again", lambda: self.vantle.marker() == offered)
        wait_until("the notice gone", lambda: not self.is_up(RECOVERY))
        self.click(x + width - 50, y + height - 36)
        self.await_card(RECOVERY)


class TagPrompt(CardTest):

    def test_an_unknown_application_is_asked_about_and_the_answer_becomes_its_rule(self):
        folder = Path(self.desktop.env["XDG_DATA_HOME"], "applications")
        folder.mkdir(parents=True, exist_ok=True)
        (folder / "org.example.Quern.desktop").write_text(ENTRY)
        reader = self.start_reader()
        self.launch()
        self.begin_session()
        self.desktop.open("xterm", "-class", "Quern", "-T", "a quern")
        wait_until("the quern in front", lambda: self.desktop.active_window_title() == "a quern")
        until = time.monotonic() + UNKNOWN_FOR + 20
        while not self.is_up(QUESTION) and time.monotonic() < until:
            self.desktop.nudge_pointer()  # work
            time.sleep(0.5)
        x, y, _, _ = self.await_card(QUESTION)
        self.desktop.screenshot("question")
        wait_until("its question", lambda: any(
            one.role == "dialog" and "Quern" in one.name for one in reader.window(QUESTION).all()))
        told = reader.window(QUESTION)
        for button in ("Build", "Design", "Not now"):
            told.find("push button", button)
        self.click(x + 131, y + 96)  # Design
        wait_until("the card gone", lambda: not self.is_up(QUESTION))
        rules = self.vantle.data_directory / "auto-rules.json"
        wait_until("the rule", lambda: rules.exists() and
                   "product_design" in json.dumps(json.loads(rules.read_text())))
        wait_until("the other skill", lambda: (self.vantle.marker() or {}).get("skillId") ==
                   "product_design")


class Toast(CardTest):

    def open_pad(self):
        """An application at the right edge of the screen; returns the file that clicks on it
        land in, as the sequences that a terminal reports them by."""
        pad = self.desktop.directory / "clicks"
        self.desktop.open("xterm", "-T", "pad", "-geometry", "70x40-0+0", "-e", "sh", "-c",
                          f"printf '\\033[?1000h'; stty raw -echo; exec cat > {pad}")
        wait_until("the pad in front", lambda: self.desktop.active_window_title() == "pad")
        wait_until("its file", pad.exists)
        return pad

    def test_a_click_on_another_skill_says_what_was_saved_and_lets_clicks_through(self):
        reader = self.start_reader()
        self.launch()
        pad = self.open_pad()
        self.begin_session()
        # The capsule opens where the pointer rests at the top of the screen.
        self.desktop.tool("xdotool", "mousemove", "720", "2", "sleep", "1.0")
        self.click(SCREEN_WIDTH // 2 - 189 + 110, 72)
        wait_until("the split", self.vantle.sessions)
        window = wait_until("the toast", lambda: self.desktop.windows_named(SAVED))[0]
        x, y, width, height = self.desktop.frame_of(window)
        self.assertEqual((x + width, height), (SCREEN_WIDTH - RIGHT_INSET, 40))
        self.desktop.screenshot("toast")
        self.assertEqual(pad.read_bytes(), b"")
        self.click(x + width // 2, y + height // 2)
        wait_until("the click in the window below", pad.read_bytes)
        self.assertTrue(self.is_up(SAVED), "the toast was there to be clicked through")
        notice, = wait_until("its words", lambda: [
            one for one in reader.window(SAVED).all() if one.role == "notification"])
        self.assertRegex(notice.name, r"^\d+ sec saved, Build$")
        wait_until("the toast gone", lambda: not self.is_up(SAVED))
