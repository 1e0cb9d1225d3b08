"""The 7-Day tool, driven through a whole evaluation on plain Python data."""

import datetime as dt
import xml.etree.ElementTree as xml

import k7deval
import pytest
from site_of_plain_data import NOX, UNIT, Dialogs, Messages, drift_site

FIRST = dt.datetime(2024, 3, 4)


def enter(box, text):
    box.Type(text)
    box.Leave()


def tool_on(site, services=None):
    messages = Messages()
    tool = k7deval.ctrl7Day(services=services)
    tool.Setup(messages, site)
    page = tool.ctrl7DaySetUp1
    page.cmbAnalyzer.Pick(0)
    enter(page.txtFromDate, "3/4/2024")
    enter(page.txtToDate, "3/10/2024")
    return tool, messages


@pytest.fixture
def evaluated():
    tool, messages = tool_on(drift_site())
    tool.cmdNext.Press()
    assert messages.posted == []
    return tool


def test_the_first_page_offers_what_the_host_has():
    page = tool_on(drift_site())[0].ctrl7DaySetUp1
    assert page.cmbUnit.List == ["GT1"] and page.cmbUnit.ItemData == [UNIT]
    assert page.cmbUnit.Text == "GT1"
    assert (page.AnalyzedPID, page.AnalyzedScale) == (NOX, "HIGH")
    assert page.AnalyzedPrecision == "0.0"
    assert page.LimitRules == k7deval.CalLimitRulesEnum.CalLimitRules_PercentOfSpanAndAbsoluteAPS
    assert isinstance(page.LimitRules, k7deval.CalLimitRulesEnum)
    assert (page.StartDate, page.EndDate) == (FIRST, FIRST + dt.timedelta(days=6))
    assert (page.OrisCode, page.ComponentID, page.Is40CFR75) == (50292, "N01", True)


def test_seven_good_days_pass(evaluated):
    assert (evaluated.lngGoodCals, evaluated.lngFailedCals) == (7, 0)
    assert not evaluated.ctrl7DaySetUp1.Visible
    assert "passed" in evaluated.ctrl7DayResult1.lblSummary.Caption.lower()
    assert evaluated.strSummary == evaluated.ctrl7DayResult1.lblSummary.Caption


def test_the_state_of_the_test_is_there_to_be_read(evaluated):
    assert (evaluated.dtStart, evaluated.dtEnd) == (FIRST, dt.datetime(2024, 3, 10, 23, 59))
    assert evaluated.strAnalyzedScale == "HIGH"
    assert evaluated.lngLimitRule == 2
    assert evaluated.sngPercentOfSpanLimit == 2.5
    assert not evaluated.blnSixOfSeven and evaluated.blnUseZeroCals
    assert not evaluated.blnRetrieveCals
    assert evaluated.lngUndeterminedDays == 0
    assert list(evaluated.dictCals) == [f"2024/03/{day:02} 06:00" for day in range(4, 11)]
    assert list(evaluated.dictDays) == [f"2024/03/{day:02}" for day in range(4, 11)]
    assert len(evaluated.objDaysToDisplay) == 7


def test_before_the_first_evaluation_there_is_no_state():
    tool = k7deval.ctrl7Day()
    assert tool.dictCals is None
    assert tool.dictDays == {}
    assert tool.objDaysToDisplay is None
    assert tool.dtStart == k7deval.NoDate


def test_a_run_is_one_object_wherever_it_is_met(evaluated):
    key = "2024/03/04 06:00"
    run = evaluated.dictCals[key]
    assert run is evaluated.dictCals[key]
    assert run is evaluated.dictDays["2024/03/04"].CalsInDay[key]
    assert run is evaluated.objDaysToDisplay[0].DisplayedCals[0]
    assert run is evaluated.ctrl7DayResult1.tvwCalTimes.Nodes[0].Tag
    assert (run.ZeroCal.Drift, run.SpanCal.Drift) == (1.0, -1.0)
    assert (run.CalTime, run.InstrumentSpan) == (dt.datetime(2024, 3, 4, 6), 100.0)
    assert run.AnalyzerPassed and run.IsUsedIn7Day


def test_the_tree_shows_each_run(evaluated):
    page = evaluated.ctrl7DayResult1
    nodes = page.tvwCalTimes.Nodes
    assert [node.Text for node in nodes][:2] == ["3/4/2024 06:00", "3/5/2024 06:00"]
    assert {node.Image for node in nodes} <= set(page.imgOnOffLine.Keys)
    assert page.tvwCalTimes.SelectedItem.Key == nodes[0].Key
    page.tvwCalTimes.Press(nodes[1].Key)
    assert page.tvwCalTimes.SelectedItem.Tag is nodes[1].Tag
    assert page.lblCalTimeData.Caption == "3/5/2024 06:00"
    assert page.lblSpanMeasData.Caption == "89"
    assert page.lblZeroDriftData.Caption == "1"


def test_an_entry_of_the_tree_outlives_the_next_evaluation(evaluated):
    node = evaluated.ctrl7DayResult1.tvwCalTimes.Nodes[0]
    evaluated.cmdBack.Press()
    evaluated.ctrl7DaySetUp1.chkManualCals.Press()
    evaluated.cmdNext.Press()
    assert node.Text == "3/4/2024 06:00"


