#include "sitedb/read/SourceStream.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace k7deval::sitedb
{

namespace
{

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

} // namespace

SourceStream::SourceStream(SourceFile& file, OnBytesRead onBytesRead)
    : file_(file), onBytesRead_(std::move(onBytesRead)), packed_(file), sum_(file),
      text_(kChunkOfFile)
{
}

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
    std::size_t size = packed_.read(text_.data(), text_.size());
    char* begin = text_.data();
    if (std::exchange(atBeginning_, false) &&
        std::string_view(begin, size).starts_with(kByteOrderMark)) {
        begin += kByteOrderMark.size();
        size -= kByteOrderMark.size();
    }
    setg(begin, begin, begin + size);
    atEnd_ = size == 0;
    follow();
}

// The check sum is that of the file on the disk, so it follows the reading of the text.
void SourceStream::follow()
{
    sum_.readUpTo(atEnd_ ? file_.size : packed_.position());
    const bool isDue = atEnd_ || sum_.bytesRead() - bytesTold_ >= std::int64_t{kChunkOfFile};
    if (isDue && onBytesRead_) {
        bytesTold_ = sum_.bytesRead();
        onBytesRead_(bytesTold_);
    }
    if (atEnd_)
        file_.crc = sum_.value();
}

} // namespace k7deval::sitedb
