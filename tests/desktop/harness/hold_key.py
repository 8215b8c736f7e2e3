"""Another application that owns Alt+Super+B: grabs it, says "held", keeps it until stdin closes."""

import ctypes
import ctypes.util
import sys

LOCK, ALT, NUM, SUPER = 1 << 1, 1 << 3, 1 << 4, 1 << 6  # Mod1, Mod2 and Mod4 of the usual map
GRAB_MODE_ASYNC = 1

x11 = ctypes.CDLL(ctypes.util.find_library("X11") or "libX11.so.6")
x11.XOpenDisplay.restype = ctypes.c_void_p
x11.XOpenDisplay.argtypes = [ctypes.c_char_p]
x11.XDefaultRootWindow.restype = ctypes.c_ulong
x11.XDefaultRootWindow.argtypes = [ctypes.c_void_p]
x11.XKeysymToKeycode.argtypes = [ctypes.c_void_p, ctypes.c_ulong]
x11.XKeysymToKeycode.restype = ctypes.c_ubyte
x11.XGrabKey.argtypes = [ctypes.c_void_p, ctypes.c_int, ctypes.c_uint, ctypes.c_ulong,
                         ctypes.c_int, ctypes.c_int, ctypes.c_int]
x11.XSync.argtypes = [ctypes.c_void_p, ctypes.c_int]


def main():
    display = x11.XOpenDisplay(None)
    if not display:
        sys.exit("hold_key: no display")
    root = x11.XDefaultRootWindow(display)
    code = x11.XKeysymToKeycode(display, ord("b"))
    for locks in (0, LOCK, NUM, LOCK | NUM):
        # A grab that is refused ends this process: Xlib's own answer to an error.
        x11.XGrabKey(display, code, ALT | SUPER | locks, root, 0, GRAB_MODE_ASYNC, GRAB_MODE_ASYNC)
    x11.XSync(display, 0)
    print("held", flush=True)
    sys.stdin.read()


if __name__ == "__main__":
    main()
