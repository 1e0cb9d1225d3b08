#include "cli/CommandRun.h"

#include "cli/Commands.h"
#include "support/FakeSite.h"

#include <gtest/gtest.h>

#include <sstream>

namespace k7deval::cli::test
{

Date timeOfRuns()
{
    return makeDate(2021, 5, 20, 12);
}

Arguments argumentsOf(const std::string& line)
{
    Arguments words;
    std::istringstream rest(line);
    for (char first = 0; rest >> first;) {
        std::string word;
        if (first == '\'')
            std::getline(rest, word, '\'');
        else if (rest.unget())
            rest >> word;
        words.push_back(word);
    }
    return words;
}

CommandRun run(const Arguments& arguments)
{
    std::vector<const char*> argv{"k7deval"};
    for (const auto& argument : arguments)
        argv.push_back(argument.c_str());
    const k7deval::test::FixedClock clock(timeOfRuns());
    std::ostringstream out;
    std::ostringstream notes;
    CommandRun result;
    result.status = static_cast<int>(
        runProgram(static_cast<int>(argv.size()), argv.data(), {out, notes, clock}));
    result.out = out.str();
    result.notes = notes.str();
    return result;
}

nlohmann::json driftAsJson(const Arguments& arguments)
{
    return printedAsJson("drift", arguments);
}

nlohmann::json printedAsJson(const std::string& command, const Arguments& arguments)
{
    const CommandRun printed = run(Arguments{command, "--json"} + arguments);
    auto document = nlohmann::json::parse(printed.out, nullptr, false);
    EXPECT_FALSE(document.is_discarded()) << printed.out << printed.notes;
    return document;
}

Arguments operator+(Arguments first, const Arguments& second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

} // namespace k7deval::cli::test
