"""The controls above the grid, by real keys and clicks: each jump, the steps, the views and the mini calendar."""

import calendar
import datetime
import os
import unicodedata
import unittest

from desktop import Atspi, Desktop, Grid, find, press, wait_for, wait_to_find
from sample_week import week_of
from team_database import TeamDatabase

ENTRIES = ["", "Pick a date...", "Today - 1 year", "Today - 6 months", "Today - 3 months", "Today - 1 month",
           "1st of previous month", "15th of previous month", "1st of this month", "Today", "1st of next month",
           "15th of next month", "Today + 1 month", "Today + 3 months", "Today + 6 months", "Today + 1 year"]
MONTHS = ["Jan.", "Feb.", "Mar.", "Apr.", "May", "Jun.", "Jul.", "Aug.", "Sep.", "Oct.", "Nov.", "Dec."]
TWIPS_PER_PIXEL = 15
WEEK = datetime.timedelta(days=7)
DAY = datetime.timedelta(days=1)


def in_months(today, months, day=None):
    """A day of another month; today's, or that month's last, where none is given."""
    count = today.year * 12 + today.month - 1 + months
    year, month = divmod(count, 12)
    return datetime.date(year, month + 1, day or min(today.day, calendar.monthrange(year, month + 1)[1]))


def targets(today):
    """The date that each entry leads to."""
    return {"Today - 1 year": in_months(today, -12), "Today - 6 months": in_months(today, -6),
            "Today - 3 months": in_months(today, -3), "Today - 1 month": in_months(today, -1),
            "1st of previous month": in_months(today, -1, 1), "15th of previous month": in_months(today, -1, 15),
            "1st of this month": in_months(today, 0, 1), "Today": today, "1st of next month": in_months(today, 1, 1),
            "15th of next month": in_months(today, 1, 15), "Today + 1 month": in_months(today, 1),
            "Today + 3 months": in_months(today, 3), "Today + 6 months": in_months(today, 6),
            "Today + 1 year": in_months(today, 12)}


def title(date):
    return f"{date:%A} {MONTHS[date.month - 1]} {date.day}"


