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

void PrintTo(const NumberField& field, std::ostream* out)
{
    *out << field.name;
}

void PrintTo(const DateField& field, std::ostream* out)
{
    *out << field.name;
}

/// One of the fields of a calculated tool.
template <class Field> struct LoadField : testing::TestWithParam<Field>, CalculatedRig {
    explicit LoadField(const std::string& region = "en-US") : CalculatedRig(region) {}

    screen::TextBox& box = tool.*(this->GetParam().box);
};

struct LoadNumbers : LoadField<NumberField> {
    using LoadField::LoadField;
    [[nodiscard]] float value() const { return results().*GetParam().value; }
};

struct LoadDates : LoadField<DateField> {
    using LoadField::LoadField;
    screen::Button& button = tool.*(GetParam().button);
    [[nodiscard]] Date date() const { return (tool.*GetParam().date)(); }
    /// Asks for the calendar, in which this date is picked.
    void pick(Date picked)
    {
        services.dateAnswer = picked;
        button.Press();
    }
    [[nodiscard]] bool isStaleWithoutSaving() const
    {
        return isCleared(tool) && tool.NeedsEvaluation() && !tool.cmdSave.Enabled();
    }
};

struct GermanLoadNumbers : LoadNumbers {
    GermanLoadNumbers() : LoadNumbers("de-DE") {}
};

struct GermanLoadDates : LoadDates {
    GermanLoadDates() : LoadDates("de-DE") {}
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Fields, LoadNumbers, testing::ValuesIn(kNumberFields));
INSTANTIATE_TEST_SUITE_P(Fields, GermanLoadNumbers, testing::ValuesIn(kNumberFields));
INSTANTIATE_TEST_SUITE_P(Fields, LoadDates, testing::ValuesIn(kDateFields));
INSTANTIATE_TEST_SUITE_P(Fields, GermanLoadDates, testing::ValuesIn(kDateFields));

TEST_P(LoadNumbers, ANumberIsTakenAndStaysAsItWasTyped)
{
    for (const NumberCase& number : kNumbers) {
        calculate();
        enter(box, number.typed);
        EXPECT_EQ(value(), number.value) << number.typed;
        EXPECT_EQ(box.Text(), number.typed);
        EXPECT_TRUE(isStaleButSavable()) << number.typed;
    }
}

TEST_P(LoadNumbers, AnyOtherTextGivesWayToTheLastNumberAndResultsStay)
{
    range("12.5", "80").calculate();
    for (const char* typed : kNoNumbers) {
        EXPECT_EQ(changesBy([&] { enter(box, typed); }), Lines()) << typed;
        EXPECT_TRUE(isUntouched()) << typed;
    }
}

TEST_P(LoadNumbers, LeavingAnUnchangedNumberMakesResultsStaleToo)
{
    box.Leave();
    EXPECT_TRUE(isStaleButSavable());
}

TEST_P(LoadNumbers, TypingAloneChangesNothing)
{
    const float before = value();
    box.Type("77");
    EXPECT_TRUE(isUntouched());
    EXPECT_EQ(value(), before);
}

TEST_P(LoadNumbers, OutOfASinglesRangeIsAnOverflow)
{
    const float before = value();
    EXPECT_EQ(errorOf([&] { enter(box, "1e39"); }), 6);
    EXPECT_EQ(value(), before);
    EXPECT_EQ(box.Text(), "1e39");
    EXPECT_TRUE(isUntouched());
}

TEST_P(GermanLoadNumbers, AreReadAndWrittenAsTheRegionDoes)
{
    enter(box, "12,5");
    EXPECT_EQ(value(), 12.5F);
    enter(box, "x");
    EXPECT_EQ(box.Text(), "12,5");
    enter(box, "1.000,5");
    EXPECT_EQ(value(), 1000.5F);
    enter(box, "12.5");
    EXPECT_EQ(value(), 125) << "points group digits";
}

TEST(LoadNumbersLater, AnyOtherTextAfterAStaleOneChangesNothingEither)
{
    LoadRig rig;
    enter(rig.tool.txtMinSafe, "12.50");
    enter(rig.tool.txtMinSafe, "x");
    EXPECT_EQ(rig.tool.txtMinSafe.Text(), "12.5") << "in general form";
    EXPECT_TRUE(rig.tool.NeedsEvaluation());
    EXPECT_FALSE(rig.tool.cmdSave.Enabled());
}

