#include "python/Binding.h"
#include "report/ReportDocument.h"

#include <string>

namespace k7deval::python
{

namespace py = pybind11;
using namespace py::literals;

namespace
{

constexpr auto kPart = py::return_value_policy::reference_internal;

/// What all collections of the model have. The items are those of the moment, so that adding more
/// while they are walked does no harm.
template <class Class> void bindCollection(Class& collection)
{
    using Collection = typename Class::type;
    const auto items = [](const py::object& self) {
        py::list result;
        for (auto& item : self.cast<Collection&>())
            result.append(py::cast(item, kPart, self));
        return result;
    };
    collection.def_property_readonly("Count", &Collection::Count, "How many there are.")
        .def("__len__", &Collection::Count)
        .def("__iter__", [items](const py::object& self) { return py::iter(items(self)); });
}

/// A number of an item, by its getter and its setter.
template <class Class, class Item>
void coordinate(Class& owner, const char* name, float (Item::*get)() const,
                void (Item::*set)(float), const char* doc)
{
    owner.def_property(
        name, get, [set](Item& self, Float32 value) { (self.*set)(value); }, doc);
}

template <class Class, class Item>
void code(Class& owner, const char* name, std::int32_t (Item::*get)() const,
          void (Item::*set)(std::int32_t), const char* doc)
{
    owner.def_property(
        name, get, [set](Item& self, Int32 value) { (self.*set)(value); }, doc);
}

void bindTextItem(py::module_& module)
{
    using Item = ReportTextItem;
    py::class_<Item> item(module, "ReportTextItem",
                          "A text on a page. Points from the bottom left corner.");
    item.def_property("Text", &Item::Text, &Item::SetText, "The text, drawn as one line.");
    code(item, "Font", &Item::Font, &Item::SetFont, "5 body, 6 bold, 7 footer; else error 5.");
    coordinate(item, "Size", &Item::Size, &Item::SetSize, "Points; error 5 unless above 0.");
    coordinate(item, "X", &Item::X, &Item::SetX, "Left edge.");
    coordinate(item, "Y", &Item::Y, &Item::SetY, "Lower edge.");
    code(item, "Orientation", &Item::Orientation, &Item::SetOrientation, "2 reads upward.");
    item.def_property_readonly("Width", &Item::Width, "Measured, in points.")
        .def_property_readonly("Height", &Item::Height, "Measured, in points.");
    py::class_<ReportTextItems> items(module, "ReportTextItems", "The texts of a page.");
    bindCollection(items);
    items.def("Add", &ReportTextItems::Add, "text"_a = "", kPart,
              "A new text, in font 5, 10 points.");
}

void bindLine(py::module_& module)
{
    using Item = ReportLine;
    py::class_<Item> item(module, "ReportLine", "A straight line, its ends in points.");
    coordinate(item, "X1", &Item::X1, &Item::SetX1, "Start x.");
    coordinate(item, "Y1", &Item::Y1, &Item::SetY1, "Start y.");
    coordinate(item, "X2", &Item::X2, &Item::SetX2, "End x.");
    coordinate(item, "Y2", &Item::Y2, &Item::SetY2, "End y.");
    code(item, "Style", &Item::Style, &Item::SetStyle, "3 is dashed, any other solid.");
    py::class_<ReportLines> items(module, "ReportLines", "The lines of a page.");
    bindCollection(items);
    items.def("Add", &ReportLines::Add, kPart, "A new line.");
}

void bindRectangle(py::module_& module)
{
    using Item = ReportRectangle;
    py::class_<Item> item(module, "ReportRectangle", "A filled box, in points.");
    coordinate(item, "X", &Item::X, &Item::SetX, "Left edge.");
    coordinate(item, "Y", &Item::Y, &Item::SetY, "Lower edge.");
    coordinate(item, "Width", &Item::Width, &Item::SetWidth, "Width.");
    coordinate(item, "Height", &Item::Height, &Item::SetHeight, "Height.");
    code(item, "FillColor", &Item::FillColor, &Item::SetFillColor, "Area, 0xBBGGRR.");
    code(item, "LineColor", &Item::LineColor, &Item::SetLineColor, "Outline, 0xBBGGRR.");
    py::class_<ReportRectangles> items(module, "ReportRectangles", "The filled boxes of a page.");
    bindCollection(items);
    items.def("Add", &ReportRectangles::Add, kPart, "A new box.");
}

void bindPage(py::module_& module)
{
    py::class_<ReportPage> page(module, "ReportPage", "A page; it must be given its size.");
    coordinate(page, "Height", &ReportPage::Height, &ReportPage::SetHeight,
               "Points, 3 to 14400; else error 5.");
    coordinate(page, "Width", &ReportPage::Width, &ReportPage::SetWidth,
               "Points, 3 to 14400; else error 5.");
    page.def_property_readonly("TextItems", py::overload_cast<>(&ReportPage::TextItems),
                               "The texts.")
        .def_property_readonly("Lines", py::overload_cast<>(&ReportPage::Lines), "The lines.")
        .def_property_readonly("Rectangles", py::overload_cast<>(&ReportPage::Rectangles),
                               "The filled boxes.");
    py::class_<ReportPages> pages(module, "ReportPages", "The pages of a report.");
    bindCollection(pages);
    pages.def("Add", &ReportPages::Add, kPart, "Appends a page, which has no size yet.");
}

} // namespace

void bindReport(py::module_& module)
{
    bindTextItem(module);
    bindLine(module);
    bindRectangle(module);
    bindPage(module);
    using Document = ReportDocument;
    py::class_<Document>(module, "ReportDocument",
                         "A report: pages with texts, lines and boxes, each placed by its\n"
                         "coordinates.")
        .def(py::init<>())
        .def_property_readonly("Pages", py::overload_cast<>(&Document::Pages), "The pages.")
        .def_property("Title", &Document::Title, &Document::SetTitle, "Of the PDF's information.")
        .def_property("Subject", &Document::Subject, &Document::SetSubject,
                      "Of the PDF's information.")
        .def_property("Author", &Document::Author, &Document::SetAuthor,
                      "Of the PDF's information.")
        .def_property("Creator", &Document::Creator, &Document::SetCreator,
                      "Of the PDF's information.")
        .def("SaveToFile", &Document::SaveToFile, "path"_a,
             "Writes a PDF file. Error 5 without pages or with a page that has no size, else what\n"
             "the file system says; what was there before stays then.");
}

} // namespace k7deval::python
