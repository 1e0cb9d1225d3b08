#include "sitedb/formats/CalibrationRow.h"

#include "sitedb/PlainText.h"
#include "sitedb/formats/Fields.h"
#include "sitedb/tables/TimeText.h"

#include <algorithm>
#include <array>
#include <utility>

namespace k7deval::sitedb
{

namespace
{

// The tools hold values as singles and show at most six decimals.
constexpr std::int32_t kMostDecimals = 6;
// No gas is more than pure: a million ppm. Flow is calibrated in units in which it has fewer
// digits.
constexpr double kLargestValue = 1'000'000;

struct GasLevel {
    std::int32_t code;
    std::string text;
};

GasLevel upscaleLevel(const JsonNode& node)
{
    const std::string text = node.textOrNull();
    if (text.empty() && node.isNull())
        return {2, ""};
    if (text == "LOW" || text == "MID")
        return {1, text};
    if (text == "HIGH")
        return {2, text};
    throw node.error(node.shown() + " is not LOW, MID or HIGH");
}

std::int32_t decimalsOf(const std::optional<double>& value)
{
    if (!value)
        return 0;
    const std::string text = numberText(*value);
    const auto point = text.find('.');
    const std::size_t decimals = point == std::string::npos ? 0 : text.size() - point - 1;
    return std::min(static_cast<std::int32_t>(decimals), kMostDecimals);
}

} // namespace

QaInjection CalibrationRow::zero(const std::string& runTime) const
{
    return injection("zero", 0, "ZERO", runTime);
}

QaInjection CalibrationRow::upscale(const std::string& runTime) const
{
    GasLevel level = upscaleLevel(row_.field({"upscaleGasLevelCode", "upscaleGasCode"}));
    return injection("upscale", level.code, std::move(level.text), runTime);
}

JsonNode CalibrationRow::part(const std::string& gas, const char* name) const
{
    return row_.field(gas + name);
}

std::string CalibrationRow::time(const std::string& gas) const
{
    const std::string date = dateIn(part(gas, "InjectionDate"));
    const int hour = hourIn(part(gas, "InjectionHour"));
    return minuteText(date, hour, part(gas, "InjectionMinute").whole(0, 59, "minute"));
}

bool CalibrationRow::lacks(const std::string& gas) const
{
    constexpr std::array kParts{"InjectionDate", "InjectionHour", "InjectionMinute",
                                "ReferenceValue", "MeasuredValue"};
    return std::ranges::all_of(
        kParts, [&](const char* name) { return row_.fieldOrNull(gas + name).isNull(); });
}

QaInjection CalibrationRow::injection(const std::string& gas, std::int32_t levelCode,
                                      std::string levelText, const std::string& runTime) const
{
    QaInjection injection;
    injection.path = row_.path() + ", " + gas + " injection";
    injection.runTime = runTime;
    injection.injectionEnd = time(gas);
    injection.gasLevelCode = levelCode;
    injection.gasLevelText = std::move(levelText);
    injection.reference = part(gas, "ReferenceValue").numberOrNull(kLargestValue);
    injection.measured = part(gas, "MeasuredValue").numberOrNull(kLargestValue);
    injection.isOnline =
        row_.field({"onlineOfflineIndicator", "onLineOffLineIndicator"}).whole(0, 1, "indicator") ==
        1;
    return injection;
}

void CalibrationRows::read(QaTest& test, const JsonNode& node)
{
    const CalibrationRow row(node);
    const bool hasZero = !mayLack_ || !row.lacksZero();
    if (hasZero)
        attempt(test, [&] { return row.zero(row.runTime()); });
    if (!mayLack_ || !row.lacksUpscale())
        attempt(test, [&] { return row.upscale(runTimeOfUpscale(row, hasZero)); });
}

// The zero injection's time stands for the row. Where there is none, or it is left out because its
// time can't be read, the upscale injection has only its own.
std::string CalibrationRows::runTimeOfUpscale(const CalibrationRow& row, bool hasZero) const
{
    if (!hasZero)
        return row.upscaleTime();
    if (!leavesOut_)
        return row.runTime();
    try {
        return row.runTime();
    } catch (const ImportError&) {
        return row.upscaleTime();
    }
}

template <class Read> void CalibrationRows::attempt(QaTest& test, const Read& read)
{
    try {
        const QaInjection injection = read();
        test.decimals = std::max(
            {test.decimals, decimalsOf(injection.reference), decimalsOf(injection.measured)});
        test.injections.push_back(injection);
    } catch (const ImportError& fault) {
        if (!leavesOut_)
            throw;
        leaveOut(fault);
    }
}

// A fault of a whole row keeps both its injections out; its sentence is listed once.
void CalibrationRows::leaveOut(const ImportError& fault)
{
    ++leftOutCount_;
    if (leftOut_.empty() || leftOut_.back() != fault.description())
        leftOut_.push_back(fault.description());
}

} // namespace k7deval::sitedb
