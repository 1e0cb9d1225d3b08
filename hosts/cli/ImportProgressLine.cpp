#include "cli/ImportProgressLine.h"

#include "foundation/Date.h"

#include <algorithm>
#include <ostream>
#include <utility>

namespace k7deval::cli
{

namespace
{

constexpr std::int64_t kMegabyte = 1'000'000;
constexpr std::int64_t kLargeFile = 5 * kMegabyte;
constexpr std::int64_t kSecondsBetweenLines = 5;

std::int64_t percentOf(const sitedb::ImportProgress& progress)
{
    return progress.bytesTotal == 0 ? 0 : progress.bytesRead * 100 / progress.bytesTotal;
}

std::string textOf(const std::string& name, const sitedb::ImportProgress& progress)
{
    return name + ": " + std::to_string(percentOf(progress)) + " % of " +
           std::to_string(std::max<std::int64_t>(1, progress.bytesTotal / kMegabyte)) + " MB, " +
           std::to_string(progress.hours) + (progress.hours == 1 ? " hour" : " hours");
}

} // namespace

ImportProgressLine::ImportProgressLine(std::string name, const Console& console)
    : name_(std::move(name)), console_(console), lastTold_(wholeSeconds(console.clock.now()))
{
}

ImportProgressLine::~ImportProgressLine()
{
    if (length_ > 0) {
        rewrite("");
        console_.notes << '\r' << std::flush;
    }
}

void ImportProgressLine::tell(const sitedb::ImportProgress& progress)
{
    if (console_.notesAreTerminal) {
        if (std::exchange(percent_, percentOf(progress)) != percent_)
            rewrite(textOf(name_, progress));
        return;
    }
    const std::int64_t now = wholeSeconds(console_.clock.now());
    if (progress.bytesTotal < kLargeFile || now - lastTold_ < kSecondsBetweenLines)
        return;
    lastTold_ = now;
    console_.notes << textOf(name_, progress) << std::endl;
}

void ImportProgressLine::rewrite(const std::string& text)
{
    const std::size_t rest = length_ > text.size() ? length_ - text.size() : 0;
    console_.notes << '\r' << text << std::string(rest, ' ') << std::flush;
    length_ = text.size();
}

} // namespace k7deval::cli
