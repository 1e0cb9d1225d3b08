#include "sevenday/PerformanceSpecification.h"

#include "foundation/NumberText.h"
#include "foundation/PIDFunctions.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <string>

namespace k7deval
{

namespace
{

constexpr float kFirstOtherSpan = 3;
constexpr float kFirstOtherAbsolute = 5;

constexpr std::array kPpmCodes{100, 110, 120}; ///< SO2, NOx: 2.5 % of span
constexpr std::array kCOCodes{140, 145};       ///< CO: 5 % of span, one failed day allowed
/// O2, CO2: 0.5 absolute. Not all percent gases: the others have no specification of their own.
constexpr std::array kAbsoluteCodes{220, 240, 243};

template <class Codes> bool isOneOf(std::int32_t code, const Codes& codes)
{
    return std::find(codes.begin(), codes.end(), code) != codes.end();
}

} // namespace

bool isCarbonMonoxide(std::int32_t parameterCode)
{
    return isOneOf(parameterCode, kCOCodes);
}

PerformanceSpecification::PerformanceSpecification(const Widgets& widgets,
                                                   const RegionalSettings& regional)
    : widgets_(widgets),
      regional_(regional), otherSpan_{widgets.txtOtherSpanValue, kFirstOtherSpan},
      otherAbsolute_{widgets.txtOtherAbsoluteValue, kFirstOtherAbsolute}
{
    const auto connect = [this](screen::OptionButton& option, const Enabled& enabled) {
        option.Clicked.Connect([this, enabled] { optionRule(enabled); });
    };
    connect(widgets_.opt025Span, {.aps = true});
    connect(widgets_.opt05Span, {});
    connect(widgets_.opt005Absolute, {});
    connect(widgets_.optPS9GC, {});
    connect(widgets_.optOtherSpan, {.otherSpan = true});
    connect(widgets_.optOtherAbsolute, {.otherAbsolute = true});
    for (OtherLimit* limit : {&otherSpan_, &otherAbsolute_})
        limit->box.Validate.Connect([this, limit] { validate(*limit); });
}

void PerformanceSpecification::choose(std::int32_t parameterCode, std::int32_t program)
{
    const bool isPpm = isOneOf(parameterCode, kPpmCodes);
    if (isPpm)
        widgets_.opt025Span.setSelected(true);
    else if (isCarbonMonoxide(parameterCode))
        widgets_.opt05Span.setSelected(true);
    else if (isOneOf(parameterCode, kAbsoluteCodes))
        widgets_.opt005Absolute.setSelected(true);
    else
        widgets_.optOtherSpan.setSelected(true);
    widgets_.chkUseAPS.setChecked(isPpm && program == kProgram40CFR75);
}

CalLimitRulesEnum PerformanceSpecification::LimitRules() const
{
    if (widgets_.opt025Span.isSelected() && widgets_.chkUseAPS.isChecked())
        return CalLimitRules_PercentOfSpanAndAbsoluteAPS;
    if (widgets_.opt025Span.isSelected() || widgets_.opt05Span.isSelected() ||
        widgets_.optOtherSpan.isSelected())
        return CalLimitRules_PercentOfSpan;
    if (widgets_.optPS9GC.isSelected())
        return CalLimitRules_PercentOfRef;
    return CalLimitRules_AbsoluteValue;
}

/// chkUseAPS counts under every specification: other options only disable it.
float PerformanceSpecification::AbsoluteLimit() const
{
    if (widgets_.opt005Absolute.isSelected())
        return 0.5F;
    return widgets_.chkUseAPS.isChecked() ? 5.0F : otherAbsolute_.value;
}

float PerformanceSpecification::PercentOfSpanLimit() const
{
    if (widgets_.optPS9GC.isSelected())
        return kNoLimit;
    if (widgets_.opt025Span.isSelected())
        return 2.5F;
    return widgets_.opt05Span.isSelected() ? 5.0F : otherSpan_.value;
}

float PerformanceSpecification::PercentOfRefLimit() const
{
    return widgets_.optPS9GC.isSelected() ? 10.0F : kNoLimit;
}

void PerformanceSpecification::optionRule(const Enabled& enabled) const
{
    widgets_.chkUseAPS.SetEnabled(enabled.aps);
    offer(otherSpan_, enabled.otherSpan);
    offer(otherAbsolute_, enabled.otherAbsolute);
}

void PerformanceSpecification::validate(OtherLimit& limit) const
{
    const auto number = numberIn(limit.box.Text(), regional_);
    if (number && std::abs(*number) <= std::numeric_limits<float>::max())
        limit.value = static_cast<float>(*number);
    else
        limit.box.SetText(GeneralNumber(limit.value, regional_));
}

void PerformanceSpecification::offer(const OtherLimit& limit, bool isEnabled) const
{
    limit.box.SetEnabled(isEnabled);
    limit.box.SetText(isEnabled ? GeneralNumber(limit.value, regional_) : std::string());
}

} // namespace k7deval
