"""What holds what, and that nothing is held for longer."""

import gc
import os
import weakref

import k7deval
import pytest
from site_of_plain_data import Dialogs, Messages, drift_site, load_site

CONTROLS = [
    k7deval.ctrl7Day,
    k7deval.ctrl7DaySetUp,
    k7deval.ctrl7DayResult,
    k7deval.ctrlMaxMW,
    k7deval.ctrlRangeEval,
    k7deval.ParamSelect,
    k7deval.SingleParamSelect,
]


class Host:
    """A program that holds a control and is held by it on every way there is."""

    def __init__(self):
        self.control = k7deval.ctrlMaxMW(services=self)
        self.site = load_site([50.0] * 24)
        self.site.host = self
        self.control.DIServer = self.site
        self.control.CloseClicked.Connect(self.close)
        self.box = self.control.cmbUnit

    def close(self):
        pass


class ListHost:
    def __init__(self):
        self.control = k7deval.ParamSelect()
        self.control.DIServer = self
        self.grid = self.control.jgexGrid
        self.grid.TextWidth = self.width

    def width(self, text):
        return 1.0


class DriftHost:
    def __init__(self):
        self.control = k7deval.ctrl7Day(services=self)
        self.site = drift_site()
        self.site.host = self
        self.control.Setup(self, self.site)
        self.page = self.control.ctrl7DaySetUp1
        self.box = self.page.txtFromDate

    def Post(self, severity, text):
        pass


class OwnTool(k7deval.ctrlMaxMW):
    """A control that is its own host."""

    def __init__(self):
        super().__init__(services=self)
        self.site = load_site([50.0] * 24)
        self.DIServer = self.site
        self.CloseClicked.Connect(self.close)

    def close(self):
        pass


@pytest.mark.parametrize("kind", [Host, ListHost, DriftHost, OwnTool])
def test_a_host_and_its_control_go_away_together(kind):
    gone = weakref.ref(kind())
    gc.collect()
    assert gone() is None


@pytest.mark.parametrize("kind", [Host, ListHost, DriftHost])
def test_a_host_that_keeps_no_circle_needs_no_collector(kind):
    host = kind()
    vars(host).clear()
    gone = weakref.ref(host)
    gc.disable()
    try:
        del host
        gc.collect()
        assert gone() is None
    finally:
        gc.enable()


def test_a_widget_keeps_its_control_and_what_it_needs():
    site = load_site([50.0] * 24)
    box = tool_with(site).cmbUnit
    gc.collect()
    assert box.List == ["GT1"]
    box.Pick(0)


def tool_with(site):
    tool = k7deval.ctrlMaxMW()
    tool.DIServer = site
    return tool


def test_a_widget_of_a_page_keeps_the_whole_tool():
    def box():
        tool = k7deval.ctrl7Day()
        tool.Setup(None, drift_site())
        return tool.ctrl7DaySetUp1.cmbAnalyzer

    kept = box()
    gc.collect()
    kept.Pick(0)
    assert kept.Text == "NOX/H"


def test_a_control_keeps_the_objects_of_its_host():
    tool, lines = k7deval.ctrlMaxMW(services=Dialogs()), []
    tool.DIServer = load_site([50.0] * 24)
    tool.CloseClicked.Connect(lambda: lines.append("closed"))
    gc.collect()
    tool.cmdCalculate.Press()
    tool.cmdSave.Press()
    tool.cmdClose.Press()
    assert lines == ["closed"]
    assert tool.LowHours + tool.MidHours + tool.HighHours == 24


@pytest.mark.parametrize("control", [k7deval.ctrlMaxMW, k7deval.ctrlRangeEval])
def test_a_control_lets_go_of_its_data_when_it_ends(control):
    site = load_site([50.0] * 24)
    gone = weakref.ref(site)
    tool = control()
    tool.DIServer = site
    assert tool.DIServer is site
    del site
    tool.Terminate()
    assert gone() is None
    assert tool.DIServer is None


def test_the_drift_tool_lets_go_of_its_data_when_it_ends():
    site, messages = drift_site(), Messages()
    gone = [weakref.ref(site), weakref.ref(messages)]
    tool = k7deval.ctrl7Day()
    tool.Setup(messages, site)
    tool.ctrl7DaySetUp1.cmbAnalyzer.Pick(0)
    assert tool.DIServer is site and tool.irm is messages
    del site, messages
    tool.Terminate()
    assert [reference() for reference in gone] == [None, None]
    assert tool.DIServer is None and tool.irm is None


@pytest.mark.parametrize("control", CONTROLS)
def test_every_control_can_be_ended_and_dropped(control):
    tool = control()
    tool.Terminate()
    tool.Terminate()
    gone = weakref.ref(tool)
    del tool
    assert gone() is None


def test_data_that_was_handed_over_is_replaced():
    tool = k7deval.ctrlMaxMW()
    first = load_site([50.0])
    gone = weakref.ref(first)
    tool.DIServer = first
    tool.DIServer = load_site([50.0])
    del first
    assert gone() is None


def resident_kilobytes():
    with open("/proc/self/statm", encoding="ascii") as file:
        return int(file.read().split()[1]) * os.sysconf("SC_PAGE_SIZE") // 1024


@pytest.mark.skipif("K7DEVAL_SANITIZED" in os.environ, reason="freed memory is kept for a while")
@pytest.mark.parametrize("control", CONTROLS)
def test_ten_thousand_controls_leave_nothing_behind(control):
    def create(count):
        for _ in range(count):
            control(services=Dialogs()).Visible = True

    create(1000)
    before = resident_kilobytes()
    create(10_000)
    assert resident_kilobytes() - before < 2000


def test_a_thousand_hosts_with_circles_leave_nothing_behind():
    gc.collect()
    before = len(gc.get_objects())
    for _ in range(1000):
        Host()
    gc.collect()
    assert len(gc.get_objects()) - before < 100


def test_a_thousand_evaluations_leave_nothing_behind():
    tool = tool_with(load_site([50.0] * 24))
    tool.txtCapacity.Text = "100"
    gc.collect()
    before = len(gc.get_objects())
    for quarter in range(1000):
        tool.cmbQTR.Pick(quarter % 4)
        tool.cmdCalculate.Press()
    gc.collect()
    assert len(gc.get_objects()) - before < 100


def test_asking_for_a_widget_often_keeps_one_of_it():
    tool = k7deval.ctrlMaxMW()
    box = tool.cmbUnit
    for _ in range(1000):
        assert tool.cmbUnit is box
    gone = weakref.ref(tool)
    del tool, box
    assert gone() is None
