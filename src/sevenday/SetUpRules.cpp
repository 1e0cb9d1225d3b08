#include "foundation/TextFunctions.h"
#include "sevenday/NumberedLine.h"
#include "sevenday/ctrl7DaySetUp.h"

#include <algorithm>
#include <array>

/// What follows from a pick of unit, analyzer or specification.
namespace k7deval
{

namespace
{

constexpr std::array kPpmCodes{100, 110, 120}; ///< SO2, NOx: 2.5 % of span
constexpr std::array kCOCodes{140, 145};       ///< CO: 5 % of span, one failed day allowed
/// O2, CO2: 0.5 absolute. Not all percent gases: the others have no specification of their own.
constexpr std::array kAbsoluteCodes{220, 240, 243};

template <class Codes> bool isOneOf(std::int32_t code, const Codes& codes)
{
    return std::find(codes.begin(), codes.end(), code) != codes.end();
}

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

void ctrl7DaySetUp::connectRules()
{
    cmbUnit.Picked.Connect([this] { unitRule(); });
    cmbAnalyzer.Picked.Connect([this] { analyzerRule(); });
    opt025Span.Clicked.Connect([this] { specificationRule(true, false, false); });
    for (screen::OptionButton* option : {&opt05Span, &opt005Absolute, &optPS9GC})
        option->Clicked.Connect([this] { specificationRule(false, false, false); });
    optOtherSpan.Clicked.Connect([this] { specificationRule(false, true, false); });
    optOtherAbsolute.Clicked.Connect([this] { specificationRule(false, false, true); });
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
        chooseSpecification(PIDPart(pid, pidpart::kParameterCode), program);
        if (present(present(server_).Parameters()).Exists(pid))
            takeAnalyzer(pid, program);
        else
            SetIs40CFR75(false);
    });
}

void ctrl7DaySetUp::chooseSpecification(std::int32_t code, std::int32_t program)
{
    const bool isPpm = isOneOf(code, kPpmCodes);
    const bool isCO = isOneOf(code, kCOCodes);
    if (isPpm)
        opt025Span.setSelected(true);
    else if (isCO)
        opt05Span.setSelected(true);
    else if (isOneOf(code, kAbsoluteCodes))
        opt005Absolute.setSelected(true);
    else
        optOtherSpan.setSelected(true);
    chk6of7.setChecked(isCO);
    chkUseAPS.setChecked(isPpm && program == kProgram40CFR75);
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

void ctrl7DaySetUp::specificationRule(bool apsEnabled, bool otherSpanEnabled,
                                      bool otherAbsoluteEnabled)
{
    chkUseAPS.SetEnabled(apsEnabled);
    offerOtherLimit(txtOtherSpanValue, otherSpanEnabled, otherSpanLimit_);
    offerOtherLimit(txtOtherAbsoluteValue, otherAbsoluteEnabled, otherAbsoluteLimit_);
}

} // namespace k7deval
