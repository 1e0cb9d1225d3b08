#include "foundation/DIDataSet.h"
#include "python/Binding.h"
#include "python/HostDataPoint.h"
#include "python/SlotFill.h"

#include <memory>
#include <string>

namespace k7deval::python
{

namespace py = pybind11;
using namespace py::literals;

namespace
{

void setValue(const HostDataPoint& self, const py::object& value)
{
    if (value.is_none())
        self.slot().setNull();
    else
        self.slot().SetValue(doubleIn(variantOf(value), RegionalSettings{}));
}

HostDataPoint pointAt(const std::shared_ptr<DIDataSet>& set, Date time)
{
    return {set, set->ItemByTime(time).index()};
}

void bindDataPoint(py::module_& module)
{
    py::class_<HostDataPoint>(module, "DIDataPoint", "One hourly slot of a data set.")
        .def_property(
            "Value", [](const HostDataPoint& self) { return self.slot().Value(); }, &setValue,
            "A number; None when the hour has none.")
        .def_property(
            "Status", [](const HostDataPoint& self) { return self.slot().Status(); },
            [](const HostDataPoint& self, Int32 status) { self.slot().SetStatus(status); },
            "The status word, 32 bits.");
}

} // namespace

void bindDataSet(py::module_& module)
{
    bindDataPoint(module);
    py::class_<DIDataSet, std::shared_ptr<DIDataSet>>(
        module, "DIDataSet",
        "A run of hourly slots, each with a value (None when the hour has none) and a status word.")
        .def(py::init<>())
        .def(
            "Init",
            [](DIDataSet& self, Date start, Int32 count, const std::string& interval,
               Int32 multiple,
               Int32 options) { self.Init(start, count, interval, multiple, options); },
            "start"_a, "count"_a, "interval"_a = "h", "multiple"_a = 1, "options"_a = 0,
            "Prepares count empty slots from start. Error 5 for another interval than \"h\".")
        .def_property_readonly("Count", &DIDataSet::Count, "How many slots.")
        .def_property_readonly("StartTime", &DIDataSet::StartTime, "Time of the first slot.")
        .def_property_readonly("EndTime", &DIDataSet::EndTime, "The end of the last slot.")
        .def(
            "ItemByIndex",
            [](const std::shared_ptr<DIDataSet>& self, Int32 i) {
                static_cast<void>(self->ItemByIndex(i));
                return HostDataPoint{self, i};
            },
            "i"_a, "The slot by its position, from 1. Error 9 outside the set.")
        .def("ItemByTime", &pointAt, "t"_a, "The slot of an hour. Error 9 outside the set.")
        .def("Fill", &fillSlots, "values"_a, "statuses"_a,
             "Fills all slots at once, from two sequences or buffers with an entry for each slot:\n"
             "numbers (NaN or None is Null) and status words. Error 5 for another number of\n"
             "entries, 6 for a status word beyond 32 bits, 13 for entries of another kind.");
}

} // namespace k7deval::python
