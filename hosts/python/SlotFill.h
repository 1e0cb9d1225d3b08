#pragma once

#include "foundation/DIDataSet.h"

#include <pybind11/pybind11.h>

namespace k7deval::python
{

/// Fills all slots of a set: numbers (NaN or None is Null) and status words, each from a buffer of
/// one dimension or from any sequence. Error 5 when there are more or fewer than slots, 6 for a
/// status word beyond 32 bits, 13 for entries of another kind.
void fillSlots(DIDataSet& set, pybind11::handle values, pybind11::handle statuses);

} // namespace k7deval::python
