#include "python/Binding.h"
#include "python/HostDataPoint.h"

#include <memory>

namespace k7deval::python
{

namespace py = pybind11;
using namespace py::literals;

namespace
{

HostDataPoint hostedPoint(DIParameter& parameter, Int32 one, Int32 two, Int32 three)
{
    return {std::make_shared<DIDataSet>(parameter.CurrentPoint(one, two, three)), 1};
}

void bindParameter(py::module_& module)
{
    using Class = DIParameter;
    py::class_<Class, std::shared_ptr<Class>>(
        module, "DIParameter",
        "Anything with a PID: a unit, an hourly series, a constant, an analyzer.")
        .def_property_readonly("PID", &Class::PID, "Its PID.")
        .def(
            "Name", [](Class& self, Int32 form) { return self.Name(form); }, "form"_a = 0,
            "The display name.")
        .def_property_readonly("ParamType", &Class::ParamType, "Its type; 25 is a unit.")
        .def_property_readonly("UnitsText", &Class::UnitsText, "Text of its measuring unit.")
        .def_property_readonly("Interval", &Class::Interval, "Its data interval.")
        .def("ReadData", &Class::ReadData, "dataset"_a,
             "Fills a prepared DIDataSet with values and status words.")
        .def("CurrentPoint", &hostedPoint, "one"_a = 0, "two"_a = 0, "three"_a = 0,
             "The present value of a constant.")
        .def(
            "GetAttribute", [](Class& self, Int32 id) { return self.GetAttribute(id); }, "id"_a,
            "A configuration attribute; None when it is not configured.")
        .def(
            "GetLinkedPID", [](Class& self, Int32 id) { return self.GetLinkedPID(id); }, "id"_a,
            "A configuration attribute that holds a PID; 0 when it is not configured.");
}

} // namespace

void bindParameters(py::module_& module)
{
    py::class_<DIInterval>(module, "DIInterval", "A data interval; both numbers are 1 for an hour.")
        .def_readonly("Multiple", &DIInterval::Multiple, "How many.")
        .def_readonly("Unit", &DIInterval::Unit, "Of what.");
    bindParameter(module);
    using Class = DIParameters;
    py::class_<Class, std::shared_ptr<Class>>(module, "DIParameters", "All parameters of a site.")
        .def(
            "Exists", [](Class& self, Int32 pid) { return self.Exists(pid); }, "pid"_a,
            "Whether there is a parameter with this PID.")
        .def(
            "Item", [](Class& self, Int32 pid, Int32 option) { return self.Item(pid, option); },
            "pid"_a, "option"_a = -1, "The parameter; an Error when there is none.");
}

} // namespace k7deval::python
