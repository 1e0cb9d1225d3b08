#pragma once

#include "foundation/Error.h"

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace k7deval
{

/// An array from index 0 that may never have been sized; reaching into it is checked (error 9).
template <class T> class Array
{
public:
    Array() = default;
    explicit Array(std::vector<T> items) : items_(std::move(items)), sized_(true) {}

    [[nodiscard]] bool isSized() const { return sized_; }
    [[nodiscard]] const std::vector<T>& items() const { return items_; }

    /// Grows or cuts the array to end at upperBound, keeping what is in it. An upper bound of -1
    /// leaves no element; error 9 for one below.
    void resizeKeeping(std::int32_t upperBound)
    {
        if (upperBound < -1)
            throw Error(errors::kSubscript);
        items_.resize(static_cast<std::size_t>(upperBound) + 1);
        sized_ = true;
    }

    [[nodiscard]] T& operator[](std::int32_t index) { return items_[checked(index)]; }
    [[nodiscard]] const T& operator[](std::int32_t index) const { return items_[checked(index)]; }

private:
    [[nodiscard]] std::size_t checked(std::int32_t index) const
    {
        if (index < 0 || static_cast<std::size_t>(index) >= items_.size())
            throw Error(errors::kSubscript);
        return static_cast<std::size_t>(index);
    }

    std::vector<T> items_;
    bool sized_ = false;
};

/// The upper bound of an array; -1 for one that was never sized.
template <class T> std::int32_t SafeUBound(const Array<T>& array)
{
    return static_cast<std::int32_t>(array.items().size()) - 1;
}

/// The lower bound of an array; -1 for one that was never sized.
template <class T> std::int32_t SafeLBound(const Array<T>& array)
{
    return array.isSized() ? 0 : -1;
}

} // namespace k7deval
