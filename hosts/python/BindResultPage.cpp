#include "python/Controls.h"
#include "python/Hosted.h"
#include "sevenday/ctrl7DayResult.h"

#include <string>
#include <utility>

namespace k7deval::python
{

namespace py = pybind11;
using namespace py::literals;

namespace
{

using Page = ctrl7DayResult;
using PageClass = ControlClass<Page>;

void bindLegend(PageClass& page)
{
    widget(page, "imgOnOffLine", &Page::imgOnOffLine);
    widget(page, "imgOnlinePass", &Page::imgOnlinePass);
    widget(page, "lblOnlinePass", &Page::lblOnlinePass);
    widget(page, "imgOfflinePass", &Page::imgOfflinePass);
    widget(page, "lblOfflinePass", &Page::lblOfflinePass);
    widget(page, "imgOnlineFail", &Page::imgOnlineFail);
    widget(page, "lblOnlineFail", &Page::lblOnlineFail);
    widget(page, "imgOfflineFail", &Page::imgOfflineFail);
    widget(page, "lblOfflineFail", &Page::lblOfflineFail);
    widget(page, "imgOpDayNoCals", &Page::imgOpDayNoCals);
    widget(page, "lblOpDayNoCals", &Page::lblOpDayNoCals);
}

void bindTexts(PageClass& page)
{
    widget(page, "tvwCalTimes", &Page::tvwCalTimes);
    widget(page, "fraSummary", &Page::fraSummary);
    widget(page, "lblSummary", &Page::lblSummary);
    widget(page, "lblAnalyzerLabel", &Page::lblAnalyzerLabel);
    widget(page, "lblCalTimeLabel", &Page::lblCalTimeLabel);
    widget(page, "lblCalTimeData", &Page::lblCalTimeData);
    widget(page, "lblInstSpanLabel", &Page::lblInstSpanLabel);
    widget(page, "lblInstSpanData", &Page::lblInstSpanData);
    widget(page, "lblCalResultLabel", &Page::lblCalResultLabel);
    widget(page, "lblCalOnline", &Page::lblCalOnline);
}

/// A field of an injection under its name on the page, such as lblZeroRefData.
template <class Part>
void injectionPart(PageClass& page, const std::string& name, InjectionLabels Page::*labels,
                   Part InjectionLabels::*part)
{
    page.def_property_readonly(name.c_str(), [labels, part](const Page& self) -> const Part& {
        return self.*labels.*part;
    });
}

void bindInjection(PageClass& page, const std::string& prefix, InjectionLabels Page::*labels)
{
    using Labels = InjectionLabels;
    injectionPart(page, "fra" + prefix, labels, &Labels::frame);
    const std::pair<const char*, screen::Label Labels::*> fields[] = {
        {"RefLabel", &Labels::refLabel},     {"RefData", &Labels::refData},
        {"MeasLabel", &Labels::measLabel},   {"MeasData", &Labels::measData},
        {"DriftLabel", &Labels::driftLabel}, {"DriftData", &Labels::driftData},
        {"LimitLabel", &Labels::limitLabel}, {"LimitData", &Labels::limitData},
        {"APSLabel", &Labels::apsLabel},
    };
    for (const auto& [name, label] : fields)
        injectionPart(page, "lbl" + prefix + name, labels, label);
}

} // namespace

void bindResultPage(py::module_& module, const HostStateHandle& state)
{
    PageClass page(module, "ctrl7DayResult", collectedControl<Page>(),
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
    bindLegend(page);
    bindTexts(page);
    bindInjection(page, "Zero", &Page::zero);
    bindInjection(page, "Span", &Page::span);
    bindLife(page);
}

} // namespace k7deval::python
