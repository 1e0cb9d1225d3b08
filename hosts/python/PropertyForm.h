#pragma once

#include "foundation/Property.h"

#include <pybind11/pybind11.h>
#include <string>

namespace k7deval::python
{

/// What stands in a property: None for nothing, a copy of a list or a map, of a record the live
/// object.
pybind11::object pythonForm(const PropertyValue& content);

/// A type as Python's annotations write it, such as "dict[str, clsDaySummary]".
std::string typeText(const PropertyType& type);

} // namespace k7deval::python
