"""Occurrences and series changed by real mouse and keys in the windows of both programs; each test ends by reading the
database."""

import unittest

from both_programs import CHANGE_OF_DATE, CHANGE_OF_USER, DAY, SERIES_MENU, WHICH, BothPrograms, us_date
from desktop import Atspi, Grid, wait_for, wait_to_see

REFUSED = ("In Orvanta, changes made under the RECURRING TAB are not allowed unless you use the Edit recurring "
           "settings command. See the user's manual for more on Editing recurring activities.\nAll changes are ignored.")


class Series(BothPrograms):
    """A daily series at 10:00 of the first user, from the week's Sunday to its Saturday. Wednesday is day 3. It has
    details and a lead of its alarm that no field shows as they are."""

    series = "A00000000001"

    def fill(self):
        self.contact = self.database.add_daily_series(self.series, self.database.user(0), self.at(0, 10), days=7,
                                                      regarding="Prices", details="10\u00a0km\r\nand back",
                                                      has_details=1, alarm_lead=40320)

    def date(self, day):
        return self.first_day + DAY * day

    def expect_series(self, exceptions=(), **expected):
        """What the series holds, and the days that are no occurrences."""
        self.settle()
        series, = [activity for activity in self.database.activities() if activity["recurrence"]]
        self.assertEqual(series["id"], self.series)
        expected = dict(start=self.at(0, 10), regarding="Prices", duration=60, cleared=0) | expected
        self.assertEqual({name: series[name] for name in expected}, expected)
        self.assertEqual(self.database.exceptions(self.series), [self.date(day) for day in exceptions])

    def expect_instance(self, **expected):
        """What the one record beside the series holds."""
        self.settle()
        instance, = [activity for activity in self.database.activities() if not activity["recurrence"]]
        expected = dict(regarding="Prices", duration=60, user=self.users[0], cleared=0) | expected
        self.assertEqual({name: instance[name] for name in expected}, expected)

    def expect_no_instance(self):
        self.settle()
        self.assertEqual(len(self.database.activities()), 1)


class Dragging(Series):
    def test_an_occurrence_to_another_hour_for_itself_alone(self):
        self.drag((3, 10), (3, 14))
        self.answer(self.calendar, WHICH, "Instance")
        self.wait_to_see(self.contact, 3, 14)
        self.assertEqual([self.shown(day, 10) for day in (2, 3, 4)], [self.contact, "", self.contact])
        self.expect_series(exceptions=[3])
        self.expect_instance(start=self.at(3, 14))

    def test_an_occurrence_to_another_hour_and_all_with_it(self):
        self.drag((3, 10), (3, 14))
        self.answer(self.calendar, WHICH, "All")
        self.wait_to_see(self.contact, 3, 14)
        self.assertEqual([(self.shown(day, 10), self.shown(day, 14)) for day in range(7)], [("", self.contact)] * 7)
        self.expect_series(start=self.at(0, 14))
        self.expect_no_instance()

    def test_an_occurrence_to_another_hour_and_a_cancel(self):
        self.drag((3, 10), (3, 14))
        self.answer(self.calendar, WHICH, "Cancel")
        self.assertEqual((self.shown(3, 10), self.shown(3, 14)), (self.contact, ""))
        self.expect_series()
        self.expect_no_instance()

    def test_an_occurrence_to_another_day(self):
        self.drag((3, 10), (5, 12))
        self.answer(self.calendar, CHANGE_OF_DATE, "OK")
        self.wait_to_see(self.contact, 5, 12)
        self.assertEqual((self.shown(3, 10), self.shown(5, 10)), ("", self.contact))
        self.expect_series(exceptions=[3])
        self.expect_instance(start=self.at(5, 12))

    def test_an_occurrence_to_another_users_day(self):
        self.drag((3, 10), (5, 12, 2))
        self.answer(self.calendar, CHANGE_OF_USER, "Yes")
        self.answer(self.calendar, CHANGE_OF_DATE, "OK")
        self.wait_to_see(self.contact, 5, 12, 2)
        self.expect_series(exceptions=[3])
        self.expect_instance(start=self.at(5, 12), user=self.users[2])


