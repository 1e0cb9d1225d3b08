#pragma once

#include "sevenday/DriftDays.h"
#include "sevenday/EcmpsExport.h"
#include "sevenday/SetUpRig.h"
#include "support/TemporaryFolder.h"

#include <memory>
#include <string>
#include <vector>

namespace k7deval::test
{

/// A drift test made by hand and its export, on the setup page of an analyzer. The test is passed
/// with seven good runs; its days never were sized.
struct ExportRig : SetUpRig {
    explicit ExportRig(const AnalyzerFacts& facts = {}, const std::string& region = "en-US");

    ExportRig& show(const std::vector<CalDay>& days);

    std::optional<Error> write() { return exporter.WriteEcmpsExport(path); }
    /// The text of the file, written anew without a failure.
    std::string text();
    /// The text of the first element of that name; "(absent)" when there is none.
    std::string valueOf(const std::string& element);

    test::TemporaryFolder folder;
    const std::string path = folder.file("7Day.xml");
    DriftTest test{regional};
    EcmpsExport exporter{test, page};
};

/// A day of one run.
CalDay dayOf(const CalRun& run);

} // namespace k7deval::test
