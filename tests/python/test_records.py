"""The records of a drift test, which a host may make itself."""

import datetime as dt

import k7deval
import numpy
import pytest

TIME = dt.datetime(2024, 3, 4, 6)


def injection(reference, measured, limit=2.5):
    cal = k7deval.clsStrippedCal()
    cal.ReferenceValue, cal.MeasuredValue, cal.DriftLimit = reference, measured, limit
    return cal


def run(**members):
    result = k7deval.cls7DayAnalyzerCal()
    for name, value in members.items():
        setattr(result, name, value)
    return result


@pytest.mark.parametrize("measured, drift", [(100.00004, 0.0), (100.00006, 0.0001), (97.5, -2.5)])
def test_a_drift_is_kept_to_four_decimals(measured, drift):
    assert injection(100.0, measured).Drift == numpy.float32(drift)


def test_an_injection_has_its_members(raises_error):
    cal = k7deval.clsStrippedCal()
    assert (cal.ReferenceValue, cal.DriftLimit, cal.UsesAPS, cal.GasLevel) == (0.0, 0.0, False, "")
    assert cal.InjectionEndTime == k7deval.NoDate
    cal.UsesAPS, cal.GasLevel, cal.InjectionEndTime = True, "HIGH", TIME
    assert (cal.UsesAPS, cal.GasLevel, cal.InjectionEndTime) == (True, "HIGH", TIME)
    cal.ReferenceValue = 0.1
    assert cal.ReferenceValue == numpy.float32(0.1)
    assert raises_error(lambda: setattr(cal, "ReferenceValue", 1e39)).number == 6
    with pytest.raises(AttributeError):
        cal.Drift = 1.0
    with pytest.raises(TypeError):
        cal.ReferenceValue = "1"


def test_a_run_passes_by_its_injections():
    good, bad = injection(90.0, 91.0), injection(90.0, 95.0)
    assert run(ZeroCal=good, SpanCal=good).AnalyzerPassed
    assert not run(ZeroCal=bad, SpanCal=good).AnalyzerPassed
    assert not run(SpanCal=good).AnalyzerPassed
    assert run(SpanCal=good, UseZeroCal=False).AnalyzerPassed
    assert not run(SpanCal=good, UseZeroCal=False).IsCompleteRun


def test_a_run_keeps_the_very_injection():
    cal = injection(90.0, 91.0)
    kept = run(ZeroCal=cal)
    assert kept.ZeroCal is cal and kept.SpanCal is None
    cal.MeasuredValue = 95.0
    assert kept.ZeroCal.MeasuredValue == 95.0
    kept.ZeroCal = None
    assert kept.ZeroCal is None


def test_a_run_has_its_members():
    kept = run(CalTime=TIME, InstrumentSpan=200, IsOnline=True, IsUsedIn7Day=True, ManualCal=True)
    assert (kept.CalTime, kept.InstrumentSpan) == (TIME, 200.0)
    assert kept.IsOnline and kept.IsUsedIn7Day and kept.ManualCal
    assert k7deval.cls7DayAnalyzerCal().UseZeroCal is True


def test_a_day_holds_runs_by_their_minute(raises_error):
    day, kept = k7deval.clsDaySummary(), run(CalTime=TIME)
    day.AddCal(kept)
    assert day.CalsInDay == {"2024/03/04 06:00": kept}
    day.CalsInDay.clear()
    assert list(day.CalsInDay.values())[0] is kept
    assert raises_error(lambda: day.AddCal(run(CalTime=TIME))).number == 457
    assert raises_error(lambda: day.AddCal(None)).number == 91


def test_an_online_run_makes_an_operating_day():
    day = k7deval.clsDaySummary()
    day.OpStatusIsUndetermined = True
    assert not day.IsOpDay and not day.HasOnlineCals
    day.AddCal(run(CalTime=TIME, IsOnline=True))
    day.IsOpDay = False
    assert day.IsOpDay and day.HasOnlineCals and not day.DayIsUsedIn7Day
    assert day.OpStatusIsUndetermined


def test_displayed_runs_are_copied_both_ways(raises_error):
    day, kept = k7deval.clsDaySummary(), run()
    assert day.DisplayedCals is None
    shown = [kept]
    day.DisplayedCals = shown
    shown.clear()
    assert day.DisplayedCals == [kept]
    day.DisplayedCals.clear()
    assert day.DisplayedCals[0] is kept
    day.DisplayedCals = []
    assert day.DisplayedCals == []
    day.DisplayedCals = None
    assert day.DisplayedCals is None
    assert raises_error(lambda: setattr(day, "DisplayedCals", [None])).number == 91


def test_the_limit_rules_are_an_enumeration():
    import enum

    assert issubclass(k7deval.CalLimitRulesEnum, enum.IntEnum)
    assert {rule.name: rule.value for rule in k7deval.CalLimitRulesEnum} == {
        "CalLimitRules_AbsoluteValue": 0,
        "CalLimitRules_PercentOfSpan": 1,
        "CalLimitRules_PercentOfSpanAndAbsoluteAPS": 2,
        "CalLimitRules_PercentOfRef": 3,
    }
