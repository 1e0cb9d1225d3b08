#include "foundation/Error.h"

#include <array>
#include <string_view>

namespace k7deval
{

namespace
{

struct Description {
    int number;
    std::string_view text;
};

constexpr std::array kDescriptions{
    Description{errors::kInvalidCall, "Invalid procedure call or argument"},
    Description{errors::kOverflow, "Overflow"},
    Description{errors::kSubscript, "Subscript out of range"},
    Description{errors::kDivisionByZero, "Division by zero"},
    Description{errors::kTypeMismatch, "Type mismatch"},
    Description{errors::kFileNotFound, "File not found"},
    Description{errors::kDiskFull, "Disk full"},
    Description{errors::kPermissionDenied, "Permission denied"},
    Description{errors::kPathAccess, "Path/File access error"},
    Description{errors::kPathNotFound, "Path not found"},
    Description{errors::kObjectNotSet, "Object variable or With block variable not set"},
    Description{errors::kInvalidUseOfNull, "Invalid use of Null"},
    Description{errors::kInvalidArrayIndex, "Invalid property array index"},
    Description{errors::kUnknownMember, "Object doesn't support this property or method"},
    Description{errors::kAutomation, "Automation error"},
    Description{errors::kDuplicateKey,
                "This key is already associated with an element of this collection"},
    Description{errors::kCancelled, "Cancel was selected."},
};

} // namespace

Error::Error(int number, const std::string& description)
    : std::runtime_error(description), number_(number)
{
}

Error::Error(int number) : Error(number, errorDescription(number)) {}

std::string errorDescription(int number)
{
    for (const auto& entry : kDescriptions) {
        if (entry.number == number)
            return std::string(entry.text);
    }
    return errorDescription(errors::kAutomation);
}

Error errorInFlight()
{
    try {
        throw;
    } catch (const Error& error) {
        return error;
    } catch (const std::exception& failure) {
        return {errors::kAutomation, failure.what()};
    } catch (...) {
        return Error(errors::kAutomation);
    }
}

} // namespace k7deval
