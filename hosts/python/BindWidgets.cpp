#include "python/Binding.h"
#include "python/GarbageCollection.h"
#include "python/HostErrors.h"
#include "screen/CommonDialog.h"
#include "screen/Label.h"
#include "screen/Line.h"
#include "screen/TextBox.h"

#include <memory>
#include <string>

namespace k7deval::python
{

namespace py = pybind11;
using namespace py::literals;

namespace
{

using screen::Geometry;
using screen::Widget;

template <class Class> void place(Class& widgets, const char* name, float Geometry::*side)
{
    widgets.def_property(
        name, [side](const Widget& self) { return self.place().*side; },
        [side](Widget& self, Float32 twips) {
            Geometry place = self.place();
            place.*side = twips;
            self.setPlace(place);
        },
        "Twips, 15 to a pixel; 0 where the control leaves the layout to its view.");
}

void bindWidget(py::module_& module)
{
    py::class_<Widget, std::shared_ptr<Widget>> widgets(
        module, "Widget", collectedPart(),
        "What all constituents of a screen have in common. Actions of the user, such as Press, do\n"
        "nothing on a widget that is disabled or invisible, or lies in such a one.");
    widgets.def_property_readonly("Name", &Widget::Name, "The widget's name.")
        .def_property("Visible", &Widget::Visible, &Widget::SetVisible, "It is shown.")
        .def_property("Enabled", &Widget::Enabled, &Widget::SetEnabled, "It can be acted on.");
    place(widgets, "Left", &Geometry::Left);
    place(widgets, "Top", &Geometry::Top);
    place(widgets, "Width", &Geometry::Width);
    place(widgets, "Height", &Geometry::Height);
}

void bindContainers(py::module_& module)
{
    py::class_<screen::Frame, Widget, std::shared_ptr<screen::Frame>>(
        module, "Frame", collectedPart(), "A captioned group of widgets.")
        .def_property_readonly("Caption", &screen::Frame::Caption, "Its text.");
    py::class_<screen::Control, Widget, std::shared_ptr<screen::Control>>(
        module, "Control", collectedPart(), "A screen, or a page of one.")
        .def_property_readonly(
            "MousePointer",
            [](const screen::Control& self) {
                return static_cast<std::int32_t>(self.MousePointer());
            },
            "0, or 11 for an hourglass.");
    py::class_<EventPort>(module, "Event", "Something that the host may follow.")
        .def("Connect", &connect, "handler"_a,
             "Calls the handler, without arguments, each time. Handlers run in the order in which\n"
             "they were connected.");
}

void bindLabel(py::module_& module)
{
    using screen::Label;
    py::class_<Label, Widget, std::shared_ptr<Label>>(module, "Label", collectedPart(), "A text.")
        .def_property("Caption", &Label::Caption, &Label::SetCaption, "Its text.")
        .def_property("ForeColor", &Label::ForeColor, &Label::SetForeColor,
                      "0xBBGGRR; from 0x80000000 on a colour of the desktop.")
        .def_property("BackColor", &Label::BackColor, &Label::SetBackColor,
                      "0xBBGGRR; from 0x80000000 on a colour of the desktop.")
        .def_property("Bold", &Label::Bold, &Label::SetBold, "It is written in bold.")
        .def_property("ToolTipText", &Label::ToolTipText, &Label::SetToolTipText,
                      "What is shown while the pointer rests on it.");
}

void bindPictures(py::module_& module)
{
    using screen::Image;
    using screen::ImageList;
    using screen::Line;
    py::class_<ImageList, Widget, std::shared_ptr<ImageList>>(module, "ImageList", collectedPart(),
                                                              "Pictures by key.")
        .def_property_readonly("Keys", &ImageList::Keys, "The keys of its pictures.")
        .def_property_readonly("BackColor", &ImageList::BackColor,
                               "What a picture is blended with when it is taken out.");
    py::class_<Image, Widget, std::shared_ptr<Image>>(module, "Image", collectedPart(),
                                                      "A picture.")
        .def_property_readonly("Picture", &Image::Picture, "Its key in the image list.")
        .def_property_readonly("BackColor", &Image::BackColor, "What it is blended with.");
    py::class_<Line, Widget, std::shared_ptr<Line>>(module, "Line", collectedPart(),
                                                    "A straight line; its ends in twips.")
        .def_property_readonly("X1", &Line::X1, "Start, to the right.")
        .def_property_readonly("Y1", &Line::Y1, "Start, downward.")
        .def_property_readonly("X2", &Line::X2, "End, to the right.")
        .def_property_readonly("Y2", &Line::Y2, "End, downward.");
}

void bindTextBox(py::module_& module)
{
    using screen::TextBox;
    py::class_<TextBox, Widget, std::shared_ptr<TextBox>>(module, "TextBox", collectedPart(),
                                                          "A field to type in.")
        .def_property("Text", &TextBox::Text, &TextBox::SetText,
                      "Its content. Setting it runs the change rule when it differs.")
        .def_property_readonly("MaxLength", &TextBox::MaxLength,
                               "How many characters a user can type; 0 is no limit.")
        .def("Type", &TextBox::Type, "text"_a,
             "The user types a text in place of the old one, cut to MaxLength.")
        .def("Leave", &TextBox::Leave, "The user leaves the field, which runs its validation.");
}

void bindCommonDialog(py::module_& module)
{
    using screen::CommonDialog;
    py::class_<CommonDialog, Widget, std::shared_ptr<CommonDialog>>(
        module, "CommonDialog", collectedPart(), "The save dialog of a control.")
        .def_property_readonly("FileName", &CommonDialog::FileName,
                               "The chosen file; empty before a choice and after a failure.")
        .def_property_readonly("FilterIndex", &CommonDialog::FilterIndex,
                               "The chosen entry of the filter, from 1.");
}

} // namespace

void connect(const EventPort& port, const py::function& handler)
{
    const auto kept = std::make_shared<Reference>(handler, port.references);
    port.event->Connect([kept] { raisingErrors([&] { kept->get()(); }); });
}

void bindWidgets(py::module_& module)
{
    bindWidget(module);
    bindContainers(module);
    bindLabel(module);
    bindPictures(module);
    bindTextBox(module);
    bindCommonDialog(module);
}

} // namespace k7deval::python
