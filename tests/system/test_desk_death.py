"""The calendar while a dialog of the desk is open: it takes no input; the desk dies; it is asked to end itself."""

import signal
import time
import unittest

from both_programs import BothPrograms
from desktop import Atspi, middle, texts_in_sight, wait_for, wait_to_see

GONE = "The contact desk ended before its dialog was closed."
DELETED = "The activity was deleted by somebody else in the meantime. Your change wasn't stored."


class WaitingCalendar(BothPrograms):
    """A daily series at 10:00 of the first user from the week's Sunday on; all other cells are empty."""

    series = "A00000000001"

    def fill(self):
        self.contact = self.database.add_daily_series(self.series, self.database.user(0), self.at(0, 10), days=7)

    def open_dialog(self, day, hour, title):
        self.double_click(day, hour)
        self.wait_for_dialog(title)

    def box_is_shown(self):
        return any(GONE in text for text in texts_in_sight(self.calendar, Atspi.Role.LABEL))

    def read_the_box(self):
        self.desktop.click(middle(wait_to_see(self.calendar, Atspi.Role.PUSH_BUTTON, "OK")))

    def expect_an_end_with_the_state_saved(self):
        self.assertEqual(self.calendar.wait(10), 0)
        with open(self.store) as file:
            saved = file.read()
        self.assertIn("WeeklyView=1", saved)
        self.assertIn("RowHeightWeekly1=", saved)

    def expect_the_series_alone(self):
        activity, = self.database.activities()
        self.assertEqual(activity["id"], self.series)
        self.assertEqual(activity["start"], self.at(0, 10))
        self.assertEqual(self.database.exceptions(self.series), [])


class NewActivity(WaitingCalendar):
    def setUp(self):
        super().setUp()
        self.open_dialog(2, 14, "Schedule Activity")

    def test_a_desk_that_dies_is_told_by_a_box_that_stays_until_it_is_read(self):
        self.desk.kill()
        wait_for(self.box_is_shown, "the box")
        time.sleep(1)  # fifty times as long as the end takes to close what it may close
        self.assertTrue(self.box_is_shown())
        self.assertIsNone(self.calendar.poll())
        self.read_the_box()
        self.expect_an_end_with_the_state_saved()

    def test_the_box_about_a_desk_that_died_does_not_keep_a_request_to_end_waiting(self):
        self.desk.kill()
        wait_for(self.box_is_shown, "the box")
        self.calendar.terminate()
        self.expect_an_end_with_the_state_saved()

    def test_the_first_signal_to_end_does_not_wait_for_the_dialog(self):
        self.calendar.send_signal(signal.SIGTERM)
        self.expect_an_end_with_the_state_saved()
        self.assertIsNone(self.desk.poll())
        self.assertTrue(self.desktop.windows("^Schedule Activity$", self.desk), "the user's own work goes on")

    def test_nor_does_the_first_interrupt(self):
        self.calendar.send_signal(signal.SIGINT)
        self.expect_an_end_with_the_state_saved()

    def test_the_calendar_takes_no_input_meanwhile_nor_carries_it_out_afterwards(self):
        self.desktop.focus(self.desktop.windows("^Orvanta$", self.calendar)[0])
        before = self.grid.text(0, 2)
        self.desktop.keys("alt+n", "alt+d", "Return", "Down")
        self.double_click(3, 15)
        self.let_a_second_pass()
        self.wait_for_dialog("Schedule Activity")
        self.desktop.keys("Escape")
        wait_for(lambda: not self.desktop.windows("^Schedule Activity$", self.desk), "the end of the dialog")
        self.let_a_second_pass()
        self.assertEqual(self.desktop.windows("^Schedule Activity$", self.desk), [])
        self.assertEqual((self.grid.table.get_n_columns(), self.grid.text(0, 2)), (9, before))
        self.expect_the_series_alone()


class Occurrence(WaitingCalendar):
    def setUp(self):
        super().setUp()
        self.open_dialog(4, 10, "Edit Activity")
        self.assertEqual(len(self.database.activities()), 2, "the series and the temporary instance")

    def test_a_desk_that_dies_leaves_no_trace_of_the_temporary_instance(self):
        self.desk.kill()
        wait_for(self.box_is_shown, "the box")
        self.read_the_box()
        self.expect_an_end_with_the_state_saved()
        self.expect_the_series_alone()

    def test_a_signal_to_end_leaves_no_trace_of_it_and_the_dialog_keeps_what_was_typed(self):
        self.desktop.type("Prices of screws")
        self.calendar.terminate()
        self.expect_an_end_with_the_state_saved()
        self.expect_the_series_alone()
        self.wait_for_dialog("Edit Activity")
        self.desktop.keys("Return")
        wait_for(lambda: DELETED in texts_in_sight(self.desk, Atspi.Role.LABEL), "the desk's word about it")
        self.assertTrue(self.desktop.windows("^Edit Activity$", self.desk))
        self.expect_the_series_alone()


if __name__ == "__main__":
    unittest.main(verbosity=2)
