"""Errors cross the border in both directions with number, description and cause."""

import k7deval
import pytest
from site_of_plain_data import LOAD, Dialogs, Messages, Parameter, Site, drift_site, load_site


class Numbered(Exception):
    def __init__(self, number, text):
        super().__init__(text)
        self.number = number


class Failing:
    """A data interface whose units fail in a way of the test's choice."""

    def __init__(self, failure):
        self.failure = failure

    @property
    def Units(self):
        raise self.failure


def set_data(data):
    tool = k7deval.ctrlMaxMW()
    tool.DIServer = data


@pytest.mark.parametrize(
    "failure, number, description",
    [
        (Numbered(1234, "no such unit"), 1234, "no such unit"),
        (Numbered(-2147221504, "far away"), -2147221504, "far away"),
        (Numbered(2**40, "too large"), 440, "too large"),
        (Numbered("12", "a text"), 440, "a text"),
        (Numbered(True, "a truth"), 440, "a truth"),
        (ValueError("plain"), 440, "plain"),
        (ValueError(), 440, ""),
        (AttributeError("from within"), 440, "from within"),
        (k7deval.Error(70, "Permission denied"), 70, "Permission denied"),
    ],
)
def test_an_exception_of_the_host_reaches_the_host_as_an_error(
    failure, number, description, raises_error
):
    error = raises_error(lambda: set_data(Failing(failure)))
    assert (error.number, error.description) == (number, description)
    assert str(error) == description
    assert error.__cause__ is failure
    assert error.__cause__.__traceback__ is not None


def test_an_error_of_the_library_has_no_cause(raises_error):
    error = raises_error(k7deval.SingleParamSelect().GetSelection)
    assert (error.number, error.description) == (381, "Invalid property array index")
    assert error.__cause__ is None


def test_a_missing_member_is_an_error_of_its_own(raises_error):
    error = raises_error(lambda: set_data(object()))
    assert error.number == 438
    assert error.description == "Object doesn't support this property or method"
    assert isinstance(error.__cause__, AttributeError)


def test_a_member_of_another_kind_does_not_fit(raises_error):
    class Odd:
        Units = [Parameter(object(), "no PID")]

    assert raises_error(lambda: set_data(Odd())).number == 13
    Odd.Units = [Parameter(None, "no PID")]
    assert raises_error(lambda: set_data(Odd())).number == 94
    Odd.Units = [Parameter(2**31, "no PID")]
    assert raises_error(lambda: set_data(Odd())).number == 6
    Odd.Units = [None]
    assert raises_error(lambda: set_data(Odd())).number == 91
    Odd.Units = 5
    error = raises_error(lambda: set_data(Odd()))
    assert (error.number, type(error.__cause__)) == (440, TypeError)


def test_a_failing_parameter_ends_the_click_in_the_host(raises_error):
    site = load_site([50.0] * 48)
    tool = k7deval.ctrlMaxMW()
    tool.DIServer = site

    def fail(dataset):
        raise Numbered(77, "disk on fire")

    site.by_pid[LOAD].ReadData = fail
    error = raises_error(tool.cmdCalculate.Press)
    assert (error.number, str(error.__cause__)) == (77, "disk on fire")
    assert tool.MousePointer == 11, "the hourglass stays after a failure"


def test_the_drift_tool_posts_what_fails_behind_its_buttons():
    site, messages = drift_site(), Messages()
    tool = k7deval.ctrl7Day()
    tool.Setup(messages, site)
    tool.ctrl7DaySetUp1.txtFromDate.Type("3/4/2024")
    tool.ctrl7DaySetUp1.txtFromDate.Leave()
    site.records[0].ReferenceValue = None
    tool.cmdNext.Press()
    assert messages.posted[0] == (4, "DEval-003: 94, Invalid use of Null")


def test_a_failing_message_sink_is_an_error_of_the_click(raises_error):
    class Broken:
        def Post(self, severity, text):
            raise Numbered(9001, "mailbox full")

    site = drift_site()
    tool = k7deval.ctrl7Day()
    tool.Setup(Broken(), site)
    site.records[0].ReferenceValue = None
    tool.ctrl7DaySetUp1.txtFromDate.Type("3/4/2024")
    tool.ctrl7DaySetUp1.txtFromDate.Leave()
    error = raises_error(tool.cmdNext.Press)
    assert (error.number, error.description) == (9001, "mailbox full")


def test_a_failing_dialog_is_shown_in_a_message_box(tmp_path):
    class Failing(Dialogs):
        def ShowSave(self, filter, default_ext):
            raise Numbered(71, "no dialog today")

    dialogs = Failing()
    tool = k7deval.ctrlMaxMW(services=dialogs)
    tool.DIServer = load_site([50.0] * 48)
    tool.cmdCalculate.Press()
    tool.cmdSave.Press()
    assert tool.CommonDialog1.FileName == ""


def test_a_failing_handler_of_an_event_is_an_error_of_the_click(raises_error):
    tool = k7deval.ctrlMaxMW()
    tool.CloseClicked.Connect(lambda: [].pop())
    error = raises_error(tool.cmdClose.Press)
    assert (error.number, type(error.__cause__)) == (440, IndexError)


def test_an_interrupt_goes_on_in_the_hosts_own_code():
    class Interrupted(Site):
        @property
        def Units(self):
            raise KeyboardInterrupt

    with pytest.raises(KeyboardInterrupt):
        try:
            set_data(Interrupted())
        finally:
            for _ in range(1000):
                pass


def test_an_error_keeps_its_parts():
    import pickle

    error = pickle.loads(pickle.dumps(k7deval.Error(5, "text")))
    assert (error.number, error.description, str(error)) == (5, "text", "text")
