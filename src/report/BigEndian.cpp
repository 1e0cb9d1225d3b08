#include "report/BigEndian.h"

namespace k7deval
{

std::uint16_t wordAt(std::string_view data, std::size_t offset)
{
    if (data.size() < 2 || offset > data.size() - 2)
        return 0;
    const auto high = static_cast<unsigned char>(data[offset]);
    const auto low = static_cast<unsigned char>(data[offset + 1]);
    return static_cast<std::uint16_t>(high << 8U | low);
}

std::uint32_t longAt(std::string_view data, std::size_t offset)
{
    if (data.size() < 4 || offset > data.size() - 4)
        return 0;
    return std::uint32_t{wordAt(data, offset)} << 16U | wordAt(data, offset + 2);
}

void appendWord(std::string& data, std::uint16_t value)
{
    data += static_cast<char>(value >> 8U);
    data += static_cast<char>(value & 0xFFU);
}

void appendLong(std::string& data, std::uint32_t value)
{
    appendWord(data, static_cast<std::uint16_t>(value >> 16U));
    appendWord(data, static_cast<std::uint16_t>(value & 0xFFFFU));
}

} // namespace k7deval
