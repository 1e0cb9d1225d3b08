#include "cli/Commands.h"

#include <exception>
#include <iostream>

int main(int argc, char** argv)
{
    try {
        return static_cast<int>(k7deval::cli::runProgram(argc, argv, {std::cout, std::cerr}));
    } catch (const std::exception& failure) {
        std::cerr << failure.what() << '\n';
        return static_cast<int>(k7deval::cli::Status::BadInput);
    }
}
