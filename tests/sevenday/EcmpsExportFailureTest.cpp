#include "sevenday/ExportRig.h"

#include <gtest/gtest.h>

/// Failures that end the export: the line is posted, and there is no file.
namespace k7deval::test
{

namespace
{

struct FailureRig : ExportRig {
    FailureRig() { show({dayOf(runAt(kMorning))}); }

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
    FailureRig rig;
    rig.test.objDaysToDisplay[0]->DisplayedCals[0]->ZeroCal = nullptr;
    rig.expectFailure(91, "91, Object variable or With block variable not set");
}

TEST(ExportFailure, ARunWithoutASpanInjection)
{
    FailureRig rig;
    rig.test.objDaysToDisplay[0]->DisplayedCals[0]->SpanCal = nullptr;
    rig.expectFailure(91, "91, Object variable or With block variable not set");
}

TEST(ExportFailure, AnOrisCodeThatIsNoNumber)
{
    FailureRig rig;
    rig.page.txtORIS.SetText("");
    rig.expectFailure(13, "13, Type mismatch");
}

TEST(ExportFailure, ATypedTestReason)
{
    FailureRig rig;
    rig.page.cmbTestReason.Type("Diagnostic");
    rig.expectFailure(381, "381, Invalid property array index");
}

TEST(ExportFailure, DaysNeverSized)
{
    FailureRig rig;
    rig.test.objDaysToDisplay = DayArray();
    rig.expectFailure(9, "9, Subscript out of range");
}

TEST(ExportFailure, AnAnalyzerThatDoesNotAnswer)
{
    FailureRig rig;
    rig.site->failure = [](const std::string&, std::size_t) {
        return std::optional(Error(440, "the line is down"));
    };
    rig.expectFailure(440, "440, the line is down");
}

TEST(ExportFailure, AFolderThatIsNotThere)
{
    FailureRig rig;
    const auto failure = rig.exporter.WriteEcmpsExport(rig.folder.file("nowhere/7Day.xml"));
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->number(), 76);
    EXPECT_EQ(rig.messages->lines(), Lines{"DEval-015: 76, Path not found"});
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
