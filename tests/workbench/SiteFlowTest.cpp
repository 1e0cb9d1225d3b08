#include "sitedb/EmissionsCase.h"
#include "sitedb/sql/Connection.h"
#include "workbench/ImportRig.h"
#include "workbench/Workbench.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>

namespace k7deval::workbench::test
{

namespace
{

using qt::test::dropFiles;
using qt::test::Operator;
using qt::test::told;
using qt::test::whenDialogComes;
using sitedb::test::sampleFile;

constexpr const char* kSpansOfU2 =
    "unit_id,component_id,component_type,span_scale,span_value,units\nU2,010,NOX,H,100,PPM\n";

/// Takes all files of the import dialog that comes, and closes it.
void importAllWhenAsked()
{
    whenDialogComes([](QDialog& dialog) {
        const Operator hands(dialog);
        hands.click("import");
        const auto& bar = hands.view<QProgressBar>("progress");
        if (!QTest::qWaitFor([&] { return !bar.isVisible(); }, kLongest))
            throw std::runtime_error("the import does not end");
        hands.click("close");
    });
}

/// Enters the facility of the site as an operator does.
void nameThePlant(const Workbench& rig)
{
    whenDialogComes([](QDialog& dialog) {
        const Operator hands(dialog);
        hands.type("facility", "Plant of the North");
        hands.press(Qt::Key_Return);
    });
    rig.choose({"File", "Site Properties..."});
}

} // namespace

TEST(SiteFlow, AnEmptySiteIsFilledByDroppingFilesOnTheWindow)
{
    Workbench rig("");
    rig.window.newSite(rig.memory->folder.filePath("plant.site"));
    importAllWhenAsked();
    dropFiles(rig.window, {sampleFile("spans.csv")});
    EXPECT_EQ(rig.tabs().count(), 4);
    EXPECT_EQ(rig.tabs().currentIndex(), 0);
    const auto& units = rig.at(1).view<QComboBox>("cmbUnit");
    EXPECT_EQ(units.count(), 4);
    EXPECT_EQ(units.itemText(0), "GT1");
}

TEST(SiteFlow, AnImportLeavesTheOperatorAtHisTool)
{
    sitedb::test::SmallSite held;
    Workbench rig(held.path.string());
    rig.tabs().setCurrentIndex(2);
    importAllWhenAsked();
    dropFiles(rig.window, {held.directory.write("spans.csv", kSpansOfU2)});
    EXPECT_EQ(rig.tabs().currentIndex(), 2);
    EXPECT_GE(rig.at(2).view<QComboBox>("cmbUnit").findText("U2"), 0);
}

TEST(SiteFlow, AnImportThatTookNothingLeavesTheToolsAlone)
{
    const sitedb::test::SmallSite held;
    Workbench rig(held.path.string());
    const Operator hands = rig.at(0);
    hands.enter("txtToDate", "1/15/2023");
    whenDialogComes([](QDialog& dialog) { dialog.reject(); });
    rig.window.importFiles({});
    EXPECT_EQ(rig.at(0).view<QLineEdit>("txtToDate").text(), "1/15/2023");
}

TEST(SiteFlow, ADroppedSiteIsOpened)
{
    const sitedb::test::SmallSite held;
    Workbench rig("");
    const auto site = held.directory / "other.site";
    std::filesystem::copy_file(held.path, site);
    dropFiles(rig.window, {site});
    EXPECT_EQ(rig.window.windowTitle(), "other - K7DEval");
    EXPECT_EQ(rig.tabs().count(), 4);
}

TEST(SiteFlow, FilesDroppedWithoutASiteAreAskedToWait)
{
    Workbench rig("");
    EXPECT_EQ(told([&] { dropFiles(rig.window, {sampleFile("spans.csv")}); }),
              "Open a site first, or make a new one, to take the files into.");
}

TEST(SiteFlow, TheFacilityOfTheSiteIsShown)
{
    sitedb::test::SmallSite held;
    const Workbench rig(held.path.string());
    nameThePlant(rig);
    EXPECT_THAT(rig.label("siteLine").text().toStdString(),
                testing::StartsWith("Plant of the North   "));
}

TEST(SiteFlow, ASiteThatCanNotBeReadIsToldAndLeavesTheOneBefore)
{
    const sitedb::test::SmallSite held;
    sitedb::test::SmallSite damaged;
    damaged.site.connection().execute("DROP TABLE lookup");
    Workbench rig(held.path.string());
    EXPECT_THAT(told([&] { rig.window.openSite(QString::fromStdString(damaged.path.string())); }),
                testing::HasSubstr("lookup"));
    EXPECT_EQ(rig.tabs().count(), 4);
    EXPECT_EQ(rig.label("siteLine").toolTip(), QString::fromStdString(held.path.string()));
}

TEST(SiteFlow, AnEmptySiteCanBeNamed)
{
    Workbench rig("");
    rig.window.newSite(rig.memory->folder.filePath("plant.site"));
    nameThePlant(rig);
    EXPECT_EQ(rig.label("siteLine").text(), "Plant of the North   plant.site");
}

// As when the desktop's session ends.
TEST(SiteFlow, ClosingTheProgramDuringAnImportLeavesTheSiteAsItWas)
{
    LongImport source;
    Workbench rig(source.held.path.string());
    bool wasInTheMiddle = false;
    whenDialogComes([&](QDialog& dialog) {
        const Operator hands(dialog);
        hands.click("import");
        const auto& bar = hands.view<QProgressBar>("progress");
        wasInTheMiddle = QTest::qWaitFor([&] { return bar.value() > 50; }, kLongest);
        QApplication::closeAllWindows();
    });
    dropFiles(rig.window, {source.file});
    EXPECT_TRUE(wasInTheMiddle);
    EXPECT_FALSE(rig.window.isVisible());
    source.expectSiteAsItWas();
}

} // namespace k7deval::workbench::test
