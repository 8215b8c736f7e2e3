"""Sessions as they stand in the log, with dates that are computed from today.

Moments without a time zone are local ones, of the zone that the program runs in too.
"""

from datetime import date, datetime, timedelta, timezone


def stamp(moment):
    """The moment as the files have it."""
    return moment.astimezone(timezone.utc).strftime("%Y-%m-%dT%H:%M:%SZ")


def moment(text):
    """What stamp() has made a text of."""
    return datetime.strptime(text, "%Y-%m-%dT%H:%M:%SZ").replace(tzinfo=timezone.utc)


def epoch(text):
    """The same in seconds since 1970."""
    return moment(text).timestamp()


def start_of_week():
    """The first midnight of this week. Weeks begin on Monday in the desktop's locale."""
    today = date.today()
    return datetime.combine(today - timedelta(days=today.weekday()), datetime.min.time())


def worked(number, begin, minutes, skill="building", note="", source="mac_app"):
    """A session of so many minutes."""
    return {
        "id": f"5A3B1D1E-4A52-4C1B-9A1E-{number:012d}",
        "skillId": skill,
        "startedAt": stamp(begin),
        "endedAt": stamp(begin + timedelta(minutes=minutes)),
        "activeSeconds": 60 * minutes,
        "note": note,
        "source": source,
    }


def record(number, note, source="mac_app"):
    """A session from 9:00 to 9:30 on that day of November 2025, long ago."""
    return worked(number, datetime(2025, 11, number, 9), 30, note=note, source=source)


def work_of_last_week():
    """Six sessions on three days in the middle of last week."""
    monday = start_of_week() - timedelta(days=7)
    return [worked(2 * day + part, monday + timedelta(days=2 + day, hours=9 + 5 * part), 70,
                   skill=("building", "marketing")[part])
            for day in range(3) for part in range(2)]

