#include "qt/DriftScreen.h"
#include "qt/ScreenReader.h"

#include <gmock/gmock.h>

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>

namespace k7deval::qt::test
{

namespace
{

using k7deval::test::addCal;
using k7deval::test::AnalyzerFacts;
using k7deval::test::kGT3;
using k7deval::test::march;
using k7deval::test::operatedSite;
using k7deval::test::SiteData;
using k7deval::test::siteOf;
using k7deval::test::siteOfUnits;
using k7deval::test::siteWithDailyCals;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// A day of each kind: passed and failed, on-line and off-line, and operated without a calibration.
std::shared_ptr<SiteData> siteOfAllKinds()
{
    auto site = operatedSite();
    addCal(*site, {.time = march(1)});
    addCal(*site, {.time = march(2), .spanMeasured = 190});
    addCal(*site, {.time = march(3), .online = false});
    addCal(*site, {.time = march(4), .spanMeasured = 190, .online = false});
    return site;
}

std::shared_ptr<SiteData> siteOfStacks()
{
    auto site = siteOf({});
    site->parameter(kGT3).attributes[-96] = true;
    site->parameter(kGT3).attributes[-98] = std::string("CS1;CS2");
    return site;
}

/// An operator who has seen the results of a site, and of the whole interval.
struct Results : DriftScreen {
    explicit Results(std::shared_ptr<SiteData> site) : DriftScreen(std::move(site))
    {
        hands.click("optShowInterval");
        hands.click("cmdNext");
    }
    [[nodiscard]] std::string summary() const { return hands.text("lblSummary"); }
};

QImage imageOf(const QIcon& icon)
{
    return icon.pixmap(64, 64).toImage();
}

} // namespace

TEST(DriftSession, ATestIsPassed)
{
    const Results screen(siteWithDailyCals(7));
    screen.hands.photograph("drift-passed");
    EXPECT_THAT(screen.summary(), HasSubstr("passed"));
}

TEST(DriftSession, ATestIsNotCompleted)
{
    auto site = siteWithDailyCals(5);
    addCal(*site, {.time = march(6), .spanMeasured = 190});
    const DriftScreen screen(site);
    screen.hands.click("chk6of7");
    screen.hands.click("cmdNext");
    screen.hands.photograph("drift-six-of-seven");
    EXPECT_THAT(screen.hands.text("lblSummary"), HasSubstr("more on-line daily cal(s) are needed"));
}

TEST(DriftSession, ATestWithoutCalibrationsHasOneEntry)
{
    const Results screen(operatedSite());
    screen.hands.photograph("drift-empty");
    EXPECT_EQ(screen.tree().topLevelItemCount(), 1);
    EXPECT_EQ(screen.label("lblCalTimeData").text(), "");
    EXPECT_THAT(screen.differences(), IsEmpty());
    EXPECT_EQ(imageOf(entryOf(screen, "NA").icon(0)),
              imageOf(Results(siteOfAllKinds()).tree().topLevelItem(3)->icon(0)));
}

TEST(DriftSession, AnAnalyzerThatIsNotThereLeavesTheHourglass)
{
    const DriftScreen screen(siteOfUnits());
    EXPECT_EQ(screen.hands.view<QComboBox>("cmbAnalyzer").currentText(), "N/A");
    EXPECT_FALSE(screen.hands.view<QWidget>("fraTestInfo").isVisible());
    screen.hands.click("cmdNext");
    EXPECT_EQ(screen.view.cursor().shape(), Qt::WaitCursor);
    EXPECT_FALSE(screen.hands.view<QWidget>("cmdSave").isVisible());
    EXPECT_FALSE(screen.hands.view<QWidget>("cmdNext").isVisible());
    EXPECT_THAT(screen.differences(), IsEmpty());

    screen.hands.click("cmdBack");
    EXPECT_NE(screen.view.cursor().shape(), Qt::WaitCursor);
    EXPECT_TRUE(screen.hands.view<QWidget>("cmdNext").isVisible());
}

TEST(DriftSession, TheHourglassIsSeenDuringTheWork)
{
    DriftScreen screen;
    std::vector<Qt::CursorShape> seen;
    screen.rig.tool.Changed.Connect([&] { seen.push_back(screen.view.cursor().shape()); });
    screen.hands.click("cmdNext");
    EXPECT_THAT(seen, ElementsAre(Qt::WaitCursor, Qt::ArrowCursor));
}

TEST(DriftSession, EachKindOfDayHasItsPicture)
{
    const Results screen(siteOfAllKinds());
    screen.hands.photograph("drift-kinds");
    const char* const legends[] = {"imgOnlinePass", "imgOnlineFail", "imgOfflinePass",
                                   "imgOfflineFail", "imgOpDayNoCals"};
    std::vector<QImage> pictures;
    for (int day = 0; day < 5; ++day) {
        const QIcon icon = screen.tree().topLevelItem(day)->icon(0);
        const QImage legend =
            screen.hands.view<QLabel>(legends[day]).pixmap(Qt::ReturnByValue).toImage();
        const QSize size = legend.deviceIndependentSize().toSize();
        EXPECT_EQ(icon.pixmap(size, legend.devicePixelRatio()).toImage(), legend) << legends[day];
        EXPECT_EQ(std::count(pictures.begin(), pictures.end(), legend), 0) << legends[day];
        pictures.push_back(legend);
    }
}

TEST(DriftSession, ADriftAboveItsLimitIsRed)
{
    Results screen(siteOfAllKinds());
    screen.clickEntry(entryOf(screen, "3/2/2024 08:15"));
    const auto redness = [&screen](const char* name) {
        const QColor color = screen.label(name).palette().color(QPalette::WindowText);
        return color.red() - color.green();
    };
    EXPECT_GT(redness("lblSpanDriftData"), 100);
    EXPECT_EQ(redness("lblZeroDriftData"), 0);
}

TEST(DriftSession, ADayOfSeveralCalibrationsHasNoDetails)
{
    const Results screen(siteWithOneFailure());
    entryOf(screen, "3/3/2024").setExpanded(true);
    screen.clickEntry(entryOf(screen, "3/3/2024 06:15"));
    screen.clickEntry(entryOf(screen, "3/3/2024"));
    EXPECT_EQ(screen.label("lblCalTimeData").text(), "");
    EXPECT_EQ(screen.label("lblSpanDriftData").text(), "");
    EXPECT_TRUE(screen.label("lblCalResultLabel").font().bold()) << "as it was";
}

TEST(DriftSession, SavingTakesThePlaceOfNext)
{
    // So large that the captions, and not the least width of a button, decide.
    const LargeLetters letters;
    const DriftScreen screen;
    const auto place = [&screen](const char* name) {
        return screen.hands.view<QWidget>(name).geometry();
    };
    const QRect next = place("cmdNext");
    const QRect back = place("cmdBack");
    screen.hands.click("cmdNext");
    EXPECT_EQ(place("cmdSave"), next);
    EXPECT_EQ(place("cmdBack"), back);
}

TEST(DriftSession, TheKeysStayNearAfterNextAndBack)
{
    const DriftScreen screen;
    screen.hands.pressMnemonic(Qt::Key_N);
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "cmdBack");
    screen.hands.pressMnemonic(Qt::Key_B);
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "cmbUnit");
}

