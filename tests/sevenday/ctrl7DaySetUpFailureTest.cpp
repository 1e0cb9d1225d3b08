#include "foundation/ExpectError.h"
#include "sevenday/SetUpRig.h"

#include <gtest/gtest.h>

#include <functional>
#include <ostream>

/// A failure at any call to the data, while the page is set up, a unit or an analyzer is picked.
namespace k7deval::test
{

namespace
{

const std::string kFailure = "440, the line is down";

/// Two analyzers, the second of them a namesake of a third, on a unit with several stacks.
std::shared_ptr<SiteData> richSite()
{
    auto site = siteOf({});
    AnalyzerFacts co;
    co.name = "CO";
    co.code = 140;
    AnalyzerFacts secondCo = co;
    secondCo.suffix = 2;
    addAnalyzer(*site, co);
    addAnalyzer(*site, secondCo);
    auto& attributes = site->parameter(kGT3).attributes;
    attributes[attribute::kSeveralStacks] = true;
    attributes[attribute::kStackIdentifiers] = std::string("CS1;CS2");
    return site;
}

/// An action on the page, and what goes before it.
struct Action {
    const char* what;
    std::function<void(SetUpRig&)> prepare;
    std::function<void(SetUpRig&)> act;
};

void PrintTo(const Action& action, std::ostream* out)
{
    *out << action.what;
}

const Action kActions[] = {
    {"Setup", [](SetUpRig&) {}, [](SetUpRig& rig) { rig.setup(); }},
    {"UnitPick", [](SetUpRig& rig) { rig.setup(); },
     [](SetUpRig& rig) { rig.page.cmbUnit.Pick(0); }},
    {"AnalyzerPick", [](SetUpRig& rig) { rig.setup(); },
     [](SetUpRig& rig) { rig.page.cmbAnalyzer.Pick(1); }},
};

/// Which rule a call to the data is made in.
enum class PickRule { None, Unit, Analyzer };

/// What an undisturbed action does: for each call, the rule that makes it and what stands on the
/// page at that moment.
struct Course {
    std::vector<std::string> calls;
    std::vector<PickRule> rules;
    std::vector<Snapshot> pages;
};

Course courseOf(const Action& action)
{
    SetUpRig rig(richSite());
    action.prepare(rig);
    Course course;
    PickRule rule = PickRule::None;
    rig.page.cmbUnit.Changed.Connect([&] {
        if (rig.page.cmbUnit.ListIndex() == 0)
            rule = PickRule::Unit;
    });
    rig.page.cmbAnalyzer.Changed.Connect([&] {
        if (rig.page.cmbAnalyzer.ListIndex() >= 0)
            rule = PickRule::Analyzer;
    });
    rig.site->failure = [&](const std::string& call, std::size_t) -> std::optional<Error> {
        course.calls.push_back(call);
        course.rules.push_back(rule);
        course.pages.push_back(snapshotOf(rig.page));
        return std::nullopt;
    };
    action.act(rig);
    return course;
}

/// Makes the call of that number, counted from the action's first one, fail.
void failAt(SetUpRig& rig, std::size_t number)
{
    const std::size_t index = rig.site->calls.size() + number;
    rig.site->failure = [index](const std::string&, std::size_t at) {
        return at == index ? std::optional(Error(440, "the line is down")) : std::nullopt;
    };
}

Lines linesOf(PickRule rule)
{
    if (rule == PickRule::None)
        return {};
    return {(rule == PickRule::Unit ? "DEval-018: " : "DEval-019: ") + kFailure};
}

class SetUpFailure : public ::testing::TestWithParam<Action>
{
};

} // namespace

TEST_P(SetUpFailure, AtAnyCallPostsTheLineOfTheRuleAndLeavesThePageAsItStood)
{
    const Course course = courseOf(GetParam());
    ASSERT_GT(course.calls.size(), 5U);
    for (std::size_t i = 0; i < course.calls.size(); ++i) {
        SetUpRig rig(richSite());
        GetParam().prepare(rig);
        failAt(rig, i);
        const int reachedHost = errorOf([&] { return GetParam().act(rig), 0; });
        const std::string where = course.calls[i] + ", call " + std::to_string(i);
        EXPECT_EQ(reachedHost, course.rules[i] == PickRule::None ? 440 : 0) << where;
        EXPECT_EQ(rig.messages->lines(), linesOf(course.rules[i])) << where;
        EXPECT_EQ(changesBetween(course.pages[i], snapshotOf(rig.page)), Lines()) << where;
    }
}

TEST_P(SetUpFailure, AtAnyCallCanBeMadeUpForByPickingAgain)
{
    SetUpRig undisturbed(richSite());
    GetParam().prepare(undisturbed);
    GetParam().act(undisturbed);
    const std::size_t calls = courseOf(GetParam()).calls.size();
    for (std::size_t i = 0; i < calls; ++i) {
        SetUpRig rig(richSite());
        GetParam().prepare(rig);
        failAt(rig, i);
        static_cast<void>(errorOf([&] { return GetParam().act(rig), 0; }));
        rig.setup();
        GetParam().act(rig);
        EXPECT_EQ(changesBetween(snapshotOf(undisturbed.page), snapshotOf(rig.page)), Lines())
            << "call " << i;
    }
}

INSTANTIATE_TEST_SUITE_P(Actions, SetUpFailure, ::testing::ValuesIn(kActions),
                         [](const auto& tested) { return tested.param.what; });

namespace
{

/// A page on which the first call of that name fails while it is set up.
struct FailingSetup : SetUpRig {
    explicit FailingSetup(const std::string& call, std::size_t passing = 0) : SetUpRig(richSite())
    {
        site->failure = [this, call, passing](const std::string& made, std::size_t) {
            const bool fails = made == call && site->countCalls(call) == passing + 1;
            return fails ? std::optional(Error(440, "the line is down")) : std::nullopt;
        };
        setup();
    }
};

} // namespace

/// The member whose call fails, how many calls of it pass before, and what stands on the page.
struct FailingCallCase {
    const char* call;
    std::size_t passing;
    Lines analyzers;
    const char* orisCode;
    bool isPicked; ///< The first analyzer, with its specification.
    const char* line;
};

TEST(SetUpFailure, LeavesWhatStoodOnThePageBeforeIt)
{
    const FailingCallCase rows[] = {
        {"DIServer.ParametersOfUnit", 0, {}, "", false, "DEval-018: "},
        {"DIParameter.GetAttribute(-300)", 1, {"NOX/H"}, "", false, "DEval-018: "},
        {"DIParameter.GetAttribute(-97)", 0, {"NOX/H", "CO/H"}, "50292", false, "DEval-018: "},
        {"DIParameters.Exists", 0, {"NOX/H", "CO/H"}, "50292", true, "DEval-019: "},
    };
    for (const FailingCallCase& row : rows) {
        SCOPED_TRACE(row.call);
        const FailingSetup rig(row.call, row.passing);
        EXPECT_EQ(rig.page.cmbAnalyzer.List(), row.analyzers);
        EXPECT_EQ(rig.page.cmbAnalyzer.ListIndex(), row.isPicked ? 0 : -1);
        EXPECT_EQ(rig.page.txtORIS.Text(), row.orisCode);
        EXPECT_EQ(rig.page.opt025Span.isSelected(), row.isPicked);
        EXPECT_EQ(rig.page.chkUseAPS.isChecked(), row.isPicked);
        EXPECT_FALSE(rig.page.Is40CFR75());
        const std::vector<std::pair<std::int32_t, std::string>> posted = {{4, row.line + kFailure}};
        EXPECT_EQ(rig.messages->posted, posted);
    }
}

TEST(SetUpFailure, AListLeftPartlyFilledCanBePickedFrom)
{
    FailingSetup rig("DIParameter.GetAttribute(-300)", 1);
    rig.page.cmbAnalyzer.Pick(0);
    EXPECT_EQ(rig.page.AnalyzedPID(), AnalyzerFacts().measuredPID());
}

TEST(SetUpFailure, AnAnalyzerWhosePIDFailsStandsInTheListWithoutAParameterBehindIt)
{
    // The first two calls of the member are those of the units.
    FailingSetup rig("DIParameter.PID", 2);
    EXPECT_EQ(rig.page.cmbAnalyzer.List(), Lines{"NOX/H"});
    EXPECT_EQ(rig.page.cmbAnalyzer.itemDataList(), std::vector<std::int32_t>{1});
    rig.page.cmbAnalyzer.Pick(0);
    EXPECT_TRUE(rig.page.optOtherSpan.isSelected());
    EXPECT_EQ(errorOf([&] { return rig.page.AnalyzedPID(); }), 91);
    EXPECT_EQ(rig.messages->lines(), Lines{"DEval-018: " + kFailure});
}

TEST(SetUpFailure, ANullInAUnitsFactsPostsTheUnitsLine)
{
    auto site = siteOf({});
    site->parameter(kGT3).attributes[attribute::kOrisCode] = Null{};
    SetUpRig rig(site);
    rig.setup();
    EXPECT_EQ(rig.messages->lines(), Lines{"DEval-018: 94, Invalid use of Null"});
}

TEST(SetUpFailure, ANullComponentPostsTheAnalyzersLine)
{
    AnalyzerFacts facts;
    facts.component = Null{};
    SetUpRig rig(siteOf(facts));
    rig.setup();
    EXPECT_EQ(rig.messages->lines(), Lines{"DEval-019: 94, Invalid use of Null"});
    EXPECT_TRUE(rig.page.Is40CFR75());
    EXPECT_EQ(rig.page.TestNumber(), "");
}

TEST(SetUpFailure, ANullScaleLeavesTheTestNumberAtItsGas)
{
    AnalyzerFacts facts;
    facts.scale = Null{};
    facts.testNumberBase = std::string("O2DRY");
    SetUpRig rig(siteOf(facts));
    rig.setup();
    EXPECT_EQ(rig.messages->lines(), Lines{"DEval-019: 94, Invalid use of Null"});
    EXPECT_EQ(rig.page.TestNumber(), "O2");
}

TEST(SetUpFailure, AMeasuredParameterThatIsGonePostsTheUnitsLine)
{
    auto site = siteOf({});
    std::erase_if(site->parameters,
                  [](const auto& p) { return p.pid == AnalyzerFacts().measuredPID(); });
    SetUpRig rig(site);
    rig.setup();
    EXPECT_EQ(rig.messages->lines(), Lines{"DEval-018: 5, Invalid procedure call or argument"});
}

TEST(SetUpFailure, AnAbsentServerFailsTheSetup)
{
    SetUpRig rig;
    EXPECT_EQ(errorOf([&] { return rig.page.Setup(rig.messages, nullptr), 0; }), 91);
}

} // namespace k7deval::test
