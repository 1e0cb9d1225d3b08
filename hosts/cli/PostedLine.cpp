#include "cli/PostedLine.h"

namespace k7deval::cli
{

namespace
{

struct KnownLine {
    const char* start;
    const char* cause;
};

constexpr KnownLine kKnownLines[] = {
    {"DEval-003: 94,", "because a calibration of the interval lacks a value "},
    {"DEval-005: 5, Invalid procedure call", "because the interval reaches beyond the calendar "},
    {"DEval-018: 94,", "because the unit lacks a figure such as its ORIS code, which comes with QA "
                       "data "},
};

} // namespace

std::string asReason(const std::string& line)
{
    std::string cause = "because a step failed ";
    for (const auto& known : kKnownLines) {
        if (line.starts_with(known.start))
            cause = known.cause;
    }
    return cause + "(" + line + ")";
}

} // namespace k7deval::cli
