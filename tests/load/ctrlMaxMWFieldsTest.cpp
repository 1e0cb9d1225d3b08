#include "load/LoadRig.h"

#include <gtest/gtest.h>

/// The fields of the load tool: numbers, dates with their calendars, and the PIDs of parameters.
namespace k7deval::test
{

namespace
{

/// The load tool after a calculation, with specified dates: 1 January to 31 March 2024.
struct CalculatedRig : LoadRig {
    explicit CalculatedRig(const std::string& region = "en-US")
        : LoadRig(siteOfLoads(), makeDate(2024, 5, 10, 14, 30), region)
    {
        tool.optTimeSelect.Press();
        hours({10, 50, 90}).calculate();
        services.boxes.clear();
    }
    /// Off the screen, to be evaluated again, and still to be saved.
    [[nodiscard]] bool isStaleButSavable() const
    {
        return isCleared(tool) && tool.NeedsEvaluation() && tool.cmdSave.Enabled();
    }
    [[nodiscard]] bool isUntouched() const
    {
        return !isCleared(tool) && !tool.NeedsEvaluation() && tool.cmdSave.Enabled();
    }
};

struct NumberCase {
    const char* typed;
    float value;
};

// What else is a number or a date is told by the tests of the conversions.
constexpr NumberCase kNumbers[] = {
    {"250.5", 250.5F}, {" 12.50 ", 12.5F},     {"1,000.5", 1000.5F},
    {"(5)", -5},       {"16777217", 16777216},
};

constexpr const char* kNoNumbers[] = {"abc", "", "12abc", "5/1/2024"};

struct DateCase {
    const char* typed;
    const char* shown;
    Date date;
};

const DateCase kTypedDates[] = {
    {"2/5/2024", "2/5/2024", makeDate(2024, 2, 5)},
    {"2024-02-05", "2/5/2024", makeDate(2024, 2, 5)},
    {"2/29/2024", "2/29/2024", makeDate(2024, 2, 29)},
    {"2/5/2024 13:45", "2/5/2024", makeDate(2024, 2, 5)},
    {"2/5/2024 11:59:59 PM", "2/5/2024", makeDate(2024, 2, 5)},
    {"14:30", "12/30/1899", Date()},
};

constexpr const char* kNoDates[] = {"abc", "", "2/30/2024", "45000"};

struct NumberField {
    const char* name;
    screen::TextBox ctrlMaxMW::*box;
    float LoadEvaluation::*value;
};

constexpr NumberField kNumberFields[] = {
    {"txtCapacity", &ctrlMaxMW::txtCapacity, &LoadEvaluation::CapacityValue},
    {"txtMinSafe", &ctrlMaxMW::txtMinSafe, &LoadEvaluation::MinSafeValue},
};

struct DateField {
    const char* name;
    screen::TextBox ctrlMaxMW::*box;
    Date (ctrlMaxMW::*date)() const;
    screen::Button ctrlMaxMW::*button;
    const char* title;
};

constexpr DateField kDateFields[] = {
    {"txtFrom", &ctrlMaxMW::txtFrom, &ctrlMaxMW::StartDate, &ctrlMaxMW::cmdFrom,
     "Start of Load Analysis"},
    {"txtTo", &ctrlMaxMW::txtTo, &ctrlMaxMW::EndDate, &ctrlMaxMW::cmdTo, "End of Load Analysis"},
};

std::string of(const char* field, const std::string& text)
{
    return std::string(field) + " with \"" + text + "\"";
}

} // namespace

TEST(LoadNumbers, ANumberIsTakenAndStaysAsItWasTyped)
{
    for (const NumberField& field : kNumberFields) {
        for (const NumberCase& number : kNumbers) {
            CalculatedRig rig;
            enter(rig.tool.*field.box, number.typed);
            EXPECT_EQ(rig.results().*field.value, number.value) << of(field.name, number.typed);
            EXPECT_EQ((rig.tool.*field.box).Text(), number.typed);
            EXPECT_TRUE(rig.isStaleButSavable()) << of(field.name, number.typed);
        }
    }
}

TEST(LoadNumbers, AnyOtherTextGivesWayToTheLastNumberAndResultsStay)
{
    for (const NumberField& field : kNumberFields) {
        for (const char* typed : kNoNumbers) {
            CalculatedRig rig;
            rig.range("12.5", "80").calculate();
            const Lines changes = rig.changesBy([&] { enter(rig.tool.*field.box, typed); });
            EXPECT_EQ(changes, Lines()) << of(field.name, typed);
            EXPECT_TRUE(rig.isUntouched()) << of(field.name, typed);
        }
    }
}

TEST(LoadNumbers, AnyOtherTextAfterAStaleOneChangesNothingEither)
{
    LoadRig rig;
    enter(rig.tool.txtMinSafe, "12.50");
    enter(rig.tool.txtMinSafe, "x");
    EXPECT_EQ(rig.tool.txtMinSafe.Text(), "12.5") << "in general form";
    EXPECT_TRUE(rig.tool.NeedsEvaluation());
    EXPECT_FALSE(rig.tool.cmdSave.Enabled());
}

TEST(LoadNumbers, TheLastNumberComesBackAsASingleInGeneralForm)
{
    LoadRig rig;
    enter(rig.tool.txtCapacity, "1234567.89");
    enter(rig.tool.txtCapacity, "x");
    EXPECT_EQ(rig.tool.txtCapacity.Text(), "1234568");
    enter(rig.tool.txtCapacity, "123456789");
    enter(rig.tool.txtCapacity, "x");
    EXPECT_EQ(rig.tool.txtCapacity.Text(), "1.234568E+08");
}

TEST(LoadNumbers, LeavingAnUnchangedNumberMakesResultsStaleToo)
{
    for (const NumberField& field : kNumberFields) {
        CalculatedRig rig;
        (rig.tool.*field.box).Leave();
        EXPECT_TRUE(rig.isStaleButSavable()) << field.name;
    }
}

TEST(LoadNumbers, TypingAloneChangesNothing)
{
    for (const NumberField& field : kNumberFields) {
        CalculatedRig rig;
        const float before = rig.results().*field.value;
        (rig.tool.*field.box).Type("77");
        EXPECT_TRUE(rig.isUntouched()) << field.name;
        EXPECT_EQ(rig.results().*field.value, before) << field.name;
    }
}

TEST(LoadNumbers, OutOfASinglesRangeIsAnOverflow)
{
    for (const NumberField& field : kNumberFields) {
        CalculatedRig rig;
        const float before = rig.results().*field.value;
        EXPECT_EQ(errorOf([&] { enter(rig.tool.*field.box, "1e39"); }), 6) << field.name;
        EXPECT_EQ(rig.results().*field.value, before) << field.name;
        EXPECT_EQ((rig.tool.*field.box).Text(), "1e39") << field.name;
        EXPECT_TRUE(rig.isUntouched()) << field.name;
    }
}

TEST(LoadNumbers, AreReadAndWrittenAsTheRegionDoes)
{
    for (const NumberField& field : kNumberFields) {
        CalculatedRig rig("de-DE");
        enter(rig.tool.*field.box, "12,5");
        EXPECT_EQ(rig.results().*field.value, 12.5F) << field.name;
        enter(rig.tool.*field.box, "x");
        EXPECT_EQ((rig.tool.*field.box).Text(), "12,5") << field.name;
        enter(rig.tool.*field.box, "1.000,5");
        EXPECT_EQ(rig.results().*field.value, 1000.5F) << field.name;
        enter(rig.tool.*field.box, "12.5");
        EXPECT_EQ(rig.results().*field.value, 125) << field.name << ": points group digits";
    }
}

TEST(LoadDates, ADateIsTakenAndRewrittenAsAShortDate)
{
    for (const DateField& field : kDateFields) {
        for (const DateCase& date : kTypedDates) {
            CalculatedRig rig;
            enter(rig.tool.*field.box, date.typed);
            EXPECT_EQ((rig.tool.*field.box).Text(), date.shown) << of(field.name, date.typed);
            EXPECT_EQ((rig.tool.*field.date)(), date.date) << of(field.name, date.typed);
            EXPECT_TRUE(rig.isStaleButSavable()) << of(field.name, date.typed);
        }
    }
}

TEST(LoadDates, AnyOtherTextGivesWayToTheLastDateAndResultsStay)
{
    for (const DateField& field : kDateFields) {
        for (const char* typed : kNoDates) {
            CalculatedRig rig;
            const Lines changes = rig.changesBy([&] { enter(rig.tool.*field.box, typed); });
            EXPECT_EQ(changes, Lines()) << of(field.name, typed);
            EXPECT_TRUE(rig.isUntouched()) << of(field.name, typed);
        }
    }
}

TEST(LoadDates, LeavingAnUnchangedDateMakesResultsStaleToo)
{
    for (const DateField& field : kDateFields) {
        CalculatedRig rig;
        const Date before = (rig.tool.*field.date)();
        (rig.tool.*field.box).Leave();
        EXPECT_TRUE(rig.isStaleButSavable()) << field.name;
        EXPECT_EQ((rig.tool.*field.date)(), before) << field.name;
    }
}

TEST(LoadDates, TypingAloneChangesNothing)
{
    for (const DateField& field : kDateFields) {
        CalculatedRig rig;
        const Date before = (rig.tool.*field.date)();
        (rig.tool.*field.box).Type("2/5/2024");
        EXPECT_TRUE(rig.isUntouched()) << field.name;
        EXPECT_EQ((rig.tool.*field.date)(), before) << field.name;
    }
}

TEST(LoadDates, AreReadAndWrittenAsTheRegionDoes)
{
    for (const DateField& field : kDateFields) {
        CalculatedRig rig("de-DE");
        enter(rig.tool.*field.box, "5.2.24");
        EXPECT_EQ((rig.tool.*field.box).Text(), "05.02.2024") << field.name;
        EXPECT_EQ((rig.tool.*field.date)(), makeDate(2024, 2, 5)) << field.name;
        enter(rig.tool.*field.box, "x");
        EXPECT_EQ((rig.tool.*field.box).Text(), "05.02.2024") << field.name;
    }
}

TEST(LoadDates, TheOtherDateStaysAsItIs)
{
    CalculatedRig rig;
    enter(rig.tool.txtFrom, "2/5/2024");
    EXPECT_EQ(rig.tool.txtTo.Text(), "3/31/2024");
    EXPECT_EQ(rig.tool.EndDate(), makeDate(2024, 3, 31));
    enter(rig.tool.txtTo, "2/10/2024");
    EXPECT_EQ(rig.tool.txtFrom.Text(), "2/5/2024");
    EXPECT_EQ(rig.tool.StartDate(), makeDate(2024, 2, 5));
}

TEST(LoadCalendar, OpensAtTheDateOfItsBox)
{
    for (const DateField& field : kDateFields) {
        CalculatedRig rig;
        enter(rig.tool.*field.box, "2/5/2024");
        (rig.tool.*field.button).Press();
        ASSERT_EQ(rig.services.dateRequests.size(), 1U) << field.name;
        EXPECT_EQ(rig.services.dateRequests[0].first, field.title);
        EXPECT_EQ(rig.services.dateRequests[0].second, makeDate(2024, 2, 5)) << field.name;
    }
}

TEST(LoadCalendar, APickedDateGoesIntoTheBoxAndThereIsNothingToSave)
{
    for (const DateField& field : kDateFields) {
        CalculatedRig rig;
        rig.services.dateAnswer = makeDate(2023, 11, 7);
        (rig.tool.*field.button).Press();
        EXPECT_EQ((rig.tool.*field.box).Text(), "11/7/2023") << field.name;
        EXPECT_EQ((rig.tool.*field.date)(), makeDate(2023, 11, 7)) << field.name;
        EXPECT_TRUE(rig.tool.NeedsEvaluation()) << field.name;
        EXPECT_TRUE(isCleared(rig.tool)) << field.name;
        EXPECT_FALSE(rig.tool.cmdSave.Enabled()) << field.name;
    }
}

TEST(LoadCalendar, TheTimeOfAPickedDateIsLost)
{
    for (const DateField& field : kDateFields) {
        CalculatedRig rig;
        rig.services.dateAnswer = makeDate(2023, 11, 7, 23, 59, 59);
        (rig.tool.*field.button).Press();
        EXPECT_EQ((rig.tool.*field.box).Text(), "11/7/2023") << field.name;
        EXPECT_EQ((rig.tool.*field.date)(), makeDate(2023, 11, 7)) << field.name;
    }
}

TEST(LoadCalendar, TheSameDateMakesResultsStaleToo)
{
    for (const DateField& field : kDateFields) {
        CalculatedRig rig;
        rig.services.dateAnswer = (rig.tool.*field.date)();
        (rig.tool.*field.button).Press();
        EXPECT_TRUE(rig.tool.NeedsEvaluation()) << field.name;
        EXPECT_TRUE(isCleared(rig.tool)) << field.name;
        EXPECT_FALSE(rig.tool.cmdSave.Enabled()) << field.name;
    }
}

TEST(LoadCalendar, WithoutAPickedDateTheDateStaysAsItWas)
{
    for (const DateField& field : kDateFields) {
        CalculatedRig rig;
        const Date before = (rig.tool.*field.date)();
        const std::string text = (rig.tool.*field.box).Text();
        (rig.tool.*field.button).Press();
        EXPECT_EQ((rig.tool.*field.date)(), before) << field.name;
        EXPECT_EQ((rig.tool.*field.box).Text(), text) << field.name;
    }
}

TEST(LoadCalendar, AFailureReachesTheHostAndChangesNothing)
{
    for (const DateField& field : kDateFields) {
        CalculatedRig rig;
        rig.services.dateError = Error(440);
        const Lines changes = rig.changesBy([&] {
            EXPECT_EQ(errorOf([&] { (rig.tool.*field.button).Press(); }), 440) << field.name;
        });
        EXPECT_EQ(changes, Lines()) << field.name;
        EXPECT_TRUE(rig.isUntouched()) << field.name;
    }
}

TEST(LoadCalendar, CannotBeOpenedWhileFourQuartersAreLookedFor)
{
    LoadRig rig;
    rig.tool.cmdFrom.Press();
    rig.tool.cmdTo.Press();
    EXPECT_TRUE(rig.services.dateRequests.empty());
}

TEST(LoadShowPID, RowsOfParametersThatAreGoneKeepTheirText)
{
    LoadRig rig(
        siteOfParameters({hourlyNamed(kGT1Load, "GT1 Load"), hourlyNamed(131'017'512, "Steam")}));
    rig.site->parameters.pop_back();
    rig.tool.chkShowPID.Press();
    EXPECT_EQ(rig.tool.cmbParam.List(), (Lines{"[1-602-0-75-01] GT1 Load", "Steam"}));
    rig.site->parameters.pop_back();
    rig.tool.chkShowPID.Press();
    EXPECT_EQ(rig.tool.cmbParam.List(), (Lines{"[1-602-0-75-01] GT1 Load", "Steam"}));
}

} // namespace k7deval::test
