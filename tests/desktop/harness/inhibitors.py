"""A session manager that applications ask to keep the session awake, as GNOME's is asked.

It and the application in a call are processes of their own. An inhibitor lasts until its
application gives it back or leaves the bus.
"""

import sys

import dbus
import dbus.service

from .service import Service, serve

NAME = "org.gnome.SessionManager"
PATH = "/org/gnome/SessionManager"
IDLE = 8


class SessionManager(Service):
    """Started without anything that keeps the session awake."""

    def __init__(self, desktop):
        super().__init__(desktop, __name__, "manager")


class Phone(Service):
    """An application that is in a call while it runs."""

    def __init__(self, desktop):
        super().__init__(desktop, __name__, "phone")


class _Manager(dbus.service.Object):

    def __init__(self, connection):
        super().__init__(connection, PATH)
        self._connection = connection
        self._flags = {}  # by cookie

    @dbus.service.method(NAME, in_signature="susu", out_signature="u", sender_keyword="sender")
    def Inhibit(self, _application, _window, _reason, flags, sender=None):
        cookie = len(self._flags) + 1
        self._flags[cookie] = int(flags)
        self._connection.watch_name_owner(sender, lambda owner: owner or self._drop(cookie))
        self.InhibitorAdded(f"{PATH}/Inhibitor{cookie}")
        return cookie

    def _drop(self, cookie):
        if self._flags.get(cookie):
            self._flags[cookie] = 0
            self.InhibitorRemoved(f"{PATH}/Inhibitor{cookie}")

    @dbus.service.signal(NAME, signature="o")
    def InhibitorAdded(self, _inhibitor):
        """Told after the fact."""

    @dbus.service.signal(NAME, signature="o")
    def InhibitorRemoved(self, _inhibitor):
        """Told after the fact."""

    @dbus.service.method(NAME, in_signature="u", out_signature="b")
    def IsInhibited(self, flags):
        return any(held & flags for held in self._flags.values())


def _manage(connection):
    manager = _Manager(connection)  # answers for as long as it is held
    connection.request_name(NAME)
    return manager


def _call(connection):
    manager = dbus.Interface(connection.get_object(NAME, PATH, introspect=False), NAME)
    manager.Inhibit("a phone", dbus.UInt32(0), "in a call", dbus.UInt32(IDLE))


if __name__ == "__main__":
    serve({"manager": _manage, "phone": _call}[sys.argv[1]])
