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

/// The room of a part stays while another in its place is on view, so that nothing else moves.
void keepRoom(QWidget& part)
{
    QSizePolicy policy = part.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    part.setSizePolicy(policy);
}

} // namespace

ctrl7DayView::ctrl7DayView(ctrl7Day& tool, QWidget* parent)
    : QWidget(parent), buttons_(new QHBoxLayout)
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
    rows->addLayout(buttons_, 1, 0);
    addButtons(tool);
}

void ctrl7DayView::addButtons(ctrl7Day& tool)
{
    // One place for the last two, of which one is ever on view.
    ownButtons_ = {makeView(*this, tool.chkPreview, 'A'), makeView(*this, tool.cmdBack, 'B'),
                   makeView(*this, tool.cmdNext, 'N'), makeView(*this, tool.cmdSave, 'S')};
    auto* lastPlace = new QGridLayout;
    buttons_->addStretch(1);
    buttons_->addWidget(ownButtons_[0]);
    buttons_->addWidget(ownButtons_[1]);
    buttons_->addLayout(lastPlace);
    for (QWidget* button : {ownButtons_[2], ownButtons_[3]}) {
        keepRoom(*button);
        lastPlace->addWidget(button, 0, 0);
    }
}

/// Behind the button that saves they would move it from under the mouse that pressed Next.
void ctrl7DayView::addBesideSave(QWidget& widget)
{
    buttons_->insertWidget(buttons_->indexOf(ownButtons_.front()), &widget);
    QWidget* before = &widget;
    for (QWidget* button : ownButtons_) {
        setTabOrder(before, button);
        before = button;
    }
}

} // namespace k7deval::qt
