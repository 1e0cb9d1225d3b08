#pragma once

namespace k7deval::qt
{

class ChartView;

/// Makes charts tables to a screen reader: a row a bar, with the columns From, To, Hours and
/// Percent. To be called before there is a chart; more than once does no harm.
///
/// The cells stand ahead of the texts around the chart: those of the head row, then row by row the
/// name of the bar and its cells.
void installChartAccess();

/// Tells a screen reader that the keys have come to a bar, from 1: the focus is on its hours.
void tellFocus(ChartView& chart, int bar);

/// Tells a screen reader that the cells of a chart have other texts.
void tellChange(ChartView& chart);

} // namespace k7deval::qt
