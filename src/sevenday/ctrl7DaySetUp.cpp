#include "sevenday/ctrl7DaySetUp.h"

#include "foundation/DateText.h"
#include "foundation/NumberText.h"
#include "foundation/TextFunctions.h"
#include "foundation/UtilityFunctions.h"
#include "screen/UnitList.h"
#include "sevenday/NumberedLine.h"

#include <algorithm>
#include <cmath>
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

constexpr double kLargestOris = 999999;

bool isText(const Variant& value, const char* text)
{
    const auto* held = std::get_if<std::string>(&value);
    return held != nullptr && *held == text;
}

std::string scaleSuffix(const Variant& scale)
{
    if (isText(scale, "LOW"))
        return "/L";
    if (isText(scale, "MID"))
        return "/M";
    return isText(scale, "HIGH") ? "/H" : "";
}

} // namespace

ctrl7DaySetUp::ctrl7DaySetUp(screen::Container& parent, std::string name,
                             const screen::Surroundings& surroundings)
    : Control(parent, std::move(name)), surroundings_(surroundings)
{
    connectRules();
    startUp();
}

void ctrl7DaySetUp::connectRules()
{
    cmbUnit.Picked.Connect([this] { unitRule(); });
    cmbAnalyzer.Picked.Connect([this] { analyzerRule(); });
    txtORIS.Validate.Connect([this] { validateOris(); });
    txtFromDate.Validate.Connect([this] { validateDate(txtFromDate, fromDate_); });
    txtToDate.Validate.Connect([this] { validateDate(txtToDate, toDate_); });
    cmdFromDate.Clicked.Connect([this] { askDate(txtFromDate, fromDate_); });
    cmdToDate.Clicked.Connect([this] { askDate(txtToDate, toDate_); });
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

void ctrl7DaySetUp::unitRule()
{
    runPosting(irm_, NumberedLine::UnitRule, [this] {
        const PID unit = cmbUnit.ItemData();
        calibrationPIDs_.clear();
        cmbAnalyzer.clear();
        listAnalyzers(unit);
        if (calibrationPIDs_.empty()) {
            cmbAnalyzer.addItem("N/A", 0);
            SetIs40CFR75(false);
        } else {
            takeUnitFacts(unit);
        }
        cmbAnalyzer.SetListIndex(0);
    });
}

void ctrl7DaySetUp::listAnalyzers(PID unit)
{
    const auto parameters = present(server_).ParametersOfUnit(PIDPart(unit, pidpart::kUnit),
                                                              ParamTypes{kCalibrationType});
    for (const auto& parameter : parameters) {
        if (definesCalibrations(present(parameter)) &&
            !isLeftOutOfLists(*parameter, surroundings_.regional).value_or(false))
            listAnalyzer(*parameter);
    }
}

void ctrl7DaySetUp::listAnalyzer(DIParameter& parameter)
{
    const std::string name = analyzerName(parameter);
    const auto& listed = cmbAnalyzer.List();
    const bool isListed = std::find(listed.begin(), listed.end(), name) != listed.end();
    if (name.empty())
        return;
    if (!isListed) {
        calibrationPIDs_.push_back(0);
        cmbAnalyzer.addItem(name, static_cast<std::int32_t>(calibrationPIDs_.size()));
        calibrationPIDs_.back() = parameter.PID();
        return;
    }
    // A second parameter of the name takes the place of the analyzer listed last, if it knows its
    // component.
    const Variant component = parameter.GetAttribute(attribute::kComponentId);
    if (!isNull(component) && !textOf(component).empty())
        calibrationPIDs_.back() = parameter.PID();
}

std::string ctrl7DaySetUp::analyzerName(DIParameter& parameter) const
{
    const PID measured =
        integerIn(parameter.GetAttribute(attribute::kMeasuredPID), surroundings_.regional);
    const auto source = present(server_->Parameters()).Item(measured, -1);
    return present(source).Name(0) + scaleSuffix(parameter.GetAttribute(attribute::kScale));
}

void ctrl7DaySetUp::takeUnitFacts(PID unit)
{
    const auto parameter = present(server_->Parameters()).Item(unit, -1);
    DIParameter& facts = present(parameter);
    SetOrisCode(integerIn(facts.GetAttribute(attribute::kOrisCode), surroundings_.regional));
    const std::string identifier = textOf(facts.GetAttribute(attribute::kUnitIdentifier));
    SetStackID(std::string(trimRight(identifier)));
    const Variant severalStacks = facts.GetAttribute(attribute::kSeveralStacks);
    if (!isNull(severalStacks) && booleanIn(severalStacks, surroundings_.regional))
        SetStackID(textOf(facts.GetAttribute(attribute::kStackIdentifiers)));
}

void ctrl7DaySetUp::analyzerRule()
{
    runPosting(irm_, NumberedLine::AnalyzerRule, [this] {
        const std::int32_t i = cmbAnalyzer.ItemData();
        if (i == 0)
            return;
        const PID pid = calibrationPIDs_.at(static_cast<std::size_t>(i) - 1);
        const std::int32_t program = PIDPart(pid, pidpart::kProgramCode);
        const std::int32_t code = PIDPart(pid, pidpart::kParameterCode);
        specification_.choose(code, program);
        chk6of7.setChecked(isCarbonMonoxide(code));
        if (present(present(server_).Parameters()).Exists(pid))
            takeAnalyzer(pid, program);
        else
            SetIs40CFR75(false);
    });
}

void ctrl7DaySetUp::takeAnalyzer(PID pid, std::int32_t program)
{
    selectedParameter_ = present(server_->Parameters()).Item(pid, -1);
    SetIs40CFR75(program == kProgram40CFR75);
    SetComponentID(textOf(selectedAttribute(attribute::kComponentId)));
    SetTestNumber(replaceAll(textOf(selectedAttribute(attribute::kTestNumberBase)), "O2DRY", "O2"));
    const std::string scale = AnalyzedScale();
    if (scale == "HIGH" || scale == "MID" || scale == "LOW")
        SetTestNumber(TestNumber() + scale.front());
    SetTestNumber(TestNumber() + "_" + ComponentID() + "_7DAY");
}

// What is typed is put back silently when the field is left with bad input.
void ctrl7DaySetUp::validateOris()
{
    const auto number = numberIn(txtORIS.Text(), surroundings_.regional);
    const double whole = number ? std::nearbyint(*number) : -1;
    if (whole < 0 || whole > kLargestOris)
        txtORIS.SetText("");
    else
        SetOrisCode(toInt32(whole));
}

void ctrl7DaySetUp::validateDate(screen::TextBox& field, Date& date) const
{
    const Date today = CurrentDateTime(surroundings_.clock);
    if (IsDate(field.Text(), surroundings_.regional, today))
        date = dateOnly(ToDate(field.Text(), surroundings_.regional, today));
    field.SetText(ShortDate(date, surroundings_.regional));
}

void ctrl7DaySetUp::askDate(screen::TextBox& field, Date& date) const
{
    const auto picked = surroundings_.services.PickDate("7-Day Drift", date, -1, -1, -1);
    if (picked)
        date = *picked;
    field.SetText(ShortDate(date, surroundings_.regional));
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
