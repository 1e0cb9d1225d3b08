#include "cli/Commands.h"

#include <cstdio>
#include <iostream>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace
{

bool isTerminal(std::FILE* file)
{
#ifdef _WIN32
    return _isatty(_fileno(file)) != 0;
#else
    return isatty(fileno(file)) != 0;
#endif
}

} // namespace

int main(int argc, char** argv)
{
    const k7deval::SystemClock clock;
    return static_cast<int>(
        k7deval::cli::runProgram(argc, argv, {std::cout, std::cerr, clock, isTerminal(stderr)}));
}
