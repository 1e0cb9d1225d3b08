#include "cli/ReportedTests.h"

#include "cli/Texts.h"
#include "foundation/FileFunctions.h"
#include "sitedb/read/CsvTable.h"
#include "sitedb/read/SourceFile.h"
#include "sitedb/tables/TimeText.h"

#include <set>
#include <utility>

namespace k7deval::cli
{

namespace
{

constexpr std::size_t kDateLength = 10;

/// Reads the rows of a table, column by column.
class Reader
{
public:
    explicit Reader(const sitedb::CsvTable& table) : table_(table) {}

    ReportedTest read(const sitedb::CsvRow& row)
    {
        ReportedTest test;
        test.unit = fileNamePart(row, "unit_id");
        test.analyzer = text(row, "component_type") + " " + text(row, "component_id") + scale(row);
        test.testNumber = fileNamePart(row, "test_number");
        test.from = date(row, "begin");
        test.to = date(row, "end");
        test.result = row.fields[table_.column("reported_result")];
        if (!known_.emplace(test.unit, test.testNumber).second)
            throw fault(row, "test_number", test.testNumber, "stands there twice for the unit");
        return test;
    }

private:
    [[nodiscard]] const std::string& text(const sitedb::CsvRow& row, const char* column) const
    {
        return table_.field(row, table_.column(column));
    }

    /// The names of report and export are made of it.
    [[nodiscard]] const std::string& fileNamePart(const sitedb::CsvRow& row,
                                                  const char* column) const
    {
        const std::string& name = text(row, column);
        if (name.find_first_of("/\\:") != std::string::npos)
            throw fault(row, column, name, "can't be part of a file name");
        return name;
    }

    [[nodiscard]] std::string scale(const sitedb::CsvRow& row) const
    {
        const std::string& code = row.fields[table_.column("span_scale")];
        if (code.empty())
            return code;
        if (code != "H" && code != "L")
            throw fault(row, "span_scale", code, "is not H or L");
        return "/" + code;
    }

    [[nodiscard]] std::string date(const sitedb::CsvRow& row, const char* column) const
    {
        const std::string& time = text(row, column);
        std::string day = time.substr(0, kDateLength);
        const bool endsThere = time.size() == day.size() || time[kDateLength] == ' ';
        if (!endsThere || !sitedb::dayNumber(day))
            throw fault(row, column, time, "is no date such as 2024-05-31");
        return day;
    }

    [[nodiscard]] sitedb::ImportError fault(const sitedb::CsvRow& row, const char* column,
                                            const std::string& held, const std::string& what) const
    {
        return table_.error(row, table_.column(column), sitedb::inQuotes(held) + " " + what);
    }

    const sitedb::CsvTable& table_;
    std::set<std::pair<std::string, std::string>> known_;
};

} // namespace

std::vector<ReportedTest> readReportedTests(const std::string& path)
{
    const auto file = sitedb::readSourceFile(filePath(path));
    const auto table = sitedb::CsvTable::parse(file);
    Reader reader(table);
    std::vector<ReportedTest> tests;
    for (const auto& row : table.rows())
        tests.push_back(reader.read(row));
    return tests;
}

} // namespace k7deval::cli
