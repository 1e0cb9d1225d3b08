#include "sevenday/ToolRig.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>

/// Any course of actions on the wizard, with the data failing now and then.
namespace k7deval::test
{

namespace
{

/// The wizard stands on one of its pages, or on none with the hourglass.
void expectAWholePage(ToolRig& rig)
{
    const bool first = rig.setUp().Visible();
    const bool second = rig.result().Visible();
    const bool stuck = rig.tool.MousePointer() == screen::MousePointer::Hourglass;
    RC_ASSERT(static_cast<int>(first) + static_cast<int>(second) + static_cast<int>(stuck) == 1);
    RC_ASSERT(rig.tool.cmdNext.Visible() == first);
    RC_ASSERT(rig.tool.cmdBack.Enabled() == !first);
    RC_ASSERT(rig.tool.cmdSave.Visible() == second);
    RC_ASSERT(rig.tool.chkPreview.Visible() == second);
    RC_ASSERT(!second || rig.tool.cmdSave.Enabled());
}

/// A failure leaves a line, and only a failure does.
void expectLinesOfTheTool(ToolRig& rig)
{
    const Lines lines = rig.messages->lines();
    RC_ASSERT(std::all_of(lines.begin(), lines.end(),
                          [](const auto& line) { return line.starts_with("DEval-0"); }));
}

void act(ToolRig& rig, int kind, int number)
{
    auto& page = rig.setUp();
    switch (kind) {
    case 0:
        rig.next();
        break;
    case 1:
        rig.back();
        break;
    case 2:
        ToolRig::enter(page.txtToDate, "3/" + std::to_string(number % 10 + 1) + "/2024");
        break;
    case 3:
        page.cmbUnit.Pick(number % 2);
        break;
    case 4:
        page.chk6of7.Press();
        break;
    case 5:
        (number % 2 == 0 ? page.optShowDriftTestCals : page.optShowInterval).Press();
        break;
    case 6:
        (number % 2 == 0 ? page.optPS9GC : page.opt025Span).Press();
        break;
    default:
        rig.site->calls.clear();
        rig.site->failure = [number](const std::string&, std::size_t at) {
            return at == static_cast<std::size_t>(number) ? std::optional(Error(440))
                                                          : std::nullopt;
        };
    }
}

} // namespace

RC_GTEST_PROP(WizardProperties, NothingEscapesAndAWholePageStandsAfterAnyCourseOfActions, ())
{
    const auto actions = *rc::gen::container<std::vector<std::pair<int, int>>>(
        rc::gen::pair(rc::gen::inRange(0, 8), rc::gen::inRange(0, 250)));
    ToolRig rig;
    for (const auto& [kind, number] : actions) {
        act(rig, kind, number);
        expectAWholePage(rig);
        expectLinesOfTheTool(rig);
    }
}

RC_GTEST_PROP(WizardProperties, ANextIsTheSameAsThatOfAToolThatWasSetSoAtOnce, ())
{
    // Whatever was evaluated before, with data that answers: the outcome goes by the setup alone.
    // Only the zero calibrations are told apart while runs are read, so that option stays out.
    const auto days = *rc::gen::container<std::vector<int>>(rc::gen::inRange(1, 11));
    const auto marks = *rc::gen::container<std::vector<bool>>(rc::gen::arbitrary<bool>());
    auto site = siteWithDailyCals(8);
    site->records[5].measured = 170.0F;
    ToolRig wandering(site);
    for (std::size_t i = 0; i < std::min(days.size(), marks.size()); ++i) {
        ToolRig::enter(wandering.setUp().txtToDate, "3/" + std::to_string(days[i]) + "/2024");
        wandering.setUp().chk6of7.setChecked(marks[i]);
        wandering.next().back();
    }
    ToolRig fresh(site);
    ToolRig::enter(fresh.setUp().txtToDate, wandering.setUp().txtToDate.Text());
    fresh.setUp().chk6of7.setChecked(wandering.setUp().SixOfSevenCals());
    wandering.next();
    fresh.next();
    RC_ASSERT(changesBetween(snapshotOf(fresh.result()), snapshotOf(wandering.result())) ==
              Lines());
}

} // namespace k7deval::test
