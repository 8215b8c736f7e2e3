"""Fast screen reads, for what moves: tools take too long to start."""

import ctypes

from .display import stays
from .picture import Picture


class _Image(ctypes.Structure):
    """The first members of Xlib's XImage."""

    _fields_ = [("width", ctypes.c_int), ("height", ctypes.c_int), ("xoffset", ctypes.c_int),
                ("format", ctypes.c_int), ("data", ctypes.c_void_p)]


class NotOnTheScreen(Exception):
    """A part of the rectangle lies outside of the screen, where there are no pixels."""


class Eyes:
    """Reads pixels of a display within milliseconds, over its own connection."""

    _ALL_PLANES = 0xFFFFFFFF
    _WHOLE_PIXELS = 2

    def __init__(self, display):
        x11 = self._x11 = ctypes.CDLL("libX11.so.6")
        x11.XOpenDisplay.restype = ctypes.c_void_p
        x11.XOpenDisplay.argtypes = [ctypes.c_char_p]
        x11.XCloseDisplay.argtypes = [ctypes.c_void_p]
        x11.XDefaultRootWindow.restype = ctypes.c_ulong
        x11.XDefaultRootWindow.argtypes = [ctypes.c_void_p]
        x11.XGetImage.restype = ctypes.POINTER(_Image)
        x11.XGetImage.argtypes = [ctypes.c_void_p, ctypes.c_ulong, ctypes.c_int, ctypes.c_int,
                                  ctypes.c_uint, ctypes.c_uint, ctypes.c_ulong, ctypes.c_int]
        x11.XDestroyImage.argtypes = [ctypes.POINTER(_Image)]
        self._display = x11.XOpenDisplay(display.encode())
        stays(x11, self._display)

    def close(self):
        self._x11.XCloseDisplay(self._display)

    def raw(self, x, y, width, height):
        """The pixels of a rectangle in memory order: blue, green, red, unused."""
        root = self._x11.XDefaultRootWindow(self._display)
        image = self._x11.XGetImage(self._display, root, x, y, width, height, self._ALL_PLANES,
                                    self._WHOLE_PIXELS)
        if not image:
            raise NotOnTheScreen
        pixels = ctypes.string_at(image.contents.data, width * height * 4)
        self._x11.XDestroyImage(image)
        return pixels

    def picture(self, x, y, width, height):
        raw = self.raw(x, y, width, height)
        rgb = bytearray(width * height * 3)
        for channel in range(3):
            rgb[channel::3] = raw[2 - channel::4]
        return Picture(width, height, bytes(rgb))
