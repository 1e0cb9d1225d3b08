#include "load/LoadModel.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <functional>
#include <numeric>

/// Any course of actions on the load tool, beside a model of what makes its results stale and what
/// is there to save.
namespace k7deval::test
{

namespace
{

/// What a user types into a box, and whether it fits there.
struct Entry {
    const char* text;
    bool isGood;
};

constexpr Entry kNumberEntries[] = {{"0", true},  {"100", true},  {"12.5", true}, {"-5", true},
                                    {"60", true}, {"abc", false}, {"", false},    {"99.99", true}};
constexpr Entry kDateEntries[] = {{"1/1/2024", true}, {"2/20/2024", true}, {"11/15/2023", true},
                                  {"7/1/2023", true}, {"4/2/2022", true},  {"2/30/2024", false},
                                  {"someday", false}, {"10/1/2023", true}};
constexpr const char* kYearTexts[] = {"2024", "2023", "abc", "1", "2022"};

template <class List> const auto& oneOf(const List& list, int number)
{
    return list[static_cast<std::size_t>(number) % std::size(list)];
}

/// What the screen should say of its results, and what they should be.
struct ToolModel {
    bool needsEvaluation = true;
    bool isCleared = true;
    bool canSave = false;

    void clear()
    {
        needsEvaluation = true;
        isCleared = true;
    }
    void markStale()
    {
        clear();
        canSave = false;
    }
};

/// Some loads in every quarter of 2023 and the first of 2024, of all statuses, at a step through
/// the year that meets every month.
void addScatteredLoads(LoadRig& rig)
{
    const std::vector<std::optional<double>> values = {
        -3, 0, 4, 29, 30, 31, 59, 60, 61, 99, 100, 101, 130, std::nullopt, 45, 77.7};
    Date hour = makeDate(2023, 1, 1);
    for (int i = 0; i < 400; ++i) {
        rig.series().set(hour, values[static_cast<std::size_t>(i) % values.size()], i % 3);
        hour = dateFromSeconds(wholeSeconds(hour) + 27 * 3600);
    }
}

struct CourseRig : LoadRig {
    CourseRig() { addScatteredLoads(*this); }

    void act(int kind, int number);
    void check() const;

