#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace k7deval
{

/// The 16-bit number at a byte offset; 0 beyond the end of the data.
[[nodiscard]] std::uint16_t wordAt(std::string_view data, std::size_t offset);

/// The 32-bit number at a byte offset; 0 beyond the end of the data.
[[nodiscard]] std::uint32_t longAt(std::string_view data, std::size_t offset);

void appendWord(std::string& data, std::uint16_t value);
void appendLong(std::string& data, std::uint32_t value);

} // namespace k7deval
