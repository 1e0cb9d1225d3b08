"""A site database as the data of a Python program."""

import datetime as dt

import k7deval
import pytest


@pytest.fixture
def site(bethpage):
    return k7deval.OpenSite(bethpage)


def test_a_site_lists_its_units(site):
    assert [unit.Name(0) for unit in site.Units] == ["GT1", "GT2", "GT3", "GT4"]
    assert type(site.Units).__name__ == "DI1Params"
    assert site.SiteKey == site.SiteInfo.SiteKey == "bethpage"


def test_a_parameter_is_read(site):
    pid = k7deval.UnitPID(4)
    assert site.Parameters.Exists(pid)
    unit = site.Parameters.Item(pid, -1)
    assert (unit.PID, unit.ParamType, unit.Name()) == (pid, 25, "GT4")
    assert unit.GetAttribute(-95) is not None
    assert unit.GetAttribute(-99999) is None
    assert not site.Parameters.Exists(5)


def test_hours_are_read_into_a_data_set(site):
    hourly = site.ParametersOfInterval("h")
    load = next(entry for entry in hourly if k7deval.PIDPart(entry.PID, 2) == 602)
    assert (load.Interval.Multiple, load.Interval.Unit) == (1, 1)
    dataset = k7deval.DIDataSet()
    dataset.Init(dt.datetime(2021, 10, 1), 2208)
    load.ReadData(dataset)
    values = [dataset.ItemByIndex(i).Value for i in range(1, dataset.Count + 1)]
    assert any(value for value in values)
    assert site.StatusCodes.UnitName(load.PID) == "GT4"


def test_records_are_read(site):
    calibration = site.ParametersOfTypes([3])[0]
    table = calibration.GetAttribute(-300)
    measured = calibration.GetAttribute(-21)
    records = site.RecordStore.ReadRangeRecords(
        *(site.SiteKey, 0, dt.datetime(2010, 1, 1), dt.datetime(2030, 1, 1), "", measured),
        *(0, "", calibration.GetAttribute(-56), "", table, 0, 0, 1),
    )
    assert {record.GasLevelCode for record in records} <= {0, 1, 2}
    assert all(isinstance(record.RunTime, dt.datetime) for record in records)


def test_the_facility_has_a_name(site):
    entry = site.LookupService.Lookups.Find(site.SiteKey, 1, "K7LOOKUP", "FacilityName", "")
    assert entry.Value == "Bethpage Energy Center"
    assert site.LookupService.Lookups.Find(site.SiteKey, 1, "K7LOOKUP", "Nothing", "") is None


def test_a_site_is_handed_back_as_it_is(site):
    tool = k7deval.ctrlMaxMW()
    tool.DIServer = site
    assert tool.DIServer is site


def test_parameters_of_a_site_can_be_offered_for_selection(site):
    control = k7deval.ParamSelect()
    control.DIServer = site
    control.SetParamList(site.ParametersOfUnit(4, [8]))
    control.SelectAll()
    assert control.RowCount > 1
    assert control.RowIsUnit[0]


def test_a_host_may_stand_before_a_site(site):
    class OneUnit:
        """All of the site, but one unit alone."""

        Units = [site.Units[3]]

        def __getattr__(self, name):
            return getattr(site, name)

    tool = k7deval.ctrlMaxMW()
    tool.DIServer = OneUnit()
    assert tool.cmbUnit.List == ["GT4"]
    tool.cmbQTR.Pick(3)
    tool.cmbYear.Type("2021")
    tool.txtCapacity.Type("84")
    tool.txtCapacity.Leave()
    tool.cmdCalculate.Press()
    assert tool.HighHours > 0


@pytest.mark.parametrize("name, number", [("missing.site", 53), ("", 75)])
def test_a_file_that_is_no_site_is_refused(tmp_path, name, number, raises_error):
    error = raises_error(lambda: k7deval.OpenSite(tmp_path / name))
    assert error.number in (number, 70)
