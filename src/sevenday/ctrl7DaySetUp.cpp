#include "sevenday/ctrl7DaySetUp.h"

#include "foundation/DateText.h"
#include "foundation/NumberText.h"
#include "foundation/TextFunctions.h"
#include "foundation/UtilityFunctions.h"
#include "screen/UnitList.h"

#include <algorithm>
#include <utility>

namespace k7deval
{

namespace
{

struct TestReasonEntry {
    const char* text;
    std::int32_t itemData;
    const char* code;
};

// The codes of the second and third reason are crossed; the export is known by them.
constexpr TestReasonEntry kTestReasons[] = {
    {"Initial Certification", 1, "INITIAL"},
    {"Recertification", 2, "DIAG"},
    {"Diagnostic", 3, "RECERT"},
};

} // namespace

ctrl7DaySetUp::ctrl7DaySetUp(screen::Container& parent, std::string name,
                             const screen::Surroundings& surroundings)
    : Control(parent, std::move(name)), surroundings_(surroundings)
{
    connectRules();
    connectFields();
    startUp();
}

void ctrl7DaySetUp::startUp()
{
    toDate_ = dateOnly(CurrentDateTime(surroundings_.clock));
    fromDate_ = DateAddExact("m", -1, toDate_);
    txtFromDate.SetText(ShortDate(fromDate_, surroundings_.regional));
    txtToDate.SetText(ShortDate(toDate_, surroundings_.regional));
    chkManualCals.setChecked(true);
    chkShowSummary.setChecked(true);
    optShowAllCals.setSelected(true);
    for (const TestReasonEntry& reason : kTestReasons)
        cmbTestReason.addItem(reason.text, reason.itemData);
    cmbTestReason.SetListIndex(0);
    cmbStackID.SetVisible(false);
    SetIs40CFR75(false);
}

void ctrl7DaySetUp::Setup(std::shared_ptr<MessageSink> irm, std::shared_ptr<DIServer> objDI)
{
    irm_ = std::move(irm);
    server_ = std::move(objDI);
    cmbUnit.clear();
    screen::offerUnits(cmbUnit, present(server_));
}

void ctrl7DaySetUp::Terminate()
{
    irm_.reset();
    server_.reset();
    selectedParameter_.reset();
}

Variant ctrl7DaySetUp::selectedAttribute(std::int32_t id) const
{
    return present(selectedParameter_).GetAttribute(id);
}

std::string ctrl7DaySetUp::textOf(const Variant& value) const
{
    return toText(value, surroundings_.regional);
}

PID ctrl7DaySetUp::AnalyzedPID() const
{
    return integerIn(selectedAttribute(attribute::kMeasuredPID), surroundings_.regional);
}

std::string ctrl7DaySetUp::AnalyzedScale() const
{
    return textOf(selectedAttribute(attribute::kScale));
}

std::string ctrl7DaySetUp::AnalyzedPrecision() const
{
    const std::string format = "0.000000";
    const std::int64_t decimals =
        integerIn(selectedAttribute(attribute::kDecimals), surroundings_.regional);
    if (decimals < -2)
        throw Error(errors::kInvalidCall);
    return format.substr(0, static_cast<std::size_t>(decimals + 2));
}

Date ctrl7DaySetUp::StartDate() const
{
    return std::min(fromDate_, toDate_);
}

Date ctrl7DaySetUp::EndDate() const
{
    return std::max(fromDate_, toDate_);
}

CalLimitRulesEnum ctrl7DaySetUp::LimitRules() const
{
    if (opt025Span.isSelected() && chkUseAPS.isChecked())
        return CalLimitRules_PercentOfSpanAndAbsoluteAPS;
    if (opt025Span.isSelected() || opt05Span.isSelected() || optOtherSpan.isSelected())
        return CalLimitRules_PercentOfSpan;
    if (optPS9GC.isSelected())
        return CalLimitRules_PercentOfRef;
    return CalLimitRules_AbsoluteValue;
}

/// chkUseAPS counts under every specification: other options only disable it.
float ctrl7DaySetUp::AbsoluteLimit() const
{
    if (opt005Absolute.isSelected())
        return 0.5F;
    return chkUseAPS.isChecked() ? 5.0F : otherAbsoluteLimit_;
}

float ctrl7DaySetUp::PercentOfSpanLimit() const
{
    if (optPS9GC.isSelected())
        return kNoLimit;
    if (opt025Span.isSelected())
        return 2.5F;
    return opt05Span.isSelected() ? 5.0F : otherSpanLimit_;
}

float ctrl7DaySetUp::PercentOfRefLimit() const
{
    return optPS9GC.isSelected() ? 10.0F : kNoLimit;
}

std::string ctrl7DaySetUp::AnalyzerInfoText() const
{
    return cmbUnit.Text() + " " + cmbAnalyzer.Text();
}

std::string ctrl7DaySetUp::StackID() const
{
    return cmbStackID.Visible() ? cmbStackID.Text() : txtStackID.Text();
}

void ctrl7DaySetUp::SetStackID(const std::string& value)
{
    const bool several = value.find(';') != std::string::npos;
    txtStackID.SetVisible(!several);
    cmbStackID.SetVisible(several);
    if (!several) {
        txtStackID.SetText(value);
        return;
    }
    cmbStackID.clear();
    for (const std::string_view stack : splitAt(';', value))
        cmbStackID.addItem(std::string(trimRight(stack)));
    cmbStackID.SetListIndex(0);
}

std::string ctrl7DaySetUp::TestReason() const
{
    const std::int32_t itemData = cmbTestReason.ItemData();
    for (const TestReasonEntry& reason : kTestReasons) {
        if (reason.itemData == itemData)
            return reason.code;
    }
    return kTestReasons[0].code;
}

void ctrl7DaySetUp::SetIs40CFR75(bool value)
{
    is40CFR75_ = value;
    fraTestInfo.SetVisible(value);
}

std::int32_t ctrl7DaySetUp::OrisCode() const
{
    return toInt32(txtORIS.Text(), surroundings_.regional);
}

void ctrl7DaySetUp::SetOrisCode(std::int32_t value)
{
    txtORIS.SetText(std::to_string(value));
}

} // namespace k7deval
