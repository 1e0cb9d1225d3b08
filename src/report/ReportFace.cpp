#include "report/ReportFace.h"

#include "foundation/Error.h"

#include <algorithm>
#include <array>

namespace k7deval
{

const ReportFace& ReportFace::ofCode(std::int32_t code)
{
    static constexpr std::array<ReportFace, 3> kFaces{{
        {kBodyFont, "Helvetica", &FontFiles::body, false, false},
        {kHeadingFont, "Helvetica-Bold", &FontFiles::title, true, false},
        {kFooterFont, "Helvetica-Oblique", &FontFiles::footer, false, true},
    }};
    const auto* const face = std::find_if(kFaces.begin(), kFaces.end(),
                                          [code](const ReportFace& f) { return f.code == code; });
    if (face == kFaces.end())
        throw Error(errors::kInvalidCall);
    return *face;
}

} // namespace k7deval
