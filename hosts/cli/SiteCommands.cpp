#include "cli/Commands.h"
#include "cli/ConsoleHost.h"
#include "cli/ImportProgressLine.h"
#include "cli/OpenSite.h"
#include "cli/OperatorActions.h"
#include "cli/UsageError.h"
#include "foundation/FileFunctions.h"
#include "sevenday/ctrl7Day.h"
#include "sitedb/Import.h"
#include "sitedb/NewSite.h"
#include "sitedb/PlainText.h"
#include "sitedb/read/SourceFile.h"

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

void printReport(const std::string& file, const sitedb::ImportReport& report, std::ostream& out)
{
    out << sitedb::utf8Text(filePath(file).filename()) << " (" << report.format
        << "): " << listed(report.counts) << '\n';
    printLines(report.steppedOver, "  stepped over: ", out);
    printLines(report.leftOut, "  left out: ", out);
}

struct Capacity {
    std::string unit;
    double megawatts = 0;
};

/// The capacity that "UNIT=MW" stands for.
Capacity capacityOf(const std::string& text)
{
    const auto mark = text.rfind('=');
    if (mark != std::string::npos && mark > 0) {
        const auto megawatts = sitedb::plainNumber(text.substr(mark + 1));
        if (megawatts)
            return {text.substr(0, mark), *megawatts};
    }
    throw UsageError(inQuotes(text) + " is no capacity; write UNIT=MW, such as GT4=84.");
}

std::vector<Capacity> capacitiesOf(const std::vector<std::string>& texts)
{
    std::vector<Capacity> capacities;
    capacities.reserve(texts.size());
    for (const auto& text : texts)
        capacities.push_back(capacityOf(text));
    return capacities;
}

sitedb::ImportReport importWithProgress(sitedb::SiteDatabase& site, const std::string& file,
                                        sitedb::ImportOptions options, const Console& console)
{
    const auto path = filePath(file);
    ImportProgressLine line(sitedb::utf8Text(path.filename()), console);
    options.progress = [&line](const sitedb::ImportProgress& progress) {
        line.tell(progress);
        return true;
    };
    return sitedb::importFile(site, path, options);
}

void printAnalyzers(const ctrl7DaySetUp& page, std::ostream& out)
{
    for (const auto& analyzer : page.cmbAnalyzer.List())
        out << page.cmbUnit.Text() << '\t' << analyzer << '\n';
}

} // namespace

Status runImport(const ImportRequest& request, const Console& console)
{
    if (request.files.empty() && request.facility.empty() && request.capacities.empty())
        throw UsageError("There is nothing to import; name a file, the facility by --facility or a "
                         "capacity by --capacity.");
    const auto capacities = capacitiesOf(request.capacities);
    sitedb::NewSite newSite(filePath(request.site));
    auto site = openSite(request.site, sitedb::OpenMode::ReadWrite);
    sitedb::ImportOptions options;
    options.unit = request.unit;
    options.component = request.component;
    options.leaveOutUnreadable = request.leaveOutUnreadable;
    options.time = console.clock.now();
    for (const auto& file : request.files) {
        printReport(file, importWithProgress(site, file, options, console), console.out);
        newSite.keep();
    }
    for (const auto& capacity : capacities)
        site.setCapacity(capacity.unit, capacity.megawatts);
    if (!request.facility.empty())
        site.setFacilityName(request.facility);
    newSite.keep();
    return Status::Done;
}

Status runUnits(const std::string& site, const Console& console)
{
    const auto server = readSite(site);
    requireUnits(*server);
    for (const auto& unit : server->Units())
        console.out << unit->Name(0) << '\n';
    return Status::Done;
}

Status runAnalyzers(const std::string& site, const std::string& unit, const Console& console)
{
    const auto server = readSite(site);
    requireUnits(*server);
    const RegionalSettings regional;
    ConsoleServices services(console.notes);
    ctrl7Day control({services, console.clock, regional});
    const auto posted = std::make_shared<PostedLines>();
    control.Setup(posted, server);
    ctrl7DaySetUp& page = control.ctrl7DaySetUp1;
    // The setup page has the analyzers of the first unit already.
    posted->lines.clear();
    for (const auto& listedUnit : unit.empty() ? page.cmbUnit.List() : std::vector{unit}) {
        pickEntry(page.cmbUnit, listedUnit, "There is no unit " + inQuotes(listedUnit));
        printAnalyzers(page, console.out);
    }
    printLines(posted->lines, "", console.notes);
    return Status::Done;
}

} // namespace k7deval::cli
