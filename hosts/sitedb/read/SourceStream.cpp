#include "sitedb/read/SourceStream.h"

// Lets zlib read its input through a pointer to const.
#define ZLIB_CONST
#include <zlib.h>

#include <algorithm>
#include <string_view>
#include <utility>

namespace k7deval::sitedb
{

namespace
{

constexpr std::size_t kChunk = std::size_t{64} << 10U;
constexpr std::string_view kGzipMark = "\x1f\x8b";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr int kGzipWindow = 15 + 16;

} // namespace

/// Unpacks the members of a gzip file, one behind the other.
class Inflater
{
public:
    explicit Inflater(const SourceFile& file) : file_(file)
    {
        if (inflateInit2(&stream_, kGzipWindow) != Z_OK)
            throw file.error("", "there is not enough memory to unpack it");
    }
    Inflater(const Inflater&) = delete;
    Inflater& operator=(const Inflater&) = delete;
    ~Inflater() { inflateEnd(&stream_); }

    // A full target may have left unpacked text behind although all input is taken.
    [[nodiscard]] bool needsInput() const { return stream_.avail_in == 0 && !targetWasFull_; }
    void give(std::string_view packed)
    {
        stream_.next_in = reinterpret_cast<const Bytef*>(packed.data());
        stream_.avail_in = static_cast<uInt>(packed.size());
    }

    /// Unpacks what it can of the input and says how much that was.
    std::size_t run(char* target, std::size_t size)
    {
        if (!inMember_)
            inflateReset(&stream_);
        stream_.next_out = reinterpret_cast<Bytef*>(target);
        stream_.avail_out = static_cast<uInt>(size);
        const int code = inflate(&stream_, Z_NO_FLUSH);
        if (code != Z_OK && code != Z_BUF_ERROR && code != Z_STREAM_END)
            throw file_.error("", "the gzip file is damaged");
        inMember_ = code != Z_STREAM_END;
        targetWasFull_ = stream_.avail_out == 0;
        return size - stream_.avail_out;
    }

    void checkIsComplete() const
    {
        if (inMember_)
            throw file_.error("", "the gzip file is cut off");
    }

private:
    const SourceFile& file_;
    z_stream stream_{};
    bool inMember_ = false;
    bool targetWasFull_ = false;
};

SourceStream::SourceStream(const std::filesystem::path& path, const SourceFile& file,
                           OnChunk onChunk)
    : file_(file), onChunk_(std::move(onChunk)), stream_(path, std::ios::binary), raw_(kChunk),
      text_(kChunk)
{
    if (!stream_)
        throw file.error("", "the file can't be read", errors::kPathAccess);
}

SourceStream::~SourceStream() = default;

std::int64_t SourceStream::line() const
{
    const char* end = atEnd_ || gptr() == eback() ? gptr() : gptr() - 1;
    return 1 + linesBefore_ + std::count(static_cast<const char*>(eback()), end, '\n');
}

SourceStream::int_type SourceStream::underflow()
{
    if (!atEnd_)
        fill();
    return atEnd_ ? traits_type::eof() : traits_type::to_int_type(*gptr());
}

void SourceStream::fill()
{
    linesBefore_ += std::count(eback(), egptr(), '\n');
    if (!opened_) {
        openText();
    } else {
        const std::size_t size = readText();
        setg(text_.data(), text_.data(), text_.data() + size);
    }
    atEnd_ = gptr() == egptr();
}

// The first chunk tells whether the file is packed, and whether its text begins with a mark.
void SourceStream::openText()
{
    opened_ = true;
    rawSize_ = readRaw();
    if (std::string_view(raw_.data(), rawSize_).starts_with(kGzipMark)) {
        inflater_ = std::make_unique<Inflater>(file_);
        inflater_->give({raw_.data(), rawSize_});
    }
    std::string first;
    for (std::size_t size = 1; size > 0 && first.size() < kByteOrderMark.size();) {
        size = readText();
        first.append(text_.data(), size);
    }
    if (first.starts_with(kByteOrderMark))
        first.erase(0, kByteOrderMark.size());
    if (first.empty()) {
        const std::size_t size = readText();
        first.assign(text_.data(), size);
    }
    text_.resize(std::max(text_.size(), first.size()));
    std::ranges::copy(first, text_.begin());
    setg(text_.data(), text_.data(), text_.data() + first.size());
}

std::size_t SourceStream::readRaw()
{
    stream_.read(raw_.data(), static_cast<std::streamsize>(raw_.size()));
    if (stream_.bad())
        throw file_.error("", "the file can't be read", errors::kPathAccess);
    const auto size = stream_.gcount();
    bytesRead_ += size;
    if (size > 0 && onChunk_)
        onChunk_(bytesRead_);
    return static_cast<std::size_t>(size);
}

std::size_t SourceStream::readText()
{
    if (!inflater_) {
        // The chunk that told the kind of file is text already.
        const std::size_t size = rawSize_ > 0 ? std::exchange(rawSize_, 0) : readRaw();
        std::copy_n(raw_.begin(), size, text_.begin());
        return size;
    }
    while (true) {
        if (inflater_->needsInput()) {
            const std::size_t size = readRaw();
            if (size == 0) {
                inflater_->checkIsComplete();
                return 0;
            }
            inflater_->give({raw_.data(), size});
        }
        const std::size_t size = inflater_->run(text_.data(), text_.size());
        if (size > 0)
            return size;
    }
}

} // namespace k7deval::sitedb
