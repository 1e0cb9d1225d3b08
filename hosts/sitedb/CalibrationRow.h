#pragma once

#include "sitedb/EcmpsQa.h"
#include "sitedb/JsonNode.h"

#include <optional>
#include <string>

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

/// The decimals that the values of an injection carry, as far as the tools show them.
std::int32_t decimalsOf(const QaInjection& injection);

} // namespace k7deval::sitedb
