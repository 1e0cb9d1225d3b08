#pragma once

#include <stdexcept>

namespace k7deval::cli
{

/// Bad usage or input of the command line, told in one plain sentence. The program ends with
/// status 2.
class UsageError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

} // namespace k7deval::cli
