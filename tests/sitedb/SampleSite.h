#pragma once

#include "sitedb/Import.h"
#include "sitedb/SiteDatabase.h"

#include <filesystem>
#include <string>

namespace k7deval::sitedb::test
{

/// A directory of its own for one test, gone when the test is over.
class TemporaryDirectory
{
public:
    TemporaryDirectory();
    TemporaryDirectory(const TemporaryDirectory&) = delete;
    TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;
    ~TemporaryDirectory();

    [[nodiscard]] std::filesystem::path operator/(const std::string& name) const
    {
        return path_ / name;
    }
    /// Writes a file and says where it lies.
    [[nodiscard]] std::filesystem::path write(const std::string& name,
                                              const std::string& content) const;

private:
    std::filesystem::path path_;
};

/// A file of the sample.
std::filesystem::path sampleFile(const std::string& name);
std::string readFile(const std::filesystem::path& path);
/// A text packed as a gzip file of one member.
std::string gzip(const std::string& content);
/// The unpacked content of a gzip file.
std::string gunzip(const std::filesystem::path& path);

/// Makes a site for a test: a power cut in the middle of one need not be survived, so the disk is
/// not waited for.
SiteDatabase makeSite(const std::filesystem::path& path);

/// Every row of every table of a site as text, in a fixed order.
std::string dump(const SiteDatabase& site);

/// Options that name the unit of hourly load.
ImportOptions forUnit(const std::string& unit);
/// Options that leave out unreadable injections.
ImportOptions leavingOut();

/// The sample with all that can be read of it, in a directory of its own.
struct SampleSite {
    TemporaryDirectory directory;
    SiteDatabase site;
    SampleSite();
};

/// The sample imported once for all tests that only read it.
SiteDatabase& sharedSample();

} // namespace k7deval::sitedb::test
