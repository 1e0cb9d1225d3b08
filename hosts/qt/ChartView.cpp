#include "qt/ChartView.h"

#include "qt/Binding.h"
#include "qt/ChartAccess.h"
#include "qt/Colors.h"
#include "qt/Texts.h"

#include <QFocusEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPointer>
#include <QTimer>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace k7deval::qt
{

namespace
{

constexpr int kLinesOfBars = 10;
constexpr int kLinesOfLowestBars = 8;
// Letters across: with fewer the texts of the percents and of the scale would meet.
constexpr int kWidth = 90;
constexpr int kLowestWidth = 76;

} // namespace

ChartView::ChartView(QWidget* parent, histogram::HistogramTool& tool,
                     const std::vector<screen::Label*>& fixedTexts)
    : QWidget(parent), tool_(&tool),
      percents_(makeRow({&tool.lblLowOpPercent, &tool.lblMidOpPercent, &tool.lblHighOpPercent})),
      values_(makeRow({&tool.lblMinSafe, &tool.lblLow, &tool.lblMid, &tool.lblMax})),
      fixed_(makeRow(fixedTexts))
{
    installChartAccess();
    setObjectName("chart");
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAccessibleName("Hours by 5% of the range");
    for (int bar = 1; bar < histogram::BarLabels::Count(); ++bar)
        follow(tool.lblBar[bar]);
    showAnew();
}

ChartView::Row ChartView::makeRow(const std::vector<screen::Label*>& models)
{
    Row row;
    for (screen::Label* model : models) {
        row.push_back({model, makeView(*this, *model)});
        follow(*model);
    }
    return row;
}

void ChartView::follow(screen::Widget& model)
{
    model.Changed.Connect([guard = QPointer<ChartView>(this)] {
        if (guard)
            guard->showAnew();
    });
}

void ChartView::showAnew()
{
    tellChangeSoon();
    placeRow(percents_, 0);
    placeRow(values_, height() - 2 * rowHeight());
    placeRow(fixed_, height() - rowHeight());
    update();
}

/// Once for all bars of an evaluation.
void ChartView::tellChangeSoon()
{
    if (isChanged_)
        return;
    isChanged_ = true;
    QTimer::singleShot(0, this, [this] {
        isChanged_ = false;
        tellChange(*this);
    });
}

int ChartView::rowHeight() const
{
    return fontMetrics().lineSpacing() + fontMetrics().leading() + 2;
}

/// A text that is wider than its place on the tool's grid grows from the side that it leans on.
void ChartView::placeRow(const Row& row, int top) const
{
    for (const auto& [model, view] : row) {
        const int width = std::min(view->sizeHint().width(), this->width());
        const screen::Geometry& place = model->place();
        double left = across(place.Left);
        if (model->Alignment() == screen::Alignment::Centre)
            left = across(place.Left + place.Width / 2) - width / 2.0;
        else if (model->Alignment() == screen::Alignment::Right)
            left = across(place.Left + place.Width) - width;
        const int fitting = std::clamp(static_cast<int>(left), 0, this->width() - width);
        view->setGeometry(fitting, top, width, rowHeight());
    }
}

QSize ChartView::sizeHint() const
{
    return {fontMetrics().averageCharWidth() * kWidth,
            rowHeight() * 3 + fontMetrics().lineSpacing() * kLinesOfBars};
}

QSize ChartView::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * kLowestWidth,
            rowHeight() * 3 + fontMetrics().lineSpacing() * kLinesOfLowestBars};
}

double ChartView::across(float twips) const
{
    return static_cast<double>(twips) / tool_->fraResults.place().Width * width();
}

/// Between the upper row of texts and the lower two, from the top of the marks to the lower edge of
/// a flat bar, which hangs below the base.
double ChartView::down(float twips) const
{
    constexpr float kFlatBar = 15;
    const float top = tool_->linMin.Y1();
    const double share = (twips - top) / (tool_->linBase.Y1() + kFlatBar - top);
    return rowHeight() + share * (height() - 3 * rowHeight());
}