class Navigation(unittest.TestCase):
    """A call at 10:00 on each target of the jump list, and nothing else, over the sample's team."""

    def setUp(self):
        self.desktop = self.enterContext(Desktop())
        self.store = self.desktop.path("config", "Orvanta", "user-store.ini")
        os.makedirs(os.path.dirname(self.store))
        with open(self.store, "w") as file:
            file.write("[Software\\Program Settings\\Orvanta\\Settings]\nLeft=0\nTop=0\n"
                       f"Width={1300 * TWIPS_PER_PIXEL}\nHeight={900 * TWIPS_PER_PIXEL}\n")
        self.today = datetime.date.today()
        self.targets = targets(self.today)
        database = TeamDatabase(self.desktop.sample())
        database.remove_all_activities()
        for number, date in enumerate(sorted(set(self.targets.values()))):
            self.contact = database.add(f"A{number:011}", database.user(0),
                                        datetime.datetime.combine(date, datetime.time(10)))
        self.desktop.start_desk(database.path)
        self.calendar = self.desktop.start("orvanta")
        self.window = self.desktop.wait_for_window("^Orvanta$", self.calendar)
        self.desktop.run("xdotool", "windowraise", self.window, "windowfocus", "--sync", self.window)

    def keys(self, *keys):
        self.desktop.run("xdotool", "key", "--delay", "5", *keys)

    def jump(self, entry):
        """Chooses an entry by keys alone."""
        self.keys("alt+j", "Home", *["Down"] * ENTRIES.index(entry), "Return")

    def wait_for_days(self, first, days=7):
        """Waits for the titles of those days; gives what the first user's cells of 10:00 show."""
        expected = [title(first + DAY * day) for day in range(days)]

        def look():
            grid = Grid(self.calendar)
            return grid.columns == days + 2 and [grid.text(0, day + 2) for day in range(days)] == expected and grid
        grid = wait_for(look, f"the days from {first}")
        return ["".join(grid.text(13, day + 2).strip().splitlines()[:1]) for day in range(days)]

    def expected_calls(self, first, days=7):
        return [self.contact if first + DAY * day in self.targets.values() else "" for day in range(days)]

    def expect_days(self, first, days=7):
        self.assertEqual(self.wait_for_days(first, days), self.expected_calls(first, days), first)

    def test_each_jump_shows_the_week_of_its_target_with_its_activities(self):
        self.expect_days(week_of(self.today))
        for entry, target in self.targets.items():
            with self.subTest(entry):
                self.jump(entry)
                self.expect_days(week_of(target))
                self.assertIsNotNone(find(self.calendar, Atspi.Role.LABEL, str(target.year)))

    def test_each_jump_shows_the_day_of_its_target_in_the_daily_view(self):
        press(self.calendar, Atspi.Role.CHECK_BOX, "Daily")
        self.wait_for_days(week_of(self.today), 1)
        for entry, target in self.targets.items():
            with self.subTest(entry):
                self.jump(entry)
                self.expect_days(target, 1)

    def test_the_buttons_step_by_weeks_and_by_days(self):
        first = week_of(self.today)
        press(self.calendar, Atspi.Role.PUSH_BUTTON, "Next")
        self.expect_days(first + WEEK)
        for _ in range(2):
            press(self.calendar, Atspi.Role.PUSH_BUTTON, "Previous")
        self.expect_days(first - WEEK)
        self.jump("Today")
        press(self.calendar, Atspi.Role.CHECK_BOX, "Daily")
        self.wait_for_days(first, 1)
        self.jump("Today")
        press(self.calendar, Atspi.Role.PUSH_BUTTON, "Next")
        self.expect_days(self.today + DAY, 1)
        press(self.calendar, Atspi.Role.PUSH_BUTTON, "Previous")
        self.expect_days(self.today, 1)

    def test_the_view_boxes_show_a_day_and_its_week(self):
        first = week_of(self.today)
        press(self.calendar, Atspi.Role.CHECK_BOX, "Daily")
        self.expect_days(first, 1)
        press(self.calendar, Atspi.Role.CHECK_BOX, "Weekly")
        self.expect_days(first)

    def open_mini_calendar(self):
        self.jump("Pick a date...")
        window = self.desktop.wait_for_window("^Pick a date$", self.calendar)
        self.desktop.run("xdotool", "windowfocus", "--sync", window)
        return window

    def geometry(self, window):
        lines = self.desktop.run("xdotool", "getwindowgeometry", "--shell", window).split()
        return {name: int(value) for name, value in (line.split("=") for line in lines)}

    def click(self, x, y):
        self.desktop.run("xdotool", "mousemove", str(x), str(y), "click", "1")

    def wait_until_closed(self):
        wait_for(lambda: not self.desktop.windows("^Pick a date$", self.calendar), "the mini calendar's end")

    def test_a_day_picked_with_the_keys_is_jumped_to(self):
        self.open_mini_calendar()
        self.keys("Down", "Down", "Return")
        self.wait_until_closed()
        self.expect_days(week_of(self.today + 2 * WEEK))

    def test_the_mini_calendar_opens_on_the_last_target(self):
        self.jump("Today + 6 months")
        self.wait_for_days(week_of(self.targets["Today + 6 months"]))
        self.open_mini_calendar()
        self.keys("Down", "Return")
        self.wait_until_closed()
        self.expect_days(week_of(self.targets["Today + 6 months"] + WEEK))

    def test_a_cancelled_pick_leaves_the_calendar_where_it_stood_and_the_small_window_where_it_was_dragged(self):
        place = self.geometry(self.open_mini_calendar())
        self.desktop.run("xdotool", "mousemove", str(place["X"] + 20), str(place["Y"] + 4), "mousedown", "1",
                         "mousemove", str(place["X"] + 60), str(place["Y"] + 40),
                         "mousemove", str(place["X"] + 120), str(place["Y"] + 64), "mouseup", "1")
        window = self.desktop.windows("^Pick a date$", self.calendar)[0]
        moved = wait_for(lambda: (now := self.geometry(window))["X"] == place["X"] + 100 and now, "the end of the drag")
        self.assertEqual(moved["Y"], place["Y"] + 60)
        self.click(moved["X"] + moved["WIDTH"] - 4, moved["Y"] + 4)
        self.wait_until_closed()
        self.expect_days(week_of(self.today))
        with open(self.store) as file:
            saved = file.read()
        self.assertIn(f"MiniCalLeft={moved['X'] * TWIPS_PER_PIXEL}\n", saved)
        self.assertIn(f"MiniCalTop={moved['Y'] * TWIPS_PER_PIXEL}\n", saved)
        again = self.geometry(self.open_mini_calendar())
        self.assertEqual((again["X"], again["Y"]), (moved["X"], moved["Y"]))

    def test_a_day_clicked_in_the_mini_calendar_is_jumped_to(self):
        place = self.geometry(self.open_mini_calendar())
        # The first week shown begins on the Sunday on or before the month's first day, or a week earlier.
        first = self.today.replace(day=1)
        row_height = 18  # pixels
        self.click(place["X"] + place["WIDTH"] // 2, place["Y"] + place["HEIGHT"] - row_height // 2)
        self.wait_until_closed()
        grid = Grid(self.calendar)
        last_rows_wednesday = wait_for(lambda: grid.text(0, 5) != title(week_of(self.today) + 3 * DAY) and grid.text(0, 5),
                                       "another week")
        later = [week_of(first) + 3 * DAY + WEEK * weeks for weeks in (4, 5)]
        self.assertIn(last_rows_wednesday, [title(date) for date in later])


class Manual(unittest.TestCase):
    def test_the_manual_in_the_programs_folder_is_whole(self):
        desktop = self.enterContext(Desktop())
        text = desktop.run("pdftotext", "-layout", desktop.program("orvanta_manual.pdf"), "-")
        text = unicodedata.normalize("NFKC", text)  # "fi" is one sign in print
        self.assertIn("Orvanta: user's manual", text)
        for words in ("Pick a date...", "The settings file", "ShowCleared"):
            self.assertIn(words, text)


if __name__ == "__main__":
    unittest.main(verbosity=2)
