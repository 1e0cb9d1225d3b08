#include "workbench/Tools.h"

#include "workbench/DataPage.h"
#include "workbench/ToolPages.h"

#include <array>

namespace k7deval::workbench
{

namespace
{

void openDrift(const ToolSite& site)
{
    auto* page = new DriftPage(site.surroundings, nullptr);
    site.show(*page);
    page->tool().Setup(site.messages, site.server);
}

template <class Page> void openHistogram(const ToolSite& site)
{
    auto* page = new Page(site.surroundings, nullptr);
    QWidget& tab = site.show(*page);
    // The tool is still at work when it says so.
    page->tool().CloseClicked.Connect([&tab] { tab.deleteLater(); });
    page->tool().SetDIServer(site.server);
}

void openData(const ToolSite& site)
{
    auto* page = new DataPage(site.surroundings);
    site.show(*page);
    page->setServer(site.server);
}

constexpr std::array<Tool, 4> kTools{{
    {"drift", "7-Day Drift", "drift", &openDrift},
    {"load", "Load Evaluation", "load", &openHistogram<LoadPage>},
    {"range", "Range Evaluation", "range", &openHistogram<RangePage>},
    {"data", "Data", "data", &openData},
}};

} // namespace

std::span<const Tool> allTools()
{
    return kTools;
}

} // namespace k7deval::workbench
