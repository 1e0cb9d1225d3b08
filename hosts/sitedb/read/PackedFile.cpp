#include "sitedb/read/PackedFile.h"

#include <zlib.h>

#include <array>
#include <fstream>
#include <vector>

namespace k7deval::sitedb
{

namespace
{

gzFile openPacked(const std::filesystem::path& path)
{
#ifdef _WIN32
    return gzopen_w(path.c_str(), "rb");
#else
    return gzopen(path.c_str(), "rb");
#endif
}

/// What a gzip file ends with: check sum and size, cut to 32 bits, of its last member's content.
struct Trailer {
    std::uint32_t sum = 0;
    std::uint32_t size = 0;
};

Trailer trailerOf(const std::filesystem::path& path)
{
    constexpr std::streamoff kLength = 8;
    std::array<char, kLength> bytes{};
    std::ifstream stream(path, std::ios::binary);
    stream.seekg(-kLength, std::ios::end);
    stream.read(bytes.data(), kLength);
    const auto numberAt = [&](std::size_t first) {
        std::uint32_t number = 0;
        for (std::size_t index = first + 4; index-- > first;)
            number = number << 8U | static_cast<unsigned char>(bytes[index]);
        return number;
    };
    return {numberAt(0), numberAt(4)};
}

uLong sumWith(uLong sum, const char* bytes, std::size_t size)
{
    return crc32_z(sum, reinterpret_cast<const Bytef*>(bytes), size);
}

} // namespace

void PackedFile::Close::operator()(gzFile_s* file) const
{
    gzclose(file);
}

PackedFile::PackedFile(const SourceFile& file) : file_(file), packed_(openPacked(file.path))
{
    if (!packed_)
        throw file.error("", "the file can't be read", errors::kPathAccess);
}

std::size_t PackedFile::read(char* target, std::size_t size)
{
    const std::size_t count = readSome(target, size);
    size_ += static_cast<std::int64_t>(count);
    sum_ = sumWith(sum_, target, count);
    if (count == 0)
        checkEnd();
    return count;
}

std::size_t PackedFile::readSome(char* target, std::size_t size)
{
    const int count = gzread(packed_.get(), target, static_cast<unsigned>(size));
    if (count >= 0)
        return static_cast<std::size_t>(count);
    int code = Z_OK;
    gzerror(packed_.get(), &code);
    if (code == Z_ERRNO)
        throw file_.error("", "the file can't be read", errors::kPathAccess);
    throw file_.error("", code == Z_MEM_ERROR ? "there is not enough memory to unpack it"
                                              : "the gzip file is damaged");
}

std::int64_t PackedFile::position() const
{
    return gzoffset(packed_.get());
}

// zlib steps over whatever stands behind the last member of a gzip file. A file that was put
// together wrongly is found out by its end, which then is not that of the member.
void PackedFile::checkEnd()
{
    int code = Z_OK;
    gzerror(packed_.get(), &code);
    if (code == Z_BUF_ERROR)
        throw file_.error("", "the gzip file is cut off");
    if (gzdirect(packed_.get()) != 0)
        return;
    const Trailer trailer = trailerOf(file_.path);
    const bool isOneMember = trailer.size == static_cast<std::uint32_t>(size_);
    if (trailer.sum != (isOneMember ? sum_ : sumOfLast(trailer.size)))
        throw file_.error("", "the gzip file is damaged");
}

/// The check sum of the last bytes of the content, for which it is unpacked once more.
unsigned long PackedFile::sumOfLast(std::uint32_t size)
{
    const std::int64_t begin = size_ - size;
    if (begin < 0 || gzseek(packed_.get(), begin, SEEK_SET) != begin)
        throw file_.error("", "the gzip file is damaged");
    std::vector<char> chunk(kChunkOfFile);
    uLong sum = 0;
    while (const std::size_t count = readSome(chunk.data(), chunk.size()))
        sum = sumWith(sum, chunk.data(), count);
    return sum;
}

} // namespace k7deval::sitedb
