#pragma once

#include "histogram/HistogramTool.h"

#include <QWidget>

#include <vector>

class QLabel;

namespace k7deval::qt
{

/// The chart of a load or range evaluation: bars, marks, the percents of the levels above and the
/// scale below. Bars, marks and texts stand where the tool places them, on a grid stretched to the
/// size of the view; the heights of the texts are those of their font.
///
/// The arrow keys go from bar to bar and show what the mouse finds over it. To a screen reader the
/// chart is a table.
class ChartView final : public QWidget
{
public:
    /// The fixed texts of the scale between its ends. The tool outlives the view.
    ChartView(QWidget* parent, histogram::HistogramTool& tool,
              const std::vector<screen::Label*>& fixedTexts);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    /// Where a bar stands, from 1; empty for one without height.
    [[nodiscard]] QRect barRect(int bar) const;
    /// The place between the rows of texts that a bar can take, from 1.
    [[nodiscard]] QRect columnRect(int bar) const;
    /// The bar whose column has an x; 0 for none.
    [[nodiscard]] int barAt(int x) const;
    /// Which bar the keys have come to; 0 for none.
    [[nodiscard]] int currentBar() const { return currentBar_; }
    /// What a bar stands for, from 1.
    [[nodiscard]] const histogram::BarTexts& texts(int bar) const;
    /// What the mouse finds over a bar, from 1.
    [[nodiscard]] QString tip(int bar) const;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    struct Text {
        screen::Label* model;
        QLabel* view;
    };
    using Row = std::vector<Text>;

    Row makeRow(const std::vector<screen::Label*>& models);
    void follow(screen::Widget& model);
    void showAnew();
    void tellChangeSoon();
    void placeRow(const Row& row, int top) const;
    [[nodiscard]] int rowHeight() const;

    [[nodiscard]] double across(float twips) const;
    [[nodiscard]] double down(float twips) const;
    void showTip(int bar);
    void paintBar(QPainter& painter, int bar) const;
    void paintMark(QPainter& painter, const screen::Line& line) const;

    histogram::HistogramTool* tool_;
    Row percents_;
    Row values_;
    Row fixed_;
    int currentBar_ = 0;
    bool isChanged_ = false; ///< A screen reader is told with the next turn of the event loop.
};

} // namespace k7deval::qt
