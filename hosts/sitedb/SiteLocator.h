#pragma once

#include <filesystem>
#include <string>

namespace k7deval::sitedb
{

/// Where a site lies: in a file of its own, or in a database that is reached by another scheme.
class SiteLocator
{
public:
    /// A plain path is the locator of a file.
    SiteLocator(std::filesystem::path file); // NOLINT(google-explicit-constructor)
    /// A text in UTF-8: "scheme://address", or else the path of a file.
    SiteLocator(const std::string& text); // NOLINT(google-explicit-constructor)

    /// What tells the engine; empty for a file.
    [[nodiscard]] const std::string& scheme() const { return scheme_; }
    /// What stands behind "scheme://", as only the engine can read it. It may hold a password.
    [[nodiscard]] const std::string& address() const { return address_; }
    /// The path of a file; empty for any other scheme.
    [[nodiscard]] const std::filesystem::path& file() const { return file_; }

    friend bool operator==(const SiteLocator&, const SiteLocator&) = default;

private:
    std::string scheme_;
    std::string address_;
    std::filesystem::path file_;
};

} // namespace k7deval::sitedb
