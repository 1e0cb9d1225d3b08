#include "cli/CommandRun.h"
#include "cli/EcmpsFile.h"
#include "cli/SampleSites.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <map>
#include <utility>

/// The calibration errors and APS indicators of our exports beside EPA's own, injection by
/// injection, for every test of the sample; docs/recalculation.md tells the whole story.
namespace k7deval::cli::test
{

namespace
{

using k7deval::test::TemporaryFolder;
using nlohmann::json;

/// Which figure of which pair of injections: "GT2 7DAY-Q42015-213-1 2015-11-09 8:55
/// ZeroCalibrationError".
using Figures = std::map<std::string, std::string>;

struct ExportCase {
    std::string test; ///< Unit and test number.
    std::string analyzer;
    std::string from;
    std::string to;
    Arguments options; ///< Beside the analyzer's own specification.
};

/// Only calibrations that count in a test are exported. So each test is exported as it was made,
/// and what stays out of that by one more export.
const std::vector<ExportCase>& exports()
{
    const Arguments anySpan{"--specification", "other-span", "--limit", "1000000"};
    const Arguments anyValue{"--specification", "other-absolute", "--limit", "1000000"};
    static const std::vector<ExportCase> cases{
        {"GT1 7DAY-Q22015-012-1", "NOX 012/H", "2015-05-20", "2015-05-30", {}},
        {"GT1 7DAY-Q22015-013-3", "NOX 013/H", "2015-05-20", "2015-05-30", {}},
        {"GT1 7DAY-Q22015-031-2", "CO2 031/H", "2015-05-20", "2015-05-30", {}},
        {"GT1 7DAY-Q22015-032-2", "CO2 032/H", "2015-05-20", "2015-05-30", {}},
        {"GT2 7DAY-Q22015-012-3", "NOX 012/H", "2015-05-20", "2015-05-26", {}},
        {"GT2 7DAY-Q22015-013-4", "NOX 013/H", "2015-05-20", "2015-05-26", {}},
        // Behind the day without a value, which leaves an interval without a result.
        {"GT2 7DAY-Q22015-031-4", "CO2 031/H", "2015-05-21", "2015-05-26", {}},
        {"GT2 7DAY-Q22015-032-4", "CO2 032/H", "2015-05-20", "2015-05-26", {}},
        // The first day counts with no specification of its own.
        {"GT2 7DAY-Q22015-032-4", "CO2 032/H", "2015-05-20", "2015-05-26", anyValue},
        {"GT2 7DAY-Q42015-013-1", "NOX 013/H", "2015-11-10", "2015-11-15", {}},
        {"GT2 7DAY-Q42015-032-2", "CO2 032/H", "2015-11-10", "2015-11-15", {}},
        {"GT2 7DAY-Q42015-213-1", "NOX 213/H", "2015-11-09", "2015-11-15", {}},
        {"GT2 7DAY-Q42015-232-2", "CO2 232/H", "2015-11-09", "2015-11-15", {}},
        // Up to the day without a calibration.
        {"GT3 21Q2-NOXH-7DAY", "NOX 310/H", "2021-05-03", "2021-05-08", {}},
        {"GT3 21Q2-NOXL-7DAY", "NOX 310/L", "2021-05-03", "2021-05-09", {}},
        {"GT3 21Q2-O2-7DAY", "O2 320/H", "2021-05-03", "2021-05-09", {}},
        {"GT3 7DAY-Q12018-105-1", "O2 105/H", "2018-02-08", "2018-02-14", {}},
        {"GT4 7DAY-Q22018-206-1", "NOX 206/H", "2018-05-04", "2018-06-18", {}},
        {"GT4 7DAY-Q22018-206-1", "NOX 206/H", "2018-05-04", "2018-06-18", anySpan},
        {"GT4 7DAY-Q32020-207-13", "NOX 207/H", "2020-06-25", "2020-07-03", {}},
        {"GT4 7DAY-Q32020-207-13", "NOX 207/H", "2020-06-25", "2020-07-03", anySpan},
        {"GT4 7DAY-Q32020-208-5", "O2 208/H", "2020-06-25", "2020-07-03", {}},
        // The day of two calibrations by itself: of the two the last one counts; but a failed day
        // is allowed with its first one.
        {"GT4 7DAY-Q32020-208-5", "O2 208/H", "2020-06-25", "2020-06-25", {}},
        {"GT4 7DAY-Q32020-208-5",
         "O2 208/H",
         "2020-06-25",
         "2020-06-25",
         {"--specification", "other-absolute", "--limit", "0", "--six-of-seven"}},
    };
    return cases;
}

/// A pair of injections that no export can hold.
struct Unexportable {
    std::string pair;
    std::string reason;
};

const std::vector<Unexportable>& unexportable()
{
    static const std::vector<Unexportable> list{
        {"GT1 7DAY-Q22015-013-3 2015-05-20 24:20", "EPA set the hour of the zero injection to 24"},
        {"GT2 7DAY-Q22015-031-4 2015-05-20 7:44", "EPA took the upscale measured value out"},
        {"GT2 7DAY-Q42015-013-1 2015-11-09 8:55", "EPA took the zero measured value out"},
        {"GT2 7DAY-Q42015-032-2 2015-11-09 8:55", "EPA took the upscale reference value out"},
    };
    return list;
}

struct Difference {
    std::string figure;
    std::string epa;
    std::string ours;
    std::string reason;
};

const std::vector<Difference>& explainedDifferences()
{
    static const std::vector<Difference> list{
        {"GT1 7DAY-Q22015-032-2 2015-05-20 7:20 ZeroCalibrationError", "none", "0.0",
         "EPA took the error out; |0.0 - 0.0|"},
        {"GT2 7DAY-Q22015-012-3 2015-05-20 7:44 UpscaleCalibrationError", "-1.0", "2.4",
         "EPA set the error to -1; 100 x |72.8 - 70.9| / 80 = 2.375"},
        {"GT2 7DAY-Q22015-032-4 2015-05-20 7:44 ZeroCalibrationError", "0.0", "1.0",
         "EPA set the reference value to -1; |-1.0 - 0.0|"},
        {"GT2 7DAY-Q42015-213-1 2015-11-09 8:55 ZeroCalibrationError", "1.0", "0.0",
         "EPA set the error to 1; 100 x |0.0 - 0.0| / 80"},
        {"GT2 7DAY-Q42015-232-2 2015-11-09 8:55 UpscaleAPSIndicator", "1", "0",
         "EPA set the indicator; CO2 has no alternative specification"},
        {"GT4 7DAY-Q22018-206-1 2018-05-04 7:17 ZeroCalibrationError", "0.3", "88.3",
         "EPA set the reference value to 220; 100 x |220.0 + 0.79| / 250 = 88.316"},
        {"GT4 7DAY-Q22018-206-1 2018-06-01 4:45 ZeroCalibrationError", "0.4", "0.3",
         "not altered: 100 x |0.0 + 0.87| / 250 = 0.348, which the plant seems to have rounded "
         "twice, to 0.35 and then to 0.4"},
        {"GT4 7DAY-Q32020-207-13 2020-06-25 10:17 UpscaleCalibrationError", "0.1", "16.3",
         "EPA set the reference value to 260; 100 x |260.0 - 219.34| / 250 = 16.264"},
    };
    return list;
}

/// EPA's rule on the decimals of the file, with whole numbers alone: values in hundredths, the span
/// a whole number, the result in tenths, halves up.
int tenthsByEpasRule(const json& reference, const json& measured, int span, bool inUnits)
{
    const auto hundredths = [](const json& value) {
        return static_cast<int>(std::lround(value.get<double>() * 100));
    };
    const int difference = std::abs(hundredths(reference) - hundredths(measured));
    return inUnits ? (difference + 5) / 10 : (20 * difference + span) / (2 * span);
}

std::string oneDecimal(int tenths)
{
    return std::to_string(tenths / 10) + "." + std::to_string(tenths % 10);
}

std::string oneDecimal(const json& value)
{
    if (value.is_null())
        return "none";
    // All figures of the file have at most one decimal where errors stand.
    std::string text = value.dump();
    if (text.find('.') == std::string::npos)
        text += ".0";
    return text;
}

std::string timeOf(const json& row, const std::string& gas)
{
    return row.at(gas + "InjectionDate").get<std::string>() + " " +
           std::to_string(row.at(gas + "InjectionHour").get<int>()) + ":" +
           std::to_string(row.at(gas + "InjectionMinute").get<int>());
}

/// Visits each pair of injections of EPA's file with its name in Figures.
template <class Visit> void forEachPair(Visit visit)
{
    std::ifstream file(sampleFile("ecmps_qa_50292.json"));
    const json document = json::parse(file);
    for (const auto& test : document.at("testSummaryData")) {
        const std::string name =
            test.at("unitId").get<std::string>() + " " + test.at("testNumber").get<std::string>();
        for (const auto& row : test.at("calibrationInjectionData"))
            visit(name, name + " " + timeOf(row, "zero") + " ", row);
    }
}

Figures figuresOfEpa()
{
    Figures figures;
    forEachPair([&](const std::string& /*test*/, const std::string& pair, const json& row) {
        figures[pair + "ZeroCalibrationError"] = oneDecimal(row.at("zeroCalibrationError"));
        figures[pair + "UpscaleCalibrationError"] = oneDecimal(row.at("upscaleCalibrationError"));
        figures[pair + "ZeroAPSIndicator"] = row.at("zeroAPSIndicator").dump();
        figures[pair + "UpscaleAPSIndicator"] = row.at("upscaleAPSIndicator").dump();
    });
    return figures;
}

Figures figuresOf(const ExportCase& row)
{
    const TemporaryFolder folder;
    const std::string xml = folder.file("test.xml");
    const CommandRun drift =
        run(Arguments{"drift", "--site", fullSite(), "--unit", row.test.substr(0, 3), "--analyzer",
                      row.analyzer, "--from", row.from, "--to", row.to, "--show", "interval",
                      "--xml", xml} +
            row.options);
    EXPECT_EQ(drift.status, 0) << drift.notes;
    Figures figures;
    for (const auto& injections : readExport(xml).rows) {
        const std::string pair = row.test + " " + injections.zeroTime + " ";
        figures[pair + "ZeroCalibrationError"] = injections.zero.error;
        figures[pair + "UpscaleCalibrationError"] = injections.upscale.error;
        figures[pair + "ZeroAPSIndicator"] = injections.zero.aps;
        figures[pair + "UpscaleAPSIndicator"] = injections.upscale.aps;
    }
    return figures;
}

/// All that our exports hold.
Figures figuresOfExports()
{
    Figures all;
    for (const auto& row : exports()) {
        SCOPED_TRACE(row.test + " from " + row.from);
        for (const auto& [figure, content] : figuresOf(row)) {
            // A pair in several exports is the same in each.
            EXPECT_EQ(all.emplace(figure, content).first->second, content) << figure;
        }
    }
    return all;
}

/// The difference that is known of a figure, or nothing.
const Difference* differenceOf(const std::string& figure)
{
    for (const auto& difference : explainedDifferences()) {
        if (difference.figure == figure)
            return &difference;
    }
    return nullptr;
}

bool cannotBeExported(const std::string& figure)
{
    return std::any_of(unexportable().begin(), unexportable().end(),
                       [&](const Unexportable& row) { return figure.starts_with(row.pair + " "); });
}

TEST(Recalculation, EqualsEpasFiguresButForWhatIsExplained)
{
    const Figures epa = figuresOfEpa();
    const Figures ours = figuresOfExports();
    for (const auto& [figure, content] : ours) {
        SCOPED_TRACE(figure);
        ASSERT_TRUE(epa.contains(figure));
        const Difference* known = differenceOf(figure);
        EXPECT_EQ(content, known == nullptr ? epa.at(figure) : known->ours);
        EXPECT_EQ(epa.at(figure), known == nullptr ? content : known->epa);
    }
    for (const auto& difference : explainedDifferences())
        EXPECT_TRUE(ours.contains(difference.figure)) << difference.figure;
}

// 132 pairs of injections in the file, four figures each.
TEST(Recalculation, ComparesAllThatCanBeExported)
{
    const Figures epa = figuresOfEpa();
    const Figures ours = figuresOfExports();
    EXPECT_EQ(epa.size(), 132U * 4U);
    EXPECT_EQ(ours.size(), 128U * 4U);
    for (const auto& [figure, content] : epa)
        EXPECT_NE(ours.contains(figure), cannotBeExported(figure)) << figure;
}

/// The span of a test's NOX analyzer, ppm, as spans.csv has it; 0 for CO2 and O2, which are held to
/// a difference in percent.
int noxSpan(const std::string& test)
{
    const auto row = std::find_if(exports().begin(), exports().end(),
                                  [&](const ExportCase& entry) { return entry.test == test; });
    if (!row->analyzer.starts_with("NOX"))
        return 0;
    const std::map<std::string, int> spans{{"GT1", 80}, {"GT2", 80}, {"GT4", 250}};
    if (test.starts_with("GT3"))
        return row->analyzer.ends_with("/L") ? 10 : 100;
    return spans.at(test.substr(0, 3));
}

// What the program computes in single precision and from drifts of four decimals is what the rule
// gives in exact decimals.
TEST(Recalculation, GivesTheErrorsOfEpasRule)
{
    const Figures ours = figuresOfExports();
    int compared = 0;
    forEachPair([&](const std::string& test, const std::string& pair, const json& row) {
        if (cannotBeExported(pair))
            return;
        const int span = noxSpan(test);
        for (const auto& [gas, prefix] : {std::pair{"zero", "Zero"}, {"upscale", "Upscale"}}) {
            const std::string figure = pair + prefix + "CalibrationError";
            const bool usesAPS = ours.at(pair + prefix + "APSIndicator") == "1";
            const int tenths = tenthsByEpasRule(row.at(gas + std::string("ReferenceValue")),
                                                row.at(gas + std::string("MeasuredValue")), span,
                                                span == 0 || usesAPS);
            EXPECT_EQ(ours.at(figure), oneDecimal(tenths)) << figure;
            ++compared;
        }
    });
    EXPECT_EQ(compared, 256);
}

} // namespace

} // namespace k7deval::cli::test
