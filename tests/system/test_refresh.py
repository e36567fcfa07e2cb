"""What the calendar takes up while it runs: another program's changes, at Quick Refresh and by its timer, and the
days off of its own dialog."""

import datetime
import os
import re
import time
import unittest

from desktop import Atspi, Desktop, Grid, find, names, press, press_to_open_a_box, wait_for, wait_to_find
from sample_week import week_of
from team_database import TeamDatabase

TWIPS_PER_PIXEL = 15
HOLIDAY = (192, 192, 255)
RESTART = "You will need to restart the program for the changes to take effect."


class RunningCalendar(unittest.TestCase):
    """An empty week of today over the sample's team: six users with a row each, nine slots from 8:00."""

    def setUp(self):
        self.desktop = self.enterContext(Desktop())
        os.makedirs(self.desktop.path("config", "Orvanta"))
        with open(self.desktop.path("config", "Orvanta", "user-store.ini"), "w") as file:
            file.write("[Software\\Program Settings\\Orvanta\\Settings]\nLeft=0\nTop=0\n"
                       f"Width={1300 * TWIPS_PER_PIXEL}\nHeight={900 * TWIPS_PER_PIXEL}\n")
        self.database = TeamDatabase(self.desktop.sample())
        self.database.remove_all_activities()
        self.user = self.database.user(0)
        self.first_day = week_of(datetime.date.today())
        self.desktop.start_desk(self.database.path)

    def settings(self, text):
        with open(self.desktop.path("programs", "Orvanta.ini"), "w", newline="") as file:
            file.write(text)

    def start_calendar(self):
        self.calendar = self.desktop.start("orvanta")
        self.desktop.wait_for_window("^Orvanta$", self.calendar)
        self.grid = Grid(self.calendar)

    def exit_calendar(self):
        press(self.calendar, Atspi.Role.MENU_ITEM, "Exit")
        self.assertEqual(self.calendar.wait(10), 0)

    def at(self, day, hour):
        """The moment of that day of the week, from 0 for Sunday."""
        return datetime.datetime.combine(self.first_day + datetime.timedelta(days=day), datetime.time(hour))

    def shown(self, day, hour):
        """The first line of the first user's cell."""
        lines = self.grid.text((hour - 8) * 6 + 1, day + 2).strip().splitlines()
        return lines[0] if lines else ""


class QuickRefresh(RunningCalendar):
    def setUp(self):
        super().setUp()
        self.start_calendar()
        self.let_a_second_pass()

    def let_a_second_pass(self):
        """Times of edits and refreshes are whole seconds, and one that is equal to the last refresh isn't later."""
        time.sleep(1.1)

    def quick_refresh(self):
        press(self.calendar, Atspi.Role.MENU_ITEM, "Quick Refresh")
        self.let_a_second_pass()

    def test_an_activity_that_another_program_adds_moves_and_deletes_appears_moves_and_goes(self):
        contact = self.database.add("A00000000001", self.user, self.at(2, 10))
        self.assertEqual(self.shown(2, 10), "")
        self.quick_refresh()
        self.assertEqual(self.shown(2, 10), contact)

        self.database.move("A00000000001", self.at(4, 14))
        self.assertEqual(self.shown(2, 10), contact)
        self.quick_refresh()
        self.assertEqual((self.shown(2, 10), self.shown(4, 14)), ("", contact))

        self.database.remove("A00000000001")
        self.quick_refresh()
        self.assertEqual(self.shown(4, 14), "")
        self.assertEqual(names(self.calendar, Atspi.Role.ALERT), [])

    def test_of_two_changes_the_later_in_the_list_comes_first_and_a_full_refresh_brings_both(self):
        contact = self.database.add("A00000000001", self.user, self.at(2, 10))
        self.database.add("A00000000002", self.user, self.at(3, 11))
        self.quick_refresh()
        self.assertEqual((self.shown(2, 10), self.shown(3, 11)), ("", contact))
        press(self.calendar, Atspi.Role.MENU_ITEM, "Full Refresh")
        self.assertEqual((self.shown(2, 10), self.shown(3, 11)), (contact, contact))


