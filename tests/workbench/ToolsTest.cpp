#include "workbench/Tools.h"

#include "workbench/ToolTabs.h"
#include "workbench/Workbench.h"

#include <QFile>

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace k7deval::workbench::test
{

namespace
{

TEST(Tools, HaveAnIdOfTheirOwnAndAPageOfHelp)
{
    std::set<std::string> ids;
    for (const Tool& tool : allTools()) {
        EXPECT_TRUE(ids.insert(tool.id).second) << tool.id;
        EXPECT_TRUE(QFile::exists(QString(":/k7deval/help/%1.html").arg(tool.topic))) << tool.topic;
    }
    EXPECT_EQ(ids.size(), 4U);
}

TEST(Tools, AreFoundByTheirIds)
{
    Workbench rig;
    ToolTabs& tabs = rig.window.tools();
    for (const Tool& tool : allTools()) {
        tabs.goTo(tool.id);
        ASSERT_NE(tabs.current(), nullptr);
        EXPECT_STREQ(tabs.current()->id, tool.id);
        EXPECT_EQ(tabs.tabText(tabs.currentIndex()), tool.title);
        EXPECT_NE(tabs.page(tool.id), nullptr);
    }
}

TEST(Tools, AreNotFoundByAnotherId)
{
    Workbench rig;
    ToolTabs& tabs = rig.window.tools();
    EXPECT_EQ(tabs.page("nothing"), nullptr);
    tabs.goTo("nothing");
    EXPECT_EQ(tabs.count(), 4) << "nothing was opened";
}

TEST(Tools, AreOpenedAnewWhenTheyWereClosed)
{
    Workbench rig;
    ToolTabs& tabs = rig.window.tools();
    delete tabs.widget(1);
    EXPECT_EQ(tabs.page("load"), nullptr);
    tabs.goTo("load");
    EXPECT_NE(tabs.page("load"), nullptr);
    EXPECT_STREQ(tabs.current()->id, "load");
}

} // namespace

} // namespace k7deval::workbench::test
