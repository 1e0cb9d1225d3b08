#pragma once

#include "sitedb/formats/CalibrationRow.h"
#include "sitedb/formats/EmissionsParts.h"
#include "sitedb/formats/TestTaker.h"
#include "sitedb/tables/SiteWriter.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace k7deval::sitedb
{

/// Takes the daily calibrations of an emissions file into a site. The caller holds the transaction.
class EmissionsCalibrations
{
public:
    EmissionsCalibrations(sql::Connection& connection, const SourceFile& file,
                          SteppedOver& steppedOver, bool leavesOut);

    /// Takes an element of dailyTestSummaryData.
    void take(const JsonNode& record);
    /// Takes the tests of components that only the hours of the file made known.
    void finish();

    [[nodiscard]] std::size_t injections() const { return injectionCount_; }
    [[nodiscard]] const CalibrationRows& rows() const { return rows_; }

private:
    [[nodiscard]] QaTest testOf(const JsonNode& record);
    [[nodiscard]] std::optional<CalibratedScale> scaleOf(const QaTest& test);
    void put(const QaTest& test, const CalibratedScale& scale);
    void stepOver(const std::string& which);

    SiteWriter writer_;
    TestTaker calibrations_;
    CalibrationRows rows_;
    SteppedOver& steppedOver_;
    bool leavesOut_;
    std::vector<QaTest> deferred_;
    std::size_t injectionCount_ = 0;
};

} // namespace k7deval::sitedb
