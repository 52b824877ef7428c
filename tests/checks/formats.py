# SPDX-License-Identifier: MIT
"""Compares the calendar and the table of a schedule with its grid: formats.py ANSWERS ICS CSV."""

import csv
import datetime
import json
import sys

import icalendar

NUMBER, PLACE, TIME, STOP, DAY, CLOCK = 0, 1, 6, 8, 10, 11


def last_grid(path):
    grids = [json.loads(line) for line in open(path, encoding="utf-8") if '"cells"' in line]
    return [(row + [""] * 13)[:13] for row in grids[-1]["cells"]]


def check(holds, what):
    if not holds:
        sys.exit("formats: " + what)


def events(path):
    calendar = icalendar.Calendar.from_ical(open(path, "rb").read())
    found = {"Guida": [], "Sosta": [], "Notte": []}
    identifiers = set()
    for event in calendar.walk("VEVENT"):
        begin, end = event["DTSTART"].dt, event["DTEND"].dt
        check(isinstance(begin, datetime.datetime) and begin.tzinfo is None and end.tzinfo is None, "a time with a zone")
        check(begin < end, "an event that ends before it begins: " + str(event["SUMMARY"]))
        identifiers.add(str(event["UID"]))
        found[str(event["CATEGORIES"].cats[0])].append((begin, end, str(event["SUMMARY"])))
    check(len(identifiers) == sum(map(len, found.values())), "identifiers are not unique")
    return found


def moment(row, year):
    day, month = map(int, row[DAY].split("/"))
    hour, minute = map(int, row[CLOCK].replace("*", "").strip().split(":"))
    return datetime.datetime(year, month, day) + datetime.timedelta(hours=hour, minutes=minute)


def near(one, other):
    return abs((one - other).total_seconds()) <= 60  # the table cuts, the calendar rounds


def main():
    grid = last_grid(sys.argv[1])
    with open(sys.argv[3], encoding="utf-8", newline="") as file:
        table = [row for row in csv.reader(file)]
    check(table == grid, "the table is not the grid")
    check(len(table) > 100, "the table is short")

    found = events(sys.argv[2])
    year = found["Guida"][0][0].year
    for kind, rows in (
        ("Guida", [r for r in grid[1:] if r[NUMBER] and r[TIME]]),
        ("Sosta", [r for r in grid[1:] if not r[NUMBER] and r[STOP]]),
    ):
        check(len(rows) == len(found[kind]) > 0, f"{kind}: {len(found[kind])} events for {len(rows)} rows")
        for row, (_, end, summary) in zip(rows, found[kind]):
            check(near(end, moment(row, year)), f"{summary} ends at {end}, the table says {row[DAY]} {row[CLOCK]}")
    begin = found["Guida"][0][0].date()
    days = (max(end for kind in found.values() for _, end, _ in kind).date() - begin).days
    check(len(found["Notte"]) == days, f"{len(found['Notte'])} nights between {days + 1} days")
    for night, (start, end, _) in enumerate(found["Notte"]):
        check(start <= datetime.datetime.combine(begin, datetime.time()) + datetime.timedelta(days=night + 1) < end,
              f"night {night} is not at midnight")


main()
