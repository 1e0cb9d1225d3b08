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
/// The arrow keys go from bar to bar and show what the mouse finds over it.
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
    void placeRow(const Row& row, int top) const;
    [[nodiscard]] int rowHeight() const;

    [[nodiscard]] double across(float twips) const;
    [[nodiscard]] double down(float twips) const;
    [[nodiscard]] int barAt(int x) const;
    void showTip(int bar);
    void paintMark(QPainter& painter, const screen::Line& line) const;

    histogram::HistogramTool* tool_;
    Row percents_;
    Row values_;
    Row fixed_;
    int currentBar_ = 0; ///< Which one the keys have come to; 0 for none.
};

} // namespace k7deval::qt
