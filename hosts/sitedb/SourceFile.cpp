#include "sitedb/SourceFile.h"

// Lets zlib read its input through a pointer to const.
#define ZLIB_CONST
#include <zlib.h>

#include <array>
#include <fstream>
#include <limits>
#include <optional>
#include <sstream>

namespace k7deval::sitedb
{

namespace
{

// A year of hourly data of a large plant is a few MB; anything near this is not meant for a site.
constexpr std::size_t kLargestContent = std::size_t{512} << 20U;
constexpr std::size_t kChunk = std::size_t{64} << 10U;
constexpr std::string_view kGzipMark = "\x1f\x8b";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr int kGzipWindow = 15 + 16;

class Inflater
{
public:
    explicit Inflater(const SourceFile& packed) : packed_(packed)
    {
        if (inflateInit2(&stream_, kGzipWindow) != Z_OK)
            throw packed.error("", "there is not enough memory to unpack it");
        stream_.next_in = reinterpret_cast<const Bytef*>(packed.content.data());
        stream_.avail_in = static_cast<uInt>(packed.content.size());
    }
    Inflater(const Inflater&) = delete;
    Inflater& operator=(const Inflater&) = delete;
    ~Inflater() { inflateEnd(&stream_); }

    /// The content of all members of the file, one behind the other.
    std::string run()
    {
        std::string content;
        while (stream_.avail_in > 0) {
            unpackMember(content);
            inflateReset(&stream_);
        }
        return content;
    }

private:
    void unpackMember(std::string& content)
    {
        int code = Z_OK;
        while (code != Z_STREAM_END) {
            std::array<char, kChunk> chunk{};
            stream_.next_out = reinterpret_cast<Bytef*>(chunk.data());
            stream_.avail_out = static_cast<uInt>(chunk.size());
            code = inflate(&stream_, Z_NO_FLUSH);
            content.append(chunk.data(), chunk.size() - stream_.avail_out);
            check(code, content.size());
        }
    }

    void check(int code, std::size_t size) const
    {
        if (code == Z_BUF_ERROR)
            throw packed_.error("", "the gzip file is cut off");
        if (code != Z_OK && code != Z_STREAM_END)
            throw packed_.error("", "the gzip file is damaged");
        if (size > kLargestContent)
            throw packed_.error("", "the file is too large");
    }

    const SourceFile& packed_;
    z_stream stream_{};
};

std::string readAll(const std::filesystem::path& path, const SourceFile& file)
{
    std::ifstream stream(path, std::ios::binary);
    std::ostringstream content;
    if (stream)
        content << stream.rdbuf();
    if (!stream || stream.bad())
        throw file.error("", "the file can't be read", errors::kPathAccess);
    return std::move(content).str();
}

void checkIsFile(const std::filesystem::path& path, const SourceFile& file)
{
    std::error_code failure;
    const auto kind = std::filesystem::status(path, failure).type();
    if (kind == std::filesystem::file_type::not_found)
        throw file.error("", "there is no such file", errors::kFileNotFound);
    if (kind != std::filesystem::file_type::regular)
        throw file.error("", "this is no file that can be read", errors::kPathAccess);
    const auto size = std::filesystem::file_size(path, failure);
    if (size == 0)
        throw file.error("", "the file is empty");
    if (size > kLargestContent)
        throw file.error("", "the file is too large");
}

std::int64_t checkSum(const std::string& content)
{
    const auto* bytes = reinterpret_cast<const Bytef*>(content.data());
    return static_cast<std::int64_t>(crc32_z(0, bytes, content.size()));
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

SourceFile readSourceFile(const std::filesystem::path& path)
{
    SourceFile file;
    file.name = utf8Text(path.filename());
    checkIsFile(path, file);
    file.content = readAll(path, file);
    file.size = static_cast<std::int64_t>(file.content.size());
    file.crc = checkSum(file.content);
    if (file.content.starts_with(kGzipMark))
        file.content = Inflater(file).run();
    if (file.content.starts_with(kByteOrderMark))
        file.content.erase(0, kByteOrderMark.size());
    if (file.content.empty())
        throw file.error("", "the file is empty");
    return file;
}

} // namespace k7deval::sitedb
