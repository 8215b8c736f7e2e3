"""A desktop's clipboard manager: takes over what a program leaves in the clipboard at its end."""

import ctypes
import threading
import time

_SELECTION_REQUEST = 30
_SELECTION_NOTIFY = 31
_ALL_EVENTS_SIZE = 24  # longs in an XEvent


class _Request(ctypes.Structure):
    """XSelectionRequestEvent."""

    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("sent", ctypes.c_int),
                ("display", ctypes.c_void_p), ("owner", ctypes.c_ulong),
                ("requestor", ctypes.c_ulong), ("selection", ctypes.c_ulong),
                ("target", ctypes.c_ulong), ("property", ctypes.c_ulong), ("time", ctypes.c_ulong)]


class _Notify(ctypes.Structure):
    """XSelectionEvent."""

    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("sent", ctypes.c_int),
                ("display", ctypes.c_void_p), ("requestor", ctypes.c_ulong),
                ("selection", ctypes.c_ulong), ("target", ctypes.c_ulong),
                ("property", ctypes.c_ulong), ("time", ctypes.c_ulong)]


class _Event(ctypes.Union):
    _fields_ = [("type", ctypes.c_int), ("request", _Request), ("notify", _Notify),
                ("room", ctypes.c_long * _ALL_EVENTS_SIZE)]


class ClipboardManager:
    """Asks for one kind of content when a program hands its clipboard over; `taken` is that.

    On a thread and a connection of its own from start() to stop().
    """

    def __init__(self, display, kind):
        self.taken = None
        self._kind = kind
        self._stopping = False
        x11 = self._x11 = ctypes.CDLL("libX11.so.6")
        x11.XOpenDisplay.restype = ctypes.c_void_p
        x11.XDefaultRootWindow.restype = ctypes.c_ulong
        x11.XCreateSimpleWindow.restype = ctypes.c_ulong
        x11.XInternAtom.restype = ctypes.c_ulong
        self._display = ctypes.c_void_p(x11.XOpenDisplay(display.encode()))
        root = ctypes.c_ulong(x11.XDefaultRootWindow(self._display))
        self._window = ctypes.c_ulong(
            x11.XCreateSimpleWindow(self._display, root, 0, 0, 1, 1, 0, 0, 0))
        self._thread = threading.Thread(target=self._serve)

    def start(self):
        self._x11.XSetSelectionOwner(self._display, self._atom("CLIPBOARD_MANAGER"), self._window,
                                     ctypes.c_ulong(0))
        self._x11.XSync(self._display, 0)
        self._thread.start()

    def stop(self):
        self._stopping = True
        self._thread.join()
        self._x11.XCloseDisplay(self._display)

    def _atom(self, name):
        return ctypes.c_ulong(self._x11.XInternAtom(self._display, name.encode(), 0))

    def _next(self, kind):
        """The next event of that kind; none once the manager is to stop."""
        event = _Event()
        while not self._stopping:
            if self._x11.XCheckTypedEvent(self._display, kind, ctypes.byref(event)):
                return event
            time.sleep(0.005)
        return None

    def _serve(self):
        while (event := self._next(_SELECTION_REQUEST)) is not None:
            request = event.request
            if request.target == self._atom("SAVE_TARGETS").value:
                self._x11.XConvertSelection(
                    self._display, self._atom("CLIPBOARD"), self._atom(self._kind),
                    self._atom("VANTLE_TAKEN"), self._window, ctypes.c_ulong(0))
                if self._next(_SELECTION_NOTIFY) is not None:
                    self.taken = self._content()
            self._answer(request)

    def _content(self):
        """What lies in the window's property, in one piece."""
        kind, size, after = ctypes.c_ulong(), ctypes.c_ulong(), ctypes.c_ulong()
        width, data = ctypes.c_int(), ctypes.c_void_p()
        self._x11.XGetWindowProperty(
            self._display, self._window, self._atom("VANTLE_TAKEN"), ctypes.c_long(0),
            ctypes.c_long(1 << 22), 1, ctypes.c_ulong(0), ctypes.byref(kind), ctypes.byref(width),
            ctypes.byref(size), ctypes.byref(after), ctypes.byref(data))
        content = ctypes.string_at(data, size.value * width.value // 8)
        self._x11.XFree(data)
        return content

    def _answer(self, request):
        event = _Event()
        event.notify = _Notify(type=_SELECTION_NOTIFY, requestor=request.requestor,
                               selection=request.selection, target=request.target,
                               property=request.property, time=request.time)
        self._x11.XSendEvent(self._display, ctypes.c_ulong(request.requestor), 0,
                             ctypes.c_long(0), ctypes.byref(event))
        self._x11.XSync(self._display, 0)
