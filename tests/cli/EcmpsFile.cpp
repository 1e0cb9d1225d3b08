#include "cli/EcmpsFile.h"

#include <pugixml.hpp>

#include <stdexcept>

namespace k7deval::cli::test
{

namespace
{

EcmpsInjection injection(const pugi::xml_node& data, const std::string& gas)
{
    const auto text = [&](const char* name) {
        return std::string(data.child_value((gas + name).c_str()));
    };
    return {text("InjectionDate"), text("CalibrationError"), text("APSIndicator")};
}

EcmpsRow row(const pugi::xml_node& data)
{
    return {injection(data, "Zero"), injection(data, "Upscale"),
            std::string(data.child_value("ZeroInjectionDate")) + " " +
                data.child_value("ZeroInjectionHour") + ":" +
                data.child_value("ZeroInjectionMinute")};
}

} // namespace

EcmpsFile readExport(const std::string& path)
{
    pugi::xml_document document;
    if (!document.load_file(path.c_str()))
        throw std::runtime_error("no XML in " + path);
    const pugi::xml_node summary =
        document.child("QualityAssuranceAndCert").child("TestSummaryData");
    EcmpsFile file;
    file.testResult = summary.child_value("TestResultCode");
    for (const pugi::xml_node data : summary.children("CalibrationInjectionData"))
        file.rows.push_back(row(data));
    return file;
}

} // namespace k7deval::cli::test
