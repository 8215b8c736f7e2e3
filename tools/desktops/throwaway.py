"""A throwaway Debian of any release in a directory, which this tree is seen in."""

import subprocess
from pathlib import Path

ARCHIVE = "http://deb.debian.org/debian"
TREE = "/vantle"  # where the tree is seen in it
MADE = "made-by-debootstrap"  # a file that says so, in its root

# The mounts are seen by the processes inside alone and go with the last of them. Programs there get
# a /tmp and terminals of their own. GNOME's shell asks /sys which unit it runs in, and without an
# answer has no Xwayland. What the tree builds there stays beside the tree of the
# other system.
ENTER = f"""set -e
root=$1 tree=$2
shift 2
mount --bind "$root" "$root"
mount -t proc proc "$root/proc"
mount --rbind /sys "$root/sys"
mount -t tmpfs -o mode=1777 tmpfs "$root/tmp"
mount -t tmpfs -o mode=1777 tmpfs "$root/dev/shm"
mount -t devpts -o newinstance,ptmxmode=0666,mode=0620,gid=5 devpts "$root/dev/pts"
ln -sf pts/ptmx "$root/dev/ptmx"
mkdir -p "$root/build" "$root{TREE}" "$tree/build"
mount --bind "$tree" "$root{TREE}"
mount --bind "$root/build" "$root{TREE}/build"
exec chroot "$root" env -i PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin \\
    HOME=/root LANG=C.UTF-8 ${{http_proxy:+http_proxy="$http_proxy"}} \\
    sh -c 'cd {TREE} && exec "$@"' sh "$@"
"""


class Debian:
    """Root only. It needs the archive, and some GB in its directory, where it stays."""

    def __init__(self, suite, directory, tree):
        self._suite = suite
        self._root = Path(directory).absolute()
        self._tree = Path(tree)

    def make(self):
        """Nothing is done where it has been made before."""
        if (self._root / MADE).exists():
            return
        self._root.mkdir(parents=True, exist_ok=True)
        subprocess.run(["debootstrap", "--variant=minbase", self._suite, str(self._root), ARCHIVE],
                       check=True, stdout=subprocess.DEVNULL)
        services = self._root / "usr/sbin/policy-rc.d"  # they have no business there
        services.write_text("#!/bin/sh\nexit 101\n")
        services.chmod(0o755)
        for name in ("resolv.conf", "hosts"):
            (self._root / "etc" / name).write_text(Path("/etc", name).read_text())
        (self._root / MADE).touch()

    def run(self, *command):
        """Runs a command of it in the tree and returns its exit code."""
        return subprocess.run(
            ["unshare", "--mount", "--propagation", "private", "--pid", "--fork",
             "--kill-child=KILL", "sh", "-c", ENTER, "sh", str(self._root), str(self._tree),
             *command], check=False, stdin=subprocess.DEVNULL).returncode


__all__ = ["Debian"]
