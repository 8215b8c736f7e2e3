#!/usr/bin/python3
"""do_not_disturb_test.py <source tree>: the shortcuts that silence the desktop, each way of it.

The services of the desktops are stand-ins on a bus of their own, which starts nothing.
"""

import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

import dbus
import dbus.bus
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

NOTIFICATIONS = "org.freedesktop.Notifications"
PROPERTIES = "org.freedesktop.DBus.Properties"
SOURCE = Path()

SCHEMA = """<schemalist>
 <schema id="org.gnome.desktop.notifications" path="/org/gnome/desktop/notifications/">
  <key name="show-banners" type="b"><default>true</default></key>
 </schema>
</schemalist>"""


class Server(dbus.service.Object):
    """Who shows notifications, with the switches of dunst, mako and Plasma."""

    def __init__(self, bus, name):
        super().__init__(bus, "/org/freedesktop/Notifications")
        self.name = name
        self.is_inhibited = False
        self.paused = []  # what was set

    @dbus.service.method(NOTIFICATIONS, out_signature="ssss")
    def GetServerInformation(self):
        return self.name, "maker", "1", "1.2"

    @dbus.service.method(PROPERTIES, in_signature="ss", out_signature="v")
    def Get(self, interface, name):
        assert (interface, name) == (NOTIFICATIONS, "Inhibited")
        return dbus.Boolean(self.is_inhibited)

    @dbus.service.method(PROPERTIES, in_signature="ssv")
    def Set(self, interface, name, value):
        assert (interface, name) == ("org.dunstproject.cmd0", "paused")
        self.paused.append(bool(value))


class Modes(dbus.service.Object):
    """mako's."""

    def __init__(self, bus, modes):
        super().__init__(bus, "/fr/emersion/Mako")
        self.modes = modes

    @dbus.service.method("fr.emersion.Mako", out_signature="as")
    def ListModes(self):
        return dbus.Array(self.modes, signature="s")

    @dbus.service.method("fr.emersion.Mako", in_signature="as")
    def SetModes(self, modes):
        self.modes = [str(mode) for mode in modes]


class Shortcuts(dbus.service.Object):
    """Plasma's, of which the one in question toggles."""

    def __init__(self, bus, server):
        super().__init__(bus, "/component/plasmashell")
        self._server = server

    @dbus.service.method("org.kde.kglobalaccel.Component", in_signature="s")
    def invokeShortcut(self, name):
        assert name == "toggle do not disturb"
        self._server.is_inhibited = not self._server.is_inhibited


class Channels(dbus.service.Object):
    """Xfce's settings."""

    def __init__(self, bus):
        super().__init__(bus, "/org/xfce/Xfconf")
        self.values = []

    @dbus.service.method("org.xfce.Xfconf", in_signature="ssv")
    def SetProperty(self, channel, name, value):
        self.values.append((str(channel), str(name), type(value), bool(value)))


class Unresponsive(dbus.service.Object):
    """Takes calls and never answers."""

    @dbus.service.method(NOTIFICATIONS, async_callbacks=("answer", "fail"))
    def GetServerInformation(self, answer, fail):
        pass


