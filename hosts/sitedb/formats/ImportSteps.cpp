#include "sitedb/formats/ImportSteps.h"

#include "sitedb/tables/SiteIds.h"

namespace k7deval::sitedb
{

void tellProgress(const ImportTask& task, std::int64_t bytesRead, std::size_t hours)
{
    const auto& progress = task.options.progress;
    if (progress && !progress({bytesRead, task.file.size, hours}))
        throw ImportCancelled(task.file.error("", "the import was cancelled").description());
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

void checkOrisCode(const SourceFile& file, const std::string& place, std::int32_t code,
                   const std::optional<std::int32_t>& held)
{
    if (held && *held != code)
        throw file.error(place, std::to_string(code) +
                                    " is another facility than the site's, which is " +
                                    std::to_string(*held));
}

std::string noMoreUnits(const std::string& identifier)
{
    return identifier + " would be one unit too many, since a site holds at most " +
           std::to_string(kHighestUnit);
}

std::string measuresAnotherGas(const std::string& component, const std::string& unit)
{
    return "component " + component + " of " + unit + " measures another gas";
}

std::string noMoreComponents()
{
    return "a unit has at most " + std::to_string(kHighestComponent) + " components for one gas";
}

} // namespace k7deval::sitedb
