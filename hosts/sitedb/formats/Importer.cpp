#include "sitedb/formats/Importer.h"

#include "sitedb/read/CsvTable.h"
#include "sitedb/read/JsonStream.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace k7deval::sitedb
{

namespace
{

using Form = Recognition::Form;

bool isJsonObject(std::string_view content)
{
    const auto first = content.find_first_not_of(" \t\r\n");
    return first != std::string_view::npos && content[first] == '{';
}

template <class Test> const Importer* findImporter(Form form, const Test& isTold)
{
    const auto all = importers();
    const auto found = std::ranges::find_if(all, [&](const Importer& importer) {
        return importer.recognition.form == form && isTold(importer.recognition.names);
    });
    return found == all.end() ? nullptr : &*found;
}

const Importer* findImporterOfTable(const SourceFile& beginning)
{
    const auto header = CsvTable::headerOf(beginning);
    const std::set<std::string> columns(header.begin(), header.end());
    return findImporter(Form::Table, [&](const std::set<std::string>& names) {
        return std::ranges::includes(columns, names);
    });
}

/// Every top-level name that tells a format.
std::set<std::string> tellingNames()
{
    std::set<std::string> names;
    for (const auto& importer : importers()) {
        if (importer.recognition.form == Form::Json)
            names.insert(importer.recognition.names.begin(), importer.recognition.names.end());
    }
    return names;
}

const Importer* findImporterOfJson(SourceFile file)
{
    SourceStream stream(file);
    const std::string told = firstTopLevelName(stream, tellingNames());
    return findImporter(Form::Json, [&](const std::set<std::string>& names) {
        return told.empty() || names.contains(told);
    });
}

} // namespace

const Importer& importerOf(const SourceFile& file)
{
    SourceFile beginning = file;
    readBeginning(beginning);
    const Importer* importer =
        isJsonObject(beginning.content) ? findImporterOfJson(file) : findImporterOfTable(beginning);
    if (importer == nullptr)
        throw file.error("", "this is none of the files that can be imported");
    return *importer;
}

} // namespace k7deval::sitedb
