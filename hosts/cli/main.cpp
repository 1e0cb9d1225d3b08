#include "cli/Commands.h"

#include <iostream>

int main(int argc, char** argv)
{
    const k7deval::SystemClock clock;
    return static_cast<int>(k7deval::cli::runProgram(argc, argv, {std::cout, std::cerr, clock}));
}
