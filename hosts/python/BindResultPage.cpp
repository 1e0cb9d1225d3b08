#include "python/Controls.h"
#include "python/Hosted.h"
#include "python/Members.h"
#include "sevenday/ctrl7DayResult.h"

#include <utility>

namespace k7deval::python
{

namespace py = pybind11;
using namespace py::literals;

using ResultPage = ctrl7DayResult;

void bindResultPage(py::module_& module, const HostStateHandle& state)
{
    ControlClass<ResultPage> page(
        module, "ctrl7DayResult", collectedControl<ResultPage>(),
        "The second page of the 7-Day tool: what the evaluation found, a tree of days\n"
        "and runs, and the details of the selected run.");
    page.def(py::init([state](py::object services) {
                 return hostPage<ResultPage>("ctrl7DayResult", std::move(services), state);
             }),
             "services"_a = py::none());
    page.def("SetSummaryText", &ResultPage::SetSummaryText, "strNewText"_a, "Shows the outcome.")
        .def("SetAnalyzerText", &ResultPage::SetAnalyzerText, "strNewText"_a, "Shows the analyzer.")
        .def("ClearTreeView", &ResultPage::ClearTreeView,
             "Puts the tree in its empty state, \"NA\".")
        .def("SetTreeView", &ResultPage::SetTreeView, "objDaysToDisplay"_a,
             "Shows a list of clsDaySummary. 457 when two entries would get one text. None is\n"
             "an array that was never sized: error 9.");
    bindLife(page);
    bindMembers(page, *hostPage<ResultPage>("ctrl7DayResult", py::none(), state));
}

} // namespace k7deval::python
