#pragma once

#include <stdexcept>
#include <string>

namespace k7deval
{

/// The system's numbers for its failures.
namespace errors
{
inline constexpr int kInvalidCall = 5;
inline constexpr int kOverflow = 6;
inline constexpr int kSubscript = 9;
inline constexpr int kDivisionByZero = 11;
inline constexpr int kTypeMismatch = 13;
inline constexpr int kFileNotFound = 53;
inline constexpr int kDiskFull = 61;
inline constexpr int kPermissionDenied = 70;
inline constexpr int kPathAccess = 75;
inline constexpr int kPathNotFound = 76;
inline constexpr int kObjectNotSet = 91;
inline constexpr int kInvalidUseOfNull = 94;
inline constexpr int kInvalidArrayIndex = 381;
inline constexpr int kUnknownMember = 438;
inline constexpr int kAutomation = 440;
inline constexpr int kDuplicateKey = 457;
inline constexpr int kCancelled = 32755;
} // namespace errors

/// A failure that a host or a user can cause: a number and a description.
class Error : public std::runtime_error
{
public:
    Error(int number, const std::string& description);
    /// The error with that number and its usual description.
    explicit Error(int number);

    [[nodiscard]] int number() const { return number_; }
    [[nodiscard]] std::string description() const { return what(); }

private:
    int number_;
};

/// The usual description of an error number; "Automation error" for a number without one.
std::string errorDescription(int number);

/// The error of the exception being handled, to be called in a handler; 440 with the exception's
/// own text for one without a number.
Error errorInFlight();

} // namespace k7deval
