#include "foundation/NumberText.h"
#include "range/RangeModel.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <numeric>

/// Any hours, and any course of actions on the screen.
namespace k7deval::test
{

namespace
{

constexpr std::array<const char*, 7> kRanges = {"100", "2500", "0.5", "33.3", "10", "62.5", "1E6"};
/// Usable, off-line, excluded, invalid, and replaced hours.
constexpr std::array<std::int32_t, 6> kAnyWord = {34, 2, 1, 7, 35, 36};

std::shared_ptr<SiteData> siteOfAnyWord()
{
    auto site = siteOfNOx();
    site->statusMeanings[7] = {.valid = false};
    return site;
}

/// A share of the range: often on a mark of 5% or a little beside it, sometimes above the range.
double anyShare()
{
    const double mark = *rc::gen::inRange(0, 24) / 20.0;
    const double noise = *rc::gen::element(0.0, 1e-8, 1e-7, 4e-7, 6e-7, 1e-6, 1e-3, 0.02);
    return std::max(0.0, mark + (*rc::gen::arbitrary<bool>() ? noise : -noise));
}

std::optional<double> anyValue(double range)
{
    return *rc::gen::inRange(0, 8) == 0 ? std::nullopt : std::optional(anyShare() * range);
}

/// Stretches of hours in the quarters up to the first of 2024, some of them short.
void addHours(HourlyValues& series, double range)
{
    for (int stretches = *rc::gen::inRange(0, 12); stretches > 0; --stretches) {
        const Date first = makeDate(2024, 4 - *rc::gen::inRange(1, 48), *rc::gen::inRange(1, 29));
        const int hours = *rc::gen::element(1, 2, 24, 180, 360, 720);
        const Date last = dateFromSeconds(wholeSeconds(first) + (hours - 1) * 3600);
        series.fill(first, last, anyValue(range), *rc::gen::elementOf(kAnyWord));
    }
}

/// Sets a limit in one way or another; the value where it takes part.
std::optional<float> anyLimit(screen::CheckBox& box, screen::TextBox& field)
{
    const auto value = static_cast<float>(*rc::gen::inRange(0, 100));
    const bool isNumber = *rc::gen::inRange(0, 4) > 0;
    enter(field, isNumber ? GeneralNumber(value, {}) : "N/A");
    box.setChecked(*rc::gen::inRange(0, 4) > 0);
    return isNumber && box.isChecked() ? std::optional(value) : std::nullopt;
}

std::int32_t inRangeHours(const RangeEvaluation& results)
{
    return results.LowHours + results.MidHours + results.HighHours;
}

void expectConsistentCounters(const RangeEvaluation& results)
{
    RC_ASSERT(std::accumulate(results.Bins.begin(), results.Bins.end(), 0) ==
              inRangeHours(results));
    RC_ASSERT(results.Bins[0] == 0);
    RC_ASSERT(results.AboveMECHours <= inRangeHours(results));
    RC_ASSERT(results.AboveMPCHours <= inRangeHours(results));
    RC_ASSERT(results.ReplacedHours <= inRangeHours(results));
}

/// What a user of the screen expects of it, followed action by action.
struct Expected {
    bool isFresh = false; ///< The results belong to the inputs, as far as the screen takes notice.
    bool isShown = false;

