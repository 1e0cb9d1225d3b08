#pragma once

#include "qt/ctrl7DayView.h"
#include "qt/ctrlMaxMWView.h"
#include "qt/ctrlRangeEvalView.h"
#include "workbench/ToolPage.h"

namespace k7deval::workbench
{

using DriftPage = ToolPage<ctrl7Day, qt::ctrl7DayView>;
using LoadPage = ToolPage<ctrlMaxMW, qt::ctrlMaxMWView>;
using RangePage = ToolPage<ctrlRangeEval, qt::ctrlRangeEvalView>;

} // namespace k7deval::workbench
