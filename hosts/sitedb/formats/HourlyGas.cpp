#include "sitedb/formats/HourlyGas.h"

#include <algorithm>
#include <array>

namespace k7deval::sitedb
{

namespace
{

bool isCalibrated(SiteWriter& writer, PID measured)
{
    constexpr std::array kScales{Scale::Single, Scale::Low, Scale::Mid, Scale::High};
    return std::ranges::any_of(kScales, [&](Scale scale) {
        return writer.attributeText(calibrationPID(measured, scale), attribute::kScale).has_value();
    });
}

} // namespace

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
    const auto known = writer.findMeasured(unit, component);
    const auto measured = known ? known : writer.addMeasured(unit, gas, component);
    const bool isOfGas =
        measured && PIDPart(*measured, pidpart::kParameterCode) == gas.parameterCode;
    if (isOfGas && !isCalibrated(writer, *measured))
        writer.addCalibrationWithoutSpan(*measured, gas, component,
                                         hasScales(gas) ? Scale::High : Scale::Single);
    return measured;
}

std::vector<std::string> possibleComponents(SiteWriter& writer, std::int32_t unit, const Gas& gas)
{
    auto components = writer.components(unit, gas);
    if (components.empty())
        components.emplace_back(gas.componentType);
    return components;
}

} // namespace k7deval::sitedb
