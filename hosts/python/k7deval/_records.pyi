"""The records of a drift test."""

from datetime import datetime
from enum import IntEnum

class CalLimitRulesEnum(IntEnum):
    CalLimitRules_AbsoluteValue = 0
    CalLimitRules_PercentOfSpan = 1
    CalLimitRules_PercentOfSpanAndAbsoluteAPS = 2
    CalLimitRules_PercentOfRef = 3


class clsStrippedCal:
    def __init__(self) -> None: ...
    ReferenceValue: float
    MeasuredValue: float
    DriftLimit: float
    UsesAPS: bool
    InjectionEndTime: datetime
    GasLevel: str
    @property
    def Drift(self) -> float: ...

class cls7DayAnalyzerCal:
    def __init__(self) -> None: ...
    UseZeroCal: bool
    CalTime: datetime
    InstrumentSpan: float
    IsOnline: bool
    IsUsedIn7Day: bool
    ManualCal: bool
    ZeroCal: clsStrippedCal | None
    SpanCal: clsStrippedCal | None
    @property
    def IsCompleteRun(self) -> bool: ...
    @property
    def AnalyzerPassed(self) -> bool: ...

class clsDaySummary:
    def __init__(self) -> None: ...
    @property
    def CalsInDay(self) -> dict[str, cls7DayAnalyzerCal]: ...
    def AddCal(self, cal: cls7DayAnalyzerCal) -> None: ...
    @property
    def DayIsUsedIn7Day(self) -> bool: ...
    @property
    def HasOnlineCals(self) -> bool: ...
    IsOpDay: bool
    DisplayedCals: list[cls7DayAnalyzerCal] | None
    OpStatusIsUndetermined: bool
    TStamp: datetime
