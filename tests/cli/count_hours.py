#!/usr/bin/env python3
"""Counts hours straight from the sample's tables and holds `k7deval load` and `range` to them, to the hour.

Usage: count_hours.py K7DEVAL DATA

Nothing here comes from the program: a value is in the bin of 5 % of the range that its share, to six decimals, falls
into; an hour of load is one above 0; a concentration counts when a monitor measured it.
"""
import csv
import gzip
import json
import struct
import subprocess
import sys
import tempfile
from datetime import date, datetime, timedelta
from decimal import ROUND_CEILING, ROUND_HALF_UP, Decimal
from pathlib import Path

SIX_PLACES = Decimal("0.000001")
MEASURED = {"01", "02", "03", "04", "17", "19", "20", "21", "22", "53", "54"}  # 19 and 20: 200 % replacement
REPLACED = {"19", "20"}
HOUR = timedelta(hours=1)
LONGEST_PERIOD = 457  # days from the first to the last


def single(value):
    """The nearest 32-bit float."""
    return struct.unpack("f", struct.pack("f", value))[0]


def six_places(value):
    return value.quantize(SIX_PLACES, ROUND_HALF_UP)


def bin_of(value, low, size):
    share = six_places((value - low) / size)
    return max(1, int(six_places(share * 20).to_integral_value(ROUND_CEILING)))


def is_above(value, low, size, share):
    return single(value) > single(six_places(low + size * Decimal(share)))


def rows_of(path):
    opener = gzip.open if path.suffix == ".gz" else open
    with opener(path, "rt", newline="") as table:
        for row in csv.DictReader(table):
            yield datetime.fromisoformat(row["date"]) + int(row["hour"]) * HOUR, row


def loads_of(path):
    """Loads of the hours in which the unit ran."""
    loads = {time: Decimal(row["gross_load_mw"]) for time, row in rows_of(path)}
    return {time: load for time, load in loads.items() if load > 0}


def concentrations_of(path, column):
    """Concentrations that a monitor measured, with the code of the method."""
    return {time: (Decimal(row[column]), row["modc"]) for time, row in rows_of(path)
            if row["modc"] in MEASURED and row[column]}


def first_of(year, quarter):
    return datetime(year, 3 * quarter - 2, 1)


def quarters_back(year, quarter):
    """Quarters as lists of their hours, the newest first."""
    while True:
        begin = first_of(year, quarter)
        end = first_of(year + 1, 1) if quarter == 4 else first_of(year, quarter + 1)
        yield [begin + hour * HOUR for hour in range(int((end - begin) / HOUR))]
        year, quarter = (year - 1, 4) if quarter == 1 else (year, quarter - 1)


def walk(values, year, quarter, wanted_hours):
    """The hours of the newest four quarters with values, and of more until there are enough; of twelve at most."""
    hours, with_data, found = [], 0, 0
    for read, quarter_hours in enumerate(quarters_back(year, quarter), 1):
        hours += quarter_hours
        valid = sum(time in values for time in quarter_hours)
        found += valid
        with_data += valid > 0
        if with_data >= 4 and found > wanted_hours or read == 12:
            return hours


def hours_between(first, last):
    days = (last - first).days + 1
    return [datetime(first.year, first.month, first.day) + hour * HOUR for hour in range(24 * days)]


def spread(values, low, top, shares):
    """Counts of values by their level, by their bin, and beyond the range."""
    counts = dict.fromkeys(("LowHours", "MidHours", "HighHours", "under", "over"), 0)
    counts["Bins"] = [0] * 21
    for value in values:
        if value < low:
            counts["under"] += 1
        elif value > top:
            counts["over"] += 1
        else:
            counts["Bins"][bin_of(value, low, top - low)] += 1
            level = sum(is_above(value, low, top - low, share) for share in shares)
            counts[("LowHours", "MidHours", "HighHours")[level]] += 1
    return counts


def load_counts(loads, hours, low, top):
    counts = spread([loads[time] for time in hours if time in loads], low, top, ("0.3", "0.6"))
    counts["UnderHours"], counts["OverHours"] = counts.pop("under"), counts.pop("over")
    return counts


def range_counts(values, hours, top, mec, mpc):
    valid = [values[time] for time in hours if time in values]
    counts = spread([value for value, modc in valid], Decimal(0), top, ("0.2", "0.8"))
    in_range = [(single(value), modc) for value, modc in valid if value <= top]
    assert counts.pop("under") == 0
    counts["OverRangeHours"] = counts.pop("over")
    counts["AboveMECHours"] = 0 if mec is None else sum(value > single(mec) for value, modc in in_range)
    counts["AboveMPCHours"] = 0 if mpc is None else sum(value > single(mpc) for value, modc in in_range)
    counts["ReplacedHours"] = sum(modc in REPLACED for value, modc in in_range)
    counts["InvalidHours"] = len(hours) - len(valid)
    return counts


