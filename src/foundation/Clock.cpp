#include "foundation/Clock.h"

#include <ctime>

namespace k7deval
{

namespace
{
constexpr int kTmYearZero = 1900;
} // namespace

Date SystemClock::now() const
{
    const std::time_t present = std::time(nullptr);
    const std::tm* local = std::localtime(&present);
    return makeDate(local->tm_year + kTmYearZero, local->tm_mon + 1, local->tm_mday, local->tm_hour,
                    local->tm_min, local->tm_sec);
}

} // namespace k7deval
