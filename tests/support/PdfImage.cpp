#include "support/PdfImage.h"

#include "support/RunTool.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace k7deval::test
{

PdfImage::PdfImage(std::size_t width, std::size_t height, int scale, std::vector<Pixel> pixels)
    : width_(width), height_(height), scale_(scale), pixels_(std::move(pixels))
{
}

PdfImage PdfImage::render(const std::string& path, int page, int scale)
{
    constexpr int kPointsPerInch = 72;
    const std::string number = std::to_string(page);
    const std::string data = runTool({"pdftoppm", "-f", number, "-l", number, "-r",
                                      std::to_string(kPointsPerInch * scale), path});
    std::istringstream stream(data);
    std::string mark;
    std::size_t width = 0;
    std::size_t height = 0;
    int brightest = 0;
    stream >> mark >> width >> height >> brightest;
    stream.get();
    if (mark != "P6" || brightest != 255)
        throw std::runtime_error("pdftoppm printed no image of " + path);
    const std::size_t start = static_cast<std::size_t>(stream.tellg());
    const auto byte = [&](std::size_t index) { return static_cast<std::uint8_t>(data.at(index)); };
    std::vector<Pixel> pixels;
    pixels.reserve(width * height);
    for (std::size_t index = start; index < start + 3 * width * height; index += 3)
        pixels.push_back({byte(index), byte(index + 1), byte(index + 2)});
    return {width, height, scale, std::move(pixels)};
}

std::size_t PdfImage::column(double x) const
{
    const auto column = static_cast<std::size_t>(x * scale_);
    if (x < 0 || column >= width_)
        throw std::runtime_error("a point outside of the page");
    return column;
}

// The rows of the image go downward.
std::size_t PdfImage::row(double y) const
{
    const auto fromBottom = static_cast<std::size_t>(y * scale_);
    if (y < 0 || fromBottom >= height_)
        throw std::runtime_error("a point outside of the page");
    return height_ - 1 - fromBottom;
}

PdfImage::Pixel PdfImage::at(double x, double y) const
{
    return pixels_[row(y) * width_ + column(x)];
}

int PdfImage::darkest(double left, double bottom, double right, double top) const
{
    int darkest = 255;
    for (std::size_t y = row(top); y <= row(bottom); ++y) {
        for (std::size_t x = column(left); x <= column(right); ++x)
            darkest = std::min(darkest, pixels_[y * width_ + x].brightness());
    }
    return darkest;
}

} // namespace k7deval::test
