#include "sitedb/read/JsonStream.h"

#include <nlohmann/json.hpp>

#include <istream>
#include <utility>
#include <vector>

namespace k7deval::sitedb
{

namespace
{

using nlohmann::json;

// An hour with all its records has some hundred values.
constexpr std::size_t kMostValues = 1'000'000;

/// Hears what the JSON reader finds, in the order of the file.
class VisitingReader final : public nlohmann::json_sax<json>
{
public:
    VisitingReader(const SourceStream& stream, const SourceFile& file, const JsonVisitor& visitor)
        : stream_(stream), file_(file), visitor_(visitor)
    {
    }

    [[nodiscard]] JsonCounts counts() && { return std::move(counts_); }

    bool null() override { return scalar(nullptr); }
    bool boolean(bool value) override { return scalar(value); }
    bool number_integer(number_integer_t value) override { return scalar(value); }
    bool number_unsigned(number_unsigned_t value) override { return scalar(value); }
    bool number_float(number_float_t value, const string_t&) override { return scalar(value); }
    bool string(string_t& value) override { return scalar(std::move(value)); }
    bool binary(binary_t& value) override { return scalar(std::move(value)); }
    bool start_object(std::size_t) override { return open(json::object()); }
    bool start_array(std::size_t) override { return open(json::array()); }
    bool end_object() override { return close(); }
    bool end_array() override { return close(); }
    bool key(string_t& name) override;
    bool parse_error(std::size_t, const std::string&, const json::exception& failure) override;

private:
    bool scalar(json value);
    bool open(json container);
    bool close();
    bool skips();
    void startCounting(const std::string& name);
    json& place(json value);
    void deliver();
    [[nodiscard]] std::string path() const;
    void checkIsInObject() const;

    const SourceStream& stream_;
    const SourceFile& file_;
    const JsonVisitor& visitor_;
    JsonCounts counts_;

    bool inObject_ = false; ///< Behind the file's first brace.
    std::set<std::string> names_;
    std::string name_; ///< The top-level name that was read last.
    bool inList_ = false;
    std::size_t index_ = 0; ///< Of the element in the list.

    json value_; ///< What is being put together, and the containers in it that are not closed yet.
    std::vector<json*> open_;
    std::size_t size_ = 0;
    std::string key_;

    bool skipNext_ = false; ///< What comes next is only counted, under this name.
    std::string skipName_;
    std::size_t skipDepth_ = 0; ///< Open containers of what is only counted.
};

bool VisitingReader::key(string_t& name)
{
    if (skipDepth_ > 0)
        return true;
    if (!open_.empty()) {
        skipNext_ = inList_ && open_.size() == 1 && visitor_.notWanted.contains(name);
        skipName_ = skipNext_ ? name_ + "." + name : std::string();
        key_ = std::move(name);
        return true;
    }
    name_ = std::move(name);
    if (!names_.insert(name_).second)
        throw file_.error(name_, "the field stands there twice");
    return true;
}

bool VisitingReader::scalar(json value)
{
    checkIsInObject();
    if (skips())
        return true;
    place(std::move(value));
    if (open_.empty())
        deliver();
    return true;
}

bool VisitingReader::open(json container)
{
    if (!inObject_ && container.is_object()) {
        inObject_ = true;
        return true;
    }
    checkIsInObject();
    if (skipDepth_ == 0 && skipNext_) {
        skipNext_ = false;
        startCounting(skipName_);
        return true;
    }
    if (skips()) {
        ++skipDepth_;
        return true;
    }
    if (open_.empty() && !inList_ && container.is_array()) {
        inList_ = visitor_.wanted.contains(name_);
        index_ = 0;
        if (!inList_)
            startCounting(name_);
        return true;
    }
    open_.push_back(&place(std::move(container)));
    return true;
}

bool VisitingReader::close()
{
    if (skipDepth_ > 0) {
        --skipDepth_;
    } else if (!open_.empty()) {
        open_.pop_back();
        if (open_.empty())
            deliver();
    } else {
        // The end of a wanted list, or of the whole.
        inList_ = false;
    }
    return true;
}

/// Whether a value is only counted. Of a list that is, its own elements count.
bool VisitingReader::skips()
{
    if (skipNext_) {
        skipNext_ = false;
        return true;
    }
    if (skipDepth_ == 1)
        ++counts_[skipName_];
    return skipDepth_ > 0;
}

void VisitingReader::startCounting(const std::string& name)
{
    skipName_ = name;
    skipDepth_ = 1;
}

json& VisitingReader::place(json value)
{
    if (++size_ > kMostValues)
        throw file_.error(path(), "the entry is too large");
    if (open_.empty())
        return value_ = std::move(value);
    json& parent = *open_.back();
    if (parent.is_object())
        return parent[key_] = std::move(value);
    parent.push_back(std::move(value));
    return parent.back();
}

void VisitingReader::deliver()
{
    const JsonNode node = JsonNode::of(file_, std::exchange(value_, json()), path());
    size_ = 0;
    if (inList_) {
        visitor_.element(name_, node);
        ++index_;
    } else {
        visitor_.field(node);
    }
}

std::string VisitingReader::path() const
{
    return inList_ ? name_ + "[" + std::to_string(index_) + "]" : name_;
}

void VisitingReader::checkIsInObject() const
{
    if (!inObject_)
        throw file_.error("", "the JSON is no object");
}

bool VisitingReader::parse_error(std::size_t, const std::string&, const json::exception& failure)
{
    constexpr int kNumberOutOfRange = 406;
    const std::string line = "line " + std::to_string(stream_.line());
    if (failure.id == kNumberOutOfRange)
        throw file_.error(line, "a number in the JSON is out of range");
    throw file_.error(line, stream_.atEnd() ? "the JSON is cut off" : "this is no JSON");
}

/// Looks for top-level names and ends the reading at the first that is wanted.
class NameFinder final : public nlohmann::json_sax<json>
{
public:
    explicit NameFinder(const std::set<std::string>& names) : names_(names) {}

    [[nodiscard]] bool found() const { return found_; }

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
        found_ = depth_ == 1 && names_.contains(name);
        return !found_;
    }
    bool parse_error(std::size_t, const std::string&, const json::exception&) override
    {
        return false;
    }

private:
    const std::set<std::string>& names_;
    int depth_ = 0;
    bool found_ = false;
};

} // namespace

JsonCounts visitJson(SourceStream& stream, const SourceFile& file, const JsonVisitor& visitor)
{
    VisitingReader reader(stream, file, visitor);
    std::istream text(&stream);
    json::sax_parse(text, &reader);
    return std::move(reader).counts();
}

bool hasTopLevelName(SourceStream& stream, const std::set<std::string>& names)
{
    NameFinder finder(names);
    std::istream text(&stream);
    json::sax_parse(text, &finder);
    return finder.found();
}

} // namespace k7deval::sitedb
