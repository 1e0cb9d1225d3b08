#include "histogram/HistogramTool.h"
#include "load/ctrlMaxMW.h"
#include "python/Controls.h"
#include "python/Hosted.h"
#include "python/Members.h"
#include "range/ctrlRangeEval.h"

#include <memory>
#include <utility>

namespace k7deval::python
{

namespace py = pybind11;
using namespace py::literals;
using histogram::HistogramTool;

namespace
{

/// The part that all tools of this kind have.
class SharedPart final : public World, public HistogramTool
{
public:
    explicit SharedPart(HostStateHandle state)
        : World(py::none(), std::move(state)), HistogramTool({}, surroundings())
    {
    }
    void SetDIServer(std::shared_ptr<k7deval::DIServer> /*server*/) override {}
    [[nodiscard]] std::unique_ptr<ReportDocument> buildReport() const override { return nullptr; }
};

void bindShared(py::module_& module, const HostStateHandle& state)
{
    ControlClass<HistogramTool> tool(
        module, "HistogramTool", collectedControl<HistogramTool>(),
        "What load and range evaluation have in common: unit and parameter on the left,\n"
        "twenty bars over three levels on the right, and the buttons.");
    tool.def_property_readonly("NeedsEvaluation", &HistogramTool::NeedsEvaluation,
                               "What is entered has changed since the last finished evaluation.")
        .def_property_readonly(
            "CloseClicked",
            [](HistogramTool& self) {
                return EventPort{&self.CloseClicked, referencesOf(self)};
            },
            py::keep_alive<0, 1>(), "The user wants to close the screen.")
        .def("buildReport", &HistogramTool::buildReport,
             "The ReportDocument of what the screen shows now. Error 91 without data.");
    SharedPart sample(state);
    bindMembers(tool, sample);
}

template <class Tool>
void bindTool(py::module_& module, const HostStateHandle& state, const char* name, const char* doc)
{
    ControlClass<Tool, HistogramTool> tool(module, name, collectedControl<Tool>(), doc);
    tool.def(py::init([state](py::object services) {
                 return hostTool<Tool>(std::move(services), state);
             }),
             "services"_a = py::none());
    bindData(tool, state);
    bindLife(tool);
    bindMembers(tool, *hostTool<Tool>(py::none(), state));
}

} // namespace

void bindHistogramTools(py::module_& module, const HostStateHandle& state)
{
    bindShared(module, state);
    bindTool<ctrlMaxMW>(module, state, "ctrlMaxMW",
                        "The load tool: how does this unit's load spread over its range of "
                        "operation\n(40 CFR 75 App. A 6.5.2.1)?");
    bindTool<ctrlRangeEval>(module, state, "ctrlRangeEval",
                            "The range tool: does this analyzer's range fit what it measured "
                            "(40 CFR 75\nApp. A 2.1)?");
}

} // namespace k7deval::python
