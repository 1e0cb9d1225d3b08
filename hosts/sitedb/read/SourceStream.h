#pragma once

#include "sitedb/read/CheckSum.h"
#include "sitedb/read/PackedFile.h"
#include "sitedb/read/SourceFile.h"

#include <cstdint>
#include <streambuf>
#include <vector>

namespace k7deval::sitedb
{

/// The text of a file, unpacked if it is gzip and without a byte order mark, one chunk at a time:
/// what a file of any size takes of memory is a chunk of it. When all was read, the file has its
/// check sum. Raises ImportError where the file can't be read or is a damaged or cut-off gzip file.
class SourceStream final : public std::streambuf
{
public:
    /// onBytesRead is told for every 64 KB of the file, and at its end.
    explicit SourceStream(SourceFile& file, OnBytesRead onBytesRead = {});

    /// The line, from 1, of the letter that was read last, or of the end once it was reached.
    [[nodiscard]] std::int64_t line() const;
    /// Whether all was read.
    [[nodiscard]] bool atEnd() const { return atEnd_; }

protected:
    int_type underflow() override;

private:
    void fill();
    void follow();

    SourceFile& file_;
    OnBytesRead onBytesRead_;
    PackedFile packed_;
    CheckSum sum_;
    std::vector<char> text_;
    std::int64_t bytesTold_ = 0;
    std::int64_t linesBefore_ = 0; ///< Line ends ahead of the present chunk.
    bool atBeginning_ = true;
    bool atEnd_ = false;
};

} // namespace k7deval::sitedb
