"""The surfaces of the program, each walked by keys."""

from datetime import datetime, timedelta, timezone

from conversation import SHORTCUT
from harness.case import FIRST_SKILL
from harness.records import record, stamp

RECORDS = [record(number, f"draft {number}") for number in range(1, 9)]


def panel(talk):
    talk.start()
    talk.open_panel()
    talk.press("Tab", "Right", "Left", "Tab", "Tab", "Tab", "Tab", "Tab", "Tab")
    talk.press("Tab", "End", "Return", "Escape")


def session(talk):
    talk.start()
    talk.press(SHORTCUT, SHORTCUT)
    talk.open_panel()
    talk.press("shift+Tab", "Return")
    talk.type("drafted")
    talk.press("Return")


def hours(talk):
    talk.start(RECORDS)
    talk.open("dashboard", "Your hours")
    talk.press("Tab", "Right", "Right", "Tab", "Tab", "Tab", "Down", "Tab", "Tab", "Tab", "Tab",
               "Tab", "Return")


def notes(talk):
    talk.start(RECORDS)
    talk.open("notes", "Your notes")
    talk.type("draft 2")
    talk.press("Tab", "Tab", "Tab", "Tab", "Return", "Tab", "Tab", "Return")
    talk.type("revised")
    talk.press("Return")


def time_by_hand(talk):
    talk.start()
    talk.open("quick-log", "Quick Log")
    talk.press("Tab", "Tab", "space", "Tab", "space", "Tab", "Tab", "Tab", "Return")


def settings(talk):
    talk.start()
    talk.open("settings", "Settings")
    talk.press("Tab", "Right", "Tab", "space", "Tab", "space", "Tab", "Tab", "space", "Tab", "Tab",
               "Tab", "Tab", "Tab", "Tab", "Tab", "Tab", "Return", "Tab", "Escape")


def review(talk):
    talk.start(RECORDS)
    talk.open("wrapped", "Wrapped")
    talk.press("Tab", "Right", "Right", "Tab", "Return", "Return", "Right", "Right", "End",
               "Escape")


def recovery(talk):
    started = datetime.now(timezone.utc) - timedelta(hours=1)
    talk.start(marker={"id": "0F6B1D1E-4A52-4C1B-9A1E-7F3B2C5D8E90", "skillId": FIRST_SKILL,
                       "activeSeconds": 125, "startedAt": stamp(started),
                       "lastSeenAt": stamp(started + timedelta(minutes=5))})
    talk.open_panel()
    talk.press("shift+Tab", "shift+Tab", "Return")


def welcome(talk):
    talk.start()
    talk.type("a book")
    talk.press("Tab", "Tab", "Return", "Tab", "Tab", "Tab", "Return", "Escape")


# By the heading of the transcript.
SCENES = {"The panel": panel, "A session and its note": session, "The hours": hours,
          "The notes": notes, "Time by hand": time_by_hand, "The settings": settings,
          "The review": review, "A session to recover": recovery, "The welcome": welcome}
