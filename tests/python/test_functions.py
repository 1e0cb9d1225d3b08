"""The free functions: values cross the border with the types that the caller chose."""

import datetime as dt
import decimal

import k7deval
import numpy
import pytest
from conftest import NOW


def test_a_pid_is_made_of_its_fields():
    assert k7deval.MakePID(1, 120, 3, 75, 9) == 112037509
    assert k7deval.MakePID(20, 120, 3, 75, 9) == 0
    assert k7deval.MakePID(unit=1, code=1, variant=0, program=0, suffix=0) == 100100000


@pytest.mark.parametrize("part, field", [(1, 12), (2, 345), (5, 6), (4, 78), (3, 90), (0, 0)])
def test_a_field_is_taken_from_a_pid(part, field):
    assert k7deval.PIDPart(1234567890, part) == field


@pytest.mark.parametrize(
    "value, valid",
    [
        (100000, True),
        (99999, False),
        (numpy.int32(1999989999), True),
        (1999989999.2, True),
        (10**12, False),
        ("123-6-56-78", False),
        ("123-4-56-78", True),
        (True, False),
        (None, False),
        (k7deval.Empty, False),
        (dt.datetime(2024, 1, 1), False),
        (object(), False),
    ],
)
def test_any_value_can_be_tested_for_a_pid(value, valid):
    assert k7deval.IsValidPID(value) is valid


def test_a_pid_has_a_text():
    assert k7deval.PIDToText(100000) == "0-001-0-00-00"
    assert k7deval.TextToPID("0-001-0-00-00", False) == 100000
    assert k7deval.TextToPID("[1-120-0-75-00] NOX", True) == 112007500
    assert k7deval.TakeFieldFromRight("12-34", 2) == (34, "12-")
    assert k7deval.UnitPID(5) == k7deval.UnitPID(512007500) == 500100000
    assert k7deval.IsPercentGasPID(k7deval.MakePID(1, 230, 0, 75, 0))


def test_an_integer_beyond_32_bits_overflows(raises_error):
    error = raises_error(lambda: k7deval.PIDPart(2**31, 1))
    assert (error.number, error.description) == (6, "Overflow")


@pytest.mark.parametrize(
    "value, digits, rounded",
    [
        (2.5, 0, 3.0),
        (-2.5, 0, -3.0),
        (k7deval.Single(0.35), 1, k7deval.Single(0.4)),
        (numpy.float32(0.35), 1, k7deval.Single(0.4)),
        (15, -1, 20),
        (True, 0, -1),
        (12.345, 2, 12.35),
    ],
)
def test_rounding_keeps_the_type_of_its_value(value, digits, rounded):
    result = k7deval.RoundNumber(value, digits)
    assert result == rounded
    assert type(result) is type(rounded)


@pytest.mark.parametrize(
    "value, text",
    [
        (numpy.float16(1.5), "1.5"),
        (numpy.float32(0.1), "0.1"),
        (numpy.float64(0.1), "0.1"),
        (numpy.array(2.5), "2.5"),
        (numpy.uint8(7), "7"),
        (numpy.bool_(True), "-1"),
        (numpy.str_("2.5"), "2.5"),
        (decimal.Decimal("1.5"), "1.5"),
        (k7deval.CalLimitRulesEnum.CalLimitRules_PercentOfRef, "3"),
    ],
)
def test_any_scalar_is_a_value(value, text):
    assert k7deval.GeneralNumber(value) == text


@pytest.mark.parametrize("value", [None, dt.datetime(2024, 1, 1), "word"])
def test_what_is_not_numeric_rounds_to_empty(value):
    assert k7deval.RoundNumber(value, 0) is k7deval.Empty


def test_rounding_an_integer_beyond_32_bits_overflows(raises_error):
    assert raises_error(lambda: k7deval.RoundNumber(2**40, 0)).number == 6


def test_the_clock_is_the_hosts(raises_error):
    assert k7deval.CurrentDateTime() == NOW
    assert k7deval.FormatTimeStamp(NOW, 10) == "4/10/2024 3:05 PM"
    k7deval.SetClock(None)
    assert abs(k7deval.CurrentDateTime() - dt.datetime.now()) < dt.timedelta(minutes=1)
    k7deval.SetClock(lambda: "noon")
    assert raises_error(k7deval.CurrentDateTime).number == 13


def test_a_clock_that_fails_is_the_cause(raises_error):
    failure = RuntimeError("no battery")

    def clock():
        raise failure

    k7deval.SetClock(clock)
    error = raises_error(k7deval.CurrentDateTime)
    assert (error.number, error.description) == (440, "no battery")
    assert error.__cause__ is failure


def test_dates_are_naive_datetimes():
    assert k7deval.DateAddExact("h", 1, dt.datetime(2024, 1, 1, 23)) == dt.datetime(2024, 1, 2)
    assert k7deval.DateAddExact("m", 1, dt.date(2024, 1, 31)) == dt.datetime(2024, 2, 29)
    assert k7deval.IntervalStart(NOW, 86400, False) == dt.datetime(2024, 4, 10)
    assert k7deval.IntervalStart(NOW, 0, False) == k7deval.NoDate
    assert k7deval.IsNoDate(None) and k7deval.IsNoDate(k7deval.NoDate)
    with pytest.raises(TypeError):
        k7deval.IsNoDate(NOW.replace(tzinfo=dt.timezone.utc))


def test_empty_is_one_value_that_counts_as_false():
    assert not k7deval.Empty
    assert repr(k7deval.Empty) == "k7deval.Empty"
    assert type(k7deval.Empty)() is k7deval.Empty


def test_a_single_is_the_nearest_number_of_32_bits(raises_error):
    assert k7deval.Single(0.1) == numpy.float32(0.1)
    assert k7deval.Single(0.1) != 0.1
    assert isinstance(k7deval.Single(1), float)
    assert raises_error(lambda: k7deval.Single(1e39)).number == 6
