#include "qt/ctrl7DayView.h"

#include "qt/Binding.h"
#include "qt/ctrl7DayResultView.h"
#include "qt/ctrl7DaySetUpView.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QPushButton>

namespace k7deval::qt
{

namespace
{

/// The room of a page stays while another is on view, so that the window keeps its size.
void keepRoom(QWidget& page)
{
    QSizePolicy policy = page.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    page.setSizePolicy(policy);
}

} // namespace

ctrl7DayView::ctrl7DayView(ctrl7Day& tool, QWidget* parent) : QWidget(parent)
{
    bind(*this, tool);
    auto* rows = new QGridLayout(this);
    auto* setUp = new ctrl7DaySetUpView(tool.ctrl7DaySetUp1, this);
    auto* result = new ctrl7DayResultView(tool.ctrl7DayResult1, this);
    for (QWidget* page : {static_cast<QWidget*>(setUp), static_cast<QWidget*>(result)}) {
        keepRoom(*page);
        rows->addWidget(page, 0, 0);
    }
    rows->setRowStretch(0, 1);
    rows->addLayout(buttons(tool), 1, 0);
}

QHBoxLayout* ctrl7DayView::buttons(ctrl7Day& tool)
{
    auto* row = new QHBoxLayout;
    row->addStretch(1);
    row->addWidget(makeView(*this, tool.chkPreview, 'v'));
    row->addWidget(makeView(*this, tool.cmdBack, 'B'));
    // One place for two, of which one is ever on view.
    row->addWidget(makeView(*this, tool.cmdNext, 'N'));
    row->addWidget(makeView(*this, tool.cmdSave, 'S'));
    return row;
}

} // namespace k7deval::qt
