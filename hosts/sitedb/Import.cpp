#include "sitedb/Import.h"

#include "sitedb/formats/ImportSteps.h"
#include "sitedb/tables/SiteIds.h"

#include <algorithm>

namespace k7deval::sitedb
{

namespace
{

bool hasColumns(const std::vector<std::string>& header, std::initializer_list<const char*> names)
{
    return std::ranges::all_of(
        names, [&](const char* name) { return std::ranges::find(header, name) != header.end(); });
}

bool isJson(std::string_view content)
{
    const auto first = content.find_first_not_of(" \t\r\n");
    return first != std::string_view::npos && content[first] == '{';
}

// The lists of locations in the two layouts of a plan.
bool isMonitoringPlan(std::string_view content)
{
    return content.find(R"("monitoringLocationData")") != std::string_view::npos ||
           content.find(R"("locations")") != std::string_view::npos;
}

using Take = ImportReport (*)(sql::Connection&, const std::filesystem::path&, SourceFile&,
                              const ImportOptions&);
using TakeContent = ImportReport (*)(sql::Connection&, const SourceFile&, const ImportOptions&);

template <TakeContent take>
ImportReport takeWhole(sql::Connection& connection, const std::filesystem::path& path,
                       SourceFile& file, const ImportOptions& options)
{
    readContent(path, file);
    return take(connection, file, options);
}

ImportReport takeStreamed(sql::Connection& connection, const std::filesystem::path& path,
                          SourceFile& file, const ImportOptions& options)
{
    return takeEcmpsEmissions(connection, path, file, options);
}

/// A format and its import of a file that was identified.
struct Format {
    FileKind kind;
    Take take = nullptr;
};

FileKind bringingUnits(const char* name)
{
    FileKind kind{name};
    kind.bringsUnits = true;
    return kind;
}

FileKind ofUnit(const char* name)
{
    FileKind kind{name};
    kind.takesUnit = true;
    kind.needsUnit = true;
    return kind;
}

Format locationSpans()
{
    FileKind kind = bringingUnits(format::kLocationSpans);
    kind.takesUnit = true;
    return {kind, takeWhole<takeLocationSpans>};
}

Format monitorHourly()
{
    FileKind kind = ofUnit(format::kMonitorHourly);
    kind.takesComponent = true;
    return {kind, takeWhole<takeMonitorHourly>};
}

Format formatOfJson(const std::filesystem::path& path, SourceFile& file)
{
    readContent(path, file);
    if (isMonitoringPlan(file.content))
        return {bringingUnits(format::kMonitoringPlan), takeWhole<takeMonitoringPlan>};
    return {FileKind{format::kEcmpsQa}, takeWhole<takeEcmpsQa>};
}

Format formatOfTable(const SourceFile& file)
{
    const auto header = CsvTable::headerOf(file);
    if (hasColumns(header, {"unit_id", "component_id", "span_value"}))
        return {bringingUnits(format::kSpanTable), takeWhole<takeSpanTable>};
    if (hasColumns(header, {"oris", "location", "component_type_cd", "span_value"}))
        return locationSpans();
    if (hasColumns(header, {"date", "hour", "gross_load_mw"}))
        return {ofUnit(format::kHourlyLoad), takeWhole<takeHourlyLoad>};
    if (hasColumns(header, {"date", "hour", "parameter", "modc"}))
        return monitorHourly();
    throw file.error("", "this is none of the files that can be imported");
}

/// Leaves some of the content, or all of it, in the file.
Format formatOf(const std::filesystem::path& path, SourceFile& file)
{
    if (isEcmpsEmissions(path, file))
        return {FileKind{format::kEcmpsEmissions}, takeStreamed};
    readBeginning(path, file);
    return isJson(file.content) ? formatOfJson(path, file) : formatOfTable(file);
}

} // namespace

FileKind kindOf(const std::filesystem::path& path)
{
    SourceFile file = findSourceFile(path);
    return formatOf(path, file).kind;
}

ImportReport importFile(SiteDatabase& site, const std::filesystem::path& path,
                        const ImportOptions& options)
{
    SourceFile file = identifySourceFile(path);
    return formatOf(path, file).take(site.connection(), path, file, options);
}

ImportReport importEcmpsQa(SiteDatabase& site, const std::filesystem::path& path,
                           const ImportOptions& options)
{
    return takeEcmpsQa(site.connection(), readSourceFile(path), options);
}

ImportReport importSpanTable(SiteDatabase& site, const std::filesystem::path& path,
                             const ImportOptions& options)
{
    return takeSpanTable(site.connection(), readSourceFile(path), options);
}

ImportReport importMonitoringPlan(SiteDatabase& site, const std::filesystem::path& path,
                                  const ImportOptions& options)
{
    return takeMonitoringPlan(site.connection(), readSourceFile(path), options);
}

ImportReport importLocationSpans(SiteDatabase& site, const std::filesystem::path& path,
                                 const ImportOptions& options)
{
    return takeLocationSpans(site.connection(), readSourceFile(path), options);
}

ImportReport importHourlyLoad(SiteDatabase& site, const std::filesystem::path& path,
                              const ImportOptions& options)
{
    return takeHourlyLoad(site.connection(), readSourceFile(path), options);
}

ImportReport importMonitorHourly(SiteDatabase& site, const std::filesystem::path& path,
                                 const ImportOptions& options)
{
    return takeMonitorHourly(site.connection(), readSourceFile(path), options);
}

ImportReport importEcmpsEmissions(SiteDatabase& site, const std::filesystem::path& path,
                                  const ImportOptions& options)
{
    return takeEcmpsEmissions(site.connection(), path, identifySourceFile(path), options);
}

void tellProgress(const ImportOptions& options, const SourceFile& file, std::int64_t bytesRead,
                  std::size_t hours)
{
    if (options.progress && !options.progress({bytesRead, file.size, hours}))
        throw ImportCancelled(file.error("", "the import was cancelled").description());
}

void tellAllIsRead(const ImportOptions& options, const SourceFile& file, std::size_t hours)
{
    tellProgress(options, file, file.size, hours);
}

std::string counted(std::size_t count, const std::string& what)
{
    return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

std::string listed(const std::set<std::string>& names)
{
    std::string all;
    for (const auto& name : names)
        all += (all.empty() ? "" : ", ") + name;
    return all;
}

std::string entries(std::size_t count)
{
    return std::to_string(count) + (count == 1 ? " entry" : " entries");
}

std::string identifierFault(std::string_view text, std::size_t longest)
{
    const bool isGood = !text.empty() && text.size() <= longest && text.front() != ' ' &&
                        text.back() != ' ' && std::ranges::all_of(text, isPrintable);
    if (isGood)
        return {};
    return inQuotes(text) + " is no identifier of 1 to " + std::to_string(longest) + " characters";
}

const std::string& identifier(const CsvTable& table, const CsvRow& row, std::size_t column,
                              std::size_t longest)
{
    const std::string& text = table.field(row, column);
    const std::string fault = identifierFault(text, longest);
    if (!fault.empty())
        throw table.error(row, column, fault);
    return text;
}

std::string noMoreUnits(const std::string& identifier)
{
    return identifier + " would be one unit too many, since a site holds at most " +
           std::to_string(kHighestUnit);
}

std::string noMoreComponents()
{
    return "a unit has at most " + std::to_string(kHighestComponent) + " components for one gas";
}

} // namespace k7deval::sitedb
