#pragma once

#include "sevenday/ctrl7DaySetUp.h"

#include <QWidget>

class QGridLayout;
class QGroupBox;

namespace k7deval::qt
{

/// The first page of the 7-Day tool. The page's model outlives it.
class ctrl7DaySetUpView final : public QWidget
{
public:
    explicit ctrl7DaySetUpView(ctrl7DaySetUp& page, QWidget* parent = nullptr);

private:
    void addAnalyzer(QGridLayout& columns);
    QWidget* interval();
    QWidget* criteria();
    QWidget* display();
    QWidget* specification();
    void addStack(QGroupBox& box, QGridLayout& rows, int row);
    QWidget* testInformation();

    ctrl7DaySetUp* page_;
};

} // namespace k7deval::qt
