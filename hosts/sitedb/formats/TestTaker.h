#pragma once

#include "sitedb/formats/EcmpsQa.h"
#include "sitedb/tables/AnalyzerWriter.h"
#include "sitedb/tables/CalibrationWriter.h"

#include <cstddef>
#include <functional>

namespace k7deval::sitedb
{

/// Takes the injections of the tests of one file into a site. The caller holds the transaction.
class TestTaker
{
public:
    /// Is told the sentence of an injection that is in the site or the file already, and throws it
    /// or leaves the injection out.
    using OnClash = std::function<void(const ImportError&)>;

    TestTaker(sql::Connection& connection, const SourceFile& file)
        : file_(file), analyzers_(connection), calibrations_(connection)
    {
    }

    /// How many injections were put in.
    std::size_t take(const QaTest& test, const CalibratedScale& scale, const OnClash& onClash);

private:
    const SourceFile& file_;
    AnalyzerWriter analyzers_;
    CalibrationWriter calibrations_;
};

} // namespace k7deval::sitedb
