#include "sitedb/SiteLocator.h"

#include "foundation/FileFunctions.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace k7deval::sitedb
{

namespace
{

constexpr std::string_view kBehindScheme = "://";

bool isLetter(char letter)
{
    return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z');
}

// A single letter would be a drive.
bool isScheme(std::string_view text)
{
    return text.size() > 1 && std::ranges::all_of(text, isLetter);
}

} // namespace

SiteLocator::SiteLocator(std::filesystem::path file) : file_(std::move(file)) {}

SiteLocator::SiteLocator(const std::string& text)
{
    const auto end = text.find(kBehindScheme);
    if (end == std::string::npos || !isScheme(text.substr(0, end))) {
        file_ = filePath(text);
        return;
    }
    scheme_ = text.substr(0, end);
    address_ = text.substr(end + kBehindScheme.size());
}

} // namespace k7deval::sitedb
