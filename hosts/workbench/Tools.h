#pragma once

#include "foundation/DataInterface.h"
#include "screen/Services.h"

#include <functional>
#include <memory>
#include <span>

class QWidget;

namespace k7deval::workbench
{

/// What a tool is opened on.
struct ToolSite {
    const screen::Surroundings& surroundings; ///< What they refer to outlives the tool.
    std::shared_ptr<MessageSink> messages;
    std::shared_ptr<DIServer> server;
    /// Shows a page in a tab of its own, which is given back.
    std::function<QWidget&(QWidget& page)> show;
};

/// One thing that a site can be looked at with.
struct Tool {
    const char* id;
    const char* title;
    const char* topic; ///< Of help.
    /// Shows the tool, then hands it the site, so that it stays on view when it can't do with it.
    void (*open)(const ToolSite& site);
};

/// All tools, in the order of their tabs.
std::span<const Tool> allTools();

} // namespace k7deval::workbench
