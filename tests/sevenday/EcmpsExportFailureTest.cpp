#include "sevenday/ExportBench.h"

#include <gtest/gtest.h>

/// Failures that end the export: the line is posted, and there is no file.
namespace k7deval::test
{

namespace
{

const Date kMorning = makeDate(2024, 3, 10, 8, 15);

struct FailureBench : ExportBench {
    FailureBench() { show({dayOf(runAt(kMorning))}); }

    /// Writes, and expects the failure and no file.
    void expectFailure(int number, const std::string& line)
    {
        const auto failure = write();
        ASSERT_TRUE(failure.has_value());
        EXPECT_EQ(failure->number(), number);
        EXPECT_EQ(messages->posted,
                  (std::vector<std::pair<std::int32_t, std::string>>{{4, "DEval-015: " + line}}));
        EXPECT_EQ(folder.names(), Lines());
    }
};

} // namespace

TEST(ExportFailure, ARunWithoutAZeroInjection)
{
    FailureBench bench;
    bench.test.objDaysToDisplay[0]->DisplayedCals[0]->ZeroCal = nullptr;
    bench.expectFailure(91, "91, Object variable or With block variable not set");
}

TEST(ExportFailure, ARunWithoutASpanInjection)
{
    FailureBench bench;
    bench.test.objDaysToDisplay[0]->DisplayedCals[0]->SpanCal = nullptr;
    bench.expectFailure(91, "91, Object variable or With block variable not set");
}

TEST(ExportFailure, AnOrisCodeThatIsNoNumber)
{
    FailureBench bench;
    bench.page.txtORIS.SetText("");
    bench.expectFailure(13, "13, Type mismatch");
}

TEST(ExportFailure, ATypedTestReason)
{
    FailureBench bench;
    bench.page.cmbTestReason.Type("Diagnostic");
    bench.expectFailure(381, "381, Invalid property array index");
}

TEST(ExportFailure, DaysNeverSized)
{
    FailureBench bench;
    bench.test.objDaysToDisplay = DayArray();
    bench.expectFailure(9, "9, Subscript out of range");
}

TEST(ExportFailure, AnAnalyzerThatDoesNotAnswer)
{
    FailureBench bench;
    bench.site->failure = [](const std::string&, std::size_t) {
        return std::optional(Error(440, "the line is down"));
    };
    bench.expectFailure(440, "440, the line is down");
}

TEST(ExportFailure, AFolderThatIsNotThere)
{
    FailureBench bench;
    const auto failure = bench.exporter.WriteEcmpsExport(bench.folder.file("nowhere/7Day.xml"));
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->number(), 76);
    EXPECT_EQ(bench.messages->lines(), Lines{"DEval-015: 76, Path not found"});
}

TEST(ExportFailure, LeavesAFileThatIsThereAsItWas)
{
    FailureBench bench;
    testing::writeFile(bench.path, "old");
    bench.page.txtORIS.SetText("");
    EXPECT_TRUE(bench.write().has_value());
    EXPECT_EQ(testing::contentOf(bench.path), "old");
}

TEST(ExportFailure, IsSilentWithoutAMessageSink)
{
    FailureBench bench;
    bench.test.irm = nullptr;
    bench.page.txtORIS.SetText("");
    EXPECT_TRUE(bench.write().has_value());
    EXPECT_EQ(bench.messages->lines(), Lines());
}

} // namespace k7deval::test
