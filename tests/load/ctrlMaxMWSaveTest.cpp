#include "load/LoadRig.h"
#include "support/PdfText.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

/// The click of the load tool's save button.
namespace k7deval::test
{

namespace
{

using screen::MsgBoxAnswer;
using test::contentOf;
using test::writeFile;
using Boxes = std::vector<screen::MsgBoxRequest>;

const screen::MsgBoxRequest kDeleteQuestion{"Delete Existing File?", "Delete Existing File?",
                                            screen::MsgBoxButtons::YesNo, screen::MsgBoxIcon::None};

screen::MsgBoxRequest failureBox(const std::string& failure)
{
    return {"Error Deleting File:  " + failure, "Load Evaluation", screen::MsgBoxButtons::OK,
            screen::MsgBoxIcon::None};
}

/// The load tool after a calculation, with the preview on, and a folder to save in.
struct SaveRig : LoadRig {
    SaveRig()
    {
        services.saveAnswer = screen::SaveAnswer{path, 1};
        tool.chkPreview.Press();
        hours({10, 50, 90}).calculate();
        services.boxes.clear();
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
    [[nodiscard]] bool hasReport() const { return contentOf(path).starts_with("%PDF-"); }

    test::TemporaryFolder folder;
    std::string path = folder.file("Load.pdf");
};

} // namespace

TEST(LoadSave, AsksForAPdfFile)
{
    SaveRig rig;
    rig.save();
    EXPECT_EQ(rig.services.filters, Lines{"PDF File (*.pdf)|*.pdf"});
    EXPECT_EQ(rig.services.extensions, Lines{".pdf"});
}

TEST(LoadSave, WritesTheReportAndOpensIt)
{
    SaveRig rig;
    rig.save();
    EXPECT_TRUE(rig.hasReport());
    EXPECT_EQ(rig.folder.names(), Lines{"Load.pdf"});
    EXPECT_EQ(rig.services.opened, Lines{rig.path});
    EXPECT_EQ(rig.services.boxes, Boxes());
}

TEST(LoadSave, OpensNothingWithoutThePreview)
{
    SaveRig rig;
    rig.tool.chkPreview.Press();
    rig.save();
    EXPECT_TRUE(rig.hasReport());
    EXPECT_EQ(rig.services.opened, Lines());
}

TEST(LoadSave, LeavesTheScreenAsItIs)
{
    SaveRig rig;
    rig.save();
    EXPECT_EQ(rig.changesBy([&] { rig.existing({MsgBoxAnswer::Yes}).save(); }), Lines());
    EXPECT_FALSE(rig.tool.NeedsEvaluation());
    EXPECT_TRUE(rig.tool.cmdSave.Enabled());
}

TEST(LoadSave, CannotBePressedBeforeACalculation)
{
    LoadRig rig;
    rig.tool.cmdSave.Press();
    EXPECT_TRUE(rig.services.filters.empty());
}

TEST(LoadSave, CancellingTheDialogEndsTheClickInSilence)
{
    SaveRig rig;
    rig.services.saveAnswer.reset();
    rig.site->calls.clear();
    rig.save();
    EXPECT_EQ(rig.services.boxes, Boxes());
    EXPECT_EQ(rig.services.opened, Lines());
    EXPECT_EQ(rig.folder.names(), Lines());
    EXPECT_EQ(rig.site->calls, Lines());
    EXPECT_TRUE(rig.tool.cmdSave.Enabled());
}

TEST(LoadSave, AFailingDialogWritesAndOpensNothing)
{
    SaveRig rig;
    rig.services.saveError = Error(440, "no dialog");
    rig.save();
    EXPECT_EQ(rig.services.boxes, Boxes());
    EXPECT_EQ(rig.services.opened, Lines());
    EXPECT_EQ(rig.folder.names(), Lines());
}

TEST(LoadSave, AFailingDialogForgetsTheFileOfTheLastSave)
{
    SaveRig rig;
    rig.save();
    rig.services.opened.clear();
    rig.services.saveError = Error(440, "no dialog");
    rig.save();
    EXPECT_EQ(rig.services.boxes, Boxes());
    EXPECT_EQ(rig.services.opened, Lines());
    EXPECT_TRUE(rig.hasReport());
}

TEST(LoadSave, AskedWhetherToDeleteNoLeavesTheFileAsItWas)
{
    for (const MsgBoxAnswer answer : {MsgBoxAnswer::No, MsgBoxAnswer::OK}) {
        SaveRig rig;
        rig.existing({answer}).save();
        EXPECT_EQ(rig.services.boxes, Boxes{kDeleteQuestion});
        EXPECT_EQ(contentOf(rig.path), "old");
        EXPECT_EQ(rig.services.opened, Lines());
        EXPECT_TRUE(rig.tool.cmdSave.Enabled());
    }
}

TEST(LoadSave, AskedWhetherToDeleteYesReplacesTheFile)
{
    SaveRig rig;
    rig.existing({MsgBoxAnswer::Yes}).save();
    EXPECT_EQ(rig.services.boxes, Boxes{kDeleteQuestion});
    EXPECT_TRUE(rig.hasReport());
    EXPECT_EQ(rig.services.opened, Lines{rig.path});
}

TEST(LoadSave, AWriteProtectedFileStaysAndABoxSaysWhy)
{
    SaveRig rig;
    rig.existing({MsgBoxAnswer::Yes});
    std::filesystem::permissions(rig.path, std::filesystem::perms::owner_read);
    rig.save();
    EXPECT_EQ(contentOf(rig.path), "old");
    EXPECT_EQ(rig.services.boxes, (Boxes{kDeleteQuestion, failureBox("70:Permission denied")}));
    EXPECT_EQ(rig.services.opened, Lines());
}

TEST(LoadSave, AReportThatFailsBehindADeletionShowsTheBoxAndNoPreview)
{
    SaveRig rig;
    rig.existing({MsgBoxAnswer::Yes});
    failAt(*rig.site, "DIServer.LookupService");
    rig.save();
    EXPECT_EQ(rig.services.boxes, (Boxes{kDeleteQuestion, failureBox("440:the line is down")}));
    EXPECT_EQ(rig.services.opened, Lines());
    EXPECT_EQ(rig.folder.names(), Lines());
}

TEST(LoadSave, AReportThatFailsWithoutADeletionGoesOnToThePreview)
{
    SaveRig rig;
    failAt(*rig.site, "DIServer.LookupService");
    rig.save();
    EXPECT_EQ(rig.services.boxes, Boxes());
    EXPECT_EQ(rig.services.opened, Lines{rig.path});
}

TEST(LoadSave, AFolderThatIsNotThereGoesOnToThePreview)
{
    SaveRig rig;
    rig.services.saveAnswer->path = rig.folder.file("nowhere/Load.pdf");
    rig.save();
    EXPECT_EQ(rig.services.boxes, Boxes());
    EXPECT_EQ(rig.services.opened, Lines{rig.services.saveAnswer->path});
    EXPECT_EQ(rig.folder.names(), Lines());
}

TEST(LoadSave, AFailingViewerIsSilentWithoutADeletion)
{
    SaveRig rig;
    rig.services.openError = Error(errors::kFileNotFound);
    rig.save();
    EXPECT_EQ(rig.services.boxes, Boxes());
    EXPECT_TRUE(rig.hasReport());
}

TEST(LoadSave, AFailingViewerBehindADeletionShowsTheBox)
{
    SaveRig rig;
    rig.services.openError = Error(errors::kFileNotFound);
    rig.existing({MsgBoxAnswer::Yes}).save();
    EXPECT_EQ(rig.services.boxes, (Boxes{kDeleteQuestion, failureBox("53:File not found")}));
    EXPECT_TRUE(rig.hasReport());
}

TEST(LoadSave, AFailureNeverTouchesThePointerOrTheResults)
{
    SaveRig rig;
    rig.existing({MsgBoxAnswer::Yes});
    failAt(*rig.site, "DIServer.LookupService");
    rig.save();
    EXPECT_EQ(rig.tool.MousePointer(), screen::MousePointer::Default);
    EXPECT_EQ(rig.tool.lblHeader.Caption(), "GT1 GT1 Load");
    EXPECT_TRUE(rig.tool.cmdSave.Enabled());
}

TEST(LoadSave, FromAClearedScreenWritesTheHoursOfTheLastEvaluation)
{
    SaveRig rig;
    enter(rig.tool.txtCapacity, "200");
    ASSERT_TRUE(isCleared(rig.tool));
    rig.save();
    const std::string text = test::pdfPlainText(rig.path);
    EXPECT_NE(text.find("0 hour(s) under minimum"), std::string::npos) << text;
    EXPECT_NE(text.find("0 hour(s) over maximum"), std::string::npos) << text;
    EXPECT_NE(text.find("1 Hours"), std::string::npos) << text;
    EXPECT_EQ(text.find("Low Op Load"), std::string::npos) << text;
    EXPECT_EQ(text.find("GT1 Load"), std::string::npos) << text;
}

TEST(LoadSave, AfterTheDataWasTakenAwayCannotBePressed)
{
    SaveRig rig;
    rig.tool.SetDIServer(nullptr);
    rig.save();
    EXPECT_TRUE(rig.services.filters.empty());
}

} // namespace k7deval::test
