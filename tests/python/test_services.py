"""The dialogs of a host: each is looked up when it is needed."""

import datetime as dt

import k7deval
import pytest
from site_of_plain_data import Dialogs, drift_site, load_site


def saved(services):
    tool = k7deval.ctrlMaxMW(services=services)
    tool.DIServer = load_site([50.0] * 24)
    tool.cmdCalculate.Press()
    tool.cmdSave.Press()
    return tool


class Nothing:
    pass


@pytest.mark.parametrize("services", [None, Nothing(), Dialogs()])
def test_without_an_answer_nothing_is_saved(services):
    assert saved(services).CommonDialog1.FileName == ""


def test_a_dialog_may_come_later(tmp_path):
    services = Nothing()
    tool = saved(services)
    services.ShowSave = lambda filter, default_ext: (tmp_path / "late.pdf", 1)
    tool.cmdSave.Press()
    assert (tmp_path / "late.pdf").exists()
    services.ShowSave = None
    tool.cmdSave.Press()


def test_without_a_viewer_a_file_is_saved_all_the_same(tmp_path):
    services = Nothing()
    services.ShowSave = lambda filter, default_ext: [str(tmp_path / "x.pdf"), 1]
    tool = k7deval.ctrlMaxMW(services=services)
    tool.DIServer = load_site([50.0] * 24)
    tool.cmdCalculate.Press()
    tool.chkPreview.Value = 1
    tool.cmdSave.Press()
    assert (tmp_path / "x.pdf").exists()


@pytest.mark.parametrize("answer", [5, "path", ("path",), ("path", "first"), (5, 1)])
def test_an_answer_of_another_kind_saves_nothing(answer):
    assert saved(Dialogs(save=answer)).CommonDialog1.FileName == ""


def overwritten(tmp_path, services):
    path = tmp_path / "old.xml"
    path.write_text("old")
    services.ShowSave = lambda filter, default_ext: (path, 2)
    tool = k7deval.ctrl7Day(services=services)
    tool.Setup(None, drift_site())
    tool.ctrl7DaySetUp1.cmbAnalyzer.Pick(0)
    for box, text in (("txtFromDate", "3/4/2024"), ("txtToDate", "3/8/2024")):
        getattr(tool.ctrl7DaySetUp1, box).Type(text)
        getattr(tool.ctrl7DaySetUp1, box).Leave()
    tool.cmdNext.Press()
    tool.cmdSave.Press()
    return path.read_text()


@pytest.mark.parametrize("answer, is_kept", [("No", True), (None, True), ("Yes", False)])
def test_a_question_is_answered_by_the_host(tmp_path, answer, is_kept):
    services, asked = Nothing(), []
    services.MsgBox = lambda *question: asked.append(question) or answer
    text = overwritten(tmp_path, services)
    assert (text == "old") is is_kept
    assert asked[0][2] == "YesNo"
    assert asked[0][1] == "Delete Existing File?"


def test_a_missing_message_box_is_the_careful_answer(tmp_path):
    assert overwritten(tmp_path, Nothing()) == "old"


@pytest.mark.parametrize(
    "picked, date",
    [(None, dt.datetime(2024, 3, 4)), (dt.datetime(2024, 3, 1), dt.datetime(2024, 3, 1))],
)
def test_a_calendar_without_a_date_leaves_the_date(picked, date):
    page = k7deval.ctrl7DaySetUp(services=Dialogs(date=picked))
    page.Setup(None, drift_site())
    page.txtFromDate.Type("3/4/2024")
    page.txtFromDate.Leave()
    page.cmdFromDate.Press()
    assert page.StartDate == date


def test_a_calendar_that_gives_no_date_is_an_error(raises_error):
    page = k7deval.ctrl7DaySetUp(services=Dialogs(date="tomorrow"))
    assert raises_error(page.cmdFromDate.Press).number == 13
