#include "report/UsedFonts.h"

#include <algorithm>

namespace k7deval
{

namespace
{

bool draws(const UsedFont& font, const TextRun& run, int fontCode)
{
    if (run.face == nullptr)
        return font.fontCode == fontCode;
    return font.embedded && &font.embedded->face() == run.face;
}

} // namespace

UsedFont& UsedFonts::fontOf(const TextRun& run, int fontCode)
{
    const auto known = std::find_if(fonts_.begin(), fonts_.end(), [&](const UsedFont& font) {
        return draws(font, run, fontCode);
    });
    if (known != fonts_.end())
        return *known;
    UsedFont& font = fonts_.emplace_back();
    font.resourceName = "F" + std::to_string(fonts_.size());
    if (run.face == nullptr)
        font.fontCode = fontCode;
    else
        font.embedded.emplace(*run.face);
    return font;
}

} // namespace k7deval
