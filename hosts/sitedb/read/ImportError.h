#pragma once

#include "foundation/Error.h"

#include <string>

namespace k7deval::sitedb
{

/// Why a file was not taken: one plain sentence that names the file, the line or JSON path, and the
/// field. Errors of the database itself are a plain Error.
class ImportError : public Error
{
public:
    explicit ImportError(const std::string& sentence, int number = errors::kInvalidCall)
        : Error(number, sentence)
    {
    }
};

/// The operator ended an import before it was done.
class ImportCancelled : public ImportError
{
public:
    using ImportError::ImportError;
};

} // namespace k7deval::sitedb
