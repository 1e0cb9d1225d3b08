#include "sevenday/ExportRig.h"

#include <gtest/gtest.h>

#include <optional>

/// Failures that end the export: the line is posted, and there is no file.
namespace k7deval::test
{

namespace
{

struct FailureRig : ExportRig {
    FailureRig() { show({dayOf(runAt(kMorning))}); }

    cls7DayAnalyzerCal& run() { return *test.objDaysToDisplay[0]->DisplayedCals[0]; }
};

struct ExportFailureCase {
    const char* what;
    void (*spoil)(FailureRig& rig);
    int number;
    const char* line;
};

constexpr const char* kAbsent = "DEval-015: 91, Object variable or With block variable not set";

std::optional<Error> isDown(const std::string& /*call*/, std::size_t /*index*/)
{
    return Error(440, "the line is down");
}

constexpr ExportFailureCase kExportFailures[] = {
    {"no zero injection", [](auto& rig) { rig.run().ZeroCal = nullptr; }, 91, kAbsent},
    {"no span injection", [](auto& rig) { rig.run().SpanCal = nullptr; }, 91, kAbsent},
    {"an ORIS code that is no number", [](auto& rig) { rig.page.txtORIS.SetText(""); }, 13,
     "DEval-015: 13, Type mismatch"},
    {"a typed test reason", [](auto& rig) { rig.page.cmbTestReason.Type("Diagnostic"); }, 381,
     "DEval-015: 381, Invalid property array index"},
    {"days never sized", [](auto& rig) { rig.test.objDaysToDisplay = DayArray(); }, 9,
     "DEval-015: 9, Subscript out of range"},
    {"an analyzer that does not answer", [](auto& rig) { rig.site->failure = isDown; }, 440,
     "DEval-015: 440, the line is down"},
};

} // namespace

TEST(ExportFailure, LeavesNoFile)
{
    for (const ExportFailureCase& row : kExportFailures) {
        FailureRig rig;
        row.spoil(rig);
        const auto failure = rig.write();
        ASSERT_TRUE(failure.has_value()) << row.what;
        EXPECT_EQ(failure->number(), row.number) << row.what;
        const std::vector<std::pair<std::int32_t, std::string>> posted = {{4, row.line}};
        EXPECT_EQ(rig.messages->posted, posted) << row.what;
        EXPECT_EQ(rig.folder.names(), Lines()) << row.what;
    }
}

TEST(ExportFailure, LeavesAFileThatIsThereAsItWas)
{
    FailureRig rig;
    test::writeFile(rig.path, "old");
    rig.page.txtORIS.SetText("");
    EXPECT_TRUE(rig.write().has_value());
    EXPECT_EQ(test::contentOf(rig.path), "old");
}

TEST(ExportFailure, IsSilentWithoutAMessageSink)
{
    FailureRig rig;
    rig.test.irm = nullptr;
    rig.page.txtORIS.SetText("");
    EXPECT_TRUE(rig.write().has_value());
    EXPECT_EQ(rig.messages->lines(), Lines());
}

} // namespace k7deval::test
