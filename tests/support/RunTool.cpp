#include "support/RunTool.h"

#include <array>
#include <cstdio>
#include <stdexcept>

namespace k7deval::test
{

namespace
{

std::string quoted(const std::string& argument)
{
    std::string text = "'";
    for (const char c : argument)
        text += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return text + "'";
}

std::string readAll(std::FILE* stream)
{
    std::string output;
    std::array<char, 4096> buffer{};
    std::size_t count = 0;
    while ((count = std::fread(buffer.data(), 1, buffer.size(), stream)) > 0)
        output.append(buffer.data(), count);
    return output;
}

std::string outputOf(const std::string& command)
{
    std::FILE* const stream = popen(command.c_str(), "r");
    if (stream == nullptr)
        throw std::runtime_error("cannot run " + command);
    std::string output = readAll(stream);
    if (const int status = pclose(stream); status != 0)
        throw std::runtime_error(command + " ended with status " + std::to_string(status) + "\n" +
                                 output);
    return output;
}

std::string asCommand(const std::vector<std::string>& commandLine)
{
    std::string command;
    for (const std::string& argument : commandLine)
        command += quoted(argument) + " ";
    return command;
}

} // namespace

std::string runTool(const std::vector<std::string>& commandLine)
{
    return outputOf(asCommand(commandLine));
}

std::string complaintsOfTool(const std::vector<std::string>& commandLine)
{
    return outputOf(asCommand(commandLine) + "2>&1 >/dev/null");
}

} // namespace k7deval::test
