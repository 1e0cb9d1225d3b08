#include "cli/ScreenText.h"

#include "cli/TextTable.h"
#include "foundation/TextFunctions.h"

#include <array>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace k7deval::cli
{

namespace
{

using Row = std::vector<std::string>;

constexpr const char* kUsed = "*";
constexpr const char* kAboveLimit = "!";
constexpr const char* kNothingToShow = "NA";

std::string headOf(const screen::Label& label)
{
    std::string text = label.Caption();
    if (text.ends_with(':'))
        text.pop_back();
    return text;
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

void addHeads(const InjectionLabels& labels, Row& row)
{
    row.insert(row.end(), {headOf(labels.refLabel), headOf(labels.measLabel),
                           headOf(labels.driftLabel) + " ", headOf(labels.limitLabel), ""});
}

TextTable tableFor(const ctrl7DayResult& page)
{
    std::vector<Align> columns(2, Align::Left);
    columns.resize(13, Align::Right);
    TextTable table(std::move(columns));
    table.add({"", "", "", page.zero.frame.Caption(), "", "", "", "", page.span.frame.Caption(), "",
               "", "", ""});
    Row heads{"  Time", "Result", headOf(page.lblInstSpanLabel)};
    addHeads(page.zero, heads);
    addHeads(page.span, heads);
    table.add(std::move(heads));
    return table;
}

void addInjection(const InjectionLabels& labels, Row& row)
{
    const std::string& drift = labels.driftData.Caption();
    const bool isAbove = !drift.empty() && labels.driftData.ForeColor() == screen::color::kRed;
    row.insert(row.end(), {labels.refData.Caption(), labels.measData.Caption(),
                           drift + (isAbove ? kAboveLimit : " "), labels.limitData.Caption(),
                           labels.apsLabel.Caption()});
}

Row rowOf(ctrl7DayResult& page, const screen::TreeNode& node, const std::string& indent)
{
    page.tvwCalTimes.Press(node.Key);
    const bool isUsed = node.BackColor == screen::color::kWhite;
    Row row{(isUsed ? kUsed : " ") + std::string(" ") + indent + node.Text,
            legendOf(page, node.Image)};
    // An entry without a calibration of its own has no details, and its words may run on.
    if (page.lblCalTimeData.Caption().empty())
        return row;
    row.push_back(page.lblInstSpanData.Caption());
    addInjection(page.zero, row);
    addInjection(page.span, row);
    return row;
}

void printTree(ctrl7DayResult& page, std::ostream& out)
{
    TextTable table = tableFor(page);
    for (const auto& node : page.tvwCalTimes.Nodes()) {
        table.add(rowOf(page, *node, ""));
        for (const auto& child : node->Children)
            table.add(rowOf(page, *child, "  "));
    }
    table.print(out);
    out << "\n* used in the drift test   ! drift above its limit\n";
}

} // namespace

void printResults(ctrl7DayResult& page, std::ostream& out)
{
    out << page.lblAnalyzerLabel.Caption() << '\n';
    if (!page.lblSummary.Caption().empty())
        out << replaceAll(page.lblSummary.Caption(), "\r\n", "\n") << '\n';
    out << '\n';
    if (page.tvwCalTimes.Find(kNothingToShow) != nullptr)
        out << kNothingToShow << '\n';
    else
        printTree(page, out);
}

} // namespace k7deval::cli
