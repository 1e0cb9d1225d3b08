#include "qt/QtServices.h"
#include "foundation/Error.h"
#include "qt/Operator.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <QCalendarWidget>
#include <QComboBox>
#include <QDesktopServices>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <QTextBrowser>
#include <QWindow>

namespace k7deval::qt::test
{

namespace
{

using k7deval::test::TemporaryFolder;
using k7deval::test::writeFile;
using screen::MsgBoxAnswer;
using screen::MsgBoxButtons;
using screen::MsgBoxIcon;
using ::testing::Optional;

constexpr const char* kBoth = "PDF File (*.pdf)|*.pdf|ECMPS Export(*.xml)|*.xml";

/// Types a name into a save dialog, after the choice of an entry of its filter.
std::optional<screen::SaveAnswer> save(const std::string& name, int entry)
{
    whenDialogComes([&](QDialog& dialog) {
        auto& files = dynamic_cast<QFileDialog&>(dialog);
        auto* filters = files.findChild<QComboBox*>("fileTypeCombo");
        for (int row = 0; row < entry; ++row)
            QTest::keyClick(filters, Qt::Key_Down);
        auto* field = files.findChild<QLineEdit*>("fileNameEdit");
        // Key by key the dialog would offer to complete the name.
        field->insert(QString::fromStdString(name));
        QTest::keyClick(field, Qt::Key_Return);
    });
    return QtServices().ShowSave(kBoth, ".pdf");
}

/// What a message box shows, and how it answers a key.
struct Box {
    MsgBoxAnswer answer;
    QString text;
    QString title;
    QMessageBox::Icon icon;
};

Box ask(const screen::MsgBoxRequest& request, Qt::Key key)
{
    Box box{};
    whenDialogComes([&](QDialog& dialog) {
        auto& shown = dynamic_cast<QMessageBox&>(dialog);
        box.text = shown.text();
        box.title = shown.windowTitle();
        box.icon = shown.icon();
        QTest::keyClick(dialog.windowHandle(), key,
                        key == Qt::Key_Escape ? Qt::NoModifier : Qt::AltModifier);
    });
    box.answer = QtServices().MsgBox(request);
    return box;
}

} // namespace

TEST(QtServices, AFilterBecomesTheEntriesOfTheDialog)
{
    EXPECT_EQ(nameFilters(kBoth), QStringList({"PDF File (*.pdf)", "ECMPS Export(*.xml)"}));
    EXPECT_EQ(nameFilters("Text|*.txt"), QStringList({"Text (*.txt)"}));
}

TEST(QtServices, ANameWithoutExtensionGetsThatOfItsEntry)
{
    const TemporaryFolder folder;
    const auto pdf = save(folder.file("drift"), 0);
    ASSERT_TRUE(pdf.has_value());
    EXPECT_EQ(pdf->path, folder.file("drift.pdf"));
    EXPECT_EQ(pdf->filterIndex, 1);
    const auto xml = save(folder.file("drift"), 1);
    ASSERT_TRUE(xml.has_value());
    EXPECT_EQ(xml->path, folder.file("drift.xml"));
    EXPECT_EQ(xml->filterIndex, 2);
}

TEST(QtServices, AFileThatIsThereIsTheToolsBusiness)
{
    const TemporaryFolder folder;
    writeFile(folder.file("old.pdf"), "old");
    const auto answer = save(folder.file("old.pdf"), 0);
    ASSERT_TRUE(answer.has_value());
    EXPECT_EQ(answer->path, folder.file("old.pdf"));
}

TEST(QtServices, ACancelledSaveDialogHasNoAnswer)
{
    whenDialogComes([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    EXPECT_FALSE(QtServices().ShowSave(kBoth, ".pdf").has_value());
}

TEST(QtServices, AQuestionIsAnsweredYesOrNo)
{
    const screen::MsgBoxRequest question{"Sure?\r\nReally?", "Failed Drift Test",
                                         MsgBoxButtons::YesNo, MsgBoxIcon::Exclamation};
    const Box yes = ask(question, Qt::Key_Y);
    EXPECT_EQ(yes.answer, MsgBoxAnswer::Yes);
    EXPECT_EQ(yes.text, "Sure?\nReally?");
    EXPECT_EQ(yes.title, "Failed Drift Test");
    EXPECT_EQ(yes.icon, QMessageBox::Warning);
    EXPECT_EQ(ask(question, Qt::Key_N).answer, MsgBoxAnswer::No);
}

TEST(QtServices, ANoticeHasOneAnswer)
{
    const Box box = ask({"Note", "Title", MsgBoxButtons::OK, MsgBoxIcon::None}, Qt::Key_Escape);
    EXPECT_EQ(box.answer, MsgBoxAnswer::OK);
    EXPECT_EQ(box.icon, QMessageBox::NoIcon);
}

TEST(QtServices, TheCalendarStartsAtItsDate)
{
    whenDialogComes([](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "7-Day Drift");
        auto* calendar = dialog.findChild<QCalendarWidget*>("calendar");
        QTest::keyClick(calendar->findChild<QWidget*>("qt_calendar_calendarview"), Qt::Key_Right);
        dialog.accept();
    });
    EXPECT_THAT(QtServices().PickDate("7-Day Drift", makeDate(2024, 2, 28, 9), -1, -1, -1),
                Optional(makeDate(2024, 2, 29)));
}

TEST(QtServices, ACalendarThatIsLeftHasNoDate)
{
    whenDialogComes([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    EXPECT_FALSE(QtServices().PickDate("", makeDate(2024, 2, 28), -1, -1, -1).has_value());
}

TEST(QtServices, ADocumentGoesToTheProgramForIt)
{
    const TemporaryFolder folder;
    writeFile(folder.file("a b.txt"), "text");
    QTextBrowser program;
    QDesktopServices::setUrlHandler("file", &program, "setSource");
    QtServices().OpenDocument(folder.file("a b.txt"), 0, 0, 0, 1);
    QDesktopServices::unsetUrlHandler("file");
    EXPECT_EQ(program.source().toLocalFile().toStdString(), folder.file("a b.txt"));
}

TEST(QtServices, AFileThatIsNotThereCannotBeOpened)
{
    const TemporaryFolder folder;
    try {
        QtServices().OpenDocument(folder.file("none.pdf"), 0, 0, 0, 1);
        FAIL() << "no error";
    } catch (const Error& error) {
        EXPECT_EQ(error.number(), errors::kFileNotFound);
    }
}

} // namespace k7deval::qt::test
