"""The real program in a run of its own, and the files that it leaves."""

import json
import os
import shlex
import signal
import subprocess
from pathlib import Path

from .waiting import wait_until

# A command that every copy is started through, as valgrind is.
THROUGH = shlex.split(os.environ.get("VANTLE_THROUGH", ""))


class Program:
    """One process of the program on a desktop.

    Runs of the same desktop share home, data and preferences, as copies started by one person do.
    That person has been through the welcome, unless `newcomer` is true.
    """

    def __init__(self, executable, desktop, newcomer=False):
        self._executable = Path(executable)
        self._newcomer = newcomer
        self._desktop = desktop
        self._process = None
        self._output = None
        self._seen_from = Path("/")

    # -- the process

    def start(self, through=(), restore_signals=True):
        """Starts it, by way of the command `through` if given; returns at once."""
        if not self._newcomer and not self.preferences_file.exists():
            self.write_preferences()
        name = f"output-{id(self):x}-{os.urandom(4).hex()}"
        self._output = self._desktop.directory / name
        with self._output.open("wb") as output:
            self._process = subprocess.Popen(
                [*THROUGH, *through, str(self._executable)], env=self._desktop.env,
                cwd=self._desktop.env["HOME"], stdin=subprocess.DEVNULL, stdout=output,
                stderr=output, start_new_session=True, restore_signals=restore_signals,
                preexec_fn=_hear_signals)

    @property
    def pid(self):
        return self._process.pid

    def is_running(self):
        return self._process is not None and self._process.poll() is None

    def send(self, number):
        self._process.send_signal(number)

    def wait(self, deadline=30.0):
        """Waits for its end and returns the exit code, negative for a signal."""
        wait_until("the end of the program", lambda: not self.is_running(), deadline)
        return self._process.returncode

    def stop(self, number=signal.SIGTERM):
        """Sends the signal, waits for the end and returns the exit code."""
        self.send(number)
        return self.wait()

    def kill(self):
        """Ends it as a crash would; nothing happens if it has ended already."""
        if self.is_running():
            self._process.kill()
        if self._process is not None:
            self._process.wait()

    def printed(self):
        """All it has written to standard output and standard error."""
        return "" if self._output is None else self._output.read_text(errors="replace")

    def left_children(self):
        """Whether a process that it started lives on after its end."""
        try:
            os.killpg(self._process.pid, 0)
        except ProcessLookupError:
            return False
        return True

    # -- its files

    def see_files_as_the_process(self):
        """From now on looks at the files through the process, which has mounts of its own."""
        self._seen_from = Path(f"/proc/{self.pid}/root")

    @property
    def data_directory(self):
        inside = Path(self._desktop.env["XDG_DATA_HOME"], "Vantle")
        return self._seen_from / inside.relative_to("/")

    @property
    def log_file(self):
        return self.data_directory / "sessions.jsonl"

    @property
    def marker_file(self):
        return self.data_directory / "open-session.json"

    def log_bytes(self):
        return self.log_file.read_bytes() if self.log_file.exists() else b""

    def sessions(self):
        """The records of the log, in its order; a line that is just being written is none yet."""
        return [json.loads(line) for line in self.log_bytes().split(b"\n")[:-1]]

    def marker(self):
        """The marker of the open session; none if there is no file."""
        try:
            return json.loads(self.marker_file.read_bytes())
        except FileNotFoundError:
            return None

    def await_next_marker(self, deadline):
        """Waits until the marker is written again, which replaces the file, and returns it."""
        def version():
            now = self.marker_file.stat()
            return now.st_ino, now.st_mtime_ns

        old = version()
        wait_until("a new marker", lambda: version() != old, deadline)
        return self.marker()

    def write_marker(self, **fields):
        self.data_directory.mkdir(mode=0o700, parents=True, exist_ok=True)
        text = json.dumps(fields, sort_keys=True, separators=(",", ":"))
        self.marker_file.write_text(text)
        self.marker_file.chmod(0o600)

    @property
    def preferences_file(self):
        return Path(self._desktop.env["XDG_CONFIG_HOME"], "Vantle", "preferences.ini")

    def preference(self, key):
        """What the preference file says of a key; none if nothing."""
        path = self.preferences_file
        for line in path.read_text().splitlines() if path.exists() else []:
            if line.startswith(key + "="):
                return line.partition("=")[2]
        return None

    def write_preferences(self, **values):
        """Writes the preference file; `__` in a name stands for the dot of the key."""
        if not self._newcomer:
            values.setdefault("onboard__done", "true")
        self.preferences_file.parent.mkdir(mode=0o700, parents=True, exist_ok=True)
        lines = [f"{name.replace('__', '.')}={value}\n" for name, value in values.items()]
        self.preferences_file.write_text("[General]\n" + "".join(lines))


def _hear_signals():
    """A caller in the background may have these ignored, which programs inherit."""
    for number in (signal.SIGINT, signal.SIGHUP, signal.SIGTERM):
        signal.signal(number, signal.SIG_DFL)
