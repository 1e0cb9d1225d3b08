#include "python/Controls.h"
#include "python/Hosted.h"
#include "python/Members.h"
#include "sevenday/ctrl7Day.h"

#include <utility>

namespace k7deval::python
{

namespace py = pybind11;
using namespace py::literals;

void bindSevenDay(py::module_& module, const HostStateHandle& host)
{
    ControlClass<ctrl7Day> tool(
        module, "ctrl7Day", collectedControl<ctrl7Day>(),
        "The 7-Day tool: did this analyzer pass a 7-Day drift test, and from which\n"
        "calibrations (40 CFR 75 App. A 6.3.1)? A wizard of two pages.");
    tool.def(py::init([host](py::object services) {
                 return hostTool<ctrl7Day>(std::move(services), host);
             }),
             "services"_a = py::none());
    tool.def(
        "Setup",
        [host](ctrl7Day& self, const py::object& irm, const py::object& objDI) {
            self.Setup(sinkOf(irm, self), serverOf(objDI, self, host));
        },
        "irm"_a, "objDI"_a,
        "Hands over the message sink (an object with Post(severity, text), or None) and the data,\n"
        "and shows the first page.");
    tool.def_property_readonly(
            "DIServer", [](const ctrl7Day& self) { return pythonServer(self.test().DIServer); },
            "The data of Setup.")
        .def_property_readonly(
            "irm", [](const ctrl7Day& self) { return pythonSink(self.test().irm); },
            "The message sink of Setup.");
    bindLife(tool);
    bindMembers(tool, *hostTool<ctrl7Day>(py::none(), host));
}

} // namespace k7deval::python
