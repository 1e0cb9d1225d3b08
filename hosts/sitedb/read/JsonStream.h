#pragma once

#include "sitedb/read/JsonNode.h"
#include "sitedb/read/SourceStream.h"

#include <cstddef>
#include <functional>
#include <map>
#include <set>
#include <string>

/// JSON files of any size: an object whose long lists are gone through one element at a time.
namespace k7deval::sitedb
{

/// What is taken from a JSON file, and by whom.
struct JsonVisitor {
    /// The top-level lists whose elements are wanted. Others are only counted.
    std::set<std::string> wanted;
    /// Lists inside such an element that are only counted.
    std::set<std::string> notWanted;
    /// A top-level value that is no list.
    std::function<void(const JsonNode&)> field;
    /// An element of a wanted list.
    std::function<void(const std::string& list, const JsonNode&)> element;
};

/// How many elements each list had that was only counted, by name: "summaryValueData",
/// "hourlyOperatingData.derivedHourlyValueData".
using JsonCounts = std::map<std::string, std::size_t>;

/// Goes through a file and holds no more than one element in memory. Raises ImportError for a text
/// that is no JSON object, for one that is cut off, and for a top-level name that stands there
/// twice.
JsonCounts visitJson(SourceStream& stream, const SourceFile& file, const JsonVisitor& visitor);

/// The first of these top-level names that a file has, or an empty text where it has none of them.
/// Reads up to that name, or up to where the text is no JSON object any more.
std::string firstTopLevelName(SourceStream& stream, const std::set<std::string>& names);

} // namespace k7deval::sitedb
