#include "cli/ScreenJson.h"

#include "foundation/NumberText.h"
#include "foundation/PropertyOf.h"
#include "foundation/TextFunctions.h"

#include <nlohmann/json.hpp>

#include <cmath>
#include <iterator>
#include <ostream>
#include <utility>

namespace k7deval::cli
{

namespace
{

using Json = nlohmann::ordered_json;

struct JsonForm {
    Json operator()(std::monostate) const { return nullptr; }
    Json operator()(bool value) const { return value; }
    Json operator()(std::int32_t value) const { return value; }
    Json operator()(const std::string& value) const { return value; }

    /// The double that prints as the single does.
    Json operator()(float value) const
    {
        if (!std::isfinite(value))
            return nullptr;
        return toDouble(GeneralNumber(value, {}), RegionalSettings{});
    }

    Json operator()(Date value) const { return replaceAll(minuteKey(value), "/", "-"); }
    Json operator()(const PropertyChoice& choice) const { return choice.number; }
    Json operator()(const PropertyRecord& record) const { return (*this)(record.describe()); }

    Json operator()(const PropertyValues& values) const
    {
        Json list = Json::array();
        for (const auto& value : values)
            list.push_back(std::visit(*this, value.value));
        return list;
    }

    Json operator()(const PropertyMap& entries) const
    {
        Json object = Json::object();
        for (const auto& [key, item] : entries)
            object[std::visit(KeyText{}, key)] = std::visit(*this, item.value);
        return object;
    }

    Json operator()(const PropertyList& properties) const
    {
        Json object = Json::object();
        for (const auto& property : properties)
            object[property.name] = std::visit(*this, property.content.value);
        return object;
    }

private:
    struct KeyText {
        std::string operator()(std::int32_t key) const { return std::to_string(key); }
        std::string operator()(const std::string& key) const { return key; }
    };
};

} // namespace

PropertyList documentOf(const screen::Control& control, PropertyList results,
                        const std::vector<std::string>& messages)
{
    PropertyList document{{"Screen", {control.Properties()}}};
    std::move(results.begin(), results.end(), std::back_inserter(document));
    document.push_back({"Messages", listOf(messages)});
    return document;
}

void printJson(const PropertyList& document, std::ostream& out)
{
    const Json json = JsonForm{}(document);
    out << json.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
}

} // namespace k7deval::cli
