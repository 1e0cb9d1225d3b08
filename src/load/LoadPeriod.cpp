#include "foundation/DateText.h"
#include "foundation/NumberText.h"
#include "foundation/UtilityFunctions.h"
#include "histogram/Quarters.h"
#include "load/ctrlMaxMW.h"

#include <algorithm>
#include <cstdint>
#include <utility>

/// What is entered: the start-up of the screen, the fields for values and dates, and the period of
/// the evaluation.
namespace k7deval
{

namespace
{

/// Five quarters, the longest of them.
constexpr std::int64_t kLongestPeriodDays = 457;
constexpr double kHoursToLastOfDay = 23;

/// "MM/dd/yy"
std::string monthDayYear(Date date)
{
    const auto twoDigits = [](int number) {
        const std::string text = std::to_string(number);
        return text.size() < 2 ? "0" + text : text;
    };
    const DateParts parts = dateParts(date);
    return twoDigits(parts.month) + "/" + twoDigits(parts.day) + "/" + twoDigits(parts.year % 100);
}

} // namespace

void ctrlMaxMW::startUp()
{
    txtMinSafe.SetText("0");
    txtCapacity.SetText("0");
    optTimeEnd.setSelected(true);
    const Date today = CurrentDateTime(surroundings_.clock);
    histogram::offerQuarters(cmbQTR, cmbYear, today);
    const histogram::Quarter last = histogram::lastFinishedQuarter(today);
    takeDate(txtFrom, startDate_, histogram::firstDayOf(last));
    takeDate(txtTo, endDate_, histogram::lastDayOf(last));
    ctrlMaxMW::ClearResults();
    lblBar.ResetBars();
}

void ctrlMaxMW::connectFields()
{
    txtCapacity.Validate.Connect(
        [this] { validateNumber(txtCapacity, evaluation_.CapacityValue); });
    txtMinSafe.Validate.Connect([this] { validateNumber(txtMinSafe, evaluation_.MinSafeValue); });
    txtFrom.Validate.Connect([this] { validateDate(txtFrom, startDate_); });
    txtTo.Validate.Connect([this] { validateDate(txtTo, endDate_); });
    cmdFrom.Clicked.Connect([this] { pickDate(txtFrom, startDate_, "Start of Load Analysis"); });
    cmdTo.Clicked.Connect([this] { pickDate(txtTo, endDate_, "End of Load Analysis"); });
}

/// The results go also when the text did not change. What is saved then shows it: the button for
/// saving stays as it is.
void ctrlMaxMW::validateNumber(screen::TextBox& field, float& value)
{
    if (IsNumeric(field.Text(), surroundings_.regional)) {
        value = ToSingle(field.Text(), surroundings_.regional);
        clearStaleResults();
    } else {
        field.SetText(numberText(value));
    }
}

void ctrlMaxMW::validateDate(screen::TextBox& field, Date& date)
{
    const Date today = CurrentDateTime(surroundings_.clock);
    if (IsDate(field.Text(), surroundings_.regional, today)) {
        takeDate(field, date, dateIn(field));
        clearStaleResults();
    } else {
        field.SetText(ShortDate(date, surroundings_.regional));
    }
}

void ctrlMaxMW::pickDate(screen::TextBox& field, Date& date, const std::string& title)
{
    const Date shown = dateIn(field);
    const auto picked = surroundings_.services.PickDate(title, shown, -1, -1, -1);
    takeDate(field, date, picked.value_or(shown));
    markStale();
}

/// A date goes through its text, which leaves whole days.
void ctrlMaxMW::takeDate(screen::TextBox& field, Date& date, Date value) const
{
    field.SetText(ShortDate(value, surroundings_.regional));
    date = dateIn(field);
}

Date ctrlMaxMW::dateIn(const screen::TextBox& field) const
{
    return ToDate(field.Text(), surroundings_.regional, CurrentDateTime(surroundings_.clock));
}

std::string ctrlMaxMW::numberText(float value) const
{
    return GeneralNumber(value, surroundings_.regional);
}

void ctrlMaxMW::periodRule()
{
    markStale();
    const bool isQuarter = optTimeEnd.isSelected();
    cmbYear.SetEnabled(isQuarter);
    cmbQTR.SetEnabled(isQuarter);
    txtFrom.SetEnabled(!isQuarter);
    cmdFrom.SetEnabled(!isQuarter);
    txtTo.SetEnabled(!isQuarter);
    cmdTo.SetEnabled(!isQuarter);
}

/// The length is tested ahead of the swap and with its sign, so that dates in reverse order are
/// evaluated however far they lie apart.
void ctrlMaxMW::CheckEvaluationPeriod()
{
    if (!optTimeSelect.isSelected())
        return;
    const RegionalSettings& regional = surroundings_.regional;
    if (dayBoundariesBetween(startDate_, endDate_) > kLongestPeriodDays) {
        const Date start = DateAddExact("d", -static_cast<double>(kLongestPeriodDays), endDate_);
        surroundings_.services.MsgBox(
            {"A custom evaluation period greater than 5 quarters\r\nis not supported.\r\n"
             "Setting evaluation start time to " +
                 monthDayYear(start) + ".",
             "Resetting Evaluation Period", screen::MsgBoxButtons::OK, screen::MsgBoxIcon::None});
        startDate_ = start;
        txtFrom.SetText(ShortDate(startDate_, regional));
    }
    if (startDate_ > endDate_) {
        std::swap(startDate_, endDate_);
        txtFrom.SetText(ShortDate(startDate_, regional));
        txtTo.SetText(ShortDate(endDate_, regional));
    }
}

LoadPeriod ctrlMaxMW::period()
{
    if (optTimeEnd.isSelected())
        return {histogram::GetSelectedQuarterEnd(cmbQTR, cmbYear, surroundings_), std::nullopt};
    return {DateAddExact("h", kHoursToLastOfDay, endDate_), startDate_};
}

} // namespace k7deval
