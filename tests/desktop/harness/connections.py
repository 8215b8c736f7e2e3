"""A program's connections to the X server, to be cut from outside."""

import ctypes
import os
import socket

# The numbers are the same on every machine. The C library of Debian 12 has no functions for them.
PIDFD_OPEN = 434
PIDFD_GETFD = 438

libc = ctypes.CDLL(None, use_errno=True)


def _asked(number, *arguments):
    result = libc.syscall(number, *arguments)
    if result < 0:
        raise OSError(ctypes.get_errno(), os.strerror(ctypes.get_errno()))
    return result


def _shared_sockets(pid):
    """The sockets of a process, by their descriptors there, each as one of our own too."""
    process = _asked(PIDFD_OPEN, pid, 0)
    try:
        for entry in sorted(os.listdir(f"/proc/{pid}/fd"), key=int):
            try:
                is_socket = os.readlink(f"/proc/{pid}/fd/{entry}").startswith("socket:")
            except FileNotFoundError:
                continue  # a file that it has closed meanwhile
            if is_socket:
                yield socket.socket(fileno=_asked(PIDFD_GETFD, process, int(entry), 0))
    finally:
        os.close(process)


def cut_x_connection(pid, number):
    """Ends one of the process's connections to the X server, as a server does that throws a client
    out. Returns how many there are."""
    found = 0
    for one in _shared_sockets(pid):
        with one:
            if one.family != socket.AF_UNIX or not _is_of_x(one):
                continue
            if found == number:
                one.shutdown(socket.SHUT_RDWR)
            found += 1
    return found


def _is_of_x(one):
    try:
        return b".X11-unix" in os.fsencode(one.getpeername())
    except OSError:
        return False
