#include "qt/ctrl7DaySetUpView.h"

#include "qt/Binding.h"
#include "qt/DateField.h"
#include "qt/EventWatch.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace k7deval::qt
{

namespace
{

/// One of the specifications, with examples behind it.
struct SpecificationRow {
    screen::OptionButton& option;
    char mnemonic;
    screen::Label& examples;
};

void addSpecification(QGridLayout& rows, int row, QWidget& box, const SpecificationRow& shown)
{
    rows.addWidget(makeView(box, shown.option, shown.mnemonic), row, 0);
    rows.addWidget(makeView(box, shown.examples), row, 1);
}

void addLimit(QGridLayout& rows, int row, QWidget& box, screen::Label& name, screen::TextBox& limit)
{
    auto* field = makeView(box, limit);
    rows.addWidget(makeView(box, name, *field), row, 2);
    rows.addWidget(field, row, 3, Qt::AlignLeft);
}

} // namespace

ctrl7DaySetUpView::ctrl7DaySetUpView(ctrl7DaySetUp& page, QWidget* parent)
    : QWidget(parent), page_(&page)
{
    bind(*this, page);
    auto* columns = new QGridLayout(this);
    columns->setContentsMargins(0, 0, 0, 0);
    addAnalyzer(*columns);
    columns->addWidget(interval(), 1, 0);
    columns->addWidget(criteria(), 2, 0);
    columns->addWidget(display(), 3, 0);
    columns->addWidget(specification(), 1, 1, 2, 1);
    columns->addWidget(testInformation(), 3, 1);
    columns->setRowStretch(4, 1);
    columns->setColumnStretch(1, 1);
}

void ctrl7DaySetUpView::addAnalyzer(QGridLayout& columns)
{
    auto* unit = makeView(*this, page_->cmbUnit);
    unit->setAccessibleName("Unit");
    columns.addWidget(unit, 0, 0);
    auto* analyzer = makeView(*this, page_->cmbAnalyzer);
    analyzer->setAccessibleName("Analyzer");
    columns.addWidget(analyzer, 0, 1);
}

QWidget* ctrl7DaySetUpView::interval()
{
    auto* box = makeView(*this, page_->fraTargetTime);
    auto* rows = new QGridLayout(box);
    const auto addDay = [&](int row, screen::Label& name, char mnemonic, const DateField& day) {
        rows->addWidget(makeView(*box, name, *day.text, mnemonic), row, 0);
        rows->addWidget(day.text, row, 1);
        rows->addWidget(day.calendar, row, 2);
    };
    addDay(0, page_->lblFromDate, 'R',
           makeDateField(*box, page_->txtFromDate, page_->cmdFromDate, "First day"));
    addDay(1, page_->lblToDate, 'O',
           makeDateField(*box, page_->txtToDate, page_->cmdToDate, "Last day"));
    return box;
}

QWidget* ctrl7DaySetUpView::criteria()
{
    auto* box = makeView(*this, page_->fraCriteria);
    auto* column = new QVBoxLayout(box);
    column->addWidget(makeView(*box, page_->chkManualCals, 'l'));
    column->addWidget(makeView(*box, page_->chk6of7, '6'));
    return box;
}

QWidget* ctrl7DaySetUpView::display()
{
    auto* box = makeView(*this, page_->fraDisplay);
    auto* column = new QVBoxLayout(box);
    column->addWidget(makeView(*box, page_->optShowInterval, 'I'));
    column->addWidget(makeView(*box, page_->optShowAllCals, 'E'));
    column->addWidget(makeView(*box, page_->optShowDriftTestCals, 'U'));
    column->addWidget(makeView(*box, page_->chkShowSummary, 'y'));
    return box;
}

QWidget* ctrl7DaySetUpView::specification()
{
    auto* box = makeView(*this, page_->fraPerfSpec);
    auto* rows = new QGridLayout(box);
    addSpecification(*rows, 0, *box, {page_->opt025Span, '2', page_->lbl025Span});
    rows->addWidget(makeView(*box, page_->chkUseAPS, 'A'), 0, 2, 1, 2);
    addSpecification(*rows, 1, *box, {page_->opt05Span, '5', page_->lbl05Span});
    addSpecification(*rows, 2, *box, {page_->opt005Absolute, '0', page_->lbl005Absolute});
    addSpecification(*rows, 3, *box, {page_->optOtherSpan, 0, page_->lblOtherSpan});
    addLimit(*rows, 3, *box, page_->lblOtherSpanValue, page_->txtOtherSpanValue);
    addSpecification(*rows, 4, *box, {page_->optOtherAbsolute, 0, page_->lblOtherAbsolute});
    addLimit(*rows, 4, *box, page_->lblOtherAbsoluteValue, page_->txtOtherAbsoluteValue);
    addSpecification(*rows, 5, *box, {page_->optPS9GC, '9', page_->lblPS9GC});
    rows->setColumnStretch(3, 1);
    return box;
}

/// The label names that of its two fields which is on view.
void ctrl7DaySetUpView::addStack(QGroupBox& box, QGridLayout& rows, int row)
{
    auto* stack = makeView(box, page_->txtStackID);
    auto* name = makeView(box, page_->lblStackID, *stack, 'k');
    auto* stacks = makeView(box, page_->cmbStackID);
    rows.addWidget(name, row, 0);
    for (QWidget* field : {static_cast<QWidget*>(stack), static_cast<QWidget*>(stacks)}) {
        rows.addWidget(field, row, 1);
        const auto nameIt = [name, field] { name->setBuddy(field); };
        if (!field->isHidden())
            nameIt();
        new EventWatch(*field, QEvent::ShowToParent, [nameIt](const QEvent&) { nameIt(); });
    }
}

QWidget* ctrl7DaySetUpView::testInformation()
{
    auto* box = makeView(*this, page_->fraTestInfo);
    auto* rows = new QGridLayout(box);
    int row = 0;
    const auto add = [&](screen::Label& name, char mnemonic, QWidget* field) {
        rows->addWidget(makeView(*box, name, *field, mnemonic), row, 0);
        rows->addWidget(field, row++, 1);
    };
    add(page_->lblORIS, 'C', makeView(*box, page_->txtORIS));
    addStack(*box, *rows, row++);
    add(page_->lblComponentID, 'D', makeView(*box, page_->txtComponentID));
    add(page_->lblTestReason, 's', makeView(*box, page_->cmbTestReason));
    add(page_->lblTestNumber, 'm', makeView(*box, page_->txtTestNumber));
    rows->setRowStretch(row, 1);
    // These are short texts, however wide the screen.
    rows->setColumnStretch(1, 3);
    rows->setColumnStretch(2, 1);
    return box;
}

} // namespace k7deval::qt
