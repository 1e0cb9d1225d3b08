#include "foundation/Error.h"
#include "latebound/Server.h"
#include "python/Binding.h"
#include "python/PythonObject.h"
#include "sitedb/SiteDatabase.h"

#include <memory>
#include <string>
#include <utility>

namespace k7deval::python
{

namespace py = pybind11;
using namespace py::literals;

namespace
{

/// As the type that SetParamList knows.
py::object collection(const DIParameterList& parameters)
{
    return valuesModule().attr("DI1Params")(py::cast(parameters));
}

ParamTypes typesIn(const py::object& types)
{
    auto result = readIntegers(types);
    if (!result)
        throw Error(errors::kTypeMismatch);
    return *std::move(result);
}

void bindStatusCodes(py::module_& module)
{
    using Class = DIStatusCodes;
    py::class_<Class, std::shared_ptr<Class>>(module, "DIStatusCodes",
                                              "What an hour's status word says.")
        .def(
            "IsValid", [](Class& self, Int32 status) { return self.IsValid(status); }, "status"_a,
            "The hour is usable.")
        .def(
            "IsExcluded", [](Class& self, Int32 status) { return self.IsExcluded(status); },
            "status"_a, "The hour is excluded from evaluations.")
        .def(
            "IsUnitOffline", [](Class& self, Int32 status) { return self.IsUnitOffline(status); },
            "status"_a, "The unit did not operate in this hour.")
        .def(
            "UnitName", [](Class& self, Int32 pid) { return self.UnitName(pid); }, "pid"_a,
            "Display name of the unit that a PID belongs to.");
}

using ServerClass = py::class_<DIServer, std::shared_ptr<DIServer>>;

void bindParameterLists(ServerClass& server)
{
    server
        .def_property_readonly(
            "Units", [](DIServer& self) { return collection(self.Units()); },
            "The units, in the order in which lists show them.")
        .def(
            "ParametersOfTypes",
            [](DIServer& self, const py::object& types) {
                return collection(self.ParametersOfTypes(typesIn(types)));
            },
            "types"_a, "All parameters of the types.")
        .def(
            "ParametersOfUnit",
            [](DIServer& self, Int32 unit, const py::object& types) {
                return collection(self.ParametersOfUnit(unit, typesIn(types)));
            },
            "unit"_a, "types"_a, "The parameters of a unit, by its number, of the types.")
        .def(
            "ParametersOfInterval",
            [](DIServer& self, const std::string& interval) {
                return collection(self.ParametersOfInterval(interval));
            },
            "interval"_a, "The parameters of a data interval; \"h\" is hourly.")
        .def(
            "ParametersOfUnitTypes",
            [](DIServer& self, const py::object& types, Int32 unit, Int32 option,
               const std::string& interval) {
                return collection(
                    self.ParametersOfUnitTypes(typesIn(types), unit, option, interval));
            },
            "types"_a, "unit"_a, "option"_a, "interval"_a,
            "The parameters of a unit that have one of the types and the interval.")
        .def(
            "ConstantsOfUnitTypes",
            [](DIServer& self, const py::object& types, Int32 unit, const py::object& subset) {
                return collection(self.ConstantsOfUnitTypes(typesIn(types), unit, typesIn(subset)));
            },
            "types"_a, "unit"_a, "subset"_a, "The constants of a unit.");
}

std::shared_ptr<DIServer> openSite(const py::object& path)
{
    const auto name = py::module_::import("os").attr("fspath")(path).cast<std::string>();
    const py::gil_scoped_release released;
    return sitedb::SiteDatabase::open(name, sitedb::OpenMode::ReadOnly).server();
}

} // namespace

void bindSite(py::module_& module)
{
    bindStatusCodes(module);
    ServerClass server(module, "DIServer", "The data of one site.");
    bindParameterLists(server);
    server.def_property_readonly("Parameters", &DIServer::Parameters, "All parameters of the site.")
        .def_property_readonly("StatusCodes", &DIServer::StatusCodes, "What status words say.")
        .def_property_readonly("RecordStore", &DIServer::RecordStore, "The record tables.")
        .def_property_readonly("LookupService", &DIServer::LookupService,
                               "The way to the lookup tables.")
        .def_property_readonly("SiteInfo", &DIServer::SiteInfo, "Facts of the site.")
        .def_property_readonly("SiteKey", &DIServer::SiteKey, "The key of the site.");
    module.def("OpenSite", &openSite, "path"_a,
               "The data of a site database, to be read. Error 53 when there is no file, 70 or 75\n"
               "when it can't be used or is no site database.");
}

std::shared_ptr<DIServer> serverOf(const py::object& server, screen::Control& control,
                                   const HostStateHandle& state)
{
    if (py::isinstance<DIServer>(server))
        return server.cast<std::shared_ptr<DIServer>>();
    return latebound::serverOn(namedObject(server, referencesOf(control)), state->regional);
}

py::object pythonServer(const std::shared_ptr<DIServer>& server)
{
    const latebound::ObjectHandle object = latebound::objectBehind(server);
    return object ? pythonObject(object) : py::cast(server);
}

std::shared_ptr<MessageSink> sinkOf(const py::object& sink, screen::Control& control)
{
    return latebound::sinkOn(namedObject(sink, referencesOf(control)));
}

py::object pythonSink(const std::shared_ptr<MessageSink>& sink)
{
    return pythonObject(latebound::objectBehind(sink));
}

} // namespace k7deval::python
