#include "range/RangeRig.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

/// The click of the save button.
namespace k7deval::test
{

namespace
{

using screen::MsgBoxAnswer;
using test::contentOf;
using test::writeFile;

const screen::MsgBoxRequest kDeleteQuestion{"Delete Existing File?", "Delete Existing File?",
                                            screen::MsgBoxButtons::YesNo, screen::MsgBoxIcon::None};

screen::MsgBoxRequest failureBox(const std::string& failure)
{
    return {"Error Deleting File:  " + failure, "Range Evaluation", screen::MsgBoxButtons::OK,
            screen::MsgBoxIcon::None};
}

using Boxes = std::vector<screen::MsgBoxRequest>;

/// The tool with an evaluation, and a folder to save in.
struct SaveRig : RangeRig {
    SaveRig()
    {
        services.saveAnswer = screen::SaveAnswer{path, 1};
        hours({10, 50, 90}).calculate();
        tool.chkPreview.Press();
    }

    SaveRig& save()
    {
        tool.cmdSave.Press();
        return *this;
    }
    SaveRig& existing(const std::vector<MsgBoxAnswer>& answers)
    {
        writeFile(path, "old");
        services.answers = answers;
        return *this;
    }
    SaveRig& failing(const std::string& name)
    {
        failAt(*site, name);
        return *this;
    }

    test::TemporaryFolder folder;
    const std::string path = folder.file("range.pdf");
};

bool isReport(const std::string& path)
{
    return contentOf(path).starts_with("%PDF-");
}

} // namespace

TEST(RangeSave, OffersAReport)
{
    SaveRig rig;
    rig.save();
    EXPECT_EQ(rig.services.filters, Lines{"PDF File (*.pdf)|*.pdf"});
    EXPECT_EQ(rig.services.extensions, Lines{".pdf"});
}

TEST(RangeSave, WritesTheReportAndOpensIt)
{
    SaveRig rig;
    rig.save();
    EXPECT_TRUE(isReport(rig.path));
    EXPECT_EQ(rig.folder.names(), Lines{"range.pdf"});
    EXPECT_EQ(rig.services.opened, Lines{rig.path});
    EXPECT_EQ(rig.services.boxes, Boxes());
}

TEST(RangeSave, OpensNothingWithoutThePreview)
{
    SaveRig rig;
    rig.tool.chkPreview.Press();
    rig.save();
    EXPECT_TRUE(isReport(rig.path));
    EXPECT_EQ(rig.services.opened, Lines());
}

TEST(RangeSave, CannotBePressedWithStaleResults)
{
    SaveRig rig;
    rig.range("60");
    rig.save();
    EXPECT_EQ(rig.services.filters, Lines());
    EXPECT_EQ(rig.folder.names(), Lines());
}

TEST(RangeSave, LeavesTheScreenAsItIsAndReadsNoHours)
{
    SaveRig rig;
    rig.save();
    rig.takeReads();
    EXPECT_EQ(rig.changesBy([&] { rig.existing({MsgBoxAnswer::Yes}).save(); }), Lines());
    EXPECT_EQ(rig.takeReads(), std::vector<ReadRequest>());
}

TEST(RangeSave, CancellingTheDialogEndsTheClickSilently)
{
    SaveRig rig;
    rig.services.saveAnswer.reset();
    rig.save();
    EXPECT_EQ(rig.services.boxes, Boxes());
    EXPECT_EQ(rig.services.opened, Lines());
    EXPECT_EQ(rig.folder.names(), Lines());
    EXPECT_TRUE(rig.tool.cmdSave.Enabled());
}

TEST(RangeSave, AFailingDialogLeavesNothingToWriteOrToOpen)
{
    SaveRig rig;
    rig.services.saveError = Error(440, "no dialog");
    EXPECT_NO_THROW(rig.save());
    EXPECT_EQ(rig.services.boxes, Boxes());
    EXPECT_EQ(rig.services.opened, Lines());
    EXPECT_EQ(rig.folder.names(), Lines());
}

TEST(RangeSave, AnyAnswerButYesLeavesTheFileAsItWas)
{
    for (const MsgBoxAnswer answer : {MsgBoxAnswer::No, MsgBoxAnswer::OK}) {
        SaveRig rig;
        rig.existing({answer}).save();
        EXPECT_EQ(rig.services.boxes, Boxes{kDeleteQuestion});
        EXPECT_EQ(contentOf(rig.path), "old");
        EXPECT_EQ(rig.services.opened, Lines());
    }
}

TEST(RangeSave, AnsweredYesReplacesTheFile)
{
    SaveRig rig;
    rig.existing({MsgBoxAnswer::Yes}).save();
    EXPECT_EQ(rig.services.boxes, Boxes{kDeleteQuestion});
    EXPECT_TRUE(isReport(rig.path));
    EXPECT_EQ(rig.services.opened, Lines{rig.path});
}

TEST(RangeSave, AWriteProtectedFileStaysAndABoxSaysWhy)
{
    SaveRig rig;
    rig.existing({MsgBoxAnswer::Yes});
    std::filesystem::permissions(rig.path, std::filesystem::perms::owner_read);
    rig.save();
    EXPECT_EQ(contentOf(rig.path), "old");
    EXPECT_EQ(rig.services.boxes, (Boxes{kDeleteQuestion, failureBox("70:Permission denied")}));
    EXPECT_EQ(rig.services.opened, Lines());
}

TEST(RangeSave, AReportThatFailsBehindADeletionShowsTheBoxAndNoPreview)
{
    SaveRig rig;
    rig.existing({MsgBoxAnswer::Yes}).failing("DIServer.LookupService").save();
    EXPECT_EQ(rig.services.boxes, (Boxes{kDeleteQuestion, failureBox("440:the line is down")}));
    EXPECT_EQ(rig.services.opened, Lines());
    EXPECT_EQ(rig.folder.names(), Lines());
}

TEST(RangeSave, AReportThatFailsWithoutADeletionShowsNothingAndGoesOnToThePreview)
{
    SaveRig rig;
    EXPECT_NO_THROW(rig.failing("DIServer.LookupService").save());
    EXPECT_EQ(rig.services.boxes, Boxes());
    EXPECT_EQ(rig.services.opened, Lines{rig.path});
    EXPECT_EQ(rig.folder.names(), Lines());
}

TEST(RangeSave, AFolderThatIsNotThereFailsSilently)
{
    SaveRig rig;
    rig.services.saveAnswer->path = rig.folder.file("nowhere/range.pdf");
    EXPECT_NO_THROW(rig.save());
    EXPECT_EQ(rig.services.boxes, Boxes());
    EXPECT_EQ(rig.services.opened, Lines{rig.services.saveAnswer->path});
}

TEST(RangeSave, AFailingViewerIsSilentUnlessAFileWasDeleted)
{
    SaveRig rig;
    rig.services.openError = Error(errors::kFileNotFound);
    EXPECT_NO_THROW(rig.save());
    EXPECT_EQ(rig.services.boxes, Boxes());
    EXPECT_NO_THROW(rig.existing({MsgBoxAnswer::Yes}).save());
    EXPECT_EQ(rig.services.boxes, (Boxes{kDeleteQuestion, failureBox("53:File not found")}));
}

TEST(RangeSave, AFailingQuestionIsPassedOver)
{
    SaveRig rig;
    rig.existing({}).services.msgBoxError = Error(440, "no box");
    EXPECT_NO_THROW(rig.save());
    EXPECT_TRUE(rig.tool.cmdSave.Enabled());
}

} // namespace k7deval::test
