#include "cli/HistogramCommand.h"
#include "cli/HistogramText.h"
#include "cli/OperatorActions.h"
#include "load/ctrlMaxMW.h"

namespace k7deval::cli
{

namespace
{

class LoadCommand final : public HistogramCommand
{
public:
    LoadCommand(const LoadRequest& request, const Console& console)
        : HistogramCommand(request, console), request_(request), tool_(surroundings())
    {
    }

private:
    histogram::HistogramTool& tool() override { return tool_; }

    void fillSetUp() override
    {
        pickParameter();
        typeNumber(tool_.txtMinSafe, request_.minimum, "minimum", regional());
        typeNumber(tool_.txtCapacity, request_.capacity, "capacity", regional());
        fillPeriod();
    }

    void fillPeriod()
    {
        if (request_.from.empty() && request_.to.empty())
            return pickQuarter(tool_.cmbYear, tool_.cmbQTR, request_.year, request_.quarter);
        if (!request_.year.empty() || !request_.quarter.empty())
            throw UsageError("--from and --to stand in place of --quarter and --year; they can't "
                             "be given together.");
        tool_.optTimeSelect.Press();
        typeDate(tool_.txtFrom, request_.from, regional(), clock());
        typeDate(tool_.txtTo, request_.to, regional(), clock());
    }

    // An evaluation over no range ends quietly.
    [[nodiscard]] std::string failure() const override
    {
        if (!tool_.NeedsEvaluation())
            return {};
        return "There is no result because the minimum and the capacity are both " +
               tool_.txtCapacity.Text() + "; see --minimum and --capacity.";
    }

    void printText(std::ostream& out) const override { printScreen(tool_, out); }

    const LoadRequest& request_;
    ctrlMaxMW tool_;
};

} // namespace

Status runLoad(const LoadRequest& request, const Console& console)
{
    return LoadCommand(request, console).run();
}

} // namespace k7deval::cli
