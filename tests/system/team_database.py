"""The team's database as another program changes it while the desk and the calendar have it open."""

import contextlib
import datetime
import sqlite3

from sample_week import seconds, users


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

    def add(self, activity, user, start, edited=None):
        """A call of an hour with the first contact; gives that contact's name."""
        with self.change() as (connection, revision):
            contact, name = connection.execute("SELECT id, name FROM contacts ORDER BY id").fetchone()
            values = dict(id=activity, revision=revision, edited_at=seconds(edited or datetime.datetime.now()), type=0,
                          priority=2, regarding="", starts_at=seconds(start),
                          ends_at=seconds(start + datetime.timedelta(hours=1)), duration=60, private=0, alarm=0,
                          alarm_lead=0, scheduled_for=user, contact=contact, contact_count=1, cleared=0, result="",
                          details="", has_details=0, recurrence=0, frequency=1, days_of_week=0, weeks_of_month=0,
                          days_of_month=0)
            connection.execute(f"INSERT INTO activities ({', '.join(values)}) VALUES ({', '.join('?' * len(values))})",
                               tuple(values.values()))
        return name

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
