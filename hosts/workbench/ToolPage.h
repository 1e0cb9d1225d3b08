#pragma once

#include "screen/Services.h"

#include <QVBoxLayout>
#include <QWidget>

namespace k7deval::workbench
{

/// A tool and its screen, which live and end together. What the surroundings refer to outlives it.
template <class Tool, class View> class ToolPage final : public QWidget
{
public:
    ToolPage(const screen::Surroundings& surroundings, QWidget* parent)
        : QWidget(parent), tool_(surroundings), view_(new View(tool_, this))
    {
        auto* column = new QVBoxLayout(this);
        column->setContentsMargins(0, 0, 0, 0);
        column->addWidget(view_);
    }
    ToolPage(const ToolPage&) = delete;
    ToolPage& operator=(const ToolPage&) = delete;
    /// The view goes first: it refers to the tool.
    ~ToolPage() override
    {
        delete view_;
        tool_.Terminate();
    }

    [[nodiscard]] Tool& tool() { return tool_; }

private:
    Tool tool_;
    View* view_;
};

} // namespace k7deval::workbench
