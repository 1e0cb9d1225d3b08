#pragma once

#include "sevenday/ctrl7Day.h"

#include <QWidget>

#include <vector>

class QHBoxLayout;

namespace k7deval::qt
{

/// The screen of the 7-Day tool: its two pages in one place, and the buttons below. The tool
/// outlives it.
class ctrl7DayView final : public QWidget
{
public:
    explicit ctrl7DayView(ctrl7Day& tool, QWidget* parent = nullptr);

    /// Adds a widget of the host's own to the buttons, ahead of those of the tool and behind those
    /// added before. The view owns it.
    void addBesideSave(QWidget& widget);

private:
    void addButtons(ctrl7Day& tool);

    QHBoxLayout* buttons_;
    std::vector<QWidget*> ownButtons_;
};

} // namespace k7deval::qt
