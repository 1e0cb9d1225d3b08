#pragma once

#include "histogram/HistogramTool.h"

#include <QWidget>

#include <vector>

class QGridLayout;
class QGroupBox;
class QHBoxLayout;

namespace k7deval::qt
{

/// What the screens of load and range evaluation have in common: what to evaluate on the left, the
/// chart on the right, the buttons below.
class HistogramView : public QWidget
{
public:
    /// Adds a widget of the host's own to the buttons, behind those that save and those added
    /// before. The view owns it.
    void addBesideSave(QWidget& widget);

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
    QHBoxLayout* buttons_ = nullptr;
    QWidget* lastBesideSave_ = nullptr;
};

} // namespace k7deval::qt
