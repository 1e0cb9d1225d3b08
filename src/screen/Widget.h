#pragma once

#include "foundation/Property.h"
#include "screen/Event.h"

#include <string>
#include <string_view>

namespace k7deval::screen
{

class Container;

/// A place on the screen in twips, 15 to a pixel. All 0 where the control leaves the layout to its
/// view.
struct Geometry {
    float Left = 0;
    float Top = 0;
    float Width = 0;
    float Height = 0;
    friend bool operator==(const Geometry&, const Geometry&) = default;
};

/// What all constituents of a screen have in common. A widget belongs to the control or frame that
/// it was made in, and lives as long as it.
///
/// Setters are for the control's own code; the actions of a user (Press, Pick, Type, ...) are
/// members of their own and do nothing on a widget that the user cannot reach.
class Widget
{
public:
    Widget(Container* parent, std::string name);
    virtual ~Widget() = default;
    Widget(const Widget&) = delete;
    Widget& operator=(const Widget&) = delete;

    [[nodiscard]] const std::string& Name() const { return name_; }
    [[nodiscard]] bool Visible() const { return visible_; }
    void SetVisible(bool visible);
    [[nodiscard]] bool Enabled() const { return enabled_; }
    void SetEnabled(bool enabled);
    [[nodiscard]] const Geometry& place() const { return place_; }
    void setPlace(const Geometry& place);
    /// Moves the widget without changing its size.
    void move(float left, float top);

    /// What holds the widget; null for a screen of its own.
    [[nodiscard]] Container* parent() const { return parent_; }
    /// Whether a user can act on it: it and everything around it are visible and enabled.
    [[nodiscard]] bool isReachable() const;

    /// The kind of widget, such as "ComboBox".
    [[nodiscard]] virtual std::string_view kind() const = 0;
    /// Everything that the widget holds, by name.
    [[nodiscard]] virtual PropertyList Properties() const;

    /// Something that a view mirrors has changed.
    Event<> Changed;

protected:
    /// Stores a value and raises Changed when it differs from the old one. True when it did.
    template <class T> bool update(T& field, T value)
    {
        if (field == value)
            return false;
        field = std::move(value);
        Changed.raise();
        return true;
    }

private:
    Container* parent_;
    std::string name_;
    bool visible_ = true;
    bool enabled_ = true;
    Geometry place_;
};

} // namespace k7deval::screen
