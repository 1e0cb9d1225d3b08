#include "load/DateField.h"

#include "foundation/DateText.h"
#include "foundation/UtilityFunctions.h"

#include <utility>

namespace k7deval
{

DateField::DateField(screen::TextBox& box, screen::Button& calendar, std::string title,
                     const screen::Surroundings& surroundings)
    : box_(box), title_(std::move(title)), surroundings_(surroundings)
{
    box_.Validate.Connect([this] { validate(); });
    calendar.Clicked.Connect([this] { askCalendar(); });
}

void DateField::set(Date day)
{
    day_ = day;
    show(day_);
}

void DateField::take(Date date)
{
    show(date);
    day_ = dateInBox();
}

void DateField::validate()
{
    const Date today = CurrentDateTime(surroundings_.clock);
    if (IsDate(box_.Text(), surroundings_.regional, today)) {
        take(dateInBox());
        Entered.raise();
    } else {
        show(day_);
    }
}

void DateField::askCalendar()
{
    const Date shown = dateInBox();
    const auto picked = surroundings_.services.PickDate(title_, shown, -1, -1, -1);
    take(picked.value_or(shown));
    Picked.raise();
}

Date DateField::dateInBox() const
{
    return ToDate(box_.Text(), surroundings_.regional, CurrentDateTime(surroundings_.clock));
}

void DateField::show(Date date)
{
    box_.SetText(ShortDate(date, surroundings_.regional));
}

} // namespace k7deval
