"""The two controls that let a user choose parameters."""

import array

import k7deval
import numpy
import pytest
from site_of_plain_data import UNIT_TYPE, Parameter, Site

UNITS = [k7deval.UnitPID(1), k7deval.UnitPID(2)]
HEADERS = [100000000, 200000000]
PIDS = [k7deval.MakePID(unit, code, 0, 75, 0) for unit, code in ((1, 120), (1, 300), (2, 120))]


class DI1Params:
    """A parameter collection is known by this name."""

    def __init__(self, parameters):
        self.parameters = parameters

    def __iter__(self):
        return iter(self.parameters)


@pytest.fixture
def site():
    names = ["NOX", "Load", "NOX"]
    units = [Parameter(pid, f"GT{i + 1}", UNIT_TYPE) for i, pid in enumerate(UNITS)]
    return Site(units + [Parameter(pid, name) for pid, name in zip(PIDS, names)])


@pytest.fixture
def control(site):
    control = k7deval.ParamSelect()
    control.DIServer = site
    control.ShowUnitCombo = True
    return control


@pytest.mark.parametrize(
    "form",
    [
        *(list, tuple, numpy.array),
        lambda pids: array.array("i", pids),
        lambda pids: numpy.array(pids, numpy.int32),
    ],
)
def test_pids_come_in_any_sequence_of_integers(control, form):
    control.SetParamList(form(PIDS))
    assert control.RowPIDs == [HEADERS[0], PIDS[0], PIDS[1], HEADERS[1], PIDS[2]]
    assert control.RowNames == ["GT1", "NOX", "Load", "GT2", "NOX"]
    assert control.RowIsUnit == [True, False, False, True, False]
    assert control.RowSelected == [False] * 5
    assert control.RowCount == 5


def test_a_parameter_collection_is_known_by_its_name(control, site):
    control.SetParamList(DI1Params(site.parameters), True)
    assert control.RowPIDs == UNITS + PIDS
    control.SetParamList(k7deval.DI1Params(site.parameters[2:]))
    assert control.RowCount == 5


@pytest.mark.parametrize(
    "form",
    [
        *(None, "1", 5, ["a"], [1.5], object(), {1: 2}, b"ab", range(3), numpy.zeros(2)),
        numpy.array([PIDS]),
        [numpy.float32(1)],
        numpy.array(["2024-01-01"], "datetime64[s]"),
    ],
)
def test_any_other_form_gives_no_rows(control, form):
    control.SetParamList(form)
    assert control.RowCount == 0
    assert control.RowPIDs is None


def test_an_empty_list_leaves_the_old_rows_on_view(control):
    control.SetParamList(PIDS)
    control.SetParamList([])
    assert control.RowCount == 0
    assert len(control.VisibleRows) == 5


def test_the_filter_chooses_the_rows_on_view(control):
    control.SetParamList(PIDS)
    assert control.cmbUnit.List == ["===All Units===", "GT1", "GT2"]
    assert control.VisibleRows == {1: 0, 2: 1, 3: 2, 4: 3, 5: 4}
    control.cmbUnit.Pick(2)
    assert control.VisibleRows == {1: 4}
    assert control.GetUnitName() == "GT2"
    assert control.OffsetUnits is False


def test_what_is_ticked_and_on_view_is_selected(control):
    control.SetParamList(PIDS)
    assert control.GetSelection() is k7deval.Empty
    control.jgexGrid.Edit(2, True)
    assert control.GetSelection() == [PIDS[0]]
    control.cmbUnit.Pick(2)
    assert control.GetSelection() is k7deval.Empty
    control.SelectAll()
    assert control.GetSelection() == [PIDS[2]]
    control.DeselectAll()
    assert control.GetSelection() is k7deval.Empty


def test_the_grid_is_worked_like_a_list(control):
    control.SetParamList(PIDS)
    grid = control.jgexGrid
    assert grid.RowCount == 5
    assert grid.Cells(2) == (False, "NOX")
    assert grid.Cells(1)[0] is k7deval.Empty
    grid.MouseDown(2, 2)
    grid.DoubleClick()
    assert grid.Cells(2) == (True, "NOX")
    grid.MoveTo(3, 0)
    assert (grid.Row, grid.Col) == (3, 1)
    control.ShowPIDNumber = True
    assert grid.Cells(2) == (True, f"[{k7deval.PIDToText(PIDS[0])}] NOX")


def test_headers_are_as_wide_as_the_host_measures(control):
    control.SetParamList(PIDS)
    grid = control.jgexGrid
    assert grid.TextWidth("abc") > 0
    measure = lambda text: 100.0 * len(text)
    grid.TextWidth = measure
    assert grid.TextWidth is measure
    control.Resize(3000, 2000)
    header = grid.Cells(1)[1]
    assert grid.ColumnWidth(2) == 3000 - grid.ColumnWidth(1) - 60 - grid.ScrollBarWidth
    assert header.strip("-") == " GT1 "
    assert len(header) * 100 <= grid.ColumnWidth(2) < (len(header) + 7) * 100


def test_a_measure_that_fails_is_an_error(control, raises_error):
    control.SetParamList(PIDS)
    control.jgexGrid.TextWidth = lambda text: "wide"
    assert raises_error(lambda: control.jgexGrid.Cells(1)).number == 13
    assert raises_error(lambda: control.jgexGrid.Cells(0)).number == 381
    assert raises_error(lambda: control.jgexGrid.ColumnWidth(3)).number == 381


def test_settings_are_attributes(control):
    control.MultiSelect = True
    assert control.jgexGrid.MultiSelect
    control.ShowUnpopulatedUnits = True
    control.AllUnitsInCombo = False
    assert (control.ShowUnpopulatedUnits, control.AllUnitsInCombo) == (True, False)
    assert (control.Width, control.Height) == (3855.0, 3495.0)


def test_nothing_leaves_the_data_that_is_there(control, site):
    control.DIServer = None
    assert control.DIServer is site


def test_one_parameter_is_picked(site, raises_error):
    control = k7deval.SingleParamSelect()
    control.DIServer = site
    control.ShowUnitCombo = True
    control.SetParamList(PIDS)
    assert raises_error(control.GetSelection).number == 381
    assert control.cmbPID.List == ["GT1 NOX", "GT1 Load", "GT2 NOX"]
    control.cmbPID.Pick(1)
    assert control.GetSelection() == PIDS[1]
    assert (control.RowCount, control.RowPIDs[0]) == (5, HEADERS[0])
    control.Resize(3000, 825)
    assert control.cmbUnit.Width == 3000


def test_before_a_list_there_are_no_rows():
    for control in (k7deval.ParamSelect(), k7deval.SingleParamSelect()):
        assert (control.RowCount, control.RowPIDs, control.RowNames) == (0, None, None)
    assert k7deval.ParamSelect().VisibleRows == {}
