#pragma once

#include "sitedb/SampleSite.h"

#include <gtest/gtest.h>

#include <map>
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

/// Imports a text as a file of this name.
ImportReport importText(EmptySite& held, const std::string& name, const std::string& text,
                        const ImportOptions& options = {});

/// Imports of texts into a site that each test has for itself.
template <class Site> struct ImportTest : testing::Test {
    Site held;
    SiteDatabase& site = held.site;

    ImportReport take(const std::string& name, const std::string& text,
                      const ImportOptions& options = {})
    {
        return importText(held, name, text, options);
    }
    std::string refused(const std::string& name, const std::string& text,
                        const ImportOptions& options = {})
    {
        return refusal(held, held.directory.write(name, text), options);
    }
};

/// One of these for each row of a table.
template <class Site, class Row>
struct ImportCases : ImportTest<Site>, testing::WithParamInterface<Row> {
};

/// A fault for which a table is refused.
struct TableFault {
    const char* what;
    const char* content;
    const char* sentence; ///< Behind the file's name.
};
void PrintTo(const TableFault& fault, std::ostream* stream);

/// A change of one of the small files below for which it is refused.
struct JsonFault {
    const char* what;
    const char* path;            ///< It may begin with the name of a part: "hour/date".
    const char* value;           ///< As JSON; empty where the field is taken away.
    const char* sentence;        ///< Behind the names of the file and the field.
    const char* named = nullptr; ///< The path of the field that is named, if not the changed one.
};
void PrintTo(const JsonFault& fault, std::ostream* stream);

/// Where the parts of a file stand: "hour" at "/hourlyOperatingData/0".
using JsonParts = std::map<std::string, std::string>;
/// The whole path of the field that a fault changes.
std::string pathOf(const JsonFault& fault, const JsonParts& parts);
/// "hourlyOperatingData[0].date: " and the sentence behind it.
std::string sentenceOf(const JsonFault& fault, const JsonParts& parts);

/// The header of a table of spans.
inline const std::string kSpanColumns =
    "unit_id,component_id,component_type,span_scale,span_value,units\n";

/// A QA file of two tests: a linearity check that is stepped over, and a seven-day test of U1 010 H
/// with two rows, 2020-03-01 06:10 and 2020-03-02 07:15.
std::string smallQa();
/// A JSON text in which the field of a path has a value, behind the end of a list for "-"; it is
/// taken away for an empty value.
std::string patchedJson(const std::string& text, const std::string& path, const std::string& value);
/// smallQa with one field patched.
std::string patchedQa(const std::string& path, const std::string& value);

} // namespace k7deval::sitedb::test
