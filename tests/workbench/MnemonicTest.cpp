#include "workbench/Workbench.h"

#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QGroupBox>

#include <map>
#include <string>
#include <vector>

namespace k7deval::workbench::test
{

namespace
{

using qt::test::Operator;
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

} // namespace

TEST(Mnemonics, NoTwoOnViewShareALetter)
{
    Workbench rig;
    rig.window.resize(1366, 768);
    const auto look = [&rig](const char* name) {
        Operator(*rig.window.window()).photograph(name);
        EXPECT_THAT(sharedLetters(rig.window), IsEmpty()) << name;
    };
    const Operator drift = rig.at(0);
    look("window-drift-setup");
    drift.click("cmdNext");
    ASSERT_TRUE(drift.view<QWidget>("cmdPrint").isVisible());
    look("window-drift-results");
    for (const int tab : {1, 2}) {
        rig.at(tab).click("cmdCalculate");
        ASSERT_TRUE(rig.at(tab).view<QWidget>("cmdPrint").isVisible());
        look(tab == 1 ? "window-load" : "window-range");
    }
    static_cast<void>(rig.at(3));
    look("window-data");
}

TEST(Mnemonics, TheTabulatorGoesRoundTheWindow)
{
    Workbench rig;
    const Operator drift = rig.at(0);
    drift.click("cmdNext");
    EXPECT_EQ(drift.walk("cmdPrint").mid(0, 5),
              QStringList({"cmdPrint", "cmdPrintPreview", "chkPreview", "cmdBack", "cmdSave"}));
    const Operator load = rig.at(1);
    load.click("cmdCalculate");
    const QStringList way = load.walk("cmdCalculate");
    EXPECT_EQ(way.mid(0, 6), QStringList({"cmdCalculate", "cmdSave", "chkPreview", "cmdPrint",
                                          "cmdPrintPreview", "cmdClose"}));
    EXPECT_TRUE(way.contains("messages"));
    EXPECT_EQ(way.count("cmbUnit"), 1);
}

TEST(Mnemonics, ALetterOfAMenuOpensItFromATool)
{
    Workbench rig;
    rig.at(0).view<QWidget>("txtFromDate").setFocus();
    const Operator window(*rig.window.window());
    window.pressMnemonic(Qt::Key_F);
    const QAction* open = rig.window.menuBar()->activeAction();
    ASSERT_NE(open, nullptr);
    EXPECT_EQ(open->text(), "&File");
    window.press(Qt::Key_Escape);
}

} // namespace k7deval::workbench::test
