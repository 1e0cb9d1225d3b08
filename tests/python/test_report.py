"""The report model."""

import gc

import k7deval
import numpy
import pytest


@pytest.fixture
def page():
    document = k7deval.ReportDocument()
    page = document.Pages.Add()
    page.Width, page.Height = 792, 612
    return page


def test_a_document_is_written(tmp_path, raises_error):
    document = k7deval.ReportDocument()
    document.Title, document.Subject = "Title", "Subject"
    document.Author, document.Creator = "Author", "Creator"
    path = tmp_path / "report.pdf"
    assert raises_error(lambda: document.SaveToFile(str(path))).number == 5
    page = document.Pages.Add()
    assert raises_error(lambda: document.SaveToFile(str(path))).number == 5
    page.Width, page.Height = 792, 612
    page.TextItems.Add("Hello").X = 36
    document.SaveToFile(str(path))
    assert path.read_bytes().startswith(b"%PDF")
    assert raises_error(lambda: document.SaveToFile(str(tmp_path / "no" / "x.pdf"))).number == 76
    assert (document.Title, document.Creator) == ("Title", "Creator")


def test_a_text_is_measured(page, raises_error):
    item = page.TextItems.Add("AAA")
    assert (item.Font, item.Size) == (5, 10.0)
    width = item.Width
    item.Font, item.Size = 6, 20
    assert item.Width > 2 * width and item.Height > 15
    item.X, item.Y, item.Orientation, item.Text = 36.1, 49.1, 2, "BBB"
    assert (item.X, item.Y, item.Orientation, item.Text) == (
        numpy.float32(36.1),
        numpy.float32(49.1),
        2,
        "BBB",
    )
    assert raises_error(lambda: setattr(item, "Font", 8)).number == 5
    assert raises_error(lambda: setattr(item, "Size", 0)).number == 5


def test_lines_and_boxes_can_be_read_again(page):
    line = page.Lines.Add()
    line.X1, line.Y1, line.X2, line.Y2, line.Style = 1, 2, 3, 4, 3
    assert (line.X1, line.Y1, line.X2, line.Y2, line.Style) == (1.0, 2.0, 3.0, 4.0, 3)
    box = page.Rectangles.Add()
    box.X, box.Y, box.Width, box.Height = 1, 2, 3, 4
    box.FillColor = box.LineColor = 0xF0F0F0
    assert (box.X, box.Y, box.Width, box.Height) == (1.0, 2.0, 3.0, 4.0)
    assert (box.FillColor, box.LineColor) == (0xF0F0F0, 0xF0F0F0)


def test_collections_are_counted_and_walked(page):
    texts = page.TextItems
    for text in "abc":
        texts.Add(text)
    assert texts.Count == len(texts) == 3
    assert [item.Text for item in texts] == ["a", "b", "c"]
    for item in texts:
        texts.Add(item.Text * 2)
    assert texts.Count == 6
    assert (page.Lines.Count, page.Rectangles.Count) == (0, 0)


def test_an_item_keeps_its_document():
    item = k7deval.ReportDocument().Pages.Add().TextItems.Add("kept")
    gc.collect()
    assert item.Text == "kept" and item.Width > 0


def test_a_page_has_the_size_of_a_page(page, raises_error):
    assert (page.Width, page.Height) == (792.0, 612.0)
    assert raises_error(lambda: setattr(page, "Width", 1)).number == 5
