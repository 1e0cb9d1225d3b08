#pragma once

#include "sitedb/read/SourceFile.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace k7deval::sitedb
{

struct CsvRow {
    int line = 0; ///< In the file, from 1; of a row over several lines the first.
    std::vector<std::string> fields;
};

/// A table of comma-separated values with a header: quoted fields, line ends LF or CRLF. Every row
/// has as many fields as the header, and every line ends, so that a file that was cut off in a line
/// is found out. Lines of nothing are skipped.
class CsvTable
{
public:
    /// Raises ImportError for a text that is no such table. The file has to outlive the table.
    static CsvTable parse(const SourceFile& file);
    /// The names in the first line of a file that may be a table; none when it is not.
    static std::vector<std::string> headerOf(const SourceFile& file);

    [[nodiscard]] const std::vector<CsvRow>& rows() const& { return rows_; }
    // The rows of a table that is gone at the end of the line can't be walked.
    const std::vector<CsvRow>& rows() const&& = delete;
    [[nodiscard]] const std::vector<std::string>& header() const { return header_; }
    /// The index of a column. Raises ImportError when the table does not have it.
    [[nodiscard]] std::size_t column(std::string_view name) const;

    /// The field of a row. Raises ImportError when it is empty.
    [[nodiscard]] const std::string& field(const CsvRow& row, std::size_t column) const;
    /// The number in a field, from lowest to highest. Raises ImportError for anything else.
    [[nodiscard]] double number(const CsvRow& row, std::size_t column, double lowest,
                                double highest) const;
    /// A whole number from lowest to highest; what names it in the sentence: "hour".
    [[nodiscard]] int wholeNumber(const CsvRow& row, std::size_t column, int lowest, int highest,
                                  std::string_view what) const;

    /// The error that stands in a field: "name: line 5: column: what."
    [[nodiscard]] ImportError error(const CsvRow& row, std::size_t column,
                                    std::string_view what) const;

private:
    explicit CsvTable(const SourceFile& file) : file_(&file) {}
    void checkHeader() const;
    void checkRows() const;

    const SourceFile* file_;
    std::vector<std::string> header_;
    std::vector<CsvRow> rows_;
};

} // namespace k7deval::sitedb
