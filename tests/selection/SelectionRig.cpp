#include "selection/SelectionRig.h"

#include <gtest/gtest.h>

namespace k7deval::test
{

namespace
{

ParameterData parameterNamed(PID pid, const std::string& name, std::int32_t type)
{
    ParameterData parameter;
    parameter.pid = pid;
    parameter.name = name;
    parameter.type = type;
    return parameter;
}

std::string lineOf(const screen::GridCells& cells)
{
    const auto* text = std::get_if<std::string>(&cells.second);
    const std::string name = text == nullptr ? "(unset)" : *text;
    const auto* mark = std::get_if<bool>(&cells.first);
    if (mark == nullptr)
        return name;
    return (*mark ? "[x] " : "[ ] ") + name;
}

std::string joined(const Lines& lines)
{
    std::string text;
    for (const std::string& line : lines)
        text += (text.empty() ? "" : ", ") + line;
    return text;
}

} // namespace

std::shared_ptr<SiteData> siteOfThreeUnits()
{
    auto site = std::make_shared<SiteData>();
    const auto add = [&](PID pid, const std::string& name, std::int32_t type = kHourlyType) {
        site->parameters.push_back(parameterNamed(pid, name, type));
    };
    add(kCommon, "Common", kUnitType);
    add(kOpacity, "Opacity");
    add(kGT1, "GT1", kUnitType);
    add(kNox, "NOx");
    add(kCo, "CO");
    add(kO2, "O2");
    add(kGT2, "GT2", kUnitType);
    add(kLoad, "Load");
    add(kFlow, "Flow");
    add(kThirdUnit, "GT3", kUnitType);
    add(kSo2, "SO2");
    return site;
}

DIParameterList collectionOf(const std::shared_ptr<SiteData>& site, const PIDs& pids)
{
    const auto parameters = serve(site)->Parameters();
    DIParameterList list;
    for (const PID pid : pids)
        list.push_back(parameters->Item(pid, -1));
    site->calls.clear();
    return list;
}

Indexes visibleIndexes(const ParamSelect& tool)
{
    Indexes indexes;
    std::int32_t number = 0;
    for (const auto& [key, index] : tool.VisibleRows()) {
        EXPECT_EQ(key, ++number);
        indexes.push_back(index);
    }
    return indexes;
}

Lines view(const ParamSelect& tool)
{
    Lines lines;
    for (std::int32_t row = 1; row <= tool.jgexGrid.RowCount(); ++row)
        lines.push_back(lineOf(tool.jgexGrid.Cells(row)));
    return lines;
}

std::string viewText(const ParamSelect& tool)
{
    return joined(view(tool));
}

std::string entriesOf(const screen::ComboBox& box)
{
    return joined(box.List());
}

PIDs selectionOf(const ParamSelect& tool)
{
    const auto selection = tool.GetSelection();
    if (!selection)
        return {};
    EXPECT_FALSE(selection->empty());
    return *selection;
}

} // namespace k7deval::test
