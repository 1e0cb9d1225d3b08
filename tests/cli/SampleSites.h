#pragma once

#include "support/TemporaryFolder.h"

#include <filesystem>
#include <string>
#include <vector>

/// Sites made from the files of the Bethpage sample by the program's own import, once for all tests
/// of a run. Tests that change a site take a copy.
namespace k7deval::cli::test
{

/// A file of the sample.
std::string sampleFile(const std::string& name);

/// A site with a facility name and nothing else.
const std::string& emptySite();
/// Units and analyzers, but no calibrations and no ORIS code.
const std::string& siteOfSpans();
/// Units, analyzers and all calibrations that can be read, but no operating hours.
const std::string& siteOfTests();
/// All that the sample holds.
const std::string& fullSite();

/// A copy of a site in a folder, after some SQL commands: for what no importer makes.
std::string alteredSite(const std::string& site, const k7deval::testing::TemporaryFolder& folder,
                        const std::vector<std::string>& commands);

/// A copy of siteOfTests in which the analyzer "CO2 031/H" of GT1 is not under 40 CFR 75.
std::string siteWithPart60(const k7deval::testing::TemporaryFolder& folder);

} // namespace k7deval::cli::test
