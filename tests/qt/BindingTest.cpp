#include "qt/Binding.h"
#include "foundation/Error.h"
#include "qt/Operator.h"
#include "qt/Texts.h"

#include <gmock/gmock.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <optional>

namespace k7deval::qt::test
{

namespace
{

/// A screen with a field, a list to type in, a box and a button, which counts what it hears.
struct Screen : screen::Control {
    Screen() : Control("screen")
    {
        list.addItem("one");
        list.addItem("two");
        list.Picked.Connect([this] { ++picks; });
        list.TextChanged.Connect([this] { ++typings; });
        field.TextChanged.Connect([this] { ++changes; });
        field.Validate.Connect([this] { ++leavings; });
        box.Clicked.Connect([this] { ++clicks; });
        button.Clicked.Connect([this] {
            ++presses;
            if (failure)
                throw Error(*failure);
        });
    }

    screen::TextBox field{*this, "field", 4};
    screen::ComboBox list{*this, "list", screen::EditField::Yes};
    screen::CheckBox box{*this, "box", "Box"};
    screen::Button button{*this, "button", "Salt & Pepper"};
    int picks = 0;
    int typings = 0;
    int changes = 0;
    int leavings = 0;
    int clicks = 0;
    int presses = 0;
    std::optional<Error> failure;
};

struct View : QWidget {
    explicit View(Screen& screen)
    {
        auto* column = new QVBoxLayout(this);
        column->addWidget(makeView(*this, screen.field));
        column->addWidget(makeView(*this, screen.list));
        column->addWidget(makeView(*this, screen.box));
        column->addWidget(makeView(*this, screen.button, 'p'));
    }
};

struct Rig {
    Screen screen;
    View view{screen};
    Operator hands{view};
};

struct Binding : testing::Test, Rig {
};

} // namespace

TEST_F(Binding, AChangeByCodeIsNoActionOfTheUser)
{
    screen.field.SetText("code");
    screen.list.SetListIndex(1);
    screen.box.setChecked(true);
    settle();
    EXPECT_EQ(hands.view<QLineEdit>("field").text(), "code");
    EXPECT_EQ(hands.view<QComboBox>("list").currentIndex(), 1);
    EXPECT_TRUE(hands.view<QCheckBox>("box").isChecked());
    EXPECT_EQ(screen.changes, 1);
    EXPECT_EQ(screen.picks, 1);
    EXPECT_EQ(screen.typings, 0);
    EXPECT_EQ(screen.clicks, 1);
}

TEST_F(Binding, EachKeyIsTypedOnce)
{
    hands.type("field", "12345");
    EXPECT_EQ(screen.field.Text(), "1234");
    EXPECT_EQ(screen.changes, 4);
    EXPECT_EQ(screen.leavings, 0);
    hands.press(Qt::Key_Tab);
    EXPECT_EQ(screen.leavings, 1);
}

TEST_F(Binding, APickOfTheSameEntryIsAPick)
{
    screen.list.SetListIndex(1);
    auto& list = hands.view<QComboBox>("list");
    list.showPopup();
    settle();
    QTest::keyClick(list.view(), Qt::Key_Return);
    settle();
    EXPECT_EQ(screen.picks, 2);
}

TEST_F(Binding, TheWheelPicksOnlyInTheListThatTheUserIsIn)
{
    screen.list.SetListIndex(0);
    auto& list = hands.view<QComboBox>("list");
    const auto turn = [&list] {
        const QPointF middle = list.rect().center();
        QWheelEvent wheel(middle, list.mapToGlobal(middle), {}, {0, -120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&list, &wheel);
    };
    hands.view<QLineEdit>("field").setFocus();
    turn();
    EXPECT_EQ(screen.list.ListIndex(), 0);
    list.setFocus();
    turn();
    EXPECT_EQ(screen.list.ListIndex(), 1);
    EXPECT_EQ(screen.picks, 2);
}

TEST_F(Binding, TypingTheTextOfAnEntryIsNoPick)
{
    hands.enter("list", "two");
    EXPECT_EQ(screen.list.Text(), "two");
    EXPECT_EQ(screen.list.ListIndex(), -1);
    EXPECT_EQ(hands.view<QComboBox>("list").currentIndex(), -1);
    EXPECT_EQ(screen.picks, 0);
    EXPECT_EQ(screen.typings, 3);
}

TEST_F(Binding, TypingIntoTheTextOfAnEntryKeepsTheCursor)
{
    screen.list.SetListIndex(1);
    auto& list = hands.view<QComboBox>("list");
    list.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&list, Qt::Key_Home);
    QTest::keyClicks(&list, "12");
    EXPECT_EQ(screen.list.Text(), "12two");
    EXPECT_EQ(screen.list.ListIndex(), -1);
}

TEST_F(Binding, TypingInTheMiddleOfAFieldKeepsTheCursor)
{
    screen.field.SetText("ad");
    auto& field = hands.view<QLineEdit>("field");
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_Home);
    QTest::keyClick(&field, Qt::Key_Right);
    QTest::keyClicks(&field, "bc");
    EXPECT_EQ(screen.field.Text(), "abcd");
}

TEST_F(Binding, ATextByCodeMayBeLongerThanWhatCanBeTyped)
{
    screen.field.SetText("123456");
    EXPECT_EQ(hands.view<QLineEdit>("field").text(), "123456");
    hands.type("field", "98765");
    EXPECT_EQ(screen.field.Text(), "9876");
}

TEST_F(Binding, ShowsWhatTheModelMadeOfAPress)
{
    // The model goes back on the user.
    screen.box.Clicked.Connect([this] { screen.box.setChecked(false); });
    hands.click("box");
    EXPECT_FALSE(hands.view<QCheckBox>("box").isChecked());
}

TEST_F(Binding, TellsAFailureByNumberAndDescription)
{
    screen.failure = Error(381);
    EXPECT_EQ(told([&] { hands.click("button"); }), "Error 381: Invalid property array index");
}

TEST_F(Binding, AMnemonicPressesTheButton)
{
    EXPECT_EQ(hands.view<QPushButton>("button").text(), "Salt && &Pepper");
    hands.pressMnemonic(Qt::Key_P);
    EXPECT_EQ(screen.presses, 1);
}

TEST(BindingAlone, TheModelOutlivesItsView)
{
    Screen screen;
    {
        const View view(screen);
    }
    screen.field.SetText("on");
    screen.list.clear();
    screen.button.SetEnabled(false);
    EXPECT_EQ(screen.changes, 1);
}

TEST(BindingAlone, AViewMayCloseWhileItsButtonIsPressed)
{
    Screen screen;
    auto view = std::make_unique<View>(screen);
    screen.button.Clicked.Connect([&view] { view.release()->deleteLater(); });
    Operator(*view).click("button");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(screen.presses, 1);
}

TEST(BindingAlone, AMnemonicIsALetterOfTheCaption)
{
    EXPECT_EQ(withMnemonic("Unit:", 'U'), "&Unit:");
    EXPECT_EQ(withMnemonic("Show PID", 'd'), "Show PI&D");
    EXPECT_EQ(withMnemonic("A & B", 0), "A && B");
    EXPECT_EQ(withMnemonic("Unit:", 'x'), "Unit:");
}

} // namespace k7deval::qt::test
