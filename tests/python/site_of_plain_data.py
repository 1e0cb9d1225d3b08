"""A data interface of plain Python classes, which notes what it is asked."""

from __future__ import annotations

import datetime as dt

import k7deval

UNIT = k7deval.MakePID(1, 1, 0, 0, 0)
LOAD = k7deval.MakePID(1, 602, 0, 75, 0)
CAPACITY = k7deval.MakePID(1, 602, 0, 0, 0)
OPERATING_TIME = k7deval.MakePID(1, 7, 0, 75, 0)
NOX = k7deval.MakePID(1, 120, 0, 75, 0)
NOX_CAL = k7deval.MakePID(1, 120, 1, 75, 0)

CALIBRATION_TYPE = 3
UNIT_TYPE = 25
EXCLUDED, OFFLINE, REPLACED = 1, 2, 35
HOUR = dt.timedelta(hours=1)


class Interval:
    def __init__(self, multiple=1, unit=1):
        self.Multiple = multiple
        self.Unit = unit


class Point:
    def __init__(self, value, status=0):
        self.Value = value
        self.Status = status


class Parameter:
    """Anything with a PID. Hours are a dict from time to (value, status word)."""

    def __init__(self, pid, name, param_type=8, **facts):
        self.PID = pid
        self.ParamType = param_type
        self.UnitsText = facts.get("units_text", "")
        self.Interval = Interval()
        self.name = name
        self.attributes = facts.get("attributes", {})
        self.links = facts.get("links", {})
        self.hours = facts.get("hours", {})
        self.constant = facts.get("constant")
        self.hourly = facts.get("hourly", False)

    def Name(self, form):
        assert form == 0
        return self.name

    def ReadData(self, dataset):
        start = dataset.StartTime
        slots = [self.hours.get(start + i * HOUR, (None, OFFLINE)) for i in range(dataset.Count)]
        dataset.Fill([value for value, _ in slots], [status for _, status in slots])

    def CurrentPoint(self, one, two, three):
        assert (one, two, three) == (0, 0, 0)
        return Point(self.constant)

    def GetAttribute(self, id):
        return self.attributes.get(id)

    def GetLinkedPID(self, id):
        return self.links.get(id, 0)


class Record:
    def __init__(self, run, level, reference, measured, **facts):
        self.RunTime = run
        self.Scale = facts.get("scale", "HIGH")
        self.GasLevelCode = level
        self.GasLevelText = ("zero", "high", "mid")[level]
        self.ReferenceValue = reference
        self.MeasuredValue = measured
        self.InjectionEnd = facts.get("end")
        self.Manual = facts.get("manual", False)
        self.CalStatus = facts.get("status", 0)
        self.Span = facts.get("span", 100.0)
        self.SourceTagID = facts.get("source", NOX)
        self.pid = facts.get("pid", NOX)


class Parameters:
    def __init__(self, site):
        self.site = site

    def Exists(self, pid):
        return pid in self.site.by_pid

    def Item(self, pid, option):
        assert option == -1
        return self.site.by_pid[pid]


class StatusCodes:
    def __init__(self, site):
        self.site = site

    def IsValid(self, status):
        return status not in (EXCLUDED, OFFLINE)

    def IsExcluded(self, status):
        return status == EXCLUDED

    def IsUnitOffline(self, status):
        return status == OFFLINE

    def UnitName(self, pid):
        return self.site.by_pid[k7deval.UnitPID(pid)].name


class RecordStore:
    def __init__(self, site):
        self.site = site

    def ReadRangeRecords(self, *query):
        self.site.range_queries.append(query)
        start, end, pid, scale = query[2], query[3], query[5], query[8]
        return [
            record
            for record in self.site.records
            if record.pid == pid and record.Scale == scale and start <= record.RunTime <= end
        ]

    def ReadRecords(self, *query):
        self.site.table_queries.append(query)
        return self.site.definitions.get(query[6], [])


class Entry:
    def __init__(self, value):
        self.Value = value


class Lookups:
    def __init__(self, site):
        self.site = site

    def Find(self, site_key, option, table, key, last):
        name = self.site.facility
        return Entry(name) if (table, key) == ("K7LOOKUP", "FacilityName") and name else None


class LookupService:
    def __init__(self, site):
        self.Lookups = Lookups(site)


class SiteInfo:
    SiteKey = "PLAIN"


