#include "cli/Commands.h"
#include "cli/DriftSession.h"
#include "cli/OpenSite.h"
#include "cli/Region.h"
#include "cli/Saving.h"
#include "cli/ScreenJson.h"
#include "cli/ScreenText.h"
#include "cli/UsageError.h"

#include <ostream>

namespace k7deval::cli
{

namespace
{

void checkTargets(const DriftRequest& request)
{
    checkTarget("--pdf", request.pdf, request.site);
    checkTarget("--xml", request.xml, request.site);
    if (!request.pdf.empty() && !request.xml.empty() && isSameFile(request.pdf, request.xml))
        throw UsageError("--pdf and --xml name the same file.");
}

PropertyList documentOfSession(const DriftSession& session)
{
    return documentOf(session.control(), {{"Test", {session.control().test().Properties()}}},
                      session.postedLines());
}

void printDrift(DriftSession& session, bool json, const Console& console)
{
    ctrl7DayResult& results = session.control().ctrl7DayResult1;
    if (json)
        printJson(documentOfSession(session), console.out);
    else if (results.Visible())
        printResults(results, console.out);
    for (const auto& line : session.postedLines())
        console.notes << line << '\n';
}

void save(DriftSession& session, const DriftRequest& request)
{
    if (!request.pdf.empty())
        session.savePdf(request.pdf);
    if (!request.xml.empty())
        session.saveXml(request.xml);
}

} // namespace

Status runDrift(const DriftRequest& request, const Console& console)
{
    const RegionalSettings regional = settingsOf(request.region);
    const auto server = readSite(request.site);
    checkTargets(request);
    DriftSession session(server, console.clock, regional, console.notes);
    session.fillSetUp(request.options);
    session.fillTestInformation(request.options);
    if (!request.xml.empty() && !session.isUnder40CFR75())
        throw UsageError(session.control().ctrl7DaySetUp1.AnalyzerInfoText() +
                         " is not under 40 CFR 75, so there is no ECMPS export of it.");
    session.evaluate();
    printDrift(session, request.json, console);
    if (const std::string failure = session.failure(); !failure.empty())
        throw UsageError(failure);
    save(session, request);
    return request.check && !session.control().test().isPassed() ? Status::NotPassed : Status::Done;
}

} // namespace k7deval::cli
