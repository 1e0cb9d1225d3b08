#pragma once

#include "sevenday/ctrl7Day.h"

#include <QWidget>

class QHBoxLayout;

namespace k7deval::qt
{

/// The screen of the 7-Day tool: its two pages in one place, and the buttons below. The tool
/// outlives it.
class ctrl7DayView final : public QWidget
{
public:
    explicit ctrl7DayView(ctrl7Day& tool, QWidget* parent = nullptr);

private:
    QHBoxLayout* buttons(ctrl7Day& tool);
};

} // namespace k7deval::qt
