#pragma once

#include "screen/Container.h"

#include <pybind11/pybind11.h>

namespace k7deval::python
{

/// Gives the class of a control an attribute for each widget and each result that a sample of it
/// tells of. Widgets are live objects, found by name; an array of widgets, whose elements are
/// called "lblBar(0)" and so on, is a list. What the class has already stays.
void bindMembers(const pybind11::object& controlClass, screen::Control& sample);

} // namespace k7deval::python
