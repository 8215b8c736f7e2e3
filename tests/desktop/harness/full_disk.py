"""A disk that can be full, and then free again, under a running program."""

import errno
import resource
import subprocess
import sys
from pathlib import Path

from . import small_disk

SMALL_DISK = Path(small_disk.__file__)
PAGE = 4096  # a disk in memory gives room by the page


class SmallDisk:
    """A real one of 64 KB over the data directory."""

    SIZE = 16 * PAGE

    def __init__(self, data_home):
        self._command = [sys.executable, str(SMALL_DISK), data_home, str(self.SIZE)]

    def is_allowed(self):
        """Whether the kernel lets us have one."""
        tried = subprocess.run([*self._command, "true"], check=False, capture_output=True)
        if tried.returncode not in (0, small_disk.REFUSED):
            raise RuntimeError(tried.stderr.decode())
        return tried.returncode == 0

    def start(self, launch, program):
        launch(through=self._command)
        program.see_files_as_the_process()

    def fill(self, program):
        """Leaves no page; files may still grow to the end of the pages that they have."""
        with (program.data_directory / "filler").open("wb", buffering=0) as filler:
            try:
                while True:
                    filler.write(bytes(PAGE))
            except OSError as full:
                if full.errno != errno.ENOSPC:
                    raise

    def free(self, program):
        (program.data_directory / "filler").unlink()


class FileSizeLimit:
    """Where the kernel refuses a mount: no file of the program may grow beyond a length."""

    def start(self, launch, _program):
        # Python ignores the signal that would end the program at the limit; so let it inherit that.
        launch(restore_signals=False)

    def fill(self, program):
        length = max(len(program.log_bytes()), 1)
        self._limit(program, (length + PAGE - 1) // PAGE * PAGE if length > 1 else 0)

    def free(self, program):
        self._limit(program, resource.RLIM_INFINITY)

    @staticmethod
    def _limit(program, size):
        resource.prlimit(program.pid, resource.RLIMIT_FSIZE, (size, resource.RLIM_INFINITY))


def disk_that_can_be_full(data_home):
    """The real thing where the kernel allows it, as it does for root and in user namespaces."""
    disk = SmallDisk(data_home)
    return disk if disk.is_allowed() else FileSizeLimit()
