#include "sitedb/NewSite.h"

#include <system_error>
#include <utility>

namespace k7deval::sitedb
{

namespace
{

bool isThere(const std::filesystem::path& path)
{
    std::error_code ignored;
    return std::filesystem::exists(path, ignored);
}

} // namespace

NewSite::NewSite(std::filesystem::path path) : path_(std::move(path)), keep_(isThere(path_)) {}

NewSite::~NewSite()
{
    std::error_code ignored;
    if (!keep_)
        std::filesystem::remove(path_, ignored);
}

} // namespace k7deval::sitedb
