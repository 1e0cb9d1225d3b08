#pragma once

#include "foundation/ArrayFunctions.h"
#include "foundation/DataInterface.h"
#include "foundation/Date.h"
#include "foundation/OrderedMap.h"
#include "foundation/Variant.h"
#include "sevenday/CalLimitRules.h"

#include <cstdint>
#include <optional>
#include <pybind11/pybind11.h>
#include <pybind11/stl.h>
#include <string>
#include <vector>

/// How values pass between Python and the library.
namespace k7deval::python
{

/// A 32-bit integer of a caller; error 6 out of its range.
struct Int32 {
    std::int32_t value = 0;
    operator std::int32_t() const { return value; }
};

/// A 32-bit float of a caller; error 6 out of its range.
struct Float32 {
    float value = 0;
    operator float() const { return value; }
};

/// A text of a caller; error 94 for None.
struct Text {
    std::string value;
};

/// Module that holds the values of pure Python: Error, Empty, NoDate, Single, DI1Params.
pybind11::module_ valuesModule();

/// A naive datetime, a date, or None for the zero date; nothing for any other object. Error 5
/// before the year 100.
std::optional<Date> readDate(pybind11::handle object);
/// As readDate; error 13 for any other object.
Date dateOf(pybind11::handle object);
pybind11::object pythonDate(Date value);

/// The number in an int or in an object that stands for one; nothing for any other object. Error 6
/// out of range.
std::optional<std::int32_t> readInt32(pybind11::handle object);
/// The number in a float or in an object that stands for one, nothing for any other object.
std::optional<double> readDouble(pybind11::handle object);

/// The value that an object stands for. None is Null, a Single or a numpy.float32 a single, an int
/// beyond 32 bits a double. Error 13 for an object that is no plain value.
Variant variantOf(pybind11::handle object);
pybind11::object pythonValue(const Variant& value);

/// The buffer of a vector; nothing for an object without one.
std::optional<pybind11::buffer_info> readBuffer(pybind11::handle object);
/// The integers in a list, a tuple, or a one-dimensional buffer; nothing for any other object.
/// Error 6 for an integer out of range.
std::optional<std::vector<std::int32_t>> readIntegers(pybind11::handle object);

/// The limit rule as a member of the module's enumeration.
pybind11::object pythonLimitRule(CalLimitRulesEnum rule);

} // namespace k7deval::python

namespace pybind11::detail
{

template <> struct type_caster<k7deval::Date> {
    PYBIND11_TYPE_CASTER(k7deval::Date, const_name("datetime.datetime"));
    bool load(handle source, bool)
    {
        const auto date = k7deval::python::readDate(source);
        value = date.value_or(k7deval::Date{});
        return date.has_value();
    }
    static handle cast(k7deval::Date date, return_value_policy, handle)
    {
        return k7deval::python::pythonDate(date).release();
    }
};

template <> struct type_caster<k7deval::python::Int32> {
    PYBIND11_TYPE_CASTER(k7deval::python::Int32, const_name("int"));
    bool load(handle source, bool)
    {
        const auto number = k7deval::python::readInt32(source);
        value = {number.value_or(0)};
        return number.has_value();
    }
};

template <> struct type_caster<k7deval::python::Float32> {
    PYBIND11_TYPE_CASTER(k7deval::python::Float32, const_name("float"));
    bool load(handle source, bool);
};

template <> struct type_caster<k7deval::python::Text> {
    PYBIND11_TYPE_CASTER(k7deval::python::Text, const_name("str"));
    bool load(handle source, bool convert);
};

template <> struct type_caster<k7deval::Variant> {
    PYBIND11_TYPE_CASTER(k7deval::Variant, const_name("object"));
    bool load(handle source, bool)
    {
        value = k7deval::python::variantOf(source);
        return true;
    }
    static handle cast(const k7deval::Variant& variant, return_value_policy, handle)
    {
        return k7deval::python::pythonValue(variant).release();
    }
};

template <> struct type_caster<k7deval::CalLimitRulesEnum> {
    PYBIND11_TYPE_CASTER(k7deval::CalLimitRulesEnum, const_name("CalLimitRulesEnum"));
    static handle cast(k7deval::CalLimitRulesEnum rule, return_value_policy, handle)
    {
        return k7deval::python::pythonLimitRule(rule).release();
    }
};

/// An array of objects: a list, or None for an array that was never sized. Error 91 for None in it.
template <class Item> struct type_caster<k7deval::Array<Item>> {
    PYBIND11_TYPE_CASTER(k7deval::Array<Item>,
                         const_name("list[") + make_caster<Item>::name + const_name("] | None"));
    bool load(handle source, bool convert)
    {
        value = {};
        if (source.is_none())
            return true;
        make_caster<std::vector<Item>> items;
        if (!items.load(source, convert))
            return false;
        value = k7deval::Array<Item>(cast_op<std::vector<Item>&&>(std::move(items)));
        for (const auto& item : value.items())
            static_cast<void>(k7deval::present(item));
        return true;
    }
    static handle cast(const k7deval::Array<Item>& array, return_value_policy policy, handle parent)
    {
        if (!array.isSized())
            return none().release();
        return make_caster<std::vector<Item>>::cast(array.items(), policy, parent);
    }
};

/// A dict in the map's order, a copy.
template <class Key, class Value> struct type_caster<k7deval::OrderedMap<Key, Value>> {
    using Map = k7deval::OrderedMap<Key, Value>;
    PYBIND11_TYPE_CASTER(Map, const_name("dict[") + make_caster<Key>::name + const_name(", ") +
                                  make_caster<Value>::name + const_name("]"));
    static handle cast(const Map& map, return_value_policy, handle)
    {
        dict result;
        for (const auto& [key, item] : map)
            result[pybind11::cast(key)] = pybind11::cast(item);
        return result.release();
    }
};

} // namespace pybind11::detail
