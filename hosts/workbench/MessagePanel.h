#pragma once

#include "foundation/Clock.h"
#include "foundation/DataInterface.h"
#include "foundation/RegionalSettings.h"

#include <QTableWidget>

#include <memory>

namespace k7deval::workbench
{

/// The lines that the tools post, each with the time at which it came, the newest at the end.
class MessagePanel final : public QTableWidget
{
public:
    explicit MessagePanel(QWidget* parent = nullptr);

    void add(const QString& time, std::int32_t severity, const QString& text);
    /// Puts the marked lines, or all when none is marked, on the clipboard.
    void copy() const;

private:
    void addActions();
};

/// Hands posted lines to a panel; drops them once the panel is gone. Clock and regional settings
/// outlive the sink.
std::shared_ptr<MessageSink> sinkOf(MessagePanel& panel, const Clock& clock,
                                    const RegionalSettings& regional);

} // namespace k7deval::workbench
