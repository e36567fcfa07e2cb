"""Takes the pictures of the documents: both layouts in both views, with days off, holidays and inactive hours, at
200 %, the grid's menu, and the contact desk with its dialog."""

import contextlib
import os

from desktop import Desktop, Grid, text_in, wait_for

FOLDER = os.path.dirname(os.path.abspath(__file__))
SHARED_ROWS = "OneRowPerUser=0\nCellsPerSlot=4\n"
WEEKENDS_OFF = "[DaysOff]\n1=1\n7=1\n"
FIRST_HOUR_OFF = "[Off]\n" + "".join(f"{day}=8:00:00 AM|9:00:00 AM\n" for day in (
    "Sunday", "Monday", "Tuesday", "Wednesday", "Thursday")) + "Friday=8:00:00 AM|9:00:00 AM,10:00:00 AM|11:00:00 AM\n"
HOLIDAYS = "[Holidays]\r\n11/19/2026=Founders' Day\r\n"
# Name, settings, weekly view, width and height in pixels at 100 %, scale.
PICTURES = [
    ("week-users", "", 1, 1150, 1000, 1),
    ("day-users", "", 0, 720, 1000, 1),
    ("week-slots", SHARED_ROWS, 1, 1080, 1000, 1),
    ("day-slots", SHARED_ROWS, 0, 720, 1000, 1),
    ("bands-users", WEEKENDS_OFF + FIRST_HOUR_OFF, 1, 850, 1000, 1),
    ("bands-slots", SHARED_ROWS + WEEKENDS_OFF + FIRST_HOUR_OFF, 1, 750, 1000, 1),
    ("week-users-200-percent", "", 1, 1000, 700, 2),
]
TWIPS_PER_PIXEL = 15


def shown_and_still(desktop, path, *options):
    """A picture of the screen, or what of it the options say, once two in a row are equal."""
    seen = []

    def look():
        desktop.run("import", "-silent", *options, path)
        with open(path, "rb") as file:
            seen.append(file.read())
        return len(seen) > 3 and seen[-1] == seen[-2]
    wait_for(look, "windows that have finished painting", 20)


def picture(name):
    return os.path.join(FOLDER, name + ".png")


@contextlib.contextmanager
def both_programs(settings, weekly, width, height, scale=1):
    """The desktop, its desk and its calendar, and the window of that at the upper left corner of the screen."""
    with Desktop(scale) as desktop:
        with open(desktop.path("programs", "Orvanta.ini"), "w") as file:
            file.write("[Settings]\n" + settings + "[Filter]\nShowCleared=1\n")
        if WEEKENDS_OFF in settings:
            with open(desktop.path("programs", "holidays.dat"), "w", newline="") as file:
                file.write(HOLIDAYS)
        os.makedirs(desktop.path("config", "Orvanta"))
        with open(desktop.path("config", "Orvanta", "user-store.ini"), "w") as file:
            file.write("[Software\\Program Settings\\Orvanta\\Settings]\n"
                       f"WeeklyView={weekly}\nLeft=0\nTop=0\n"
                       f"Width={width * TWIPS_PER_PIXEL}\nHeight={height * TWIPS_PER_PIXEL}\n")
        desk = desktop.start_desk(desktop.sample())
        calendar = desktop.start("orvanta")
        yield desktop, desk, calendar, desktop.wait_for_window("^Orvanta$", calendar)


def calendar_window(name, *given):
    with both_programs(*given) as (desktop, _, _, window):
        shown_and_still(desktop, picture(name), "-window", window)


def first_cell(grid, is_wanted):
    """Where the first cell of the second band of slots has its middle whose text is wanted, from Monday on."""
    return next(grid.middle(row, column) for row in range(7, 13) for column in range(3, 9)
                if is_wanted(grid.text(row, column).strip()))


def menu_over_the_grid():
    with both_programs("", 1, 850, 700) as (desktop, _, calendar, window):
        shown_and_still(desktop, picture("menu"), "-window", window)
        desktop.focus(window)
        desktop.click(first_cell(Grid(calendar), lambda text: text and text != "( Continued )"), button=3)
        desktop.keys("Down", "Down")
        shown_and_still(desktop, picture("menu"), "-window", "root", "-crop", "850x700+0+0", "+repage")


def dialog_of_the_desk():
    regarding = "Plan the spring fair"
    with both_programs(f"ActyRegarding={regarding}\nActyPriority=M\n", 1, 850, 700) as (desktop, desk, calendar, window):
        shown_and_still(desktop, picture("dialog"), "-window", window)
        desktop.focus(window)
        desktop.click(first_cell(Grid(calendar), lambda text: not text), times=2)
        dialog = desktop.wait_for_window("^Schedule Activity$", desk)
        wait_for(lambda: text_in(desk, "Regarding") == regarding, "the values of the companion")
        shown_and_still(desktop, picture("dialog"), "-window", dialog)


def contact_desk():
    with Desktop() as desktop:
        desk = desktop.start_desk(desktop.sample())
        window = desktop.wait_for_window("Contact Desk", desk)
        shown_and_still(desktop, picture("desk"), "-window", window)


if __name__ == "__main__":
    for window in PICTURES:
        calendar_window(*window)
    menu_over_the_grid()
    dialog_of_the_desk()
    contact_desk()
