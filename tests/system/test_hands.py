"""What the user does to the grid and in the desk's dialogs, by real mouse and keys in the windows of both programs;
each test ends by reading the database."""

import configparser
import unittest

from both_programs import CHANGE_OF_USER, EMPTY_MENU, PLAIN_MENU, BothPrograms, PlainCall, us_date
from desktop import Atspi, text_in, texts_in_sight, wait_for


class Scheduling(BothPrograms):
    settings = BothPrograms.settings + "ActyType=T\r\nActyPriority=H\r\nActyRegarding=Count the stock\r\n"

    def left_for_the_companion(self):
        parser = configparser.RawConfigParser(strict=False)
        parser.optionxform = str
        parser.read(self.store)
        return dict(parser["Software\\Program Settings\\Orvanta\\Activity"])

    def test_a_double_click_on_an_empty_cell_opens_the_desks_dialog_filled_and_ok_brings_the_activity(self):
        self.double_click(2, 10, user=1)
        self.wait_for_dialog("Schedule Activity")
        wait_for(lambda: text_in(self.desk, "Regarding") == "Count the stock", "the companion's values")
        date = us_date(self.at(2, 10))
        self.assertEqual(self.left_for_the_companion(), {
            "Type": "T", "Date": date, "Time": "10:00:00 AM", "Duration": "60", "Regarding": "Count the stock",
            "Priority": "H", "For": self.users[1]})
        self.assertEqual(text_in(self.desk, "Date"), date)
        boxes = texts_in_sight(self.desk, Atspi.Role.COMBO_BOX)
        for value in ("To-do", "High", "10:00 AM", self.users[1]):
            self.assertIn(value, boxes)
        self.let_a_second_pass()
        self.confirm("Schedule Activity")
        contact, = self.database.look("SELECT name FROM contacts ORDER BY lower(company), lower(name) LIMIT 1")
        self.wait_to_see(contact["name"], 2, 10, user=1)
        activity, = self.database.activities()
        expected = dict(type=2, priority=0, regarding="Count the stock", start=self.at(2, 10), duration=60,
                        user=self.users[1], contact_name=contact["name"], recurrence=0, cleared=0)
        self.assertEqual({name: activity[name] for name in expected}, expected)
        wait_for(lambda: not self.desktop.is_running("ActivityWin"), "the companion's end")

    def test_the_menu_schedules_a_call_and_escape_in_the_dialog_leaves_nothing(self):
        self.choose(self.place(3, 12), "Schedule", EMPTY_MENU)
        self.desktop.keys("Return")
        self.wait_for_dialog("Schedule Activity")
        wait_for(lambda: "Call" in texts_in_sight(self.desk, Atspi.Role.COMBO_BOX), "the companion's values")
        self.desktop.keys("Escape")
        wait_for(lambda: not self.desktop.windows("^Schedule Activity$", self.desk), "the end of the dialog")
        self.assertEqual(self.shown(3, 12), "")
        self.assertEqual(self.database.activities(), [])


class DraggingACall(PlainCall):
    def test_to_another_day_and_hour(self):
        self.drag((2, 10), (4, 14))
        self.wait_to_see(self.contact, 4, 14)
        self.assertEqual(self.shown(2, 10), "")
        self.expect(start=self.at(4, 14), duration=60, user=self.users[0], regarding="Prices")

    def test_to_another_user_after_a_yes(self):
        self.drag((2, 10), (2, 10, 3))
        self.answer(self.calendar, CHANGE_OF_USER, "Yes")
        self.wait_to_see(self.contact, 2, 10, 3)
        self.assertEqual(self.shown(2, 10), "")
        self.expect(start=self.at(2, 10), user=self.users[3])

    def test_to_another_user_and_a_no_changes_nothing(self):
        before = self.activity()
        self.drag((2, 10), (4, 11, 3))
        self.answer(self.calendar, CHANGE_OF_USER, "No")
        self.assertEqual(self.shown(2, 10), self.contact)
        self.assertEqual(self.activity(), before)


class CommandsOnACall(PlainCall):
    def command(self, entry):
        self.choose(self.place(2, 10), entry, PLAIN_MENU)

    def test_reschedule(self):
        self.command("Reschedule Activity...")
        self.wait_for_dialog("Edit Activity")
        self.let_a_second_pass()
        self.desktop.type("Prices of screws")
        self.confirm("Edit Activity")
        self.wait_for_record(regarding="Prices of screws", start=self.at(2, 10))

    def test_details(self):
        self.command("View/Edit Activity Details...")
        self.wait_for_dialog("Edit Activity")
        self.let_a_second_pass()
        self.desktop.type("Ask for the new list")
        self.click_on(self.desk, Atspi.Role.PUSH_BUTTON, "OK")
        self.wait_for_record(regarding="Prices", details="Ask for the new list", has_details=1)

    def test_clear(self):
        self.command("Clear Activity...")
        self.wait_for_dialog("Clear Activity")
        self.let_a_second_pass()
        self.confirm("Clear Activity")
        self.wait_to_see("", 2, 10)
        self.expect(cleared=1, result="Completed")


class AtTwiceTheSize(PlainCall):
    """The calendar lies over the desk and shows the first hours alone."""

    scale = 2
    place_of_calendar = 0, 0, 1270, 790

    def test_the_mouse_meets_the_cells_that_it_points_at(self):
        self.drag((2, 10), (4, 9))
        self.wait_to_see(self.contact, 4, 9)
        self.expect(start=self.at(4, 9))
        self.choose(self.place(4, 9), "View/Edit Activity Details...", PLAIN_MENU)
        self.wait_for_dialog("Edit Activity")
        self.let_a_second_pass()
        self.desktop.type("Ask for the new list")
        self.click_on(self.desk, Atspi.Role.PUSH_BUTTON, "OK")
        self.wait_for_record(details="Ask for the new list", start=self.at(4, 9))


if __name__ == "__main__":
    unittest.main(verbosity=2)
