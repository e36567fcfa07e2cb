"""The calendar beside the contact desk, from its start to each of its ends."""

import datetime
import os
import signal
import unittest

from desktop import Atspi, Desktop, Grid, find, names, press, press_to_open_a_box, texts_in_sight, wait_for
from sample_week import cells_of_week, rows_of_week, users, week_of

PLAIN_ONLY = "[Settings]\r\nCheckRecurring=0\r\n"


def settings(desktop, text):
    with open(desktop.path("programs", "Orvanta.ini"), "w", newline="") as file:
        file.write(text)


class CalendarBesideTheDesk(unittest.TestCase):
    def setUp(self):
        self.desktop = self.enterContext(Desktop())

    def start_both(self):
        self.database = self.desktop.sample()
        self.desk = self.desktop.start_desk(self.database)
        self.calendar = self.desktop.start("orvanta")
        self.desktop.wait_for_window("^Orvanta$", self.calendar)

    def test_each_activity_of_the_week_stands_in_the_cell_of_its_day_slot_and_user(self):
        settings(self.desktop, PLAIN_ONLY)
        self.start_both()
        grid = Grid(self.calendar)
        names = users(self.database)
        self.assertEqual(len(names), 6)
        self.assertEqual((grid.rows, grid.columns), (9 * 6 + 1, 9))
        expected = cells_of_week(self.database, week_of(datetime.date.today()))
        self.assertGreater(len(expected), 20)
        for slot in range(9):
            for day in range(7):
                for position, user in enumerate(names):
                    shown = grid.text(slot * 6 + position + 1, day + 2).strip()
                    first_line = shown.splitlines()[0] if shown else ""
                    self.assertEqual(first_line, expected.get((slot, day, user), ""), (slot, day, user))

    def test_shared_rows_show_the_activities_of_a_slot_by_user_and_start(self):
        settings(self.desktop, PLAIN_ONLY + "OneRowPerUser=0\r\nCellsPerSlot=12\r\n")
        self.start_both()
        grid = Grid(self.calendar)
        self.assertEqual((grid.rows, grid.columns), (9 * 12 + 1, 8))
        expected = rows_of_week(self.database, week_of(datetime.date.today()))
        self.assertGreater(max(map(len, expected.values())), 2)
        for slot in range(9):
            for day in range(7):
                shown = [grid.text(slot * 12 + row + 1, day + 1).strip() for row in range(12)]
                begun = [text.splitlines()[0] for text in shown if text and text != "( Continued )"]
                self.assertEqual(begun, expected.get((slot, day), []), (slot, day))

    def test_titles_name_the_days_of_the_week_and_the_users(self):
        self.start_both()
        grid = Grid(self.calendar)
        first = week_of(datetime.date.today())
        self.assertTrue(grid.text(0, 2).startswith("Sunday "))
        self.assertTrue(grid.text(0, 2).endswith(f" {first.day}"))
        self.assertEqual([grid.text(row, 1) for row in range(1, 7)], users(self.database))

    def test_closing_the_database_in_the_desk_ends_the_calendar_with_its_state_saved(self):
        self.start_both()
        press(self.desk, Atspi.Role.MENU_ITEM, "Close")
        self.assertEqual(self.calendar.wait(10), 0)
        self.assertIsNone(self.desk.poll())
        saved = self.user_store()
        for name in ("Left", "Top", "Width", "Height", "WindowState", "RowHeightWeekly1"):
            self.assertIn(name + "=", saved)
        self.assertIn("WeeklyView=1", saved)

    def test_ending_the_desk_ends_the_calendar(self):
        self.start_both()
        press(self.desk, Atspi.Role.MENU_ITEM, "Exit")
        self.assertEqual(self.desk.wait(10), 0)
        self.assertEqual(self.calendar.wait(10), 0)
        self.assertIn("WeeklyView=1", self.user_store())

    def test_a_desk_that_is_killed_takes_the_calendar_down_in_order_after_a_sentence(self):
        self.start_both()
        self.desk.kill()
        wait_for(lambda: any("The contact desk has ended without notice. The calendar ends as well" in text
                             for text in texts_in_sight(self.calendar, Atspi.Role.LABEL)), "the sentence")
        self.assertIsNone(self.calendar.poll())
        press(self.calendar, Atspi.Role.PUSH_BUTTON, "OK")
        self.assertEqual(self.calendar.wait(10), 0)
        self.assertIn("WeeklyView=1", self.user_store())

    def test_the_signals_to_end_end_the_calendar_with_its_state_saved(self):
        for number in (signal.SIGTERM, signal.SIGINT):
            with self.subTest(number.name), Desktop() as self.desktop:
                self.start_both()
                Grid(self.calendar)
                self.calendar.send_signal(number)
                self.assertEqual(self.calendar.wait(10), 0)
                self.assertIsNone(self.desk.poll())
                saved = self.user_store()
                self.assertIn("WeeklyView=1", saved)
                self.assertIn("RowHeightWeekly1=", saved)

    def test_a_signal_to_end_does_not_wait_for_an_open_box(self):
        self.start_both()
        press_to_open_a_box(self.calendar, Atspi.Role.MENU_ITEM, "About...")
        self.calendar.terminate()
        self.assertEqual(self.calendar.wait(10), 0)
        self.assertIn("WeeklyView=1", self.user_store())

    def test_exit_ends_the_calendar_and_leaves_the_desk_running(self):
        self.start_both()
        press(self.calendar, Atspi.Role.MENU_ITEM, "Exit")
        self.assertEqual(self.calendar.wait(10), 0)
        self.assertIsNone(self.desk.poll())

    def test_a_second_start_shows_a_box_and_leaves_the_first_running(self):
        self.start_both()
        second = self.desktop.start("orvanta")
        self.dismiss_box(second, "An instance of this program is already running!")
        self.assertEqual(second.wait(10), 0)
        self.assertIsNone(self.calendar.poll())
        self.assertIn("WeeklyView=0", self.user_store())

    def test_without_the_desk_the_calendar_says_that_it_cannot_communicate(self):
        calendar = self.desktop.start("orvanta")
        self.dismiss_box(calendar, "Unable to communicate with ACT!")
        self.assertEqual(calendar.wait(10), 0)

    def test_a_desk_without_a_database_is_told_apart(self):
        self.desktop.start_desk()
        calendar = self.desktop.start("orvanta")
        self.dismiss_box(calendar, "Please open an ACT database prior to running Orvanta!")
        self.assertEqual(calendar.wait(10), 0)

    def test_a_desk_that_does_not_answer_counts_as_one_that_cannot_be_reached(self):
        desk = self.desktop.start_desk(self.desktop.sample())
        desk.send_signal(signal.SIGSTOP)
        try:
            calendar = self.desktop.start("orvanta")
            self.dismiss_box(calendar, "Unable to communicate with ACT!")
            self.assertEqual(calendar.wait(10), 0)
        finally:
            desk.send_signal(signal.SIGCONT)

    def test_a_settings_file_that_has_gone_is_told_and_comes_back_at_its_place_with_the_first_write(self):
        self.start_both()
        press(self.calendar, Atspi.Role.MENU_ITEM, "Exit")
        self.calendar.wait(10)
        stale, in_programs_folder = self.desktop.path("elsewhere.ini"), self.desktop.path("programs", "Orvanta.ini")
        self.write_user_value("SettingsFile", stale)
        self.calendar = self.desktop.start("orvanta")
        self.dismiss_box(self.calendar, "The program's settings file has been deleted or moved or is unaccessible.")
        self.desktop.wait_for_window("^Orvanta$", self.calendar)
        self.assertFalse(os.path.exists(stale))
        press_to_open_a_box(self.calendar, Atspi.Role.MENU_ITEM, "Days Off...")
        press(self.calendar, Atspi.Role.PUSH_BUTTON, "OK")
        wait_for(lambda: os.path.exists(stale), "the settings file")
        wait_for(lambda: find(self.calendar, Atspi.Role.PUSH_BUTTON, "OK") is None, "the end of the dialog")
        with open(stale) as file:
            self.assertEqual(file.read(), "[DaysOff]\n" + "".join(f"{day}=0\n" for day in range(1, 8)))
        self.assertFalse(os.path.exists(in_programs_folder))
        press(self.calendar, Atspi.Role.MENU_ITEM, "Exit")
        self.assertEqual(self.calendar.wait(10), 0)
        self.calendar = self.desktop.start("orvanta")
        self.desktop.wait_for_window("^Orvanta$", self.calendar)
        self.assertEqual(names(self.calendar, Atspi.Role.ALERT), [])

    def test_broken_settings_files_give_the_usual_calendar(self):
        for name, content in (("noise", os.urandom(100_000)), ("zeros", b"\0" * 50_000),
                              ("large", b"[Settings]\r\n" + b"x" * 100_000_000)):
            with self.subTest(name):
                with open(self.desktop.path("programs", "Orvanta.ini"), "wb") as file:
                    file.write(content)
                self.start_both()
                self.assertEqual((Grid(self.calendar).rows, Grid(self.calendar).columns), (55, 9))
                for process in (self.calendar, self.desk):
                    process.terminate()
                    process.wait(10)
                os.remove(self.database)

    def dismiss_box(self, process, beginning):
        """Waits for a box with a text that begins so, and closes it by its button."""
        wait_for(lambda: any(label.startswith(beginning) for label in names(process, Atspi.Role.LABEL)),
                 f"a box with the text '{beginning}'")
        press(process, Atspi.Role.PUSH_BUTTON, "OK")

    def user_store(self):
        for folder, _, files in os.walk(self.desktop.path("config")):
            for name in files:
                with open(os.path.join(folder, name)) as file:
                    text = file.read()
                if "Settings]" in text:
                    self.store_file = os.path.join(folder, name)
                    return text
        raise AssertionError("no per-user store was written")

    def write_user_value(self, name, value):
        text = self.user_store()
        with open(self.store_file, "w") as file:
            file.write(text.replace("Settings]\n", f"Settings]\n{name}={value}\n", 1))


if __name__ == "__main__":
    unittest.main(verbosity=2)
