#include "cli/Commands.h"
#include "cli/DriftSession.h"
#include "cli/OpenSite.h"
#include "cli/ReportedTests.h"
#include "cli/Texts.h"
#include "cli/UsageError.h"
#include "foundation/FileFunctions.h"

#include <algorithm>
#include <optional>
#include <ostream>
#include <sstream>
#include <system_error>

namespace k7deval::cli
{

namespace
{

constexpr std::size_t kVerdictWidth = 21; ///< "not passed: 6 counted"
constexpr std::size_t kMarksWidth = 41;   ///< Seven days and the blanks between them.

/// What a line says about a test.
struct Finding {
    std::string verdict;
    std::string markedDays = "none";
    std::string failure; ///< Why there is no verdict.
};

/// Prints the findings one by one, as wide as the tests of the table need.
class Lines
{
public:
    Lines(const std::vector<ReportedTest>& tests, std::ostream& out) : out_(out)
    {
        for (const auto& test : tests) {
            unitWidth_ = std::max(unitWidth_, characters(test.unit));
            analyzerWidth_ = std::max(analyzerWidth_, characters(test.analyzer));
            resultWidth_ = std::max(resultWidth_, characters(test.result));
        }
    }

    void print(const ReportedTest& test, const Finding& finding) const
    {
        out_ << padded(test.unit, unitWidth_) << "  " << padded(test.analyzer, analyzerWidth_)
             << "  " << test.from << " to " << test.to << "  "
             << padded(finding.verdict, kVerdictWidth)
             << "  marked: " << padded(finding.markedDays, kMarksWidth) << "  plant reported: ";
        if (finding.failure.empty())
            out_ << test.result << '\n';
        else
            out_ << padded(test.result, resultWidth_) << "  " << finding.failure << '\n';
    }

private:
    std::ostream& out_;
    std::size_t unitWidth_ = 0;
    std::size_t analyzerWidth_ = 0;
    std::size_t resultWidth_ = 0;
};

std::string markedDays(const DriftTest& test)
{
    std::string days;
    for (const auto& [key, day] : test.dictDays) {
        if (day->DayIsUsedIn7Day())
            days += (days.empty() ? "" : " ") + key.substr(5, 2) + "-" + key.substr(8, 2);
    }
    return days.empty() ? "none" : days;
}

Finding findingOf(const DriftTest& test)
{
    return {test.isPassed() ? "passed"
                            : "not passed: " + std::to_string(test.lngGoodCals) + " counted",
            markedDays(test),
            {}};
}

DriftOptions setUpFor(const ReportedTest& test)
{
    DriftOptions options;
    options.unit = test.unit;
    options.analyzer = test.analyzer;
    options.from = test.from;
    options.to = test.to;
    return options;
}

/// Evaluates a test. Why there is no verdict, or nothing when there is one.
std::string evaluate(DriftSession& session, const ReportedTest& test)
{
    try {
        session.fillSetUp(setUpFor(test));
        DriftOptions information;
        information.testNumber = test.testNumber;
        if (session.isUnder40CFR75())
            session.fillTestInformation(information);
    } catch (const UsageError& refusal) {
        return refusal.what();
    }
    session.evaluate();
    if (std::string failure = session.failure(); !failure.empty())
        return failure;
    return session.hasCalibrations() ? std::string()
                                     : session.control().ctrl7DayResult1.lblSummary.Caption();
}

void makeFolder(const std::string& path)
{
    std::error_code failure;
    std::filesystem::create_directories(filePath(path), failure);
    if (failure || !std::filesystem::is_directory(filePath(path), failure))
        throw UsageError("The folder " + path + " could not be made.");
}

} // namespace

Status runRound(const RoundRequest& request, const Console& console)
{
    const auto server = readSite(request.site);
    const auto tests = readReportedTests(request.tests);
    makeFolder(request.out);
    const Lines lines(tests, console.out);
    const RegionalSettings regional;
    for (const auto& test : tests) {
        // The round saves what it finds, passed or not: the questions about it are not told.
        std::ostringstream questions;
        DriftSession session(server, console.clock, regional, questions);
        const std::string failure = evaluate(session, test);
        if (!failure.empty()) {
            lines.print(test, {"no verdict", "none", failure});
            continue;
        }
        lines.print(test, findingOf(session.control().test()));
        const std::string stem = request.out + "/" + test.unit + "_" + test.testNumber;
        session.savePdf(stem + ".pdf");
        if (session.isUnder40CFR75())
            session.saveXml(stem + ".xml");
    }
    return Status::Done;
}

} // namespace k7deval::cli
