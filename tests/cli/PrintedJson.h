#pragma once

#include "cli/ScreenJson.h"

#include <nlohmann/json.hpp>

#include <sstream>

namespace k7deval::cli::test
{

/// Properties as the program prints them, read back.
inline nlohmann::json printed(const PropertyList& properties)
{
    std::ostringstream out;
    printJson(properties, out);
    return nlohmann::json::parse(out.str());
}

} // namespace k7deval::cli::test
