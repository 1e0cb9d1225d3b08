#pragma once

#include "qt/ScreenOperator.h"
#include "qt/ctrl7DayView.h"
#include "sevenday/ToolRig.h"

#include <QLabel>
#include <QTest>
#include <QTreeWidget>

#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace k7deval::qt::test
{

/// Seven days of passed calibrations, on the third of which one failed before it passed.
inline std::shared_ptr<k7deval::test::SiteData> siteWithOneFailure()
{
    auto site = k7deval::test::siteWithDailyCals(7);
    k7deval::test::addCal(*site, {.time = k7deval::test::march(3, 6), .spanMeasured = 190});
    k7deval::test::addCal(*site, {.time = k7deval::test::march(4, 21), .online = false});
    return site;
}

/// An operator at the 7-Day tool.
struct DriftScreen : ScreenOperator<k7deval::test::ToolRig, ctrl7DayView> {
    explicit DriftScreen(
        std::shared_ptr<k7deval::test::SiteData> site = k7deval::test::siteWithDailyCals(7))
        : ScreenOperator(std::move(site))
    {
    }

    [[nodiscard]] QLabel& label(const std::string& name) const { return hands.view<QLabel>(name); }
    [[nodiscard]] QTreeWidget& tree() const { return hands.view<QTreeWidget>("tvwCalTimes"); }
    void clickEntry(QTreeWidgetItem& entry) const
    {
        tree().scrollToItem(&entry);
        QTest::mouseClick(tree().viewport(), Qt::LeftButton, {},
                          tree().visualItemRect(&entry).center());
        settle();
    }
};

inline QTreeWidgetItem& entryOf(const DriftScreen& screen, const QString& text)
{
    const auto found = screen.tree().findItems(text, Qt::MatchExactly | Qt::MatchRecursive);
    if (found.size() != 1)
        throw std::runtime_error("no such entry: " + text.toStdString());
    return *found.front();
}

} // namespace k7deval::qt::test
