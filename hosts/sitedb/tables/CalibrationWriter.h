#pragma once

#include "foundation/PIDFunctions.h"
#include "sitedb/sql/Connection.h"
#include "sitedb/tables/Outcome.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <tuple>

namespace k7deval::sitedb
{

/// One gas injection of an analyzer. The times are texts as a site keeps them.
struct Injection {
    std::string runTime;
    std::string injectionEnd;
    std::int32_t gasLevelCode = 0; ///< 0 zero gas, 1 and 2 upscale gas.
    std::string gasLevelText;
    std::optional<double> reference; ///< In the analyzer's units.
    std::optional<double> measured;
    bool isOnline = true;
};

/// The scale of an analyzer that injections are of.
struct CalibratedScale {
    PID measured = 0;
    PID calibration = 0;
    std::string scale;          ///< "HIGH", ...
    std::optional<double> span; ///< In the analyzer's units; nothing while it is not known.
};

/// Puts the injections of one file into a site. Of two injections in one minute the tools would use
/// one, so none is put in a second time. The caller holds the transaction.
class CalibrationWriter
{
public:
    explicit CalibrationWriter(sql::Connection& connection);

    Outcome add(const CalibratedScale& scale, const Injection& injection);

    /// Why an injection was not taken; the analyzer and its scale are named as "U1 010 HIGH".
    static std::string fault(Outcome outcome, const std::string& analyzer,
                             const Injection& injection);

private:
    [[nodiscard]] bool isHeld(const CalibratedScale& scale, const Injection& injection);
    void insert(const CalibratedScale& scale, const Injection& injection);

    std::unique_ptr<sql::Statement> find_;
    std::unique_ptr<sql::Statement> insert_;
    std::set<std::tuple<PID, std::string, bool>> inFile_;
};

} // namespace k7deval::sitedb
