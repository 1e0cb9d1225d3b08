#include "sevenday/DriftRulesModel.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <ostream>
#include <utility>

namespace k7deval::test::model
{

namespace
{

enum class Verdict { Clean, Missed, Failed };

bool hasOnlineRun(const Day& day)
{
    return std::any_of(day.runs.begin(), day.runs.end(), [](const Run& run) { return run.online; });
}

Verdict verdictOn(const Day& day)
{
    const bool fails = std::any_of(day.runs.begin(), day.runs.end(),
                                   [](const Run& run) { return run.online && !run.passes; });
    if (fails)
        return Verdict::Failed;
    return day.operated && !hasOnlineRun(day) ? Verdict::Missed : Verdict::Clean;
}

// The places of the day's runs that may count in the test.
std::vector<std::size_t> eligibleRuns(const Day& day, Options options)
{
    std::vector<std::size_t> places;
    for (std::size_t place = 0; place < day.runs.size(); ++place) {
        const Run& run = day.runs[place];
        if (run.online && (options.includeManual || !run.manual))
            places.push_back(place);
    }
    return places;
}

// The run that stands for a clean day: its last automatic one, or else its first.
std::optional<std::size_t> countedRun(const Day& day, Options options)
{
    const auto eligible = eligibleRuns(day, options);
    if (eligible.empty())
        return std::nullopt;
    const auto automatic = std::find_if(eligible.rbegin(), eligible.rend(),
                                        [&](std::size_t place) { return !day.runs[place].manual; });
    return automatic == eligible.rend() ? eligible.front() : *automatic;
}

// What is known after some days.
struct Standing {
    int good = 0;
    bool failureTaken = false;
    std::optional<std::size_t> lastFail;
    std::optional<std::size_t> prevFail;
    std::set<Place> marks;
};

// The good runs among the marked ones behind a day.
int goodMarksBehind(const std::vector<Day>& days, const std::set<Place>& marks, std::size_t day)
{
    return static_cast<int>(std::count_if(marks.begin(), marks.end(), [&](Place place) {
        const Run& run = days[place.day].runs[place.run];
        return place.day > day && run.online && run.passes;
    }));
}

Standing afterCleanDay(Standing standing, const Day& day, std::size_t index, Options options)
{
    if (const auto run = countedRun(day, options)) {
        standing.marks.insert({index, *run});
        ++standing.good;
    }
    return standing;
}

Standing afterRestart(Standing standing, std::size_t index)
{
    standing.lastFail = index;
    standing.prevFail = index;
    standing.good = 0;
    return standing;
}

Standing afterAllowedFailure(Standing standing, const std::vector<Day>& days, std::size_t index,
                             Options options)
{
    const bool isLaterFailure = standing.lastFail && standing.prevFail;
    standing.prevFail = standing.lastFail;
    standing.lastFail = index;
    if (isLaterFailure)
        standing.good = goodMarksBehind(days, standing.marks, *standing.prevFail);
    const auto eligible = eligibleRuns(days[index], options);
    if (!eligible.empty()) {
        standing.marks.insert({index, eligible.front()});
        standing.failureTaken = true;
    }
    return standing;
}

Standing afterDay(Standing standing, const std::vector<Day>& days, std::size_t index,
                  Options options)
{
    const Verdict verdict = verdictOn(days[index]);
    if (verdict == Verdict::Clean)
        return afterCleanDay(std::move(standing), days[index], index, options);
    if (verdict == Verdict::Missed || !options.sixOfSeven)
        return afterRestart(std::move(standing), index);
    return afterAllowedFailure(std::move(standing), days, index, options);
}

// The day up to which the marks go, its own included.
std::optional<std::size_t> cutDay(const Standing& standing, Options options)
{
    if (standing.prevFail)
        return standing.prevFail;
    return options.sixOfSeven ? std::nullopt : standing.lastFail;
}

std::set<Place> marksOfTheTest(const Standing& standing, const std::vector<Day>& days,
                               Options options)
{
    const auto cut = cutDay(standing, options);
    std::set<Place> marks;
    std::copy_if(standing.marks.begin(), standing.marks.end(), std::inserter(marks, marks.end()),
                 [&](Place place) { return !cut || days[place.day].date > days[*cut].date; });
    return marks;
}

} // namespace

Outcome outcomeOf(const std::vector<Day>& days, Options options)
{
    Standing standing;
    int undetermined = 0;
    for (std::size_t index = 0; index < days.size(); ++index) {
        standing = afterDay(std::move(standing), days, index, options);
        const Day& day = days[index];
        if (day.undetermined && !day.operated && !hasOnlineRun(day))
            ++undetermined;
        if (standing.good + (standing.failureTaken ? 1 : 0) >= 7)
            break;
    }

    Outcome outcome;
    outcome.goodCals = standing.good;
    outcome.failedCals = standing.failureTaken ? 1 : 0;
    outcome.lastFailDay = static_cast<int>(standing.lastFail.value_or(days.size()));
    outcome.prevFailDay = static_cast<int>(standing.prevFail.value_or(days.size()));
    outcome.undeterminedDays = undetermined;
    outcome.marks = marksOfTheTest(standing, days, options);
    return outcome;
}

void PrintTo(const Outcome& outcome, std::ostream* out)
{
    *out << "good " << outcome.goodCals << ", failed " << outcome.failedCals << ", last fail day "
         << outcome.lastFailDay << ", previous " << outcome.prevFailDay << ", undetermined "
         << outcome.undeterminedDays << ", marks";
    for (const Place& place : outcome.marks)
        *out << ' ' << place.day << '.' << place.run;
}

} // namespace k7deval::test::model
