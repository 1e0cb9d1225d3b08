#pragma once

#include "sevenday/ctrl7DayResult.h"

#include <QWidget>

class QBoxLayout;

namespace k7deval::qt
{

/// The second page of the 7-Day tool. The page's model outlives it.
class ctrl7DayResultView final : public QWidget
{
public:
    explicit ctrl7DayResultView(ctrl7DayResult& page, QWidget* parent = nullptr);

private:
    QBoxLayout* treeAndLegend();
    void addTree(QBoxLayout& column);
    void addLegend(QBoxLayout& column);
    QBoxLayout* summaryAndDetails();
    QWidget* summary();
    void addDetails(QBoxLayout& column);
    QWidget* injection(InjectionLabels& labels);

    ctrl7DayResult* page_;
};

} // namespace k7deval::qt
