#include "foundation/PIDFunctions.h"

#include "foundation/Error.h"
#include "foundation/NumberText.h"
#include "foundation/TextFunctions.h"

#include <limits>
#include <optional>
#include <string_view>

namespace k7deval
{

namespace
{

constexpr std::int32_t kParameterCodeFactor = 100000;
constexpr std::int32_t kVariantDigitFactor = 10000;
constexpr std::int32_t kProgramCodeFactor = 100;

constexpr std::int32_t kLowestPID = 100000;
constexpr std::int32_t kHighestPID = 1999999999;

bool isWithin(std::int32_t value, std::int32_t highest)
{
    return value >= 0 && value <= highest;
}

bool isValidInteger(PID pid)
{
    const std::int32_t variantDigit = PIDPart(pid, pidpart::kVariantDigit);
    return pid >= kLowestPID && pid <= kHighestPID && variantDigit != 6 && variantDigit != 9;
}

// The test goes by the type of the value: bytes, booleans, amounts and dates are no PIDs.
struct ValidPIDTest {
    bool operator()(std::int16_t value) const { return isValidInteger(value); }
    bool operator()(std::int32_t value) const { return isValidInteger(value); }
    bool operator()(float value) const { return isValidInteger(toInt32(value)); }
    bool operator()(double value) const { return isValidInteger(toInt32(value)); }
    bool operator()(const std::string& value) const { return TextToPID(value, false) != 0; }
    template <class Other> bool operator()(const Other&) const { return false; }
};

std::string partText(PID pid, int part, std::size_t width)
{
    return withZerosAhead(std::to_string(PIDPart(pid, part)), width);
}

// What stands in the square brackets that open a text; "@" behind the bracket marks another use.
std::string bracketContent(std::string_view text)
{
    text = trimLeft(text);
    if (!text.starts_with('['))
        return {};
    text = trimLeft(text.substr(1));
    const std::size_t end = text.find(']');
    if (text.starts_with('@') || end == std::string_view::npos)
        return {};
    return std::string(text.substr(0, end));
}

// Takes the last character, which may be several bytes long.
char takeLastCharacter(std::string& text)
{
    constexpr unsigned kContinuationMask = 0xC0;
    constexpr unsigned kContinuation = 0x80;
    char last = 0;
    do {
        last = text.back();
        text.pop_back();
    } while (!text.empty() &&
             (static_cast<unsigned char>(last) & kContinuationMask) == kContinuation);
    return last;
}

} // namespace

PID MakePID(std::int32_t unit, std::int32_t parameterCode, std::int32_t variantDigit,
            std::int32_t programCode, std::int32_t suffix)
{
    const bool inRange = isWithin(unit, kHighestUnit) && isWithin(parameterCode, 999) &&
                         isWithin(variantDigit, 9) && isWithin(programCode, 99) &&
                         isWithin(suffix, 99);
    if (!inRange)
        return 0;
    const PID pid = unit * kUnitFactor + parameterCode * kParameterCodeFactor +
                    variantDigit * kVariantDigitFactor + programCode * kProgramCodeFactor + suffix;
    return isValidInteger(pid) ? pid : 0;
}

std::int32_t PIDPart(PID pid, std::int32_t part)
{
    switch (part) {
    case pidpart::kUnit:
        return pid / kUnitFactor;
    case pidpart::kParameterCode:
        return pid % kUnitFactor / kParameterCodeFactor;
    case pidpart::kSuffix:
        return pid % kProgramCodeFactor;
    case pidpart::kProgramCode:
        return pid % kVariantDigitFactor / kProgramCodeFactor;
    case pidpart::kVariantDigit:
        return pid % kParameterCodeFactor / kVariantDigitFactor;
    case pidpart::kVariantDigitSevenAsEight: {
        const std::int32_t digit = PIDPart(pid, pidpart::kVariantDigit);
        return digit == 7 ? 8 : digit;
    }
    default:
        return 0;
    }
}

bool IsValidPID(const Variant& value)
{
    try {
        return std::visit(ValidPIDTest(), value);
    } catch (const Error&) {
        return false; // A number too large for a PID is none.
    }
}

std::string PIDToText(PID pid)
{
    if (!isValidInteger(pid))
        return {};
    return partText(pid, pidpart::kUnit, 1) + '-' + partText(pid, pidpart::kParameterCode, 3) +
           '-' + partText(pid, pidpart::kVariantDigit, 1) + '-' +
           partText(pid, pidpart::kProgramCode, 2) + '-' + partText(pid, pidpart::kSuffix, 2);
}

std::string nameWithPID(PID pid, const std::string& name)
{
    return "[" + PIDToText(pid) + "] " + name;
}

PID TextToPID(std::string text, bool bracketed)
{
    if (bracketed)
        text = bracketContent(text);
    const FieldFromRight suffix = TakeFieldFromRight(std::move(text), 2);
    const FieldFromRight programCode = TakeFieldFromRight(suffix.rest, 2);
    const FieldFromRight variantDigit = TakeFieldFromRight(programCode.rest, 1);
    const FieldFromRight parameterCode = TakeFieldFromRight(variantDigit.rest, 3);
    const std::int32_t unit =
        parameterCode.rest.empty() ? 0 : TakeFieldFromRight(parameterCode.rest, 2).field;
    // MakePID refuses a field that was not found, since -1 is out of every range.
    return MakePID(unit, parameterCode.field, variantDigit.field, programCode.field, suffix.field);
}

FieldFromRight TakeFieldFromRight(std::string text, std::int32_t maxDigits)
{
    std::int64_t field = 0;
    std::int64_t weight = 1;
    std::int32_t digits = 0;
    bool ended = false;
    while (!ended && !text.empty()) {
        const char character = takeLastCharacter(text);
        if (isDigit(character)) {
            field += (character - '0') * weight;
            if (field > std::numeric_limits<std::int32_t>::max())
                return {-1, std::move(text)};
            ++digits;
            // A weight past the range is as good as any other: one more digit but 0 overflows.
            weight = std::min<std::int64_t>(weight * 10, 10'000'000'000);
            ended = digits == maxDigits;
        } else {
            ended = digits > 0;
        }
    }
    return {digits > 0 ? static_cast<std::int32_t>(field) : -1, std::move(text)};
}

PID UnitPID(std::int32_t unitOrPid)
{
    const std::int32_t unit =
        unitOrPid > kHighestUnit ? PIDPart(unitOrPid, pidpart::kUnit) : unitOrPid;
    return MakePID(unit, 1, 0, 0, 0);
}

bool IsPercentGasPID(PID pid)
{
    switch (PIDPart(pid, pidpart::kParameterCode)) {
    case 220:
    case 230:
    case 233:
    case 240:
    case 241:
    case 243:
    case 245:
        return true;
    default:
        return false;
    }
}

} // namespace k7deval
