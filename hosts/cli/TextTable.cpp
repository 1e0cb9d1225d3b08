#include "cli/TextTable.h"

#include "foundation/TextFunctions.h"

#include <algorithm>
#include <ostream>

namespace k7deval::cli
{

namespace
{

constexpr const char* kGap = "  ";

} // namespace

std::vector<std::size_t> TextTable::widths() const
{
    std::vector<std::size_t> widths(columns_.size());
    for (const auto& row : rows_) {
        const std::size_t held = row.size() < columns_.size() ? row.size() - 1 : row.size();
        for (std::size_t i = 0; i < held; ++i)
            widths[i] = std::max(widths[i], characters(row[i]));
    }
    return widths;
}

void TextTable::print(std::ostream& out) const
{
    const auto columnWidths = widths();
    for (const auto& row : rows_) {
        std::string line;
        for (std::size_t i = 0; i < row.size(); ++i) {
            if (columnWidths[i] > 0 || !row[i].empty())
                line += padded(row[i], columnWidths[i], columns_[i]) + kGap;
        }
        out << trimRight(line) << '\n';
    }
}

} // namespace k7deval::cli
