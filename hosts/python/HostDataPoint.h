#pragma once

#include "foundation/DIDataSet.h"

#include <cstdint>
#include <memory>

namespace k7deval::python
{

/// A slot that keeps its set.
struct HostDataPoint {
    std::shared_ptr<DIDataSet> set;
    std::int32_t index = 0;

    /// Error 9 when the set was prepared anew and has no such slot any more.
    [[nodiscard]] DIDataPoint slot() const { return set->ItemByIndex(index); }
};

} // namespace k7deval::python
