#include "cli/Commands.h"
#include "cli/UsageError.h"
#include "foundation/Clock.h"
#include "foundation/FileFunctions.h"
#include "sevenday/ctrl7Day.h"
#include "sitedb/Import.h"
#include "sitedb/SiteDatabase.h"

#include "cli/ConsoleHost.h"

#include <ostream>

namespace k7deval::cli
{

namespace
{

void printLines(const std::vector<std::string>& lines, const char* indent, std::ostream& out)
{
    for (const auto& line : lines)
        out << indent << line << '\n';
}

void printReport(const std::string& file, const sitedb::ImportReport& report, const Output& output)
{
    std::string counts;
    for (const auto& count : report.counts)
        counts += (counts.empty() ? "" : ", ") + count;
    output.out << filePath(file).filename().string() << " (" << report.format << "): " << counts
               << '\n';
    printLines(report.steppedOver, "  stepped over: ", output.out);
    printLines(report.leftOut, "  left out: ", output.out);
}

} // namespace

Status runImport(const ImportRequest& request, const Output& output)
{
    auto site = sitedb::SiteDatabase::open(filePath(request.site), sitedb::OpenMode::ReadWrite);
    if (!request.facility.empty())
        site.setFacilityName(request.facility);
    sitedb::ImportOptions options;
    options.unit = request.unit;
    options.leaveOutUnreadable = request.leaveOutUnreadable;
    options.time = SystemClock().now();
    for (const auto& file : request.files)
        printReport(file, sitedb::importFile(site, filePath(file), options), output);
    return Status::Done;
}

Status runUnits(const std::string& site, const Output& output)
{
    const auto server =
        sitedb::SiteDatabase::open(filePath(site), sitedb::OpenMode::ReadOnly).server();
    for (const auto& unit : server->Units())
        output.out << unit->Name(0) << '\n';
    return Status::Done;
}

Status runAnalyzers(const std::string& site, const std::string& unit, const Output& output)
{
    const auto server =
        sitedb::SiteDatabase::open(filePath(site), sitedb::OpenMode::ReadOnly).server();
    const SystemClock clock;
    const RegionalSettings regional;
    ConsoleServices services(output.notes);
    ctrl7Day control({services, clock, regional});
    if (server->Units().empty())
        return Status::Done;
    control.Setup(nullptr, server);
    screen::ComboBox& units = control.ctrl7DaySetUp1.cmbUnit;
    const screen::ComboBox& analyzers = control.ctrl7DaySetUp1.cmbAnalyzer;
    bool found = unit.empty();
    for (std::int32_t i = 0; i < units.ListCount(); ++i) {
        units.Pick(i);
        if (!unit.empty() && units.Text() != unit)
            continue;
        found = true;
        for (const auto& analyzer : analyzers.List())
            output.out << units.Text() << '\t' << analyzer << '\n';
    }
    if (!found)
        throw UsageError("There is no unit \"" + unit + "\" in the site.");
    return Status::Done;
}

} // namespace k7deval::cli
