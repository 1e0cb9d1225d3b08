#include "cli/Commands.h"
#include "cli/DriftSession.h"
#include "cli/ScreenJson.h"
#include "cli/ScreenText.h"
#include "cli/UsageError.h"
#include "foundation/FileFunctions.h"
#include "sitedb/SiteDatabase.h"

#include <ostream>

namespace k7deval::cli
{

namespace
{

void printPostedLines(const DriftSession& session, std::ostream& notes)
{
    for (const auto& line : session.postedLines())
        notes << line << '\n';
}

void printScreen(DriftSession& session, bool json, std::ostream& out)
{
    ctrl7Day& control = session.control();
    if (json) {
        nlohmann::ordered_json document;
        document["Screen"] = toJson(control.Properties());
        document["Test"] = toJson(control.Test());
        out << document.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace)
            << '\n';
    } else if (control.ctrl7DayResult1.Visible()) {
        printResults(control.ctrl7DayResult1, out);
    }
}

} // namespace

Status runDrift(const DriftRequest& request, const Output& output)
{
    const auto server =
        sitedb::SiteDatabase::open(filePath(request.site), sitedb::OpenMode::ReadOnly).server();
    const SystemClock clock;
    const RegionalSettings regional = regionalSettings(request.region);
    DriftSession session(server, clock, regional, output.notes);
    session.fillSetUp(request.options);
    const bool evaluated = session.evaluate();
    printPostedLines(session, output.notes);
    printScreen(session, request.json, output.out);
    if (!evaluated)
        return Status::BadInput;
    if (!request.pdf.empty())
        session.savePdf(request.pdf);
    if (!request.xml.empty())
        session.saveXml(request.xml);
    return request.check && !session.control().Test().isPassed() ? Status::NotPassed : Status::Done;
}

} // namespace k7deval::cli
