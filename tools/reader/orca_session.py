"""Orca on a private desktop, and what it says."""

import json
import os
import subprocess
import time
from pathlib import Path

from harness.waiting import wait_until

VOICE = Path(__file__).resolve().parent / "voice"

SPEECH = """\
LogLevel 1
LogDir "{directory}"
CommunicationMethod "unix_socket"
SocketPath "{directory}/socket"
AddModule "written" "{voice}" "{heard}"
DefaultModule written
DisableAutoSpawn
"""

ORCA = ("orca", "--replace", "--enable", "speech", "--disable", "braille",
        "--disable", "braille-monitor")

# Its defaults, but for the names of the keys that are pressed: they stand in the transcript.
SETTINGS = {"general": {}, "pronunciations": {}, "keybindings": {},
            "profiles": {"default": {"profile": ["Default", "default"], "enableKeyEcho": False}}}

STILL = 1.2  # seconds of silence after which it has said what it had to say
SLOW_START = 120.0  # seconds until Orca is up, on a busy machine
LONGEST = 12.0  # seconds within which it says something, where there is something


class Orca:
    """Runs from start() to stop(), on a desktop whose accessibility service is there."""

    def __init__(self, desktop):
        self._desktop = desktop
        self._directory = desktop.directory / "speech"
        self._heard = self._directory / "heard"
        self._read = 0
        self._processes = []

    def start(self):
        self._directory.mkdir()
        self._heard.touch()
        (self._directory / "speechd.conf").write_text(SPEECH.format(
            directory=self._directory, voice=VOICE, heard=self._heard))
        socket = self._directory / "socket"
        self._desktop.env["SPEECHD_ADDRESS"] = f"unix_socket:{socket}"
        self.run("speech-dispatcher", "-s", "-C", str(self._directory), "-S", str(socket),
                  "-L", str(self._directory), "-P", str(self._directory / "pid"))
        wait_until("the speech dispatcher", socket.exists)
        settings = Path(self._desktop.env["XDG_DATA_HOME"], "orca", "user-settings.conf")
        settings.parent.mkdir(parents=True)
        settings.write_text(json.dumps(SETTINGS))
        self.run(*ORCA)
        wait_until("Orca's first word", self._heard.read_text, SLOW_START)
        self.said()

    def stop(self):
        for process in reversed(self._processes):
            process.terminate()
            try:
                process.wait(10)
            except subprocess.TimeoutExpired:
                process.kill()
                process.wait()

    def said(self, longest=LONGEST):
        """What it has said since the last call, a line each, as soon as it is silent."""
        began = changed = time.monotonic()
        size = self._read
        while True:
            now = time.monotonic()
            length = self._heard.stat().st_size
            if length != size:
                size, changed = length, now
            spoke = size > self._read
            if now - changed >= STILL and (spoke or now - began >= longest):
                break
            time.sleep(0.05)
        with self._heard.open("rb") as heard:
            heard.seek(self._read)
            lines = heard.read(size - self._read).decode().splitlines()
        self._read = size
        return lines

    def run(self, *command):
        with (self._directory / f"{os.path.basename(command[0])}.out").open("wb") as output:
            self._processes.append(subprocess.Popen(
                command, env=self._desktop.env, stdin=subprocess.DEVNULL, stdout=output,
                stderr=output))
