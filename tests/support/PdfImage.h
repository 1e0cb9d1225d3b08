#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace k7deval::test
{

/// A rendered PDF page.
class PdfImage
{
public:
    struct Pixel {
        std::uint8_t red = 0;
        std::uint8_t green = 0;
        std::uint8_t blue = 0;

        bool operator==(const Pixel&) const = default;
        [[nodiscard]] int brightness() const { return (red + green + blue) / 3; }
    };

    /// Renders a page of a PDF file, the first one being 1, with `scale` pixels a point.
    static PdfImage render(const std::string& path, int page = 1, int scale = 4);

    /// The colour at a point of the page: points from the bottom left corner.
    [[nodiscard]] Pixel at(double x, double y) const;
    /// The brightness of the darkest pixel in a box on the page: 0 for black, 255 for white.
    [[nodiscard]] int darkest(double left, double bottom, double right, double top) const;

private:
    [[nodiscard]] std::size_t column(double x) const;
    [[nodiscard]] std::size_t row(double y) const;

    PdfImage(std::size_t width, std::size_t height, int scale, std::vector<Pixel> pixels);

    std::size_t width_;
    std::size_t height_;
    int scale_;
    std::vector<Pixel> pixels_;
};

} // namespace k7deval::test
