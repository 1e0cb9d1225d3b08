"""The range tool, driven through a whole evaluation on plain Python data."""

import k7deval
import pytest
from site_of_plain_data import NOX, NOX_CAL, REPLACED, UNIT, Dialogs, range_site

VALUES = [5.0, 10.0, 10.1, 40.0, 45.0, 60.0]


@pytest.fixture
def tool():
    tool = k7deval.ctrlRangeEval()
    tool.DIServer = range_site(VALUES)
    return tool


def test_the_catalogue_holds_units_parameters_and_scales(tool):
    assert tool.UnitCatalogue == {UNIT: {NOX: {3: 50.0}}}
    assert (tool.cmbUnit.Text, tool.cmbParam.Text, tool.cmbScale.Text) == ("GT1", "NOX", "HIGH")
    assert tool.txtRange.Text == "50"


def test_the_definitions_are_asked_for_by_table():
    site = range_site(VALUES)
    k7deval.ctrlRangeEval().DIServer = site
    none = k7deval.NoDate
    assert site.table_queries == [("PLAIN", 0, none, none, "", 0, NOX_CAL, "", "", "", "K7CAL")]


def test_hours_fall_into_bands_and_bins(tool):
    tool.cmdCalculate.Press()
    assert (tool.LowHours, tool.MidHours, tool.HighHours) == (2, 2, 1)
    assert (tool.OverRangeHours, tool.InvalidHours) == (1, 0)
    assert (tool.LowThreshold, tool.HighThreshold, tool.RangeValue) == (10.0, 40.0, 50.0)
    assert sum(tool.Bins) == 5 and len(tool.Bins) == 21
    assert not tool.NeedsEvaluation
    assert tool.lblOverRange.Caption == "Hours over Range:  1"


def test_limits_take_part_when_they_are_checked(tool):
    site = tool.DIServer
    hours = site.by_pid[NOX].hours
    for hour in list(hours)[:2]:
        hours[hour] = (45.0, REPLACED)
    tool.chkMEC.Value = 1
    tool.txtMEC.Type("30")
    tool.txtMEC.Leave()
    tool.cmdCalculate.Press()
    assert (tool.MECValue, tool.AboveMECHours) == (30.0, 4)
    assert tool.ReplacedHours == 2


def test_a_report_is_saved(tmp_path):
    path = tmp_path / "range.pdf"
    tool = k7deval.ctrlRangeEval(services=Dialogs(save=(path, 1)))
    tool.DIServer = range_site(VALUES)
    tool.cmdCalculate.Press()
    tool.cmdSave.Press()
    assert path.read_bytes().startswith(b"%PDF")
    assert tool.buildReport().Subject == "Range Evaluation"


def test_data_that_is_taken_away_empties_the_boxes(tool):
    tool.DIServer = None
    assert tool.cmbUnit.List == [] and tool.cmbScale.List == []
    tool.Terminate()
    assert tool.UnitCatalogue == {}


def test_the_tool_is_a_control_with_an_end():
    closed = []
    tool = k7deval.ctrlRangeEval()
    tool.CloseClicked.Connect(lambda: closed.append(True))
    tool.cmdClose.Press()
    assert closed == [True]


class Span:
    """A record of a definition that is asked for its span alone."""

    def __init__(self, span):
        self.Span = span


@pytest.mark.parametrize(
    "records, span",
    [
        (None, 100.0),
        ([], 100.0),
        ([None], 100.0),
        ([None, None], 100.0),
        ([None, Span(60.0)], 100.0),
        ((record for record in [None]), 100.0),
        ([Span(60.0), None], 60.0),
        ([Span(None), Span(60.0)], 100.0),
        ([Span("60")], 60.0),
        ([Span("wide")], 100.0),
    ],
)
def test_a_span_that_is_not_told_is_100(records, span):
    site = range_site(VALUES)
    site.definitions[NOX_CAL] = records
    tool = k7deval.ctrlRangeEval()
    tool.DIServer = site
    assert tool.UnitCatalogue == {UNIT: {NOX: {3: span}}}
