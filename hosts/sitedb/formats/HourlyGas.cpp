#include "sitedb/formats/HourlyGas.h"

namespace k7deval::sitedb
{

const Gas* findHourlyGas(std::string_view parameterCode)
{
    // Moisture and flow are called as their components, concentrations have a letter more.
    if (parameterCode == "H2O" || parameterCode == "FLOW")
        return findGas(parameterCode);
    if (!parameterCode.ends_with('C'))
        return nullptr;
    const Gas* gas = findGas(parameterCode.substr(0, parameterCode.size() - 1));
    return gas == nullptr || gas->componentType == "H2O" || gas->componentType == "FLOW" ? nullptr
                                                                                         : gas;
}

std::optional<PID> findOrAddMeasured(SiteWriter& writer, std::int32_t unit, const Gas& gas,
                                     const std::string& component)
{
    const auto known = writer.analyzers.findMeasured(unit, component);
    const auto measured = known ? known : writer.analyzers.addMeasured(unit, gas, component);
    const bool isOfGas =
        measured && PIDPart(*measured, pidpart::kParameterCode) == gas.parameterCode;
    if (isOfGas && !writer.analyzers.isCalibrated(*measured))
        writer.analyzers.addCalibrationWithoutSpan(*measured, gas, component,
                                                   hasScales(gas) ? Scale::High : Scale::Single);
    return measured;
}

std::vector<std::string> possibleComponents(SiteWriter& writer, std::int32_t unit, const Gas& gas)
{
    auto components = writer.analyzers.components(unit, gas);
    if (components.empty())
        components.emplace_back(gas.componentType);
    return components;
}

} // namespace k7deval::sitedb
