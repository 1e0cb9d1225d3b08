#include "sitedb/read/JsonNode.h"

#include "sitedb/PlainText.h"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace k7deval::sitedb
{

namespace
{

constexpr std::size_t kLongestShown = 40;

/// The line of a byte (from 1) in a text.
std::string lineOfByte(const std::string& text, std::size_t byte)
{
    const auto end =
        text.begin() + static_cast<std::ptrdiff_t>(std::min(text.size(), byte == 0 ? 0 : byte - 1));
    return "line " + std::to_string(1 + std::count(text.begin(), end, '\n'));
}

} // namespace

JsonNode::JsonNode(const SourceFile& file, std::shared_ptr<const nlohmann::json> root,
                   const nlohmann::json& value, std::string path)
    : file_(&file), root_(std::move(root)), value_(&value), path_(std::move(path))
{
}

JsonNode JsonNode::parse(const SourceFile& file)
{
    try {
        auto root = std::make_shared<const nlohmann::json>(nlohmann::json::parse(file.content));
        const nlohmann::json& value = *root;
        return {file, std::move(root), value, ""};
    } catch (const nlohmann::json::parse_error& failure) {
        const bool atEnd = failure.byte > file.content.size();
        throw file.error(lineOfByte(file.content, failure.byte),
                         atEnd ? "the JSON is cut off" : "this is no JSON");
    } catch (const nlohmann::json::out_of_range&) {
        throw file.error("", "a number in the JSON is out of range");
    }
}

JsonNode JsonNode::of(const SourceFile& file, nlohmann::json value, std::string path)
{
    auto root = std::make_shared<const nlohmann::json>(std::move(value));
    const nlohmann::json& held = *root;
    return {file, std::move(root), held, std::move(path)};
}

JsonNode JsonNode::child(const nlohmann::json& value, std::string path) const
{
    return {*file_, root_, value, std::move(path)};
}

bool JsonNode::isNull() const
{
    return value_->is_null();
}

bool JsonNode::isObject() const
{
    return value_->is_object();
}

bool JsonNode::isList() const
{
    return value_->is_array();
}

bool JsonNode::isText() const
{
    return value_->is_string();
}

bool JsonNode::has(std::string_view name) const
{
    return value_->is_object() && value_->contains(name);
}

JsonNode JsonNode::field(std::initializer_list<std::string_view> names) const
{
    if (!value_->is_object())
        throw error(shown() + " is no object");
    const std::string prefix = path_.empty() ? "" : path_ + ".";
    for (const auto name : names) {
        const auto found = value_->find(name);
        if (found != value_->end())
            return child(*found, prefix + std::string(name));
    }
    throw file_->error(prefix + std::string(*names.begin()), "the field is missing");
}

JsonNode JsonNode::fieldOrNull(std::string_view name) const
{
    if (has(name) || !isObject())
        return field(name);
    static const nlohmann::json kNull;
    return child(kNull, (path_.empty() ? "" : path_ + ".") + std::string(name));
}

std::vector<JsonNode> JsonNode::elements() const
{
    if (!value_->is_array())
        throw error(shown() + " is no list");
    std::vector<JsonNode> nodes;
    for (std::size_t index = 0; index < value_->size(); ++index)
        nodes.push_back(child((*value_)[index], path_ + "[" + std::to_string(index) + "]"));
    return nodes;
}

std::vector<JsonNode> JsonNode::list(std::initializer_list<std::string_view> names) const
{
    const bool isThere = std::ranges::any_of(names, [&](auto name) { return has(name); });
    if (isObject() && !isThere)
        return {};
    const JsonNode node = field(names);
    return node.isNull() ? std::vector<JsonNode>() : node.elements();
}

std::vector<std::string> JsonNode::fieldNames() const
{
    if (!isObject())
        throw error(shown() + " is no object");
    std::vector<std::string> names;
    for (const auto& entry : value_->items())
        names.push_back(entry.key());
    return names;
}

std::string JsonNode::text() const
{
    if (!isText())
        throw error(shown() + " is no text");
    return value_->get<std::string>();
}

std::string JsonNode::textOrNull() const
{
    return isNull() ? std::string() : text();
}

std::optional<double> JsonNode::numberOrNull(double limit) const
{
    return numberOrNull(-limit, limit);
}

std::optional<double> JsonNode::numberOrNull(double lowest, double highest) const
{
    if (isNull())
        return std::nullopt;
    if (!value_->is_number())
        throw error(shown() + " is no number");
    return inLimits(value_->get<double>(), lowest, highest);
}

std::optional<double> JsonNode::numberInTextOrNull(double lowest, double highest) const
{
    if (!isText())
        return numberOrNull(lowest, highest);
    const auto number = plainNumber(text());
    if (!number)
        throw error(shown() + " is no number");
    return inLimits(*number, lowest, highest);
}

double JsonNode::inLimits(double number, double lowest, double highest) const
{
    if (number < lowest || number > highest)
        throw error(shown() + " lies outside " + numberText(lowest) + " to " + numberText(highest));
    return number;
}

int JsonNode::whole(int lowest, int highest, std::string_view what) const
{
    const bool isWhole = value_->is_number_integer();
    if (isWhole && *value_ >= lowest && *value_ <= highest)
        return value_->get<int>();
    throw error(shown() + " is no " + std::string(what) + " from " + std::to_string(lowest) +
                " to " + std::to_string(highest));
}

std::string JsonNode::shown() const
{
    if (value_->is_object())
        return "an object";
    if (value_->is_array())
        return "a list";
    std::string text = value_->dump();
    if (text.size() <= kLongestShown)
        return text;
    // A letter of several bytes is not cut in two: the cut goes ahead of its first byte.
    std::size_t cut = kLongestShown;
    while (cut > 0 && (static_cast<unsigned char>(text[cut]) & 0xC0U) == 0x80U)
        --cut;
    return text.substr(0, cut) + "...";
}

ImportError JsonNode::error(std::string_view what) const
{
    return file_->error(path_, what);
}

} // namespace k7deval::sitedb
