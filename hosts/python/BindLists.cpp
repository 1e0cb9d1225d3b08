#include "python/Binding.h"
#include "python/GarbageCollection.h"
#include "screen/ComboBox.h"

#include <memory>
#include <string>

namespace k7deval::python
{

namespace py = pybind11;
using namespace py::literals;

void bindLists(py::module_& module)
{
    using screen::ComboBox;
    py::class_<ComboBox, screen::Widget, std::shared_ptr<ComboBox>>(
        module, "ComboBox", collectedPart(), "A list to pick from, with or without an edit field.")
        .def_property_readonly("List", &ComboBox::List, "The texts of its entries, a copy.")
        .def_property_readonly("ItemData", &ComboBox::itemDataList,
                               "The numbers behind its entries, a copy.")
        .def_property(
            "ListIndex", &ComboBox::ListIndex,
            [](ComboBox& self, Int32 index) { self.SetListIndex(index); },
            "The selected entry from 0, -1 for none. Setting it runs the pick rule. Error 381\n"
            "outside the list.")
        .def_property(
            "Text", &ComboBox::Text, &ComboBox::SetText,
            "The selected entry's text, or what stands in the edit field. Setting it runs\n"
            "the change rule when it differs. Error 438 on a list without edit field.")
        .def(
            "Pick", [](ComboBox& self, Int32 index) { self.Pick(index); }, "index"_a,
            "The user picks an entry; an index outside the list does nothing.")
        .def("Type", &ComboBox::Type, "text"_a,
             "The user types in the edit field; nothing on a list without one.");
}

} // namespace k7deval::python
