"""A tray of the StatusNotifierItem kind, which tells what is in it.

The watcher with its host is a process of its own; what the item says of itself is read from it over
the bus, as a panel reads it.
"""

from dataclasses import dataclass

import dbus
import dbus.service

from .bus import call
from .service import Service, serve
from .waiting import wait_until

WATCHER = "org.kde.StatusNotifierWatcher"
WATCHER_PATH = "/StatusNotifierWatcher"
ITEM = "org.kde.StatusNotifierItem"
MENU = "com.canonical.dbusmenu"
PROPERTIES = "org.freedesktop.DBus.Properties"


@dataclass(frozen=True)
class Pixmap:
    """An icon as it goes over the bus: four bytes a pixel, alpha, red, green, blue."""

    width: int
    height: int
    argb: bytes

    def pixel(self, x, y):
        start = 4 * (y * self.width + x)
        return tuple(self.argb[start:start + 4])

    def centre(self):
        return self.pixel(self.width // 2, self.height // 2)


class Notifier(Service):
    """The tray from start() to stop(). To be started before the program that is to show in it."""

    def __init__(self, desktop):
        super().__init__(desktop, __name__)

    def items(self):
        """The items in the tray, each as service and path."""
        answer = call(self._desktop, WATCHER, WATCHER_PATH, PROPERTIES, "Get", WATCHER,
                      "RegisteredStatusNotifierItems")
        return [tuple(str(item).split("|")) for item in answer]

    def await_item(self, deadline=30.0):
        """Waits until exactly one item is there."""
        wait_until("an item in the tray", lambda: len(self.items()) == 1, deadline)

    def tool_tip(self):
        """The text over the item."""
        _icon, _pixmaps, title, text = self._read("ToolTip")
        return " ".join(str(part) for part in (title, text) if part)

    def pixmap(self, size=None):
        """The image of the item: the one of that width, else the largest."""
        images = [Pixmap(int(width), int(height), bytes(argb))
                  for width, height, argb in self._read("IconPixmap")]
        fitting = [image for image in images if image.width == size]
        return (fitting or sorted(images, key=lambda image: image.width))[-1]

    def menu(self):
        """The lines of the item's menu: their texts, each with its id."""
        _revision, (_id, _properties, lines) = self._call_menu(
            "GetLayout", 0, -1, dbus.Array([], signature="s"))
        return {str(properties["label"]): int(line) for line, properties, _below in lines}

    def choose(self, text):
        """Clicks the line of the menu that says so."""
        self._call_menu("Event", dbus.Int32(self.menu()[text]), "clicked",
                        dbus.String("", variant_level=1), dbus.UInt32(0))

    def _call_menu(self, method, *arguments):
        (service, _path), = self.items()
        return call(self._desktop, service, self._read("Menu"), MENU, method, *arguments)

    def activate(self, x, y):
        """A click on the item, which is told only where that was."""
        (service, path), = self.items()
        call(self._desktop, service, path, ITEM, "Activate", x, y)

    def _read(self, name):
        (service, path), = self.items()
        return call(self._desktop, service, path, PROPERTIES, "Get", ITEM, name)


class _Watcher(dbus.service.Object):
    """Keeps the list of items, a host being always there."""

    def __init__(self, connection):
        super().__init__(connection, WATCHER_PATH)
        self._connection = connection
        self._items = []

    @dbus.service.method(WATCHER, in_signature="s", sender_keyword="sender")
    def RegisterStatusNotifierItem(self, service, sender=None):
        entry = f"{sender}|{service}" if service.startswith("/") \
            else f"{service}|/StatusNotifierItem"
        if entry not in self._items:
            self._items.append(entry)
            self._connection.watch_name_owner(
                sender, lambda owner: owner or self._items.remove(entry))

    @dbus.service.method(WATCHER, in_signature="s")
    def RegisterStatusNotifierHost(self, service):
        """The one host is built in."""

    @dbus.service.method(PROPERTIES, in_signature="ss", out_signature="v")
    def Get(self, _interface, name):
        return self.GetAll(WATCHER)[name]

    @dbus.service.method(PROPERTIES, in_signature="s", out_signature="a{sv}")
    def GetAll(self, _interface):
        return {"IsStatusNotifierHostRegistered": dbus.Boolean(True),
                "ProtocolVersion": dbus.Int32(0),
                "RegisteredStatusNotifierItems": dbus.Array(self._items, signature="s")}

    # Clients look for the properties here before they ask for one.
    @dbus.service.method("org.freedesktop.DBus.Introspectable", out_signature="s")
    def Introspect(self):
        return f"""<!DOCTYPE node PUBLIC "-//freedesktop//DTD D-BUS Object Introspection 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/introspect.dtd">
<node><interface name="{WATCHER}">
 <method name="RegisterStatusNotifierItem"><arg type="s" direction="in"/></method>
 <method name="RegisterStatusNotifierHost"><arg type="s" direction="in"/></method>
 <property name="RegisteredStatusNotifierItems" type="as" access="read"/>
 <property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
 <property name="ProtocolVersion" type="i" access="read"/>
</interface><interface name="{PROPERTIES}">
 <method name="Get"><arg type="s" direction="in"/><arg type="s" direction="in"/>
  <arg type="v" direction="out"/></method>
 <method name="GetAll"><arg type="s" direction="in"/><arg type="a{{sv}}" direction="out"/></method>
</interface></node>"""


def _watch(connection):
    watcher = _Watcher(connection)  # answers for as long as it is held
    connection.request_name(WATCHER)
    return watcher


if __name__ == "__main__":
    serve(_watch)