class DoNotDisturb(unittest.TestCase):

    def setUp(self):
        directory = tempfile.TemporaryDirectory(prefix="vantle-quiet.")
        self.addCleanup(directory.cleanup)
        self.directory = Path(directory.name)
        self.folder = SOURCE / "resources/shortcuts"
        daemon = subprocess.Popen(
            ["dbus-daemon", f"--config-file={SOURCE}/tests/support/session-bus.conf", "--nofork",
             "--print-address=1", f"--address=unix:dir={self.directory}"], stdout=subprocess.PIPE,
            text=True)
        self.addCleanup(daemon.communicate)
        self.addCleanup(daemon.terminate)
        address = daemon.stdout.readline().strip()
        self.bus = dbus.bus.BusConnection(address)
        self.bus.set_exit_on_disconnect(False)
        self.addCleanup(self.bus.close)
        self.env = {"PATH": "/usr/bin:/bin", "DBUS_SESSION_BUS_ADDRESS": address,
                    "HOME": str(self.directory), "XDG_RUNTIME_DIR": str(self.directory)}

    def serve(self, name):
        self.bus.request_name(NOTIFICATIONS)
        return Server(self.bus, name)

    def press(self, which, limit=20.0):
        """Runs one of the two while the stand-ins answer."""
        process = subprocess.Popen([self.folder / f"Do Not Disturb {which}"], env=self.env,
                                   stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                   stderr=subprocess.STDOUT)
        end = time.monotonic() + limit
        looks = GLib.timeout_add(5, lambda: True)
        while process.poll() is None and time.monotonic() < end:
            GLib.MainContext.default().iteration(True)
        GLib.source_remove(looks)
        if process.poll() is None:
            process.kill()
        printed, _ = process.communicate()
        self.assertEqual((process.returncode, printed), (0, b""))

    def test_dunst_is_paused(self):
        dunst = self.serve("dunst")
        self.press("on")
        self.assertEqual(dunst.paused, [True])
        self.press("off")
        self.assertEqual(dunst.paused, [True, False])

    def test_mako_keeps_its_other_modes(self):
        self.serve("mako")
        mako = Modes(self.bus, ["default", "at-work"])
        for which, modes in (("on", ["default", "at-work", "do-not-disturb"]),
                             ("on", ["default", "at-work", "do-not-disturb"]),
                             ("off", ["default", "at-work"]), ("off", ["default", "at-work"])):
            self.press(which)
            self.assertEqual(mako.modes, modes)

    def test_mako_without_a_mode_gets_its_first_and_loses_its_last(self):
        self.serve("mako")
        mako = Modes(self.bus, [])
        self.press("on")
        self.assertEqual(mako.modes, ["do-not-disturb"])
        self.press("off")
        self.assertEqual(mako.modes, [])

    def test_plasma_is_toggled_only_where_it_is_the_other_way(self):
        plasma = self.serve("Plasma")
        self.bus.request_name("org.kde.kglobalaccel")
        Shortcuts(self.bus, plasma)
        for which, inhibited in (("on", True), ("on", True), ("off", False), ("off", False)):
            self.press(which)
            self.assertEqual(plasma.is_inhibited, inhibited)

    def test_xfce_is_told_by_its_settings(self):
        self.serve("Xfce Notify Daemon")
        self.bus.request_name("org.xfce.Xfconf")
        xfce = Channels(self.bus)
        self.press("on")
        self.press("off")
        self.assertEqual(xfce.values,
                         [("xfce4-notifyd", "/do-not-disturb", dbus.Boolean, True),
                          ("xfce4-notifyd", "/do-not-disturb", dbus.Boolean, False)])

    def test_xfce_is_told_before_its_first_notification(self):
        self.bus.request_name("org.xfce.Xfconf")
        xfce = Channels(self.bus)
        self.press("on")
        self.assertEqual([value for *_, value in xfce.values], [True])

    def test_gnome_shows_no_banners(self):
        schemas = self.directory / "schemas"
        schemas.mkdir()
        (schemas / "quiet.gschema.xml").write_text(SCHEMA)
        subprocess.run(["glib-compile-schemas", schemas], check=True)
        self.env |= {"GSETTINGS_SCHEMA_DIR": str(schemas), "GSETTINGS_BACKEND": "keyfile"}
        self.serve("gnome-shell")
        for which, banners in (("on", "false"), ("off", "true")):
            self.press(which)
            asked = subprocess.run(["gsettings", "get", "org.gnome.desktop.notifications",
                                    "show-banners"], env=self.env, capture_output=True, text=True,
                                   check=True)
            self.assertEqual(asked.stdout.strip(), banners)

    def test_gnome_without_its_schemas_prints_nothing(self):
        self.env["GSETTINGS_SCHEMA_DIR"] = str(self.directory)
        self.env["XDG_DATA_DIRS"] = str(self.directory)
        self.serve("gnome-shell")
        self.press("on")

    def test_known_services_whose_switch_is_missing_are_no_failure(self):
        for name in ("Plasma", "mako", "Xfce Notify Daemon", "dunst", "another"):
            server = self.serve(name)
            self.press("on")
            self.press("off")
            server.remove_from_connection()

    def test_no_service_and_no_bus_are_no_failure(self):
        self.press("on")
        self.env["DBUS_SESSION_BUS_ADDRESS"] = "disabled:"
        self.press("off")

    def test_service_that_never_answers_holds_it_up_for_seconds_only(self):
        self.bus.request_name(NOTIFICATIONS)
        Unresponsive(self.bus, "/org/freedesktop/Notifications")
        self.press("on")


if __name__ == "__main__":
    dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
    SOURCE = Path(sys.argv[1]).resolve()
    unittest.main(argv=sys.argv[:1])