QRect ChartView::barRect(int bar) const
{
    const screen::Geometry& place = tool_->lblBar[bar].place();
    if (place.Height == 0)
        return {};
    const int left = static_cast<int>(std::lround(across(place.Left)));
    const int right = static_cast<int>(std::lround(across(place.Left + place.Width)));
    const int top = static_cast<int>(std::lround(down(place.Top)));
    const int bottom = static_cast<int>(std::lround(down(place.Top + place.Height)));
    return {left, std::min(top, bottom - 1), right - left, std::max(bottom - top, 1)};
}

QRect ChartView::columnRect(int bar) const
{
    const screen::Geometry& place = tool_->lblBar[bar].place();
    const int left = static_cast<int>(across(place.Left));
    const int right = static_cast<int>(across(place.Left + place.Width));
    return {left, rowHeight(), right - left, height() - 3 * rowHeight()};
}

const histogram::BarTexts& ChartView::texts(int bar) const
{
    return tool_->lblBar.texts(bar);
}

QString ChartView::tip(int bar) const
{
    return toQString(tool_->lblBar[bar].ToolTipText());
}

/// The whole column of a bar counts, since low bars are hard to hit.
int ChartView::barAt(int x) const
{
    for (int bar = 1; bar < histogram::BarLabels::Count(); ++bar) {
        const screen::Geometry& place = tool_->lblBar[bar].place();
        if (x >= across(place.Left) && x < across(place.Left + place.Width))
            return bar;
    }
    return 0;
}

void ChartView::paintMark(QPainter& painter, const screen::Line& line) const
{
    const bool dotted = line.Style() == screen::LineStyle::Dotted;
    painter.setPen(
        QPen(palette().color(QPalette::WindowText), 1, dotted ? Qt::DotLine : Qt::SolidLine));
    painter.drawLine(QPointF(across(line.X1()), down(line.Y1())),
                     QPointF(across(line.X2()), down(line.Y2())));
}

/// Filled, not drawn, frames keep to whole pixels at any scale of the screen.
void ChartView::paintBar(QPainter& painter, int bar) const
{
    const QRect rect = barRect(bar);
    const QColor color = areaColor(tool_->lblBar[bar].BackColor(), palette());
    if (rect.height() <= 2)
        return painter.fillRect(rect, color);
    painter.fillRect(rect,
                     palette().color(bar == currentBar_ ? QPalette::WindowText : QPalette::Window));
    painter.fillRect(rect.adjusted(1, 1, -1, -1), color);
}

void ChartView::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    for (int bar = 1; bar < histogram::BarLabels::Count(); ++bar)
        paintBar(painter, bar);
    for (const screen::Line* line :
         {&tool_->linMin, &tool_->linLow, &tool_->linMid, &tool_->linMax, &tool_->linBase})
        paintMark(painter, *line);
}

void ChartView::resizeEvent(QResizeEvent* /*event*/)
{
    showAnew();
}

bool ChartView::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto& help = static_cast<const QHelpEvent&>(*event);
        const int bar = barAt(help.pos().x());
        QToolTip::showText(help.globalPos(), bar == 0 ? QString() : tip(bar), this);
        return true;
    }
    if (event->type() == QEvent::FontChange)
        updateGeometry();
    return QWidget::event(event);
}

void ChartView::showTip(int bar)
{
    currentBar_ = bar;
    update();
    const QRect rect = barRect(bar);
    const QPoint top(static_cast<int>(across(tool_->lblBar[bar].place().Left)),
                     rect.isEmpty() ? height() / 2 : rect.top());
    QToolTip::showText(mapToGlobal(top), tip(bar), this);
    tellFocus(*this, bar);
}

void ChartView::keyPressEvent(QKeyEvent* event)
{
    constexpr int kLast = histogram::BarLabels::Count() - 1;
    if (event->key() == Qt::Key_Right)
        showTip(std::min(currentBar_ + 1, kLast));
    else if (event->key() == Qt::Key_Left)
        showTip(std::max(currentBar_ - 1, 1));
    else
        QWidget::keyPressEvent(event);
}

void ChartView::focusOutEvent(QFocusEvent* event)
{
    currentBar_ = 0;
    QToolTip::hideText();
    QWidget::focusOutEvent(event);
    update();
}

} // namespace k7deval::qt
