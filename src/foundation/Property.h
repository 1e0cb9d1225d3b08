#pragma once

#include "foundation/Date.h"

#include <any>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// What widgets, evaluations and records tell of themselves by name, so that they can be listed
/// without being known: as JSON, to scripts, in tests.
namespace k7deval
{

struct Property;
using PropertyList = std::vector<Property>;

struct PropertyValue;
using PropertyValues = std::vector<PropertyValue>;

/// Values by key, in their order.
struct PropertyEntry;
using PropertyMap = std::vector<PropertyEntry>;

/// A choice by its number, and the enumeration that the number belongs to.
struct PropertyChoice {
    std::string_view type;
    std::int32_t number = 0;
};

/// A record that is shared with whoever holds it.
struct PropertyRecord {
    std::any handle; ///< The std::shared_ptr to it.
    std::function<PropertyList()> describe;
};

/// What stands in one property. Nothing stands for an absent object, an array never sized, and a
/// number that can't be worked out.
struct PropertyValue {
    std::variant<std::monostate, bool, std::int32_t, float, std::string, Date, PropertyChoice,
                 PropertyRecord, PropertyValues, PropertyMap, PropertyList>
        value;
};

/// One value of a map, and its key: a number or a text.
struct PropertyEntry {
    std::variant<std::int32_t, std::string> key;
    PropertyValue item;
};

/// What kind of values a property has, also while it has none.
struct PropertyType {
    enum class Kind { Truth, Integer, Single, Text, Time, Choice, Record, List, Map };
    Kind kind = Kind::Text;
    bool mayBeAbsent = false;
    std::string_view name = {};           ///< Of the enumeration, or of the record's class.
    std::vector<PropertyType> parts = {}; ///< A list's items; a map's keys and its items.
};

/// A property by its name.
struct Property {
    std::string name;
    PropertyValue content;
    std::string_view meaning = {};    ///< A sentence, where the name does not say it.
    PropertyType (*type)() = nullptr; ///< Where the content does not say it.
};

} // namespace k7deval
