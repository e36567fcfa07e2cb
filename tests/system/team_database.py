"""The team's database as another program changes it while the desk and the calendar have it open."""

import contextlib
import datetime
import sqlite3

from sample_week import EMPTY_DATE, seconds, users

DAILY = 1


class TeamDatabase:
    def __init__(self, path):
        self.path = path

    @contextlib.contextmanager
    def change(self):
        """One transaction with the number that tells every reader what it changed."""
        connection = sqlite3.connect(self.path, timeout=10)
        try:
            with connection:
                connection.execute("PRAGMA foreign_keys = ON")
                connection.execute("BEGIN IMMEDIATE")
                connection.execute("UPDATE counters SET value = value + 1 WHERE name = 'revision'")
                revision, = connection.execute("SELECT value FROM counters WHERE name = 'revision'").fetchone()
                yield connection, revision
        finally:
            connection.close()

    def user(self, row):
        """The id of the user whose row it is, counted from 0."""
        with self.change() as (connection, _):
            return connection.execute("SELECT id FROM users WHERE name = ?", (users(self.path)[row],)).fetchone()[0]

    def remove_all_activities(self):
        with self.change() as (connection, _):
            connection.execute("DELETE FROM activities")

    def add(self, activity, user, start, edited=None, **others):
        """A call of an hour with the first contact, with other values where they are given; gives that contact's
        name."""
        with self.change() as (connection, revision):
            contact, name = connection.execute("SELECT id, name FROM contacts ORDER BY id").fetchone()
            values = dict(id=activity, revision=revision, edited_at=seconds(edited or datetime.datetime.now()), type=0,
                          priority=2, regarding="", starts_at=seconds(start),
                          ends_at=seconds(start + datetime.timedelta(hours=1)), duration=60, private=0, alarm=0,
                          alarm_lead=0, scheduled_for=user, contact=contact, contact_count=1, cleared=0, result="",
                          details="", has_details=0, recurrence=0, frequency=1, days_of_week=0, weeks_of_month=0,
                          days_of_month=0)
            values.update(others)
            connection.execute(f"INSERT INTO activities ({', '.join(values)}) VALUES ({', '.join('?' * len(values))})",
                               tuple(values.values()))
        return name

    def add_daily_series(self, activity, user, start, days, **others):
        return self.add(activity, user, start, recurrence=DAILY,
                        until=seconds(start.replace(hour=0) + datetime.timedelta(days=days - 1)), **others)

    def look(self, question, *values):
        """The rows of an SQL question, each a dictionary."""
        with contextlib.closing(sqlite3.connect(f"file:{self.path}?mode=ro", uri=True)) as connection:
            connection.row_factory = sqlite3.Row
            return [dict(row) for row in connection.execute(question, values)]

    def activities(self):
        """All of them by their start, with start as a date and time, and with the names of user and contact."""
        rows = self.look("SELECT activities.*, users.name AS user, contacts.name AS contact_name FROM activities"
                         " LEFT JOIN users ON users.id = scheduled_for LEFT JOIN contacts ON contacts.id = contact"
                         " ORDER BY starts_at, activities.id")
        return [dict(row, start=EMPTY_DATE + datetime.timedelta(seconds=row["starts_at"])) for row in rows]

    def exceptions(self, activity):
        rows = self.look("SELECT date FROM exceptions WHERE activity = ? ORDER BY date", activity)
        return [(EMPTY_DATE + datetime.timedelta(seconds=row["date"])).date() for row in rows]

    def move(self, activity, start):
        with self.change() as (connection, revision):
            connection.execute("UPDATE activities SET starts_at = ?, ends_at = ?, edited_at = ?, revision = ?"
                               " WHERE id = ?",
                               (seconds(start), seconds(start + datetime.timedelta(hours=1)),
                                seconds(datetime.datetime.now()), revision, activity))

    def remove(self, activity):
        with self.change() as (connection, revision):
            connection.execute("DELETE FROM activities WHERE id = ?", (activity,))
            connection.execute("INSERT INTO removed_activities VALUES (?, ?)", (activity, revision))
