#include "report/FontFiles.h"

#include <string>

namespace k7deval
{

namespace
{

FontFile debian(const std::string& name)
{
    return {"/usr/share/fonts/truetype/" + name};
}

FontFile windows(const std::string& name)
{
    return {"C:/Windows/Fonts/" + name};
}

std::vector<FontFile> uprightFaces()
{
    return {debian("dejavu/DejaVuSans.ttf"),
            debian("droid/DroidSansFallbackFull.ttf"),
            debian("wqy/wqy-zenhei.ttc"),
            debian("wqy/wqy-microhei.ttc"),
            debian("fonts-japanese-gothic.ttf"),
            windows("arial.ttf"),
            windows("msyh.ttc"),
            windows("msgothic.ttc"),
            windows("malgun.ttf"),
            windows("simsun.ttc")};
}

// A face of the wrong weight or slant still says more than a code in brackets.
std::vector<FontFile> withUprightFaces(std::vector<FontFile> preferred)
{
    const auto upright = uprightFaces();
    preferred.insert(preferred.end(), upright.begin(), upright.end());
    return preferred;
}

} // namespace

FontFiles defaultFontFiles()
{
    return {uprightFaces(),
            withUprightFaces({debian("dejavu/DejaVuSans-Bold.ttf"), windows("arialbd.ttf"),
                              windows("msyhbd.ttc"), windows("malgunbd.ttf")}),
            withUprightFaces({debian("dejavu/DejaVuSans-Oblique.ttf"), windows("ariali.ttf")})};
}

} // namespace k7deval
