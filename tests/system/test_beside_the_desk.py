"""What commands of the calendar leave in the desk, and what the desk's user does meanwhile, by real mouse and keys."""

import contextlib
import os
import sqlite3
import stat
import unittest

from both_programs import EMPTY_MENU, PLAIN_MENU, ROW_MENU, SELECTION_MENU, TITLE_MENU, BothPrograms, PlainCall
from desktop import (Atspi, has_state, is_busy, middle, part_of_its_window, press, text_in, texts_in_sight, wait_for,
                     wait_to_see)

CHANGED = "The activity was changed by somebody else in the meantime. Your change wasn't stored."
MAIL_PROGRAM = """#!/bin/sh
# Keeps what it is given, in place of a mail program.
folder=$(dirname "$0")/..
while [ $# -gt 0 ]; do
    if [ "$1" = --attach ]; then
        cp "$2" "$folder/sent.ics"
        shift
    else
        echo "$1" >> "$folder/sent.txt"
    fi
    shift
done
mv "$folder/sent.txt" "$folder/mail.txt"
"""


class Lookups(BothPrograms):
    """Calls with three contacts on Tuesday, one of them twice, and with a fourth on Wednesday in the first one's row."""

    def fill(self):
        self.contacts = [row["id"] for row in self.database.look("SELECT id FROM contacts ORDER BY id LIMIT 4")]
        places = [(2, 9, 0, 0), (2, 10, 1, 1), (2, 15, 2, 2), (2, 16, 0, 1), (3, 9, 0, 3)]
        for number, (day, hour, user, contact) in enumerate(places):
            self.database.add(f"A{number:011}", self.database.user(user), self.at(day, hour),
                              contact=self.contacts[contact])

    def test_a_cell_makes_its_contact_the_desks_lookup(self):
        self.choose(self.place(3, 9), "Create Lookup (This cell)", PLAIN_MENU)
        self.wait_for_lookup(1)

    def test_a_row_makes_its_contacts_the_desks_lookup(self):
        self.choose(self.grid.middle(7, 1), "Create Lookup (Row)", ROW_MENU)
        self.wait_for_lookup(2)

    def test_a_column_makes_its_contacts_the_desks_lookup(self):
        self.choose(self.title(2), "Create Lookup (Column)", TITLE_MENU)
        self.wait_for_lookup(3)

    def test_a_selection_makes_its_contacts_the_desks_lookup(self):
        self.desktop.drag(self.place(2, 16), self.place(2, 10))
        self.choose(self.place(2, 12), "Create Lookup (Selection)", SELECTION_MENU)
        self.wait_for_lookup(2)

    def test_an_empty_cell_makes_the_whole_calendars_contacts_the_desks_lookup(self):
        self.choose(self.place(5, 9), "Create Lookup (All cells)", EMPTY_MENU)
        self.wait_for_lookup(4)

    def test_a_column_without_activities_is_told_and_leaves_the_desks_lookup(self):
        before = self.count()
        self.choose(self.title(4), "Create Lookup (Column)", TITLE_MENU)
        self.answer(self.calendar, "No records were found that match the specified criteria.", "OK")
        self.assertEqual(self.count(), before)
        self.assertEqual(len(self.database.activities()), 5)

    def wait_for_lookup(self, contacts):
        everybody, = self.database.look("SELECT count(*) AS number FROM contacts")
        wait_for(lambda: self.count() == f"{contacts} of {everybody['number']} contacts", "the lookup in the desk")

    def count(self):
        return next(text for text in texts_in_sight(self.desk, Atspi.Role.LABEL) if text.endswith(" contacts"))


