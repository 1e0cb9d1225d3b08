#pragma once

#include "foundation/Date.h"
#include "foundation/RegionalSettings.h"
#include "latebound/NamedObject.h"

#include <cstdint>
#include <memory>
#include <string>

namespace k7deval::latebound
{

/// How texts are read where a number is needed.
using Region = std::shared_ptr<const RegionalSettings>;

/// An object of the host and the region its texts are read under: what all objects of the data
/// interface have in common here.
class Wrapper
{
public:
    /// Error 91 for no object.
    Wrapper(ObjectHandle object, Region region);

    [[nodiscard]] const ObjectHandle& handle() const { return object_; }
    [[nodiscard]] const Region& region() const { return region_; }

    /// Members as plain values; Error 94 for Null, 13 for what does not fit, 6 out of range.
    [[nodiscard]] Variant value(const char* name, Arguments arguments = {}) const;
    [[nodiscard]] std::int32_t number(const char* name, Arguments arguments = {}) const;
    [[nodiscard]] bool flag(const char* name, Arguments arguments = {}) const;
    [[nodiscard]] std::string text(const char* name, Arguments arguments = {}) const;
    /// Null and Empty are the zero date.
    [[nodiscard]] Date date(const char* name, Arguments arguments = {}) const;

    /// A member that must be there. Error 91 for nothing.
    [[nodiscard]] Wrapper member(const char* name, Arguments arguments = {}) const;

    /// A member's object as an object of the data interface, or nothing.
    template <class Object>
    [[nodiscard]] std::shared_ptr<Object> optional(const char* name, Arguments arguments = {}) const
    {
        ObjectHandle object = object_->object(name, arguments);
        if (!object)
            return nullptr;
        return std::make_shared<Object>(Wrapper(std::move(object), region_));
    }

    /// The items of a member that is a collection. Error 91 for nothing.
    template <class Object, class Item>
    [[nodiscard]] std::vector<std::shared_ptr<Item>> list(const char* name,
                                                          Arguments arguments = {}) const
    {
        return member(name, arguments).items<Object, Item>();
    }

    template <class Object, class Item>
    [[nodiscard]] std::vector<std::shared_ptr<Item>> items() const
    {
        std::vector<std::shared_ptr<Item>> result;
        for (ObjectHandle& item : object_->items())
            result.push_back(std::make_shared<Object>(Wrapper(std::move(item), region_)));
        return result;
    }

    /// The items of a member that may be missing, and nothing for each item that is.
    template <class Object, class Item>
    [[nodiscard]] std::vector<std::shared_ptr<Item>> optionalItems(const char* name,
                                                                   Arguments arguments = {}) const
    {
        std::vector<std::shared_ptr<Item>> result;
        const ObjectHandle collection = object_->object(name, arguments);
        if (!collection)
            return result;
        for (ObjectHandle& item : collection->items())
            result.push_back(item ? std::make_shared<Object>(Wrapper(std::move(item), region_))
                                  : nullptr);
        return result;
    }

private:
    ObjectHandle object_;
    Region region_;
};

} // namespace k7deval::latebound
