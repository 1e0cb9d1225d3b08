#pragma once

#include "load/ctrlMaxMW.h"
#include "qt/HistogramView.h"

namespace k7deval::qt
{

/// The screen of the load evaluation. The tool outlives it.
class ctrlMaxMWView final : public HistogramView
{
public:
    explicit ctrlMaxMWView(ctrlMaxMW& tool, QWidget* parent = nullptr);

private:
    void addRange(ctrlMaxMW& tool) const;
    void addPeriod(ctrlMaxMW& tool) const;
};

} // namespace k7deval::qt
