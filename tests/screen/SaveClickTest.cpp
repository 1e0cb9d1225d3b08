#include "screen/SaveClick.h"

#include "screen/TestScreen.h"
#include "support/FakeServices.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <optional>

namespace k7deval::test
{

namespace
{

using screen::MsgBoxAnswer;
using screen::WriteOutcome;
using test::writeFile;

const screen::MsgBoxRequest kDeleteQuestion{"Delete Existing File?", "Delete Existing File?",
                                            screen::MsgBoxButtons::YesNo, screen::MsgBoxIcon::None};

screen::MsgBoxRequest failureBox(const std::string& text)
{
    return {text, "The Tool", screen::MsgBoxButtons::OK, screen::MsgBoxIcon::None};
}

/// A save button whose writer puts "new" into the chosen file, unless a test says otherwise.
struct SaveClickRig {
    SaveClickRig() { services.saveAnswer = screen::SaveAnswer{path, 1}; }

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

    SaveClickRig& existingFile(MsgBoxAnswer answer = MsgBoxAnswer::Yes)
    {
        writeFile(path, "old");
        services.answers = {answer};
        return *this;
    }
    void protect() const { std::filesystem::permissions(path, std::filesystem::perms::owner_read); }
    /// The writer writes nothing and gives that.
    void writing(bool ended, const std::optional<Error>& failure)
    {
        write = [=] { return WriteOutcome{ended, failure}; };
    }
    /// The boxes that were shown, on one line.
    [[nodiscard]] std::string boxes() const
    {
        std::string text;
        for (const screen::MsgBoxRequest& box : services.boxes) {
            const bool isQuestion = box == kDeleteQuestion;
            EXPECT_TRUE(isQuestion || box == failureBox(box.prompt)) << box.prompt;
            text += (text.empty() ? "" : ", ") + (isQuestion ? "delete?" : box.prompt);
        }
        return text;
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

class SaveClickOf : public ::testing::Test, protected SaveClickRig
{
};

} // namespace

TEST_F(SaveClickOf, TheDialogIsShownWithItsFilterAndExtension)
{
    dialog.SetFilter("PDF File (*.pdf)|*.pdf");
    dialog.SetDefaultExt(".pdf");
    click();
    EXPECT_EQ(services.filters, std::vector<std::string>{"PDF File (*.pdf)|*.pdf"});
    EXPECT_EQ(services.extensions, std::vector<std::string>{".pdf"});
}

/// A click and all that comes of it.
struct ClickCase {
    const char* what;
    void (*prepare)(SaveClickRig& rig);
    const char* content; ///< Of the file behind it; empty for none.
    const char* boxes;   ///< The question whether to delete is "delete?".
    bool isOpened;
    int passedOver; ///< The number of the error that the tool is told of; 0 for none.
};

constexpr ClickCase kClicks[] = {
    {"a new file", [](auto&) {}, "new", "", true, 0},
    {"without the preview", [](auto& rig) { rig.preview = false; }, "new", "", false, 0},
    {"a cancelled dialog", [](auto& rig) { rig.services.saveAnswer.reset(); }, "", "", false, 0},
    {"a dialog that raises the cancel error",
     [](auto& rig) { rig.services.saveError = Error(errors::kCancelled); }, "", "", false, 0},
    {"an existing file, yes", [](auto& rig) { rig.existingFile(); }, "new", "delete?", true, 0},
    {"an existing file, no", [](auto& rig) { rig.existingFile(MsgBoxAnswer::No); }, "old",
     "delete?", false, 0},
    {"an existing file, OK", [](auto& rig) { rig.existingFile(MsgBoxAnswer::OK); }, "old",
     "delete?", false, 0},
    {"a write-protected file", [](auto& rig) { rig.existingFile().protect(); }, "old",
     "delete?, Error Deleting File:  70:Permission denied", false, 0},
    {"a failing question",
     [](auto& rig) { rig.existingFile().services.msgBoxError = Error(errors::kAutomation); }, "old",
     "delete?", false, 440},
    // A writer that failed behind a deletion shows the box and no preview; else it goes on.
    {"a failed writer behind a deletion",
     [](auto& rig) { rig.existingFile().writing(false, Error(errors::kDiskFull)); }, "",
     "delete?, Error Deleting File:  61:Disk full", false, 0},
    {"a failed writer without a deletion",
     [](auto& rig) { rig.writing(false, Error(errors::kDiskFull)); }, "", "", true, 0},
    {"an ended writer", [](auto& rig) { rig.writing(true, std::nullopt); }, "", "", false, 0},
    {"an ended writer behind a deletion",
     [](auto& rig) { rig.existingFile().writing(true, std::nullopt); }, "", "delete?", false, 0},
    {"a failing viewer", [](auto& rig) { rig.services.openError = Error(errors::kFileNotFound); },
     "new", "", true, 53},
    {"a failing viewer behind a deletion",
     [](auto& rig) { rig.existingFile().services.openError = Error(errors::kFileNotFound); }, "new",
     "delete?, Error Deleting File:  53:File not found", true, 0},
};

TEST(SaveClick, AsksWritesOpensAndTells)
{
    for (const ClickCase& row : kClicks) {
        SCOPED_TRACE(row.what);
        SaveClickRig rig;
        row.prepare(rig);
        rig.click();
        const bool hasFile = std::filesystem::exists(rig.path);
        EXPECT_EQ(hasFile ? contentOf(rig.path) : "", row.content);
        EXPECT_EQ(rig.boxes(), row.boxes);
        EXPECT_EQ(rig.services.opened.size(), row.isOpened ? 1U : 0U);
        EXPECT_EQ(rig.passedOver,
                  row.passedOver == 0 ? std::vector<int>() : std::vector<int>{row.passedOver});
    }
}

TEST_F(SaveClickOf, AFailingDialogIsPassedOverAndNothingElseHappens)
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

TEST_F(SaveClickOf, AnExistingFileIsGoneWhenTheWriterBegins)
{
    existingFile();
    bool wasDeleted = false;
    write = [&] {
        wasDeleted = !std::filesystem::exists(path);
        return WriteOutcome{};
    };
    click();
    EXPECT_TRUE(wasDeleted);
    EXPECT_EQ(services.opened, std::vector<std::string>{path});
}

TEST_F(SaveClickOf, AFolderOfTheNameIsNoFileToDelete)
{
    std::filesystem::create_directory(path);
    write = [] { return WriteOutcome{false, Error(errors::kPathAccess)}; };
    click();
    EXPECT_TRUE(services.boxes.empty());
    EXPECT_TRUE(std::filesystem::is_directory(path));
}

TEST_F(SaveClickOf, TheChosenEntryOfTheFilterIsKeptForTheWriter)
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
