#include "sitedb/read/CheckSum.h"

#include <zlib.h>

#include <algorithm>

namespace k7deval::sitedb
{

CheckSum::CheckSum(const SourceFile& file)
    : file_(file), stream_(file.path, std::ios::binary), chunk_(kChunkOfFile)
{
    if (!stream_)
        throw file.error("", "the file can't be read", errors::kPathAccess);
}

void CheckSum::readUpTo(std::int64_t position)
{
    const std::int64_t end = std::min(position, file_.size);
    while (bytesRead_ < end) {
        const auto wanted = std::min(end - bytesRead_, static_cast<std::int64_t>(chunk_.size()));
        stream_.read(chunk_.data(), static_cast<std::streamsize>(wanted));
        const auto count = stream_.gcount();
        if (count == 0)
            throw file_.error("", "the file can't be read", errors::kPathAccess);
        sum_ = crc32_z(sum_, reinterpret_cast<const Bytef*>(chunk_.data()),
                       static_cast<z_size_t>(count));
        bytesRead_ += count;
    }
}

} // namespace k7deval::sitedb
