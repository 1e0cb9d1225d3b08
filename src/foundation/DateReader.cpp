#include "foundation/DateReader.h"

#include "foundation/MonthNames.h"
#include "foundation/TextScanner.h"

#include <chrono>
#include <cstdint>
#include <vector>

namespace k7deval
{

namespace
{

using Calendar = std::chrono::year_month_day;

// A number of a date text; how many digits it was written with tells a year from a day.
struct Number {
    int value = 0;
    std::size_t digits = 0;

    [[nodiscard]] bool isFullYear() const { return digits > 2; }
};

// The numbers of a date text in their order, and the month's name with the numbers ahead of it.
struct NamedDate {
    std::vector<Number> numbers;
    std::optional<int> month;
    std::size_t numbersAhead = 0;
};

std::optional<Number> takeNumber(TextScanner& scanner)
{
    constexpr std::size_t kMostDigits = 4;
    const std::string_view digits = scanner.takeDigits();
    if (digits.empty() || digits.size() > kMostDigits)
        return std::nullopt;
    Number number{0, digits.size()};
    for (const char digit : digits)
        number.value = number.value * 10 + (digit - '0');
    return number;
}

// Two-digit years up to 29 lie in this century, the others in the last one.
std::optional<int> yearOf(const Number& number)
{
    constexpr int kFirstYearOfLastCentury = 30;
    if (number.isFullYear())
        return number.value >= kFirstYear ? std::optional(number.value) : std::nullopt;
    return number.value + (number.value < kFirstYearOfLastCentury ? 2000 : 1900);
}

std::optional<Calendar> calendarOf(std::optional<int> year, int month, const Number& day)
{
    if (!year || day.isFullYear())
        return std::nullopt;
    const Calendar calendar = std::chrono::year{*year} / month / day.value;
    return calendar.ok() ? std::optional(calendar) : std::nullopt;
}

std::optional<Calendar> numericCalendar(std::optional<int> year, const Number& month,
                                        const Number& day)
{
    if (month.isFullYear())
        return std::nullopt;
    return calendarOf(year, month.value, day);
}

// An impossible month is taken for the day.
std::optional<Calendar> swappedIfNeeded(std::optional<int> year, const Number& month,
                                        const Number& day)
{
    constexpr int kMonths = 12;
    if (month.value > kMonths)
        return numericCalendar(year, day, month);
    return numericCalendar(year, month, day);
}

std::optional<Calendar> fromTwoNumbers(const Number& first, const Number& second, DateOrder order,
                                       int presentYear)
{
    if (order == DateOrder::DayMonthYear)
        return swappedIfNeeded(presentYear, second, first);
    return swappedIfNeeded(presentYear, first, second);
}

std::optional<Calendar> fromThreeNumbers(const Number& first, const Number& second,
                                         const Number& third, DateOrder order)
{
    if (first.isFullYear())
        return numericCalendar(yearOf(first), second, third);
    switch (order) {
    case DateOrder::DayMonthYear:
        return swappedIfNeeded(yearOf(third), second, first);
    case DateOrder::YearMonthDay:
        return swappedIfNeeded(yearOf(first), second, third);
    case DateOrder::MonthDayYear:
        break;
    }
    return swappedIfNeeded(yearOf(third), first, second);
}

std::optional<Calendar> takeNumericCalendar(TextScanner& scanner, DateOrder order, int presentYear)
{
    const auto first = takeNumber(scanner);
    const char separator = scanner.takeOneOf("/-.");
    const auto second = takeNumber(scanner);
    if (!first || !second)
        return std::nullopt;
    if (!scanner.take(separator))
        return fromTwoNumbers(*first, *second, order, presentYear);
    const auto third = takeNumber(scanner);
    return third ? fromThreeNumbers(*first, *second, *third, order) : std::nullopt;
}

bool isAtTime(TextScanner scanner)
{
    return !scanner.takeDigits().empty() && scanner.take(':');
}

bool isAtNumericCalendar(TextScanner scanner)
{
    return !scanner.takeDigits().empty() && scanner.takeOneOf("/-.") != '\0' &&
           !scanner.takeDigits().empty();
}

bool takeNamedElement(TextScanner& scanner, NamedDate& date, const RegionalSettings& settings)
{
    const std::string_view word = scanner.takeLetters();
    if (word.empty()) {
        const auto number = takeNumber(scanner);
        if (number)
            date.numbers.push_back(*number);
        return number.has_value();
    }
    if (date.month)
        return false;
    date.month = monthNamed(word, settings);
    date.numbersAhead = date.numbers.size();
    return date.month.has_value();
}

// Blanks with at most one mark among them. Only the full stop of a shortened name may end a date,
// and a time behind it stands apart.
bool takeSeparator(TextScanner& scanner)
{
    const bool blankAhead = scanner.takeBlanks();
    const char mark = scanner.takeOneOf("/-.,");
    const bool blank = scanner.takeBlanks() || blankAhead;
    if (isAtTime(scanner) && !blank)
        return false;
    const bool ends = scanner.isAtEnd() || isAtTime(scanner);
    return !ends || mark == '\0' || mark == '.';
}

std::optional<Calendar> fromNamedDate(const NamedDate& date, int presentYear)
{
    const std::vector<Number>& numbers = date.numbers;
    if (!date.month || numbers.empty() || numbers.size() > 2 || date.numbersAhead > 1)
        return std::nullopt;
    if (numbers.size() == 1)
        return calendarOf(presentYear, *date.month, numbers[0]);
    // "10 March 2024" and "March 10, 2024", but also "2024 March 10".
    const bool yearFirst = date.numbersAhead == 1 && numbers[0].isFullYear();
    const Number& day = yearFirst ? numbers[1] : numbers[0];
    return calendarOf(yearOf(yearFirst ? numbers[0] : numbers[1]), *date.month, day);
}

std::optional<Calendar> takeNamedCalendar(TextScanner& scanner, const RegionalSettings& settings,
                                          int presentYear)
{
    NamedDate date;
    while (!scanner.isAtEnd() && !isAtTime(scanner)) {
        if (!takeNamedElement(scanner, date, settings) || !takeSeparator(scanner))
            return std::nullopt;
    }
    return fromNamedDate(date, presentYear);
}

std::optional<Calendar> takeCalendar(TextScanner& scanner, const RegionalSettings& settings,
                                     int presentYear)
{
    if (isAtNumericCalendar(scanner))
        return takeNumericCalendar(scanner, settings.dateOrder, presentYear);
    return takeNamedCalendar(scanner, settings, presentYear);
}

enum class HalfDay { None, Morning, Afternoon };

HalfDay takeHalfDay(TextScanner& scanner, const RegionalSettings& settings)
{
    if (scanner.takeIgnoringCase("am") || scanner.takeIgnoringCase(settings.amMark))
        return HalfDay::Morning;
    if (scanner.takeIgnoringCase("pm") || scanner.takeIgnoringCase(settings.pmMark))
        return HalfDay::Afternoon;
    return HalfDay::None;
}

std::optional<int> hourOfDay(const Number& hour, HalfDay halfDay)
{
    constexpr int kHours = 12;
    if (halfDay == HalfDay::None)
        return hour.value < 2 * kHours ? std::optional(hour.value) : std::nullopt;
    if (hour.value < 1 || hour.value > kHours)
        return std::nullopt;
    return hour.value % kHours + (halfDay == HalfDay::Afternoon ? kHours : 0);
}

std::optional<int> takeSixty(TextScanner& scanner)
{
    constexpr int kSixty = 60;
    const auto number = takeNumber(scanner);
    if (!number || number->digits != 2 || number->value >= kSixty)
        return std::nullopt;
    return number->value;
}

// The seconds since midnight of "h:mm" or "h:mm:ss" with or without the mark of a half day.
std::optional<std::int64_t> takeTime(TextScanner& scanner, const RegionalSettings& settings)
{
    const auto hour = takeNumber(scanner);
    scanner.take(':');
    const auto minute = takeSixty(scanner);
    const auto second = scanner.take(':') ? takeSixty(scanner) : std::optional(0);
    scanner.takeBlanks();
    const HalfDay halfDay = takeHalfDay(scanner, settings);
    if (!hour || hour->isFullYear() || !minute || !second)
        return std::nullopt;
    const auto fullHour = hourOfDay(*hour, halfDay);
    if (!fullHour)
        return std::nullopt;
    return (*fullHour * 60 + *minute) * 60 + *second;
}

std::int64_t secondsOf(const Calendar& calendar)
{
    return wholeSeconds(makeDate(static_cast<int>(calendar.year()),
                                 static_cast<int>(static_cast<unsigned>(calendar.month())),
                                 static_cast<int>(static_cast<unsigned>(calendar.day()))));
}

} // namespace

std::optional<Date> readDateText(std::string_view text, const RegionalSettings& settings,
                                 int presentYear)
{
    TextScanner scanner(text);
    scanner.takeBlanks();
    std::int64_t seconds = 0;
    if (!isAtTime(scanner)) {
        const auto calendar = takeCalendar(scanner, settings, presentYear);
        if (!calendar)
            return std::nullopt;
        seconds = secondsOf(*calendar);
        scanner.takeBlanks();
    }
    if (!scanner.isAtEnd()) {
        const auto time = takeTime(scanner, settings);
        scanner.takeBlanks();
        if (!time || !scanner.isAtEnd())
            return std::nullopt;
        seconds += *time;
    }
    return dateFromSeconds(seconds);
}

} // namespace k7deval
