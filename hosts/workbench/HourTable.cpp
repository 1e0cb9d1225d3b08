#include "workbench/HourTable.h"

#include "foundation/DateText.h"
#include "foundation/UtilityFunctions.h"
#include "qt/Texts.h"
#include "workbench/SiteReading.h"

#include <algorithm>
#include <cmath>
#include <set>

namespace k7deval::workbench
{

namespace
{

/// The style of a time that shows hours and minutes alone.
constexpr std::int32_t kHoursAndMinutes = 0;

bool isThere(double value)
{
    return std::isfinite(value);
}

} // namespace

bool HourSeries::hasValue() const
{
    return std::ranges::any_of(hours.values(), isThere);
}

HourSeries readSeries(DIServer& server, PID pid, Date first, std::int32_t hours)
{
    const auto parameter = present(server.Parameters()).Item(pid, -1);
    HourSeries series;
    series.name = nameWithUnit(server, present(parameter));
    series.units = qt::toQString(parameter->UnitsText());
    series.hours.Init(first, hours, "h", 1, 0);
    parameter->ReadData(series.hours);
    return series;
}

HourTable::HourTable(std::vector<HourSeries> series, DIStatusCodes& codes,
                     const RegionalSettings& regional)
    : series_(std::move(series)), regional_(&regional)
{
    for (const auto& one : series_) {
        for (const std::int32_t word : one.hours.statuses()) {
            if (!statuses_.contains(word))
                statuses_[word] = statusText(codes, word);
        }
    }
}

int HourTable::hoursWithValue() const
{
    int count = 0;
    for (int row = 0; row < rows(); ++row) {
        const auto slot = static_cast<std::size_t>(row);
        count += std::ranges::any_of(
            series_, [&](const HourSeries& one) { return isThere(one.hours.values()[slot]); });
    }
    return count;
}

bool HourTable::hasContent() const
{
    return std::ranges::any_of(series_, [](const HourSeries& one) {
        const auto isSet = [](std::int32_t word) { return word != 0; };
        return one.hasValue() || std::ranges::any_of(one.hours.statuses(), isSet);
    });
}

QStringList HourTable::statusTextsIn(int column) const
{
    const auto words = seriesOf(column).hours.statuses();
    QStringList texts;
    for (const std::int32_t word : std::set<std::int32_t>(words.begin(), words.end()))
        texts << statuses_.at(word).brief;
    return texts;
}

QString HourTable::heading(int column, Reader reader) const
{
    if (column < kTimeColumns)
        return column == 0 ? "Day" : "Hour";
    const HourSeries& series = seriesOf(column);
    const bool isForUser = reader == Reader::User;
    if (isStatus(column))
        return series.name + (isForUser ? "\nstatus" : " status");
    if (series.units.isEmpty())
        return series.name;
    return isForUser ? series.name + "\n" + series.units : series.name + " (" + series.units + ")";
}

QString HourTable::cell(int row, int column, Reader reader) const
{
    if (column < kTimeColumns)
        return column == 0 ? dayText(row, reader) : hourText(row, reader);
    if (isStatus(column))
        return statusOf(row, column).brief;
    const double value = seriesOf(column).hours.values()[static_cast<std::size_t>(row)];
    return cellText(isThere(value) ? Variant(value) : Variant(Null{}), reader, *regional_);
}

QString HourTable::explanation(int row, int column) const
{
    return isStatus(column) ? statusOf(row, column).full : QString();
}

int HourTable::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : series_.front().hours.Count();
}

int HourTable::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : kTimeColumns + 2 * static_cast<int>(series_.size());
}

QVariant HourTable::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical && role == Qt::DisplayRole)
        return dayText(section, Reader::User) + " " + hourText(section, Reader::User);
    return DataTable::headerData(section, orientation, role);
}

const HourSeries& HourTable::seriesOf(int column) const
{
    return series_[static_cast<std::size_t>(column - kTimeColumns) / 2];
}

const StatusText& HourTable::statusOf(int row, int column) const
{
    return statuses_.at(seriesOf(column).hours.statuses()[static_cast<std::size_t>(row)]);
}

QString HourTable::dayText(int row, Reader reader) const
{
    const Date time = timeOf(row);
    return qt::toQString(reader == Reader::User ? ShortDate(time, *regional_) : isoDate(time));
}

QString HourTable::hourText(int row, Reader reader) const
{
    const Date time = timeOf(row);
    if (reader == Reader::Program)
        return QString::number(dateParts(time).hour);
    return qt::toQString(FormatTimeStamp(time, kHoursAndMinutes, *regional_));
}

Date HourTable::timeOf(int row) const
{
    return DateAddExact("h", row, series_.front().hours.StartTime());
}

} // namespace k7deval::workbench
