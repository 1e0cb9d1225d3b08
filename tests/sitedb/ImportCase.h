#pragma once

#include "sitedb/SampleSite.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace k7deval::sitedb::test
{

/// A new site in a directory of its own.
struct EmptySite {
    TemporaryDirectory directory;
    std::filesystem::path path;
    SiteDatabase site;

    EmptySite();

protected:
    /// A site of these bytes.
    explicit EmptySite(const std::string& bytes);
};

/// A site with the analyzers that the small files below speak of: unit U1 with the NOX component
/// 010 on both scales and the CO2 component 020 on one.
struct SmallSite : EmptySite {
    SmallSite();
};

/// The sentence with which an import is refused. A test failure when it is not, or when the site is
/// not as it was before, table for table and byte for byte.
std::string refusal(EmptySite& held, const std::filesystem::path& file,
                    const ImportOptions& options);

/// A QA file of two tests: a linearity check that is stepped over, and a seven-day test of U1 010 H
/// with two rows, 2020-03-01 06:10 and 2020-03-02 07:15.
std::string smallQa();
/// A JSON text with one patch operation applied: "replace", "add" or "remove".
std::string patchedJson(const std::string& text, const std::string& operation,
                        const std::string& path, const std::string& value);
/// smallQa with one JSON patch operation applied.
std::string patchedQa(const std::string& operation, const std::string& path,
                      const std::string& value);

} // namespace k7deval::sitedb::test