TEST(LoadNumbersLater, TheLastNumberComesBackAsASingleInGeneralForm)
{
    LoadRig rig;
    enter(rig.tool.txtCapacity, "1234567.89");
    enter(rig.tool.txtCapacity, "x");
    EXPECT_EQ(rig.tool.txtCapacity.Text(), "1234568");
    enter(rig.tool.txtCapacity, "123456789");
    enter(rig.tool.txtCapacity, "x");
    EXPECT_EQ(rig.tool.txtCapacity.Text(), "1.234568E+08");
}

TEST_P(LoadDates, ADateIsTakenAndRewrittenAsAShortDate)
{
    for (const DateCase& row : kTypedDates) {
        calculate();
        enter(box, row.typed);
        EXPECT_EQ(box.Text(), row.shown) << row.typed;
        EXPECT_EQ(date(), row.date) << row.typed;
        EXPECT_TRUE(isStaleButSavable()) << row.typed;
    }
}

TEST_P(LoadDates, AnyOtherTextGivesWayToTheLastDateAndResultsStay)
{
    for (const char* typed : kNoDates) {
        EXPECT_EQ(changesBy([&] { enter(box, typed); }), Lines()) << typed;
        EXPECT_TRUE(isUntouched()) << typed;
    }
}

TEST_P(LoadDates, LeavingAnUnchangedDateMakesResultsStaleToo)
{
    const Date before = date();
    box.Leave();
    EXPECT_TRUE(isStaleButSavable());
    EXPECT_EQ(date(), before);
}

TEST_P(LoadDates, TypingAloneChangesNothing)
{
    const Date before = date();
    box.Type("2/5/2024");
    EXPECT_TRUE(isUntouched());
    EXPECT_EQ(date(), before);
}

TEST_P(GermanLoadDates, AreReadAndWrittenAsTheRegionDoes)
{
    enter(box, "5.2.24");
    EXPECT_EQ(box.Text(), "05.02.2024");
    EXPECT_EQ(date(), makeDate(2024, 2, 5));
    enter(box, "x");
    EXPECT_EQ(box.Text(), "05.02.2024");
}

TEST(LoadDatesLater, TheOtherDateStaysAsItIs)
{
    CalculatedRig rig;
    enter(rig.tool.txtFrom, "2/5/2024");
    EXPECT_EQ(rig.tool.txtTo.Text(), "3/31/2024");
    EXPECT_EQ(rig.tool.EndDate(), makeDate(2024, 3, 31));
    enter(rig.tool.txtTo, "2/10/2024");
    EXPECT_EQ(rig.tool.txtFrom.Text(), "2/5/2024");
    EXPECT_EQ(rig.tool.StartDate(), makeDate(2024, 2, 5));
}

TEST_P(LoadDates, TheCalendarOpensAtTheDateOfItsBox)
{
    enter(box, "2/5/2024");
    button.Press();
    ASSERT_EQ(services.dateRequests.size(), 1U);
    EXPECT_EQ(services.dateRequests[0].first, GetParam().title);
    EXPECT_EQ(services.dateRequests[0].second, makeDate(2024, 2, 5));
}

TEST_P(LoadDates, APickedDateGoesIntoTheBoxWithoutItsTimeAndThereIsNothingToSave)
{
    for (const Date picked : {makeDate(2023, 11, 7), makeDate(2023, 11, 7, 23, 59, 59)}) {
        calculate();
        pick(picked);
        EXPECT_EQ(box.Text(), "11/7/2023");
        EXPECT_EQ(date(), makeDate(2023, 11, 7));
        EXPECT_TRUE(isStaleWithoutSaving());
    }
}

TEST_P(LoadDates, TheSameDatePickedMakesResultsStaleToo)
{
    pick(date());
    EXPECT_TRUE(isStaleWithoutSaving());
}

TEST_P(LoadDates, WithoutAPickedDateTheDateStaysAsItWas)
{
    const Date before = date();
    const std::string text = box.Text();
    button.Press();
    EXPECT_EQ(date(), before);
    EXPECT_EQ(box.Text(), text);
}

TEST_P(LoadDates, AFailureOfTheCalendarReachesTheHostAndChangesNothing)
{
    services.dateError = Error(440);
    EXPECT_EQ(changesBy([&] { EXPECT_EQ(errorOf([&] { button.Press(); }), 440); }), Lines());
    EXPECT_TRUE(isUntouched());
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
