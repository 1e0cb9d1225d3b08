#pragma once

#include "screen/Container.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace k7deval::screen
{

/// Colours as 0xBBGGRR; from 0x80000000 on they name a colour of the desktop.
using Color = std::uint32_t;
namespace color
{
inline constexpr Color kBlack = 0x000000;
inline constexpr Color kRed = 0x0000FF;
inline constexpr Color kWhite = 0xFFFFFF;
inline constexpr Color kDesktop = 0x80000001;
inline constexpr Color kWindow = 0x80000005;
inline constexpr Color kButtonFace = 0x8000000F;
inline constexpr Color kLight3D = 0x80000016;
} // namespace color

/// The colour as property lists show it, "0x00BBGGRR".
std::string colorText(Color value);

enum class Alignment { Left, Right, Centre };

class Label final : public Widget
{
public:
    Label(Container& parent, std::string name, std::string caption = {});
    /// A label that the control places itself.
    Label(Container& parent, std::string name, std::string caption, const Geometry& place,
          screen::Alignment alignment = screen::Alignment::Left);

    [[nodiscard]] const std::string& Caption() const { return caption_; }
    void SetCaption(std::string caption);
    [[nodiscard]] Color ForeColor() const { return foreColor_; }
    void SetForeColor(Color value) { update(foreColor_, value); }
    [[nodiscard]] Color BackColor() const { return backColor_; }
    void SetBackColor(Color value) { update(backColor_, value); }
    [[nodiscard]] bool Bold() const { return bold_; }
    void SetBold(bool bold) { update(bold_, bold); }
    [[nodiscard]] const std::string& ToolTipText() const { return toolTipText_; }
    void SetToolTipText(std::string text);
    /// Where the caption is aligned within the label.
    [[nodiscard]] screen::Alignment Alignment() const { return alignment_; }

    [[nodiscard]] std::string_view kind() const override { return "Label"; }
    [[nodiscard]] PropertyList Properties() const override;

private:
    std::string caption_;
    Color foreColor_ = color::kBlack;
    Color backColor_ = color::kButtonFace;
    bool bold_ = false;
    std::string toolTipText_;
    screen::Alignment alignment_ = screen::Alignment::Left;
};

/// The pictures of a tree and of legends, by key. The background is what a picture is blended with
/// when it is taken out.
class ImageList final : public Widget
{
public:
    ImageList(Container& parent, std::string name, std::vector<std::string> keys);

    [[nodiscard]] const std::vector<std::string>& Keys() const { return keys_; }
    [[nodiscard]] Color BackColor() const { return backColor_; }
    void SetBackColor(Color value) { update(backColor_, value); }

    [[nodiscard]] std::string_view kind() const override { return "ImageList"; }
    [[nodiscard]] PropertyList Properties() const override;

private:
    std::vector<std::string> keys_;
    Color backColor_ = color::kButtonFace;
};

/// One picture of an image list, on the background that the list had when it was taken.
class Image final : public Widget
{
public:
    Image(Container& parent, std::string name);

    [[nodiscard]] const std::string& Picture() const { return picture_; }
    [[nodiscard]] Color BackColor() const { return backColor_; }
    /// Error 5 for a key that the list does not have.
    void SetPicture(const ImageList& list, const std::string& key);

    [[nodiscard]] std::string_view kind() const override { return "Image"; }
    [[nodiscard]] PropertyList Properties() const override;

private:
    std::string picture_;
    Color backColor_ = color::kButtonFace;
};

} // namespace k7deval::screen
