#include "cli/HistogramCommand.h"
#include "cli/HistogramText.h"
#include "cli/OpenSite.h"
#include "cli/OperatorActions.h"
#include "range/ctrlRangeEval.h"

#include <ostream>

namespace k7deval::cli
{

namespace
{

constexpr const char* kNoLimit = "none";

void requireAnalyzers(const ctrlRangeEval& tool)
{
    if (tool.cmbUnit.listCount() == 0)
        throw UsageError("The site " + tool.DIServer()->SiteKey() +
                         " has no analyzer with a range to evaluate; import its spans or its "
                         "monitoring plan first.");
}

class RangeCommand final : public HistogramCommand
{
public:
    RangeCommand(const RangeRequest& request, const Console& console)
        : HistogramCommand(request, console), request_(request), tool_(surroundings())
    {
    }

private:
    histogram::HistogramTool& tool() override { return tool_; }

    void fillSetUp() override
    {
        requireAnalyzers(tool_);
        pickParameter();
        if (!request_.scale.empty())
            pickEntry(tool_.cmbScale, request_.scale,
                      tool_.cmbUnit.Text() + " " + tool_.cmbParam.Text() + " has no scale " +
                          inQuotes(request_.scale));
        typeNumber(tool_.txtRange, request_.range, "range", regional());
        fillLimit(tool_.chkMEC, tool_.txtMEC, request_.mec, "maximum expected concentration");
        fillLimit(tool_.chkMPC, tool_.txtMPC, request_.mpc, "maximum potential concentration");
        pickQuarter(tool_.cmbYear, tool_.cmbQTR, request_.year, request_.quarter);
    }

    void fillLimit(screen::CheckBox& box, screen::TextBox& field, const std::string& limit,
                   const std::string& what) const
    {
        if (limit.empty())
            return;
        choose(box, limit != kNoLimit);
        if (limit != kNoLimit)
            typeNumber(field, limit, what, regional());
    }

    [[nodiscard]] std::string causeOf(const Error& error) const override
    {
        if (tool_.evaluation().RangeValue == 0)
            return "because the range is 0";
        return error.number() == errors::kSubscript ? "because a value lies too far below 0" : "";
    }

    void printText(std::ostream& out) const override { printScreen(tool_, out); }

    const RangeRequest& request_;
    ctrlRangeEval tool_;
};

/// A line for each scale of each parameter of the unit that is picked.
void printRanges(ctrlRangeEval& tool, std::ostream& out)
{
    for (std::int32_t parameter = 0; parameter < tool.cmbParam.listCount(); ++parameter) {
        tool.cmbParam.Pick(parameter);
        for (std::int32_t scale = 0; scale < tool.cmbScale.listCount(); ++scale) {
            tool.cmbScale.Pick(scale);
            out << tool.cmbUnit.Text() << '\t' << tool.cmbParam.Text() << '\t'
                << tool.cmbScale.Text() << '\t' << tool.txtRange.Text() << '\n';
        }
    }
}

} // namespace

Status runRange(const RangeRequest& request, const Console& console)
{
    return RangeCommand(request, console).run();
}

Status runRanges(const std::string& site, const std::string& unit, const Console& console)
{
    const auto server = readSite(site);
    requireUnits(*server);
    const RegionalSettings regional;
    ConsoleServices services(console.notes);
    ctrlRangeEval tool({services, console.clock, regional});
    tool.SetDIServer(server);
    requireAnalyzers(tool);
    for (const auto& listedUnit : unit.empty() ? tool.cmbUnit.List() : std::vector{unit}) {
        pickEntry(tool.cmbUnit, listedUnit, "There is no unit " + inQuotes(listedUnit));
        printRanges(tool, console.out);
    }
    return Status::Done;
}

} // namespace k7deval::cli
