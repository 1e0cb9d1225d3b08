#include "cli/CommandRun.h"
#include "cli/SampleSites.h"
#include "foundation/NumberText.h"
#include "support/RunTool.h"

#include <gtest/gtest.h>

#include <sstream>

/// The report lists what the screen lists.
namespace k7deval::cli::test
{

namespace
{

using Words = std::vector<std::string>;

Words wordsOf(const std::string& line)
{
    Words words;
    std::istringstream stream(line);
    for (std::string word; stream >> word;)
        words.push_back(word);
    return words;
}

/// The words of each line that holds any.
std::vector<Words> linesOf(const std::string& text)
{
    std::vector<Words> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        if (Words words = wordsOf(line); !words.empty())
            lines.push_back(std::move(words));
    }
    return lines;
}

/// What the report makes of a line of the screen's table: no marks and no verdict, figures with the
/// analyzer's decimals, the status at the end.
Words reported(const Words& shown)
{
    constexpr std::size_t kSpan = 2; // behind date and time
    Words words;
    std::string status;
    for (std::string word : shown) {
        if (word == "*" || word == "APS" || word == "Pass" || word == "Fail")
            continue;
        if (word.ends_with("-Line")) {
            status = word;
            continue;
        }
        if (word.ends_with('!'))
            word.pop_back();
        const RegionalSettings regional;
        words.push_back(words.size() <= kSpan
                            ? word
                            : FormatNumber(toDouble(word, regional), "0.00", regional));
    }
    words.push_back(status);
    return words;
}

TEST(Report, ListsWhatTheScreenLists)
{
    const k7deval::test::TemporaryFolder folder;
    const std::string pdf = folder.file("report.pdf");
    const CommandRun drift =
        run({"drift", "--site", fullSite(), "--unit", "GT4", "--analyzer", "NOX 206/H", "--from",
             "2018-05-04", "--to", "2018-06-18", "--pdf", pdf});
    ASSERT_EQ(drift.status, 0) << drift.notes;

    // Analyzer, two lines of outcome, two lines of heads, seven calibrations, what the marks mean.
    const auto screen = linesOf(drift.out);
    ASSERT_EQ(screen.size(), 13U);
    std::vector<Words> expected{
        {"Bethpage", "Energy", "Center"},
        {"7-Day", "Drift", "Test"},
        screen[0],
        wordsOf("Instrument Zero Zero Zero Zero Span Span Span Span"),
        wordsOf("Time Span Reference Measured Drift Drift Limit Reference Measured Drift Drift "
                "Limit Status"),
    };
    for (std::size_t row = 5; row < 12; ++row)
        expected.push_back(reported(screen[row]));
    expected.push_back(screen[1]);
    expected.push_back(screen[2]);
    expected.push_back(wordsOf("7-Day Drift Summary 5/20/2021 12:00 PM"));
    EXPECT_EQ(linesOf(k7deval::test::runTool({"pdftotext", "-layout", pdf, "-"})), expected);
}

} // namespace

} // namespace k7deval::cli::test
