#include "sevenday/SetUpRig.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <array>
#include <optional>

/// Any course of actions on the performance specifications, held against a model of them.
namespace k7deval::test
{

namespace
{

enum Specification { Span025, Span05, Absolute005, OtherSpan, OtherAbsolute, PS9GC };

/// The specifications as a table would tell them: what is chosen, and the two limits of the user.
struct SpecificationModel {
    std::optional<Specification> chosen;
    bool aps = false;
    int spanLimit = 3;
    int absoluteLimit = 5;

    [[nodiscard]] bool is(Specification specification) const { return chosen == specification; }
    [[nodiscard]] bool offersAPS() const { return !chosen || is(Span025); }
    [[nodiscard]] bool offersSpanLimit() const { return !chosen || is(OtherSpan); }
    [[nodiscard]] bool offersAbsoluteLimit() const { return !chosen || is(OtherAbsolute); }

    [[nodiscard]] int rule() const
    {
        if (is(PS9GC))
            return 3;
        if (is(Span025) && aps)
            return 2;
        return is(Span025) || is(Span05) || is(OtherSpan) ? 1 : 0;
    }
    [[nodiscard]] float absolute() const
    {
        if (is(Absolute005))
            return 0.5F;
        return static_cast<float>(aps ? 5 : absoluteLimit);
    }
    [[nodiscard]] float percentOfSpan() const
    {
        if (is(PS9GC))
            return -999;
        if (is(Span025))
            return 2.5F;
        return static_cast<float>(is(Span05) ? 5 : spanLimit);
    }
};

void chooseOn(ctrl7DaySetUp& page, Specification specification)
{
    const std::array<screen::OptionButton*, 6> options = {
        &page.opt025Span,   &page.opt05Span,        &page.opt005Absolute,
        &page.optOtherSpan, &page.optOtherAbsolute, &page.optPS9GC};
    options.at(specification)->Press();
}

/// One action of a user, on the page and on the model. A negative number stands for junk.
void act(SetUpRig& rig, SpecificationModel& model, int kind, int number)
{
    auto& page = rig.page;
    const std::string typed = number < 0 ? "junk" : std::to_string(number);
    switch (kind) {
    case 0:
        page.chkUseAPS.Press();
        model.aps = model.aps != model.offersAPS();
        break;
    case 1:
        SetUpRig::enter(page.txtOtherSpanValue, typed);
        if (model.offersSpanLimit() && number >= 0)
            model.spanLimit = number;
        break;
    case 2:
        SetUpRig::enter(page.txtOtherAbsoluteValue, typed);
        if (model.offersAbsoluteLimit() && number >= 0)
            model.absoluteLimit = number;
        break;
    default:
        model.chosen = static_cast<Specification>(kind - 3);
        chooseOn(page, *model.chosen);
    }
}

void expectAsModel(const ctrl7DaySetUp& page, const SpecificationModel& model)
{
    RC_ASSERT(page.LimitRules() == model.rule());
    RC_ASSERT(page.AbsoluteLimit() == model.absolute());
    RC_ASSERT(page.PercentOfSpanLimit() == model.percentOfSpan());
    RC_ASSERT(page.PercentOfRefLimit() == (model.is(PS9GC) ? 10.0F : -999.0F));
    RC_ASSERT(page.UseZeroCals() == !model.is(PS9GC));
    RC_ASSERT(page.chkUseAPS.Enabled() == model.offersAPS());
    RC_ASSERT(page.txtOtherSpanValue.Enabled() == model.offersSpanLimit());
    RC_ASSERT(page.txtOtherAbsoluteValue.Enabled() == model.offersAbsoluteLimit());
    if (!model.chosen)
        return;
    RC_ASSERT(page.txtOtherSpanValue.Text() ==
              (model.is(OtherSpan) ? std::to_string(model.spanLimit) : ""));
    RC_ASSERT(page.txtOtherAbsoluteValue.Text() ==
              (model.is(OtherAbsolute) ? std::to_string(model.absoluteLimit) : ""));
}

} // namespace

RC_GTEST_PROP(SetUpProperties, AnyCourseOfActionsOnTheSpecificationsIsAsTheModelHasIt, ())
{
    const auto actions = *rc::gen::container<std::vector<std::pair<int, int>>>(
        rc::gen::pair(rc::gen::inRange(0, 9), rc::gen::inRange(-5, 50)));
    SetUpRig rig;
    SpecificationModel model;
    for (const auto& [kind, number] : actions) {
        act(rig, model, kind, number);
        expectAsModel(rig.page, model);
    }
}

RC_GTEST_PROP(SetUpProperties, WhateverIsTypedIntoADateTheIntervalStaysInOrderAndReadable,
              (const std::vector<std::string>& texts))
{
    SetUpRig rig;
    auto& page = rig.page;
    bool from = true;
    for (const std::string& text : texts) {
        SetUpRig::enter(from ? page.txtFromDate : page.txtToDate, text);
        from = !from;
        RC_ASSERT(page.StartDate() <= page.EndDate());
    }
    const Date start = page.StartDate();
    const Date end = page.EndDate();
    page.txtFromDate.Leave();
    page.txtToDate.Leave();
    RC_ASSERT(page.StartDate() == start);
    RC_ASSERT(page.EndDate() == end);
}

} // namespace k7deval::test
