"""Files between the contact desk and other programs, by the command line: what another program's reader makes of an
export, and what the desk makes of a file which that program has written again."""

import contextlib
import datetime
import os
import sqlite3
import unittest

import icalendar

from desktop import Desktop

EMPTY_DATE = datetime.datetime(1899, 12, 30)


def moment(seconds):
    return EMPTY_DATE + datetime.timedelta(seconds=seconds)


class Exchange(unittest.TestCase):
    def setUp(self):
        self.desktop = self.enterContext(Desktop())
        self.sample = self.desktop.sample()

    def desk(self, *arguments):
        return self.desktop.run(self.desktop.program("contact-desk"), *arguments)

    def rows(self, database, question):
        with contextlib.closing(sqlite3.connect(database)) as connection:
            connection.row_factory = sqlite3.Row
            return connection.execute(question).fetchall()

    def empty_copy(self):
        """A database without a record, another one than the sample's by its identity."""
        path = self.desktop.path("empty.desk")
        self.desk("--new-sample", path)
        with contextlib.closing(sqlite3.connect(path)) as connection, connection:
            for table in ("exceptions", "further_contacts", "activities", "group_members", "contact_groups", "notes",
                          "contacts", "users"):
                connection.execute(f"DELETE FROM {table}")
        return path

    def exported(self, *options):
        path = self.desktop.path("out.ics")
        self.desk("--export", path, *options, self.sample)
        with open(path, "rb") as file:
            return icalendar.Calendar.from_ical(file.read())

    def test_another_programs_reader_finds_every_activity_with_its_time_and_its_series(self):
        entries = {}
        for entry in self.exported().walk():
            if entry.name in ("VEVENT", "VTODO"):
                self.assertEqual(entry.errors, [])
                entries[str(entry["UID"]).split(".")[0]] = entry
        rows = self.rows(self.sample, "SELECT * FROM activities")
        self.assertEqual(set(entries), {row["id"].strip() for row in rows})
        rules = {1: "DAILY", 2: "WEEKLY", 3: "MONTHLY", 4: "MONTHLY"}
        for row in rows:
            entry = entries[row["id"].strip()]
            self.assertEqual(entry.name, "VTODO" if row["type"] == 2 else "VEVENT")
            self.assertEqual(str(entry["SUMMARY"]), row["regarding"])
            self.assertEqual(entry["DTSTART"].dt, moment(row["starts_at"]))
            if row["duration"]:
                end = entry["DUE" if row["type"] == 2 else "DTEND"].dt
                self.assertEqual(end - entry["DTSTART"].dt, datetime.timedelta(minutes=row["duration"]))
            self.assertEqual("RRULE" in entry, row["recurrence"] != 0)
            if row["recurrence"]:
                self.assertEqual(entry["RRULE"]["FREQ"], [rules[row["recurrence"]]])
                self.assertEqual(entry["RRULE"].get("INTERVAL", [1]), [row["frequency"]])
            if row["details"]:
                self.assertEqual(str(entry["DESCRIPTION"]), row["details"])

    def test_what_that_program_writes_again_comes_back_whole(self):
        again = self.desktop.path("again.ics")
        with open(again, "wb") as file:
            file.write(self.exported().to_ical())
        database = self.empty_copy()
        self.desk("--import", again, database)
        question = ("SELECT type, priority, regarding, starts_at, ends_at, duration, private, alarm, alarm_lead, colour,"
                    " cleared, result, details, recurrence, frequency, until, days_of_week, weeks_of_month,"
                    " days_of_month, contact_count, u.name AS user, g.name AS contact_group"
                    " FROM activities LEFT JOIN users u ON u.id = scheduled_for"
                    " LEFT JOIN contact_groups g ON g.id = contact_group")
        expected = sorted(map(str, map(tuple, self.rows(self.sample, question))))
        self.assertEqual(sorted(map(str, map(tuple, self.rows(database, question)))), expected)

    def test_an_export_of_one_user_has_that_users_activities_alone(self):
        user = self.rows(self.sample, "SELECT id, name FROM users ORDER BY name")[0]
        entries = [entry for entry in self.exported("--user", user["name"]).walk() if entry.name in ("VEVENT", "VTODO")]
        count = self.rows(self.sample, f"SELECT count(*) FROM activities WHERE scheduled_for = '{user['id']}'")[0][0]
        self.assertEqual(len(entries), count)
        self.assertGreater(count, 0)

    def test_a_file_in_a_folder_that_there_is_not_is_told_and_nothing_is_left(self):
        missing = self.desktop.path("none", "out.ics")
        with self.assertRaises(Exception):
            self.desk("--export", missing, self.sample)
        self.assertFalse(os.path.exists(self.desktop.path("none")))


if __name__ == "__main__":
    unittest.main()
