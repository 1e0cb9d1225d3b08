"""A change by the host's code and an action of the user are different things."""

import k7deval
import pytest
from site_of_plain_data import load_site


@pytest.fixture
def tool():
    tool = k7deval.ctrlMaxMW()
    tool.DIServer = load_site([50.0] * 24)
    return tool


def test_every_widget_says_what_it_is(tool):
    assert (tool.cmbUnit.Name, tool.Name) == ("cmbUnit", "ctrlMaxMW")
    assert isinstance(tool.lblHeader, k7deval.Label)
    assert isinstance(tool.lblHeader, k7deval.Widget)
    assert isinstance(tool, k7deval.Control)
    header = tool.lblHeader
    assert (header.Left, header.Top, header.Width, header.Height) == (750.0, 75.0, 4500.0, 0.0)


@pytest.mark.parametrize("state", ["Visible", "Enabled"])
def test_a_user_cannot_act_on_what_is_out_of_reach(tool, state):
    closed = []
    tool.CloseClicked.Connect(lambda: closed.append(True))
    setattr(tool.cmdClose, state, False)
    tool.cmdClose.Press()
    assert closed == []
    setattr(tool.cmdClose, state, True)
    setattr(tool.fraSetup, state, False)
    tool.chkShowPID.Press()
    assert tool.chkShowPID.Value == 0
    tool.chkShowPID.Value = 1
    assert tool.chkShowPID.Value == 1, "code reaches everything"


def test_a_label_can_be_written_on(tool):
    label = tool.lblHeader
    label.Caption, label.Bold, label.ToolTipText = "text", True, "tip"
    label.ForeColor, label.BackColor = 0x0000FF, 0x80000005
    assert (label.Caption, label.Bold, label.ToolTipText) == ("text", True, "tip")
    assert (label.ForeColor, label.BackColor) == (0x0000FF, 0x80000005)
    label.Left = 10.5
    assert label.Left == 10.5 and label.Top == 75.0


def test_a_check_box_is_0_or_1(tool, raises_error):
    tool.chkShowPID.Press()
    assert tool.chkShowPID.Value == 1
    assert tool.cmbParam.Text.startswith("[")
    tool.chkShowPID.Value = False
    assert not tool.cmbParam.Text.startswith("[")
    assert raises_error(lambda: setattr(tool.chkShowPID, "Value", 2)).number == 5


def test_options_exclude_each_other(tool):
    assert tool.optTimeEnd.Value is True
    tool.optTimeSelect.Press()
    assert (tool.optTimeEnd.Value, tool.optTimeSelect.Value) == (False, True)
    tool.optTimeEnd.Value = True
    assert (tool.optTimeEnd.Value, tool.optTimeSelect.Value) == (True, False)


def test_typing_is_cut_and_code_is_not():
    page = k7deval.ctrl7DaySetUp()
    page.fraTestInfo.Visible = True
    page.txtComponentID.Text = "ABCDE"
    assert page.txtComponentID.Text == "ABCDE"
    page.txtComponentID.Type("ÄBCDE")
    assert page.txtComponentID.Text in ("ÄBC", "ABCDE")
    assert page.txtComponentID.MaxLength == 3


def test_an_entry_is_picked_by_code_and_by_the_user(tool, raises_error):
    tool.cmbQTR.Pick(99)
    assert tool.cmbQTR.Text == "Q1"
    tool.cmbQTR.Pick(2)
    assert (tool.cmbQTR.ListIndex, tool.cmbQTR.Text) == (2, "Q3")
    tool.cmbQTR.ListIndex = 0
    assert tool.cmbQTR.Text == "Q1"
    assert raises_error(lambda: setattr(tool.cmbQTR, "ListIndex", 4)).number == 381
    assert raises_error(lambda: setattr(tool.cmbQTR, "Text", "Q9")).number == 438


def test_an_edit_field_takes_any_text(tool):
    tool.cmbYear.Type("2019")
    assert (tool.cmbYear.Text, tool.cmbYear.ListIndex) == ("2019", -1)
    tool.cmbYear.Text = "2020"
    assert tool.cmbYear.Text == "2020"


def test_lists_are_copies(tool):
    tool.cmbUnit.List.append("GT9")
    assert tool.cmbUnit.List == ["GT1"]


def test_lines_have_ends(tool):
    line = tool.linBase
    assert (line.X1, line.Y1, line.X2, line.Y2) == (120.0, 2700.0, 5895.0, 2700.0)


def test_a_control_takes_a_new_size(tool):
    tool.Resize(9000, 5000)
    assert (tool.Width, tool.Height) == (9000.0, 5000.0)


def test_a_misspelt_widget_is_no_widget(tool):
    with pytest.raises(AttributeError):
        tool.cmbUnits = None
    with pytest.raises(AttributeError):
        tool.lblHeader.Capton = "text"
    with pytest.raises(AttributeError):
        tool.cmbUnit = None


def test_a_host_may_build_on_a_control():
    class Tool(k7deval.ctrlMaxMW):
        def __init__(self):
            super().__init__(services=self)
            self.questions = []

        def ShowSave(self, filter, default_ext):
            self.questions.append(filter)

    tool = Tool()
    tool.DIServer = load_site([50.0] * 24)
    tool.cmdCalculate.Press()
    tool.cmdSave.Press()
    assert tool.questions == ["PDF File (*.pdf)|*.pdf"]


def test_texts_are_unicode(tool):
    tool.lblHeader.Caption = "Grüße, 硫黄"
    assert tool.lblHeader.Caption == "Grüße, 硫黄"
