#include "cli/HistogramCommand.h"

#include "cli/OpenSite.h"
#include "cli/OperatorActions.h"
#include "cli/Region.h"
#include "cli/Saving.h"
#include "cli/ScreenJson.h"
#include "foundation/FileFunctions.h"

#include <memory>
#include <ostream>
#include <system_error>

namespace k7deval::cli
{

namespace
{

/// The tools say nothing of a new file that can't be written.
std::string reasonNotTold(const std::string& path)
{
    std::error_code ignored;
    const auto folder = filePath(path).parent_path();
    const bool hasFolder = folder.empty() || std::filesystem::is_directory(folder, ignored);
    return hasFolder ? "" : " because its folder is not there";
}

} // namespace

HistogramCommand::HistogramCommand(const HistogramRequest& request, const Console& console)
    : request_(request), console_(console), regional_(settingsOf(request.region)),
      services_(console.notes)
{
}

Status HistogramCommand::run()
{
    const std::shared_ptr<DIServer> server = readSite(request_.site);
    checkTarget("--pdf", request_.pdf, request_.site);
    requireUnits(*server);
    tool().SetDIServer(server);
    fillSetUp();
    calculate();
    print();
    if (const std::string sentence = failure(); !sentence.empty())
        throw UsageError(sentence);
    savePdf();
    return Status::Done;
}

void HistogramCommand::pickParameter()
{
    histogram::HistogramTool& screen = tool();
    if (!request_.unit.empty())
        pickEntry(screen.cmbUnit, request_.unit, "There is no unit " + inQuotes(request_.unit));
    const std::string unit = "Unit " + screen.cmbUnit.Text();
    if (screen.cmbParam.listCount() == 0)
        throw UsageError(unit + " has no parameter with hourly values.");
    if (!request_.parameter.empty())
        pickEntry(screen.cmbParam, request_.parameter,
                  unit + " has no parameter " + inQuotes(request_.parameter));
    if (request_.showPid)
        choose(screen.chkShowPID, true);
}

void HistogramCommand::calculate()
{
    try {
        tool().cmdCalculate.Press();
    } catch (const Error& error) {
        const std::string cause = causeOf(error);
        if (cause.empty())
            throw;
        throw UsageError("There is no result " + cause + " (error " +
                         std::to_string(error.number()) + ", " + error.description() + ").");
    }
    for (const auto& line : services_.told)
        console_.notes << line << '\n';
}

void HistogramCommand::print()
{
    if (request_.json)
        printJson(documentOf(tool(), tool().results(), services_.told), console_.out);
    else
        printText(console_.out);
}

void HistogramCommand::savePdf()
{
    const std::string& path = request_.pdf;
    if (path.empty())
        return;
    const std::string told =
        pressSave(tool().cmdSave, tool().chkPreview, services_, {path, kPdfEntry});
    if (!told.empty())
        throw UsageError(path + " could not be written (" + told + ").");
    if (!fileExists(path))
        throw UsageError(path + " could not be written" + reasonNotTold(path) + ".");
}

} // namespace k7deval::cli
