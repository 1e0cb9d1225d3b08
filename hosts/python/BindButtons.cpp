#include "foundation/Error.h"
#include "python/Binding.h"
#include "python/GarbageCollection.h"
#include "screen/Buttons.h"

#include <memory>

namespace k7deval::python
{

namespace py = pybind11;
using namespace py::literals;
using screen::Button;
using screen::CheckBox;
using screen::OptionButton;
using screen::Widget;

namespace
{

void setChecked(CheckBox& box, Int32 value)
{
    if (value != 0 && value != 1)
        throw Error(errors::kInvalidCall);
    box.setChecked(value == 1);
}

} // namespace

void bindButtons(py::module_& module)
{
    py::class_<Button, Widget, std::shared_ptr<Button>>(module, "Button", collectedPart(),
                                                        "A button to press.")
        .def_property_readonly("Caption", &Button::Caption, "Its text.")
        .def("Press", &Button::Press, "The user's press.");
    py::class_<CheckBox, Widget, std::shared_ptr<CheckBox>>(module, "CheckBox", collectedPart(),
                                                            "A box that is checked or not.")
        .def_property_readonly("Caption", &CheckBox::Caption, "Its text.")
        .def_property("Value", &CheckBox::Value, &setChecked,
                      "0 or 1. A changed value runs the click rule. Error 5 for another number.")
        .def("Press", &CheckBox::Press, "The user's press: toggles the box.");
    py::class_<OptionButton, Widget, std::shared_ptr<OptionButton>>(
        module, "OptionButton", collectedPart(), "One of several exclusive choices.")
        .def_property_readonly("Caption", &OptionButton::Caption, "Its text.")
        .def_property("Value", &OptionButton::isSelected, &OptionButton::setSelected,
                      "It is selected. Becoming selected clears the others of its group and runs\n"
                      "the click rule.")
        .def("Press", &OptionButton::Press, "The user's press: selects the option.");
}

} // namespace k7deval::python
