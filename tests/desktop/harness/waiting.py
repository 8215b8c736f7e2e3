"""Waiting for something to become true, never for a time to pass."""

import time

POLL_SECONDS = 0.02


def wait_until(what, predicate, deadline=10.0):
    """Returns the predicate's first true answer; fails after `deadline` seconds, naming `what`."""
    end = time.monotonic() + deadline
    while True:
        answer = predicate()
        if answer:
            return answer
        if time.monotonic() > end:
            raise AssertionError(f"{what}: not within {deadline} s")
        time.sleep(POLL_SECONDS)
