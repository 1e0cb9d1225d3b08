"""Python and the command line show the same screen for the same evaluation, widget by widget."""

import datetime as dt

import k7deval
import pytest
from sample_sites import run_as_json

# What the command line prints and Python leaves to a view.
NOT_FOR_PYTHON = {"Kind", "Widgets", "Alignment", "Style", "Filter", "DefaultExt"}


@pytest.fixture(autouse=True)
def system_clock(settled_surroundings):
    k7deval.SetClock(None)


def widget_of(control, name):
    if name.startswith("lblBar("):
        return control.lblBar[int(name[len("lblBar(") : -1])]
    return getattr(control, name)


def plain_node(node):
    return {
        "Key": node.Key,
        "Text": node.Text,
        "Image": node.Image,
        "BackColor": f"0x{node.BackColor:08X}",
        "Children": [plain_node(child) for child in node.Children],
    }


def plain(name, value):
    """A value as the command line prints it."""
    if name == "Nodes":
        return [plain_node(node) for node in value]
    if name == "SelectedItem":
        return value.Key if value is not None else ""
    if name in ("ForeColor", "BackColor"):
        return f"0x{value:08X}"
    if isinstance(value, dt.datetime):
        return value.strftime("%Y-%m-%d %H:%M")
    return value


def as_single(value):
    return k7deval.Single(value) if type(value) is float else value


def differences(shown, control, path=""):
    """Compares the properties of a screen, and of all widgets on it; names those that differ."""
    found = []
    for name, expected in shown.items():
        if name not in NOT_FOR_PYTHON:
            value = plain(name, getattr(control, name))
            if value != as_single(expected):
                found.append((f"{path}.{name}", value, expected))
    for name, widget in shown.get("Widgets", {}).items():
        found += differences(widget, widget_of(control, name), f"{path}.{name}")
    return found


def count_of(shown):
    widgets = shown.get("Widgets", {})
    return len(widgets) + sum(count_of(widget) for widget in widgets.values())


def enter(box, text):
    box.Type(text)
    box.Leave()


def pick(box, text):
    box.Pick(box.List.index(text))


def test_a_drift_test(bethpage):
    told = run_as_json(
        *("drift", "--site", bethpage, "--unit", "GT4", "--analyzer", "NOX 206/H"),
        *("--from", "2018-05-04", "--to", "2018-06-18"),
    )
    tool = k7deval.ctrl7Day()
    tool.Setup(None, k7deval.OpenSite(bethpage))
    page = tool.ctrl7DaySetUp1
    pick(page.cmbUnit, "GT4")
    pick(page.cmbAnalyzer, "NOX 206/H")
    enter(page.txtFromDate, "5/4/2018")
    enter(page.txtToDate, "6/18/2018")
    tool.cmdNext.Press()
    assert count_of(told["Screen"]) > 90
    assert differences(told["Screen"], tool) == []
    state = told["Test"]
    runs = state.pop("dictCals")
    assert list(tool.dictCals) == list(runs)
    for key, run in runs.items():
        for injection in ("ZeroCal", "SpanCal"):
            shown = run.pop(injection) or {}
            assert differences(shown, getattr(tool.dictCals[key], injection)) == []
        assert differences(run, tool.dictCals[key]) == []
    for maps in ("dictDays", "objDaysToDisplay"):
        assert len(state.pop(maps)) == len(getattr(tool, maps))
    assert differences(state, tool) == []


def test_a_load_evaluation(bethpage):
    told = run_as_json(
        *("load", "--site", bethpage, "--unit", "GT4", "--minimum", "30", "--capacity", "84"),
        *("--quarter", "2021Q4"),
    )
    tool = k7deval.ctrlMaxMW()
    tool.DIServer = k7deval.OpenSite(bethpage)
    pick(tool.cmbUnit, "GT4")
    pick(tool.cmbQTR, "Q4")
    tool.cmbYear.Type("2021")
    enter(tool.txtMinSafe, "30")
    enter(tool.txtCapacity, "84")
    tool.cmdCalculate.Press()
    assert count_of(told["Screen"]) > 60
    assert differences(told["Screen"], tool) == []
    assert told["Evaluation"]["HighHours"] > 0
    assert differences(told["Evaluation"], tool) == []
    tool.lblBar[3].Left += 15
    assert [found[0] for found in differences(told["Screen"], tool)] == [".lblBar(3).Left"]


def test_a_range_evaluation(flint_creek):
    told = run_as_json(
        *("range", "--site", flint_creek, "--unit", "1", "--parameter", "SO2", "--range", "100"),
        *("--mpc", "none", "--quarter", "2021Q4"),
    )
    tool = k7deval.ctrlRangeEval()
    tool.DIServer = k7deval.OpenSite(flint_creek)
    pick(tool.cmbUnit, "1")
    pick(tool.cmbParam, "SO2")
    pick(tool.cmbQTR, "Q4")
    tool.cmbYear.Type("2021")
    enter(tool.txtRange, "100")
    tool.chkMPC.Value = 0
    tool.cmdCalculate.Press()
    assert count_of(told["Screen"]) > 60
    assert differences(told["Screen"], tool) == []
    catalogue = told["Evaluation"].pop("UnitCatalogue", None)
    assert sum(told["Evaluation"]["Bins"]) > 0
    assert differences(told["Evaluation"], tool) == []
    assert catalogue is None or len(catalogue) == len(tool.UnitCatalogue)
