#pragma once

#include "sitedb/read/SourceFile.h"

#include <nlohmann/json_fwd.hpp>

#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace k7deval::sitedb
{

/// A value in a JSON file together with its path, such as testSummaryData[1].unitId. Every member
/// that finds something else than it should raises ImportError with file and path.
class JsonNode
{
public:
    /// The root of a file's JSON.
    static JsonNode parse(const SourceFile& file);
    /// A value that was read from a file by itself, and its path there.
    static JsonNode of(const SourceFile& file, nlohmann::json value, std::string path);

    [[nodiscard]] const std::string& path() const { return path_; }
    [[nodiscard]] bool isNull() const;
    [[nodiscard]] bool isObject() const;
    [[nodiscard]] bool isList() const;
    [[nodiscard]] bool isText() const;
    [[nodiscard]] bool has(std::string_view name) const;

    /// The first of the named fields that the object has; the file's layouts spell some of them
    /// differently.
    [[nodiscard]] JsonNode field(std::initializer_list<std::string_view> names) const;
    [[nodiscard]] JsonNode field(std::string_view name) const { return field({name}); }
    /// The named field, or null where the object does not have it.
    [[nodiscard]] JsonNode fieldOrNull(std::string_view name) const;
    /// The elements of a list.
    [[nodiscard]] std::vector<JsonNode> elements() const;

    /// The elements of the first of the named lists; none where the object has none of them or
    /// null.
    [[nodiscard]] std::vector<JsonNode> list(std::initializer_list<std::string_view> names) const;
    /// The names of an object's fields.
    [[nodiscard]] std::vector<std::string> fieldNames() const;

    [[nodiscard]] std::string text() const;
    /// Empty for null.
    [[nodiscard]] std::string textOrNull() const;
    /// A number of either sign up to limit, or nothing for null.
    [[nodiscard]] std::optional<double> numberOrNull(double limit) const;
    /// A number from lowest to highest, or nothing for null.
    [[nodiscard]] std::optional<double> numberOrNull(double lowest, double highest) const;
    /// The same for a number that may also stand there as a text, such as "1.44E-2".
    [[nodiscard]] std::optional<double> numberInTextOrNull(double lowest, double highest) const;
    /// A whole number from lowest to highest; what names it in the sentence: "hour".
    [[nodiscard]] int whole(int lowest, int highest, std::string_view what) const;

    /// The value for a sentence: a number or word as it stands, a text in quotes, cut if it is
    /// long.
    [[nodiscard]] std::string shown() const;
    [[nodiscard]] ImportError error(std::string_view what) const;

private:
    JsonNode(const SourceFile& file, std::shared_ptr<const nlohmann::json> root,
             const nlohmann::json& value, std::string path);
    [[nodiscard]] double inLimits(double number, double lowest, double highest) const;
    [[nodiscard]] JsonNode child(const nlohmann::json& value, std::string path) const;

    const SourceFile* file_;
    std::shared_ptr<const nlohmann::json> root_;
    const nlohmann::json* value_;
    std::string path_;
};

} // namespace k7deval::sitedb
