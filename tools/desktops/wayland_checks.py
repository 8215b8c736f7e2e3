"""What is played in each Wayland session: one entry a column of its table.

As in checks.py: a check returns when what it is about holds, fails by an AssertionError that says
what the user sees, and by `NotHere` where the session has no such thing at all. Each starts with
the native window in front, no session and no card.
"""

import time

from checks import NotHere, expect
from scene import CARD
from wayland_sessions import HEIGHT, WIDTH

from harness.records import epoch  # noqa: E402  scene has made it known
from harness.waiting import wait_until  # noqa: E402

READING = 10  # seconds between two looks at the time without input
DWELL = 45  # seconds in another application until a session follows it
MIDDLE = WIDTH // 2


def away_cut_out(scene):
    """Silence pauses back to the last key into a native window, and a key resumes."""
    scene.begin()
    scene.work(3)
    last_input = time.time()
    paused = scene.vantle.await_next_marker(scene.THRESHOLD + 20)
    off = abs(epoch(paused["lastSeenAt"]) - last_input)
    expect(off <= 2.5, f"counting stopped {off:.1f} s beside the last input")
    scene.desktop.type("w")
    scene.vantle.await_next_marker(14)
    record = scene.end()
    cut = epoch(record["endedAt"]) - epoch(record["startedAt"]) - record["activeSeconds"]
    expect(cut >= scene.THRESHOLD - 1, f"only {cut:.0f} s are cut out")


def typing_counted(scene):
    """Who types into a native window is never away."""
    # Until the counter was read again: an absence that ended since then is cut out at the next
    # reading, up to which nothing tells how long ago that was.
    scene.work(READING + 1)
    scene.begin()
    began = time.monotonic()
    scene.work(2.5 * scene.THRESHOLD)
    worked = time.monotonic() - began
    counted = scene.end()["activeSeconds"]
    expect(counted >= worked - 1, f"{counted} of {worked:.0f} s are counted")


def application_in_front(scene):
    """Work in a native application is filed under its skill."""
    scene.install_entry("gimp", "Painter", "true", "StartupWMClass=painter")
    if hasattr(scene.session.kind, "EXTENSION"):
        scene.press_in_settings("Switch the extension on", "Done")
    scene.begin()
    painter, _ = scene.open_native_window("painter")
    before = len(scene.vantle.sessions())
    try:
        scene.work(DWELL + 8)
        expect(len(scene.vantle.sessions()) > before, "the session stays where it was")
        skill = scene.vantle.marker()["skillId"]
        expect(skill == "product_design", f"it goes on under {skill}")
    finally:
        painter.terminate()
        time.sleep(1)
    # Here, since sway lays no window over one that is full-screen still; the other has ended that.
    scene.look_at_settings()


def clicks_at_rest(scene):
    """Presses around the resting capsule reach the native window."""
    for x, y in ((MIDDLE, 60), (MIDDLE - 200, 20), (MIDDLE + 200, 150)):
        before = scene.got().count("press")
        scene.click(x, y)
        expect(scene.got().count("press") > before, f"the press at {x}, {y} is swallowed")


def shortcut(scene):
    """Held down over a native window, it starts one session, and held once more it ends that."""
    scene.kind.give_keys(scene)
    before = len(scene.vantle.sessions())
    scene.hold_shortcut(1.5)
    wait_until("a session", scene.vantle.marker)
    time.sleep(2)
    expect(len(scene.vantle.sessions()) == before, "it ends while the keys are held")
    expect(scene.vantle.marker(), "no session runs once they are released")
    expect("key b" not in scene.got(), "the letter arrives in the native window, too")
    scene.hold_shortcut(1.5)
    wait_until("a record", lambda: len(scene.vantle.sessions()) > before)
    time.sleep(2)
    expect(len(scene.vantle.sessions()) == before + 1, "more than one session was recorded")
    expect(scene.vantle.marker() is None, "another session runs")


def keys_beside_card(scene):
    """The card after a session takes no keys from the native window."""
    scene.begin()
    time.sleep(3)  # until a ceremony is over
    scene.end()
    wait_until("the card", lambda: scene.frames(CARD))
    before = scene.got().count("key m")
    scene.desktop.type("mmm")
    time.sleep(0.5)
    expect(scene.got().count("key m") == before + 3, "the keys do not arrive")
    scene.desktop.screenshot("card")


def press_through_ceremony(scene):
    """A press lands in the native window while the ceremony plays."""
    place = MIDDLE - 100, HEIGHT // 2 - 100, 200, 200
    calm = list(scene.desktop.picture(*place).pixels())
    scene.toggle()
    end = time.monotonic() + 2
    while list(scene.desktop.picture(*place).pixels()) == calm:
        if time.monotonic() > end:
            raise NotHere("none plays: it would catch every click")
    before = scene.got().count("press")
    scene.click(300, 600)
    expect(scene.got().count("press") > before, "the ceremony swallows the press")


CHECKS = {
    "away cut out": away_cut_out,
    "typing counted": typing_counted,
    "application in front": application_in_front,
    "shortcut": shortcut,
    "clicks at rest": clicks_at_rest,
    "keys beside a card": keys_beside_card,
    "press through the ceremony": press_through_ceremony,
}
