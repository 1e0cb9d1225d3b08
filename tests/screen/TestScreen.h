#pragma once

#include "screen/Buttons.h"
#include "screen/ComboBox.h"
#include "screen/Container.h"
#include "screen/Label.h"
#include "screen/TextBox.h"
#include "screen/TreeView.h"

namespace k7deval::test
{

/// A page of a screen with one widget of each kind, in a frame.
class TestPage final : public screen::Control
{
public:
    explicit TestPage(screen::Container& parent) : Control(parent, "page") {}

    screen::Frame frame{*this, "frame", "Group"};
    screen::Button button{frame, "button", "Press me"};
    screen::CheckBox checkBox{frame, "checkBox", "Check me"};
    screen::OptionGroup group;
    screen::OptionButton firstOption{frame, group, "firstOption", "First"};
    screen::OptionButton secondOption{frame, group, "secondOption", "Second"};
    screen::TextBox textBox{frame, "textBox", 3};
    screen::ComboBox list{frame, "list"};
    screen::ComboBox combo{frame, "combo", screen::EditField::Yes};
    screen::TreeView tree{frame, "tree"};
};

/// A screen of one page and a label of its own.
class TestScreen final : public screen::Control
{
public:
    TestScreen() : Control("screen") {}

    using Control::SetMousePointer;

    TestPage page{*this};
    screen::Label label{*this, "label", "Ready"};
};

/// Counts how often an event is raised.
class Raised
{
public:
    template <class... Args> explicit Raised(screen::Event<Args...>& event)
    {
        event.Connect([this](Args... /*args*/) { ++count; });
    }
    Raised(const Raised&) = delete;
    Raised& operator=(const Raised&) = delete;
    ~Raised() = default;

    int count = 0;
};

} // namespace k7deval::test
