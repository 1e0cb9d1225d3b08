#include "histogram/HistogramToolCases.h"
#include "load/LoadRig.h"

namespace k7deval::test
{

INSTANTIATE_TYPED_TEST_SUITE_P(Load, HistogramToolCases, LoadRig);

} // namespace k7deval::test
