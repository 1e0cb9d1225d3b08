#pragma once

#include "qt/HistogramView.h"
#include "range/ctrlRangeEval.h"

namespace k7deval::qt
{

/// The screen of the range evaluation. The tool outlives it.
class ctrlRangeEvalView final : public HistogramView
{
public:
    explicit ctrlRangeEvalView(ctrlRangeEval& tool, QWidget* parent = nullptr);

private:
    void addRange(ctrlRangeEval& tool) const;
    void addLimits(ctrlRangeEval& tool) const;
    void addQuarter(ctrlRangeEval& tool) const;
};

} // namespace k7deval::qt
