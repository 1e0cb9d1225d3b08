#include "cli/Saving.h"

#include "cli/UsageError.h"
#include "foundation/FileFunctions.h"

#include <system_error>

namespace k7deval::cli
{

bool isSameFile(const std::string& one, const std::string& other)
{
    std::error_code ignored;
    return one == other || std::filesystem::equivalent(filePath(one), filePath(other), ignored);
}

void checkTarget(const std::string& option, const std::string& path, const std::string& site)
{
    if (path.empty())
        return;
    if (isSameFile(path, site))
        throw UsageError(option + " names the site itself.");
    std::error_code ignored;
    if (std::filesystem::is_directory(filePath(path), ignored))
        throw UsageError(path + " is a folder; " + option + " needs a file.");
}

std::string pressSave(screen::Button& cmdSave, screen::CheckBox& chkPreview,
                      ConsoleServices& services, const screen::SaveAnswer& answer)
{
    services.nextSave = answer;
    services.told.clear();
    if (chkPreview.isChecked())
        chkPreview.Press();
    cmdSave.Press();
    return services.told.empty() ? std::string() : services.told.back();
}

} // namespace k7deval::cli
