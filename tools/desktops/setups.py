"""The desktops that Debian 12 has, as far as they matter to the program: one entry a set-up.

A set-up is the window manager, the bar with its tray, the compositor and the locker that people of
that desktop have. A new one is one more entry.
"""

from dataclasses import dataclass, field

SCREEN_WIDTH, SCREEN_HEIGHT = 1440, 900


@dataclass(frozen=True)
class Start:
    """A program of the desktop, and by what it is known to be up: a name on the bus
    ("bus:org.example"), a visible window of a class ("class:trayer"), the window manager's own mark
    ("wm"), or nothing."""

    command: tuple
    up: str = ""


@dataclass(frozen=True)
class Lock:
    """How the screen is locked and unlocked, by shell commands. The locker runs all the while."""

    program: tuple
    lock: str
    unlock: str  # empty where that takes a password: the locker is ended with the desktop


@dataclass(frozen=True)
class Setup:
    name: str
    packages: tuple
    starts: tuple
    bar: tuple                                 # where the tray is: x, y, width, height
    files: dict = field(default_factory=dict)  # below the configuration directory: text
    env: dict = field(default_factory=dict)
    before: tuple = ()                         # shell commands before the first start
    after: tuple = ()                          # and after the last
    other_workspace: str = "xdotool set_desktop 1"
    float_window: str = ""  # makes the active window float, where windows are tiled
    minimises: bool = True  # the window manager can
    locker: Lock = None
    no_locker: str = ""     # why there is none
    suite: str = "bookworm"  # the Debian that has it


def top(height):
    return (0, 0, SCREEN_WIDTH, height)


def bottom(height):
    return (0, SCREEN_HEIGHT - height, SCREEN_WIDTH, height)


TRAYER = Start(("trayer", "--edge", "top", "--align", "right", "--widthtype", "request",
                "--height", "26", "--SetDockType", "true", "--SetPartialStrut", "true",
                "--expand", "true", "--transparent", "true", "--alpha", "0", "--tint",
                "0x202020"), "class:trayer")
PICOM = Start(("picom", "--config", "/dev/null", "--backend", "xrender", "--no-vsync"))
MATE_LOCK = Lock(("mate-screensaver", "--no-daemon"), "mate-screensaver-command --lock",
                 "mate-screensaver-command --exit")
I3LOCK = "i3lock sends no signal; xss-lock needs logind, which a private bus does not have"

# It refuses to lock for root, as whom such checks often run.
AS_USER = """as=; if [ "$(id -u)" = 0 ]; then
    chmod 711 "$HOME/.."; install -d -o nobody -m 700 "$HOME/../nobody"
    as="setpriv --reuid nobody --regid nogroup --clear-groups env HOME=$HOME/../nobody"
fi; """
XSCREENSAVER = Lock(("sh", "-c", AS_USER + "exec $as xscreensaver --no-splash"),
                    AS_USER + "$as xscreensaver-command -lock", "")

XFCE_PANEL = """<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0">
  <property name="configver" type="int" value="2"/>
  <property name="panels" type="array">
    <value type="int" value="1"/>
    <property name="panel-1" type="empty">
      <property name="position" type="string" value="p=6;x=0;y=0"/>
      <property name="length" type="uint" value="100"/>
      <property name="position-locked" type="bool" value="true"/>
      <property name="size" type="uint" value="26"/>
      <property name="plugin-ids" type="array">
        <value type="int" value="1"/><value type="int" value="2"/><value type="int" value="3"/>
      </property>
    </property>
  </property>
  <property name="plugins" type="empty">
    <property name="plugin-1" type="string" value="tasklist"/>
    <property name="plugin-2" type="string" value="separator">
      <property name="expand" type="bool" value="true"/>
    </property>
    <property name="plugin-3" type="string" value="systray"/>
  </property>
</channel>
"""

LXQT_PANEL = """[General]
__userfile__=true
panels=panel1
[panel1]
plugins=taskbar, statusnotifier
position=Bottom
panelSize=32
[taskbar]
type=taskbar
alignment=Left
[statusnotifier]
type=statusnotifier
alignment=Right
"""

I3_CONFIG = """font pango:monospace 10
floating_modifier Mod1
bar {
    position bottom
    tray_output primary
    status_command while :; do echo work; sleep 60; done
}
"""

