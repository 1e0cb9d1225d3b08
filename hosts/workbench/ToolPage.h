#pragma once

#include "screen/Services.h"
#include "workbench/Printing.h"

#include <QPushButton>
#include <QVBoxLayout>
#include <QWidget>

namespace k7deval::workbench
{

/// A tool and its screen, which live and end together, with the buttons to print its report. What
/// the surroundings refer to outlives it.
template <class Tool, class View> class ToolPage final : public QWidget
{
public:
    ToolPage(const screen::Surroundings& surroundings, QWidget* parent)
        : QWidget(parent), tool_(surroundings), view_(new View(tool_, this))
    {
        auto* column = new QVBoxLayout(this);
        column->setContentsMargins(0, 0, 0, 0);
        column->addWidget(view_);
        const PrintButtons buttons =
            makePrintButtons(*view_, tool_.cmdSave, [this] { return tool_.buildReport(); });
        view_->addBesideSave(*buttons.print);
        view_->addBesideSave(*buttons.preview);
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
