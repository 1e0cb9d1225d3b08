#include "sevenday/DriftTestData.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace k7deval::test
{

namespace model
{

// What a counterexample is shown with.
void showValue(const Day& day, std::ostream& out)
{
    out << day.date << (day.operated ? "!" : "") << (day.undetermined ? "?" : "");
    for (const Run& run : day.runs) {
        const char kind = run.manual ? 'M' : 'A';
        out << static_cast<char>(run.online ? kind : kind + ('a' - 'A'))
            << (run.passes ? '+' : '-');
    }
}

} // namespace model

namespace
{

constexpr std::size_t kMostDays = 12;

constexpr model::Options kAllOptions[] = {
    {.sixOfSeven = false, .includeManual = false},
    {.sixOfSeven = true, .includeManual = false},
    {.sixOfSeven = false, .includeManual = true},
    {.sixOfSeven = true, .includeManual = true},
};

model::Outcome evaluated(DriftRig& rig, model::Options options)
{
    rig.test.blnSixOfSeven = options.sixOfSeven;
    rig.test.blnIncludeManualCals = options.includeManual;
    rig.test.EvaluateDriftTest();
    return outcomeOf(rig.test);
}

void expectAsTheModel(const std::string& pattern)
{
    const std::vector<model::Day> days = daysOf(pattern);
    DriftRig rig;
    setDays(rig, days);
    for (const bool sixOfSeven : {false, true}) {
        const model::Options options{.sixOfSeven = sixOfSeven, .includeManual = false};
        EXPECT_EQ(evaluated(rig, options), model::outcomeOf(days, options))
            << pattern << (sixOfSeven ? ", six of seven" : "");
    }
}

// Every pattern of so many further days behind the first ones.
void expectAllAsTheModel(const std::string& first, std::string_view letters, std::size_t further)
{
    if (testing::Test::HasFailure())
        return;
    if (further == 0) {
        expectAsTheModel(first);
        return;
    }
    for (const char letter : letters)
        expectAllAsTheModel(first + letter, letters, further - 1);
}

// A run that fails once in so many times.
rc::Gen<model::Run> anyRun(int failsOnceIn)
{
    return rc::gen::apply(
        [](int online, bool manual, int passes) {
            return model::Run{.online = online != 0, .manual = manual, .passes = passes != 0};
        },
        rc::gen::inRange(0, 4), rc::gen::arbitrary<bool>(), rc::gen::inRange(0, failsOnceIn));
}

rc::Gen<std::vector<model::Run>> anyRuns(int failsOnceIn)
{
    return rc::gen::resize(4, rc::gen::container<std::vector<model::Run>>(anyRun(failsOnceIn)));
}

rc::Gen<model::Day> anyDay(int failsOnceIn)
{
    return rc::gen::apply(
        [](int operated, int undetermined, std::vector<model::Run> runs) {
            model::Day day;
            day.operated = operated != 0;
            day.undetermined = undetermined == 0;
            day.runs = std::move(runs);
            return day;
        },
        rc::gen::inRange(0, 4), rc::gen::inRange(0, 4), anyRuns(failsOnceIn));
}

std::vector<model::Day> datedDays(std::vector<model::Day> days)
{
    for (std::size_t i = 0; i < days.size(); ++i)
        days[i].date = static_cast<int>(i);
    return days;
}

// Some intervals are full of failures, and in some a test comes to its end.
std::vector<model::Day> anyDays(std::size_t most)
{
    const auto count = *rc::gen::inRange<std::size_t>(0, most + 1);
    const int failsOnceIn = *rc::gen::inRange(2, 20);
    return datedDays(*rc::gen::container<std::vector<model::Day>>(count, anyDay(failsOnceIn)));
}

// Days with runs and nothing else, as the evaluation makes them for runs outside the interval: some
// ahead of it and some behind.
std::vector<model::Day> anyDaysOutside(std::size_t interval)
{
    const int ahead = *rc::gen::inRange(0, 4);
    const int behind = *rc::gen::inRange(0, 4);
    std::vector<model::Day> days;
    for (int i = 0; i < ahead + behind; ++i) {
        model::Day day;
        day.date = i < ahead ? i - ahead : static_cast<int>(interval) + i - ahead;
        day.undetermined = true;
        day.runs = *rc::gen::nonEmpty(anyRuns(6));
        days.push_back(day);
    }
    return days;
}

} // namespace

class EveryPattern : public testing::TestWithParam<const char*>
{
};

TEST_P(EveryPattern, OfUpToSevenDaysIsEvaluatedAsTheModelDoes)
{
    for (std::size_t further = 0; further <= 6; ++further)
        expectAllAsTheModel(GetParam(), "PFNM", further);
}

INSTANTIATE_TEST_SUITE_P(BeginningWith, EveryPattern, testing::Values("P", "F", "N", "M"),
                         [](const auto& first) { return std::string(first.param); });

TEST(EveryPatternOfCalibratedDays, OfTenDaysIsEvaluatedAsTheModelDoes)
{
    expectAllAsTheModel("", "PF", 10);
}

RC_GTEST_PROP(AnyPattern, IsEvaluatedAsTheModelDoes, ())
{
    // Good days are the most frequent, so that tests come to their end.
    const auto letter = rc::gen::weightedElement<char>({{6, 'P'}, {3, 'F'}, {1, 'N'}, {1, 'M'}});
    const auto length = *rc::gen::inRange<std::size_t>(8, kMostDays + 1);
    const auto days = daysOf(*rc::gen::container<std::string>(length, letter));
    DriftRig rig;
    setDays(rig, days);

    for (const model::Options options : kAllOptions)
        RC_ASSERT(evaluated(rig, options) == model::outcomeOf(days, options));
}

// Every kind of day, those in which a good run stands for a failure above all.
RC_GTEST_PROP(AnyKindsOfDays, AreEvaluatedAsTheModelDoes, ())
{
    const auto kind = rc::gen::weightedElement<std::string>({{6, "P"},
                                                             {2, "F"},
                                                             {4, "A+A-"},
                                                             {1, "A-M+"},
                                                             {1, "M-"},
                                                             {1, "M-A+A+"},
                                                             {1, "M+A+M+"},
                                                             {1, "A+a-"},
                                                             {1, "?a+"},
                                                             {1, "!a+"},
                                                             {1, "N"},
                                                             {1, "M"}});
    const auto length = *rc::gen::inRange<std::size_t>(6, kMostDays + 1);
    std::string text;
    for (const std::string& word : *rc::gen::container<std::vector<std::string>>(length, kind))
        text += word + ' ';
    const auto days = daysOf(text);
    for (const model::Options options : kAllOptions) {
        DriftRig rig;
        setDays(rig, days);
        RC_ASSERT(evaluated(rig, options) == model::outcomeOf(days, options));
    }
}

RC_GTEST_PROP(AnyRuns, OfADayAreEvaluatedAsTheModelDoes, ())
{
    const auto days = anyDays(kMostDays);
    for (const model::Options options : kAllOptions) {
        DriftRig rig;
        setDays(rig, days);
        RC_ASSERT(evaluated(rig, options) == model::outcomeOf(days, options));
        RC_ASSERT(rig.messages->posted.empty());
    }
}

RC_GTEST_PROP(AnyRuns, OutsideTheIntervalAreEvaluatedAsTheModelDoes, ())
{
    auto days = anyDays(kMostDays - 4);
    const std::size_t interval = days.size();
    for (model::Day& day : anyDaysOutside(interval))
        days.push_back(std::move(day));

    for (const model::Options options : kAllOptions) {
        DriftRig rig;
        setDays(rig, days, interval);
        RC_ASSERT(evaluated(rig, options) == model::outcomeOf(days, options));
    }
}

// Whatever was marked and counted before, an evaluation starts from nothing.
RC_GTEST_PROP(AnyRuns, AreEvaluatedAlikeAfterAnyOtherEvaluation, ())
{
    const auto days = anyDays(kMostDays);
    DriftRig rig;
    setDays(rig, days);
    for (const model::Options earlier : kAllOptions) {
        for (const model::Options options : kAllOptions) {
            evaluated(rig, earlier);
            RC_ASSERT(evaluated(rig, options) == model::outcomeOf(days, options));
        }
    }
}

// Never more than seven runs are counted, and a day has one marked run at most.
RC_GTEST_PROP(AnyRuns, CountToSevenAtMostAndMarkOneRunOfADayAtMost, ())
{
    DriftRig rig;
    setDays(rig, anyDays(kMostDays));
    for (const model::Options options : kAllOptions) {
        const model::Outcome found = evaluated(rig, options);
        RC_ASSERT(found.goodCals + found.failedCals <= 7);
        std::set<std::size_t> markedDays;
        for (const model::Place& mark : found.marks)
            RC_ASSERT(markedDays.insert(mark.day).second);
    }
}

} // namespace k7deval::test
