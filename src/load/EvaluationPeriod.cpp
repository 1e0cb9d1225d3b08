#include "load/EvaluationPeriod.h"

#include "foundation/TextFunctions.h"
#include "foundation/UtilityFunctions.h"
#include "histogram/Quarters.h"

#include <cstdint>
#include <string>

namespace k7deval
{

namespace
{

/// Five quarters, the longest of them.
constexpr std::int64_t kLongestPeriodDays = 457;

/// "MM/dd/yy"
std::string monthDayYear(Date date)
{
    const DateParts parts = dateParts(date);
    return twoDigits(parts.month) + "/" + twoDigits(parts.day) + "/" + twoDigits(parts.year % 100);
}

} // namespace

EvaluationPeriod::EvaluationPeriod(const Widgets& widgets, const screen::Surroundings& surroundings)
    : widgets_(widgets), surroundings_(surroundings),
      from_(widgets.txtFrom, widgets.cmdFrom, "Start of Load Analysis", surroundings),
      to_(widgets.txtTo, widgets.cmdTo, "End of Load Analysis", surroundings)
{
    for (screen::OptionButton* option : {&widgets_.optTimeEnd, &widgets_.optTimeSelect})
        option->Clicked.Connect([this] { optionRule(); });
    // Only a change of the text counts; a pick from the open list leaves the results as they are.
    for (screen::ComboBox* list : {&widgets_.cmbYear, &widgets_.cmbQTR})
        list->TextChanged.Connect([this] { Changed.raise(); });
    for (DateField* field : {&from_, &to_}) {
        field->Entered.Connect([this] { DateEntered.raise(); });
        field->Picked.Connect([this] { Changed.raise(); });
    }
}

void EvaluationPeriod::startUp()
{
    widgets_.optTimeEnd.setSelected(true);
    const Date today = CurrentDateTime(surroundings_.clock);
    histogram::offerQuarters(widgets_.cmbQTR, widgets_.cmbYear, today);
    const histogram::Quarter last = histogram::lastFinishedQuarter(today);
    from_.take(histogram::firstDayOf(last));
    to_.take(histogram::lastDayOf(last));
}

void EvaluationPeriod::optionRule()
{
    Changed.raise();
    const bool isQuarter = widgets_.optTimeEnd.isSelected();
    widgets_.cmbYear.SetEnabled(isQuarter);
    widgets_.cmbQTR.SetEnabled(isQuarter);
    widgets_.txtFrom.SetEnabled(!isQuarter);
    widgets_.cmdFrom.SetEnabled(!isQuarter);
    widgets_.txtTo.SetEnabled(!isQuarter);
    widgets_.cmdTo.SetEnabled(!isQuarter);
}

/// The length is tested ahead of the swap and with its sign, so that dates in reverse order are
/// evaluated however far they lie apart.
void EvaluationPeriod::CheckEvaluationPeriod()
{
    if (!widgets_.optTimeSelect.isSelected())
        return;
    if (dayBoundariesBetween(StartDate(), EndDate()) > kLongestPeriodDays)
        moveStart();
    if (StartDate() > EndDate()) {
        const Date start = StartDate();
        from_.set(EndDate());
        to_.set(start);
    }
}

void EvaluationPeriod::moveStart()
{
    const Date start = DateAddExact("d", -static_cast<double>(kLongestPeriodDays), EndDate());
    surroundings_.services.MsgBox(
        {"A custom evaluation period greater than 5 quarters\r\nis not supported.\r\n"
         "Setting evaluation start time to " +
             monthDayYear(start) + ".",
         "Resetting Evaluation Period", screen::MsgBoxButtons::OK, screen::MsgBoxIcon::None});
    from_.set(start);
}

LoadPeriod EvaluationPeriod::hours()
{
    if (widgets_.optTimeEnd.isSelected())
        return {histogram::GetSelectedQuarterEnd(widgets_.cmbQTR, widgets_.cmbYear, surroundings_),
                std::nullopt};
    return {DateAddExact("h", kHoursPerDay - 1, EndDate()), StartDate()};
}

} // namespace k7deval
