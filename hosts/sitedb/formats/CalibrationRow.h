#pragma once

#include "sitedb/formats/EcmpsQa.h"
#include "sitedb/read/JsonNode.h"

#include <cstddef>
#include <string>
#include <vector>

namespace k7deval::sitedb
{

/// A row of EPA's calibration injections: a zero and an upscale injection. QA tests and daily
/// calibrations are made of such rows, and differ in the names of two fields.
class CalibrationRow
{
public:
    explicit CalibrationRow(const JsonNode& row) : row_(row) {}

    /// The time stamp of the row, which both injections bear: the zero injection's.
    [[nodiscard]] std::string runTime() const { return time("zero"); }
    [[nodiscard]] std::string upscaleTime() const { return time("upscale"); }

    [[nodiscard]] QaInjection zero(const std::string& runTime) const;
    [[nodiscard]] QaInjection upscale(const std::string& runTime) const;

    /// Whether nothing at all is told of an injection, so that it was not made.
    [[nodiscard]] bool lacksZero() const { return lacks("zero"); }
    [[nodiscard]] bool lacksUpscale() const { return lacks("upscale"); }

private:
    [[nodiscard]] JsonNode part(const std::string& gas, const char* name) const;
    [[nodiscard]] std::string time(const std::string& gas) const;
    [[nodiscard]] bool lacks(const std::string& gas) const;
    [[nodiscard]] QaInjection injection(const std::string& gas, std::int32_t levelCode,
                                        std::string levelText, const std::string& runTime) const;

    const JsonNode& row_;
};

/// Reads the rows of tests, and keeps the sentences of the injections that are left out.
class CalibrationRows
{
public:
    /// leavesOut: an injection that can't be read is left out instead of raising ImportError.
    /// mayLack: a row may tell of one of its injections only.
    CalibrationRows(bool leavesOut, bool mayLack) : leavesOut_(leavesOut), mayLack_(mayLack) {}

    /// Puts the injections of a row into its test.
    void read(QaTest& test, const JsonNode& row);
    void leaveOut(const ImportError& fault);

    [[nodiscard]] std::size_t leftOutCount() const { return leftOutCount_; }
    [[nodiscard]] const std::vector<std::string>& leftOut() const { return leftOut_; }

private:
    [[nodiscard]] std::string runTimeOfUpscale(const CalibrationRow& row, bool hasZero) const;
    template <class Read> void attempt(QaTest& test, const Read& read);

    bool leavesOut_;
    bool mayLack_;
    std::size_t leftOutCount_ = 0;
    std::vector<std::string> leftOut_;
};

} // namespace k7deval::sitedb