POLYBAR = """[bar/top]
width = 100%
height = 26
background = #202020
foreground = #e0e0e0
modules-left = name
tray-position = right
wm-restack = bspwm
[module/name]
type = custom/text
content = work
"""

FLUXBOX_INIT = """session.screen0.toolbar.placement: BottomCenter
session.screen0.toolbar.widthPercent: 100
session.screen0.toolbar.height: 26
session.screen0.toolbar.tools: workspacename, iconbar, systemtray
session.screen0.workspaces: 2
"""

SETUPS = (
    Setup("Xfce", ("xfwm4", "xfce4-panel", "xfconf", "xscreensaver"),
          (Start(("/usr/lib/x86_64-linux-gnu/xfce4/xfconf/xfconfd",), "bus:org.xfce.Xfconf"),
           Start(("xfwm4", "--compositor=on", "--vblank=off"), "wm"),
           Start(("xfce4-panel", "--disable-wm-check"), "bus:org.kde.StatusNotifierWatcher")),
          top(26), {"xfce4/xfconf/xfce-perchannel-xml/xfce4-panel.xml": XFCE_PANEL},
          {"XDG_CURRENT_DESKTOP": "XFCE"}, locker=XSCREENSAVER),
    Setup("MATE", ("marco", "mate-panel", "mate-screensaver", "dconf-service"),
          (Start(("/usr/libexec/dconf-service",), "bus:ca.desrt.dconf"),
           Start(("marco", "--composite"), "wm"),
           Start(("/usr/lib/mate-panel/notification-area-applet",),
                 "bus:org.mate.panel.applet.NotificationAreaAppletFactory"),
           Start(("/usr/lib/mate-panel/wnck-applet",),
                 "bus:org.mate.panel.applet.WnckletFactory"),
           Start(("/usr/lib/mate-panel/clock-applet",),
                 "bus:org.mate.panel.applet.ClockAppletFactory"),
           Start(("mate-panel",), "bus:org.kde.StatusNotifierWatcher")),
          top(24), env={"XDG_CURRENT_DESKTOP": "MATE"}, locker=MATE_LOCK),
    Setup("LXQt, dark", ("openbox", "lxqt-panel", "lxqt-themes", "xscreensaver"),
          (Start(("openbox",), "wm"),
           Start(("lxqt-panel",), "bus:org.kde.StatusNotifierWatcher")),
          bottom(32), {"lxqt/panel.conf": LXQT_PANEL, "lxqt/lxqt.conf": "[General]\ntheme=dark\n"},
          {"XDG_CURRENT_DESKTOP": "LXQt"}, locker=XSCREENSAVER),
    Setup("i3", ("i3-wm",),
          (Start(("i3",), "wm"),), bottom(24), {"i3/config": I3_CONFIG},
          after=("xdotool sleep 1",), other_workspace="i3-msg workspace 2",
          float_window="i3-msg floating enable", minimises=False, no_locker=I3LOCK),
    Setup("awesome", ("awesome", "xscreensaver"),
          (Start(("awesome",), "wm"),), top(24), float_window="awesome-client "
          "'client.focus.floating = true'", locker=XSCREENSAVER),
    Setup("bspwm, polybar", ("bspwm", "polybar"),
          (Start(("bspwm", "-c", "/bin/true"), "wm"),
           Start(("polybar", "--config={config}/polybar.ini", "top"), "class:polybar")),
          top(26), {"polybar.ini": POLYBAR}, after=("bspc monitor -d 1 2",),
          other_workspace="bspc desktop -f 2", float_window="bspc node -t floating",
          minimises=False, no_locker=I3LOCK),
    Setup("fluxbox", ("fluxbox", "xscreensaver"),
          (Start(("fluxbox", "-rc", "{config}/fluxbox-init"), "wm"),),
          bottom(26), {"fluxbox-init": FLUXBOX_INIT}, locker=XSCREENSAVER),
    Setup("KWin, trayer", ("kwin-x11", "trayer", "xscreensaver"),
          (Start(("kwin_x11",), "wm"), TRAYER), top(26),
          env={"XDG_CURRENT_DESKTOP": "KDE", "KDE_FULL_SESSION": "true"},
          after=("xdotool set_num_desktops 2",), locker=XSCREENSAVER),
    Setup("openbox, trayer, picom", ("openbox", "trayer", "picom", "xscreensaver"),
          (Start(("openbox",), "wm"), PICOM, TRAYER), top(26), locker=XSCREENSAVER),
)
