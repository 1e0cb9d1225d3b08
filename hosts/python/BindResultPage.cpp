#include "python/Controls.h"
#include "python/Hosted.h"
#include "python/Members.h"
#include "sevenday/ctrl7DayResult.h"

#include <utility>

namespace k7deval::python
{

namespace py = pybind11;
using namespace py::literals;

using Page = ctrl7DayResult;

void bindResultPage(py::module_& module, const HostStateHandle& state)
{
    ControlClass<Page> page(
        module, "ctrl7DayResult", collectedControl<Page>(),
        "The second page of the 7-Day tool: what the evaluation found, a tree of days\n"
        "and runs, and the details of the selected run.");
    page.def(py::init([state](py::object services) {
                 return hostPage<Page>("ctrl7DayResult", std::move(services), state);
             }),
             "services"_a = py::none());
    page.def("SetSummaryText", &Page::SetSummaryText, "strNewText"_a, "Shows the outcome.")
        .def("SetAnalyzerText", &Page::SetAnalyzerText, "strNewText"_a, "Shows the analyzer.")
        .def("ClearTreeView", &Page::ClearTreeView, "Puts the tree in its empty state, \"NA\".")
        .def("SetTreeView", &Page::SetTreeView, "objDaysToDisplay"_a,
             "Shows a list of clsDaySummary. 457 when two entries would get one text. None is\n"
             "an array that was never sized: error 9.");
    bindLife(page);
    bindMembers(page, *hostPage<Page>("ctrl7DayResult", py::none(), state));
}

} // namespace k7deval::python
