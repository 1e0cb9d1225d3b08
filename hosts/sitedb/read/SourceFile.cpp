#include "sitedb/read/SourceFile.h"

#include "sitedb/read/SourceStream.h"

#include <zlib.h>

#include <fstream>
#include <vector>

namespace k7deval::sitedb
{

namespace
{

// A year of hourly data of a large plant is a few MB as a table; anything near this is not meant
// for a site. ECMPS emissions files may be as large, but are not held in memory.
constexpr std::size_t kLargestContent = std::size_t{512} << 20U;
// More than the header of any table.
constexpr std::size_t kBeginning = std::size_t{256} << 10U;
constexpr std::size_t kChunk = std::size_t{64} << 10U;

void checkIsFile(const std::filesystem::path& path, const SourceFile& file)
{
    std::error_code failure;
    const auto kind = std::filesystem::status(path, failure).type();
    if (kind == std::filesystem::file_type::not_found)
        throw file.error("", "there is no such file", errors::kFileNotFound);
    if (kind != std::filesystem::file_type::regular)
        throw file.error("", "this is no file that can be read", errors::kPathAccess);
}

void measure(const std::filesystem::path& path, SourceFile& file)
{
    std::ifstream stream(path, std::ios::binary);
    std::vector<char> chunk(kChunk);
    uLong sum = crc32_z(0, nullptr, 0);
    while (stream) {
        stream.read(chunk.data(), static_cast<std::streamsize>(chunk.size()));
        const auto count = stream.gcount();
        sum = crc32_z(sum, reinterpret_cast<const Bytef*>(chunk.data()),
                      static_cast<z_size_t>(count));
        file.size += count;
    }
    if (!stream.eof())
        throw file.error("", "the file can't be read", errors::kPathAccess);
    if (file.size == 0)
        throw file.error("", "the file is empty");
    file.crc = static_cast<std::int64_t>(sum);
}

/// Reads until there is more than that, or all.
void readUpTo(std::size_t size, const std::filesystem::path& path, SourceFile& file)
{
    file.content.clear();
    SourceStream stream(path, file);
    std::vector<char> chunk(kChunk);
    for (std::streamsize count = -1; count != 0 && file.content.size() <= size;) {
        count = stream.sgetn(chunk.data(), static_cast<std::streamsize>(chunk.size()));
        file.content.append(chunk.data(), static_cast<std::size_t>(count));
    }
    if (file.content.empty())
        throw file.error("", "the file is empty");
}

} // namespace

ImportError SourceFile::error(std::string_view place, std::string_view what, int number) const
{
    std::string sentence = name + ": ";
    if (!place.empty())
        sentence.append(place).append(": ");
    sentence.append(what).append(".");
    return ImportError(sentence, number);
}

SourceFile findSourceFile(const std::filesystem::path& path)
{
    SourceFile file;
    file.name = utf8Text(path.filename());
    checkIsFile(path, file);
    return file;
}

SourceFile identifySourceFile(const std::filesystem::path& path)
{
    SourceFile file = findSourceFile(path);
    measure(path, file);
    return file;
}

void readContent(const std::filesystem::path& path, SourceFile& file)
{
    readUpTo(kLargestContent, path, file);
    if (file.content.size() > kLargestContent)
        throw file.error("", "the file is too large");
}

void readBeginning(const std::filesystem::path& path, SourceFile& file)
{
    readUpTo(kBeginning, path, file);
}

SourceFile readSourceFile(const std::filesystem::path& path)
{
    SourceFile file = identifySourceFile(path);
    readContent(path, file);
    return file;
}

} // namespace k7deval::sitedb
