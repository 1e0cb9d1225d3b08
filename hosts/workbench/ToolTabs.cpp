#include "workbench/ToolTabs.h"

#include "qt/UserAction.h"
#include "workbench/MessagePanel.h"
#include "workbench/Tools.h"

#include <QScrollArea>
#include <QTabBar>

#include <algorithm>
#include <utility>

namespace k7deval::workbench
{

namespace
{

/// The tool of an id; nothing for another text.
const Tool* toolOf(const QString& id)
{
    const auto tools = allTools();
    const auto found = std::ranges::find_if(tools, [&](const Tool& tool) { return id == tool.id; });
    return found == tools.end() ? nullptr : &*found;
}

} // namespace

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
    for (const Tool& tool : allTools())
        addTool(tool);
    setCurrentIndex(0);
}

void ToolTabs::close()
{
    while (count() > 0)
        delete widget(0);
    server_.reset();
}

void ToolTabs::goTo(const QString& id)
{
    const Tool* tool = toolOf(id);
    if (tabOf(id) < 0 && server_ && tool != nullptr)
        addTool(*tool);
    setCurrentIndex(tabOf(id));
}

const Tool* ToolTabs::current() const
{
    return count() == 0 ? nullptr : toolOf(currentWidget()->objectName());
}

QWidget* ToolTabs::page(const QString& id) const
{
    const auto* scroll = dynamic_cast<QScrollArea*>(widget(tabOf(id)));
    return scroll == nullptr ? nullptr : scroll->widget();
}

/// A tab bears the id of its tool.
int ToolTabs::tabOf(const QString& id) const
{
    for (int tab = 0; tab < count(); ++tab) {
        if (widget(tab)->objectName() == id)
            return tab;
    }
    return -1;
}

/// What a tool can't do with the data is told to the user; the tool stays on view as far as it
/// came.
void ToolTabs::addTool(const Tool& tool)
{
    const auto add = [&] {
        tool.open({surroundings_, sinkOf(*messages_, surroundings_.clock, surroundings_.regional),
                   server_, [&](QWidget& page) -> QWidget& { return addPage(tool, page); }});
    };
    qt::forward(*this, add);
}

/// On a small desktop a tool is seen in part and can be scrolled.
QWidget& ToolTabs::addPage(const Tool& tool, QWidget& page)
{
    auto* scroll = new QScrollArea(this);
    scroll->setObjectName(tool.id);
    scroll->setFrameShape(QFrame::NoFrame);
    // It follows the field that has the keys.
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidgetResizable(true);
    scroll->setWidget(&page);
    setCurrentIndex(addTab(scroll, tool.title));
    return *scroll;
}

} // namespace k7deval::workbench
