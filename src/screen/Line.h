#pragma once

#include "screen/Container.h"

#include <string>
#include <string_view>

namespace k7deval::screen
{

/// The ends of a line, in twips within what it lies in.
struct LineEnds {
    float X1 = 0;
    float Y1 = 0;
    float X2 = 0;
    float Y2 = 0;
    friend bool operator==(const LineEnds&, const LineEnds&) = default;
};

enum class LineStyle { Solid, Dotted };

/// A straight line. Its place is the box between its ends.
class Line final : public Widget
{
public:
    Line(Container& parent, std::string name, const LineEnds& ends,
         LineStyle style = LineStyle::Solid);

    [[nodiscard]] float X1() const { return ends_.X1; }
    [[nodiscard]] float Y1() const { return ends_.Y1; }
    [[nodiscard]] float X2() const { return ends_.X2; }
    [[nodiscard]] float Y2() const { return ends_.Y2; }
    [[nodiscard]] LineStyle Style() const { return style_; }

    [[nodiscard]] std::string_view kind() const override { return "Line"; }
    [[nodiscard]] PropertyList Properties() const override;

private:
    LineEnds ends_;
    LineStyle style_;
};

} // namespace k7deval::screen
