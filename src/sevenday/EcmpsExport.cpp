#include "sevenday/EcmpsExport.h"

#include "foundation/FileReplacement.h"
#include "foundation/NumberText.h"
#include "foundation/TextFunctions.h"
#include "foundation/UtilityFunctions.h"
#include "sevenday/NumberedLine.h"
#include "sevenday/UtilityXMLDOMFunctions.h"

#include <pugixml.hpp>

#include <array>
#include <cmath>

namespace k7deval
{

/// From the first to the last injection end of the runs in the file.
struct EcmpsExport::TestSpan {
    Date begin;
    Date end;
    bool usesAPS = false;

    void include(const clsStrippedCal& injection)
    {
        const Date t = injection.InjectionEndTime;
        if (IsNoDate(begin) || begin > t)
            begin = t;
        if (end < t)
            end = t;
        usesAPS = usesAPS || injection.UsesAPS;
    }
};

namespace
{

constexpr const char* kDateFormat = "yyyy-mm-dd";
constexpr const char* kOneDecimal = "0.0";
constexpr const char* kTwoDecimals = "0.00";
/// The exchange format knows the decimal point alone, whatever the user's region.
const RegionalSettings kExchangeSettings;

std::string hourText(Date value)
{
    return std::to_string(dateParts(value).hour);
}

std::string minuteText(Date value)
{
    return std::to_string(dateParts(value).minute);
}

std::string indicator(bool value)
{
    return value ? "1" : "0";
}

/// The elements Date, Hour and Minute of an injection, with a prefix.
void addInjectionTime(pugi::xml_node parent, const std::string& prefix, Date time)
{
    SetDateNode(parent, prefix + "Date", time, kDateFormat);
    AddChildElement(parent, prefix + "Hour", hourText(time));
    AddChildElement(parent, prefix + "Minute", minuteText(time));
}

/// Fills the elements Date, Hour and Minute that stand in the summary already.
void setTime(pugi::xml_node summary, const std::string& prefix, Date time)
{
    SetDateNode(summary, prefix + "Date", time, kDateFormat);
    SetNodeText(summary, prefix + "Hour", hourText(time));
    SetNodeText(summary, prefix + "Minute", minuteText(time));
}

/// A single divided by a single, in percent.
float percentOf(float part, float whole)
{
    if (whole == 0)
        throw Error(part == 0 ? errors::kOverflow : errors::kDivisionByZero);
    return ToSingle(static_cast<double>(part) / static_cast<double>(whole) * 100);
}

float rounded(float value, std::int32_t digits)
{
    return std::get<float>(RoundNumber(value, digits));
}

} // namespace

std::optional<Error> EcmpsExport::WriteEcmpsExport(const std::string& fileName) const
{
    return runPosting(test_->irm, NumberedLine::WriteEcmpsExport, [&] {
        pugi::xml_document document = CreateXMLDocument();
        const pugi::xml_node root = AddChildElement(document.root(), "QualityAssuranceAndCert", "");
        const pugi::xml_node summary = addTestSummary(root);
        const TestSpan span = addRuns(summary);
        SetNodeText(summary, "TestResultCode", resultCode(span.usesAPS));
        setTime(summary, "Begin", span.begin);
        setTime(summary, "End", span.end);
        replaceFile(fileName, documentText(document));
    });
}

pugi::xml_node EcmpsExport::addTestSummary(pugi::xml_node root) const
{
    const std::string spanScaleCode = setUp_->AnalyzedScale() == "LOW" ? "L" : "H";
    AddChildElement(root, "ORISCode", std::to_string(setUp_->OrisCode()));
    AddChildElement(root, "Version", "1.3");
    const pugi::xml_node summary = AddChildElement(root, "TestSummaryData", "");
    AddChildElement(summary, "UnitID", setUp_->StackID());
    AddChildElement(summary, "TestTypeCode", "7DAY");
    AddChildElement(summary, "MonitoringSystemID", "");
    AddChildElement(summary, "ComponentID", setUp_->ComponentID());
    AddChildElement(summary, "SpanScaleCode", spanScaleCode);
    AddChildElement(summary, "TestNumber", setUp_->TestNumber());
    AddChildElement(summary, "TestReasonCode", setUp_->TestReason());
    // The rest is empty, or not known before the runs are; its place is fixed here.
    for (const char* name :
         {"TestDescription", "TestResultCode", "BeginDate", "BeginHour", "BeginMinute", "EndDate",
          "EndHour", "EndMinute", "GracePeriodIndicator", "Year", "Quarter", "TestComment",
          "InjectionProtocolCode"})
        AddChildElement(summary, name, "");
    return summary;
}

EcmpsExport::TestSpan EcmpsExport::addRuns(pugi::xml_node summary) const
{
    TestSpan span;
    const DayArray& days = test_->objDaysToDisplay;
    for (std::int32_t i = SafeLBound(days); i <= SafeUBound(days); ++i) {
        if (!days[i]->DayIsUsedIn7Day())
            continue;
        for (const auto& run : days[i]->DisplayedCals.items()) {
            if (!run->IsUsedIn7Day)
                continue;
            span.include(present(run->SpanCal));
            span.include(present(run->ZeroCal));
            addRun(summary, *run);
        }
    }
    return span;
}

void EcmpsExport::addRun(pugi::xml_node summary, const cls7DayAnalyzerCal& run) const
{
    const clsStrippedCal& zero = *run.ZeroCal;
    const clsStrippedCal& upscale = *run.SpanCal;
    const pugi::xml_node data = AddChildElement(summary, "CalibrationInjectionData", "");
    const auto add = [data](const char* name, const std::string& text) {
        AddChildElement(data, name, text);
    };
    add("OnLineOffLineIndicator", "1");
    add("UpscaleGasLevelCode", upscale.GasLevel);
    addInjectionTime(data, "ZeroInjection", zero.InjectionEndTime);
    addInjectionTime(data, "UpscaleInjection", upscale.InjectionEndTime);
    add("ZeroMeasuredValue", FormatGasValue(zero.MeasuredValue));
    add("UpscaleMeasuredValue", FormatGasValue(upscale.MeasuredValue));
    add("ZeroAPSIndicator", indicator(zero.UsesAPS));
    add("UpscaleAPSIndicator", indicator(upscale.UsesAPS));
    add("ZeroCalibrationError", FormatCalError(zero, run.InstrumentSpan));
    add("UpscaleCalibrationError", FormatCalError(upscale, run.InstrumentSpan));
    add("ZeroReferenceValue", FormatGasValue(zero.ReferenceValue));
    add("UpscaleReferenceValue", FormatGasValue(upscale.ReferenceValue));
}

/// The good runs alone decide: a test passed with the allowed failure goes out as failed.
std::string EcmpsExport::resultCode(bool usesAPS) const
{
    if (test_->lngGoodCals < kRunsOfATest)
        return "FAILED";
    return usesAPS ? "PASSAPS" : "PASSED";
}

std::string EcmpsExport::FormatCalError(const clsStrippedCal& cal, float span) const
{
    std::string text;
    runPosting(test_->irm, NumberedLine::FormatCalError, [&] { text = calErrorText(cal, span); });
    return text;
}

std::string EcmpsExport::calErrorText(const clsStrippedCal& cal, float span) const
{
    const bool absolute = cal.UsesAPS || IsPercentGasPID(test_->lngAnalyzedPID);
    const char* format = kOneDecimal;
    float d = std::abs(cal.Drift());
    const float p = rounded(percentOf(d, span), 1);
    if (isFormattedByUnits() && isMeasuredInWater()) {
        d = rounded(d, 2);
        if (cal.UsesAPS)
            format = kTwoDecimals;
    } else {
        d = rounded(d, 1);
    }
    return FormatNumber(absolute ? d : p, format, kExchangeSettings);
}

std::string EcmpsExport::FormatGasValue(float value) const
{
    std::string text;
    runPosting(test_->irm, NumberedLine::FormatGasValue, [&] {
        const std::string format = isFormattedByUnits() ? setUp_->AnalyzedPrecision() : kOneDecimal;
        text = FormatNumber(value, format, kExchangeSettings);
    });
    return text;
}

/// Flow and moisture parameters, whose figures go by their measuring unit.
bool EcmpsExport::isFormattedByUnits() const
{
    const std::int32_t code = PIDPart(test_->lngAnalyzedPID, pidpart::kParameterCode);
    return (code >= 260 && code <= 269) || (code >= 680 && code <= 699);
}

bool EcmpsExport::isMeasuredInWater() const
{
    const auto parameter =
        present(present(test_->DIServer).Parameters()).Item(test_->lngAnalyzedPID, -1);
    return upperCase(present(parameter).UnitsText()).find("H2O") != std::string::npos;
}

} // namespace k7deval