class Editing(Series):
    def edit(self, day):
        self.double_click(day, 10)
        self.wait_for_dialog("Edit Activity")

    def test_an_occurrence_and_keeping_it(self):
        self.edit(3)
        self.desktop.type("Prices of screws")
        self.confirm("Edit Activity")
        self.answer(self.calendar, WHICH, "Instance")
        self.expect_series(exceptions=[3])
        self.expect_instance(start=self.at(3, 10), regarding="Prices of screws")

    def test_an_occurrence_and_applying_it_to_all(self):
        self.edit(3)
        self.desktop.type("Prices of screws")
        self.confirm("Edit Activity")
        self.answer(self.calendar, WHICH, "All")
        wait_for(lambda: len(self.database.activities()) == 1, "the end of the instance")
        self.expect_series(regarding="Prices of screws")
        self.expect_no_instance()

    def test_an_occurrence_and_giving_the_change_up(self):
        self.edit(3)
        self.desktop.type("Prices of screws")
        self.confirm("Edit Activity")
        self.answer(self.calendar, WHICH, "Cancel")
        self.expect_series()
        self.expect_no_instance()

    def test_nothing_of_an_occurrence_leaves_no_trace(self):
        self.edit(3)
        self.confirm("Edit Activity")
        wait_for(lambda: len(self.database.activities()) == 1, "the end of the instance")
        self.expect_series()

    def test_the_first_occurrence_edits_the_series(self):
        self.edit(0)
        self.desktop.type("Prices of screws")
        self.confirm("Edit Activity")
        self.wait_for_record(regarding="Prices of screws")
        self.expect_series(regarding="Prices of screws")
        self.expect_no_instance()

    def test_a_recurrence_given_to_an_occurrence_is_refused(self):
        self.edit(3)
        self.desktop.keys("ctrl+Tab", "ctrl+Tab")
        self.click_on(self.desk, Atspi.Role.COMBO_BOX, "Once")
        self.desktop.keys("Down", "Return")
        wait_to_see(self.desk, Atspi.Role.COMBO_BOX, "Daily")
        self.click_on(self.desk, Atspi.Role.PUSH_BUTTON, "OK")
        self.answer(self.calendar, REFUSED, "OK")
        self.expect_series()
        self.expect_no_instance()


class Clearing(Series):
    def clear(self, day):
        self.choose(self.place(day, 10), "Clear Activity...", SERIES_MENU)
        self.wait_for_dialog("Clear Activity")

    def erase(self, day):
        self.clear(day)
        self.desktop.keys("alt+e")
        self.answer(self.desk, "Erase the activity \"Prices\"? It can't be brought back.", "Yes")

    def test_an_occurrence(self):
        self.clear(3)
        self.confirm("Clear Activity")
        self.wait_to_see("", 3, 10)
        self.expect_series(exceptions=[3])
        self.expect_instance(start=self.at(3, 10), cleared=1)

    def test_an_occurrence_erased_in_the_dialog_comes_back_at_a_cancel(self):
        self.erase(3)
        self.answer(self.calendar, WHICH, "Cancel")
        self.assertEqual(self.shown(3, 10), self.contact)
        self.expect_series()
        self.expect_no_instance()

    def test_an_occurrence_erased_in_the_dialog_takes_the_series_along_at_an_all(self):
        self.erase(3)
        self.answer(self.calendar, WHICH, "All")
        self.wait_to_see("", 5, 10)
        self.assertEqual(self.database.activities(), [])

    def test_an_occurrence_erased_in_the_dialog_comes_back_from_the_exceptions_of_the_recurring_tab(self):
        self.erase(3)
        self.answer(self.calendar, WHICH, "Instance")
        self.wait_to_see("", 3, 10)
        self.expect_series(exceptions=[3])
        self.expect_no_instance()

        self.choose(self.place(4, 10), "Edit Recurring Settings...", SERIES_MENU)
        self.wait_for_dialog("Edit Activity")
        self.click_on(self.desk, Atspi.Role.LIST_ITEM, us_date(self.date(3)))
        self.desktop.keys("alt+m")
        self.click_on(self.desk, Atspi.Role.PUSH_BUTTON, "OK")
        self.wait_to_see(self.contact, 3, 10)
        self.expect_series()
        self.expect_no_instance()


class KilledCalendar(Series):
    """The calendar is killed while Wednesday's occurrence is edited in the desk's dialog; then it starts again."""

    def setUp(self):
        super().setUp()
        self.double_click(3, 10)
        self.dialog = self.wait_for_dialog("Edit Activity")
        self.calendar.kill()
        self.calendar.wait(10)
        self.assertEqual(len(self.database.activities()), 2)

    def start_again(self):
        self.calendar = self.desktop.start("orvanta")

    def end_dialog(self, key):
        self.desktop.focus(self.dialog)
        self.desktop.keys(key)
        wait_for(lambda: not self.desktop.windows("^Edit Activity$", self.desk), "the end of the dialog")

    def test_the_series_has_its_occurrence_again(self):
        self.end_dialog("Escape")
        self.start_again()
        self.desktop.wait_for_window("^Orvanta$", self.calendar)
        wait_for(lambda: len(self.database.activities()) == 1, "the end of the instance")
        self.assertEqual(self.database.exceptions(self.series), [])

    def test_an_occurrence_that_was_changed_stays_and_is_told(self):
        self.desktop.focus(self.dialog)
        self.desktop.keys("alt+r")
        self.desktop.type("Prices of nails")
        self.end_dialog("Return")
        self.start_again()
        self.answer(self.calendar, f'The calendar ended while the occurrence of "Prices of nails" on '
                    f'{us_date(self.date(3))} was edited. It was changed, or its series was deleted, so it stays as an '
                    'activity of its own.', "OK")
        self.desktop.wait_for_window("^Orvanta$", self.calendar)
        self.grid = Grid(self.calendar)
        self.expect_series(exceptions=[3])
        self.expect_instance(regarding="Prices of nails")


if __name__ == "__main__":
    unittest.main(verbosity=2)
