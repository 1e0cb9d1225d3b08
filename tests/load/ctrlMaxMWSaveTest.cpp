#include "load/LoadBench.h"
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
using testing::contentOf;
using testing::writeFile;
using Boxes = std::vector<screen::MsgBoxRequest>;

const screen::MsgBoxRequest kDeleteQuestion{"Delete Existing File?", "Delete Existing File?",
                                            screen::MsgBoxButtons::YesNo, screen::MsgBoxIcon::None};

screen::MsgBoxRequest failureBox(const std::string& failure)
{
    return {"Error Deleting File:  " + failure, "Load Evaluation", screen::MsgBoxButtons::OK,
            screen::MsgBoxIcon::None};
}

/// The load tool after a calculation, with the preview on, and a folder to save in.
struct SaveBench : LoadBench {
    SaveBench()
    {
        services.saveAnswer = screen::SaveAnswer{path, 1};
        tool.chkPreview.Press();
        hours({10, 50, 90}).calculate();
        services.boxes.clear();
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
    [[nodiscard]] bool hasReport() const { return contentOf(path).starts_with("%PDF-"); }

    testing::TemporaryFolder folder;
    std::string path = folder.file("Load.pdf");
};

} // namespace

TEST(LoadSave, AsksForAPdfFile)
{
    SaveBench bench;
    bench.save();
    EXPECT_EQ(bench.services.filters, Lines{"PDF File (*.pdf)|*.pdf"});
    EXPECT_EQ(bench.services.extensions, Lines{".pdf"});
}

TEST(LoadSave, WritesTheReportAndOpensIt)
{
    SaveBench bench;
    bench.save();
    EXPECT_TRUE(bench.hasReport());
    EXPECT_EQ(bench.folder.names(), Lines{"Load.pdf"});
    EXPECT_EQ(bench.services.opened, Lines{bench.path});
    EXPECT_EQ(bench.services.boxes, Boxes());
}

TEST(LoadSave, OpensNothingWithoutThePreview)
{
    SaveBench bench;
    bench.tool.chkPreview.Press();
    bench.save();
    EXPECT_TRUE(bench.hasReport());
    EXPECT_EQ(bench.services.opened, Lines());
}

TEST(LoadSave, LeavesTheScreenAsItIs)
{
    SaveBench bench;
    bench.save();
    EXPECT_EQ(bench.changesBy([&] { bench.existing({MsgBoxAnswer::Yes}).save(); }), Lines());
    EXPECT_FALSE(bench.tool.NeedsEvaluation());
    EXPECT_TRUE(bench.tool.cmdSave.Enabled());
}

TEST(LoadSave, CannotBePressedBeforeACalculation)
{
    LoadBench bench;
    bench.tool.cmdSave.Press();
    EXPECT_TRUE(bench.services.filters.empty());
}

TEST(LoadSave, CancellingTheDialogEndsTheClickInSilence)
{
    SaveBench bench;
    bench.services.saveAnswer.reset();
    bench.site->calls.clear();
    bench.save();
    EXPECT_EQ(bench.services.boxes, Boxes());
    EXPECT_EQ(bench.services.opened, Lines());
    EXPECT_EQ(bench.folder.names(), Lines());
    EXPECT_EQ(bench.site->calls, Lines());
    EXPECT_TRUE(bench.tool.cmdSave.Enabled());
}

TEST(LoadSave, AFailingDialogWritesAndOpensNothing)
{
    SaveBench bench;
    bench.services.saveError = Error(440, "no dialog");
    bench.save();
    EXPECT_EQ(bench.services.boxes, Boxes());
    EXPECT_EQ(bench.services.opened, Lines());
    EXPECT_EQ(bench.folder.names(), Lines());
}

TEST(LoadSave, AFailingDialogForgetsTheFileOfTheLastSave)
{
    SaveBench bench;
    bench.save();
    bench.services.opened.clear();
    bench.services.saveError = Error(440, "no dialog");
    bench.save();
    EXPECT_EQ(bench.services.boxes, Boxes());
    EXPECT_EQ(bench.services.opened, Lines());
    EXPECT_TRUE(bench.hasReport());
}

TEST(LoadSave, AskedWhetherToDeleteNoLeavesTheFileAsItWas)
{
    for (const MsgBoxAnswer answer : {MsgBoxAnswer::No, MsgBoxAnswer::OK}) {
        SaveBench bench;
        bench.existing({answer}).save();
        EXPECT_EQ(bench.services.boxes, Boxes{kDeleteQuestion});
        EXPECT_EQ(contentOf(bench.path), "old");
        EXPECT_EQ(bench.services.opened, Lines());
        EXPECT_TRUE(bench.tool.cmdSave.Enabled());
    }
}

