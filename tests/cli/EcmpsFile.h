#pragma once

#include <string>
#include <vector>

namespace k7deval::cli::test
{

/// What an ECMPS file says of one gas injection.
struct EcmpsInjection {
    std::string date; ///< "yyyy-mm-dd"
    std::string error;
    std::string aps;
};

/// A pair of injections as they stand in an exported file.
struct EcmpsRow {
    EcmpsInjection zero;
    EcmpsInjection upscale;
    std::string zeroTime; ///< "yyyy-mm-dd H:M" of the zero injection.
};

struct EcmpsFile {
    std::string testResult;
    std::vector<EcmpsRow> rows;
};

/// Reads an export of the program; std::runtime_error when it is no XML.
EcmpsFile readExport(const std::string& path);

} // namespace k7deval::cli::test
