#include "qt/ctrlMaxMWView.h"

#include "qt/Binding.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

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
    rows->addWidget(makeView(*box, tool.lblTimeFrameHeading), 0, 0, 1, 6);
    rows->addWidget(makeView(*box, tool.optTimeEnd, '4'), 1, 0, 1, 6);
    auto* year = makeView(*box, tool.cmbYear);
    year->setAccessibleName("Year");
    rows->addWidget(year, 2, 1, 1, 2);
    auto* quarter = makeView(*box, tool.cmbQTR);
    quarter->setAccessibleName("Quarter");
    rows->addWidget(quarter, 2, 3, 1, 3);
    rows->addWidget(makeView(*box, tool.optTimeSelect, 'i'), 3, 0, 1, 6);

    auto* from = makeView(*box, tool.txtFrom);
    from->setAccessibleName("First day");
    rows->addWidget(from, 4, 1);
    auto* pickFrom = makeView(*box, tool.cmdFrom);
    pickFrom->setAccessibleName("Calendar of the first day");
    rows->addWidget(pickFrom, 4, 2);
    auto* to = makeView(*box, tool.txtTo);
    rows->addWidget(makeView(*box, tool.lblTo, *to, 't'), 4, 3);
    to->setAccessibleName("Last day");
    rows->addWidget(to, 4, 4);
    auto* pickTo = makeView(*box, tool.cmdTo);
    pickTo->setAccessibleName("Calendar of the last day");
    rows->addWidget(pickTo, 4, 5);
}

} // namespace k7deval::qt
