#include "cli/ImportProgressLine.h"

#include "foundation/Date.h"

#include <gtest/gtest.h>

#include <sstream>

namespace k7deval::cli::test
{

namespace
{

/// A clock that is set by hand.
class SetClock final : public Clock
{
public:
    [[nodiscard]] Date now() const override { return time; }
    Date time = makeDate(2021, 5, 20, 12);
    void advance(std::int64_t seconds) { time = dateFromSeconds(wholeSeconds(time) + seconds); }
};

struct Notes {
    std::ostringstream out;
    std::ostringstream notes;
    SetClock clock;
    Console console{out, notes, clock};
};

constexpr std::int64_t kLarge = 300'000'000;

TEST(ImportProgressLine, OnATerminalRewritesOneLineAndTakesItAway)
{
    Notes held;
    held.console.notesAreTerminal = true;
    {
        ImportProgressLine line("e.json", held.console);
        line.tell({3'000'000, kLarge, 999});
        EXPECT_EQ(held.notes.str(), "\re.json: 1 % of 300 MB, 999 hours");
        line.tell({3'100'000, kLarge, 1'000});
        EXPECT_EQ(held.notes.str(), "\re.json: 1 % of 300 MB, 999 hours") << "the same percent";
        held.notes.str("");
        line.tell({9'000'000, kLarge, 1});
        EXPECT_EQ(held.notes.str(), "\re.json: 3 % of 300 MB, 1 hour   ");
        held.notes.str("");
    }
    EXPECT_EQ(held.notes.str(), "\r" + std::string(29, ' ') + "\r");
    EXPECT_EQ(held.out.str(), "");
}

TEST(ImportProgressLine, ElsewhereWritesALineEveryFiveSeconds)
{
    Notes held;
    {
        ImportProgressLine line("e.json", held.console);
        line.tell({3'000'000, kLarge, 10});
        held.clock.advance(4);
        line.tell({30'000'000, kLarge, 100});
        EXPECT_EQ(held.notes.str(), "");
        held.clock.advance(1);
        line.tell({60'000'000, kLarge, 200});
        line.tell({61'000'000, kLarge, 201});
        held.clock.advance(5);
        line.tell({kLarge, kLarge, 300});
    }
    EXPECT_EQ(held.notes.str(),
              "e.json: 20 % of 300 MB, 200 hours\ne.json: 100 % of 300 MB, 300 hours\n");
}

TEST(ImportProgressLine, ElsewhereTellsNothingOfASmallFile)
{
    Notes held;
    {
        ImportProgressLine line("e.json", held.console);
        held.clock.advance(60);
        line.tell({4'999'999, 4'999'999, 200});
    }
    EXPECT_EQ(held.notes.str(), "");
}

TEST(ImportProgressLine, OnATerminalLeavesNothingWhereNothingWasTold)
{
    Notes held;
    held.console.notesAreTerminal = true;
    {
        const ImportProgressLine line("e.json", held.console);
    }
    EXPECT_EQ(held.notes.str(), "");
}

} // namespace

} // namespace k7deval::cli::test
