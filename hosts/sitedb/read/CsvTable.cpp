#include "sitedb/read/CsvTable.h"

#include <algorithm>
#include <utility>

namespace k7deval::sitedb
{

namespace
{

std::string lineText(int line)
{
    return "line " + std::to_string(line);
}

/// Takes one record after the other from the text of a table.
class CsvReader
{
public:
    explicit CsvReader(const SourceFile& file) : file_(file), text_(file.content) {}

    /// The next record that holds something, or nothing at the end.
    std::optional<CsvRow> next()
    {
        while (position_ < text_.size()) {
            CsvRow row = record();
            if (row.fields.size() > 1 || !row.fields.front().empty())
                return row;
        }
        return std::nullopt;
    }

private:
    CsvRow record()
    {
        CsvRow row;
        row.line = line_;
        do {
            row.fields.push_back(at('"') ? quotedField(row) : plainField(row));
        } while (take(','));
        takeLineEnd(row);
        return row;
    }

    std::string plainField(const CsvRow& row)
    {
        const std::size_t end = text_.find_first_of(",\r\n\"", position_);
        if (end != std::string_view::npos && text_[end] == '"')
            throw file_.error(lineText(row.line), "a quote stands inside a field");
        const std::size_t length = std::min(end, text_.size()) - position_;
        std::string field(text_.substr(position_, length));
        position_ += length;
        return field;
    }

    std::string quotedField(const CsvRow& row)
    {
        std::string field;
        ++position_;
        while (position_ < text_.size()) {
            const char letter = text_[position_++];
            if (letter == '"' && !take('"'))
                return field;
            if (letter == '\n')
                ++line_;
            field += letter;
        }
        throw file_.error(lineText(row.line), "a quoted field does not end");
    }

    void takeLineEnd(const CsvRow& row)
    {
        take('\r');
        if (position_ >= text_.size())
            throw file_.error(lineText(row.line),
                              "the line does not end, so the file seems to be cut off");
        if (!take('\n'))
            throw file_.error(lineText(row.line), "a comma or a line end is missing");
        ++line_;
    }

    [[nodiscard]] bool at(char letter) const
    {
        return position_ < text_.size() && text_[position_] == letter;
    }

    bool take(char letter)
    {
        const bool found = at(letter);
        if (found)
            ++position_;
        return found;
    }

    const SourceFile& file_;
    std::string_view text_;
    std::size_t position_ = 0;
    int line_ = 1;
};

} // namespace

CsvTable CsvTable::parse(const SourceFile& file)
{
    CsvTable table(file);
    CsvReader reader(file);
    if (auto header = reader.next())
        table.header_ = std::move(header->fields);
    while (auto row = reader.next())
        table.rows_.push_back(std::move(*row));
    table.checkHeader();
    table.checkRows();
    return table;
}

std::vector<std::string> CsvTable::headerOf(const SourceFile& file)
{
    try {
        const auto header = CsvReader(file).next();
        return header ? header->fields : std::vector<std::string>();
    } catch (const ImportError&) {
        return {};
    }
}

void CsvTable::checkHeader() const
{
    for (auto name = header_.begin(); name != header_.end(); ++name) {
        if (std::find(header_.begin(), name, *name) != name)
            throw file_->error("line 1", "the column " + inQuotes(*name) + " stands there twice");
    }
}

void CsvTable::checkRows() const
{
    if (rows_.empty())
        throw file_->error("", "the table has no rows");
    for (const auto& row : rows_) {
        if (row.fields.size() != header_.size())
            throw file_->error(lineText(row.line),
                               "the line has " + std::to_string(row.fields.size()) +
                                   " fields, the header " + std::to_string(header_.size()));
    }
}

std::size_t CsvTable::column(std::string_view name) const
{
    const auto found = std::find(header_.begin(), header_.end(), name);
    if (found == header_.end())
        throw file_->error("line 1", "the column " + std::string(name) + " is missing");
    return static_cast<std::size_t>(found - header_.begin());
}

const std::string& CsvTable::field(const CsvRow& row, std::size_t column) const
{
    if (row.fields[column].empty())
        throw error(row, column, "the field is empty");
    return row.fields[column];
}

double CsvTable::number(const CsvRow& row, std::size_t column, double lowest, double highest) const
{
    const std::string& text = field(row, column);
    const auto value = plainNumber(text);
    if (!value)
        throw error(row, column, inQuotes(text) + " is no number");
    if (*value < lowest || *value > highest)
        throw error(row, column,
                    text + " lies outside " + numberText(lowest) + " to " + numberText(highest));
    return *value;
}

int CsvTable::wholeNumber(const CsvRow& row, std::size_t column, int lowest, int highest,
                          std::string_view what) const
{
    const std::string& text = field(row, column);
    const auto value = plainWhole(text);
    if (!value)
        throw error(row, column, inQuotes(text) + " is no whole number");
    if (*value < lowest || *value > highest)
        throw error(row, column,
                    std::to_string(*value) + " is no " + std::string(what) + " from " +
                        std::to_string(lowest) + " to " + std::to_string(highest));
    return *value;
}

ImportError CsvTable::error(const CsvRow& row, std::size_t column, std::string_view what) const
{
    return file_->error(lineText(row.line) + ": " + header_[column], what);
}

} // namespace k7deval::sitedb
