"""Waiting for something to become true, never for a time to pass."""

import os
import time

POLL_SECONDS = 0.02

# By how much longer everything may take, as under a tool that slows the program down.
PATIENCE = float(os.environ.get("VANTLE_PATIENCE", "1"))


def wait_until(what, predicate, deadline=30.0):
    """Returns the predicate's first true answer; fails after `deadline` seconds, naming `what`.

    The usual deadline is there to end a test that has failed. It is far longer than anything takes
    on a machine that has other work to do.
    """
    end = time.monotonic() + deadline * PATIENCE
    while True:
        answer = predicate()
        if answer:
            return answer
        if time.monotonic() > end:
            raise AssertionError(f"{what}: not within {deadline} s")
        time.sleep(POLL_SECONDS)
