#include "cli/CommandRun.h"
#include "cli/EcmpsFile.h"
#include "cli/SampleSites.h"

#include <gtest/gtest.h>

#include <sstream>

/// The tests of a real plant, Bethpage Energy Center, evaluated by the program.
namespace k7deval::cli::test
{

namespace
{

using k7deval::test::TemporaryFolder;
using nlohmann::json;

std::vector<std::string> daysThat(const json& test, const std::string& property)
{
    std::vector<std::string> days;
    for (const auto& [key, day] : test.at("dictDays").items()) {
        if (day.at(property).get<bool>())
            days.push_back(key);
    }
    return days;
}

std::string firstLineOfOutcome(const json& document)
{
    const std::string text =
        document.at("/Screen/Widgets/ctrl7DayResult1/Widgets/lblSummary/Caption"_json_pointer);
    return text.substr(0, text.find("\r\n"));
}

Arguments drift(const std::string& unit, const std::string& analyzer, const std::string& from,
                const std::string& to)
{
    return {"--site", fullSite(), "--unit", unit,   "--analyzer",
            analyzer, "--from",   from,     "--to", to};
}

// A peaking unit: its seven consecutive operating days lie within 46 calendar days. The first of
// them was altered, so six are left.
TEST(Bethpage, FindsTheOperatingDaysOfAPeakingUnit)
{
    const json document = driftAsJson(drift("GT4", "NOX 206/H", "2018-05-04", "2018-06-18"));
    const json& test = document.at("Test");
    const std::vector<std::string> goodDays{"2018/05/16", "2018/05/25", "2018/05/30",
                                            "2018/06/01", "2018/06/17", "2018/06/18"};
    EXPECT_EQ(daysThat(test, "DayIsUsedIn7Day"), goodDays);
    std::vector<std::string> operatingDays = goodDays;
    operatingDays.insert(operatingDays.begin(), "2018/05/04");
    EXPECT_EQ(daysThat(test, "IsOpDay"), operatingDays);
    EXPECT_EQ(test.at("dictDays").size(), 46U);
    EXPECT_TRUE(daysThat(test, "OpStatusIsUndetermined").empty());
    EXPECT_EQ(test.at("lngGoodCals"), 6);
    EXPECT_EQ(firstLineOfOutcome(document), "Starting on 5/16/2018 there are 6 on-line cal(s) "
                                            "counted in the 7-Day Drift Test.");
}

TEST(Bethpage, PassesALowScaleOnSevenDaysInARow)
{
    const json document = driftAsJson(drift("GT3", "NOX 310/L", "2021-05-03", "2021-05-09"));
    EXPECT_EQ(firstLineOfOutcome(document), "The 7-Day Drift Test has been passed.");
    EXPECT_EQ(daysThat(document.at("Test"), "DayIsUsedIn7Day").size(), 7U);
}

TEST(Bethpage, PassesByTheAlternativeSpecificationAndOnlyByIt)
{
    const TemporaryFolder folder;
    const std::string xml = folder.file("test.xml");
    const Arguments test = drift("GT2", "NOX 213/H", "2015-11-09", "2015-11-15");
    const Arguments checked =
        Arguments{"drift", "--check", "--xml", xml, "--test-number", "7DAY-Q42015-213-1"} + test;
    EXPECT_EQ(run(checked).status, 0);
    EXPECT_EQ(readExport(xml).testResult, "PASSAPS");
    const CommandRun without = run(checked + Arguments{"--no-aps"});
    EXPECT_EQ(without.status, 1);
    EXPECT_EQ(readExport(xml).testResult, "FAILED");
    EXPECT_NE(without.out.find("there are 2 on-line cal(s) counted"), std::string::npos);
}

/// What becomes of a test of the sample, worked out from its figures with a few lines that know
/// nothing of the program: |R - A| against 2.5 % of the span (or 5 ppm) or 0.5 %, day by day, and
/// the days with load of GT3 and GT4. GT1 and GT2 have no hourly load, so there each day without a
/// calibration is passed over.
struct VerdictCase {
    std::string test;
    std::string verdict;
    std::string marked;
};

const std::vector<VerdictCase>& verdicts()
{
    static const std::vector<VerdictCase> cases{
        {"GT1 7DAY-Q22015-012-1", "passed", "05-20 05-25 05-26 05-27 05-28 05-29 05-30"},
        // The hour 24 of the first zero injection can't be read: a day without zero gas fails.
        {"GT1 7DAY-Q22015-013-3", "not passed: 6 counted", "05-25 05-26 05-27 05-28 05-29 05-30"},
        // The date of an upscale injection was altered; the run has the time of its zero injection.
        {"GT1 7DAY-Q22015-031-2", "passed", "05-20 05-25 05-26 05-27 05-28 05-29 05-30"},
        // Reported errors were altered, which the evaluation does not read: also the next one.
        {"GT1 7DAY-Q22015-032-2", "passed", "05-20 05-25 05-26 05-27 05-28 05-29 05-30"},
        {"GT2 7DAY-Q22015-012-3", "passed", "05-20 05-21 05-22 05-23 05-24 05-25 05-26"},
        // The gas level of the first upscale injection was taken out, not its values.
        {"GT2 7DAY-Q22015-013-4", "passed", "05-20 05-21 05-22 05-23 05-24 05-25 05-26"},
        // A measured value was taken out.
        {"GT2 7DAY-Q22015-031-4", "no verdict", "none"},
        // Day 1: zero gas -1.0, measured 0.0, drift 1.0 above 0.5.
        {"GT2 7DAY-Q22015-032-4", "not passed: 6 counted", "05-21 05-22 05-23 05-24 05-25 05-26"},
        // A measured value was taken out, and of the next one a reference value.
        {"GT2 7DAY-Q42015-013-1", "no verdict", "none"},
        {"GT2 7DAY-Q42015-032-2", "no verdict", "none"},
        // Day 5: 72.3 - 69.8 = 2.5 ppm, above 2.5 % of 80 ppm (2.0) and within 5 ppm.
        {"GT2 7DAY-Q42015-213-1", "passed", "11-09 11-10 11-11 11-12 11-13 11-14 11-15"},
        {"GT2 7DAY-Q42015-232-2", "passed", "11-09 11-10 11-11 11-12 11-13 11-14 11-15"},
        // The seventh pair of injections was taken out, and the unit operated on that day.
        {"GT3 21Q2-NOXH-7DAY", "not passed: 0 counted", "none"},
        {"GT3 21Q2-NOXL-7DAY", "passed", "05-03 05-04 05-05 05-06 05-07 05-08 05-09"},
        {"GT3 21Q2-O2-7DAY", "passed", "05-03 05-04 05-05 05-06 05-07 05-08 05-09"},
        {"GT3 7DAY-Q12018-105-1", "passed", "02-08 02-09 02-10 02-11 02-12 02-13 02-14"},
        // Day 1: zero gas 220.0, measured -0.79.
        {"GT4 7DAY-Q22018-206-1", "not passed: 6 counted", "05-16 05-25 05-30 06-01 06-17 06-18"},
        // Day 1: span gas 260.0, measured 219.34.
        {"GT4 7DAY-Q32020-207-13", "not passed: 6 counted", "06-26 06-27 06-30 07-01 07-02 07-03"},
        // The calibration of 06-26, an operating day, was moved to 06-25.
        {"GT4 7DAY-Q32020-208-5", "not passed: 5 counted", "06-27 06-30 07-01 07-02 07-03"},
    };
    return cases;
}

/// The text between two others.
std::string between(const std::string& text, const std::string& before, const std::string& after)
{
    const std::size_t begin = text.find(before) + before.size();
    const std::string rest = text.substr(begin, text.find(after, begin) - begin);
    const std::size_t first = rest.find_first_not_of(' ');
    return rest.substr(first, rest.find_last_not_of(' ') + 1 - first);
}

TEST(Bethpage, FindsTheVerdictOfEachTest)
{
    const TemporaryFolder folder;
    const CommandRun round = run({"round", "--site", fullSite(), "--tests", sampleFile("tests.csv"),
                                  "--out", folder.path().string()});
    EXPECT_EQ(round.notes, "");
    EXPECT_EQ(round.status, 0);
    std::istringstream lines(round.out);
    std::string line;
    for (const auto& expected : verdicts()) {
        SCOPED_TRACE(expected.test);
        ASSERT_TRUE(std::getline(lines, line));
        EXPECT_EQ(line.substr(0, 3), expected.test.substr(0, 3));
        EXPECT_EQ(between(line.substr(line.find(" to ") + 14), "", "marked:"), expected.verdict);
        EXPECT_EQ(between(line, "marked:", "plant reported:"), expected.marked);
        const std::string stem = expected.test.substr(0, 3) + "_" + expected.test.substr(4);
        EXPECT_EQ(std::filesystem::exists(folder.file(stem + ".pdf")),
                  expected.verdict != "no verdict");
    }
    EXPECT_FALSE(std::getline(lines, line));
}

} // namespace

} // namespace k7deval::cli::test
