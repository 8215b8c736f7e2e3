"""What is played on each set-up: one entry a column of the table.

A check returns when what it is about holds. It fails by an AssertionError that says what the user
sees, and by `NotHere` where the set-up has no such thing at all.
"""

import re
import time

from scene import CARD, OVERLAY, SHORTCUT
from setups import SCREEN_HEIGHT, SCREEN_WIDTH

SEEN = 60  # of 255 grays: a difference that an eye sees
EVERYWHERE = 0xFFFFFFFF  # the workspace of a window that is on all of them
AWAY = 45  # px between the item and what drops from it, shadows included


class NotHere(Exception):
    """The set-up lacks what the check is about."""


def expect(holds, what):
    if not holds:
        raise AssertionError(what)


def gray(pixel):
    return sum(pixel) // 3


def tray_item(scene):
    """The bar shows the program, as the dot and as the brick, and the brick can be seen."""
    scene.begin()
    scene.await_calm()
    scene.find_item()
    scene.desktop.screenshot("tray-dot")
    scene.end()
    scene.await_calm()
    scene.clear()
    pixels = [gray(pixel) for pixel in scene.desktop.picture(*scene.item).pixels()]
    scene.desktop.screenshot("tray-brick")
    ground = max(set(pixels), key=pixels.count)
    seen = sum(abs(pixel - ground) >= SEEN for pixel in pixels)
    expect(seen >= 40, f"the brick can hardly be seen: {seen} px differ from the bar")


def panel_beside_item(scene):
    """A click on the item drops the panel from it, and a second click takes it away."""
    scene.click_item()
    panel = scene.wait("the panel", scene.panel)
    scene.desktop.await_still(*scene.frame_of(panel))
    scene.desktop.screenshot("panel")
    x, y, width, height = scene.frame_of(panel)
    item_x, item_y, item_width, item_height = scene.item
    middle = item_x + item_width // 2
    expect(x - AWAY <= middle <= x + width + AWAY, f"the panel is at {x}, the item at {middle}")
    if item_y < SCREEN_HEIGHT // 2:
        away = y - (item_y + item_height)
    else:
        away = item_y - (y + height)
    expect(abs(away) <= AWAY, f"the panel is {away} px away from the item")
    scene.click_item()
    scene.wait("the panel gone", lambda: not scene.panel())
    time.sleep(0.7)
    expect(not scene.panel(), "the second click closes and opens it again")


def right_click(scene):
    """A right click opens the panel, or a menu that can start a session."""
    calm = scene.desktop.picture(*_beside_bar(scene))
    scene.click_item(3)
    scene.wait("the panel or a menu", lambda: scene.panel() or
               _changed(calm, scene.desktop.picture(*_beside_bar(scene))) > 600)
    time.sleep(0.5)
    scene.desktop.screenshot("right-click")
    if scene.panel():
        scene.press("Escape")
        scene.wait("the panel gone", lambda: not scene.panel())
        return
    scene.desktop.tool("xdotool", "key", "Down", "sleep", "0.2", "key", "Down", "sleep", "0.2",
                       "key", "Return")
    scene.wait("a session by the menu", scene.vantle.marker)


def _beside_bar(scene):
    _, y, width, height = scene.setup.bar
    return (0, height, width, 300) if y == 0 else (0, SCREEN_HEIGHT - height - 300, width, 300)


def _changed(before, after):
    return sum(one != other for one, other in zip(before.pixels(), after.pixels()))


def shortcut_heard(scene):
    """The shortcut starts and stops while another application has the keyboard."""
    typed, _ = scene.open_editor()
    scene.press(SHORTCUT)
    scene.wait("a marker", scene.vantle.marker)
    scene.await_calm()
    scene.press(SHORTCUT)
    scene.wait("a record", scene.vantle.sessions)
    expect(typed.read_text() == "", "the keys get through to the editor")


def press_through_ceremony(scene):
    """A press lands in the window below while the ceremony plays."""
    clicks = _open_clicked(scene)
    x, y, width, height = scene.frame_of(scene.window("Event Tester"))
    place = x + width // 2, y + height // 2
    for _ in range(4):
        count = clicks.read_text().count("ButtonPress")
        scene.toggle()
        scene.wait("the ceremony", lambda: scene.window(OVERLAY))
        scene.click(*place)
        played = scene.window(OVERLAY)
        time.sleep(0.3)
        landed = clicks.read_text().count("ButtonPress") > count
        scene.await_calm()
        if played:
            expect(landed, "the ceremony swallows the press")
            return
    raise AssertionError("no ceremony is long enough to press through")


def _open_clicked(scene, *options):
    clicks = scene.desktop.directory / f"clicks-{time.monotonic_ns()}"
    scene.run("sh", "-c", "exec xev -geometry 300x200+50+600 -event button " +
              " ".join(options) + f" >{clicks}")
    scene.wait("the window for clicks", lambda: scene.window("Event Tester"))
    time.sleep(0.5)
    return clicks


def press_at_top_edge(scene):
    """A press at the top edge lands in a full-screen window below the resting capsule."""
    heard = scene.desktop.directory / f"heard-{time.monotonic_ns()}"
    scene.run("xterm", "-T", "film", "-fullscreen", "-e", "sh", "-c",
              f"printf '\\033[?1000h'; stty raw -echo; exec cat >{heard}")
    film = scene.wait("the full-screen window", lambda: scene.window("film"))
    scene.wait("it over the whole screen", lambda: scene.frame_of(film)[3] >= 880)
    scene.wait("its file", heard.exists)
    time.sleep(0.5)
    for x in (720, 640, 800):
        before = heard.stat().st_size
        scene.desktop.tool("xdotool", "mousemove", str(x), "4", "click", "1")
        time.sleep(0.5)
        expect(heard.stat().st_size > before, f"the press at {x}, 4 does not reach the window")
        scene.desktop.tool("xdotool", "mousemove", "400", "500", "sleep", "0.8")


