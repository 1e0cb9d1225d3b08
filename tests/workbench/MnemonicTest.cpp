#include "qt/Operator.h"
#include "sitedb/SampleSite.h"
#include "support/FakeServices.h"
#include "support/FakeSite.h"
#include "workbench/MainWindow.h"

#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QMenuBar>
#include <QTabWidget>
#include <QTemporaryDir>

#include <map>
#include <string>
#include <vector>

namespace k7deval::workbench::test
{

namespace
{

using qt::test::Operator;
using qt::test::settle;
using ::testing::IsEmpty;

/// What stands on a window with a letter underlined: labels of fields, buttons, boxes and menus.
QStringList captionsOnView(const MainWindow& window)
{
    QStringList captions;
    for (const QLabel* label : window.findChildren<QLabel*>()) {
        if (label->isVisible() && label->buddy() != nullptr)
            captions << label->text();
    }
    for (const QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
        if (button->isVisible())
            captions << button->text();
    }
    for (const QGroupBox* box : window.findChildren<QGroupBox*>()) {
        if (box->isVisible())
            captions << box->title();
    }
    for (const QAction* menu : window.menuBar()->actions())
        captions << menu->text();
    for (const QTabWidget* tabs : window.findChildren<QTabWidget*>()) {
        for (int tab = 0; tabs->isVisible() && tab < tabs->count(); ++tab)
            captions << tabs->tabText(tab);
    }
    return captions;
}

/// The captions that share a letter, a line a letter.
std::vector<std::string> sharedLetters(const MainWindow& window)
{
    std::map<QChar, QStringList> captionsOf;
    for (const QString& caption : captionsOnView(window)) {
        const QString marked = QString(caption).remove("&&").toLower();
        if (const auto mark = marked.indexOf('&'); mark >= 0)
            captionsOf[marked[mark + 1]] << caption;
    }
    std::vector<std::string> shared;
    for (const auto& [letter, captions] : captionsOf) {
        if (captions.size() > 1)
            shared.push_back(captions.join(" | ").toStdString());
    }
    return shared;
}

/// An operator at the program with the sample open.
struct Program {
    Program()
    {
        settings.setRegion("en-US");
        window.resize(1366, 768);
        window.show();
        window.openSite(QString::fromStdString((site.directory / "bethpage.k7site").string()));
        settle();
    }

    sitedb::test::SampleSite site;
    QTemporaryDir folder;
    Settings settings{folder.filePath("settings.ini")};
    k7deval::test::FakeServices services;
    k7deval::test::FixedClock clock{makeDate(2021, 5, 2, 9, 30)};
    MainWindow window{services, clock, settings};

    [[nodiscard]] Operator at(int tab) const
    {
        auto& tabs = *window.findChild<QTabWidget*>("tools");
        tabs.setCurrentIndex(tab);
        return Operator(*tabs.widget(tab));
    }
};

} // namespace

TEST(Mnemonics, NoTwoOnViewShareALetter)
{
    const Program program;
    const auto photograph = [&program](const char* name) {
        Operator(*program.window.window()).photograph(name);
    };
    const Operator drift = program.at(0);
    photograph("window-drift-setup");
    EXPECT_THAT(sharedLetters(program.window), IsEmpty()) << "7-Day, set-up";
    drift.click("cmdNext");
    ASSERT_TRUE(drift.view<QWidget>("cmdPrint").isVisible());
    photograph("window-drift-results");
    EXPECT_THAT(sharedLetters(program.window), IsEmpty()) << "7-Day, results";
    for (const int tab : {1, 2}) {
        const Operator hands = program.at(tab);
        hands.click("cmdCalculate");
        ASSERT_TRUE(hands.view<QWidget>("cmdPrint").isVisible());
        photograph(tab == 1 ? "window-load" : "window-range");
        EXPECT_THAT(sharedLetters(program.window), IsEmpty()) << "tool " << tab;
    }
    static_cast<void>(program.at(3));
    photograph("window-data");
    EXPECT_THAT(sharedLetters(program.window), IsEmpty()) << "data";
}

TEST(Mnemonics, ALetterOfAMenuOpensItFromATool)
{
    const Program program;
    const Operator hands = program.at(0);
    hands.view<QWidget>("txtFromDate").setFocus();
    const Operator window(*program.window.window());
    window.pressMnemonic(Qt::Key_F);
    const QAction* open = program.window.menuBar()->activeAction();
    ASSERT_NE(open, nullptr);
    EXPECT_EQ(open->text(), "&File");
    window.press(Qt::Key_Escape);
}

} // namespace k7deval::workbench::test
