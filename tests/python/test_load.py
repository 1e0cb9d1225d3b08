"""The load tool, driven through a whole evaluation on plain Python data."""

import datetime as dt

import k7deval
import pytest
from site_of_plain_data import CAPACITY, LOAD, UNIT, Dialogs, load_site

VALUES = [10.0, 30.0, 30.1, 60.0, 60.1, 100.0, 101.5, -1.0]


@pytest.fixture
def tool():
    tool = k7deval.ctrlMaxMW()
    tool.DIServer = load_site(VALUES)
    return tool


def test_the_lists_show_what_the_host_has(tool):
    assert (tool.cmbUnit.List, tool.cmbUnit.ItemData) == (["GT1"], [UNIT])
    assert (tool.cmbParam.List, tool.cmbParam.ItemData) == (["Load"], [LOAD])
    assert tool.txtCapacity.Text == "100"
    assert tool.CapacityValue == 100.0
    assert (tool.cmbYear.Text, tool.cmbQTR.Text) == ("2024", "Q1"), "the last finished quarter"


def test_hours_fall_into_levels_and_bins(tool):
    tool.cmdCalculate.Press()
    assert (tool.LowHours, tool.MidHours, tool.HighHours) == (2, 2, 2)
    assert (tool.OverHours, tool.UnderHours, tool.MaxObserved) == (1, 1, 101.5)
    assert (tool.LowThreshold, tool.HighThreshold) == (30.0, 60.0)
    assert len(tool.Bins) == 21
    assert [bin for bin, hours in enumerate(tool.Bins) if hours == 1] == [2, 6, 7, 12, 13, 20]
    assert sum(tool.Bins) == 6
    assert not tool.NeedsEvaluation
    assert tool.cmdSave.Enabled
    assert tool.MousePointer == 0


def test_the_chart_stands_on_the_screen(tool):
    bars = tool.lblBar
    assert len(bars) == 21 and not bars[0].Visible
    assert [bar.Name for bar in bars[:2]] == ["lblBar(0)", "lblBar(1)"]
    tool.cmdCalculate.Press()
    assert tool.lblBar[2].Top < tool.linBase.Y1 == 2700
    assert tool.lblBar[1].Height == 0.0, "a bin without hours has no height"
    assert "Op Hours: 1" in tool.lblBar[2].ToolTipText
    assert tool.lblLowOpPercent.Caption.startswith("33.3%")
    assert tool.lblHeader.Caption == "GT1 Load"


def test_a_change_makes_the_results_stale(tool):
    tool.cmdCalculate.Press()
    tool.txtMinSafe.Type("20")
    tool.txtMinSafe.Leave()
    assert tool.NeedsEvaluation and tool.MinSafeValue == 20.0


def test_specified_dates_are_the_operators(tool):
    tool.optTimeSelect.Press()
    tool.txtFrom.Type("1/1/2024")
    tool.txtFrom.Leave()
    tool.txtTo.Type("2/29/2024")
    tool.txtTo.Leave()
    assert (tool.StartDate, tool.EndDate) == (dt.datetime(2024, 1, 1), dt.datetime(2024, 2, 29))


def test_closing_is_the_hosts_business(tool):
    closed = []
    tool.CloseClicked.Connect(lambda: closed.append("first"))
    tool.CloseClicked.Connect(lambda: closed.append("second"))
    tool.cmdClose.Press()
    assert closed == ["first", "second"]


def test_a_report_is_saved_only_when_there_is_one(tool, tmp_path):
    path = tmp_path / "load.pdf"
    dialogs = Dialogs(save=(path, 1))
    tool = k7deval.ctrlMaxMW(services=dialogs)
    tool.DIServer = load_site(VALUES)
    tool.cmdSave.Press()
    assert dialogs.asked == [], "the button is disabled before an evaluation"
    tool.cmdCalculate.Press()
    tool.chkPreview.Press()
    tool.cmdSave.Press()
    assert path.read_bytes().startswith(b"%PDF")
    names = [asked[0] for asked in dialogs.asked]
    assert names == ["MsgBox", "ShowSave", "OpenDocument"], "values above the capacity are told of"


def test_a_report_can_be_looked_into(tool):
    tool.cmdCalculate.Press()
    document = tool.buildReport()
    page = next(iter(document.Pages))
    assert document.Title == "Load Evalution"
    assert "Plain Plant" in [item.Text for item in page.TextItems]


def test_without_services_nothing_is_saved(tool):
    tool.cmdCalculate.Press()
    tool.cmdSave.Press()
    assert tool.CommonDialog1.FileName == ""


def test_data_that_is_taken_away_empties_the_lists(tool):
    tool.DIServer = None
    assert tool.cmbUnit.List == []
    assert tool.DIServer is None


def test_a_capacity_without_a_value_proposes_none():
    tool = k7deval.ctrlMaxMW()
    site = load_site(VALUES)
    site.by_pid[CAPACITY].constant = "unknown"
    tool.DIServer = site
    assert tool.txtCapacity.Text == "0"
