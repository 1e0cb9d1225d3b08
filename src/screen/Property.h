#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace k7deval::screen
{

struct Property;
using PropertyList = std::vector<Property>;

/// What stands in one property of a widget: a plain value, or a list of them, or a nested set.
struct PropertyValue;
using PropertyValues = std::vector<PropertyValue>;

struct PropertyValue {
    std::variant<bool, std::int32_t, float, std::string, PropertyValues, PropertyList> value;
};

/// A property by its name, so that a whole screen can be listed without knowing its widgets.
struct Property {
    std::string name;
    PropertyValue content;
};

} // namespace k7deval::screen
