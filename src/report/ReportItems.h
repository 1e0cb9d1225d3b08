#pragma once

#include "report/FontSet.h"
#include "report/ReportFace.h"

#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <utility>

namespace k7deval
{

/// The points themselves. Error 5 if they are infinite or no number at all, which a PDF file has no
/// way to write.
[[nodiscard]] float finitePoints(float points);

/// A text on a report page, drawn as one line. Coordinates are points from the bottom left corner
/// of the page, x to the right and y upward.
class ReportTextItem
{
public:
    static constexpr std::int32_t kReadsUpward = 2; ///< Of `Orientation`.

    ReportTextItem(std::string text, std::shared_ptr<const FontSet> fonts);

    [[nodiscard]] const std::string& Text() const { return text_; }
    /// A line break or a tab is drawn and measured as one blank; the text keeps what was set.
    void SetText(std::string text) { text_ = std::move(text); }

    [[nodiscard]] std::int32_t Font() const { return font_; }
    /// `kBodyFont`, `kHeadingFont` or `kFooterFont`. Any other code: error 5.
    void SetFont(std::int32_t code);

    [[nodiscard]] float Size() const { return size_; }
    /// Font size in points. Not above zero: error 5.
    void SetSize(float points);

    /// Left edge; of a text that reads upward, its lower edge, which is the right one on the page.
    [[nodiscard]] float X() const { return x_; }
    void SetX(float x) { x_ = finitePoints(x); }
    /// Lower edge; of a text that reads upward, where it starts.
    [[nodiscard]] float Y() const { return y_; }
    void SetY(float y) { y_ = finitePoints(y); }

    [[nodiscard]] std::int32_t Orientation() const { return orientation_; }
    /// `kReadsUpward` turns the text; with any other number it reads horizontally.
    void SetOrientation(std::int32_t orientation) { orientation_ = orientation; }

    /// Length of the text in points at its present text, font and size, whether placed or not.
    [[nodiscard]] float Width() const;
    /// Height of a line in the face that draws the text, in points.
    [[nodiscard]] float Height() const;

    [[nodiscard]] bool readsUpward() const { return orientation_ == kReadsUpward; }
    /// With which faces the text is drawn.
    [[nodiscard]] TextLayout layout() const { return fonts_->layout(text_, font_); }

private:
    std::shared_ptr<const FontSet> fonts_;
    std::string text_;
    std::int32_t font_ = kBodyFont;
    float size_ = kBodySize;
    float x_ = 0;
    float y_ = 0;
    std::int32_t orientation_ = 0;
};

/// A straight black line on a report page.
class ReportLine
{
public:
    static constexpr double kThickness = 0.5;  ///< Points.
    static constexpr std::int32_t kDashed = 3; ///< Of `Style`.
    /// What a dashed line repeats, in points.
    static constexpr int kDashDrawn = 1;
    static constexpr int kDashLeftOut = 2;

    [[nodiscard]] float X1() const { return x1_; }
    void SetX1(float x) { x1_ = finitePoints(x); }
    [[nodiscard]] float Y1() const { return y1_; }
    void SetY1(float y) { y1_ = finitePoints(y); }
    [[nodiscard]] float X2() const { return x2_; }
    void SetX2(float x) { x2_ = finitePoints(x); }
    [[nodiscard]] float Y2() const { return y2_; }
    void SetY2(float y) { y2_ = finitePoints(y); }

    [[nodiscard]] std::int32_t Style() const { return style_; }
    /// `kDashed` for a dashed line; with any other number the line is solid.
    void SetStyle(std::int32_t style) { style_ = style; }
    [[nodiscard]] bool isDashed() const { return style_ == kDashed; }

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
    void SetX(float x) { x_ = finitePoints(x); }
    [[nodiscard]] float Y() const { return y_; }
    void SetY(float y) { y_ = finitePoints(y); }
    [[nodiscard]] float Width() const { return width_; }
    void SetWidth(float width) { width_ = finitePoints(width); }
    [[nodiscard]] float Height() const { return height_; }
    void SetHeight(float height) { height_ = finitePoints(height); }

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

    /// A new text in the face and size of body text.
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
