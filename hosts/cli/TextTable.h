#pragma once

#include "cli/Texts.h"

#include <cstddef>
#include <iosfwd>
#include <string>
#include <vector>

namespace k7deval::cli
{

/// Rows of texts, printed in columns. A column that stays empty is not printed. The last text of a
/// row that ends before the last column may run on over the columns behind it.
class TextTable
{
public:
    explicit TextTable(std::vector<Align> columns) : columns_(std::move(columns)) {}

    /// Texts for the columns from the first on; no more than there are columns.
    void add(std::vector<std::string> row) { rows_.push_back(std::move(row)); }
    void print(std::ostream& out) const;

private:
    [[nodiscard]] std::vector<std::size_t> widths() const;

    std::vector<Align> columns_;
    std::vector<std::vector<std::string>> rows_;
};

} // namespace k7deval::cli
