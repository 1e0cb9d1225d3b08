#pragma once

#include "sitedb/read/SourceFile.h"

#include <cstdint>
#include <fstream>
#include <vector>

namespace k7deval::sitedb
{

/// The CRC-32 of a file as it lies on the disk, taken while someone else reads its content, so that
/// the disk is read once.
class CheckSum
{
public:
    /// Raises ImportError where the file can't be read. The file has to outlive the sum.
    explicit CheckSum(const SourceFile& file);

    /// Takes in the bytes up to there, or up to the end of the file.
    void readUpTo(std::int64_t position);
    [[nodiscard]] std::int64_t bytesRead() const { return bytesRead_; }
    [[nodiscard]] std::int64_t value() const { return static_cast<std::int64_t>(sum_); }

private:
    const SourceFile& file_;
    std::ifstream stream_;
    std::vector<char> chunk_;
    std::int64_t bytesRead_ = 0;
    unsigned long sum_ = 0; ///< As zlib counts it: that of no bytes is 0.
};

} // namespace k7deval::sitedb
