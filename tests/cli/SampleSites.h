#pragma once

#include "support/TemporaryFolder.h"

#include <filesystem>
#include <string>
#include <vector>

/// Sites made from the files of the samples by the program's own import, once for all tests
/// of a run. Tests that change a site take a copy.
namespace k7deval::cli::test
{

/// A file of the sample.
std::string sampleFile(const std::string& name);

/// A file of data/: "crystal-river/spans.csv".
std::string dataFile(const std::string& name);

/// A site with a facility name and nothing else.
const std::string& emptySite();
/// Units and analyzers, but no calibrations and no ORIS code.
const std::string& siteOfSpans();
/// Units, analyzers and all calibrations that can be read, but no operating hours.
const std::string& siteOfTests();
/// All that the sample holds.
const std::string& fullSite();

/// A unit U1 with ten hours of load at the end of March 2021, on the bounds of bins and levels
/// from 10 to 110 MW and beside them, and an hour off line.
const std::string& siteOfLoad();
/// A unit U1 with SO2 on two scales and O2, and twelve hours of SO2 at the end of March 2021, on
/// the bounds of bins and levels up to 100 ppm and beside them: one replaced by 200 %, one missing,
/// one left out of evaluations. A unit U2 with NOX on one scale.
const std::string& siteOfGas();
/// Units and spans of Crystal River, and mercury of unit 4 in the third quarter of 2021.
const std::string& siteOfRanges();

/// A copy of a site in a folder, after some SQL commands: for what no importer makes.
std::string alteredSite(const std::string& site, const k7deval::test::TemporaryFolder& folder,
                        const std::vector<std::string>& commands);

/// A copy of siteOfTests in which the analyzer "CO2 031/H" of GT1 is not under 40 CFR 75.
std::string siteWithPart60(const k7deval::test::TemporaryFolder& folder);

} // namespace k7deval::cli::test
