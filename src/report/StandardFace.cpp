#include "report/StandardFace.h"

#include "report/CharacterCodes.h"
#include "report/ReportFace.h"

#include <hpdf.h>

#include <cstddef>
#include <memory>
#include <new>
#include <type_traits>

namespace k7deval
{

namespace
{

struct FreeDocument {
    void operator()(HPDF_Doc document) const { HPDF_Free(document); }
};
using Document = std::unique_ptr<std::remove_pointer_t<HPDF_Doc>, FreeDocument>;

// The line metrics of all three faces. The extents that the faces state themselves are those of
// letters without accents: rows set by these would touch.
constexpr int kAscender = 905;
constexpr int kDescender = -212;

constexpr std::size_t kHyphen = 0x2D;
constexpr std::size_t kSoftHyphen = 0xAD;

std::array<int, 256> advances(HPDF_Font font)
{
    std::array<int, 256> advance{};
    for (std::size_t byte = 0; byte < advance.size(); ++byte) {
        if (const auto character = ofWindows1252(static_cast<unsigned char>(byte)))
            advance.at(byte) =
                HPDF_Font_GetUnicodeWidth(font, static_cast<HPDF_UNICODE>(*character));
    }
    // The encoding draws a soft hyphen as a hyphen; the library does not know its width.
    advance.at(kSoftHyphen) = advance.at(kHyphen);
    return advance;
}

} // namespace

StandardFace StandardFace::ofCode(std::int32_t fontCode)
{
    const Document document(HPDF_New(nullptr, nullptr));
    HPDF_Font font =
        HPDF_GetFont(document.get(), ReportFace::ofCode(fontCode).standardName, "WinAnsiEncoding");
    if (font == nullptr)
        throw std::bad_alloc();
    return {kAscender, kDescender, advances(font)};
}

} // namespace k7deval
