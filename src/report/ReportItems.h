#pragma once

#include "report/FontCodes.h"
#include "report/FontSet.h"

#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <utility>

namespace k7deval
{

/// A text on a report page, drawn as one line. Coordinates are points from the bottom left corner
/// of the page, x to the right and y upward.
class ReportTextItem
{
public:
    ReportTextItem(std::string text, std::shared_ptr<const FontSet> fonts);

    [[nodiscard]] const std::string& Text() const { return text_; }
    /// A line break or a tab is drawn and measured as one blank; the text keeps what was set.
    void SetText(std::string text) { text_ = std::move(text); }

    [[nodiscard]] std::int32_t Font() const { return font_; }
    /// 5 for body text, 6 for titles and what must stand out, 7 for footers. Any other code:
    /// error 5.
    void SetFont(std::int32_t code);

    [[nodiscard]] float Size() const { return size_; }
    /// Font size in points. Not above zero: error 5.
    void SetSize(float points);

    /// Left edge; of a text that reads upward, its lower edge, which is the right one on the page.
    [[nodiscard]] float X() const { return x_; }
    void SetX(float x);
    /// Lower edge; of a text that reads upward, where it starts.
    [[nodiscard]] float Y() const { return y_; }
    void SetY(float y);

    [[nodiscard]] std::int32_t Orientation() const { return orientation_; }
    /// 2 turns the text to read upward; with any other number it reads horizontally.
    void SetOrientation(std::int32_t orientation) { orientation_ = orientation; }

    /// Length of the text in points at its present text, font and size, whether placed or not.
    [[nodiscard]] float Width() const;
    /// From the descender to the ascender of the face that draws the text, in points.
    [[nodiscard]] float Height() const;

    [[nodiscard]] bool readsUpward() const { return orientation_ == 2; }
    /// With which faces the text is drawn.
    [[nodiscard]] TextLayout layout() const { return fonts_->layout(text_, font_); }

private:
    std::shared_ptr<const FontSet> fonts_;
    std::string text_;
    std::int32_t font_ = kBodyFont;
    float size_ = 10;
    float x_ = 0;
    float y_ = 0;
    std::int32_t orientation_ = 0;
};

/// A straight black line on a report page, 0.5 points wide.
class ReportLine
{
public:
    [[nodiscard]] float X1() const { return x1_; }
    void SetX1(float x);
    [[nodiscard]] float Y1() const { return y1_; }
    void SetY1(float y);
    [[nodiscard]] float X2() const { return x2_; }
    void SetX2(float x);
    [[nodiscard]] float Y2() const { return y2_; }
    void SetY2(float y);

    [[nodiscard]] std::int32_t Style() const { return style_; }
    /// 3 for a dashed line, 1 point drawn and 2 left out; with any other number the line is solid.
    void SetStyle(std::int32_t style) { style_ = style; }
    [[nodiscard]] bool isDashed() const { return style_ == 3; }

private:
    float x1_ = 0;
    float y1_ = 0;
    float x2_ = 0;
    float y2_ = 0;
    std::int32_t style_ = 0;
};

/// A filled box on a report page. It lies under the lines and texts of the page, whichever came
/// first.
class ReportRectangle
{
public:
    [[nodiscard]] float X() const { return x_; }
    void SetX(float x);
    [[nodiscard]] float Y() const { return y_; }
    void SetY(float y);
    [[nodiscard]] float Width() const { return width_; }
    void SetWidth(float width);
    [[nodiscard]] float Height() const { return height_; }
    void SetHeight(float height);

    /// Colours are 0xBBGGRR; higher bits count for nothing.
    [[nodiscard]] std::int32_t FillColor() const { return fillColor_; }
    void SetFillColor(std::int32_t color) { fillColor_ = color; }
    [[nodiscard]] std::int32_t LineColor() const { return lineColor_; }
    void SetLineColor(std::int32_t color) { lineColor_ = color; }

private:
    float x_ = 0;
    float y_ = 0;
    float width_ = 0;
    float height_ = 0;
    std::int32_t fillColor_ = 0;
    std::int32_t lineColor_ = 0;
};

/// Items in the order in which they were added. A reference to an item stays valid as more are
/// added.
template <class Item> class ReportCollection
{
public:
    [[nodiscard]] std::int32_t Count() const { return static_cast<std::int32_t>(items_.size()); }

    [[nodiscard]] auto begin() { return items_.begin(); }
    [[nodiscard]] auto end() { return items_.end(); }
    [[nodiscard]] auto begin() const { return items_.begin(); }
    [[nodiscard]] auto end() const { return items_.end(); }

protected:
    ReportCollection() = default;

    template <class... Arguments> Item& addItem(Arguments&&... arguments)
    {
        return items_.emplace_back(std::forward<Arguments>(arguments)...);
    }

private:
    std::deque<Item> items_;
};

class ReportTextItems : public ReportCollection<ReportTextItem>
{
public:
    explicit ReportTextItems(std::shared_ptr<const FontSet> fonts) : fonts_(std::move(fonts)) {}

    /// A new text in font 5 at 10 points.
    ReportTextItem& Add(std::string text = {}) { return addItem(std::move(text), fonts_); }

private:
    std::shared_ptr<const FontSet> fonts_;
};

class ReportLines : public ReportCollection<ReportLine>
{
public:
    ReportLine& Add() { return addItem(); }
};

class ReportRectangles : public ReportCollection<ReportRectangle>
{
public:
    ReportRectangle& Add() { return addItem(); }
};

} // namespace k7deval
