#pragma once

#include "foundation/ArrayFunctions.h"
#include "foundation/Error.h"
#include "foundation/OrderedMap.h"
#include "foundation/Property.h"

#include <array>
#include <concepts>
#include <cstddef>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>

/// How the fields of evaluations and records are listed.
namespace k7deval
{

/// The value and the type of a field. An enumeration is named by typeName, a record, which is held
/// by a shared pointer and lists its properties, by its member kTypeName.
template <class T> struct PropertyOf;

template <class T, PropertyType::Kind kind> struct PlainProperty {
    static PropertyType type() { return {kind}; }
    static PropertyValue value(const T& field) { return {field}; }
};
template <> struct PropertyOf<bool> : PlainProperty<bool, PropertyType::Kind::Truth> {
};
template <>
struct PropertyOf<std::int32_t> : PlainProperty<std::int32_t, PropertyType::Kind::Integer> {
};
template <> struct PropertyOf<float> : PlainProperty<float, PropertyType::Kind::Single> {
};
template <> struct PropertyOf<std::string> : PlainProperty<std::string, PropertyType::Kind::Text> {
};
template <> struct PropertyOf<Date> : PlainProperty<Date, PropertyType::Kind::Time> {
};

template <class T>
requires std::is_enum_v<T>
struct PropertyOf<T> {
    static PropertyType type() { return {PropertyType::Kind::Choice, false, typeName(T{})}; }
    static PropertyValue value(T field)
    {
        return {PropertyChoice{typeName(field), static_cast<std::int32_t>(field)}};
    }
};

/// The type of what lies in a list or a map, where no object is absent.
template <class T> PropertyType partType()
{
    PropertyType type = PropertyOf<T>::type();
    type.mayBeAbsent = false;
    return type;
}

template <class Items> PropertyValue listOf(const Items& items)
{
    PropertyValues values;
    for (const auto& item : items)
        values.push_back(PropertyOf<std::remove_cvref_t<decltype(item)>>::value(item));
    return {std::move(values)};
}

template <class T> struct PropertyOf<std::vector<T>> {
    static PropertyType type() { return {PropertyType::Kind::List, false, {}, {partType<T>()}}; }
    static PropertyValue value(const std::vector<T>& items) { return listOf(items); }
};

template <class T, std::size_t n> struct PropertyOf<std::array<T, n>> {
    static PropertyType type() { return PropertyOf<std::vector<T>>::type(); }
    static PropertyValue value(const std::array<T, n>& items) { return listOf(items); }
};

/// Absent while it was never sized.
template <class T> struct PropertyOf<Array<T>> {
    static PropertyType type() { return {PropertyType::Kind::List, true, {}, {partType<T>()}}; }
    static PropertyValue value(const Array<T>& array)
    {
        return array.isSized() ? listOf(array.items()) : PropertyValue{};
    }
};

template <class Key, class Item> struct PropertyOf<OrderedMap<Key, Item>> {
    static PropertyType type()
    {
        return {PropertyType::Kind::Map, false, {}, {partType<Key>(), partType<Item>()}};
    }
    static PropertyValue value(const OrderedMap<Key, Item>& map)
    {
        PropertyMap entries;
        for (const auto& [key, item] : map)
            entries.push_back({key, PropertyOf<Item>::value(item)});
        return {std::move(entries)};
    }
};

template <class T>
concept ListedRecord = requires(const T& record)
{
    {
        record.Properties()
        } -> std::same_as<PropertyList>;
};

template <class T> struct PropertyOf<std::shared_ptr<T>> {
    static PropertyType type()
    {
        if constexpr (ListedRecord<T>) {
            return {PropertyType::Kind::Record, true, T::kTypeName};
        } else {
            PropertyType type = PropertyOf<T>::type();
            type.mayBeAbsent = true;
            return type;
        }
    }
    static PropertyValue value(const std::shared_ptr<T>& object)
    {
        if (!object)
            return {};
        if constexpr (ListedRecord<T>)
            return {PropertyRecord{object, [object] { return object->Properties(); }}};
        else
            return PropertyOf<T>::value(*object);
    }
};

/// A field by its name. The meaning is a text that stays.
template <class T> Property property(std::string name, const T& field, std::string_view meaning)
{
    return {std::move(name), PropertyOf<T>::value(field), meaning, &PropertyOf<T>::type};
}

/// What has to be worked out, or nothing where that fails.
template <class Work> PropertyValue workedOut(Work work)
{
    try {
        return PropertyOf<decltype(work())>::value(work());
    } catch (const Error&) {
        return {};
    }
}

} // namespace k7deval
