"""Tests of the calendar beside the desk by what a user does with mouse and keyboard."""

import datetime
import os
import time
import unittest

from desktop import Atspi, Desktop, Grid, middle, part_of_its_window, texts_in_sight, wait_for, wait_to_see
from sample_week import users, week_of
from team_database import TeamDatabase

TWIPS_PER_PIXEL = 15
DAY = datetime.timedelta(days=1)
# The entries of the context menu that are enabled.
PLAIN_MENU = ["Reschedule Activity...", "View/Edit Activity Details...", "Send Activity...", "Clear Activity...",
              "Create Lookup (This cell)", "Create Lookup (All cells)"]
SERIES_MENU = PLAIN_MENU[:4] + ["Edit Recurring Settings..."] + PLAIN_MENU[4:]
EMPTY_MENU = ["Schedule", "Create Lookup (All cells)"]
TITLE_MENU = ["Create Lookup (Column)", "Reset Column Width"]
ROW_MENU = ["Create Lookup (Row)", "Reset Row Height"]
SELECTION_MENU = ["Create Lookup (Selection)"]
# The calendar's questions.
CHANGE_OF_USER = "You are dropping this activity to a cell belonging to another user. Do you want to continue?"
CHANGE_OF_DATE = ("You are changing the date of a recurring activity. This change will remove the recurring settings "
                  "for this instance of the activity.")
WHICH = "This is a recurring activity. Change this instance or change all instances of this activity?"


def us_date(date):
    return f"{date.month}/{date.day}/{date.year}"


class BothPrograms(unittest.TestCase):
    """The desk at the left of the screen and the calendar at the right, all rows of its week in sight: six users
    with a row each in nine slots from 8:00. The database has the sample's team and no activities."""

    settings = "[Settings]\r\nStdRowHeight=390\r\n"
    scale = 1
    place_of_calendar = 1230, 0, 1310, 1580  # left, top, width and height in pixels before they are scaled

    def setUp(self):
        self.desktop = self.enterContext(Desktop(self.scale))
        self.store = self.desktop.path("config", "Orvanta", "user-store.ini")
        os.makedirs(os.path.dirname(self.store))
        with open(self.store, "w") as file:
            file.write("[Software\\Program Settings\\Orvanta\\Settings]\n")
            for name, pixels in zip(("Left", "Top", "Width", "Height"), self.place_of_calendar):
                file.write(f"{name}={pixels * TWIPS_PER_PIXEL}\n")
        with open(self.desktop.path("programs", "Orvanta.ini"), "w", newline="") as file:
            file.write(self.settings)
        self.database = TeamDatabase(self.desktop.sample())
        self.database.remove_all_activities()
        self.users = users(self.database.path)
        self.first_day = week_of(datetime.date.today())
        self.fill()
        self.desk = self.desktop.start_desk(self.database.path)
        self.calendar = self.desktop.start("orvanta")
        self.desktop.wait_for_window("^Orvanta$", self.calendar)
        self.grid = Grid(self.calendar)

    def fill(self):
        """Puts into the database what the test begins with."""

    def at(self, day, hour):
        """The moment of that day of the week, from 0 for Sunday."""
        return datetime.datetime.combine(self.first_day + DAY * day, datetime.time(hour))

    # The grid. Days count from 0 for Sunday, users from 0.

    def place(self, day, hour, user=0):
        return self.grid.middle((hour - 8) * 6 + user + 1, day + 2)

    def title(self, day):
        return self.grid.middle(0, day + 2)

    def shown(self, day, hour, user=0):
        """The first line of a cell."""
        lines = self.grid.text((hour - 8) * 6 + user + 1, day + 2).strip().splitlines()
        return lines[0] if lines else ""

    def wait_to_see(self, text, day, hour, user=0):
        wait_for(lambda: self.shown(day, hour, user) == text, f"'{text}' in the cell of day {day} at {hour}")

    def double_click(self, day, hour, user=0):
        self.desktop.click(self.place(day, hour, user), times=2)

    def drag(self, start, end):
        self.desktop.drag_with_ctrl(self.place(*start), self.place(*end))

    def choose(self, place, entry, entries):
        """Opens the context menu and chooses one of its entries by keys, which go over the enabled ones alone."""
        before = set(self.desktop.windows("", self.calendar))
        self.desktop.click(place, button=3)
        wait_for(lambda: set(self.desktop.windows("", self.calendar)) - before, "the context menu")
        self.desktop.keys(*["Down"] * (entries.index(entry) + 1), "Return")

    def click_on(self, process, role, name):
        self.desktop.click(middle(wait_to_see(process, role, name)))

    def answer(self, process, text, button):
        """Waits for a question with that text and clicks on its button."""
        question = wait_to_see(process, Atspi.Role.LABEL, text)
        self.desktop.click(middle(part_of_its_window(question, Atspi.Role.PUSH_BUTTON, button)))
        wait_for(lambda: text not in texts_in_sight(process, Atspi.Role.LABEL), "the end of the question")

    # The database

    def settle(self):
        """Waits until the calendar has finished what it is at: it answers no question before."""
        self.grid.text(0, 0)

    def wait_for_record(self, **expected):
        """Waits until one record, and one alone, has these values."""
        def look():
            found = [{name: activity[name] for name in expected} for activity in self.database.activities()]
            return found.count(expected) == 1
        wait_for(look, f"a record with {expected}")

    # The desk's dialogs

    def wait_for_dialog(self, title):
        window = self.desktop.wait_for_window(f"^{title}$", self.desk)
        self.desktop.focus(window)
        return window

    def confirm(self, title):
        """Presses Enter in the dialog and waits for its end."""
        self.desktop.keys("Return")
        wait_for(lambda: not self.desktop.windows(f"^{title}$", self.desk), f"the end of '{title}'")

    def let_a_second_pass(self):
        """Times of edits and refreshes are whole seconds, and one that is equal to the last refresh isn't later."""
        begin = time.time()
        wait_for(lambda: time.time() > begin + 1.1, "the next second")


class PlainCall(BothPrograms):
    """One call at 10:00 for the first user."""

    day = 2

    def fill(self):
        self.contact = self.database.add("A00000000001", self.database.user(0), self.at(self.day, 10),
                                         regarding="Prices")

    def activity(self):
        activity, = self.database.activities()
        return activity

    def expect(self, **expected):
        activity = self.activity()
        self.assertEqual({name: activity[name] for name in expected}, expected)
