#include "qt/ctrlRangeEvalView.h"

#include "qt/Binding.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>

namespace k7deval::qt
{

ctrlRangeEvalView::ctrlRangeEvalView(ctrlRangeEval& tool, QWidget* parent)
    : HistogramView(parent, tool)
{
    addRange(tool);
    addLimits(tool);
    addQuarter(tool);
    setUpRows().setRowStretch(setUpRows().rowCount(), 1);
    addResults({&tool.lbl000, &tool.lbl020, &tool.lbl080, &tool.lbl100},
               {&tool.lblAboveMEC, &tool.lblAboveMPC, &tool.lblOverRange, &tool.lblReplaced,
                &tool.lblInvalid});
}

void ctrlRangeEvalView::addRange(ctrlRangeEval& tool) const
{
    auto* scale = makeView(setUpBox(), tool.cmbScale);
    scale->setAccessibleName("Scale");
    setUpRows().addWidget(scale, 3, 1, 1, 3);
    auto* range = makeView(setUpBox(), tool.txtRange);
    setUpRows().addWidget(makeView(setUpBox(), tool.lblRange, *range, 'I'), 4, 0, 1, 2);
    setUpRows().addWidget(range, 4, 2, 1, 2);
}

void ctrlRangeEvalView::addLimits(ctrlRangeEval& tool) const
{
    setUpRows().addWidget(makeView(setUpBox(), tool.chkMEC, 'E'), 5, 0, 1, 2);
    auto* expected = makeView(setUpBox(), tool.txtMEC);
    expected->setAccessibleName("Maximum expected concentration");
    setUpRows().addWidget(expected, 5, 2, 1, 2);
    setUpRows().addWidget(makeView(setUpBox(), tool.chkMPC, 'o'), 6, 0, 1, 2);
    auto* potential = makeView(setUpBox(), tool.txtMPC);
    potential->setAccessibleName("Maximum potential concentration");
    setUpRows().addWidget(potential, 6, 2, 1, 2);
}

void ctrlRangeEvalView::addQuarter(ctrlRangeEval& tool) const
{
    auto* year = makeView(setUpBox(), tool.cmbYear);
    setUpRows().addWidget(makeView(setUpBox(), tool.lblQuarter, *year, 'R'), 7, 0, 1, 4);
    year->setAccessibleName("Year");
    setUpRows().addWidget(year, 8, 0, 1, 2);
    auto* quarter = makeView(setUpBox(), tool.cmbQTR);
    quarter->setAccessibleName("Quarter");
    setUpRows().addWidget(quarter, 8, 2, 1, 2);
}

} // namespace k7deval::qt
