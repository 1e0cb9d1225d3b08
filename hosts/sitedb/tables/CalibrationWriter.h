#pragma once

#include "foundation/PIDFunctions.h"
#include "sitedb/formats/EcmpsQa.h"
#include "sitedb/tables/SiteWriter.h"

#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <tuple>

namespace k7deval::sitedb
{

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
    /// Is told the sentence of an injection that is in the site or the file already, and throws it
    /// or leaves the injection out.
    using OnClash = std::function<void(const ImportError&)>;

    CalibrationWriter(sql::Connection& connection, const SourceFile& file);

    /// How many injections were put in.
    std::size_t take(const QaTest& test, const CalibratedScale& scale, const OnClash& onClash);

private:
    [[nodiscard]] std::optional<ImportError> clash(const QaTest& test, const CalibratedScale& scale,
                                                   const QaInjection& injection);
    void insert(const CalibratedScale& scale, const QaInjection& injection);

    const SourceFile& file_;
    SiteWriter writer_;
    std::unique_ptr<sql::Statement> find_;
    std::unique_ptr<sql::Statement> insert_;
    std::set<std::tuple<PID, std::string, bool>> inFile_;
};

} // namespace k7deval::sitedb
