"""What the grid has to show of a database's plain activities, computed from the file itself."""

import datetime
import sqlite3

EMPTY_DATE = datetime.datetime(1899, 12, 30)


def seconds(moment):
    return int((moment - EMPTY_DATE).total_seconds())


def week_of(day):
    """The Sunday that begins the week."""
    return day - datetime.timedelta(days=(day.weekday() + 1) % 7)


def us_text(moment):
    """A date with its time as the calendar writes it in the United States."""
    hour = moment.hour % 12 or 12
    return f"{moment.month}/{moment.day}/{moment.year} {hour}:{moment:%M:%S} {'AM' if moment.hour < 12 else 'PM'}"


def users(database):
    with sqlite3.connect(f"file:{database}?mode=ro", uri=True) as connection:
        return [name for name, in connection.execute("SELECT name FROM users ORDER BY name")]


def plain_activities(database, first_day, first_hour, slots):
    """(slot, day, start, minutes, user, contact) of each plain activity of the week that begins in a slot."""
    start = datetime.datetime.combine(first_day, datetime.time())
    with sqlite3.connect(f"file:{database}?mode=ro", uri=True) as connection:
        rows = connection.execute(
            "SELECT activities.starts_at, duration, users.name, contacts.name FROM activities"
            " JOIN users ON users.id = activities.scheduled_for JOIN contacts ON contacts.id = activities.contact"
            " WHERE recurrence = 0 AND cleared = 0 AND starts_at >= ? AND starts_at < ?",
            (seconds(start), seconds(start + datetime.timedelta(days=7)))).fetchall()
    for starts_at, duration, user, contact in rows:
        moment = EMPTY_DATE + datetime.timedelta(seconds=starts_at)
        slot = moment.hour - first_hour
        # The last minute of a slot belongs to none.
        if 0 <= slot < slots and moment.minute < 59:
            yield slot, (moment.date() - first_day).days, moment, duration, user, contact


def rows_of_week(database, first_day, first_hour=8, slots=9):
    """{(slot, day): the first lines of the activities that begin there, as rows shared by all users order them}."""
    found = {}
    for slot, day, moment, _, user, contact in plain_activities(database, first_day, first_hour, slots):
        found.setdefault((slot, day), []).append((user, us_text(moment), contact))
    return {place: [contact for _, _, contact in sorted(records)] for place, records in found.items()}


def cells_of_week(database, first_day, first_hour=8, slots=9):
    """{(slot, day, user): the first line of the cell} where every user has a row of his own in each hourly slot."""
    records = {}
    for slot, day, moment, duration, user, contact in plain_activities(database, first_day, first_hour, slots):
        end = moment + datetime.timedelta(minutes=duration)
        records.setdefault((slot, day, user), []).append((us_text(moment), contact, end))
    cells = {}
    for (slot, day, user), found in records.items():
        _, contact, end = min(found)
        cells[slot, day, user] = contact
        for later in range(slot + 1, slots):
            if (end.hour, end.minute) <= (first_hour + later, 0):
                break
            if (later, day, user) not in records:
                cells[later, day, user] = "( Continued )"
    return cells
