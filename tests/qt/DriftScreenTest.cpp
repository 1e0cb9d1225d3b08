#include "qt/DriftScreen.h"
#include "qt/ScreenReader.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QTreeWidget>

namespace k7deval::qt::test
{

namespace
{

using k7deval::test::addCal;
using k7deval::test::march;
using k7deval::test::operatedSite;
using k7deval::test::siteWithDailyCals;
using k7deval::test::TemporaryFolder;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

} // namespace

TEST(DriftScreen, ShowsTheSetUpFromTheStart)
{
    DriftScreen screen;
    screen.hands.photograph("drift-setup");
    EXPECT_FALSE(screen.tree().isVisible());
}

TEST(DriftScreen, EvaluatesWithMouseAndKeys)
{
    DriftScreen screen(siteWithOneFailure());
    screen.hands.enter("txtFromDate", "2024-03-01");
    EXPECT_EQ(screen.hands.view<QLineEdit>("txtFromDate").text(), "3/1/2024");
    screen.hands.click("optShowInterval");
    screen.hands.click("cmdNext");
    screen.hands.photograph("drift-results");

    EXPECT_TRUE(screen.tree().isVisible());
    EXPECT_FALSE(screen.hands.view<QWidget>("cmbAnalyzer").isVisible());
    EXPECT_EQ(screen.label("lblCalResultLabel").text(), "Passed");
    EXPECT_THAT(screen.differences(), IsEmpty());

    screen.hands.click("cmdBack");
    EXPECT_FALSE(screen.tree().isVisible());
}

TEST(DriftScreen, AFailedCalibrationStandsOut)
{
    DriftScreen screen(siteWithOneFailure());
    screen.hands.click("optShowInterval");
    screen.hands.click("cmdNext");
    settle();
    entryOf(screen, "3/3/2024").setExpanded(true);
    settle();
    screen.clickEntry(entryOf(screen, "3/3/2024 06:15"));
    screen.hands.photograph("drift-failed");

    const QLabel& result = screen.label("lblCalResultLabel");
    EXPECT_EQ(result.text(), "Failed");
    EXPECT_TRUE(result.font().bold());
    const QColor color = result.palette().color(QPalette::WindowText);
    EXPECT_GT(color.red(), color.green() + 100);
    EXPECT_THAT(screen.differences(), IsEmpty());
    EXPECT_TRUE(entryOf(screen, "3/3/2024").isExpanded());

    screen.clickEntry(entryOf(screen, "3/5/2024 08:15"));
    EXPECT_EQ(result.text(), "Passed");
    EXPECT_EQ(result.palette().color(QPalette::WindowText),
              screen.view.palette().color(QPalette::WindowText));
}

TEST(DriftScreen, TheArrowKeysSelectAnEntry)
{
    DriftScreen screen;
    screen.hands.click("cmdNext");
    settle();
    screen.tree().setFocus(Qt::TabFocusReason);
    screen.hands.press(Qt::Key_Down);
    EXPECT_EQ(screen.label("lblCalTimeData").text(), "3/2/2024 08:15");
}

TEST(DriftScreen, TheEmptyResultIsNotSelectedByItself)
{
    DriftScreen screen(operatedSite());
    screen.hands.click("cmdNext");
    settle();
    screen.tree().setFocus(Qt::TabFocusReason);
    settle();
    EXPECT_EQ(screen.rig.result().tvwCalTimes.SelectedItem(), nullptr);
    EXPECT_THAT(screen.differences(), IsEmpty());
    screen.clickEntry(entryOf(screen, "NA"));
    EXPECT_EQ(screen.rig.result().tvwCalTimes.SelectedItem()->Key, "NA");
}

TEST(DriftScreen, WhatWasUsedInTheTestIsWhite)
{
    auto site = siteWithDailyCals(7);
    addCal(*site, {.time = march(9)});
    DriftScreen screen(site);
    screen.hands.click("optShowInterval");
    screen.hands.click("cmdNext");
    settle();
    const QColor white = screen.tree().palette().color(QPalette::Base);
    EXPECT_EQ(entryOf(screen, "3/5/2024 08:15").background(0).color(), white);
    EXPECT_NE(entryOf(screen, "3/9/2024 08:15").background(0).color(), white);
}

TEST(DriftScreen, SavesTheReportAndShowsIt)
{
    const TemporaryFolder folder;
    DriftScreen screen;
    screen.rig.services.saveAnswer = screen::SaveAnswer{folder.file("drift.pdf"), 1};
    screen.hands.click("cmdNext");
    screen.hands.pressMnemonic(Qt::Key_S);
    EXPECT_THAT(screen.rig.services.opened, ElementsAre(folder.file("drift.pdf")));
    EXPECT_THAT(folder.names(), ElementsAre("drift.pdf"));
}

TEST(DriftScreen, TheTabulatorGoesDownTheScreen)
{
    DriftScreen screen;
    screen.hands.view<QComboBox>("cmbUnit").setFocus();
    QStringList visited;
    for (int field = 0; field < 8; ++field) {
        visited << QApplication::focusWidget()->objectName();
        screen.hands.press(Qt::Key_Tab);
    }
    EXPECT_EQ(visited, QStringList({"cmbUnit", "cmbAnalyzer", "txtFromDate", "cmdFromDate",
                                    "txtToDate", "cmdToDate", "chkManualCals", "chk6of7"}));
}

TEST(DriftScreen, AnEntrySaysWhatItsPictureMeans)
{
    DriftScreen screen;
    screen.hands.click("cmdNext");
    settle();
    EXPECT_EQ(entryOf(screen, "3/5/2024 08:15").toolTip(0), "Pass On-Line, used in the drift test");
}

TEST(DriftScreen, AFailureIsSaidToAScreenReader)
{
    DriftScreen screen(siteWithOneFailure());
    screen.hands.click("optShowInterval");
    screen.hands.click("cmdNext");
    settle();
    EXPECT_EQ(entryOf(screen, "3/3/2024 06:15").data(0, Qt::AccessibleDescriptionRole),
              "Fail On-Line");
}

TEST(DriftScreen, TheVerdictIsWhatTheEyeMeetsFirst)
{
    DriftScreen screen(siteWithOneFailure());
    screen.view.resize(1366, 768);
    screen.hands.click("cmdNext");
    settle();
    screen.hands.photograph("drift-results-wide");
    const QLabel& summary = screen.label("lblSummary");
    EXPECT_GE(summary.fontMetrics().height(), 1.5 * screen.view.fontMetrics().height());
    EXPECT_LE(summary.height(), summary.parentWidget()->height()) << "all of it is seen";
}

TEST(DriftScreen, ALongVerdictCanBeScrolled)
{
    DriftScreen screen;
    screen.view.resize(screen.view.minimumSizeHint());
    screen.hands.click("cmdNext");
    QString text;
    for (int line = 0; line < 40; ++line)
        text += "One more line of many.\r\n";
    screen.rig.result().SetSummaryText(text.toStdString());
    settle();
    screen.hands.photograph("drift-results-long");
    const QLabel& summary = screen.label("lblSummary");
    EXPECT_GE(summary.height(), summary.heightForWidth(summary.width()));
    EXPECT_GT(summary.height(), summary.parentWidget()->height());
}

TEST(DriftScreen, AnOptionTakesItsLimit)
{
    DriftScreen screen;
    EXPECT_FALSE(screen.hands.view<QLineEdit>("txtOtherSpanValue").isEnabled());
    screen.hands.click("optOtherSpan");
    screen.hands.enter("txtOtherSpanValue", "4");
    EXPECT_EQ(screen.rig.setUp().PercentOfSpanLimit(), 4);
}

TEST(DriftScreen, TheArrowKeysGoThroughTheOptions)
{
    DriftScreen screen;
    screen.hands.click("opt025Span");
    screen.hands.press(Qt::Key_Down);
    EXPECT_TRUE(screen.rig.setUp().opt05Span.isSelected());
}

TEST(DriftScreen, ATextTooLongIsCut)
{
    DriftScreen screen;
    screen.hands.enter("txtORIS", "1234567");
    EXPECT_EQ(screen.hands.view<QLineEdit>("txtORIS").text(), "123456");
}

TEST(DriftScreen, AScreenReaderMakesSenseOfIt)
{
    DriftScreen screen;
    EXPECT_THAT(faultsForAScreenReader(screen.view), IsEmpty());
    screen.hands.click("cmdNext");
    EXPECT_THAT(faultsForAScreenReader(screen.view), IsEmpty());
}

TEST(DriftScreen, StaysReadableOnADarkDesktop)
{
    const QPalette before = QApplication::palette();
    QPalette dark(QColor(0x30, 0x30, 0x30));
    QApplication::setPalette(dark);
    {
        DriftScreen screen(siteWithOneFailure());
        screen.hands.click("optShowInterval");
        screen.hands.click("cmdNext");
        settle();
        entryOf(screen, "3/3/2024").setExpanded(true);
        screen.clickEntry(entryOf(screen, "3/3/2024 06:15"));
        screen.hands.photograph("drift-dark");
        EXPECT_GT(
            screen.label("lblCalResultLabel").palette().color(QPalette::WindowText).lightness(),
            150);
    }
    QApplication::setPalette(before);
}

TEST(DriftScreen, GrowsWithLargeLetters)
{
    const LargeLetters letters;
    const DriftScreen screen(siteWithOneFailure());
    screen.hands.photograph("drift-setup-large");
    EXPECT_THAT(cutOff(screen.view), IsEmpty());
    screen.hands.click("cmdNext");
    screen.hands.photograph("drift-results-large");
    EXPECT_THAT(cutOff(screen.view), IsEmpty());
}

} // namespace k7deval::qt::test
