#pragma once

#include "foundation/RegionalSettings.h"
#include "screen/Buttons.h"
#include "screen/TextBox.h"
#include "sevenday/CalLimitRules.h"

#include <cstdint>

namespace k7deval
{

/// Whether a parameter code is that of CO, of whose seven calibration days one may fail.
bool isCarbonMonoxide(std::int32_t parameterCode);

/// The performance specification that drifts are held to: the limit rule and its limits. It works
/// the widgets in which the user chooses it; they outlive it.
class PerformanceSpecification
{
public:
    struct Widgets {
        screen::OptionButton& opt025Span;
        screen::CheckBox& chkUseAPS;
        screen::OptionButton& opt05Span;
        screen::OptionButton& opt005Absolute;
        screen::OptionButton& optOtherSpan;
        screen::TextBox& txtOtherSpanValue;
        screen::OptionButton& optOtherAbsolute;
        screen::TextBox& txtOtherAbsoluteValue;
        screen::OptionButton& optPS9GC;
    };

    PerformanceSpecification(const Widgets& widgets, const RegionalSettings& regional);
    PerformanceSpecification(const PerformanceSpecification&) = delete;
    PerformanceSpecification& operator=(const PerformanceSpecification&) = delete;

    /// Selects the option for a parameter under a program.
    void choose(std::int32_t parameterCode, std::int32_t program);

    [[nodiscard]] CalLimitRulesEnum LimitRules() const;
    /// The limits are kNoLimit where they do not apply.
    [[nodiscard]] float AbsoluteLimit() const;
    [[nodiscard]] float PercentOfSpanLimit() const;
    [[nodiscard]] float PercentOfRefLimit() const;

private:
    /// A limit of the user's own, and the box for it.
    struct OtherLimit {
        screen::TextBox& box;
        float value;
    };
    /// What an option leaves enabled.
    struct Enabled {
        bool aps = false;
        bool otherSpan = false;
        bool otherAbsolute = false;
    };

    void optionRule(const Enabled& enabled) const;
    void validate(OtherLimit& limit) const;
    void offer(const OtherLimit& limit, bool isEnabled) const;

    Widgets widgets_;
    const RegionalSettings& regional_;
    OtherLimit otherSpan_;
    OtherLimit otherAbsolute_;
};

} // namespace k7deval
