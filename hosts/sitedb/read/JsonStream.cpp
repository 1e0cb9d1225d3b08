#include "sitedb/read/JsonStream.h"

#include <nlohmann/json.hpp>

#include <istream>
#include <utility>

namespace k7deval::sitedb
{

namespace
{

using nlohmann::json;
using Event = json::parse_event_t;

// An hour with all its records has some hundred values.
constexpr std::size_t kMostValues = 1'000'000;

// How deep the parts of a file stand in it.
constexpr int kRoot = 0;
constexpr int kField = 1;       // A top-level name and its value.
constexpr int kElement = 2;     // An element of a top-level list.
constexpr int kPart = 3;        // A name in such an element and its value.
constexpr int kPartElement = 4; // An element of a list there.

/// Is asked by the JSON reader what to keep of a file: a field or an element until it is complete
/// and handed on, so that no more than one is held.
class EntryFilter
{
public:
    EntryFilter(const SourceFile& file, const JsonVisitor& visitor) : file_(file), visitor_(visitor)
    {
    }

    [[nodiscard]] JsonCounts counts() && { return std::move(counts_); }

    bool keeps(int depth, Event event, json& value)
    {
        if (depth == kRoot)
            return isObject(event);
        switch (event) {
        case Event::key:
            begin(depth, value.get<std::string>());
            return true;
        case Event::object_start:
        case Event::array_start:
            checkSize();
            inList_ = inList_ || (depth == kField && event == Event::array_start);
            return true;
        case Event::value:
            checkSize();
            return keepsComplete(depth, value);
        default:
            return keepsComplete(depth, value);
        }
    }

private:
    [[nodiscard]] bool isObject(Event event) const
    {
        if (event != Event::object_start && event != Event::object_end)
            throw file_.error("", "the JSON is no object");
        return true;
    }

    void begin(int depth, const std::string& name)
    {
        if (depth == kField)
            beginField(name);
        else if (depth == kPart)
            part_ = inList_ && isWanted() && visitor_.notWanted.contains(name) ? name_ + "." + name
                                                                               : std::string();
    }

    void beginField(const std::string& name)
    {
        name_ = name;
        inList_ = false;
        index_ = 0;
        size_ = 0;
        if (!names_.insert(name).second)
            throw file_.error(name, "the field stands there twice");
    }

    bool keepsComplete(int depth, json& value)
    {
        if (depth == kField)
            return keepsField(value);
        if (depth == kElement && inList_)
            return keepsElement(value);
        if (depth == kPartElement && !part_.empty()) {
            ++counts_[part_];
            return false;
        }
        return true;
    }

    bool keepsField(json& value)
    {
        if (!inList_)
            visitor_.field(node(value));
        return false;
    }

    bool keepsElement(json& value)
    {
        if (isWanted())
            visitor_.element(name_, node(value));
        else
            ++counts_[name_];
        ++index_;
        size_ = 0;
        part_.clear();
        return false;
    }

    [[nodiscard]] bool isWanted() const { return visitor_.wanted.contains(name_); }

    [[nodiscard]] JsonNode node(json& value) const
    {
        return JsonNode::of(file_, std::move(value), path());
    }

    [[nodiscard]] std::string path() const
    {
        return inList_ ? name_ + "[" + std::to_string(index_) + "]" : name_;
    }

    void checkSize()
    {
        if (++size_ > kMostValues)
            throw file_.error(path(), "the entry is too large");
    }

    const SourceFile& file_;
    const JsonVisitor& visitor_;
    JsonCounts counts_;
    std::set<std::string> names_;
    std::string name_; ///< The top-level name that was read last.
    bool inList_ = false;
    std::size_t index_ = 0; ///< Of the element in the list.
    std::size_t size_ = 0;  ///< Values of the field or element, as far as it was read.
    std::string part_;      ///< The list in an element that is only counted.
};

/// Looks for top-level names and ends the reading at the first that is wanted.
class NameFinder final : public nlohmann::json_sax<json>
{
public:
    explicit NameFinder(const std::set<std::string>& names) : names_(names) {}

    [[nodiscard]] const std::string& found() const { return found_; }

    bool null() override { return depth_ > 0; }
    bool boolean(bool) override { return depth_ > 0; }
    bool number_integer(number_integer_t) override { return depth_ > 0; }
    bool number_unsigned(number_unsigned_t) override { return depth_ > 0; }
    bool number_float(number_float_t, const string_t&) override { return depth_ > 0; }
    bool string(string_t&) override { return depth_ > 0; }
    bool binary(binary_t&) override { return depth_ > 0; }
    bool start_object(std::size_t) override { return ++depth_ > 0; }
    bool end_object() override { return --depth_ > 0; }
    bool start_array(std::size_t) override { return depth_++ > 0; }
    bool end_array() override { return --depth_ > 0; }
    bool key(string_t& name) override
    {
        if (depth_ == 1 && names_.contains(name))
            found_ = name;
        return found_.empty();
    }
    bool parse_error(std::size_t, const std::string&, const json::exception&) override
    {
        return false;
    }

private:
    const std::set<std::string>& names_;
    int depth_ = 0;
    std::string found_;
};

} // namespace

JsonCounts visitJson(SourceStream& stream, const SourceFile& file, const JsonVisitor& visitor)
{
    EntryFilter filter(file, visitor);
    std::istream text(&stream);
    const auto lineError = [&](const char* what) {
        return file.error("line " + std::to_string(stream.line()), what);
    };
    try {
        [[maybe_unused]] const json emptied =
            json::parse(text, [&filter](int depth, Event event, json& value) {
                return filter.keeps(depth, event, value);
            });
    } catch (const json::out_of_range&) {
        throw lineError("a number in the JSON is out of range");
    } catch (const json::parse_error&) {
        throw lineError(stream.atEnd() ? "the JSON is cut off" : "this is no JSON");
    }
    return std::move(filter).counts();
}

std::string firstTopLevelName(SourceStream& stream, const std::set<std::string>& names)
{
    NameFinder finder(names);
    std::istream text(&stream);
    json::sax_parse(text, &finder);
    return finder.found();
}

} // namespace k7deval::sitedb