class Sending(PlainCall):
    def fill(self):
        super().fill()
        program = self.desktop.path("bin", "xdg-email")
        os.mkdir(os.path.dirname(program))
        with open(program, "w") as file:
            file.write(MAIL_PROGRAM)
        os.chmod(program, stat.S_IRWXU)
        environment = self.desktop.environment
        environment["PATH"] = os.path.dirname(program) + ":" + environment["PATH"]

    def test_an_activity_goes_to_the_mail_program_as_a_calendar_file(self):
        before = self.activity()
        self.choose(self.place(2, 10), "Send Activity...", PLAIN_MENU)
        wait_for(lambda: os.path.exists(self.desktop.path("mail.txt")), "the mail")
        with open(self.desktop.path("mail.txt")) as file:
            arguments = file.read().splitlines()
        contact, = self.database.look("SELECT e_mail FROM contacts WHERE name = ?", self.contact)
        self.assertEqual(arguments, ["--utf8", "--subject", "Call: Prices", contact["e_mail"]])
        with open(self.desktop.path("sent.ics"), newline="") as file:
            lines = file.read().split("\r\n")
        self.assertIn("SUMMARY:Prices", lines)
        self.assertIn(f"DTSTART:{self.at(2, 10):%Y%m%dT%H%M%S}", lines)
        self.assertEqual(self.activity(), before)


class OwnView(PlainCall):
    def test_the_users_own_filter_and_tab_are_the_same_after_a_command(self):
        self.desktop.focus(self.desktop.windows("Contact Desk$", self.desk)[0])
        self.desktop.keys("ctrl+2")
        self.click_on(self.desk, Atspi.Role.CHECK_BOX, "Show cleared activities too")
        self.click_on(self.desk, Atspi.Role.COMBO_BOX, "All dates")
        self.desktop.keys("Down", "Down", "Down", "Return")
        self.wait_for_boxes("Today and future", "Everyone")
        self.click_on(self.desk, Atspi.Role.PAGE_TAB, "Notes")
        before = self.activity()

        self.double_click(2, 10)
        self.wait_for_dialog("Edit Activity")
        self.wait_for_boxes("Date range")
        self.desktop.keys("Escape")
        wait_for(lambda: text_in(self.desk, "New note") is not None, "the user's own tab")

        self.click_on(self.desk, Atspi.Role.PAGE_TAB, "Activities")
        self.wait_for_boxes("Today and future", "Everyone")
        box = wait_to_see(self.desk, Atspi.Role.CHECK_BOX, "Show cleared activities too")
        self.assertTrue(has_state(box, Atspi.StateType.CHECKED))
        self.assertEqual(self.activity(), before)

    def wait_for_boxes(self, *texts):
        wait_for(lambda: set(texts) <= set(texts_in_sight(self.desk, Atspi.Role.COMBO_BOX)), f"the choices {texts}")


