"""Questions to the X server over a connection of our own: a tool takes longer to start than some
windows stand."""

import ctypes
import re
import time

IS_VIEWABLE = 2
XA_STRING = 31
REPLACE = 0
NAMELESS = (0, 1)  # the focus is nowhere, or with the pointer

_IOErrorHandler = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p)
_ErrorHandler = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_void_p)
_ExitHandler = ctypes.CFUNCTYPE(None, ctypes.c_void_p, ctypes.c_void_p)


class _Attributes(ctypes.Structure):
    """XWindowAttributes."""

    _fields_ = [("x", ctypes.c_int), ("y", ctypes.c_int), ("width", ctypes.c_int),
                ("height", ctypes.c_int), ("border_width", ctypes.c_int), ("depth", ctypes.c_int),
                ("visual", ctypes.c_void_p), ("root", ctypes.c_ulong), ("kind", ctypes.c_int),
                ("bit_gravity", ctypes.c_int), ("win_gravity", ctypes.c_int),
                ("backing_store", ctypes.c_int), ("backing_planes", ctypes.c_ulong),
                ("backing_pixel", ctypes.c_ulong), ("save_under", ctypes.c_int),
                ("colormap", ctypes.c_ulong), ("map_installed", ctypes.c_int),
                ("map_state", ctypes.c_int), ("all_event_masks", ctypes.c_long),
                ("your_event_mask", ctypes.c_long), ("do_not_propagate_mask", ctypes.c_long),
                ("override_redirect", ctypes.c_int), ("screen", ctypes.c_void_p)]


class _ClassHint(ctypes.Structure):
    """XClassHint."""

    _fields_ = [("name", ctypes.c_void_p), ("kind", ctypes.c_void_p)]


# A window that goes while it is asked about is no error here, nor is a server that ends before us.
_ignore_error = _ErrorHandler(lambda *_: 0)
_ignore_end = _IOErrorHandler(lambda *_: 0)
_stay = _ExitHandler(lambda *_: None)


def _library():
    x11 = ctypes.CDLL("libX11.so.6")
    pointer, window = ctypes.c_void_p, ctypes.c_ulong
    for name, result, arguments in (
            ("XOpenDisplay", pointer, [ctypes.c_char_p]),
            ("XCloseDisplay", ctypes.c_int, [pointer]),
            ("XDefaultRootWindow", window, [pointer]),
            ("XSetErrorHandler", pointer, [_ErrorHandler]),
            ("XQueryTree", ctypes.c_int, [pointer, window, ctypes.POINTER(window),
                                          ctypes.POINTER(window),
                                          ctypes.POINTER(ctypes.POINTER(window)),
                                          ctypes.POINTER(ctypes.c_uint)]),
            ("XGetWindowAttributes", ctypes.c_int, [pointer, window,
                                                    ctypes.POINTER(_Attributes)]),
            ("XFetchName", ctypes.c_int, [pointer, window, ctypes.POINTER(pointer)]),
            ("XGetClassHint", ctypes.c_int, [pointer, window, ctypes.POINTER(_ClassHint)]),
            ("XGetInputFocus", ctypes.c_int, [pointer, ctypes.POINTER(window),
                                              ctypes.POINTER(ctypes.c_int)]),
            ("XFree", ctypes.c_int, [pointer]),
            ("XInternAtom", ctypes.c_ulong, [pointer, ctypes.c_char_p, ctypes.c_int]),
            ("XChangeProperty", ctypes.c_int, [pointer, window, ctypes.c_ulong, ctypes.c_ulong,
                                               ctypes.c_int, ctypes.c_int, ctypes.c_char_p,
                                               ctypes.c_int]),
            ("XFlush", ctypes.c_int, [pointer])):
        function = getattr(x11, name)
        function.restype, function.argtypes = result, arguments
    x11.XSetErrorHandler(_ignore_error)
    return x11


def stays(x11, display):
    """Keeps this process alive when the server of the display ends: Xlib would end it."""
    x11.XSetIOErrorHandler.argtypes = [_IOErrorHandler]
    x11.XSetIOErrorHandler(_ignore_end)
    x11.XSetIOErrorExitHandler.restype = None
    x11.XSetIOErrorExitHandler.argtypes = [ctypes.c_void_p, _ExitHandler, ctypes.c_void_p]
    x11.XSetIOErrorExitHandler(display, _stay, None)


class Display:
    """The windows of a display. Ids are decimal texts, as the tools have them."""

    def __init__(self, name):
        self._x11 = _library()
        self._display = self._x11.XOpenDisplay(name.encode())
        if not self._display:
            raise RuntimeError(f"no connection to {name}")
        stays(self._x11, self._display)
        self._woken = 0.0

    def close(self):
        self._x11.XCloseDisplay(self._display)

    def windows_named(self, title):
        """The visible windows of that title, from the root down."""
        found = [str(one) for one in self._visible() if self._title(one) == title]
        if not found:
            self.wake_window_manager()
        return found

    def wake_window_manager(self):
        """Changes a property of the root, twice a second at the most. Now and then openbox sleeps
        with a request to map a window in its queue, and goes on at the next event."""
        if time.monotonic() - self._woken < 0.5:
            return
        self._woken = time.monotonic()
        root = self._x11.XDefaultRootWindow(self._display)
        name = self._x11.XInternAtom(self._display, b"_VANTLE_TESTS_LOOK", 0)
        self._x11.XChangeProperty(self._display, root, name, XA_STRING, 8, REPLACE, b"1", 1)
        self._x11.XFlush(self._display)

    def windows_of_class(self, pattern):
        """The visible windows whose class, or its instance's name, fits."""
        fits = re.compile(pattern, re.IGNORECASE).search
        return [str(one) for one in self._visible()
                if any(fits(word) for word in self._class(one))]

    def keyboard(self):
        """The windows that get what is typed: the one with the focus and those above it, except
        the root. Empty when no window has it."""
        focus, revert = ctypes.c_ulong(), ctypes.c_int()
        self._x11.XGetInputFocus(self._display, focus, revert)
        found, here = [], focus.value
        root = self._x11.XDefaultRootWindow(self._display)
        while here not in (*NAMELESS, root):
            found.append(str(here))
            here = self._parent_and_children(here)[0]
        return found

    def _visible(self):
        waiting = [self._x11.XDefaultRootWindow(self._display)]
        while waiting:
            one = waiting.pop(0)
            attributes = _Attributes()
            if not self._x11.XGetWindowAttributes(self._display, one, attributes):
                continue
            if attributes.map_state == IS_VIEWABLE:
                yield one
                # What is in a window that can't be seen can't be either.
                waiting += self._parent_and_children(one)[1]

    def _parent_and_children(self, window):
        root, parent = ctypes.c_ulong(), ctypes.c_ulong()
        children, count = ctypes.POINTER(ctypes.c_ulong)(), ctypes.c_uint()
        if not self._x11.XQueryTree(self._display, window, root, parent, children, count):
            return 0, []
        found = children[:count.value]
        if children:
            self._x11.XFree(children)
        return parent.value, found

    def _title(self, window):
        text = ctypes.c_void_p()
        self._x11.XFetchName(self._display, window, text)
        return self._taken(text)

    def _class(self, window):
        hint = _ClassHint()
        if not self._x11.XGetClassHint(self._display, window, hint):
            return []
        return [self._taken(ctypes.c_void_p(one)) for one in (hint.name, hint.kind)]

    def _taken(self, text):
        """The text, whose memory is given back."""
        if not text:
            return ""
        value = ctypes.string_at(text).decode(errors="replace")
        self._x11.XFree(text)
        return value
