#include "cli/ScreenText.h"

#include "foundation/TextFunctions.h"

#include <algorithm>
#include <array>
#include <iomanip>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

namespace k7deval::cli
{

namespace
{

using Row = std::vector<std::string>;

constexpr std::size_t kFirstFigure = 3;

Row headRow()
{
    return {"",      "Time",  "Result", "Instrument Span", "Zero Reference", "Measured",
            "Drift", "Limit", "APS",    "Span Reference",  "Measured",       "Drift",
            "Limit", "APS"};
}

/// The legend's words for a picture.
std::string legendOf(const ctrl7DayResult& page, const std::string& picture)
{
    const std::array<std::pair<const screen::Image*, const screen::Label*>, 5> legend{{
        {&page.imgOnlinePass, &page.lblOnlinePass},
        {&page.imgOfflinePass, &page.lblOfflinePass},
        {&page.imgOnlineFail, &page.lblOnlineFail},
        {&page.imgOfflineFail, &page.lblOfflineFail},
        {&page.imgOpDayNoCals, &page.lblOpDayNoCals},
    }};
    for (const auto& [image, label] : legend) {
        if (image->Picture() == picture)
            return label->Caption();
    }
    return picture;
}

void addInjection(const InjectionLabels& labels, Row& row)
{
    for (const screen::Label* label : {&labels.refData, &labels.measData, &labels.driftData,
                                       &labels.limitData, &labels.apsLabel})
        row.push_back(label->Caption());
}

Row rowOf(ctrl7DayResult& page, const screen::TreeNode& node, const std::string& indent)
{
    page.tvwCalTimes.Press(node.Key);
    Row row{node.BackColor == screen::color::kWhite ? "*" : "", indent + node.Text,
            legendOf(page, node.Image)};
    row.push_back(page.lblInstSpanData.Caption());
    addInjection(page.zero, row);
    addInjection(page.span, row);
    return row;
}

std::vector<Row> rowsOf(ctrl7DayResult& page)
{
    std::vector<Row> rows{headRow()};
    for (const auto& node : page.tvwCalTimes.Nodes()) {
        rows.push_back(rowOf(page, *node, ""));
        for (const auto& child : node->Children)
            rows.push_back(rowOf(page, *child, "  "));
    }
    return rows;
}

std::vector<std::size_t> widthsOf(const std::vector<Row>& rows)
{
    std::vector<std::size_t> widths(rows.front().size());
    for (const auto& row : rows) {
        for (std::size_t i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths[i], row[i].size());
    }
    return widths;
}

void printRow(const Row& row, const std::vector<std::size_t>& widths, std::ostream& out)
{
    std::ostringstream line;
    for (std::size_t i = 0; i < row.size(); ++i) {
        line << (i < kFirstFigure ? std::left : std::right)
             << std::setw(static_cast<int>(widths[i])) << row[i] << (i == 0 ? " " : "  ");
    }
    out << trimRight(line.str()) << '\n';
}

} // namespace

void printResults(ctrl7DayResult& page, std::ostream& out)
{
    out << page.lblAnalyzerLabel.Caption() << '\n';
    if (!page.lblSummary.Caption().empty())
        out << replaceAll(page.lblSummary.Caption(), "\r\n", "\n") << '\n';
    out << '\n';
    const auto rows = rowsOf(page);
    const auto widths = widthsOf(rows);
    for (const auto& row : rows)
        printRow(row, widths, out);
}

} // namespace k7deval::cli
