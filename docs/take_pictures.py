"""Takes the pictures of the documents: both layouts in both views, with days off, holidays and inactive hours, at
200 %, and the contact desk."""

import os

from desktop import Desktop, wait_for

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


def shown_and_still(desktop, window, path):
    """A picture of the window once two in a row are equal."""
    seen = []

    def look():
        desktop.picture(path, window)
        with open(path, "rb") as file:
            seen.append(file.read())
        return len(seen) > 3 and seen[-1] == seen[-2]
    wait_for(look, "a window that has finished painting", 20)


def calendar(name, settings, weekly, width, height, scale):
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
        desktop.start_desk(desktop.sample())
        window = desktop.wait_for_window("^Orvanta$", desktop.start("orvanta"))
        shown_and_still(desktop, window, os.path.join(FOLDER, name + ".png"))


def contact_desk():
    with Desktop() as desktop:
        desk = desktop.start_desk(desktop.sample())
        window = desktop.wait_for_window("Contact Desk", desk)
        shown_and_still(desktop, window, os.path.join(FOLDER, "desk.png"))


for picture in PICTURES:
    calendar(*picture)
contact_desk()
