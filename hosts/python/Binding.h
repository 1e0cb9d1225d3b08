#pragma once

#include "foundation/DataInterface.h"
#include "python/HostState.h"
#include "python/References.h"
#include "python/Values.h"
#include "screen/Container.h"
#include "screen/Event.h"

#include <memory>
#include <pybind11/pybind11.h>

/// The parts of the module, one function for each family of classes.
namespace k7deval::python
{

void bindPIDFunctions(pybind11::module_& module);
void bindUtilityFunctions(pybind11::module_& module, const HostStateHandle& state);
void bindTextFunctions(pybind11::module_& module, const HostStateHandle& state);
void bindDataSet(pybind11::module_& module);
void bindParameters(pybind11::module_& module);
void bindSiteRecords(pybind11::module_& module);
void bindSite(pybind11::module_& module);
void bindWidgets(pybind11::module_& module);
void bindButtons(pybind11::module_& module);
void bindLists(pybind11::module_& module);
void bindTree(pybind11::module_& module);
void bindGrid(pybind11::module_& module);
void bindRecords(pybind11::module_& module);
void bindReport(pybind11::module_& module);
void bindSevenDay(pybind11::module_& module, const HostStateHandle& state);
void bindSetUpPage(pybind11::module_& module, const HostStateHandle& state);
void bindResultPage(pybind11::module_& module, const HostStateHandle& state);
void bindHistogramTools(pybind11::module_& module, const HostStateHandle& state);
void bindSelection(pybind11::module_& module, const HostStateHandle& state);

/// The data that a host hands to a control: a site database as it is, any other object by its
/// members' names, None as nothing.
std::shared_ptr<DIServer> serverOf(const pybind11::object& server, screen::Control& control,
                                   const HostStateHandle& state);
/// The object that was handed over.
pybind11::object pythonServer(const std::shared_ptr<DIServer>& server);
std::shared_ptr<MessageSink> sinkOf(const pybind11::object& sink, screen::Control& control);
pybind11::object pythonSink(const std::shared_ptr<MessageSink>& sink);

/// An event of a control, to be connected with callables of the host.
struct EventPort {
    screen::Event<>* event = nullptr;
    ReferencesHandle references;
};
void connect(const EventPort& port, const pybind11::function& handler);

/// Fields of records: plain ones settable, singles and integers held to their range.
template <class Class, class Record>
void field(Class& owner, const char* name, float Record::*member, const char* doc)
{
    owner.def_property(
        name, [member](const Record& self) { return self.*member; },
        [member](Record& self, Float32 value) { self.*member = value; }, doc);
}

template <class Class, class Record, class Value>
void field(Class& owner, const char* name, Value Record::*member, const char* doc)
{
    owner.def_property(
        name, [member](const Record& self) { return self.*member; },
        [member](Record& self, const Value& value) { self.*member = value; }, doc);
}

} // namespace k7deval::python