TEST(DriftSession, TheTabulatorReadsTheSetUp)
{
    const DriftScreen screen;
    screen.hands.click("optOtherSpan");
    const QStringList way = screen.hands.walk("cmbUnit");
    EXPECT_EQ(way, QStringList({"cmbUnit", "cmbAnalyzer", "txtFromDate", "cmdFromDate", "txtToDate",
                                "cmdToDate", "chkManualCals", "chk6of7", "optShowAllCals",
                                "chkShowSummary", "optOtherSpan", "txtOtherSpanValue", "txtORIS",
                                "txtStackID", "txtComponentID", "cmbTestReason", "txtTestNumber",
                                "cmdNext"}));
    const QStringList back = screen.hands.walk("cmdNext", Qt::Key_Backtab);
    EXPECT_EQ(QStringList(back.rbegin(), back.rend()), way);
}

TEST(DriftSession, TheTabulatorReadsTheResults)
{
    const Results screen(siteWithDailyCals(7));
    EXPECT_EQ(screen.hands.walk("tvwCalTimes"),
              QStringList({"tvwCalTimes", "summary", "chkPreview", "cmdBack", "cmdSave"}));
}

TEST(DriftSession, AFieldIsLeftByMouseByLetterAndByNext)
{
    const DriftScreen screen;
    const auto text = [&screen](const char* name) {
        return screen.hands.view<QLineEdit>(name).text();
    };
    screen.hands.type("txtFromDate", "2024-03-01");
    screen.hands.click("chk6of7");
    EXPECT_EQ(text("txtFromDate"), "3/1/2024");
    screen.hands.type("txtToDate", "2024-03-08");
    screen.hands.pressMnemonic(Qt::Key_C);
    EXPECT_EQ(text("txtToDate"), "3/8/2024");
    EXPECT_TRUE(screen.hands.view<QWidget>("txtORIS").hasFocus());
    screen.hands.type("txtFromDate", "no date");
    screen.hands.click("cmdNext");
    EXPECT_EQ(text("txtFromDate"), "3/1/2024");
    EXPECT_TRUE(screen.tree().isVisible());
}

