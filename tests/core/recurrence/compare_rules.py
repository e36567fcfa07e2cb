"""Compares the dates of random rules of recurrence with those that dateutil finds: compare_rules.py PROGRAM, where
PROGRAM is the test program rule_dates. Both mean the same by a rule wherever the standard (RFC 5545) is clear."""

import datetime
import itertools
import random
import subprocess
import sys

from dateutil import rrule

RULES = 2000
WEEKDAYS = ["SU", "MO", "TU", "WE", "TH", "FR", "SA"]
FORM = "%Y%m%dT%H%M%S"
# So far a rule of each step is followed.
DAYS = {"YEARLY": 12000, "MONTHLY": 3000, "WEEKLY": 1500, "DAILY": 500, "HOURLY": 40, "MINUTELY": 3, "SECONDLY": 0.1}


def numbers(source, least, most, count):
    wanted = [n for n in range(least, most + 1) if n != 0 or least == 0]
    return ",".join(str(n) for n in source.sample(wanted, source.randint(1, count)))


def weekdays(source, step, others):
    names = source.sample(WEEKDAYS, source.randint(1, 4))
    if step == "MONTHLY" and source.random() < 0.5:
        return ",".join(f"{source.choice([1, 2, 3, 4, 5, -1, -2, -5])}{name}" for name in names)
    if step == "YEARLY" and "BYWEEKNO" not in others and source.random() < 0.5:
        most = 5 if "BYMONTH" in others else 53
        return ",".join(f"{source.choice([1, 2, 5, most, -1, -most])}{name}" for name in names)
    return ",".join(names)


def parts_of(source, step, start):
    likely = lambda chance: source.random() < chance
    parts = {"FREQ": step}
    if likely(0.5):
        parts["INTERVAL"] = source.choice([2, 3, 4, 5, 7, 10, 26])
    if likely(0.6):
        parts["WKST"] = source.choice(WEEKDAYS)
    if step not in ("MINUTELY", "SECONDLY") and likely(0.3):  # dateutil would be busy with them for minutes
        parts["BYMONTH"] = numbers(source, 1, 12, 4)
    if step == "YEARLY" and likely(0.3):
        parts["BYWEEKNO"] = source.choice([numbers(source, -53, 53, 4), "1,53", "1,52", "-1", "-52,-53"])
    if step in ("YEARLY", "HOURLY") and likely(0.2):
        parts["BYYEARDAY"] = numbers(source, -366, 366, 40)
    if step not in ("WEEKLY", "MINUTELY", "SECONDLY") and likely(0.25):
        parts["BYMONTHDAY"] = numbers(source, -31, 31, 8)
    if step in ("MINUTELY", "SECONDLY"):
        pass
    elif likely(0.5) and parts.keys().isdisjoint({"BYYEARDAY", "BYMONTHDAY"}) or likely(0.1):
        parts["BYDAY"] = weekdays(source, step, parts)
    if "BYWEEKNO" in parts and parts.keys().isdisjoint({"BYDAY", "BYMONTHDAY", "BYYEARDAY"}):
        # The standard takes the weekday of the start, dateutil all seven.
        parts["BYDAY"] = WEEKDAYS[start.isoweekday() % 7]
    if likely(0.15):
        parts["BYHOUR"] = numbers(source, 0, 23, 3)
    if likely(0.15):
        parts["BYMINUTE"] = numbers(source, 0, 59, 3)
    if likely(0.05):
        parts["BYSECOND"] = numbers(source, 0, 59, 2)
    if len(parts) > 2 and step not in ("MINUTELY", "SECONDLY") and "BYWEEKNO" not in parts and likely(0.15):
        parts["BYSETPOS"] = source.choice(["1", "-1", "2", "-2", "1,-1", "3,-3", "5"])
    if likely(0.2):
        parts["COUNT"] = source.randint(1, 60)
    elif likely(0.2):
        parts["UNTIL"] = (start + datetime.timedelta(source.random() * DAYS[step])).strftime(FORM)
    return parts


