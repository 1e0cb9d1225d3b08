#pragma once

#include "screen/Widget.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace k7deval::screen
{

/// A widget that holds others.
class Container : public Widget
{
public:
    using Widget::Widget;

    [[nodiscard]] const std::vector<Widget*>& Children() const { return children_; }

private:
    friend class Widget;
    void adopt(Widget& child) { children_.push_back(&child); }

    std::vector<Widget*> children_;
};

/// A captioned group of widgets.
class Frame final : public Container
{
public:
    Frame(Container& parent, std::string name, std::string caption);

    [[nodiscard]] const std::string& Caption() const { return caption_; }

    [[nodiscard]] std::string_view kind() const override { return "Frame"; }
    [[nodiscard]] PropertyList Properties() const override;

private:
    std::string caption_;
};

enum class MousePointer : std::int32_t { Default = 0, Hourglass = 11 };

/// A screen, or a page of one: what a host embeds and a view shows.
class Control : public Container
{
public:
    /// A screen of its own.
    explicit Control(std::string name);
    /// A page of another screen.
    Control(Container& parent, std::string name);

    [[nodiscard]] screen::MousePointer MousePointer() const { return mousePointer_; }

    /// The control's widgets in the order in which they were made, those in frames after their
    /// frame. A page is listed as one widget; ask the page for its own.
    [[nodiscard]] std::vector<Widget*> widgets() const;
    /// The widget of that name, or null.
    [[nodiscard]] Widget* Find(std::string_view name) const;

    [[nodiscard]] std::string_view kind() const override { return "Control"; }
    /// Holds the entry "Widgets": each widget by its name with its kind and properties.
    [[nodiscard]] PropertyList Properties() const override;
    /// What the control worked out and keeps beside its widgets: sets of results by name, or
    /// results of their own. Each says its type and what it means.
    [[nodiscard]] virtual PropertyList results() const { return {}; }

protected:
    void SetMousePointer(screen::MousePointer pointer) { update(mousePointer_, pointer); }

private:
    screen::MousePointer mousePointer_ = screen::MousePointer::Default;
};

} // namespace k7deval::screen
