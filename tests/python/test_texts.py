"""Texts of numbers and dates, under the region that is in force."""

import datetime as dt

import k7deval
import pytest


@pytest.mark.parametrize(
    "value, number_format, text",
    [
        (k7deval.Single(12.34565), "0.0000", "12.3457"),
        (12.34565, "0.0000", "12.3457"),
        (12.345649, "0.0000", "12.3456"),
        (k7deval.Single(12.345649), "0.0000", "12.3457"),
        (-0.001, "0.00", "0.00"),
        (0.05, "##0.0", "0.1"),
        (12, "0.", "12."),
        (7, "0", "7"),
        (1.5, "0.000000", "1.500000"),
    ],
)
def test_a_number_is_written_with_the_precision_of_its_type(value, number_format, text):
    assert k7deval.FormatNumber(value, number_format) == text


def test_a_number_as_plain_text():
    assert k7deval.GeneralNumber(0.1) == "0.1"
    assert k7deval.GeneralNumber(k7deval.Single(33.3) * 0.2) == "6.65999984741211"
    assert k7deval.GeneralNumber(k7deval.Single(12345678)) == "1.234568E+07"
    assert k7deval.GeneralNumber(10) == "10"


def test_a_format_that_is_none_is_refused(raises_error):
    assert raises_error(lambda: k7deval.FormatNumber(1.0, "yyyy")).number == 5
    assert raises_error(lambda: k7deval.FormatNumber(float("nan"), "0")).number == 6
    assert raises_error(lambda: k7deval.FormatNumber(None, "0")).number == 94


@pytest.mark.parametrize(
    "text, numeric",
    [
        *((" 1,234.5 ", True), ("(5)", True), ("1e3", True)),
        *(("", False), ("nan", False), ("1 2", False)),
    ],
)
def test_a_text_is_numeric_or_not(text, numeric):
    assert k7deval.IsNumeric(text) is numeric


def test_a_text_becomes_a_single(raises_error):
    assert k7deval.ToSingle("0.1") == k7deval.Single(0.1)
    assert isinstance(k7deval.ToSingle("0.1"), k7deval.Single)
    assert raises_error(lambda: k7deval.ToSingle("x")).number == 13
    assert raises_error(lambda: k7deval.ToSingle("1e39")).number == 6


def test_a_text_becomes_a_date(raises_error):
    assert k7deval.ToDate("13/3/2024") == dt.datetime(2024, 3, 13)
    assert k7deval.ToDate("3/4") == dt.datetime(2024, 3, 4), "the year of the clock"
    assert k7deval.ToDate("3:05 PM") == dt.datetime(1899, 12, 30, 15, 5)
    assert k7deval.IsDate("March 4, 2024") and not k7deval.IsDate("soon")
    assert raises_error(lambda: k7deval.ToDate("soon")).number == 13


@pytest.mark.parametrize(
    "region, number, date, time",
    [
        ("en-US", "1234.5", "3/10/2024", "15:05"),
        ("en-GB", "1234.5", "10/03/2024", "15:05"),
        ("de-DE", "1234,5", "10.03.2024", "15:05"),
        ("fr-FR", "1234,5", "10/03/2024", "15:05"),
    ],
)
def test_texts_follow_the_region(region, number, date, time):
    k7deval.SetRegionalSettings(region)
    value = dt.datetime(2024, 3, 10, 15, 5)
    assert k7deval.GeneralNumber(1234.5) == number
    assert k7deval.ToSingle(number) == 1234.5
    assert (k7deval.ShortDate(value), k7deval.ShortTime(value)) == (date, time)
    assert k7deval.ToDate(date) == dt.datetime(2024, 3, 10)


def test_an_unknown_region_is_refused(raises_error):
    assert raises_error(lambda: k7deval.SetRegionalSettings("xx-XX")).number == 5
    assert k7deval.GeneralNumber(1.5) == "1.5"


def test_a_control_follows_the_region_that_is_in_force():
    tool = k7deval.ctrlMaxMW()
    k7deval.SetRegionalSettings("de-DE")
    tool.txtCapacity.Type("12,5")
    tool.txtCapacity.Leave()
    assert tool.CapacityValue == 12.5


@pytest.mark.parametrize(
    "convert",
    [
        k7deval.ToSingle,
        k7deval.ToDate,
        k7deval.GeneralNumber,
        lambda value: k7deval.FormatNumber(value, "0.0"),
        lambda value: k7deval.TextToPID(value, False),
        lambda value: k7deval.TakeFieldFromRight(value, 2),
    ],
    ids=["ToSingle", "ToDate", "GeneralNumber", "FormatNumber", "TextToPID", "TakeFieldFromRight"],
)
def test_null_is_no_text_and_no_number(convert, raises_error):
    error = raises_error(lambda: convert(None))
    assert (error.number, error.description) == (94, "Invalid use of Null")


def test_null_is_neither_a_number_nor_a_date():
    assert not k7deval.IsNumeric(None)
    assert not k7deval.IsDate(None)


def test_a_text_is_asked_for_by_type():
    with pytest.raises(TypeError):
        k7deval.ToDate(5)