class TwoAtATime(PlainCall):
    """Both change one call."""

    day = 6  # in the desk's task list on every day of the week

    def test_what_another_stored_while_the_calendar_was_writing_is_not_overwritten(self):
        """Another's change locks the file, so that the calendar has read the call but can't write it yet."""
        with contextlib.closing(sqlite3.connect(self.database.path, isolation_level=None)) as other:
            other.execute("BEGIN IMMEDIATE")
            other.execute("UPDATE counters SET value = value + 1 WHERE name = 'revision'")
            other.execute("UPDATE activities SET regarding = 'Prices of screws',"
                          " revision = (SELECT value FROM counters WHERE name = 'revision')")
            self.drag((6, 10), (5, 14))
            wait_for(lambda: is_busy(self.grid.table), "the calendar's wait for the file")
            other.execute("COMMIT")
        self.answer(self.calendar, self.wait_for_box(CHANGED), "OK")
        self.expect(start=self.at(6, 10), regarding="Prices of screws")

    def test_a_command_while_the_desks_user_has_a_dialog_open_is_refused(self):
        before = self.activity()
        self.desktop.focus(self.desktop.windows("Contact Desk$", self.desk)[0])
        self.desktop.keys("ctrl+m")
        window = self.wait_for_dialog("Schedule Activity")
        self.double_click(6, 10)
        text = self.wait_for_box("Another activity is being worked on already. Close its dialog first.")
        self.answer(self.calendar, text, "OK")
        self.desktop.focus(window)
        self.desktop.keys("Escape")
        wait_for(lambda: not self.desktop.windows("^Schedule Activity$", self.desk), "the end of the dialog")
        self.assertEqual(self.activity(), before)

    def test_a_desk_that_is_killed_while_the_calendar_waits_for_its_dialog_takes_the_calendar_down(self):
        before = self.activity()
        self.double_click(6, 10)
        self.wait_for_dialog("Edit Activity")
        self.desk.kill()
        box = wait_to_see(self.calendar, Atspi.Role.LABEL, self.wait_for_box("Error 440"))
        self.desktop.click(middle(part_of_its_window(box, Atspi.Role.PUSH_BUTTON, "OK")))
        self.assertEqual(self.calendar.wait(10), 0)
        self.assertEqual(self.activity(), before)

    def test_a_desk_that_is_asked_to_end_asks_what_becomes_of_what_is_typed(self):
        self.double_click(6, 10)
        self.desktop.focus(self.wait_for_dialog("Edit Activity"))
        self.desktop.type("Prices of nails")
        self.desk.terminate()
        press(self.desk, Atspi.Role.PUSH_BUTTON, "Save")
        self.assertEqual(self.desk.wait(10), 0)
        self.assertEqual(self.calendar.wait(10), 0)
        self.assertEqual(self.activity()["regarding"], "Prices of nails")

    def wait_for_box(self, part):
        return wait_for(lambda: next((text for text in texts_in_sight(self.calendar, Atspi.Role.LABEL)
                                      if part in text), None), f"a box with '{part}'")

    def test_what_the_calendar_stored_while_the_desks_dialog_was_open_is_not_overwritten(self):
        self.desktop.focus(self.desktop.windows("Contact Desk$", self.desk)[0])
        self.desktop.keys("ctrl+3")
        table = wait_to_see(self.desk, Atspi.Role.TABLE, "Activities")
        self.desktop.click(middle(wait_for(lambda: Atspi.Table.get_accessible_at(table, 0, 1), "the call")))
        self.desktop.keys("ctrl+d")
        window = self.wait_for_dialog("Edit Activity")
        self.drag((6, 10), (5, 14))
        self.wait_to_see(self.contact, 5, 14)
        self.desktop.focus(window)
        self.desktop.type("Prices of screws")
        self.desktop.keys("Return")
        self.answer(self.desk, CHANGED, "OK")
        self.assertEqual(text_in(self.desk, "Regarding"), "Prices of screws")
        self.desktop.focus(window)
        self.desktop.keys("Escape")
        self.expect(start=self.at(5, 14), regarding="Prices")


class Importing(BothPrograms):
    def test_a_calendar_file_of_another_program_comes_in_by_the_file_menu(self):
        file_name = self.desktop.path("from elsewhere.ics")
        with open(file_name, "w", newline="") as file:
            file.write("\r\n".join(["BEGIN:VCALENDAR", "VERSION:2.0", "PRODID:-//Elsewhere//EN", "BEGIN:VEVENT",
                                    "UID:1@elsewhere", "SUMMARY:Fair in the town hall",
                                    f"DTSTART:{self.at(3, 13):%Y%m%dT%H%M%S}", f"DTEND:{self.at(3, 15):%Y%m%dT%H%M%S}",
                                    "ATTENDEE;CN=Olga Petersen:mailto:olga@example.com", "END:VEVENT",
                                    "END:VCALENDAR", ""]))
        self.let_a_second_pass()
        self.desktop.focus(self.desktop.windows("Contact Desk$", self.desk)[0])
        self.desktop.keys("alt+f", "i")
        dialog = self.desktop.wait_for_window("^Import$", self.desk)
        self.desktop.focus(dialog)
        self.desktop.type(file_name)
        self.desktop.keys("Return")
        wait_to_see(self.desk, Atspi.Role.LABEL, "Schedule the activities for:")
        self.desktop.focus(self.desktop.windows("^Import$", self.desk)[0])
        self.desktop.keys("Return")
        wait_to_see(self.desk, Atspi.Role.LABEL, "Taken from from elsewhere.ics: 1 activity for "
                    f"{self.users[0]}, 1 new contact, 0 notes.\n")
        self.desktop.focus(self.desktop.windows("^Import$", self.desk)[0])
        self.desktop.keys("Return")
        self.wait_for_record(regarding="Fair in the town hall", start=self.at(3, 13), duration=120, user=self.users[0])
        self.desktop.focus(self.desktop.windows("^Orvanta$", self.calendar)[0])
        self.desktop.keys("alt+f", "q")
        self.wait_to_see("Olga Petersen", 3, 13)


if __name__ == "__main__":
    unittest.main(verbosity=2)
