#include "workbench/ToolTabs.h"

#include "qt/UserAction.h"
#include "workbench/DataPage.h"
#include "workbench/MessagePanel.h"
#include "workbench/ToolPages.h"

#include <QScrollArea>
#include <QTabBar>

#include <utility>

namespace k7deval::workbench
{

namespace
{

} // namespace

QString titleOf(Tool tool)
{
    switch (tool) {
    case Tool::Drift:
        return "7-Day Drift";
    case Tool::Load:
        return "Load Evaluation";
    case Tool::Range:
        return "Range Evaluation";
    case Tool::Data:
        break;
    }
    return "Data";
}

QString topicOf(Tool tool)
{
    switch (tool) {
    case Tool::Drift:
        return "drift";
    case Tool::Load:
        return "load";
    case Tool::Range:
        return "range";
    case Tool::Data:
        break;
    }
    return "data";
}

ToolTabs::ToolTabs(const screen::Surroundings& surroundings, MessagePanel& messages,
                   QWidget* parent)
    : QTabWidget(parent), surroundings_(surroundings), messages_(&messages)
{
    setObjectName("tools");
    setAccessibleName("Tools");
    tabBar()->setAccessibleName("Tools");
    setDocumentMode(true);
}

/// The pages refer to what outlives the tabs, but not to what outlives a widget's own destructor.
ToolTabs::~ToolTabs()
{
    close();
}

void ToolTabs::open(std::shared_ptr<DIServer> server)
{
    close();
    server_ = std::move(server);
    for (const Tool tool : kTools)
        addTool(tool);
    setCurrentIndex(0);
}

void ToolTabs::close()
{
    while (count() > 0)
        delete widget(0);
    server_.reset();
}

void ToolTabs::goTo(Tool tool)
{
    if (tabOf(tool) < 0 && server_)
        addTool(tool);
    setCurrentIndex(tabOf(tool));
}

std::optional<Tool> ToolTabs::current() const
{
    for (const Tool tool : kTools) {
        if (count() > 0 && tabOf(tool) == currentIndex())
            return tool;
    }
    return std::nullopt;
}

QWidget* ToolTabs::page(Tool tool) const
{
    const auto* scroll = dynamic_cast<QScrollArea*>(widget(tabOf(tool)));
    return scroll == nullptr ? nullptr : scroll->widget();
}

int ToolTabs::tabOf(Tool tool) const
{
    for (int tab = 0; tab < count(); ++tab) {
        if (tabText(tab) == titleOf(tool))
            return tab;
    }
    return -1;
}

/// What a tool can't do with the data is told to the user; the tool stays on view as far as it
/// came.
void ToolTabs::addTool(Tool tool)
{
    const auto add = [this, tool] {
        switch (tool) {
        case Tool::Drift:
            return addDrift();
        case Tool::Load:
            return addHistogram<LoadPage>(tool);
        case Tool::Range:
            return addHistogram<RangePage>(tool);
        case Tool::Data:
            return addData();
        }
    };
    qt::forward(*this, add);
}

void ToolTabs::addDrift()
{
    auto* page = new DriftPage(surroundings_, nullptr);
    addPage(Tool::Drift, *page);
    page->tool().Setup(sinkOf(*messages_, surroundings_.clock, surroundings_.regional), server_);
}

template <class Page> void ToolTabs::addHistogram(Tool tool)
{
    auto* page = new Page(surroundings_, nullptr);
    addPage(tool, *page);
    QWidget* tab = currentWidget();
    // The tool is still at work when it says so.
    page->tool().CloseClicked.Connect([tab] { tab->deleteLater(); });
    page->tool().SetDIServer(server_);
}

void ToolTabs::addData()
{
    auto* page = new DataPage(surroundings_);
    addPage(Tool::Data, *page);
    page->setServer(server_);
}

/// On a small desktop a tool is seen in part and can be scrolled.
void ToolTabs::addPage(Tool tool, QWidget& page)
{
    auto* scroll = new QScrollArea(this);
    scroll->setFrameShape(QFrame::NoFrame);
    // It follows the field that has the keys.
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidgetResizable(true);
    scroll->setWidget(&page);
    setCurrentIndex(addTab(scroll, titleOf(tool)));
}

} // namespace k7deval::workbench
