"""Calls over a desktop's session bus, each on a connection of its own."""

import contextlib

import dbus
import dbus.bus

from .threads import threads_of
from .waiting import PATIENCE

PROGRAM_NAME = "local.vantle.Vantle"
PROGRAM_PATH = "/local/vantle/Vantle"
APPLICATION = "org.freedesktop.Application"


@contextlib.contextmanager
def connected(desktop):
    """A connection to the bus for the length of the block."""
    connection = dbus.bus.BusConnection(desktop.env["DBUS_SESSION_BUS_ADDRESS"])
    connection.set_exit_on_disconnect(False)
    try:
        yield connection
    finally:
        connection.close()


def owner_of(desktop, name):
    """The connection that owns the name; None without an owner."""
    with connected(desktop) as connection:
        return connection.get_name_owner(name) if connection.name_has_owner(name) else None


def process_of(desktop, name):
    """The process that owns the name; None without an owner."""
    with connected(desktop) as connection:
        try:
            return int(connection.call_blocking(
                dbus.BUS_DAEMON_NAME, dbus.BUS_DAEMON_PATH, dbus.BUS_DAEMON_IFACE,
                "GetConnectionUnixProcessID", "s", (name,)))
        except dbus.DBusException:
            return None


def call(desktop, service, path, interface, method, *arguments):
    """Calls a method and returns its answer. Without one, tells what the service is at."""
    with connected(desktop) as connection:
        target = connection.get_object(service, path, introspect=False)
        try:
            return dbus.Interface(target, interface).get_dbus_method(method)(
                *arguments, timeout=25 * PATIENCE)
        except dbus.DBusException as error:
            if error.get_dbus_name() != "org.freedesktop.DBus.Error.NoReply":
                raise
            pid = process_of(desktop, service)
            raise AssertionError(f"{error}\n{threads_of(pid) if pid else 'gone'}") from error


def session_of(desktop):
    """What the program tells bars of the session."""
    return call(desktop, PROGRAM_NAME, PROGRAM_PATH, "org.freedesktop.DBus.Properties", "GetAll",
                "local.vantle.Session1")


def activate(desktop):
    """Activates the program, as a launcher does for one that runs already."""
    call(desktop, PROGRAM_NAME, PROGRAM_PATH, APPLICATION, "Activate",
         dbus.Dictionary({}, signature="sv"))


def activate_action(desktop, action):
    """Runs one of the program's actions, as a key bound on the desktop does."""
    call(desktop, PROGRAM_NAME, PROGRAM_PATH, APPLICATION, "ActivateAction", action,
         dbus.Array([], signature="v"), dbus.Dictionary({}, signature="sv"))
