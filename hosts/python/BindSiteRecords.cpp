#include "python/Binding.h"

#include <memory>
#include <string>
#include <utility>

namespace k7deval::python
{

namespace py = pybind11;
using namespace py::literals;

namespace
{

void bindRecord(py::module_& module)
{
    using Class = DIRecord;
    py::class_<Class, std::shared_ptr<Class>>(
        module, "DIRecord", "One gas injection of a calibration, or a calibration's definition.")
        .def_property_readonly("RunTime", &Class::RunTime, "Time stamp of the run.")
        .def_property_readonly("Scale", &Class::Scale, "The scale, such as \"HIGH\".")
        .def_property_readonly("GasLevelCode", &Class::GasLevelCode,
                               "0 zero gas, 1 and 2 upscale gas.")
        .def_property_readonly("GasLevelText", &Class::GasLevelText, "Text of the gas level.")
        .def_property_readonly("ReferenceValue", &Class::ReferenceValue, "Of the gas.")
        .def_property_readonly("MeasuredValue", &Class::MeasuredValue, "What the analyzer read.")
        .def_property_readonly("InjectionEnd", &Class::InjectionEnd,
                               "End of the injection; NoDate when not recorded.")
        .def_property_readonly("Manual", &Class::Manual, "The run was started by hand.")
        .def_property_readonly("CalStatus", &Class::CalStatus, "29 is an off-line calibration.")
        .def_property_readonly("Span", &Class::Span, "The span of the calibration.")
        .def_property_readonly("SourceTagID", &Class::SourceTagID,
                               "PID of the parameter that the record was taken for.");
}

DIRecordList rangeRecords(DIRecordStore& store, const std::string& siteKey, Int32 argument2,
                          Date start, Date end, const std::string& argument5, Int32 pid,
                          Int32 argument7, const std::string& argument8, const std::string& scale,
                          const std::string& argument10, const std::string& tables,
                          Int32 argument12, Int32 argument13, Int32 argument14)
{
    return store.ReadRangeRecords({siteKey, argument2, start, end, argument5, pid, argument7,
                                   argument8, scale, argument10, tables, argument12, argument13,
                                   argument14});
}

DIRecordList tableRecords(DIRecordStore& store, const std::string& siteKey, Int32 argument2,
                          Date argument3, Date argument4, const std::string& argument5,
                          Int32 argument6, Int32 pid, const std::string& argument8,
                          const std::string& argument9, const std::string& argument10,
                          const std::string& table)
{
    return store.ReadRecords({siteKey, argument2, argument3, argument4, argument5, argument6, pid,
                              argument8, argument9, argument10, table});
}

void bindRecordStore(py::module_& module)
{
    using Class = DIRecordStore;
    py::class_<Class, std::shared_ptr<Class>>(module, "DIRecordStore", "The record tables.")
        .def("ReadRangeRecords", &rangeRecords, "siteKey"_a, "argument2"_a, "start"_a, "end"_a,
             "argument5"_a, "pid"_a, "argument7"_a, "argument8"_a, "scale"_a, "argument10"_a,
             "tables"_a, "argument12"_a = 0, "argument13"_a = 0, "argument14"_a = 1,
             "The records of comma-separated tables for one PID and scale in a time range.")
        .def("ReadRecords", &tableRecords, "siteKey"_a, "argument2"_a, "argument3"_a, "argument4"_a,
             "argument5"_a, "argument6"_a, "pid"_a, "argument8"_a, "argument9"_a, "argument10"_a,
             "table"_a, "The records of a table for one PID.");
}

void bindLookups(py::module_& module)
{
    py::class_<DILookupEntry, std::shared_ptr<DILookupEntry>>(module, "DILookupEntry",
                                                              "An entry of a lookup table.")
        .def_property_readonly("Value", &DILookupEntry::Value, "The entry's text.");
    py::class_<DILookups, std::shared_ptr<DILookups>>(module, "DILookups", "The lookup tables.")
        .def(
            "Find",
            [](DILookups& self, const std::string& siteKey, Int32 option, const std::string& table,
               const std::string& key,
               const std::string& last) { return self.Find(siteKey, option, table, key, last); },
            "siteKey"_a, "option"_a, "table"_a, "key"_a, "last"_a = "",
            "The entry of a key in a table, or None.");
    py::class_<DILookupService, std::shared_ptr<DILookupService>>(module, "DILookupService",
                                                                  "The way to the lookup tables.")
        .def_property_readonly("Lookups", &DILookupService::Lookups, "The lookup tables.");
    py::class_<DISiteInfo, std::shared_ptr<DISiteInfo>>(module, "DISiteInfo", "Facts of the site.")
        .def_property_readonly("SiteKey", &DISiteInfo::SiteKey, "The key of the site.");
}

} // namespace

void bindSiteRecords(py::module_& module)
{
    bindRecord(module);
    bindRecordStore(module);
    bindLookups(module);
}

} // namespace k7deval::python
