#include "cli/Commands.h"
#include "cli/DriftSession.h"
#include "cli/UsageError.h"
#include "foundation/FileFunctions.h"
#include "sitedb/CsvTable.h"
#include "sitedb/SiteDatabase.h"
#include "sitedb/SourceFile.h"

#include <iomanip>
#include <ostream>
#include <sstream>
#include <system_error>

namespace k7deval::cli
{

namespace
{

/// A test that a plant reported, as a table of tests has it.
struct ReportedTest {
    std::string unit;
    std::string analyzer;
    std::string testNumber;
    std::string from; ///< "yyyy-mm-dd"
    std::string to;
    std::string result;
};

constexpr std::size_t kDateLength = 10;

std::string scaleSuffix(const std::string& scale)
{
    return scale.empty() ? scale : "/" + scale;
}

std::vector<ReportedTest> readTests(const std::string& path)
{
    const auto file = sitedb::readSourceFile(filePath(path));
    const auto table = sitedb::CsvTable::parse(file);
    const auto text = [&](const sitedb::CsvRow& row, const char* column) {
        return row.fields[table.column(column)];
    };
    std::vector<ReportedTest> tests;
    for (const auto& row : table.rows()) {
        tests.push_back({text(row, "unit_id"),
                         text(row, "component_type") + " " + text(row, "component_id") +
                             scaleSuffix(text(row, "span_scale")),
                         text(row, "test_number"), text(row, "begin").substr(0, kDateLength),
                         text(row, "end").substr(0, kDateLength), text(row, "reported_result")});
    }
    return tests;
}

std::string markedDays(const DriftTest& test)
{
    std::string days;
    for (const auto& [key, day] : test.dictDays) {
        if (day->DayIsUsedIn7Day())
            days += (days.empty() ? "" : " ") + key.substr(5, 2) + "-" + key.substr(8, 2);
    }
    return days.empty() ? "none" : days;
}

std::string verdict(DriftSession& session, bool evaluated)
{
    if (!evaluated)
        return "no verdict (" + session.postedLines().front() + ")";
    const DriftTest& test = session.control().Test();
    if (test.isPassed())
        return "passed";
    return "not passed: " + std::to_string(test.lngGoodCals) + " counted";
}

void evaluate(const ReportedTest& reported, const std::shared_ptr<DIServer>& server,
              const std::string& folder, const Output& output)
{
    const SystemClock clock;
    const RegionalSettings regional;
    // The round saves what it finds, passed or not: the questions about it are not told.
    std::ostringstream questions;
    DriftSession session(server, clock, regional, questions);
    DriftOptions options;
    options.unit = reported.unit;
    options.analyzer = reported.analyzer;
    options.from = reported.from;
    options.to = reported.to;
    options.testNumber = reported.testNumber;
    session.fillSetUp(options);
    const bool evaluated = session.evaluate();
    output.out << std::left << std::setw(5) << reported.unit << std::setw(11) << reported.analyzer
               << reported.from << " to " << reported.to << "  " << std::setw(21)
               << verdict(session, evaluated) << "  marked: " << std::setw(41)
               << markedDays(session.control().Test()) << "  plant reported: " << reported.result
               << '\n';
    if (!evaluated)
        return;
    const std::string stem = folder + "/" + reported.unit + "_" + reported.testNumber;
    session.savePdf(stem + ".pdf");
    session.saveXml(stem + ".xml");
}

} // namespace

Status runRound(const RoundRequest& request, const Output& output)
{
    const auto server =
        sitedb::SiteDatabase::open(filePath(request.site), sitedb::OpenMode::ReadOnly).server();
    std::error_code code;
    std::filesystem::create_directories(filePath(request.out), code);
    if (code)
        throw UsageError("The folder " + request.out + " could not be made.");
    for (const auto& test : readTests(request.tests))
        evaluate(test, server, request.out, output);
    return Status::Done;
}

} // namespace k7deval::cli
