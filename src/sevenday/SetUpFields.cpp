#include "foundation/DateText.h"
#include "foundation/NumberText.h"
#include "foundation/UtilityFunctions.h"
#include "sevenday/ctrl7DaySetUp.h"

#include <cmath>
#include <limits>

/// What is typed into the page. Bad input is put back silently when the field is left.
namespace k7deval
{

namespace
{

constexpr double kLargestOris = 999999;

} // namespace

void ctrl7DaySetUp::connectFields()
{
    txtORIS.Validate.Connect([this] { validateOris(); });
    txtOtherSpanValue.Validate.Connect(
        [this] { validateLimit(txtOtherSpanValue, otherSpanLimit_); });
    txtOtherAbsoluteValue.Validate.Connect(
        [this] { validateLimit(txtOtherAbsoluteValue, otherAbsoluteLimit_); });
    txtFromDate.Validate.Connect([this] { validateDate(txtFromDate, fromDate_); });
    txtToDate.Validate.Connect([this] { validateDate(txtToDate, toDate_); });
    cmdFromDate.Clicked.Connect([this] { pickDate(txtFromDate, fromDate_); });
    cmdToDate.Clicked.Connect([this] { pickDate(txtToDate, toDate_); });
}

void ctrl7DaySetUp::validateOris()
{
    const auto number = numberIn(txtORIS.Text(), surroundings_.regional);
    const double whole = number ? std::nearbyint(*number) : -1;
    if (whole < 0 || whole > kLargestOris)
        txtORIS.SetText("");
    else
        SetOrisCode(toInt32(whole));
}

void ctrl7DaySetUp::validateLimit(screen::TextBox& field, float& limit) const
{
    const auto number = numberIn(field.Text(), surroundings_.regional);
    if (number && std::abs(*number) <= std::numeric_limits<float>::max())
        limit = static_cast<float>(*number);
    else
        field.SetText(GeneralNumber(limit, surroundings_.regional));
}

void ctrl7DaySetUp::validateDate(screen::TextBox& field, Date& date) const
{
    const Date today = CurrentDateTime(surroundings_.clock);
    if (IsDate(field.Text(), surroundings_.regional, today))
        date = dateOnly(ToDate(field.Text(), surroundings_.regional, today));
    field.SetText(ShortDate(date, surroundings_.regional));
}

void ctrl7DaySetUp::pickDate(screen::TextBox& field, Date& date) const
{
    const auto picked = surroundings_.services.PickDate("7-Day Drift", date, -1, -1, -1);
    if (picked)
        date = *picked;
    field.SetText(ShortDate(date, surroundings_.regional));
}

void ctrl7DaySetUp::offerOtherLimit(screen::TextBox& field, bool enabled, float limit) const
{
    field.SetEnabled(enabled);
    field.SetText(enabled ? GeneralNumber(limit, surroundings_.regional) : std::string());
}

} // namespace k7deval
