#include "python/SlotFill.h"

#include "foundation/Error.h"
#include "foundation/NumberText.h"
#include "python/Values.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace k7deval::python
{

namespace py = pybind11;

namespace
{

constexpr double kNoValue = std::numeric_limits<double>::quiet_NaN();

void needSlots(std::size_t entries, std::size_t slots)
{
    if (entries != slots)
        throw Error(errors::kInvalidCall,
                    std::to_string(entries) + " entries for " + std::to_string(slots) + " slots");
}

/// Whether the entries are of this type, in the byte order of the machine.
template <class Number> bool holds(const py::buffer_info& info)
{
    constexpr std::string_view kCodes = std::is_floating_point_v<Number> ? "fd"
                                        : std::is_signed_v<Number>       ? "bhilq"
                                                                         : "BHILQ";
    return info.format.size() == 1 && kCodes.find(info.format[0]) != std::string_view::npos &&
           info.itemsize == sizeof(Number);
}

template <class Number> Number numberAt(const py::buffer_info& info, std::size_t index)
{
    Number number{};
    const auto* bytes = static_cast<const std::byte*>(info.ptr);
    std::memcpy(&number, bytes + static_cast<py::ssize_t>(index) * info.strides[0], sizeof number);
    return number;
}

void store(double& slot, double number)
{
    slot = number;
}

void store(std::int32_t& slot, std::int64_t number)
{
    if (number != static_cast<std::int32_t>(number))
        throw Error(errors::kOverflow);
    slot = static_cast<std::int32_t>(number);
}

template <class Number, class Slot>
bool fillFrom(const py::buffer_info& info, std::span<Slot> slots)
{
    if (!holds<Number>(info))
        return false;
    for (std::size_t slot = 0; slot < slots.size(); ++slot)
        store(slots[slot], numberAt<Number>(info, slot));
    return true;
}

/// Whether the buffer's type was one that is known here.
bool fillFromNumbers(const py::buffer_info& info, std::span<double> slots)
{
    return fillFrom<double>(info, slots) || fillFrom<float>(info, slots);
}

bool fillFromNumbers(const py::buffer_info& info, std::span<std::int32_t> slots)
{
    return fillFrom<std::int32_t>(info, slots) || fillFrom<std::int64_t>(info, slots) ||
           fillFrom<std::int16_t>(info, slots) || fillFrom<std::uint32_t>(info, slots) ||
           fillFrom<std::uint16_t>(info, slots) || fillFrom<std::uint8_t>(info, slots);
}

template <class Slot> bool fillFromBuffer(py::handle source, std::span<Slot> slots)
{
    const auto info = readBuffer(source);
    if (!info)
        return false;
    if (info->ndim != 1)
        throw Error(errors::kTypeMismatch);
    needSlots(static_cast<std::size_t>(info->size), slots.size());
    return fillFromNumbers(*info, slots);
}

void storeItem(double& slot, py::handle item)
{
    const auto number = item.is_none() ? kNoValue : readDouble(item);
    if (!number)
        throw Error(errors::kTypeMismatch);
    slot = *number;
}

void storeItem(std::int32_t& slot, py::handle item)
{
    const auto number = readInt32(item);
    if (!number)
        throw Error(errors::kTypeMismatch);
    slot = *number;
}

template <class Slot> void fill(py::handle source, std::span<Slot> slots)
{
    if (fillFromBuffer(source, slots))
        return;
    const py::list items(py::reinterpret_borrow<py::object>(source));
    needSlots(items.size(), slots.size());
    for (std::size_t slot = 0; slot < slots.size(); ++slot)
        storeItem(slots[slot], items[slot]);
}

} // namespace

void fillSlots(DIDataSet& set, py::handle values, py::handle statuses)
{
    // Into a copy first, so that a failure leaves the set as it was.
    DIDataSet filled = set;
    fill(values, filled.values());
    fill(statuses, filled.statuses());
    set = std::move(filled);
}

} // namespace k7deval::python
