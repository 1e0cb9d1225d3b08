#include "sitedb/SampleSite.h"

#include "sitedb/sql/Connection.h"
#include "support/Places.h"

#include <zlib.h>

#include <atomic>
#include <fstream>
#include <random>
#include <sstream>
#include <stdexcept>
#include <vector>

namespace k7deval::sitedb::test
{

namespace
{

constexpr int kGzipWindow = 15 + 16;

std::filesystem::path freshDirectory()
{
    static std::atomic<int> count = 0;
    std::random_device random;
    return std::filesystem::temp_directory_path() /
           ("sitedb-test-" + std::to_string(random()) + "-" + std::to_string(++count));
}

std::string textOf(const sql::Value& value)
{
    if (const auto* whole = std::get_if<std::int64_t>(&value))
        return std::to_string(*whole);
    if (const auto* number = std::get_if<double>(&value))
        return std::to_string(*number);
    if (const auto* text = std::get_if<std::string>(&value))
        return "'" + *text + "'";
    return "NULL";
}

struct Table {
    const char* query;
    int columns;
};

constexpr Table kTables[] = {
    {"SELECT * FROM parameter ORDER BY 1", 7},
    {"SELECT * FROM attribute ORDER BY 1, 2", 4},
    {"SELECT * FROM link ORDER BY 1, 2", 3},
    {"SELECT * FROM constant ORDER BY 1", 4},
    {"SELECT * FROM hourly_value ORDER BY 1, 2, 3", 5},
    {"SELECT * FROM calibration_record ORDER BY 1", 14},
    {"SELECT * FROM status_word ORDER BY 1", 5},
    {"SELECT * FROM lookup ORDER BY 1, 2", 3},
    {"SELECT * FROM import_log ORDER BY 1", 7},
};

} // namespace

TemporaryDirectory::TemporaryDirectory() : path_(freshDirectory())
{
    std::filesystem::create_directories(path_);
}

TemporaryDirectory::~TemporaryDirectory()
{
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

std::filesystem::path TemporaryDirectory::write(const std::string& name,
                                                const std::string& content) const
{
    std::ofstream stream(path_ / name, std::ios::binary);
    stream << content;
    return path_ / name;
}

std::filesystem::path sampleFile(const std::string& name)
{
    return k7deval::test::projectFile("data/bethpage/" + name);
}

std::string readFile(const std::filesystem::path& path)
{
    std::ifstream stream(path, std::ios::binary);
    std::ostringstream content;
    content << stream.rdbuf();
    return content.str();
}

std::string gzip(const std::string& content)
{
    z_stream stream{};
    deflateInit2(&stream, Z_BEST_SPEED, Z_DEFLATED, kGzipWindow, 8, Z_DEFAULT_STRATEGY);
    std::string source = content;
    std::string packed(deflateBound(&stream, static_cast<uLong>(content.size())), '\0');
    stream.next_in = reinterpret_cast<Bytef*>(source.data());
    stream.avail_in = static_cast<uInt>(source.size());
    stream.next_out = reinterpret_cast<Bytef*>(packed.data());
    stream.avail_out = static_cast<uInt>(packed.size());
    deflate(&stream, Z_FINISH);
    packed.resize(stream.total_out);
    deflateEnd(&stream);
    return packed;
}

std::string gunzip(const std::filesystem::path& path)
{
    gzFile file = gzopen(path.string().c_str(), "rb");
    if (file == nullptr)
        throw std::runtime_error("no file " + path.string());
    std::string content;
    std::vector<char> chunk(1U << 16U);
    for (int count = 0;
         (count = gzread(file, chunk.data(), static_cast<unsigned>(chunk.size()))) > 0;)
        content.append(chunk.data(), static_cast<std::size_t>(count));
    gzclose(file);
    return content;
}

SiteDatabase makeSite(const std::filesystem::path& path)
{
    auto site = SiteDatabase::open(path, OpenMode::ReadWrite);
    site.connection().execute("PRAGMA synchronous = OFF");
    return site;
}

std::string dump(const SiteDatabase& site)
{
    std::string all;
    for (const auto& table : kTables) {
        all += std::string(table.query) + "\n";
        const auto rows = site.connection().prepare(table.query);
        while (rows->step()) {
            for (int column = 0; column < table.columns; ++column)
                all += textOf(rows->column(column)) + "|";
            all += "\n";
        }
    }
    return all;
}

ImportOptions forUnit(const std::string& unit)
{
    ImportOptions options;
    options.unit = unit;
    return options;
}

ImportOptions leavingOut()
{
    ImportOptions options;
    options.leaveOutUnreadable = true;
    return options;
}

SampleSite::SampleSite() : site(makeSite(directory / "bethpage.k7site"))
{
    importFile(site, sampleFile("spans.csv"), {});
    importFile(site, sampleFile("ecmps_qa_50292.json"), leavingOut());
    importFile(site, sampleFile("hourly_load_GT3.csv.gz"), forUnit("GT3"));
    importFile(site, sampleFile("hourly_load_GT4.csv.gz"), forUnit("GT4"));
}

SiteDatabase& sharedSample()
{
    static SampleSite sample;
    return sample.site;
}

} // namespace k7deval::sitedb::test
