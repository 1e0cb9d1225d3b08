#include "sitedb/formats/Fields.h"

#include "sitedb/PlainText.h"
#include "sitedb/tables/SiteIds.h"
#include "sitedb/tables/TimeText.h"

#include <algorithm>

namespace k7deval::sitedb
{

namespace
{

constexpr int kLastHour = 23;
constexpr const char* kNoDate = " is no date";

} // namespace

std::string dateIn(const JsonNode& node)
{
    if (!node.isText() || !dayNumber(node.text()))
        throw node.error(node.shown() + kNoDate);
    return node.text();
}

const std::string& dateIn(const CsvTable& table, const CsvRow& row, std::size_t column)
{
    const std::string& text = table.field(row, column);
    if (!dayNumber(text))
        throw table.error(row, column, inQuotes(text) + kNoDate);
    return text;
}

int hourIn(const JsonNode& node)
{
    return node.whole(0, kLastHour, "hour");
}

int hourIn(const CsvTable& table, const CsvRow& row, std::size_t column)
{
    return table.wholeNumber(row, column, 0, kLastHour, "hour");
}

int orisCodeIn(const JsonNode& node)
{
    return node.whole(1, kHighestOrisCode, "ORIS code");
}

int orisCodeIn(const CsvTable& table, const CsvRow& row, std::size_t column)
{
    return table.wholeNumber(row, column, 1, kHighestOrisCode, "ORIS code");
}

std::string identifierIn(const JsonNode& node, std::size_t longest)
{
    std::string text = node.text();
    const std::string fault = identifierFault(text, longest);
    if (!fault.empty())
        throw node.error(fault);
    return text;
}

const std::string& identifierIn(const CsvTable& table, const CsvRow& row, std::size_t column,
                                std::size_t longest)
{
    const std::string& text = table.field(row, column);
    const std::string fault = identifierFault(text, longest);
    if (!fault.empty())
        throw table.error(row, column, fault);
    return text;
}

std::string identifierFault(std::string_view text, std::size_t longest)
{
    const bool isGood = !text.empty() && text.size() <= longest && text.front() != ' ' &&
                        text.back() != ' ' && std::ranges::all_of(text, isPrintable);
    if (isGood)
        return {};
    return inQuotes(text) + " is no identifier of 1 to " + std::to_string(longest) + " characters";
}

} // namespace k7deval::sitedb
