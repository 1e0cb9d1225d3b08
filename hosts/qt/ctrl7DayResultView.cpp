#include "qt/ctrl7DayResultView.h"

#include "qt/Binding.h"
#include "qt/EventWatch.h"
#include "qt/Texts.h"

#include <QFontInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QScrollArea>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <array>
#include <utility>

namespace k7deval::qt
{

namespace
{

using LegendEntry = std::pair<screen::Image*, screen::Label*>;

std::array<LegendEntry, 5> legendOf(ctrl7DayResult& page)
{
    return {{{&page.imgOnlinePass, &page.lblOnlinePass},
             {&page.imgOfflinePass, &page.lblOfflinePass},
             {&page.imgOnlineFail, &page.lblOnlineFail},
             {&page.imgOfflineFail, &page.lblOfflineFail},
             {&page.imgOpDayNoCals, &page.lblOpDayNoCals}}};
}

/// What the picture and the ground of an entry mean, in the words of the legend.
QString meaningOf(ctrl7DayResult& page, const screen::TreeNode& node)
{
    QString meaning;
    for (const auto& [image, label] : legendOf(page)) {
        if (image->Picture() == node.Image)
            meaning = toQString(label->Caption());
    }
    return node.BackColor == screen::color::kWhite ? meaning + ", used in the drift test" : meaning;
}

void makeReadable(QLabel& label)
{
    label.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

/// The verdict of the test is what the eye meets first.
void enlarge(QLabel& label, QWidget& box)
{
    constexpr double kTimes = 1.6;
    const auto show = [&label, &box] {
        QFont font = label.font();
        font.setPointSizeF(QFontInfo(box.font()).pointSizeF() * kTimes);
        label.setFont(font);
    };
    new EventWatch(box, QEvent::FontChange, [show](const QEvent&) { show(); });
    show();
}

void addPair(QGridLayout& rows, int row, QWidget& box, screen::Label& name, screen::Label& data)
{
    rows.addWidget(makeView(box, name), row, 0);
    auto* value = makeView(box, data);
    makeReadable(*value);
    value->setAccessibleDescription(toQString(name.Caption()));
    rows.addWidget(value, row, 1);
}

} // namespace

ctrl7DayResultView::ctrl7DayResultView(ctrl7DayResult& page, QWidget* parent)
    : QWidget(parent), page_(&page)
{
    bind(*this, page);
    auto* columns = new QHBoxLayout(this);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->addLayout(treeAndLegend(), 2);
    columns->addLayout(summaryAndDetails(), 3);
}

QBoxLayout* ctrl7DayResultView::treeAndLegend()
{
    auto* column = new QVBoxLayout;
    column->addWidget(makeView(*this, page_->lblAnalyzerLabel));
    addTree(*column);
    addLegend(*column);
    return column;
}

void ctrl7DayResultView::addTree(QBoxLayout& column)
{
    auto* tree = new QTreeWidget(this);
    tree->setAccessibleName("Days and calibrations");
    ctrl7DayResult* page = page_;
    bind(*tree, page->tvwCalTimes,
         [page](const screen::TreeNode& node) { return meaningOf(*page, node); });
    column.addWidget(tree, 1);
}

void ctrl7DayResultView::addLegend(QBoxLayout& column)
{
    auto* rows = new QGridLayout;
    int row = 0;
    for (const auto& [image, label] : legendOf(*page_)) {
        auto* picture = makeView(*this, *image);
        picture->setAccessibleName(toQString(label->Caption()));
        rows->addWidget(picture, row, 0);
        rows->addWidget(makeView(*this, *label), row++, 1);
    }
    rows->setColumnStretch(1, 1);
    column.addLayout(rows);
}

QBoxLayout* ctrl7DayResultView::summaryAndDetails()
{
    auto* column = new QVBoxLayout;
    column->addWidget(summary(), 1);
    addDetails(*column);
    auto* injections = new QHBoxLayout;
    injections->addWidget(injection(page_->zero));
    injections->addWidget(injection(page_->span));
    column->addLayout(injections);
    return column;
}

/// A summary that is longer than its place can be scrolled.
QWidget* ctrl7DayResultView::summary()
{
    auto* box = makeView(*this, page_->fraSummary);
    auto* text = makeView(*box, page_->lblSummary);
    text->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    text->setWordWrap(true);
    makeReadable(*text);
    enlarge(*text, *box);
    auto* scroll = new QScrollArea(box);
    scroll->setObjectName("summary");
    scroll->setAccessibleName(toQString(page_->fraSummary.Caption()));
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setWidget(text);
    // The ground of the box shows through.
    scroll->viewport()->setAutoFillBackground(false);
    text->setAutoFillBackground(false);
    auto* column = new QVBoxLayout(box);
    column->addWidget(scroll);
    return box;
}

void ctrl7DayResultView::addDetails(QBoxLayout& column)
{
    auto* rows = new QGridLayout;
    addPair(*rows, 0, *this, page_->lblCalTimeLabel, page_->lblCalTimeData);
    addPair(*rows, 1, *this, page_->lblInstSpanLabel, page_->lblInstSpanData);
    rows->addWidget(makeView(*this, page_->lblCalResultLabel), 0, 2);
    rows->addWidget(makeView(*this, page_->lblCalOnline), 1, 2);
    rows->setColumnStretch(1, 1);
    rows->setColumnStretch(2, 1);
    column.addLayout(rows);
}

QWidget* ctrl7DayResultView::injection(InjectionLabels& labels)
{
    auto* box = makeView(*this, labels.frame);
    auto* rows = new QGridLayout(box);
    addPair(*rows, 0, *box, labels.refLabel, labels.refData);
    addPair(*rows, 1, *box, labels.measLabel, labels.measData);
    addPair(*rows, 2, *box, labels.driftLabel, labels.driftData);
    addPair(*rows, 3, *box, labels.limitLabel, labels.limitData);
    rows->addWidget(makeView(*box, labels.apsLabel), 3, 2);
    rows->setColumnStretch(1, 1);
    return box;
}

} // namespace k7deval::qt
