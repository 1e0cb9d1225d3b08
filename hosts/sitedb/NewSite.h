#pragma once

#include <filesystem>

namespace k7deval::sitedb
{

/// Takes a site away again that was made for an import which then took nothing. To be made before
/// the site is opened and to end after it is closed.
class NewSite
{
public:
    /// A file that is there already stays in any case.
    explicit NewSite(std::filesystem::path path);
    NewSite(const NewSite&) = delete;
    NewSite& operator=(const NewSite&) = delete;
    ~NewSite();

    void keep() { keep_ = true; }

private:
    std::filesystem::path path_;
    bool keep_;
};

} // namespace k7deval::sitedb
