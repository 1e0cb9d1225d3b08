#pragma once

#include "sitedb/read/SourceFile.h"

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <streambuf>
#include <vector>

namespace k7deval::sitedb
{

class Inflater;

/// The text of a file, unpacked if it is gzip and without a byte order mark, one chunk at a time:
/// what a file of any size takes of memory is a chunk of it. Raises ImportError where the file
/// can't be read or is a damaged or cut-off gzip file.
class SourceStream final : public std::streambuf
{
public:
    /// Is told after each chunk how many bytes of the file, as it lies on the disk, were read.
    using OnChunk = std::function<void(std::int64_t)>;

    SourceStream(const std::filesystem::path& path, const SourceFile& file, OnChunk onChunk = {});
    SourceStream(const SourceStream&) = delete;
    SourceStream& operator=(const SourceStream&) = delete;
    ~SourceStream() override;

    /// The line, from 1, of the letter that was read last, or of the end once it was reached.
    [[nodiscard]] std::int64_t line() const;
    /// Whether all was read.
    [[nodiscard]] bool atEnd() const { return atEnd_; }

protected:
    int_type underflow() override;

private:
    void openText();
    std::size_t readRaw();
    std::size_t readText();
    void fill();

    const SourceFile& file_;
    OnChunk onChunk_;
    std::ifstream stream_;
    std::vector<char> raw_;
    std::size_t rawSize_ = 0;
    std::int64_t bytesRead_ = 0;
    std::unique_ptr<Inflater> inflater_; ///< Of a gzip file only.
    std::vector<char> text_;
    std::int64_t linesBefore_ = 0; ///< Line ends ahead of the present chunk.
    bool opened_ = false;
    bool atEnd_ = false;
};

} // namespace k7deval::sitedb
