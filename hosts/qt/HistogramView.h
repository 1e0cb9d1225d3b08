#pragma once

#include "histogram/HistogramTool.h"

#include <QWidget>

#include <vector>

class QGridLayout;
class QGroupBox;

namespace k7deval::qt
{

/// What the screens of load and range evaluation have in common: what to evaluate on the left, the
/// chart on the right, the buttons below.
class HistogramView : public QWidget
{
protected:
    HistogramView(QWidget* parent, histogram::HistogramTool& tool);

    /// The rows of the left side, of which the first are those of unit and parameter: names in
    /// column 0, fields in columns 1 to 3.
    [[nodiscard]] QGroupBox& setUpBox() const { return *setUpBox_; }
    [[nodiscard]] QGridLayout& setUpRows() const { return *setUpRows_; }
    /// Adds the right side, with the fixed texts of the scale and the lines of hours below, and the
    /// buttons.
    void addResults(const std::vector<screen::Label*>& fixedTexts,
                    const std::vector<screen::Label*>& hours);

private:
    void addUnitAndParameter();
    void addButtons();

    histogram::HistogramTool* tool_;
    QGridLayout* halves_;
    QGroupBox* setUpBox_;
    QGridLayout* setUpRows_;
};

} // namespace k7deval::qt
