"""What the tests share: the clock stands still, and the region is en-US again after each."""

import datetime as dt

import k7deval
import pytest
import sample_sites

NOW = dt.datetime(2024, 4, 10, 15, 5, 9)


@pytest.fixture(autouse=True)
def settled_surroundings():
    k7deval.SetClock(lambda: NOW)
    yield
    k7deval.SetClock(None)
    k7deval.SetRegionalSettings("en-US")


@pytest.fixture
def raises_error():
    """Runs an action that must raise a k7deval.Error, and gives the error."""

    def run(action):
        with pytest.raises(k7deval.Error) as caught:
            action()
        return caught.value

    return run


@pytest.fixture(scope="session")
def bethpage(tmp_path_factory):
    """The path of a site with a year of seven-day tests and the load of GT4."""
    return sample_sites.make_bethpage(tmp_path_factory.mktemp("sites"))


@pytest.fixture(scope="session")
def flint_creek(tmp_path_factory):
    """The path of a site with a quarter of SO2."""
    return sample_sites.make_flint_creek(tmp_path_factory.mktemp("sites"))