    ToolModel model;
    LoadModel expected{0, 1};
    float maxObserved = 0;

private:
    void enterText(screen::TextBox& box, const Entry& entry);
    void setYear(const std::string& text, bool byCode);
    void pick(screen::ComboBox& list, int row);
    void choose(screen::OptionButton& option);
    void openCalendar(screen::Button& button, int day);
    void changeSetup(int kind, int number);
    void pressCalculate();
    [[nodiscard]] LoadModel hoursRead(const LoadModel& empty) const;
    void checkResults() const;
};

void CourseRig::enterText(screen::TextBox& box, const Entry& entry)
{
    const bool isReachable = box.isReachable();
    enter(box, entry.text);
    if (isReachable && entry.isGood)
        model.clear();
}

void CourseRig::setYear(const std::string& text, bool byCode)
{
    const bool isOther = text != tool.cmbYear.Text();
    const bool isReachable = tool.cmbYear.isReachable();
    if (byCode)
        tool.cmbYear.SetText(text);
    else
        tool.cmbYear.Type(text);
    if (isOther && (byCode || isReachable))
        model.markStale();
}

void CourseRig::pick(screen::ComboBox& list, int row)
{
    list.Pick(row);
    if (&list == &tool.cmbUnit || &list == &tool.cmbParam)
        model.markStale();
}

void CourseRig::choose(screen::OptionButton& option)
{
    if (!option.isSelected())
        model.markStale();
    option.Press();
}

void CourseRig::openCalendar(screen::Button& button, int day)
{
    services.dateAnswer = makeDate(2023, 6, day, day % 24);
    if (button.isReachable())
        model.markStale();
    button.Press();
}

/// What stands in the left half of the tool.
void CourseRig::changeSetup(int kind, int number)
{
    switch (kind) {
    case 0:
        return enterText(tool.txtMinSafe, oneOf(kNumberEntries, number));
    case 1:
        return enterText(tool.txtCapacity, oneOf(kNumberEntries, number));
    case 2:
        return enterText(tool.txtFrom, oneOf(kDateEntries, number));
    case 3:
        return enterText(tool.txtTo, oneOf(kDateEntries, number));
    case 4:
        return setYear(oneOf(kYearTexts, number), number % 2 == 0);
    case 5:
        return pick(number % 2 == 0 ? tool.cmbYear : tool.cmbQTR, number % 3);
    case 6:
        return pick(number % 2 == 0 ? tool.cmbUnit : tool.cmbParam, 0);
    case 7:
        return choose(number % 2 == 0 ? tool.optTimeEnd : tool.optTimeSelect);
    default:
        return openCalendar(number % 2 == 0 ? tool.cmdFrom : tool.cmdTo, number % 30 + 1);
    }
}

void CourseRig::act(int kind, int number)
{
    switch (kind) {
    case 9:
        tool.chkShowPID.Press();
        break;
    case 10:
        tool.cmdSave.Press();
        break;
    case 11:
        series().values[static_cast<std::size_t>(number)] = number;
        break;
    case 12:
        tool.SetDIServer(number % 2 == 0 ? serve(site) : tool.DIServer());
        model.markStale();
        break;
    case 13:
    case 14:
    case 15:
        pressCalculate();
        break;
    default:
        changeSetup(kind, number);
    }
}

/// The hours of all that was read, counted apart from the tool.
LoadModel CourseRig::hoursRead(const LoadModel& empty) const
{
    LoadModel counted = empty;
    for (const ReadRequest& read : site->reads) {
        const auto& hours = site->parameter(read.pid).hours;
        for (std::int32_t i = 0; i < read.count; ++i) {
            const auto at = hourBoundariesBetween(hours.start, read.start) + i;
            if (at < 0 || at >= static_cast<std::int64_t>(hours.values.size()))
                continue;
            const auto slot = static_cast<std::size_t>(at);
            if (hours.values[slot] && hours.statuses[slot] == 0)
                counted.take(*hours.values[slot]);
        }
    }
    return counted;
}

void CourseRig::pressCalculate()
{
    site->reads.clear();
    calculate();
    model.canSave = true;
    model.isCleared = false;
    if (!model.needsEvaluation) {
        RC_ASSERT(site->reads.empty());
        return;
    }
    const LoadModel range(singleOf(tool.txtMinSafe.Text()), singleOf(tool.txtCapacity.Text()));
    expected = hoursRead(range);
    maxObserved = std::max(maxObserved, expected.maxObserved);
    model.needsEvaluation = range.range == 0;
    RC_ASSERT(site->reads.empty() == (range.range == 0));
    RC_ASSERT(results().LowThreshold == range.low);
    RC_ASSERT(results().HighThreshold == range.high);
}

void CourseRig::checkResults() const
{
    const LoadEvaluation& evaluation = results();
    RC_ASSERT(countsOf(evaluation) == expected.counts);
    RC_ASSERT(evaluation.Bins == expected.bins);
    RC_ASSERT(evaluation.MaxObserved == maxObserved);
    RC_ASSERT(std::accumulate(evaluation.Bins.begin(), evaluation.Bins.end(), 0) ==
              evaluation.LowHours + evaluation.MidHours + evaluation.HighHours);
    RC_ASSERT(evaluation.Bins[0] == 0);
}

void CourseRig::check() const
{
    RC_ASSERT(tool.NeedsEvaluation() == model.needsEvaluation);
    RC_ASSERT(isCleared(tool) == model.isCleared);
    RC_ASSERT(tool.cmdSave.Enabled() == model.canSave);
    RC_ASSERT(tool.MousePointer() == screen::MousePointer::Default);
    RC_ASSERT(tool.txtFrom.Enabled() == tool.optTimeSelect.isSelected());
    RC_ASSERT(tool.cmbYear.Enabled() == tool.optTimeEnd.isSelected());
    RC_ASSERT(tool.optTimeEnd.isSelected() != tool.optTimeSelect.isSelected());
    RC_ASSERT(tool.EndDate() == dateOnly(tool.EndDate()));
    for (int bar = 1; bar <= 20; ++bar) {
        const screen::Geometry& place = tool.lblBar[bar].place();
        RC_ASSERT(static_cast<int>(place.Top) % 15 == 0);
        RC_ASSERT(static_cast<int>(place.Height) % 15 == 0);
        RC_ASSERT(model.isCleared || place.Top + place.Height == 2700 || place.Height == 15);
    }
    checkResults();
}

} // namespace

RC_GTEST_PROP(LoadToolProperties, ResultsAreThoseOfTheHoursReadAndStaleWhenTheyShouldBe, ())
{
    const auto actions = *rc::gen::container<std::vector<std::pair<int, int>>>(
        rc::gen::pair(rc::gen::inRange(0, 16), rc::gen::inRange(0, 400)));
    CourseRig rig;
    for (const auto& [kind, number] : actions) {
        rig.act(kind, number);
        rig.check();
    }
}

} // namespace k7deval::test
