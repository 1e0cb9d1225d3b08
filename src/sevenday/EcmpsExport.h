#pragma once

#include "sevenday/DriftTest.h"
#include "sevenday/ctrl7DaySetUp.h"

#include <optional>
#include <string>

namespace pugi
{
class xml_document;
class xml_node;
} // namespace pugi

namespace k7deval
{

/// The ECMPS quality-assurance file of a drift test under 40 CFR 75: a test summary and the
/// injections of each run that counts in the test and is displayed.
class EcmpsExport
{
public:
    /// Both outlive the export.
    EcmpsExport(const DriftTest& test, const ctrl7DaySetUp& setUp) : test_(&test), setUp_(&setUp) {}

    /// Writes the file in one go at the very end. Returns the failure that ended the export, after
    /// its line was posted; no file is left then.
    std::optional<Error> WriteEcmpsExport(const std::string& fileName) const;

private:
    struct TestSpan;
    [[nodiscard]] pugi::xml_node addTestSummary(pugi::xml_node root) const;
    [[nodiscard]] TestSpan addRuns(pugi::xml_node summary) const;
    void addRun(pugi::xml_node summary, const cls7DayAnalyzerCal& run) const;
    [[nodiscard]] std::string resultCode(bool usesAPS) const;
    [[nodiscard]] std::string FormatCalError(const clsStrippedCal& cal, float span) const;
    [[nodiscard]] std::string FormatGasValue(float value) const;
    [[nodiscard]] std::string calErrorText(const clsStrippedCal& cal, float span) const;
    [[nodiscard]] bool isMeasuredInWater() const;
    [[nodiscard]] bool isFormattedByUnits() const;

    const DriftTest* test_;
    const ctrl7DaySetUp* setUp_;
};

} // namespace k7deval
