"""The hourly data set that a host fills."""

import array
import datetime as dt
import gc

import k7deval
import numpy
import pytest

START = dt.datetime(2024, 1, 1)


@pytest.fixture
def slots():
    dataset = k7deval.DIDataSet()
    dataset.Init(START, 3)
    return dataset


def contents(dataset):
    points = [dataset.ItemByIndex(i) for i in range(1, dataset.Count + 1)]
    return [(point.Value, point.Status) for point in points]


def test_a_set_begins_without_values(slots):
    assert slots.Count == 3
    assert (slots.StartTime, slots.EndTime) == (START, START + dt.timedelta(hours=3))
    assert contents(slots) == [(None, 0)] * 3


def test_a_slot_is_found_by_its_hour(slots, raises_error):
    slots.ItemByTime(START + dt.timedelta(hours=1, minutes=59)).Value = 7
    assert contents(slots) == [(None, 0), (7.0, 0), (None, 0)]
    assert raises_error(lambda: slots.ItemByTime(START + dt.timedelta(hours=3))).number == 9
    assert raises_error(lambda: slots.ItemByIndex(0)).number == 9


@pytest.mark.parametrize(
    "value, read", [(2, 2.0), (None, None), (float("nan"), None), ("1.5", 1.5)]
)
def test_a_slot_takes_any_number(slots, value, read):
    point = slots.ItemByIndex(1)
    point.Value = value
    point.Status = 35
    assert (point.Value, point.Status) == (read, 35)


@pytest.mark.parametrize(
    "values, statuses",
    [
        ([1, None, 2.5], [0, 1, 2]),
        ((1.0, float("nan"), 2.5), range(3)),
        (numpy.array([1, numpy.nan, 2.5]), numpy.array([0, 1, 2], numpy.int32)),
        (numpy.array([1, numpy.nan, 2.5], numpy.float32), numpy.array([0, 1, 2], numpy.uint8)),
        (numpy.array([1, 0, numpy.nan, 0, 2.5, 0])[::2], numpy.array([0, 1, 2], numpy.int64)),
        (array.array("d", [1, float("nan"), 2.5]), array.array("h", [0, 1, 2])),
        (numpy.array([1, None, 2.5], object), numpy.array([0, 1, 2], ">i4")),
    ],
)
def test_all_slots_are_filled_at_once(slots, values, statuses):
    slots.Fill(values, statuses)
    assert contents(slots) == [(1.0, 0), (None, 1), (2.5, 2)]


@pytest.mark.parametrize(
    "values, statuses, number",
    [
        ([1, 2], [0, 0, 0], 5),
        (numpy.zeros(4), [0, 0, 0], 5),
        ([1, 2, 3], [0, 0, 2**31], 6),
        ([1, 2, 3], numpy.array([0, 0, 2**31]), 6),
        ([1, 2, "x"], [0, 0, 0], 13),
        ([1, 2, 3], [0, 0, None], 13),
        (numpy.zeros((3, 1)), [0, 0, 0], 13),
    ],
)
def test_a_failed_fill_leaves_the_slots(slots, values, statuses, number, raises_error):
    assert raises_error(lambda: slots.Fill(values, statuses)).number == number
    assert contents(slots) == [(None, 0)] * 3


def test_a_slot_keeps_its_set(slots):
    point = slots.ItemByIndex(3)
    slots.ItemByIndex(3).Value = 5
    del slots
    gc.collect()
    assert point.Value == 5


def test_a_slot_of_a_set_that_was_prepared_anew_is_outside(slots, raises_error):
    point = slots.ItemByIndex(3)
    slots.Init(START, 1)
    assert raises_error(lambda: point.Value).number == 9


def test_a_vector_of_a_year_is_taken_without_a_loop_in_python(slots):
    hours = 366 * 24
    slots.Init(START, hours)
    values, statuses = numpy.arange(hours, dtype=float), numpy.zeros(hours, numpy.int32)

    class Counting(numpy.ndarray):
        reads = 0

        def __getitem__(self, key):
            Counting.reads += 1
            return super().__getitem__(key)

    slots.Fill(values.view(Counting), statuses.view(Counting))
    assert Counting.reads == 0
    assert slots.ItemByIndex(hours).Value == hours - 1
