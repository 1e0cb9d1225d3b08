#pragma once

#include "foundation/DIDataSet.h"
#include "foundation/DataCodes.h"
#include "foundation/Date.h"
#include "foundation/Error.h"
#include "foundation/PIDFunctions.h"
#include "foundation/RegionalSettings.h"
#include "foundation/Variant.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// The one door through which every unit, parameter, hourly value, calibration record and site fact
/// reaches the tools. A host implements these classes; any member may raise an Error, which the
/// tools pass on or post as a numbered line.
namespace k7deval
{

class DIParameter;
class DIRecord;
using DIParameterList = std::vector<std::shared_ptr<DIParameter>>;
using DIRecordList = std::vector<std::shared_ptr<DIRecord>>;
using ParamTypes = std::vector<std::int32_t>;

/// A data interval; both are 1 for one hour.
struct DIInterval {
    std::int32_t Multiple = 1;
    std::int32_t Unit = 1;
    friend bool operator==(const DIInterval&, const DIInterval&) = default;
};

/// Anything with a PID: a unit, an hourly series, a constant, a calibration definition.
class DIParameter
{
public:
    virtual ~DIParameter() = default;
    [[nodiscard]] virtual k7deval::PID PID() = 0;
    /// The display name; the argument is always 0.
    [[nodiscard]] virtual std::string Name(std::int32_t form) = 0;
    [[nodiscard]] virtual std::int32_t ParamType() = 0;
    [[nodiscard]] virtual std::string UnitsText() = 0;
    [[nodiscard]] virtual DIInterval Interval() = 0;
    /// Fills the prepared set with this parameter's values and status words.
    virtual void ReadData(DIDataSet& set) = 0;
    /// The present value of a constant: a set of one slot. The arguments are always 0.
    [[nodiscard]] virtual DIDataSet CurrentPoint(std::int32_t, std::int32_t, std::int32_t) = 0;
    /// A configuration attribute; Null when it is not configured.
    [[nodiscard]] virtual Variant GetAttribute(std::int32_t id) = 0;
    /// A configuration attribute that holds a PID; 0 when it is not configured.
    [[nodiscard]] virtual Variant GetLinkedPID(std::int32_t id) = 0;
};

class DIParameters
{
public:
    virtual ~DIParameters() = default;
    [[nodiscard]] virtual bool Exists(PID pid) = 0;
    /// The parameter with this PID; an error when there is none. The second argument is always -1.
    [[nodiscard]] virtual std::shared_ptr<DIParameter> Item(PID pid, std::int32_t) = 0;
};

/// What an hour's status word says.
class DIStatusCodes
{
public:
    virtual ~DIStatusCodes() = default;
    [[nodiscard]] virtual bool IsValid(std::int32_t status) = 0;
    [[nodiscard]] virtual bool IsExcluded(std::int32_t status) = 0;
    [[nodiscard]] virtual bool IsUnitOffline(std::int32_t status) = 0;
    /// Display name of the unit that a PID belongs to.
    [[nodiscard]] virtual std::string UnitName(PID pid) = 0;
};

/// One gas injection of a calibration, or the definition of a calibration.
class DIRecord
{
public:
    virtual ~DIRecord() = default;
    /// Time stamp of the run; the injections of one run carry the same minute.
    [[nodiscard]] virtual Date RunTime() = 0;
    [[nodiscard]] virtual std::string Scale() = 0;
    /// 0 zero gas, 1 and 2 upscale gas; any other value is ignored.
    [[nodiscard]] virtual std::int32_t GasLevelCode() = 0;
    [[nodiscard]] virtual std::string GasLevelText() = 0;
    [[nodiscard]] virtual Variant ReferenceValue() = 0;
    [[nodiscard]] virtual Variant MeasuredValue() = 0;
    /// End of the injection; the zero date when not recorded.
    [[nodiscard]] virtual Date InjectionEnd() = 0;
    [[nodiscard]] virtual Variant Manual() = 0;
    [[nodiscard]] virtual std::int32_t CalStatus() = 0;
    [[nodiscard]] virtual Variant Span() = 0;
    /// PID of the parameter that the record was taken for.
    [[nodiscard]] virtual Variant SourceTagID() = 0;
};

/// A query for the records of one PID and scale in a time range. The fields stand in the order of
/// the data interface; those without a meaning to the tools carry the values that it asks for.
struct RangeRecordQuery {
    std::string siteKey;
    std::int32_t argument2 = 0;
    Date start;
    Date end;
    std::string argument5;
    k7deval::PID pid = 0;
    std::int32_t argument7 = 0;
    std::string argument8;
    std::string scale;
    std::string argument10;
    std::string tables; ///< Comma-separated.
    std::int32_t argument12 = 0;
    std::int32_t argument13 = 0;
    std::int32_t argument14 = 1;
    friend bool operator==(const RangeRecordQuery&, const RangeRecordQuery&) = default;
};

/// A query for the records of a table for one PID.
struct RecordQuery {
    std::string siteKey;
    std::int32_t argument2 = 0;
    Date argument3;
    Date argument4;
    std::string argument5;
    std::int32_t argument6 = 0;
    k7deval::PID pid = 0;
    std::string argument8;
    std::string argument9;
    std::string argument10;
    std::string table;
    friend bool operator==(const RecordQuery&, const RecordQuery&) = default;
};

class DIRecordStore
{
public:
    virtual ~DIRecordStore() = default;
    /// An empty list when nothing is found.
    [[nodiscard]] virtual DIRecordList ReadRangeRecords(const RangeRecordQuery& query) = 0;
    [[nodiscard]] virtual DIRecordList ReadRecords(const RecordQuery& query) = 0;
};

class DILookupEntry
{
public:
    virtual ~DILookupEntry() = default;
    [[nodiscard]] virtual std::string Value() = 0;
};

class DILookups
{
public:
    virtual ~DILookups() = default;
    /// The entry of a key in a table, or nothing. Arguments: site key, 1, table, key, empty text.
    [[nodiscard]] virtual std::shared_ptr<DILookupEntry>
    Find(const std::string& siteKey, std::int32_t, const std::string& table, const std::string& key,
         const std::string&) = 0;
};

class DILookupService
{
public:
    virtual ~DILookupService() = default;
    [[nodiscard]] virtual std::shared_ptr<DILookups> Lookups() = 0;
};

class DISiteInfo
{
public:
    virtual ~DISiteInfo() = default;
    [[nodiscard]] virtual std::string SiteKey() = 0;
};

/// The data of one site. Calls come one at a time, from one thread.
class DIServer
{
public:
    virtual ~DIServer() = default;
    [[nodiscard]] virtual std::shared_ptr<DIParameters> Parameters() = 0;
    /// The units, in the order in which lists show them.
    [[nodiscard]] virtual DIParameterList Units() = 0;
    [[nodiscard]] virtual DIParameterList ParametersOfTypes(const ParamTypes& types) = 0;
    [[nodiscard]] virtual DIParameterList ParametersOfUnit(std::int32_t unit,
                                                           const ParamTypes& types) = 0;
    /// "h" is hourly.
    [[nodiscard]] virtual DIParameterList ParametersOfInterval(const std::string& interval) = 0;
    /// The third argument is always 3.
    [[nodiscard]] virtual DIParameterList ParametersOfUnitTypes(const ParamTypes& types,
                                                                std::int32_t unit, std::int32_t,
                                                                const std::string& interval) = 0;
    [[nodiscard]] virtual DIParameterList
    ConstantsOfUnitTypes(const ParamTypes& types, std::int32_t unit, const ParamTypes& subset) = 0;
    [[nodiscard]] virtual std::shared_ptr<DIStatusCodes> StatusCodes() = 0;
    [[nodiscard]] virtual std::shared_ptr<DIRecordStore> RecordStore() = 0;
    [[nodiscard]] virtual std::shared_ptr<DILookupService> LookupService() = 0;
    [[nodiscard]] virtual std::shared_ptr<DISiteInfo> SiteInfo() = 0;
    /// The same as SiteInfo()->SiteKey().
    [[nodiscard]] virtual std::string SiteKey() = 0;
};

/// Where the tools post their numbered lines.
class MessageSink
{
public:
    virtual ~MessageSink() = default;
    virtual void Post(std::int32_t severity, const std::string& text) = 0;
};

/// The object behind a handle; error 91 when there is none.
template <class Handle> auto& present(const Handle& handle)
{
    if (!handle)
        throw Error(errors::kObjectNotSet);
    return *handle;
}

/// Whether a parameter defines calibrations, by the table that it keeps its records in.
bool definesCalibrations(DIParameter& parameter);
/// Whether lists leave a parameter out; nothing where that is not configured.
std::optional<bool> isLeftOutOfLists(DIParameter& parameter, const RegionalSettings& settings);

/// The name of the facility from the site's lookup table, or "<Facility Name>" when it has none.
std::string facilityName(DIServer& server);

} // namespace k7deval
