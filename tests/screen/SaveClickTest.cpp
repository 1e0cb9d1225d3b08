#include "screen/SaveClick.h"

#include "screen/TestScreen.h"
#include "support/FakeServices.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace k7deval::test
{

namespace
{

using screen::MsgBoxAnswer;
using screen::WriteOutcome;
using test::writeFile;

const screen::MsgBoxRequest kDeleteQuestion{"Delete Existing File?", "Delete Existing File?",
                                            screen::MsgBoxButtons::YesNo, screen::MsgBoxIcon::None};

/// A save button whose writer puts "new" into the chosen file, unless a test says otherwise.
class SaveClick : public ::testing::Test
{
protected:
    SaveClick() { services.saveAnswer = screen::SaveAnswer{path, 1}; }

    void click()
    {
        screen::runSaveClick({
            .title = "The Tool",
            .dialog = dialog,
            .services = services,
            .write = [this] { return write(); },
            .passOver = [this](const Error& error) { passedOver.push_back(error.number()); },
            .preview = preview,
        });
    }

    void existingFile()
    {
        writeFile(path, "old");
        services.answers = {MsgBoxAnswer::Yes};
    }

    test::TemporaryFolder folder;
    const std::string path = folder.file("report.pdf");
    FakeServices services;
    TestScreen screen;
    screen::CommonDialog dialog{screen, "CommonDialog1", services};
    std::function<WriteOutcome()> write = [this] {
        writeFile(path, "new");
        return WriteOutcome{};
    };
    std::vector<int> passedOver;
    bool preview = true;
};

screen::MsgBoxRequest failureBox(const std::string& text)
{
    return {text, "The Tool", screen::MsgBoxButtons::OK, screen::MsgBoxIcon::None};
}

} // namespace

TEST_F(SaveClick, TheDialogIsShownWithItsFilterAndExtension)
{
    dialog.SetFilter("PDF File (*.pdf)|*.pdf");
    dialog.SetDefaultExt(".pdf");
    click();
    EXPECT_EQ(services.filters, std::vector<std::string>{"PDF File (*.pdf)|*.pdf"});
    EXPECT_EQ(services.extensions, std::vector<std::string>{".pdf"});
}

TEST_F(SaveClick, ANewFileIsWrittenAndOpenedWithoutAQuestion)
{
    click();
    EXPECT_EQ(contentOf(path), "new");
    EXPECT_EQ(services.opened, std::vector<std::string>{path});
    EXPECT_TRUE(services.boxes.empty());
    EXPECT_TRUE(passedOver.empty());
}

TEST_F(SaveClick, WithoutThePreviewNothingIsOpened)
{
    preview = false;
    click();
    EXPECT_EQ(contentOf(path), "new");
    EXPECT_TRUE(services.opened.empty());
}

TEST_F(SaveClick, CancellingTheDialogEndsItSilently)
{
    services.saveAnswer.reset();
    click();
    EXPECT_TRUE(folder.names().empty());
    EXPECT_TRUE(services.boxes.empty());
    EXPECT_TRUE(services.opened.empty());
    EXPECT_TRUE(passedOver.empty());
}

TEST_F(SaveClick, ADialogThatRaisesTheCancelErrorItselfEndsItSilently)
{
    services.saveError = Error(errors::kCancelled);
    click();
    EXPECT_TRUE(folder.names().empty());
    EXPECT_TRUE(passedOver.empty());
}

TEST_F(SaveClick, AFailingDialogIsPassedOverAndNothingElseHappens)
{
    click();
    services.opened.clear();
    services.saveError = Error(errors::kAutomation);
    write = [] {
        ADD_FAILURE() << "nothing is left to write";
        return WriteOutcome{};
    };
    click();
    EXPECT_EQ(passedOver, std::vector<int>{440});
    EXPECT_EQ(dialog.FileName(), "");
    EXPECT_TRUE(services.boxes.empty());
    EXPECT_TRUE(services.opened.empty());
}

TEST_F(SaveClick, AnExistingFileIsReplacedOnYes)
{
    existingFile();
    bool wasDeleted = false;
    write = [&] {
        wasDeleted = !std::filesystem::exists(path);
        writeFile(path, "new");
        return WriteOutcome{};
    };
    click();
    EXPECT_EQ(services.boxes, std::vector<screen::MsgBoxRequest>{kDeleteQuestion});
    EXPECT_TRUE(wasDeleted);
    EXPECT_EQ(contentOf(path), "new");
    EXPECT_EQ(services.opened, std::vector<std::string>{path});
}

TEST_F(SaveClick, AnyAnswerButYesLeavesTheFileAsItWas)
{
    for (const MsgBoxAnswer answer : {MsgBoxAnswer::No, MsgBoxAnswer::OK}) {
        existingFile();
        services.answers = {answer};
        click();
        EXPECT_EQ(contentOf(path), "old");
    }
    EXPECT_TRUE(services.opened.empty());
}

TEST_F(SaveClick, AWriteProtectedFileIsNotDeletedAndTheBoxSaysSo)
{
    existingFile();
    std::filesystem::permissions(path, std::filesystem::perms::owner_read);
    click();
    EXPECT_EQ(contentOf(path), "old");
    EXPECT_EQ(
        services.boxes,
        (std::vector{kDeleteQuestion, failureBox("Error Deleting File:  70:Permission denied")}));
    EXPECT_TRUE(services.opened.empty());
    EXPECT_TRUE(passedOver.empty());
}

TEST_F(SaveClick, AFailedWriterBehindADeletionShowsTheBoxAndNoPreview)
{
    existingFile();
    write = [] { return WriteOutcome{false, Error(errors::kDiskFull)}; };
    click();
    EXPECT_TRUE(folder.names().empty());
    ASSERT_EQ(services.boxes.size(), 2U);
    EXPECT_EQ(services.boxes[1], failureBox("Error Deleting File:  61:Disk full"));
    EXPECT_TRUE(services.opened.empty());
}

TEST_F(SaveClick, AFailedWriterWithoutADeletionGoesOnToThePreview)
{
    write = [] { return WriteOutcome{false, Error(errors::kDiskFull)}; };
    click();
    EXPECT_TRUE(services.boxes.empty());
    EXPECT_TRUE(passedOver.empty());
    EXPECT_EQ(services.opened, std::vector<std::string>{path});
}

TEST_F(SaveClick, AnEndedWriterLeavesNoPreviewWhetherOrNotAFileWasDeleted)
{
    write = [] { return WriteOutcome{true, std::nullopt}; };
    click();
    existingFile();
    click();
    EXPECT_TRUE(services.opened.empty());
    EXPECT_EQ(services.boxes, std::vector<screen::MsgBoxRequest>{kDeleteQuestion});
    EXPECT_TRUE(passedOver.empty());
}

TEST_F(SaveClick, AFailingViewerIsPassedOver)
{
    services.openError = Error(errors::kFileNotFound);
    click();
    EXPECT_EQ(passedOver, std::vector<int>{53});
    EXPECT_TRUE(services.boxes.empty());
}

TEST_F(SaveClick, AFailingViewerBehindADeletionShowsTheBox)
{
    existingFile();
    services.openError = Error(errors::kFileNotFound);
    click();
    ASSERT_EQ(services.boxes.size(), 2U);
    EXPECT_EQ(services.boxes[1], failureBox("Error Deleting File:  53:File not found"));
    EXPECT_TRUE(passedOver.empty());
}

TEST_F(SaveClick, AFailingQuestionDeletesNothing)
{
    existingFile();
    services.msgBoxError = Error(errors::kAutomation);
    click();
    EXPECT_EQ(contentOf(path), "old");
    EXPECT_EQ(passedOver, std::vector<int>{440});
}

TEST_F(SaveClick, AFolderOfTheNameIsNoFileToDelete)
{
    std::filesystem::create_directory(path);
    write = [] { return WriteOutcome{false, Error(errors::kPathAccess)}; };
    click();
    EXPECT_TRUE(services.boxes.empty());
    EXPECT_TRUE(std::filesystem::is_directory(path));
}

TEST_F(SaveClick, TheChosenEntryOfTheFilterIsKeptForTheWriter)
{
    services.saveAnswer->filterIndex = 2;
    std::int32_t seen = 0;
    write = [&] {
        seen = dialog.FilterIndex();
        return WriteOutcome{};
    };
    click();
    EXPECT_EQ(seen, 2);
    EXPECT_EQ(dialog.FileName(), path);
}

} // namespace k7deval::test
