#include "range/RangeBench.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

/// The click of the save button.
namespace k7deval::test
{

namespace
{

using screen::MsgBoxAnswer;
using testing::contentOf;
using testing::writeFile;

const screen::MsgBoxRequest kDeleteQuestion{"Delete Existing File?", "Delete Existing File?",
                                            screen::MsgBoxButtons::YesNo, screen::MsgBoxIcon::None};

screen::MsgBoxRequest failureBox(const std::string& failure)
{
    return {"Error Deleting File:  " + failure, "Range Evaluation", screen::MsgBoxButtons::OK,
            screen::MsgBoxIcon::None};
}

using Boxes = std::vector<screen::MsgBoxRequest>;

/// The tool with an evaluation, and a folder to save in.
struct SaveBench : RangeBench {
    SaveBench()
    {
        services.saveAnswer = screen::SaveAnswer{path, 1};
        hours({10, 50, 90}).calculate();
        tool.chkPreview.Press();
    }

    SaveBench& save()
    {
        tool.cmdSave.Press();
        return *this;
    }
    SaveBench& existing(const std::vector<MsgBoxAnswer>& answers)
    {
        writeFile(path, "old");
        services.answers = answers;
        return *this;
    }
    SaveBench& failing(const std::string& name)
    {
        failAt(*site, name);
        return *this;
    }

    testing::TemporaryFolder folder;
    const std::string path = folder.file("range.pdf");
};

bool isReport(const std::string& path)
{
    return contentOf(path).starts_with("%PDF-");
}

} // namespace

TEST(RangeSave, OffersAReport)
{
    SaveBench bench;
    bench.save();
    EXPECT_EQ(bench.services.filters, Lines{"PDF File (*.pdf)|*.pdf"});
    EXPECT_EQ(bench.services.extensions, Lines{".pdf"});
}

TEST(RangeSave, WritesTheReportAndOpensIt)
{
    SaveBench bench;
    bench.save();
    EXPECT_TRUE(isReport(bench.path));
    EXPECT_EQ(bench.folder.names(), Lines{"range.pdf"});
    EXPECT_EQ(bench.services.opened, Lines{bench.path});
    EXPECT_EQ(bench.services.boxes, Boxes());
}

TEST(RangeSave, OpensNothingWithoutThePreview)
{
    SaveBench bench;
    bench.tool.chkPreview.Press();
    bench.save();
    EXPECT_TRUE(isReport(bench.path));
    EXPECT_EQ(bench.services.opened, Lines());
}

TEST(RangeSave, CannotBePressedWithStaleResults)
{
    SaveBench bench;
    bench.range("60");
    bench.save();
    EXPECT_EQ(bench.services.filters, Lines());
    EXPECT_EQ(bench.folder.names(), Lines());
}

TEST(RangeSave, LeavesTheScreenAsItIsAndReadsNoHours)
{
    SaveBench bench;
    bench.save();
    bench.takeReads();
    EXPECT_EQ(bench.changesBy([&] { bench.existing({MsgBoxAnswer::Yes}).save(); }), Lines());
    EXPECT_EQ(bench.takeReads(), std::vector<ReadRequest>());
}

TEST(RangeSave, CancellingTheDialogEndsTheClickSilently)
{
    SaveBench bench;
    bench.services.saveAnswer.reset();
    bench.save();
    EXPECT_EQ(bench.services.boxes, Boxes());
    EXPECT_EQ(bench.services.opened, Lines());
    EXPECT_EQ(bench.folder.names(), Lines());
    EXPECT_TRUE(bench.tool.cmdSave.Enabled());
}

TEST(RangeSave, AFailingDialogLeavesNothingToWriteOrToOpen)
{
    SaveBench bench;
    bench.services.saveError = Error(440, "no dialog");
    EXPECT_NO_THROW(bench.save());
    EXPECT_EQ(bench.services.boxes, Boxes());
    EXPECT_EQ(bench.services.opened, Lines());
    EXPECT_EQ(bench.folder.names(), Lines());
}

TEST(RangeSave, AnyAnswerButYesLeavesTheFileAsItWas)
{
    for (const MsgBoxAnswer answer : {MsgBoxAnswer::No, MsgBoxAnswer::OK}) {
        SaveBench bench;
        bench.existing({answer}).save();
        EXPECT_EQ(bench.services.boxes, Boxes{kDeleteQuestion});
        EXPECT_EQ(contentOf(bench.path), "old");
        EXPECT_EQ(bench.services.opened, Lines());
    }
}

TEST(RangeSave, AnsweredYesReplacesTheFile)
{
    SaveBench bench;
    bench.existing({MsgBoxAnswer::Yes}).save();
    EXPECT_EQ(bench.services.boxes, Boxes{kDeleteQuestion});
    EXPECT_TRUE(isReport(bench.path));
    EXPECT_EQ(bench.services.opened, Lines{bench.path});
}

TEST(RangeSave, AWriteProtectedFileStaysAndABoxSaysWhy)
{
    SaveBench bench;
    bench.existing({MsgBoxAnswer::Yes});
    std::filesystem::permissions(bench.path, std::filesystem::perms::owner_read);
    bench.save();
    EXPECT_EQ(contentOf(bench.path), "old");
    EXPECT_EQ(bench.services.boxes, (Boxes{kDeleteQuestion, failureBox("70:Permission denied")}));
    EXPECT_EQ(bench.services.opened, Lines());
}

TEST(RangeSave, AReportThatFailsBehindADeletionShowsTheBoxAndNoPreview)
{
    SaveBench bench;
    bench.existing({MsgBoxAnswer::Yes}).failing("DIServer.LookupService").save();
    EXPECT_EQ(bench.services.boxes, (Boxes{kDeleteQuestion, failureBox("440:the line is down")}));
    EXPECT_EQ(bench.services.opened, Lines());
    EXPECT_EQ(bench.folder.names(), Lines());
}

TEST(RangeSave, AReportThatFailsWithoutADeletionShowsNothingAndGoesOnToThePreview)
{
    SaveBench bench;
    EXPECT_NO_THROW(bench.failing("DIServer.LookupService").save());
    EXPECT_EQ(bench.services.boxes, Boxes());
    EXPECT_EQ(bench.services.opened, Lines{bench.path});
    EXPECT_EQ(bench.folder.names(), Lines());
}

TEST(RangeSave, AFolderThatIsNotThereFailsSilently)
{
    SaveBench bench;
    bench.services.saveAnswer->path = bench.folder.file("nowhere/range.pdf");
    EXPECT_NO_THROW(bench.save());
    EXPECT_EQ(bench.services.boxes, Boxes());
    EXPECT_EQ(bench.services.opened, Lines{bench.services.saveAnswer->path});
}

TEST(RangeSave, AFailingViewerIsSilentUnlessAFileWasDeleted)
{
    SaveBench bench;
    bench.services.openError = Error(errors::kFileNotFound);
    EXPECT_NO_THROW(bench.save());
    EXPECT_EQ(bench.services.boxes, Boxes());
    EXPECT_NO_THROW(bench.existing({MsgBoxAnswer::Yes}).save());
    EXPECT_EQ(bench.services.boxes, (Boxes{kDeleteQuestion, failureBox("53:File not found")}));
}

TEST(RangeSave, AFailingQuestionIsPassedOver)
{
    SaveBench bench;
    bench.existing({}).services.msgBoxError = Error(440, "no box");
    EXPECT_NO_THROW(bench.save());
    EXPECT_TRUE(bench.tool.cmdSave.Enabled());
}

} // namespace k7deval::test
