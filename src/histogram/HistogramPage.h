#pragma once

#include "histogram/HourBins.h"
#include "report/PageLayout.h"

#include <array>
#include <string>

/// The histogram of hours on paper.
namespace k7deval::histogram
{

/// The texts at the head and the foot of the page.
struct PageTexts {
    std::string facility;
    std::string heading; ///< The report's name, also in the footer.
    std::string period;
    std::string analyzed; ///< Unit and parameter.
    std::string printed;  ///< The present date and time.
};

/// The footer and the rows at the top. Returns the y of the last of them.
float drawHead(ReportPage& page, const PageTexts& texts);

/// A level of the range, above the chart: the x of its middle, and its texts.
struct LevelColumn {
    float centre = 0;
    std::string percent;
    std::string hours;
};
using LevelColumns = std::array<LevelColumn, 3>;

/// The levels under the page's heading: a row of percents and one of hours. Returns the top of the
/// chart.
float drawLevels(ReportPage& page, const LevelColumns& levels, float above);

/// Where the lowest row under the chart hangs, and the gap between what hangs there and the scale.
inline constexpr float kLowestRow = 49.2F;
inline constexpr float kGapAboveCounts = 5;

/// The x of the two marks inside the range.
struct InnerMarks {
    float low = 0;
    float high = 0;
};

/// The texts under the four marks of a chart: at the left edge, the two inner marks and the right
/// edge.
using ScaleRow = std::array<std::string, 4>;

/// Rows of texts upward from y. Returns the bottom of the chart.
float drawScale(ReportPage& page, const InnerMarks& marks, const std::array<ScaleRow, 2>& rows,
                float y);

/// The chart from its bottom to its top: the base line, dashed marks, and the bars with their
/// hours.
void drawBarChart(ReportPage& page, const InnerMarks& marks, const HourBins& bins, float bottom,
                  float top);

} // namespace k7deval::histogram