    void markStale() { isFresh = isShown = false; }
};

struct Action {
    int kind = 0;
    int number = 0;
};

/// Changes of the inputs; most of them are noticed.
void changeInput(RangeRig& rig, Expected& expected, const Action& action)
{
    ctrlRangeEval& tool = rig.tool;
    const std::string text = std::to_string(action.number % 3 * 40 + 20);
    switch (action.kind) {
    case 0:
        tool.cmbUnit.Pick(action.number % tool.cmbUnit.listCount());
        return expected.markStale();
    case 1:
        tool.cmbParam.Pick(action.number % tool.cmbParam.listCount());
        return expected.markStale();
    case 2:
        tool.cmbScale.Pick(action.number % tool.cmbScale.listCount());
        return expected.markStale();
    case 3:
        rig.range(action.number % 4 == 0 ? "abc" : text);
        if (action.number % 4 != 0)
            expected.markStale();
        return;
    case 4:
    case 5: {
        screen::TextBox& field = action.kind == 4 ? tool.txtMEC : tool.txtMPC;
        if (field.Text() != text)
            expected.markStale();
        field.Type(text);
        return;
    }
    default: {
        const std::string year = std::to_string(2022 + action.number % 3);
        if (tool.cmbYear.Text() != year)
            expected.markStale();
        tool.cmbYear.Type(year);
    }
    }
}

/// What the screen takes no notice of.
void changeWithoutNotice(ctrlRangeEval& tool, const Action& action)
{
    switch (action.kind) {
    case 7:
        tool.cmbQTR.Pick(action.number % 4);
        break;
    case 8:
        tool.cmbYear.Pick(action.number % 3);
        break;
    case 9:
        (action.number % 2 == 0 ? tool.chkMEC : tool.chkMPC).Press();
        break;
    default:
        (action.number % 2 == 0 ? tool.chkShowPID : tool.chkPreview).Press();
    }
}

/// Calculates, with data that fails now and then.
void calculate(RangeRig& rig, Expected& expected, int number)
{
    rig.takeReads();
    if (number % 3 == 0)
        failAt(*rig.site, "DIParameter.ReadData");
    bool failed = false;
    try {
        rig.calculate();
    } catch (const Error&) {
        failed = true;
    }
    rig.site->failure = nullptr;
    RC_ASSERT(failed == (!expected.isFresh && number % 3 == 0));
    RC_ASSERT(rig.site->reads.empty() == (expected.isFresh || failed));
    RC_ASSERT((rig.tool.MousePointer() == screen::MousePointer::Hourglass) == failed);
    if (!failed)
        expected = {true, true};
}

void act(RangeRig& rig, Expected& expected, const Action& action)
{
    if (action.kind <= 6)
        changeInput(rig, expected, action);
    else if (action.kind <= 10)
        changeWithoutNotice(rig.tool, action);
    else if (action.kind == 11) {
        rig.tool.SetDIServer(rig.server);
        expected.markStale();
    } else
        calculate(rig, expected, action.number);
}

/// Up to forty actions, by kind and number.
auto courseOfActions()
{
    return rc::gen::resize(40, rc::gen::container<std::vector<std::pair<int, int>>>(rc::gen::pair(
                                   rc::gen::inRange(0, 18), rc::gen::inRange(0, 12))));
}

/// The labels of a screen with all that stands in them.
Snapshot shownResults(const ctrlRangeEval& tool)
{
    Snapshot labels = snapshotOf(tool);
    std::erase_if(labels, [](const auto& entry) { return !entry.first.starts_with("lbl"); });
    return labels;
}

void expectScreen(const RangeRig& rig, const Expected& expected)
{
    RC_ASSERT(rig.tool.NeedsEvaluation() == !expected.isFresh);
    RC_ASSERT(rig.tool.cmdSave.Enabled() == expected.isShown);
    RC_ASSERT(isCleared(rig.tool) == !expected.isShown);
}

} // namespace

RC_GTEST_PROP(RangeProperties, AnyHoursAreCountedAsTheRulesSay, ())
{
    const std::string range = *rc::gen::elementOf(kRanges);
    RangeRig rig(siteOfAnyWord());
    RangeQuestion question;
    question.range = ToSingle(range, rig.regional);
    question.quarter = *rc::gen::inRange(1, 3);
    addHours(rig.series(), question.range);
    rig.tool.cmbQTR.Pick(question.quarter - 1);
    rig.range(range);
    question.mec = anyLimit(rig.tool.chkMEC, rig.tool.txtMEC);
    question.mpc = anyLimit(rig.tool.chkMPC, rig.tool.txtMPC);
    rig.calculate();
    const RangeAnswer answer = answerFrom(*rig.site, rig.series(), question);
    RC_ASSERT(countersOf(rig.results()) == answer.counters);
    RC_ASSERT(rig.results().Bins == answer.bins);
    RC_ASSERT(static_cast<int>(rig.site->reads.size()) == answer.quartersRead);
    expectConsistentCounters(rig.results());
}

RC_GTEST_PROP(RangeProperties, TheScreenIsFreshOrStaleAfterAnyCourseOfActions, ())
{
    const auto actions = *courseOfActions();
    RangeRig rig(siteOfTwoUnits());
    rig.series().fill(makeDate(2022, 7, 1), makeDate(2022, 12, 31, 23), 30);
    rig.series().fill(makeDate(2023, 7, 1), makeDate(2024, 2, 29, 23), 70);
    Expected expected;
    for (const auto& [kind, number] : actions) {
        act(rig, expected, {kind, number});
        expectScreen(rig, expected);
        expectConsistentCounters(rig.results());
    }
}

RC_GTEST_PROP(RangeProperties, AnEvaluationIsTheSameAsThatOfAToolThatWasSetSoAtOnce, ())
{
    const auto actions = *courseOfActions();
    auto site = siteOfTwoUnits();
    site->parameter(kNOx).hours.fill(makeDate(2023, 11, 1), makeDate(2024, 2, 29, 23), 30);
    RangeRig wandering(site);
    Expected expected;
    for (const auto& [kind, number] : actions)
        act(wandering, expected, {kind, number});
    RangeRig fresh(site);
    fresh.tool.cmbUnit.Pick(wandering.tool.cmbUnit.ListIndex());
    fresh.tool.cmbParam.Pick(wandering.tool.cmbParam.ListIndex());
    fresh.tool.cmbScale.Pick(wandering.tool.cmbScale.ListIndex());
    fresh.range(wandering.tool.txtRange.Text())
        .limits(wandering.tool.txtMEC.Text(), wandering.tool.txtMPC.Text());
    fresh.tool.chkMEC.setChecked(wandering.tool.chkMEC.isChecked());
    fresh.tool.chkMPC.setChecked(wandering.tool.chkMPC.isChecked());
    fresh.tool.cmbYear.Type(wandering.tool.cmbYear.Text());
    fresh.tool.cmbQTR.Pick(wandering.tool.cmbQTR.ListIndex());
    wandering.tool.txtRange.Leave();
    wandering.calculate();
    fresh.calculate();
    RC_ASSERT(countersOf(fresh.results()) == countersOf(wandering.results()));
    RC_ASSERT(fresh.results().Bins == wandering.results().Bins);
    RC_ASSERT(shownResults(fresh.tool) == shownResults(wandering.tool));
}

} // namespace k7deval::test