TEST(DriftSession, TheCalendarGivesTheDay)
{
    DriftScreen screen;
    screen.rig.services.dateAnswer = makeDate(2024, 3, 2);
    screen.hands.click("cmdFromDate");
    EXPECT_EQ(screen.hands.view<QLineEdit>("txtFromDate").text(), "3/2/2024");
    screen.rig.services.dateAnswer.reset();
    screen.hands.click("cmdToDate");
    EXPECT_EQ(screen.hands.view<QLineEdit>("txtToDate").text(), "3/10/2024");
}

TEST(DriftSession, SeveralStacksArePickedFromAList)
{
    const DriftScreen screen(siteOfStacks());
    EXPECT_FALSE(screen.hands.view<QWidget>("txtStackID").isVisible());
    screen.hands.pressMnemonic(Qt::Key_K);
    EXPECT_TRUE(screen.hands.view<QWidget>("cmbStackID").hasFocus());
    screen.hands.pick("cmbStackID", "CS2");
    EXPECT_EQ(screen.rig.tool.ctrl7DaySetUp1.StackID(), "CS2");
    EXPECT_THAT(screen.differences(), IsEmpty());
    EXPECT_THAT(faultsForAScreenReader(screen.view), IsEmpty());
    screen.hands.pick("cmbUnit", "GT4");
    EXPECT_THAT(faultsForAScreenReader(screen.view), IsEmpty());
}

TEST(DriftSession, ALongTextByCodeIsShownWhole)
{
    AnalyzerFacts facts;
    facts.component = std::string("10123");
    const DriftScreen screen(siteOf(facts));
    auto& component = screen.hands.view<QLineEdit>("txtComponentID");
    EXPECT_EQ(component.text(), "10123");
    EXPECT_THAT(screen.differences(), IsEmpty());
    screen.hands.enter("txtComponentID", "9876");
    EXPECT_EQ(component.text(), "987");
}

TEST(DriftSession, ATypedReasonIsNoneOfTheList)
{
    const DriftScreen screen;
    screen.hands.enter("cmbTestReason", "Diagnostic");
    EXPECT_EQ(screen.rig.tool.ctrl7DaySetUp1.cmbTestReason.ListIndex(), -1);
    EXPECT_THAT(screen.differences(), IsEmpty());
    screen.hands.pick("cmbTestReason", "Diagnostic");
    EXPECT_EQ(screen.rig.tool.ctrl7DaySetUp1.TestReason(), "RECERT");
}

} // namespace k7deval::qt::test
