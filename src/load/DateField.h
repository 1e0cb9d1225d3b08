#pragma once

#include "foundation/Date.h"
#include "screen/Buttons.h"
#include "screen/Services.h"
#include "screen/TextBox.h"

#include <string>

namespace k7deval
{

/// A box for a day, kept beside it, and the button that opens its calendar. What is in the box is
/// looked at when the user leaves it, and without any message: a date is kept, any other text gives
/// way to the day that was kept before. Box and button outlive the field.
class DateField
{
public:
    /// The title is that of the calendar.
    DateField(screen::TextBox& box, screen::Button& calendar, std::string title,
              const screen::Surroundings& surroundings);
    DateField(const DateField&) = delete;
    DateField& operator=(const DateField&) = delete;

    /// The box was left with a date in it, be it the same as before.
    screen::Event<> Entered;
    /// The calendar was used, be it without picking a date.
    screen::Event<> Picked;

    [[nodiscard]] Date day() const { return day_; }
    /// Keeps a day and shows it.
    void set(Date day);
    /// Shows a date and keeps what the box then says, which leaves whole days.
    void take(Date date);

private:
    void validate();
    void askCalendar();
    [[nodiscard]] Date dateInBox() const;
    void show(Date date);

    screen::TextBox& box_;
    std::string title_;
    screen::Surroundings surroundings_;
    Date day_;
};

} // namespace k7deval
