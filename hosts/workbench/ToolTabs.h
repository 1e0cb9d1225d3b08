#pragma once

#include "foundation/DataInterface.h"
#include "screen/Services.h"

#include <QTabWidget>

#include <memory>

namespace k7deval::workbench
{

class MessagePanel;
struct Tool;

/// The tools over one site, a tab each. They show and judge what the site held when they were
/// opened.
class ToolTabs final : public QTabWidget
{
public:
    /// Services, clock, regional settings and panel outlive the tabs.
    ToolTabs(const screen::Surroundings& surroundings, MessagePanel& messages,
             QWidget* parent = nullptr);
    ToolTabs(const ToolTabs&) = delete;
    ToolTabs& operator=(const ToolTabs&) = delete;
    ~ToolTabs() override;

    /// Shows all tools on the data of a site in place of those before.
    void open(std::shared_ptr<DIServer> server);
    void close();
    /// Goes to a tool by its id, which is opened if it was closed.
    void goTo(const QString& id);
    /// The tool on view; nothing without a tab.
    [[nodiscard]] const Tool* current() const;
    /// What is in the tab of a tool; nothing when it is closed.
    [[nodiscard]] QWidget* page(const QString& id) const;

private:
    void addTool(const Tool& tool);
    QWidget& addPage(const Tool& tool, QWidget& page);
    [[nodiscard]] int tabOf(const QString& id) const;

    screen::Surroundings surroundings_;
    MessagePanel* messages_;
    std::shared_ptr<DIServer> server_;
};

} // namespace k7deval::workbench
