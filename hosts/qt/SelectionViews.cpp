#include "qt/SelectionViews.h"

#include "qt/Binding.h"

#include <QComboBox>
#include <QTableView>
#include <QVBoxLayout>

namespace k7deval::qt
{

namespace
{

template <class Control> void resizeLike(const QWidget& view, Control& control)
{
    control.Resize(static_cast<float>(view.width()) * kTwipsPerPixel,
                   static_cast<float>(view.height()) * kTwipsPerPixel);
}

QVBoxLayout* columnOf(QWidget& view)
{
    auto* column = new QVBoxLayout(&view);
    column->setContentsMargins(0, 0, 0, 0);
    return column;
}

} // namespace

ParamSelectView::ParamSelectView(ParamSelect& control, QWidget* parent)
    : QWidget(parent), control_(&control)
{
    bind(*this, control);
    auto* column = columnOf(*this);
    auto* unit = makeView(*this, control.cmbUnit);
    unit->setAccessibleName("Unit");
    column->addWidget(unit);
    auto* grid = new QTableView(this);
    grid->setAccessibleName("Parameters");
    bind(*grid, control.jgexGrid);
    column->addWidget(grid, 1);
}

void ParamSelectView::resizeEvent(QResizeEvent* /*event*/)
{
    resizeLike(*this, *control_);
}

SingleParamSelectView::SingleParamSelectView(SingleParamSelect& control, QWidget* parent)
    : QWidget(parent), control_(&control)
{
    bind(*this, control);
    auto* column = columnOf(*this);
    auto* unit = makeView(*this, control.cmbUnit);
    unit->setAccessibleName("Unit");
    column->addWidget(unit);
    auto* parameter = makeView(*this, control.cmbPID);
    parameter->setAccessibleName("Parameter");
    column->addWidget(parameter);
    column->addStretch(1);
}

void SingleParamSelectView::resizeEvent(QResizeEvent* /*event*/)
{
    resizeLike(*this, *control_);
}

} // namespace k7deval::qt
