#include "histogram/HistogramToolCases.h"
#include "range/RangeRig.h"

namespace k7deval::test
{

namespace
{

/// GT1's NOX on a range of 100.
struct RangeOfAHundred : RangeRig {
    RangeOfAHundred() : RangeRig(siteOfTwoUnits()) { range("100"); }
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Range, HistogramToolCases, RangeOfAHundred);

} // namespace k7deval::test
