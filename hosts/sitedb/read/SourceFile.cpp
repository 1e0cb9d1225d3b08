#include "sitedb/read/SourceFile.h"

#include "sitedb/read/CheckSum.h"
#include "sitedb/read/SourceStream.h"

#include <system_error>
#include <vector>

namespace k7deval::sitedb
{

namespace
{

// A year of hourly data of a large plant is a few MB as a table; anything near this is not meant
// for a site. ECMPS emissions files may be as large, but are not held in memory.
constexpr std::size_t kLargestContent = std::size_t{512} << 20U;
// More than the header of any table.
constexpr std::size_t kBeginning = std::size_t{32} << 10U;

/// Reads until there is more than that, or all.
void readUpTo(std::size_t size, SourceFile& file, const OnBytesRead& onBytesRead)
{
    file.content.clear();
    SourceStream stream(file, onBytesRead);
    std::vector<char> chunk(kChunkOfFile);
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
    file.path = path;
    file.name = utf8Text(path.filename());
    std::error_code failure;
    const auto kind = std::filesystem::status(path, failure).type();
    if (kind == std::filesystem::file_type::not_found)
        throw file.error("", "there is no such file", errors::kFileNotFound);
    if (kind != std::filesystem::file_type::regular)
        throw file.error("", "this is no file that can be read", errors::kPathAccess);
    file.size = static_cast<std::int64_t>(std::filesystem::file_size(path, failure));
    if (failure)
        throw file.error("", "the file can't be read", errors::kPathAccess);
    if (file.size == 0)
        throw file.error("", "the file is empty");
    return file;
}

std::int64_t checkSumOf(const SourceFile& file, const OnBytesRead& onBytesRead)
{
    CheckSum sum(file);
    while (sum.bytesRead() < file.size) {
        sum.readUpTo(sum.bytesRead() + static_cast<std::int64_t>(kChunkOfFile));
        if (onBytesRead)
            onBytesRead(sum.bytesRead());
    }
    return sum.value();
}

void readContent(SourceFile& file, const OnBytesRead& onBytesRead)
{
    readUpTo(kLargestContent, file, onBytesRead);
    if (file.content.size() > kLargestContent)
        throw file.error("", "the file is too large");
}

void readBeginning(SourceFile& file)
{
    readUpTo(kBeginning, file, {});
}

SourceFile readSourceFile(const std::filesystem::path& path)
{
    SourceFile file = findSourceFile(path);
    readContent(file);
    return file;
}

} // namespace k7deval::sitedb
