#include "qt/HistogramView.h"

#include "qt/Binding.h"
#include "qt/ChartView.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace k7deval::qt
{

HistogramView::HistogramView(QWidget* parent, histogram::HistogramTool& tool)
    : QWidget(parent), tool_(&tool), halves_(new QGridLayout(this)),
      setUpBox_(makeView(*this, tool.fraSetup)), setUpRows_(new QGridLayout(setUpBox_))
{
    bind(*this, tool);
    halves_->addWidget(setUpBox_, 0, 0);
    halves_->setColumnStretch(1, 1);
    halves_->setRowStretch(0, 1);
    addUnitAndParameter();
}

void HistogramView::addUnitAndParameter()
{
    auto* unit = makeView(*setUpBox_, tool_->cmbUnit);
    setUpRows_->addWidget(makeView(*setUpBox_, tool_->lblUnit, *unit, 'U'), 0, 0);
    setUpRows_->addWidget(unit, 0, 1, 1, 3);
    auto* parameter = makeView(*setUpBox_, tool_->cmbParam);
    setUpRows_->addWidget(makeView(*setUpBox_, tool_->lblParameter, *parameter, 'P'), 1, 0);
    setUpRows_->addWidget(parameter, 1, 1, 1, 3);
    setUpRows_->addWidget(makeView(*setUpBox_, tool_->chkShowPID, 'D'), 2, 1, 1, 3);
}

void HistogramView::addResults(const std::vector<screen::Label*>& fixedTexts,
                               const std::vector<screen::Label*>& hours)
{
    // First, so that the keys come to them next to the fields.
    addButtons();
    auto* box = makeView(*this, tool_->fraResults);
    auto* column = new QVBoxLayout(box);
    auto* header = makeView(*box, tool_->lblHeader);
    header->setAlignment(Qt::AlignCenter);
    column->addWidget(header);
    column->addWidget(new ChartView(box, *tool_, fixedTexts), 1);
    for (screen::Label* line : hours)
        column->addWidget(makeView(*box, *line));
    halves_->addWidget(box, 0, 1);
}

void HistogramView::addButtons()
{
    buttons_ = new QHBoxLayout;
    buttons_->addStretch(1);
    buttons_->addWidget(makeView(*this, tool_->cmdCalculate, 'C'));
    buttons_->addWidget(makeView(*this, tool_->cmdSave, 'S'));
    lastBesideSave_ = makeView(*this, tool_->chkPreview, 'A');
    buttons_->addWidget(lastBesideSave_);
    buttons_->addWidget(makeView(*this, tool_->cmdClose, 'l'));
    halves_->addLayout(buttons_, 1, 0, 1, 2);
}

void HistogramView::addBesideSave(QWidget& widget)
{
    buttons_->insertWidget(buttons_->indexOf(lastBesideSave_) + 1, &widget);
    setTabOrder(lastBesideSave_, &widget);
    lastBesideSave_ = &widget;
}

} // namespace k7deval::qt