TEST(LoadSave, AskedWhetherToDeleteYesReplacesTheFile)
{
    SaveBench bench;
    bench.existing({MsgBoxAnswer::Yes}).save();
    EXPECT_EQ(bench.services.boxes, Boxes{kDeleteQuestion});
    EXPECT_TRUE(bench.hasReport());
    EXPECT_EQ(bench.services.opened, Lines{bench.path});
}

TEST(LoadSave, AWriteProtectedFileStaysAndABoxSaysWhy)
{
    SaveBench bench;
    bench.existing({MsgBoxAnswer::Yes});
    std::filesystem::permissions(bench.path, std::filesystem::perms::owner_read);
    bench.save();
    EXPECT_EQ(contentOf(bench.path), "old");
    EXPECT_EQ(bench.services.boxes, (Boxes{kDeleteQuestion, failureBox("70:Permission denied")}));
    EXPECT_EQ(bench.services.opened, Lines());
}

TEST(LoadSave, AReportThatFailsBehindADeletionShowsTheBoxAndNoPreview)
{
    SaveBench bench;
    bench.existing({MsgBoxAnswer::Yes});
    failAt(*bench.site, "DIServer.LookupService");
    bench.save();
    EXPECT_EQ(bench.services.boxes, (Boxes{kDeleteQuestion, failureBox("440:the line is down")}));
    EXPECT_EQ(bench.services.opened, Lines());
    EXPECT_EQ(bench.folder.names(), Lines());
}

TEST(LoadSave, AReportThatFailsWithoutADeletionGoesOnToThePreview)
{
    SaveBench bench;
    failAt(*bench.site, "DIServer.LookupService");
    bench.save();
    EXPECT_EQ(bench.services.boxes, Boxes());
    EXPECT_EQ(bench.services.opened, Lines{bench.path});
}

TEST(LoadSave, AFolderThatIsNotThereGoesOnToThePreview)
{
    SaveBench bench;
    bench.services.saveAnswer->path = bench.folder.file("nowhere/Load.pdf");
    bench.save();
    EXPECT_EQ(bench.services.boxes, Boxes());
    EXPECT_EQ(bench.services.opened, Lines{bench.services.saveAnswer->path});
    EXPECT_EQ(bench.folder.names(), Lines());
}

TEST(LoadSave, AFailingViewerIsSilentWithoutADeletion)
{
    SaveBench bench;
    bench.services.openError = Error(errors::kFileNotFound);
    bench.save();
    EXPECT_EQ(bench.services.boxes, Boxes());
    EXPECT_TRUE(bench.hasReport());
}

TEST(LoadSave, AFailingViewerBehindADeletionShowsTheBox)
{
    SaveBench bench;
    bench.services.openError = Error(errors::kFileNotFound);
    bench.existing({MsgBoxAnswer::Yes}).save();
    EXPECT_EQ(bench.services.boxes, (Boxes{kDeleteQuestion, failureBox("53:File not found")}));
    EXPECT_TRUE(bench.hasReport());
}

TEST(LoadSave, AFailureNeverTouchesThePointerOrTheResults)
{
    SaveBench bench;
    bench.existing({MsgBoxAnswer::Yes});
    failAt(*bench.site, "DIServer.LookupService");
    bench.save();
    EXPECT_EQ(bench.tool.MousePointer(), screen::MousePointer::Default);
    EXPECT_EQ(bench.tool.lblHeader.Caption(), "GT1 GT1 Load");
    EXPECT_TRUE(bench.tool.cmdSave.Enabled());
}

TEST(LoadSave, FromAClearedScreenWritesTheHoursOfTheLastEvaluation)
{
    SaveBench bench;
    enter(bench.tool.txtCapacity, "200");
    ASSERT_TRUE(isCleared(bench.tool));
    bench.save();
    const std::string text = testing::pdfPlainText(bench.path);
    EXPECT_NE(text.find("0 hour(s) under minimum"), std::string::npos) << text;
    EXPECT_NE(text.find("0 hour(s) over maximum"), std::string::npos) << text;
    EXPECT_NE(text.find("1 Hours"), std::string::npos) << text;
    EXPECT_EQ(text.find("Low Op Load"), std::string::npos) << text;
    EXPECT_EQ(text.find("GT1 Load"), std::string::npos) << text;
}

TEST(LoadSave, AfterTheDataWasTakenAwayCannotBePressed)
{
    SaveBench bench;
    bench.tool.SetDIServer(nullptr);
    bench.save();
    EXPECT_TRUE(bench.services.filters.empty());
}

} // namespace k7deval::test
