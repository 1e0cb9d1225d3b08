#include "qt/ctrlMaxMWView.h"

#include "qt/Binding.h"
#include "qt/DateField.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>

namespace k7deval::qt
{

ctrlMaxMWView::ctrlMaxMWView(ctrlMaxMW& tool, QWidget* parent) : HistogramView(parent, tool)
{
    addRange(tool);
    addPeriod(tool);
    setUpRows().setRowStretch(setUpRows().rowCount(), 1);
    addResults({&tool.lbl000, &tool.lbl030, &tool.lbl060, &tool.lbl100},
               {&tool.lblBelow, &tool.lblAbove});
}

void ctrlMaxMWView::addRange(ctrlMaxMW& tool) const
{
    auto* minimum = makeView(setUpBox(), tool.txtMinSafe);
    setUpRows().addWidget(makeView(setUpBox(), tool.lblMinSafeValue, *minimum, 'M'), 3, 0, 1, 3);
    setUpRows().addWidget(minimum, 3, 3);
    auto* capacity = makeView(setUpBox(), tool.txtCapacity);
    setUpRows().addWidget(makeView(setUpBox(), tool.lblCapacity, *capacity, 'N'), 4, 0, 1, 3);
    setUpRows().addWidget(capacity, 4, 3);
}

void ctrlMaxMWView::addPeriod(ctrlMaxMW& tool) const
{
    auto* box = makeView(setUpBox(), tool.fraTimeFrame);
    setUpRows().addWidget(box, 5, 0, 1, 4);
    auto* rows = new QGridLayout(box);
    rows->addWidget(makeView(*box, tool.lblTimeFrameHeading), 0, 0, 1, 3);
    rows->addWidget(makeView(*box, tool.optTimeEnd, '4'), 1, 0, 1, 3);
    auto* year = makeView(*box, tool.cmbYear);
    year->setAccessibleName("Year");
    rows->addWidget(year, 2, 1);
    auto* quarter = makeView(*box, tool.cmbQTR);
    quarter->setAccessibleName("Quarter");
    rows->addWidget(quarter, 2, 2);
    rows->addWidget(makeView(*box, tool.optTimeSelect, 'i'), 3, 0, 1, 3);

    auto* days = new QHBoxLayout;
    const DateField from = makeDateField(*box, tool.txtFrom, tool.cmdFrom, "First day");
    const DateField to = makeDateField(*box, tool.txtTo, tool.cmdTo, "Last day");
    days->addWidget(from.text, 1);
    days->addWidget(from.calendar);
    days->addWidget(makeView(*box, tool.lblTo, *to.text, 'o'));
    days->addWidget(to.text, 1);
    days->addWidget(to.calendar);
    rows->addLayout(days, 4, 1, 1, 2);
    rows->setColumnMinimumWidth(0, box->style()->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth));
}

} // namespace k7deval::qt