def card_beside_bar(scene):
    """The card after a session leaves the bar free."""
    before = scene.bar_picture()
    scene.begin()
    scene.await_calm()
    scene.end()
    scene.await_calm()
    scene.wait("the card", lambda: scene.window(CARD))
    time.sleep(0.5)
    scene.desktop.screenshot("card")
    width = scene.setup.bar[2]
    x, _, _, _ = scene.item or (width, 0, 0, 0)
    covered = sum(abs(gray(one) - gray(other)) >= SEEN and not x - 24 <= at % width <= x + 48
                  for at, (one, other) in enumerate(zip(before.pixels(),
                                                        scene.bar_picture().pixels())))
    expect(covered < 200, f"the card covers {covered} px of the bar")


def window_moved(scene):
    """The strip of a window moves it."""
    window = scene.open_window("settings", "Settings")
    scene.shell(scene.setup.float_window)
    time.sleep(0.7)
    x, y, width, _ = scene.frame_of(window)
    start = x + width // 4, y + 15
    scene.desktop.tool("xdotool", "mousemove", *map(str, start), "sleep", "0.2", "mousedown", "1")
    for step in range(1, 13):
        scene.desktop.tool("xdotool", "mousemove", str(start[0] + 10 * step),
                           str(start[1] + 6 * step), "sleep", "0.05")
    scene.desktop.tool("xdotool", "mouseup", "1")
    time.sleep(0.5)
    moved = scene.frame_of(window)
    scene.desktop.tool("xdotool", "mousemove", "200", "800", "sleep", "0.3")
    expect(abs(moved[0] - x) > 40, f"the window stays at {x}, {y}")
    expect(scene.frame_of(window) == moved, "the window moves on after the drop")


def window_minimised(scene):
    """The button that minimises does so, and the window comes back; or there is no such button."""
    window = scene.open_window("settings", "Settings")
    x, y, width, _ = scene.frame_of(window)
    place = x + width - 8 - 24 - 4 - 12, y + 6 + 12
    scene.desktop.tool("xdotool", "mousemove", "400", "500")
    button = scene.desktop.picture(place[0] - 8, place[1] - 8, 16, 16)
    drawn = len({gray(pixel) // 16 for pixel in button.pixels()}) > 1
    if not scene.setup.minimises:
        expect(not drawn, "the button is there, and the window manager can't")
        return
    expect(drawn, "there is no button")
    scene.click(*place)
    scene.wait("no window", lambda: not scene.window("Settings"))
    scene.open_window("settings", "Settings")


def window_fetched(scene):
    """An action opens the window in front of the user who is on another workspace."""
    scene.open_window("settings", "Settings")
    scene.shell(scene.setup.other_workspace)
    scene.wait("the other workspace", lambda: not _is_seen(scene, "Settings"))
    scene.open_window("settings", "Settings")
    scene.wait("the window here", lambda: _is_seen(scene, "Settings"))
    scene.desktop.await_keyboard("Settings")


def _is_seen(scene, title):
    """Whether the window is mapped, inside the screen and on the workspace in use: window managers
    differ in which of these they change for a window of another one."""
    window = scene.window(title)
    if not window or not -10 <= scene.frame_of(window)[0] < SCREEN_WIDTH:
        return False
    place = _number(scene.ask("xprop", "-id", window, "_NET_WM_DESKTOP"))
    return place in (None, EVERYWHERE, _number(scene.ask("xprop", "-root", "_NET_CURRENT_DESKTOP")))


def _number(told):
    match = re.search(r"= (\d+)", told)
    return int(match[1]) if match else None


def window_icon(scene):
    """The window brings its icon along, for task bars and switchers."""
    window = scene.open_window("settings", "Settings")
    told = scene.ask("xprop", "-id", window, "-len", "1000000", "_NET_WM_ICON")
    sizes = re.findall(r"Icon \((\d+) x \d+\)", told)
    expect({"16", "32", "48"} <= set(sizes), f"_NET_WM_ICON has {sizes or 'nothing'}")


def lock_pauses(scene):
    """A locked screen is not counted, and nothing of the program shows over it."""
    if scene.setup.locker is None:
        raise NotHere(scene.setup.no_locker)
    locker = scene.setup.locker
    scene.run(*locker.program)
    time.sleep(2)
    scene.begin()
    begun = time.monotonic()
    scene.await_calm()
    scene.shell(locker.lock)
    time.sleep(9)
    scene.desktop.screenshot("locked")
    scene.shell(locker.unlock)
    time.sleep(1)
    whole = time.monotonic() - begun
    counted = scene.end()["activeSeconds"]
    expect(counted <= whole - 6, f"{counted} of {whole:.0f} s are counted, 9 of them locked")


CHECKS = {
    "tray item": tray_item,
    "panel beside it": panel_beside_item,
    "right click": right_click,
    "shortcut": shortcut_heard,
    "press through the ceremony": press_through_ceremony,
    "press at the top edge": press_at_top_edge,
    "card beside the bar": card_beside_bar,
    "window moved": window_moved,
    "minimised": window_minimised,
    "from another workspace": window_fetched,
    "window icon": window_icon,
    "lock": lock_pauses,
}

