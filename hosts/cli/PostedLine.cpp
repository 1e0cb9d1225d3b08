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
    {"DEval-003: 94,", "because a calibration of the interval lacks a value"},
    {"DEval-005: 5, Invalid procedure call", "because the interval reaches beyond the calendar"},
    {"DEval-015: 9,", "because no calibration is shown"},
    {"DEval-015: 13,", "because the ORIS code is missing"},
    {"DEval-015: 91,", "because a calibration that counts lacks its zero or its upscale injection"},
    {"DEval-018: 94,", "because the unit lacks a figure such as its ORIS code, which comes with QA "
                       "data"},
};

} // namespace

std::string asReason(const std::string& line, const std::string& otherwise)
{
    std::string cause = otherwise;
    for (const auto& known : kKnownLines) {
        if (line.starts_with(known.start))
            cause = known.cause;
    }
    // A description that is a sentence itself ends with a full stop.
    return cause + (cause.empty() ? "(" : " (") + line.substr(0, line.find_last_not_of('.') + 1) +
           ")";
}

} // namespace k7deval::cli
