#pragma once

#include "logbook/FlightEntry.h"

#include <QtCore/QVariant>
#include <QtSql/QSqlQuery>

namespace TARN {

// How parts of a flight stand in rows: the columns of each and their values in that order. What is
// nothing is null, a colour is "#rrggbb".

namespace LogbookColumns {
inline constexpr const char* HeadColumns =
    "aircraft, flight, start_utc, start_source, start_time, stop_time, samples, profile, limits, "
    "warnings, lamps, faults, remarks, worst";
inline constexpr const char* HeaderColumns =
    "header_date, time_offset, bus_type, ecu_serial, ecu_type, software_a, software_b, "
    "emu_version, steady_start, steady_stop";
inline constexpr const char* RecordingColumns =
    "path, samples, missing_header_bytes, ignored_bytes, other_channels, impossible_times, gaps, "
    "longest_gap";
inline constexpr const char* StatisticsColumns =
    "steady, place, device, parameter, unit, channel, can_id, samples, invalid, first_value, "
    "last_value, min_value, min_time, max_value, max_time, mean, stddev, time_mean, integral, "
    "gaps, gap_seconds, gap_limit, warning_seconds";
inline constexpr const char* ThresholdColumns = "steady, place, step, value, color, state, seconds";
inline constexpr const char* EpisodeColumns =
    "device, parameter, state, start_time, end_time, samples, "
    "announced, peak, peak_time, threshold, color";
inline constexpr const char* LampColumns = "name, state, start_time, end_time, samples, announced";
inline constexpr const char* FaultColumns = "name, state, start_time, end_time";
} // namespace LogbookColumns

/// The values of a row that a query stands at, taken one after the other.
class Row
{
public:
    explicit Row(const QSqlQuery& query) : mQuery(query) {}

    QVariant next() { return mQuery.value(mNext++); }
    QString text() { return next().toString(); }
    double real() { return next().toDouble(); }
    qint64 integer() { return next().toLongLong(); }
    int small() { return next().toInt(); }
    std::size_t count() { return static_cast<std::size_t>(integer()); }
    std::optional<double> optional();

private:
    const QSqlQuery& mQuery;
    int mNext = 0;
};

/// What other columns count with or compare with.
QVariant countValue(std::size_t count);
QVariant colorValue(const QColor& color);
QVariant textValue(const QString& text); ///< a text that is there and empty is no null

/// Aircraft and flight.
QVariantList keyOf(const FlightHead& head);

QVariantList headRow(const FlightHead& head);
FlightHead headFrom(Row& row); ///< and after it the type of the engine
QVariantList headerRow(const FlightEntry& entry);
void headerFrom(Row& row, FlightEntry& entry);
QVariantList recordingRow(const KeptRecording& recording);
KeptRecording recordingFrom(Row& row);
QVariantList statisticsRow(const KeptStatistics& kept); ///< without thresholds
KeptStatistics statisticsFrom(Row& row);
QVariantList episodeRow(const KeptEpisode& episode);
KeptEpisode episodeFrom(Row& row);
QVariantList lampRow(const KeptEpisode& lamp);
KeptEpisode lampFrom(Row& row);
QVariantList faultRow(const KeptEpisode& fault);
KeptEpisode faultFrom(Row& row);

} // namespace TARN
