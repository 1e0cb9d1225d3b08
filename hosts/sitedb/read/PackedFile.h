#pragma once

#include "sitedb/read/SourceFile.h"

#include <cstddef>
#include <cstdint>
#include <memory>

struct gzFile_s;

namespace k7deval::sitedb
{

/// The bytes of a file, unpacked where it is gzip. Raises ImportError where the file can't be read
/// or is a damaged or cut-off gzip file.
class PackedFile
{
public:
    /// The file has to outlive the object.
    explicit PackedFile(const SourceFile& file);

    /// Reads the next bytes and says how many those were: fewer than asked for only ahead of the
    /// end, none at the end.
    std::size_t read(char* target, std::size_t size);
    /// How far that is in the file as it lies on the disk.
    [[nodiscard]] std::int64_t position() const;

private:
    struct Close {
        void operator()(gzFile_s* file) const;
    };
    [[nodiscard]] std::size_t readSome(char* target, std::size_t size);
    void checkEnd();
    [[nodiscard]] unsigned long sumOfLast(std::uint32_t size);

    const SourceFile& file_;
    std::unique_ptr<gzFile_s, Close> packed_;
    std::int64_t size_ = 0; ///< Unpacked, as far as it was read.
    unsigned long sum_ = 0; ///< CRC-32 of the same.
};

} // namespace k7deval::sitedb
