#include "cli/HistogramText.h"

#include "cli/TextTable.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <ostream>
#include <string>

namespace k7deval::cli
{

namespace
{

constexpr float kBarCharacters = 40;

std::string captioned(const std::string& caption, const std::string& text)
{
    return caption + " " + text;
}

/// The row of a level: where it begins and ends, its percent as the screen shows it, its hours.
struct Level {
    const screen::Label* from;
    const screen::Label* to;
    const screen::Label* percent;
    std::int32_t hours;
};

void printLevels(const std::array<Level, 3>& levels, std::ostream& out)
{
    TextTable table({Align::Right, Align::Right, Align::Right, Align::Left});
    for (const Level& level : levels)
        table.add({level.from->Caption() + " to", level.to->Caption(),
                   std::to_string(level.hours) + " hours", level.percent->Caption()});
    table.print(out);
    out << '\n';
}

/// A bar as long as the screen's is high; one that is seen there is seen here.
std::string barText(const histogram::HistogramTool& tool, int number)
{
    const screen::Line& scale = tool.linMin;
    const float share = tool.lblBar[number].place().Height / (scale.Y2() - scale.Y1());
    std::string bar(static_cast<std::size_t>(std::ceil(share * kBarCharacters)), '#');
    return bar;
}

/// The bars with hours; nothing while they are flat.
void printBars(const histogram::HistogramTool& tool, std::ostream& out)
{
    if (tool.lblBar.texts(1) == histogram::BarTexts{})
        return;
    TextTable table({Align::Right, Align::Right, Align::Right, Align::Right, Align::Left});
    table.add({"From", "To", "Hours", "Percent", ""});
    for (int bar = 1; bar <= histogram::kBinCount; ++bar) {
        const histogram::BarTexts& texts = tool.lblBar.texts(bar);
        table.add({texts.from, texts.to, texts.hours, texts.percent, barText(tool, bar)});
    }
    table.print(out);
    out << '\n';
}

void printParameter(const histogram::HistogramTool& tool, std::ostream& out)
{
    if (tool.chkShowPID.isChecked())
        out << captioned(tool.lblParameter.Caption(), tool.cmbParam.Text()) << '\n';
}

std::string quarterText(const screen::ComboBox& cmbYear, const screen::ComboBox& cmbQTR)
{
    return cmbYear.Text() + " " + cmbQTR.Text();
}

std::string periodText(const ctrlMaxMW& tool)
{
    if (tool.optTimeEnd.isSelected())
        return captioned(tool.optTimeEnd.Caption(), quarterText(tool.cmbYear, tool.cmbQTR));
    return captioned(tool.optTimeSelect.Caption(),
                     tool.txtFrom.Text() + " " +
                         captioned(tool.lblTo.Caption(), tool.txtTo.Text()));
}

std::string limitText(const screen::CheckBox& box, const screen::TextBox& field)
{
    return captioned(box.Caption(), box.isChecked() ? field.Text() : "none");
}

} // namespace

void printScreen(const ctrlMaxMW& tool, std::ostream& out)
{
    const LoadEvaluation& evaluation = tool.evaluation();
    out << tool.lblHeader.Caption() << '\n';
    printParameter(tool, out);
    out << captioned(tool.lblMinSafeValue.Caption(), tool.txtMinSafe.Text()) << '\n'
        << captioned(tool.lblCapacity.Caption(), tool.txtCapacity.Text()) << '\n'
        << periodText(tool) << "\n\n";
    printLevels({{{&tool.lblMinSafe, &tool.lblLow, &tool.lblLowOpPercent, evaluation.LowHours},
                  {&tool.lblLow, &tool.lblMid, &tool.lblMidOpPercent, evaluation.MidHours},
                  {&tool.lblMid, &tool.lblMax, &tool.lblHighOpPercent, evaluation.HighHours}}},
                out);
    printBars(tool, out);
    out << tool.lblBelow.Caption() << '\n' << tool.lblAbove.Caption() << '\n';
}

void printScreen(const ctrlRangeEval& tool, std::ostream& out)
{
    const RangeEvaluation& evaluation = tool.evaluation();
    out << captioned(tool.lblHeader.Caption(), tool.cmbScale.Text()) << '\n';
    printParameter(tool, out);
    out << captioned(tool.lblRange.Caption(), tool.txtRange.Text()) << '\n'
        << limitText(tool.chkMEC, tool.txtMEC) << '\n'
        << limitText(tool.chkMPC, tool.txtMPC) << '\n'
        << captioned(tool.lblQuarter.Caption(), quarterText(tool.cmbYear, tool.cmbQTR)) << "\n\n";
    printLevels({{{&tool.lblMinSafe, &tool.lblLow, &tool.lblLowOpPercent, evaluation.LowHours},
                  {&tool.lblLow, &tool.lblMid, &tool.lblMidOpPercent, evaluation.MidHours},
                  {&tool.lblMid, &tool.lblMax, &tool.lblHighOpPercent, evaluation.HighHours}}},
                out);
    printBars(tool, out);
    for (const auto* line : {&tool.lblAboveMEC, &tool.lblAboveMPC, &tool.lblOverRange,
                             &tool.lblReplaced, &tool.lblInvalid})
        out << line->Caption() << '\n';
}

} // namespace k7deval::cli
