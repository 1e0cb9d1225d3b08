#pragma once

#include "foundation/Clock.h"
#include "foundation/DataInterface.h"
#include "foundation/RegionalSettings.h"
#include "screen/Services.h"

#include <QTabWidget>

#include <array>
#include <memory>
#include <optional>

namespace k7deval::workbench
{

class MessagePanel;

/// What a site can be looked at with.
enum class Tool { Drift, Load, Range, Data };
inline constexpr std::array<Tool, 4> kTools{Tool::Drift, Tool::Load, Tool::Range, Tool::Data};

/// The title of a tool's tab.
QString titleOf(Tool tool);
/// The topic of help on a tool.
QString topicOf(Tool tool);

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
    /// Goes to a tool, which is opened if it was closed.
    void goTo(Tool tool);
    /// The tool on view; nothing without a tab.
    [[nodiscard]] std::optional<Tool> current() const;
    /// What is in the tab of a tool; nothing when it is closed.
    [[nodiscard]] QWidget* page(Tool tool) const;

private:
    void addTool(Tool tool);
    void addDrift();
    template <class Page> void addHistogram(Tool tool);
    void addData();
    void addPage(Tool tool, QWidget& page);
    [[nodiscard]] int tabOf(Tool tool) const;

    screen::Surroundings surroundings_;
    MessagePanel* messages_;
    std::shared_ptr<DIServer> server_;
};

} // namespace k7deval::workbench
