#include "qt/ChartView.h"
#include "load/LoadRig.h"
#include "qt/Operator.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QTest>
#include <QToolTip>

#include <cmath>

namespace k7deval::qt::test
{

namespace
{

using k7deval::test::LoadRig;

/// The chart of a load evaluation: 4 hours in the first bin, 8 in the tenth, 1 in the last, as wide
/// as the tool's frame at 10 twips a pixel.
struct Chart {
    Chart()
    {
        rig.range("0", "100").hours({1, 1, 1, 1, 99});
        rig.addHours(8, 50);
        rig.calculate();
        view.resize(600, 400);
        view.show();
        settle();
    }

    LoadRig rig;
    ChartView view{nullptr,
                   rig.tool,
                   {&rig.tool.lbl000, &rig.tool.lbl030, &rig.tool.lbl060, &rig.tool.lbl100}};

    [[nodiscard]] QLabel& label(const char* name) const { return *view.findChild<QLabel*>(name); }
};

} // namespace

TEST(ChartView, BarsKeepTheProportionsOfTheTool)
{
    const Chart chart;
    for (int bar = 1; bar <= 20; ++bar) {
        const screen::Geometry& place = chart.rig.tool.lblBar[bar].place();
        const QRect rect = chart.view.barRect(bar);
        if (place.Height == 0) {
            EXPECT_TRUE(rect.isEmpty()) << bar;
            continue;
        }
        EXPECT_NEAR(rect.left(), place.Left / 10, 1) << bar;
        EXPECT_NEAR(rect.width(), place.Width / 10, 1) << bar;
        const double share = rect.height() / static_cast<double>(chart.view.barRect(10).height());
        EXPECT_NEAR(share, place.Height / chart.rig.tool.lblBar[10].place().Height, 0.01) << bar;
    }
}

TEST(ChartView, PaintsItsBarsInTheColourOfTheDesktop)
{
    const Chart chart;
    const QImage image = const_cast<ChartView&>(chart.view).grab().toImage();
    const QPointF middle = chart.view.barRect(10).center();
    const auto colorAt = [&image](const QPointF& spot) {
        return image.pixelColor((spot * image.devicePixelRatio()).toPoint());
    };
    EXPECT_EQ(colorAt(middle), chart.view.palette().color(QPalette::Highlight));
    EXPECT_EQ(colorAt(middle + QPointF(30, 0)), chart.view.palette().color(QPalette::Window));
}

TEST(ChartView, TextsStandAtTheirMarksAndDoNotOverlap)
{
    const Chart chart;
    EXPECT_NEAR(chart.label("lblLow").geometry().center().x(), 184.5, 2);
    EXPECT_NEAR(chart.label("lblMax").geometry().right(), 588, 2);
    EXPECT_FALSE(chart.label("lblLowOpPercent")
                     .geometry()
                     .intersects(chart.label("lblMidOpPercent").geometry()));
}

TEST(ChartView, TheSmallestChartHasRoomForItsTexts)
{
    Chart chart;
    chart.view.resize(chart.view.minimumSizeHint());
    settle();
    for (const char* pair : {"lblLowOpPercent lblMidOpPercent", "lblMidOpPercent lblHighOpPercent",
                             "lblMinSafe lblLow", "lblMid lblMax", "lbl000 lbl030"}) {
        const QStringList names = QString(pair).split(' ');
        EXPECT_FALSE(chart.label(qPrintable(names[0]))
                         .geometry()
                         .intersects(chart.label(qPrintable(names[1])).geometry()))
            << pair;
    }
}

TEST(ChartView, ShowsTheToolTipOfTheWholeColumn)
{
    Chart chart;
    const QPoint top(chart.view.barRect(20).center().x(), 50);
    QHelpEvent help(QEvent::ToolTip, top, chart.view.mapToGlobal(top));
    QApplication::sendEvent(&chart.view, &help);
    EXPECT_EQ(QToolTip::text(), "95 - 100   Op Hours: 1");
}

TEST(ChartView, TheArrowKeysGoFromBarToBar)
{
    Chart chart;
    QTest::keyClick(&chart.view, Qt::Key_Right);
    EXPECT_EQ(QToolTip::text(), "0 - 5   Op Hours: 4");
    QTest::keyClick(&chart.view, Qt::Key_Right);
    EXPECT_EQ(QToolTip::text(), "5 - 10   Op Hours: 0");
}

} // namespace k7deval::qt::test
