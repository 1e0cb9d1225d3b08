#include "workbench/ImportDialog.h"
#include "workbench/ImportNames.h"
#include "workbench/ImportRig.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

namespace k7deval::workbench::test
{

namespace
{

using qt::test::dropFiles;
using qt::test::settle;
using sitedb::test::EmptySite;
using sitedb::test::SmallSite;
using sitedb::test::TemporaryDirectory;
using testing::HasSubstr;

constexpr const char* kSpans =
    "unit_id,component_id,component_type,span_scale,span_value,units\nU2,010,NOX,H,100,PPM\n";
constexpr const char* kLoad = "date,hour,gross_load_mw\n2020-01-01,0,10\n2020-01-01,1,0\n";

QStringList unitsIn(const std::filesystem::path& site)
{
    QStringList units;
    for (const auto& power :
         sitedb::SiteDatabase::open(site, sitedb::OpenMode::ReadOnly).unitPowers())
        units << QString::fromStdString(power.unit);
    return units;
}

/// An operator at the import into a site of one unit.
struct Import : testing::Test {
    SmallSite held;
    ImportRig rig{held.path};
};

} // namespace

TEST(ImportDialogs, TakesDroppedFilesIntoANewSite)
{
    const TemporaryDirectory directory;
    const auto site = directory / "plant.k7site";
    ImportRig rig(site);
    rig.hands.photograph("import-empty");
    dropFiles(*rig.dialog, {sitedb::test::sampleFile("hourly_load_GT3.csv.gz"),
                            sitedb::test::sampleFile("ecmps_qa_50292.json"),
                            sitedb::test::sampleFile("spans.csv")});
    ASSERT_EQ(rig.files().rowCount(), 3);
    EXPECT_EQ(rig.row(0), QStringList({"spans.csv", "span table", "waiting"}));
    EXPECT_EQ(rig.row(1), QStringList({"hourly_load_GT3.csv.gz", "hourly load", "waiting"}));
    EXPECT_EQ(rig.row(2), QStringList({"ecmps_qa_50292.json", "ECMPS QA data", "waiting"}));
    rig.hands.type("unit of hourly_load_GT3.csv.gz", "GT3");
    rig.hands.click("leaveOut");
    rig.import();
    for (int row = 0; row < 3; ++row)
        EXPECT_EQ(rig.row(row)[2], "taken");
    EXPECT_EQ(rig.hands.text("status"), "3 files taken.");
    EXPECT_THAT(rig.report(), HasSubstr("Taken: spans.csv (span table)\n4 units\n16 analyzers\n"
                                        "17 spans\n"));
    EXPECT_THAT(rig.report(), HasSubstr("Stepped over: The column \"heat_input_mmbtu\".\n"));
    EXPECT_THAT(rig.report(), HasSubstr("Left out: ecmps_qa_50292.json: testSummaryData[1]"));
    EXPECT_TRUE(rig.dialog->hasTaken());
    EXPECT_EQ(unitsIn(site), QStringList({"GT1", "GT2", "GT3", "GT4"}));
    rig.hands.photograph("import-taken");
}

TEST_F(Import, AFileThatTakesNoUnitIsNotAskedForOne)
{
    rig.add(held.directory.write("spans.csv", kSpans));
    rig.add(held.directory.write("load.csv", kLoad));
    EXPECT_EQ(rig.files().cellWidget(0, 3), nullptr);
    auto& unit = rig.hands.view<QComboBox>("unit of load.csv");
    EXPECT_EQ(unit.count(), 1);
    EXPECT_EQ(unit.itemText(0), "U1");
    EXPECT_EQ(unit.currentText(), "");
    EXPECT_EQ(rig.files().cellWidget(1, 4), nullptr);
    rig.add(
        held.directory.write("hours.csv", "date,hour,parameter,unadjusted_hourly_value,modc\n"));
    EXPECT_EQ(rig.hands.view<QLineEdit>("component of hours.csv").text(), "");
}

TEST_F(Import, ARefusedFileCanBeCorrectedAndIsTakenAlone)
{
    rig.add(held.directory.write("spans.csv", kSpans));
    rig.add(held.directory.write("load.csv", kLoad));
    rig.import();
    EXPECT_EQ(rig.row(0)[2], "taken");
    EXPECT_EQ(rig.row(1)[2], "refused");
    EXPECT_EQ(rig.hands.text("status"), "1 file taken, 1 refused.");
    EXPECT_THAT(rig.report(),
                HasSubstr("Refused, nothing was taken: load.csv (hourly load)\n"
                          "load.csv: unit: the unit that the load belongs to has to be named."));
    rig.hands.photograph("import-refused");
    rig.hands.pick("unit of load.csv", "U2");
    rig.hands.pressMnemonic(Qt::Key_I);
    rig.waitForEnd();
    EXPECT_EQ(rig.row(1)[2], "taken");
    EXPECT_EQ(rig.hands.text("status"), "1 file taken.");
    EXPECT_THAT(rig.report(), HasSubstr("Taken: load.csv (hourly load)\n2 hours\n1 hour with"));
    EXPECT_FALSE(rig.hands.view<QPushButton>("import").isEnabled());
    EXPECT_EQ(sitedb::test::count(held.site, "SELECT COUNT(*) FROM import_log"), 3);
}

TEST_F(Import, AQaFileIsRefusedUnlessUnreadableInjectionsAreLeftOut)
{
    rig.add(held.directory.write(
        "qa.json", sitedb::test::patchedQa(
                       "/testSummaryData/1/calibrationInjectionData/0/zeroInjectionHour", "24")));
    rig.import();
    EXPECT_EQ(rig.row(0)[2], "refused");
    EXPECT_THAT(rig.report(), HasSubstr("24 is no hour from 0 to 23."));
    EXPECT_FALSE(rig.dialog->hasTaken());
    rig.hands.click("leaveOut");
    rig.import();
    EXPECT_EQ(rig.row(0)[2], "taken");
    EXPECT_THAT(rig.report(), HasSubstr("1 injection left out\n"));
    EXPECT_TRUE(rig.dialog->hasTaken());
}

TEST_F(Import, AFileOfNoKnownFormatIsNotAddedButTold)
{
    const auto notes = held.directory.write("notes.txt", "Dear operator\n");
    dropFiles(*rig.dialog, {notes, held.directory.write("load.csv", kLoad)});
    EXPECT_EQ(rig.files().rowCount(), 1);
    EXPECT_EQ(rig.report(), "Not added: notes.txt\nnotes.txt: this is none of the files that can "
                            "be imported.");
}

TEST_F(Import, TheReportCanBeCopiedWithTheKeys)
{
    rig.add(held.directory.write("notes.txt", "Dear operator\n"));
    auto& report = rig.hands.view<QTextEdit>("report");
    rig.hands.pressMnemonic(Qt::Key_P);
    ASSERT_TRUE(report.hasFocus());
    QTest::keyClick(&report, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&report, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(), rig.report());
}

TEST_F(Import, AFileIsOnTheListOnceAndCanBeRemoved)
{
    const auto file = held.directory.write("load.csv", kLoad);
    rig.add(file);
    rig.add(file);
    ASSERT_EQ(rig.files().rowCount(), 1);
    EXPECT_FALSE(rig.hands.view<QPushButton>("remove").isEnabled());
    rig.files().setFocus();
    rig.files().selectRow(0);
    rig.hands.pressMnemonic(Qt::Key_R);
    EXPECT_EQ(rig.files().rowCount(), 0);
    EXPECT_FALSE(rig.hands.view<QPushButton>("import").isEnabled());
}

TEST(ImportDialogs, ProgressIsSeenAndCancelledInTheMiddleNothingOfTheFileIsKept)
{
    LongImport task;
    ImportRig rig(task.held.path);
    rig.add(task.file);
    rig.importUpToTheMiddle();
    EXPECT_THAT(rig.hands.text("status"),
                testing::MatchesRegex("emissions.json: .*B of .* MB, .* hours"));
    EXPECT_FALSE(rig.hands.view<QPushButton>("add").isEnabled());
    rig.hands.photograph("import-progress");
    rig.hands.click("cancel");
    rig.waitForEnd();
    task.expectSiteAsItWas();
    EXPECT_EQ(rig.row(0)[2], "cancelled");
    EXPECT_EQ(rig.hands.text("status"), "0 files taken, then cancelled.");
    EXPECT_EQ(rig.report(), "Cancelled, nothing was taken: emissions.json (ECMPS emissions data)");
    EXPECT_FALSE(rig.dialog->hasTaken());
    EXPECT_TRUE(rig.hands.view<QPushButton>("import").isEnabled());
}

TEST(ImportDialogs, FilesTakenBeforeACancelStayAndThoseBehindWait)
{
    LongImport task;
    ImportRig rig(task.held.path);
    rig.add(task.held.directory.write("spans.csv", kSpans));
    rig.add(task.file);
    rig.add(task.held.directory.write("qa.json", sitedb::test::smallQa()));
    rig.importUpToTheMiddle();
    rig.hands.click("cancel");
    rig.waitForEnd();
    EXPECT_EQ(rig.row(0)[2], "taken");
    EXPECT_EQ(rig.row(1)[2], "cancelled");
    EXPECT_EQ(rig.row(2)[2], "waiting");
    EXPECT_EQ(rig.hands.text("status"), "1 file taken, then cancelled.");
    EXPECT_TRUE(rig.dialog->hasTaken());
}

TEST(ImportDialogs, ClosingTheDialogInTheMiddleLeavesTheSiteAsItWas)
{
    LongImport task;
    ImportRig rig(task.held.path);
    rig.add(task.file);
    rig.importUpToTheMiddle();
    rig.hands.press(Qt::Key_Escape);
    EXPECT_FALSE(rig.dialog->isVisible());
    task.expectSiteAsItWas();
    EXPECT_FALSE(rig.dialog->hasTaken());
}

TEST(ImportDialogs, TheEndOfTheDialogInTheMiddleLeavesTheSiteAsItWas)
{
    LongImport task;
    ImportRig rig(task.held.path);
    rig.add(task.file);
    rig.importUpToTheMiddle();
    rig.dialog.reset();
    task.expectSiteAsItWas();
    settle();
}

TEST(ImportDialogs, TheSiteCanBeOpenForReadingMeanwhile)
{
    SmallSite held;
    const auto server = sitedb::SiteDatabase::open(held.path, sitedb::OpenMode::ReadOnly).server();
    ASSERT_EQ(server->Units().size(), 1U);
    ImportRig rig(held.path);
    rig.add(held.directory.write("spans.csv", kSpans));
    rig.import();
    EXPECT_EQ(rig.row(0)[2], "taken");
    EXPECT_EQ(server->Units().size(), 2U);
}

TEST(ImportDialogs, ANewSiteIsRemovedWhenNothingWasTaken)
{
    const TemporaryDirectory directory;
    const auto site = directory / "plant.k7site";
    ImportRig rig(site);
    rig.add(directory.write("load.csv", kLoad));
    rig.import();
    EXPECT_EQ(rig.row(0)[2], "refused");
    EXPECT_FALSE(std::filesystem::exists(site));
    rig.hands.type("unit of load.csv", "U1");
    rig.import();
    EXPECT_EQ(unitsIn(site), QStringList("U1"));
}

TEST(ImportDialogs, AFileThatIsNoSiteIsToldAndLeftAlone)
{
    const TemporaryDirectory directory;
    const auto site = directory.write("plant.k7site", "no site");
    ImportRig rig(site);
    rig.add(directory.write("spans.csv", kSpans));
    rig.import();
    EXPECT_EQ(rig.row(0)[2], "waiting");
    EXPECT_EQ(rig.hands.text("status"), "0 files taken, the site can't be used.");
    EXPECT_THAT(rig.report(), HasSubstr("plant.k7site: the file is no site database."));
    EXPECT_EQ(sitedb::test::readFile(site), "no site");
}

TEST(ImportDialogs, TheUnitsOfAnImportCanBePickedAfterIt)
{
    EmptySite held;
    ImportRig rig(held.path);
    rig.add(held.directory.write("load.csv", kLoad));
    rig.add(held.directory.write("spans.csv", kSpans));
    rig.import();
    EXPECT_EQ(rig.row(0)[2], "refused");
    EXPECT_EQ(rig.hands.view<QComboBox>("unit of load.csv").itemText(0), "U2");
}

TEST_F(Import, TheTabulatorGoesThroughTheFieldsOfTheListInTheirOrder)
{
    rig.add(held.directory.write("load.csv", kLoad));
    rig.add(
        held.directory.write("hours.csv", "date,hour,parameter,unadjusted_hourly_value,modc\n"));
    rig.files().setFocus();
    std::string order;
    for (int step = 0; step < 9; ++step) {
        rig.hands.press(Qt::Key_Tab);
        order += QApplication::focusWidget()->objectName().toStdString() + "; ";
    }
    EXPECT_EQ(order, "unit of load.csv; unit of hours.csv; component of hours.csv; add; remove; "
                     "leaveOut; report; import; close; ");
}

TEST_F(Import, NoPartKeepsADropFromTheDialog)
{
    rig.add(
        held.directory.write("hours.csv", "date,hour,parameter,unadjusted_hourly_value,modc\n"));
    for (const QWidget* part : rig.dialog->findChildren<QWidget*>())
        EXPECT_FALSE(part->acceptDrops()) << part->objectName().toStdString();
}

TEST_F(Import, EveryPartHasAName)
{
    rig.add(held.directory.write("load.csv", kLoad));
    rig.add(
        held.directory.write("hours.csv", "date,hour,parameter,unadjusted_hourly_value,modc\n"));
    EXPECT_EQ(namelessParts(*rig.dialog), QStringList());
}

} // namespace k7deval::workbench::test
