#include "workbench/MainWindow.h"
#include "qt/Operator.h"
#include "qt/QtServices.h"
#include "sitedb/SampleSite.h"
#include "support/FakeServices.h"
#include "support/FakeSite.h"
#include "workbench/MessagePanel.h"
#include "workbench/Region.h"

#include <gmock/gmock.h>

#include <QComboBox>
#include <QCoreApplication>
#include <QLocale>
#include <QMenuBar>
#include <QMessageBox>
#include <QTabWidget>
#include <QTableWidget>
#include <QTreeWidget>

namespace k7deval::workbench::test
{

namespace
{

using k7deval::test::FakeServices;
using k7deval::test::FixedClock;
using qt::test::Operator;
using qt::test::settle;
using qt::test::whenDialogComes;
using sitedb::test::SampleSite;

std::string sampleSite()
{
    static const SampleSite sample;
    return (sample.directory / "bethpage.k7site").string();
}

/// An operator at the program with the sample open, on 2 May 2024.
struct Workbench {
    explicit Workbench(const std::string& site = sampleSite())
    {
        window.resize(1000, 760);
        window.show();
        if (!site.empty())
            window.openSite(site);
        settle();
    }

    FakeServices services;
    FixedClock clock{makeDate(2024, 5, 2, 9, 30)};
    MainWindow window{services, clock, RegionalSettings()};

    [[nodiscard]] QTabWidget& tabs() const { return *window.findChild<QTabWidget*>("tools"); }
    [[nodiscard]] QStringList titles() const
    {
        QStringList titles;
        for (int tab = 0; tab < tabs().count(); ++tab)
            titles << tabs().tabText(tab);
        return titles;
    }
    /// The hands of the operator in a tab.
    [[nodiscard]] Operator at(int tab)
    {
        tabs().setCurrentIndex(tab);
        return Operator(*tabs().widget(tab));
    }
    [[nodiscard]] QTableWidget& messages() const
    {
        return *window.findChild<QTableWidget*>("messages");
    }
};

const QStringList kAllTools{"7-Day Drift", "Load Evaluation", "Range Evaluation"};

} // namespace

TEST(Workbench, ShowsTheToolsOfASite)
{
    const Workbench bench;
    EXPECT_EQ(bench.titles(), kAllTools);
    EXPECT_EQ(bench.window.windowTitle(), "bethpage - K7DEval");
    Operator(*bench.window.window()).photograph("workbench");
}

TEST(Workbench, EvaluatesADriftTestOfTheSample)
{
    Workbench bench;
    const Operator hands = bench.at(0);
    hands.pick("cmbUnit", "GT4");
    hands.pick("cmbAnalyzer", "NOX 206/H");
    hands.enter("txtFromDate", "5/4/2018");
    hands.enter("txtToDate", "6/18/2018");
    hands.click("cmdNext");
    EXPECT_EQ(hands.text("lblSummary"),
              "Starting on 5/16/2018 there are 6 on-line cal(s) counted in the 7-Day Drift Test.\n"
              "1 more on-line daily cal(s) are needed to pass the Drift Test.");
    EXPECT_EQ(hands.text("lblZeroDriftData"), "-220.79");
    Operator(*bench.window.window()).photograph("workbench-drift");
}

TEST(Workbench, EvaluatesAYearOfLoad)
{
    Workbench bench;
    const Operator hands = bench.at(1);
    hands.pick("cmbUnit", "GT4");
    hands.enter("txtMinSafe", "30");
    hands.enter("txtCapacity", "84");
    hands.click("optTimeSelect");
    hands.enter("txtFrom", "7/1/2020");
    hands.enter("txtTo", "6/30/2021");
    hands.click("cmdCalculate");
    EXPECT_THAT(hands.text("lblHeader"), testing::HasSubstr("GT4"));
    EXPECT_THAT(hands.text("lblMidOpPercent"), testing::EndsWith("% Mid Op Load"));
    Operator(*bench.window.window()).photograph("workbench-load");
}

TEST(Workbench, AClosedToolCanBeOpenedAgain)
{
    Workbench bench;
    bench.at(1).click("cmdClose");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(bench.titles(), QStringList({"7-Day Drift", "Range Evaluation"}));
    for (QAction* action : bench.window.menuBar()->actions()[1]->menu()->actions()) {
        if (action->text() == "Load Evaluation")
            action->trigger();
    }
    EXPECT_EQ(bench.titles().last(), "Load Evaluation");
    EXPECT_GT(bench.at(2).view<QComboBox>("cmbUnit").count(), 0);
}

TEST(Workbench, APostedLineStandsWithItsTime)
{
    const Workbench bench;
    auto& panel = *bench.window.findChild<MessagePanel*>("messages");
    const RegionalSettings regional;
    sinkOf(panel, bench.clock, regional)->Post(4, "DEval-006: 9, Subscript out of range");
    ASSERT_EQ(bench.messages().rowCount(), 1);
    EXPECT_EQ(bench.messages().item(0, 0)->text(), "5/2/2024 9:30:00 AM");
    EXPECT_EQ(bench.messages().item(0, 2)->text(), "DEval-006: 9, Subscript out of range");
}

TEST(Workbench, AFileThatIsNoSiteLeavesTheSiteOpen)
{
    Workbench bench;
    QString told;
    whenDialogComes([&told](QDialog& dialog) {
        told = dynamic_cast<QMessageBox&>(dialog).text();
        dialog.accept();
    });
    bench.window.openSite(sitedb::test::sampleFile("spans.csv").string());
    EXPECT_TRUE(told.startsWith("Error 75: ")) << told.toStdString();
    EXPECT_EQ(bench.titles(), kAllTools);
    EXPECT_EQ(bench.window.windowTitle(), "bethpage - K7DEval");
}

TEST(Workbench, AnotherSiteTakesThePlaceOfTheFirst)
{
    Workbench bench;
    bench.window.openSite(sampleSite());
    settle();
    EXPECT_EQ(bench.titles(), kAllTools);
}

TEST(Workbench, TakesTheRegionOfItsUser)
{
    EXPECT_EQ(settingsOf(QLocale("de_DE")).name, "de-DE");
    EXPECT_EQ(settingsOf(QLocale("ja_JP")).name, "en-US");
}

} // namespace k7deval::workbench::test
