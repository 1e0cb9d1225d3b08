#include "workbench/MainWindow.h"
#include "qt/QtServices.h"
#include "qt/ScreenReader.h"
#include "workbench/MessagePanel.h"
#include "workbench/Region.h"
#include "workbench/ToolTabs.h"
#include "workbench/Workbench.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QLocale>
#include <QPushButton>
#include <QTest>
#include <QTextBrowser>
#include <QTreeWidget>

namespace k7deval::workbench::test
{

namespace
{

using qt::test::Operator;
using qt::test::settle;
using qt::test::told;
using qt::test::whenDialogComes;

const QStringList kAllTools{"7-Day Drift", "Load Evaluation", "Range Evaluation", "Data"};

} // namespace

TEST(Workbench, ShowsTheToolsOfASite)
{
    const Workbench rig;
    EXPECT_EQ(rig.titles(), kAllTools);
    EXPECT_EQ(rig.window.windowTitle(), "bethpage - K7DEval");
    Operator(*rig.window.window()).photograph("workbench");
}

TEST(Workbench, EvaluatesADriftTestOfTheSample)
{
    Workbench rig;
    const Operator hands = rig.at(0);
    hands.pick("cmbUnit", "GT4");
    hands.pick("cmbAnalyzer", "NOX 206/H");
    hands.enter("txtFromDate", "5/4/2018");
    hands.enter("txtToDate", "6/18/2018");
    hands.click("cmdNext");
    EXPECT_EQ(hands.text("lblSummary"),
              "Starting on 5/16/2018 there are 6 on-line cal(s) counted in the 7-Day Drift Test.\n"
              "1 more on-line daily cal(s) are needed to pass the Drift Test.");
    EXPECT_EQ(hands.text("lblZeroDriftData"), "-220.79");
    Operator(*rig.window.window()).photograph("workbench-drift");
}

TEST(Workbench, EvaluatesAYearOfLoad)
{
    Workbench rig;
    const Operator hands = rig.at(1);
    hands.pick("cmbUnit", "GT4");
    hands.enter("txtMinSafe", "30");
    hands.enter("txtCapacity", "84");
    hands.click("optTimeSelect");
    hands.enter("txtFrom", "7/1/2020");
    hands.enter("txtTo", "6/30/2021");
    hands.click("cmdCalculate");
    EXPECT_THAT(hands.text("lblHeader"), testing::HasSubstr("GT4"));
    EXPECT_THAT(hands.text("lblMidOpPercent"), testing::EndsWith("% Mid Op Load"));
    Operator(*rig.window.window()).photograph("workbench-load");
}

TEST(Workbench, AClosedToolCanBeOpenedAgain)
{
    Workbench rig;
    rig.at(1).click("cmdClose");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(rig.titles(), QStringList({"7-Day Drift", "Range Evaluation", "Data"}));
    rig.choose({"Tools", "2 Load Evaluation"});
    EXPECT_EQ(rig.titles().last(), "Load Evaluation");
    EXPECT_GT(rig.at(3).view<QComboBox>("cmbUnit").count(), 0);
}

TEST(Workbench, APostedLineStandsWithItsTime)
{
    const Workbench rig;
    auto& panel = *rig.window.findChild<MessagePanel*>("messages");
    const RegionalSettings regional;
    sinkOf(panel, rig.clock, regional)->Post(4, "DEval-006: 9, Subscript out of range");
    ASSERT_EQ(rig.messages().rowCount(), 1);
    EXPECT_EQ(rig.messages().item(0, 0)->text(), "5/2/2024 9:30:00 AM");
    EXPECT_EQ(rig.messages().item(0, 2)->text(), "DEval-006: 9, Subscript out of range");
}

TEST(Workbench, AFileThatIsNoSiteLeavesTheSiteOpen)
{
    Workbench rig;
    EXPECT_THAT(told([&] {
                    rig.window.openSite(
                        QString::fromStdString(sitedb::test::sampleFile("spans.csv").string()));
                }),
                testing::StartsWith("Error 75: "));
    EXPECT_EQ(rig.titles(), kAllTools);
    EXPECT_EQ(rig.window.windowTitle(), "bethpage - K7DEval");
}

TEST(Workbench, AnotherSiteTakesThePlaceOfTheFirst)
{
    Workbench rig;
    rig.window.openSite(QString::fromStdString(sampleSite()));
    settle();
    EXPECT_EQ(rig.titles(), kAllTools);
}

TEST(Workbench, WithoutASiteSaysHowToGetOne)
{
    const Workbench rig("");
    EXPECT_EQ(rig.label("startTitle").text(), "No site is open");
    EXPECT_FALSE(rig.entry({"File", "Import Files..."}).isEnabled());
    EXPECT_FALSE(rig.entry({"Tools"}).isEnabled());
    EXPECT_FALSE(rig.window.findChild<QListWidget*>("recentSites")->isVisible());
}

TEST(Workbench, ARecentSiteIsOpenedWithAKey)
{
    const auto memory = std::make_shared<Memory>();
    {
        const Workbench first(sampleSite(), memory);
    }
    const Workbench rig("", memory);
    auto& recent = *rig.window.findChild<QListWidget*>("recentSites");
    ASSERT_EQ(recent.count(), 1);
    recent.setFocus();
    QTest::keyClick(&recent, Qt::Key_Return);
    settle();
    EXPECT_EQ(rig.titles(), kAllTools);
    EXPECT_THAT(rig.entry({"File", "Open Recent"}).menu()->actions().front()->text().toStdString(),
                testing::HasSubstr("bethpage.k7site"));
    rig.choose({"File", "Open Recent", "Clear List"});
    EXPECT_TRUE(memory->settings.recentSites().isEmpty());
}

TEST(Workbench, ARecentSiteThatIsGoneIsToldAndForgotten)
{
    Workbench rig("");
    rig.window.offerSite("/nowhere/lost.site");
    EXPECT_THAT(told([&] { rig.window.openSite("/nowhere/lost.site"); }),
                testing::StartsWith("Error 53: "));
    EXPECT_TRUE(rig.memory->settings.recentSites().isEmpty());
    EXPECT_FALSE(rig.window.findChild<QListWidget*>("recentSites")->isVisible());
    EXPECT_EQ(rig.label("startTitle").text(), "No site is open");
}

TEST(Workbench, ANewSiteIsEmptyAndAsksForFiles)
{
    const Workbench rig("");
    const QString path = rig.memory->folder.filePath("plant.site");
    rig.memory->settings.setFolderOf(path);
    whenDialogComes([](QDialog& dialog) {
        dialog.findChild<QLineEdit*>()->setText("plant");
        dialog.accept();
    });
    rig.choose({"File", "New Site..."});
    EXPECT_TRUE(QFileInfo::exists(path));
    EXPECT_EQ(rig.label("startTitle").text(), "plant.site has no units yet");
    EXPECT_EQ(rig.label("siteLine").text(), "plant.site");
    EXPECT_EQ(rig.label("siteLine").toolTip(), path);
    EXPECT_TRUE(rig.entry({"File", "Import Files..."}).isEnabled());
    EXPECT_FALSE(rig.entry({"Tools"}).isEnabled());
}

TEST(Workbench, ANewSiteNeverTakesThePlaceOfAFile)
{
    Workbench rig("");
    QFile file(rig.memory->folder.filePath("plant.site"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("kept");
    file.close();
    EXPECT_THAT(told([&] { rig.window.newSite(file.fileName()); }),
                testing::EndsWith("Open it, or choose another name."));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "kept");
}

TEST(Workbench, AnotherRegionWritesDatesItsWayAndIsRemembered)
{
    const auto memory = std::make_shared<Memory>();
    {
        Workbench rig(sampleSite(), memory);
        EXPECT_EQ(rig.at(0).view<QLineEdit>("txtToDate").text(), "5/2/2024");
        rig.tabs().setCurrentIndex(1);
        rig.choose({"View", "Numbers and Dates", "German (Germany)"});
        EXPECT_EQ(rig.tabs().currentIndex(), 1);
        EXPECT_EQ(rig.at(0).view<QLineEdit>("txtToDate").text(), "02.05.2024");
    }
    Workbench again(sampleSite(), memory);
    EXPECT_EQ(again.at(0).view<QLineEdit>("txtToDate").text(), "02.05.2024");
    EXPECT_TRUE(again.entry({"View", "Numbers and Dates", "German (Germany)"}).isChecked());
}

TEST(Workbench, TheLayoutOfTheWindowIsKept)
{
    const auto memory = std::make_shared<Memory>();
    {
        Workbench rig("", memory);
        rig.choose({"View", "Messages"});
        rig.window.close();
    }
    const Workbench again("", memory);
    EXPECT_FALSE(again.messages().isVisible());
}

TEST(Workbench, APostedLineBringsThePanelBack)
{
    const Workbench rig;
    rig.choose({"View", "Messages"});
    ASSERT_FALSE(rig.messages().isVisible());
    auto& panel = *rig.window.findChild<MessagePanel*>("messages");
    panel.add("9:30", 4, "DEval-006: 9, Subscript out of range");
    panel.add("9:31", 4, "DEval-003: 94, Invalid use of Null");
    settle();
    EXPECT_TRUE(rig.messages().isVisible());
    panel.setFocus();
    panel.selectRow(1);
    QTest::keyClick(&panel, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "9:31\tDEval-003: 94, Invalid use of Null");
}

TEST(Workbench, ToolsAreReachedByTheirNumbers)
{
    const Workbench rig;
    QTest::keyClick(rig.window.windowHandle(), Qt::Key_3, Qt::ControlModifier);
    EXPECT_EQ(rig.tabs().currentIndex(), 2);
    QTest::keyClick(rig.window.windowHandle(), Qt::Key_2, Qt::ControlModifier);
    EXPECT_EQ(rig.tabs().currentIndex(), 1);
}

TEST(Workbench, AScreenReaderFindsItsWay)
{
    const Workbench rig;
    for (int tab = 0; tab < rig.tabs().count(); ++tab) {
        rig.tabs().setCurrentIndex(tab);
        settle();
        EXPECT_THAT(qt::test::faultsForAScreenReader(rig.window), testing::IsEmpty());
    }
    rig.choose({"Help", "Help on This Tool"});
    EXPECT_THAT(qt::test::faultsForAScreenReader(*rig.window.findChild<QDialog*>("help")),
                testing::IsEmpty());
    const Workbench empty("");
    EXPECT_THAT(qt::test::faultsForAScreenReader(empty.window), testing::IsEmpty());
}

TEST(Workbench, PrintsTheToolOnViewFromItsMenu)
{
    Workbench rig;
    const Operator hands = rig.at(1);
    hands.enter("txtMinSafe", "30");
    hands.enter("txtCapacity", "84");
    const auto titleOfPreview = [&rig] {
        auto title = std::make_shared<QString>();
        whenDialogComes([title](QDialog& dialog) {
            *title = dialog.windowTitle();
            dialog.reject();
        });
        rig.choose({"File", "Print Preview..."});
        return *title;
    };
    hands.click("cmdCalculate");
    EXPECT_TRUE(titleOfPreview().startsWith("Print Preview - ")) << titleOfPreview().toStdString();
}

TEST(Workbench, PrintsNothingWhereThereIsNoResult)
{
    const Workbench rig;
    rig.choose({"File", "Print..."});
    rig.tabs().setCurrentIndex(3);
    rig.choose({"File", "Print Preview..."});
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST(Workbench, HelpIsOnTheToolOnView)
{
    const Workbench rig;
    rig.tabs().setCurrentIndex(2);
    QTest::keyClick(rig.window.windowHandle(), Qt::Key_F1);
    settle();
    auto& page = *rig.window.findChild<QTextBrowser*>("helpPage");
    EXPECT_TRUE(page.isVisible());
    EXPECT_EQ(page.documentTitle(), "Range Evaluation");
    EXPECT_TRUE(page.toPlainText().contains("very low sulfur fuel"));
    const Operator reader(*rig.window.findChild<QDialog*>("help"));
    reader.photograph("help-range");
}

TEST(Workbench, EveryTopicOfHelpHasItsPage)
{
    const Workbench rig("");
    rig.choose({"Help", "Help on This Tool"});
    auto& topics = *rig.window.findChild<QListWidget*>("helpTopics");
    auto& page = *rig.window.findChild<QTextBrowser*>("helpPage");
    EXPECT_EQ(topics.currentItem()->text(), "Sites and files");
    for (int row = 0; row < topics.count(); ++row) {
        topics.setCurrentRow(row);
        EXPECT_EQ(page.documentTitle(), topics.item(row)->text());
        EXPECT_GT(page.toPlainText().size(), 500) << page.documentTitle().toStdString();
    }
}

TEST(Workbench, ALinkOfHelpLeadsToItsTopic)
{
    const Workbench rig("");
    rig.choose({"Help", "Help on This Tool"});
    auto& page = *rig.window.findChild<QTextBrowser*>("helpPage");
    page.setSource(QUrl("qrc:/k7deval/help/drift.html"));
    EXPECT_EQ(rig.window.findChild<QListWidget*>("helpTopics")->currentItem()->text(),
              "7-Day Drift");
    EXPECT_EQ(page.documentTitle(), "7-Day Drift");
}

TEST(Workbench, TakesTheRegionOfItsUser)
{
    EXPECT_EQ(settingsOf(QLocale("de_DE")).name, "de-DE");
    EXPECT_EQ(settingsOf(QLocale("ja_JP")).name, "en-US");
}

} // namespace k7deval::workbench::test