def random_rule(source):
    step = source.choice(["YEARLY", "YEARLY", "MONTHLY", "MONTHLY", "WEEKLY", "WEEKLY", "DAILY", "HOURLY", "MINUTELY",
                          "SECONDLY"])
    start = datetime.datetime(2000, 1, 1) + datetime.timedelta(source.randint(0, 12000), source.randint(0, 1439) * 60)
    if source.random() < 0.1:  # round New Year, where the weeks of two years meet
        start = start.replace(month=1, day=source.randint(1, 4))
    parts = parts_of(source, step, start)
    if step == "WEEKLY" and "BYSETPOS" in parts:  # dateutil counts the positions of the first week from the start
        start -= datetime.timedelta((start.isoweekday() - WEEKDAYS.index(parts.get("WKST", "MO"))) % 7)
    return start, start + datetime.timedelta(DAYS[step]), parts


def week_of(date, first_weekday):
    """From the start and from the end of the year to which the week belongs: that of its fourth day."""
    fourth = date + datetime.timedelta(3 - (date.isoweekday() - first_weekday) % 7)
    days_after = (datetime.date(fourth.year, 12, 31) - fourth.date()).days
    return (fourth.timetuple().tm_yday + 6) // 7, -((days_after + 7) // 7)


def dates_by_dateutil(start, end, parts):
    parts = dict(parts)
    # dateutil 2.8 takes the last week of some years for a 53rd, so the weeks are picked here.
    weeks = [int(week) for week in parts.pop("BYWEEKNO", "").split(",") if week]
    count = parts.pop("COUNT", None) if weeks else None
    first_weekday = WEEKDAYS.index(parts.get("WKST", "MO"))
    datetime.MAXYEAR = end.year  # until when dateutil looks for a next date
    try:
        rule = rrule.rrulestr(";".join(f"{name}={value}" for name, value in parts.items()), dtstart=start)
    except ValueError:  # its steps never meet its hours, minutes or seconds
        return []
    dates = itertools.takewhile(lambda date: date < end, rule)
    if weeks:
        dates = (date for date in dates if not set(week_of(date, first_weekday)).isdisjoint(weeks))
    return [date.strftime(FORM) for date in itertools.islice(dates, count)]


def main(program):
    for day in range(20000):
        date = datetime.datetime(2000, 1, 1) + datetime.timedelta(day)
        assert week_of(date, 1)[0] == date.isocalendar()[1], date
    source = random.Random(5545)
    cases = [random_rule(source) for _ in range(RULES)]
    texts = [";".join(f"{name}={value}" for name, value in parts.items()) for _, _, parts in cases]
    lines = [f"{start.strftime(FORM)} {end.strftime(FORM)} {text}" for (start, end, _), text in zip(cases, texts)]
    answer = subprocess.run([program], input="\n".join(lines) + "\n", capture_output=True, text=True, check=True)
    found = answer.stdout.split("\n")[:-1]
    if len(found) != RULES:
        sys.exit(f"{len(found)} answers to {RULES} rules")
    wrong = with_dates = 0
    for (start, end, parts), text, line in zip(cases, texts, found):
        expected = dates_by_dateutil(start, end, parts)
        with_dates += bool(expected)
        if line.split() != expected:
            wrong += 1
            missing = sorted(set(expected) - set(line.split()))[:5]
            invented = sorted(set(line.split()) - set(expected))[:5]
            print(f"DTSTART {start.strftime(FORM)}, {text}: missing {missing}, invented {invented}")
    print(f"{RULES} rules, {with_dates} of them with dates; {wrong} differ")
    if with_dates < RULES * 0.7:
        sys.exit("too few of the rules have dates to tell much")
    sys.exit(1 if wrong else 0)


main(sys.argv[1])