class Check:
    """Sites of the sample, and what the program says of them."""

    def __init__(self, program, data, folder):
        self.program, self.data, self.folder = program, data, folder
        self.failures = self.comparisons = 0

    def run(self, *arguments):
        done = subprocess.run([self.program, *map(str, arguments)], capture_output=True, check=False)
        if done.returncode:
            sys.exit(f"k7deval {arguments}: {done.stderr.decode()}")
        return done.stdout

    def site(self, name, *imports):
        site = self.folder / f"{name}.site"
        for file, *options in imports:
            self.run("import", "--site", site, *options, self.data / file)
        return site

    def compare(self, what, counts, *arguments):
        evaluation = json.loads(self.run(*arguments, "--json"))["Evaluation"]
        self.comparisons += 1
        for name, count in counts.items():
            if evaluation[name] != count:
                self.failures += 1
                print(f"{what}: {name}: the tables have {count}, k7deval {evaluation[name]}")

    def load(self, site, unit, loads, bounds, hours, *period):
        low, top = map(Decimal, bounds)
        counts = load_counts(loads, hours, low, top)
        self.compare(f"load of {unit}, {' '.join(period)}", counts, "load", "--site", site, "--unit", unit,
                     "--minimum", low, "--capacity", top, *period)
        return counts

    def quarters(self, site, unit, loads, bounds, year, quarter):
        hours = walk(loads, year, quarter, 0)
        return self.load(site, unit, loads, bounds, hours, "--quarter", f"{year}Q{quarter}")

    def dates(self, site, unit, loads, bounds, first, last):
        return self.load(site, unit, loads, bounds, hours_between(first, last), "--from", str(first), "--to", str(last))

    def three_years(self, site, unit, loads, bounds):
        first, last = date(2019, 1, 1), date(2021, 12, 31)
        while first <= last:
            chunk_end = min(last, first + timedelta(days=LONGEST_PERIOD))
            self.dates(site, unit, loads, bounds, first, chunk_end)
            first = chunk_end + timedelta(days=1)

    def range(self, site, unit, parameter, values, top, mec, mpc, year, quarter):
        counts = range_counts(values, walk(values, year, quarter, 720), *(
            limit if limit is None else Decimal(limit) for limit in (top, mec, mpc)))
        self.compare(f"range of {unit} {parameter}, {top}", counts, "range", "--site", site, "--unit", unit,
                     "--parameter", parameter, "--range", top, "--mec", mec or "none", "--mpc", mpc or "none",
                     "--quarter", f"{year}Q{quarter}")
        return counts


def check_loads(check):
    units = {"10": ("barrett", ("45", "195")), "20": ("barrett", ("45", "195")), "GT4": ("bethpage", ("30", "84"))}
    for unit, (plant, bounds) in units.items():
        file = f"{plant}/hourly_load_{unit}.csv.gz"
        loads = loads_of(check.data / file)
        site = check.site(unit, (file, "--unit", unit))
        check.three_years(site, unit, loads, bounds)
        check.quarters(site, unit, loads, bounds, 2021, 4)
        check.quarters(site, unit, loads, bounds, 2016, 1)  # nothing before it: twelve quarters are read
        check.quarters(site, unit, loads, bounds, 2024, 2)  # twelve quarters end with the third of 2021
        check.quarters(site, unit, loads, bounds, 2024, 4)  # and here nothing is found
        check.dates(site, unit, loads, bounds, date(2020, 2, 29), date(2020, 2, 29))
        check.dates(site, unit, loads, bounds, date(2021, 3, 11), date(2021, 3, 17))  # clocks elsewhere go forward
        check.dates(site, unit, loads, bounds, date(2021, 11, 4), date(2021, 11, 10))  # and back
        check.quarters(site, unit, loads, bounds, 2020, 4)
        empty = check.dates(site, unit, loads, bounds, date(2020, 10, 1), date(2020, 12, 31))
        if unit == "10":
            assert sum(empty["Bins"]) == 0, "unit 10 did not run in the fourth quarter of 2020"


def check_ranges(check):
    file = "crystal-river/mats_hourly_4_HGC_2021Q3.csv"
    mercury = concentrations_of(check.data / file, "unadjusted_hourly_value_ugscm")
    site = check.site("crystal-river", ("crystal-river/spans.csv",), (file, "--unit", "4"))
    for top, mec, mpc in (("5", None, "5"), ("10", "2", "8"), ("1", "0.2", "1"), ("0.5", "0.1", "0.25")):
        check.range(site, "4", "HG", mercury, top, mec, mpc, 2021, 3)
    check.range(site, "4", "HG", mercury, "5", None, None, 2024, 2)  # the twelfth quarter
    check.range(site, "4", "HG", mercury, "5", None, None, 2024, 3)  # is the thirteenth here
    file = "flint-creek/monitor_hourly_1_SO2C_2021Q4.csv"
    sulfur = concentrations_of(check.data / file, "unadjusted_hourly_value")
    site = check.site("flint-creek", ("flint-creek/assumed_spans.csv",), (file, "--unit", "1"))
    for top, mec, mpc in (("100", "20", None), ("50", "10", "50"), ("33.3", "6.66", "30"), ("20.2", None, "15.1")):
        check.range(site, "1", "SO2", sulfur, top, mec, mpc, 2021, 4)


def main():
    program, data = sys.argv[1], Path(sys.argv[2])
    with tempfile.TemporaryDirectory() as folder:
        check = Check(program, data, Path(folder))
        check_loads(check)
        check_ranges(check)
    print(f"{check.comparisons} evaluations compared, {check.failures} counts differ")
    sys.exit(check.failures > 0)


if __name__ == "__main__":
    main()