class AutoRefresh(RunningCalendar):
    """The calendar's clock runs twenty times as fast here, so that its minute lasts three seconds."""

    def start_with(self, prompt):
        self.settings(f"[Settings]\r\nAutoRefresh=1\r\nAutoRefreshPrompt={prompt}\r\n")
        environment = self.desktop.environment
        library = re.search("^LD_PRELOAD=(.*)$", self.desktop.run("faketime", "-f", "+0", "env"), re.MULTILINE)[1]
        self.desktop.environment = dict(environment, LD_PRELOAD=library, FAKETIME="+0 x20")
        self.calendar = self.desktop.start("orvanta")
        self.desktop.environment = environment
        self.desktop.wait_for_window("^Orvanta$", self.calendar)
        self.grid = Grid(self.calendar)
        # Edited later than any refresh of that fast clock.
        self.contact = self.database.add("A00000000001", self.user, self.at(2, 10),
                                         edited=datetime.datetime.now() + datetime.timedelta(days=2))

    def question(self):
        return wait_for(lambda: find(self.calendar, Atspi.Role.LABEL, "Do you want to refresh your calendar?"),
                        "the question", 20)

    def wait_for_the_question_to_go(self):
        wait_for(lambda: "Do you want to refresh your calendar?" not in names(self.calendar, Atspi.Role.LABEL),
                 "the end of the question")

    def test_the_timer_takes_changes_up_without_a_question_where_none_is_wanted(self):
        self.start_with(prompt=0)
        wait_for(lambda: self.shown(2, 10) == self.contact, "the activity at the timer's turn", 20)
        self.database.remove("A00000000001")
        wait_for(lambda: self.shown(2, 10) == "", "its end at the next turn", 20)

    def test_the_timer_asks_and_goes_by_the_answer(self):
        self.start_with(prompt=1)
        self.question()
        press(self.calendar, Atspi.Role.PUSH_BUTTON, "No")
        self.wait_for_the_question_to_go()
        self.assertEqual(self.shown(2, 10), "")
        self.question()
        press(self.calendar, Atspi.Role.PUSH_BUTTON, "Yes")
        wait_for(lambda: self.shown(2, 10) == self.contact, "the activity after a Yes")


class DaysOff(RunningCalendar):
    def setUp(self):
        super().setUp()
        self.start_calendar()
        self.today = (datetime.date.today() - self.first_day).days

    def title(self, day):
        return self.grid.text(0, day + 2)

    def width(self, day):
        return self.place(0, day + 2).width

    def place(self, row, column):
        cell = Atspi.Table.get_accessible_at(self.grid.table, row, column)
        return Atspi.Component.get_extents(cell, Atspi.CoordType.SCREEN)

    def colour(self, day, hour):
        """Red, green and blue near the upper right corner of the first user's cell."""
        place = self.place((hour - 8) * 6 + 1, day + 2)
        picture = self.desktop.path("picture.png")
        self.desktop.picture(picture)
        x, y = place.x + place.width - 5, place.y + 5
        text = self.desktop.run("convert", picture, "-format", f"%[fx:int(255*p{{{x},{y}}}.r)] "
                                f"%[fx:int(255*p{{{x},{y}}}.g)] %[fx:int(255*p{{{x},{y}}}.b)]", "info:")
        return tuple(int(number) for number in re.findall(r"\d+", text))

    def open_dialog(self):
        press_to_open_a_box(self.calendar, Atspi.Role.MENU_ITEM, "Days Off...")

    def confirm_and_restart(self):
        """Presses the dialog's OK, answers the message, and does what it says."""
        press(self.calendar, Atspi.Role.PUSH_BUTTON, "OK")
        wait_to_find(self.calendar, Atspi.Role.LABEL, RESTART)
        self.desktop.run("xdotool", "key", "Return")
        wait_for(lambda: find(self.calendar, Atspi.Role.PUSH_BUTTON, "OK") is None, "the end of the dialog")
        shown = self.title(self.today), self.width(0)
        self.exit_calendar()
        self.start_calendar()
        return shown

    def test_a_holiday_that_the_dialog_takes_shows_after_the_restart_that_it_asks_for(self):
        date = self.title(self.today)
        self.assertNotEqual(self.colour(self.today, 8), HOLIDAY)
        self.open_dialog()
        press(self.calendar, Atspi.Role.PAGE_TAB, "Holidays")
        press(self.calendar, Atspi.Role.PUSH_BUTTON, "Add")
        self.desktop.wait_for_window("^Holiday Description$", self.calendar)
        self.desktop.run("xdotool", "type", "Founders day")
        self.desktop.run("xdotool", "key", "Return")
        wait_for(lambda: not self.desktop.windows("^Holiday Description$", self.calendar), "the end of the question")
        title_before_restart, _ = self.confirm_and_restart()
        self.assertEqual(title_before_restart, date)
        today = datetime.date.today()
        with open(self.desktop.path("programs", "holidays.dat"), newline="") as file:
            self.assertEqual(file.read(), f"[Holidays]\r\n{today.month}/{today.day}/{today.year}=Founders day\r\n")
        self.assertEqual(self.title(self.today), "Founders day")
        for hour in (8, 9):  # an even and an odd band
            self.assertEqual(self.colour(self.today, hour), HOLIDAY)

    def test_a_weekday_that_is_ticked_is_hidden_after_the_restart(self):
        self.open_dialog()
        press(self.calendar, Atspi.Role.CHECK_BOX, "Sunday")
        _, width_before_restart = self.confirm_and_restart()
        self.assertGreater(width_before_restart, 0)
        self.assertEqual(self.width(0), 0)
        self.assertGreater(self.width(1), 0)


if __name__ == "__main__":
    unittest.main(verbosity=2)