def test_the_queries_carry_the_values_of_the_data_interface():
    site = drift_site()
    tool, _ = tool_on(site)
    tool.cmdNext.Press()
    query = site.range_queries[0]
    assert len(query) == 14
    assert query[:4] == ("PLAIN", 0, FIRST, dt.datetime(2024, 3, 10, 23, 59))
    assert query[4:] == (
        "",
        tool.lngAnalyzedPID,
        0,
        "",
        "HIGH",
        "",
        "K7CAL,K7PMCAL,K7PS9SINGLEINJCALCHK,K7PS9TRIPLEINJCALCHK",
        0,
        0,
        1,
    )


def test_a_report_is_saved_and_shown(tmp_path):
    path = tmp_path / "test.pdf"
    dialogs = Dialogs(save=(str(path), 1))
    tool, messages = tool_on(drift_site(), dialogs)
    tool.cmdNext.Press()
    tool.cmdSave.Press()
    assert path.read_bytes().startswith(b"%PDF")
    assert messages.posted == []
    assert tool.CommonDialog1.FileName == str(path)
    assert [asked[0] for asked in dialogs.asked] == ["ShowSave", "OpenDocument"]
    assert dialogs.asked[-1] == ("OpenDocument", str(path), 0, 0, 0, 1)


def test_an_export_is_saved(tmp_path):
    path = tmp_path / "test.xml"
    tool, messages = tool_on(drift_site(), Dialogs(save=(path, 2), answer="Yes"))
    tool.chkPreview.Press()
    tool.cmdNext.Press()
    tool.cmdSave.Press()
    assert messages.posted == []
    assert len(list(xml.parse(path).iter("CalibrationInjectionData"))) == 7


def test_a_cancelled_dialog_saves_nothing(tmp_path):
    dialogs = Dialogs()
    tool, _ = tool_on(drift_site(), dialogs)
    tool.cmdNext.Press()
    tool.cmdSave.Press()
    assert [asked[0] for asked in dialogs.asked] == ["ShowSave"]


def test_a_calendar_sets_a_date():
    dialogs = Dialogs(date=dt.date(2024, 3, 1))
    page = tool_on(drift_site(), dialogs)[0].ctrl7DaySetUp1
    page.cmdFromDate.Press()
    assert page.StartDate == dt.datetime(2024, 3, 1)
    assert dialogs.asked[0][2:] == (FIRST, -1, -1, -1)


def test_pages_can_stand_alone():
    page = k7deval.ctrl7DaySetUp()
    page.Setup(None, drift_site())
    page.cmbAnalyzer.Pick(0)
    assert page.AnalyzedPID == NOX
    page.StackID = "GT9"
    page.OrisCode = 7
    page.TestNumber = "T1"
    assert (page.StackID, page.OrisCode, page.TestNumber) == ("GT9", 7, "T1")

    result = k7deval.ctrl7DayResult()
    result.SetSummaryText("done")
    result.SetAnalyzerText("NOX")
    assert (result.lblSummary.Caption, result.lblAnalyzerLabel.Caption) == ("done", "NOX")
    assert [node.Key for node in result.tvwCalTimes.Nodes] in ([], ["NA"])
    result.ClearTreeView()
    assert [node.Key for node in result.tvwCalTimes.Nodes] == ["NA"]


def test_the_results_page_shows_days_of_the_hosts_own(raises_error):
    run = k7deval.cls7DayAnalyzerCal()
    run.CalTime = dt.datetime(2024, 3, 4, 6)
    day = k7deval.clsDaySummary()
    day.TStamp = FIRST
    day.AddCal(run)
    day.DisplayedCals = [run]
    page = k7deval.ctrl7DayResult()
    page.SetTreeView([day])
    assert page.tvwCalTimes.Nodes[0].Tag is run
    assert raises_error(lambda: page.SetTreeView([day, day])).number == 457
    assert raises_error(lambda: page.SetTreeView(None)).number == 9
    assert raises_error(lambda: page.SetTreeView([None])).number == 91


def test_without_an_analyzer_its_facts_are_an_error(raises_error):
    page = k7deval.ctrl7DaySetUp()
    assert raises_error(lambda: page.AnalyzedPID).number == 91
    assert raises_error(lambda: page.OrisCode).number == 13
    assert page.LimitRules == 0


def test_the_private_steps_are_the_tools_own():
    tool = k7deval.ctrl7Day()
    for name in ("RetrieveCals", "ApplyLimits", "EvaluateDriftTest", "Test"):
        assert not hasattr(tool, name)
    with pytest.raises(AttributeError):
        tool.dictCals = {}


def test_the_fields_of_the_report_are_set_by_each_report(tmp_path):
    path = tmp_path / "drift.pdf"
    tool, messages = tool_on(drift_site(), Dialogs(save=(path, 1)))
    assert (tool.strFacilityName, tool.strPrecision) == ("", "")
    tool.cmdNext.Press()
    assert (tool.strFacilityName, tool.strPrecision) == ("", ""), "an evaluation reports nothing"
    tool.cmdSave.Press()
    assert (tool.strFacilityName, tool.strPrecision) == (tool.DIServer.facility, "0.0")
    assert messages.posted == []