class Site:
    """The DIServer: parameters, records, and what was asked of them."""

    SiteKey = "PLAIN"

    def __init__(self, parameters=(), records=(), facility="Plain Plant"):
        self.parameters = list(parameters)
        self.records = list(records)
        self.definitions = {}
        self.facility = facility
        self.range_queries = []
        self.table_queries = []
        self.SiteInfo = SiteInfo()

    @property
    def by_pid(self):
        return {parameter.PID: parameter for parameter in self.parameters}

    @property
    def Parameters(self):
        return Parameters(self)

    @property
    def StatusCodes(self):
        return StatusCodes(self)

    @property
    def RecordStore(self):
        return RecordStore(self)

    @property
    def LookupService(self):
        return LookupService(self)

    @property
    def Units(self):
        return (entry for entry in self.parameters if entry.ParamType == UNIT_TYPE)

    def ParametersOfTypes(self, types):
        return [entry for entry in self.parameters if entry.ParamType in types]

    def ParametersOfUnit(self, unit, types):
        return [entry for entry in self.ParametersOfTypes(types) if of_unit(entry, unit)]

    def ParametersOfInterval(self, interval):
        return [entry for entry in self.parameters if entry.hourly and interval == "h"]

    def ParametersOfUnitTypes(self, types, unit, option, interval):
        hourly = self.ParametersOfInterval(interval)
        return [entry for entry in hourly if of_unit(entry, unit) and entry.ParamType in types]

    def ConstantsOfUnitTypes(self, types, unit, subset):
        constants = [entry for entry in self.parameters if entry.constant is not None]
        return [entry for entry in constants if of_unit(entry, unit)]


def of_unit(parameter, unit):
    return k7deval.PIDPart(parameter.PID, 1) == unit


class Messages:
    """A message sink."""

    def __init__(self):
        self.posted = []

    def Post(self, severity, text):
        self.posted.append((severity, text))


class Dialogs:
    """The dialogs of a host, which answer as they are told and note what they were asked."""

    def __init__(self, save=None, answer="OK", date=None):
        self.save = save
        self.answer = answer
        self.date = date
        self.asked = []

    def ShowSave(self, filter, default_ext):
        self.asked.append(("ShowSave", filter, default_ext))
        return self.save

    def MsgBox(self, prompt, title, buttons, icon):
        self.asked.append(("MsgBox", prompt, title, buttons, icon))
        return self.answer

    def PickDate(self, title, date, a, b, c):
        self.asked.append(("PickDate", title, date, a, b, c))
        return self.date

    def OpenDocument(self, path, a, owner, b, show):
        self.asked.append(("OpenDocument", path, a, owner, b, show))


def hours_from(start, values, status=0):
    return {start + i * HOUR: (value, status) for i, value in enumerate(values)}


def drift_site(days=7, drift=1.0, first=dt.datetime(2024, 3, 4)):
    """A site whose NOx analyzer is calibrated once a day, on a unit that runs all the time."""
    records = []
    for day in range(days):
        run = first + dt.timedelta(days=day, hours=6)
        records += [Record(run, 0, 0.0, drift), Record(run, 1, 90.0, 90.0 - drift)]
    calibration = {-16: 1, -21: NOX, -25: False, -56: "HIGH"}
    calibration |= {-115: "N01", -300: "K7CAL", -367: "NOX"}
    unit = {-95: 50292, -96: False, -97: "GT1   ", -98: ""}
    operating = hours_from(first, [1.0] * 24 * days)
    return Site(
        [
            Parameter(UNIT, "GT1", UNIT_TYPE, attributes=unit, links={-60: OPERATING_TIME}),
            Parameter(NOX, "NOX", units_text="ppm"),
            Parameter(NOX_CAL, "NOX cal", CALIBRATION_TYPE, attributes=calibration),
            Parameter(OPERATING_TIME, "Operating time", hours=operating, hourly=True),
        ],
        records,
    )


def load_site(values, first=dt.datetime(2024, 1, 1), capacity=100.0):
    return Site(
        [
            Parameter(UNIT, "GT1", UNIT_TYPE),
            Parameter(LOAD, "Load", hours=hours_from(first, values), hourly=True),
            Parameter(CAPACITY, "Capacity", 4, constant=capacity),
        ]
    )


def range_site(values, first=dt.datetime(2024, 1, 1), span=50.0):
    calibration = {-25: False, -56: "HIGH", -57: 0, -300: "K7CAL"}
    site = Site(
        [
            Parameter(UNIT, "GT1", UNIT_TYPE),
            Parameter(NOX, "NOX", hours=hours_from(first, values), hourly=True),
            Parameter(NOX_CAL, "NOX cal", CALIBRATION_TYPE, attributes=calibration),
        ]
    )
    site.definitions = {NOX_CAL: [Record(first, 0, 0, 0, span=span)]}
    return site
