#include "support/Places.h"

namespace k7deval::test
{

std::string projectFile(const std::string& name)
{
    return std::string(K7DEVAL_SOURCE_DIR) + "/" + name;
}

std::string commandLineProgram()
{
    return K7DEVAL_PROGRAM;
}

} // namespace k7deval::test
