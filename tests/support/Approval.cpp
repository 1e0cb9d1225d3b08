#include "support/Approval.h"

#include "support/Places.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <sstream>

namespace k7deval::test
{

namespace
{

/// What was approved; empty where nothing was yet.
std::string approved(const std::string& file)
{
    const std::filesystem::path path = projectFile("tests/golden/" + file);
    return std::filesystem::exists(path) ? contentOf(path) : std::string();
}

/// The first line in which two texts differ, as it was and as it is.
std::string firstDifference(const std::string& before, const std::string& now)
{
    std::istringstream old(before);
    std::istringstream present(now);
    std::string oldLine;
    std::string line;
    for (int number = 1;; ++number) {
        const bool hasOld = static_cast<bool>(std::getline(old, oldLine));
        const bool hasLine = static_cast<bool>(std::getline(present, line));
        if (hasOld != hasLine || oldLine != line)
            return "line " + std::to_string(number) +
                   "\n  approved: " + (hasOld ? oldLine : "(nothing)") +
                   "\n  now:      " + (hasLine ? line : "(nothing)");
        if (!hasOld)
            return "the line breaks";
    }
}

void keepReceived(const std::string& file, const std::string& text)
{
    const char* folder = std::getenv("K7DEVAL_RECEIVED");
    if (folder == nullptr)
        return;
    const std::filesystem::path path = std::filesystem::path(folder) / file;
    std::filesystem::create_directories(path.parent_path());
    writeFile(path, text);
}

} // namespace

void expectApproved(const std::string& file, const std::string& text)
{
    const std::string before = approved(file);
    if (text == before)
        return;
    keepReceived(file, text);
    ADD_FAILURE() << file << " differs from what was approved, first in "
                  << firstDifference(before, text)
                  << "\n`scripts/golden.sh` shows all of it and approves it.";
}

} // namespace k7deval::test
