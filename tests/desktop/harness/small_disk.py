"""Runs a command with a small disk of its own over a directory.

    small_disk.py <directory> <bytes> <command> [argument...]

The disk is in memory, in a mount namespace that only the command sees and that goes with it, so
nothing is left behind and root is not needed where people may have user namespaces. Others look at
it through /proc/<pid>/root. Ends with exit code 77 where the kernel refuses.
"""

import ctypes
import os
import sys
from pathlib import Path

REFUSED = 77

CLONE_NEWNS = 0x00020000
CLONE_NEWUSER = 0x10000000
MS_REC = 0x4000
MS_PRIVATE = 0x40000

libc = ctypes.CDLL(None, use_errno=True)


def check(result):
    if result != 0:
        raise OSError(ctypes.get_errno(), os.strerror(ctypes.get_errno()))


def enter_namespaces():
    """Mounts of our own; without root by way of a user namespace in which we are who we were."""
    user, group = os.getuid(), os.getgid()
    if libc.unshare(CLONE_NEWNS) == 0:
        return
    check(libc.unshare(CLONE_NEWUSER | CLONE_NEWNS))
    Path("/proc/self/setgroups").write_text("deny")
    Path("/proc/self/uid_map").write_text(f"{user} {user} 1")
    Path("/proc/self/gid_map").write_text(f"{group} {group} 1")


def mount_over(directory, size):
    check(libc.mount(b"none", b"/", None, MS_REC | MS_PRIVATE, None))
    options = f"size={size},mode=0700,uid={os.getuid()},gid={os.getgid()}"
    check(libc.mount(b"vantle-test", os.fsencode(directory), b"tmpfs", 0, options.encode()))


def main():
    directory, size, *command = sys.argv[1:]
    try:
        enter_namespaces()
        mount_over(directory, int(size))
    except OSError as refusal:
        print(f"small_disk: {refusal}", file=sys.stderr)
        sys.exit(REFUSED)
    os.execvp(command[0], command)


if __name__ == "__main__":
    main()
