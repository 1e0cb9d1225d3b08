#include "report/ReportPage.h"

#include "foundation/Error.h"

namespace k7deval
{

namespace
{

float pageLength(float points)
{
    constexpr float kLeast = 3;
    constexpr float kMost = 14400;
    // Written so that "not a number" is refused too.
    if (!(points >= kLeast && points <= kMost))
        throw Error(errors::kInvalidCall);
    return points;
}

} // namespace

void ReportPage::SetHeight(float points)
{
    height_ = pageLength(points);
}

void ReportPage::SetWidth(float points)
{
    width_ = pageLength(points);
}

} // namespace k7deval
