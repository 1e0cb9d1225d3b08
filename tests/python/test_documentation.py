"""The code on the page about Python works as it stands."""

import re

import k7deval
import pytest
from sample_sites import SOURCES

PAGE = (SOURCES / "docs" / "python.md").read_text()


@pytest.fixture
def namespace(bethpage, tmp_path, monkeypatch, capsys):
    """The names of all code on the page, after it ran beside the sample site."""
    k7deval.SetClock(None)
    (tmp_path / "bethpage.site").symlink_to(bethpage)
    monkeypatch.chdir(tmp_path)
    names = {}
    for code in re.findall(r"^```python\n(.*?)^```$", PAGE, re.S | re.M):
        exec(compile(code, "docs/python.md", "exec"), names)
    names["printed"] = capsys.readouterr().out
    return names


def test_the_notebook_prints_what_the_page_says(namespace):
    shown = re.search(r"It prints `(.*)`", PAGE).group(1)
    assert namespace["printed"].startswith(shown)


def test_the_report_is_saved(namespace, tmp_path):
    assert (tmp_path / "load.pdf").read_bytes().startswith(b"%PDF")


def test_the_parameter_fills_its_hours(namespace):
    dataset = k7deval.DIDataSet()
    dataset.Init(None, 24)
    namespace["Load"]().ReadData(dataset)
    assert dataset.ItemByIndex(1).Value == 50.0
    assert namespace["Load"].PID == 160207500


def test_the_notebook_is_short():
    code = re.search(r"^```python\n(.*?)^```$", PAGE, re.S | re.M).group(1)
    assert len([line for line in code.splitlines() if line]) <= 12
