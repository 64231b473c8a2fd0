#pragma once

#include "flight/Statistics.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>
#include <vector>

namespace TARN {

/// What a list of flights shows of one.
struct FlightHead
{
    QString aircraft; ///< serial number of its engine; may be empty
    QString flight;   ///< SHA-256 of its recordings, hexadecimal
    /// Seconds since 1970, in UTC where the data tell it; nothing where no header does either.
    std::optional<qint64> start;
    QString startSource;      ///< "data", "header" (in whatever zone) or "none"
    double startTime = 0.0;   ///< of its samples, seconds with the offset
    double stopTime = 0.0;    ///< likewise
    qint64 samples = 0;       ///< of all recordings
    QString profile;          ///< name of the file it was understood by
    std::size_t limits = 0;   ///< times out of range that reached a limit
    std::size_t warnings = 0; ///< those that did not
    std::size_t lamps = 0;    ///< times during which one was on
    std::size_t faults = 0;   ///< warnings and faults of the matrices that came
    std::size_t remarks = 0;  ///< on what could be read
    int worst = StateOk;      ///< state
    QString engineType;

    double duration() const { return stopTime - startTime; } ///< seconds
};

/// One of its recordings.
struct KeptRecording
{
    QString path;
    qint64 samples = 0;
    qint64 missingHeaderBytes = 0;
    qint64 ignoredBytes = 0;
    std::size_t otherChannels = 0;
    TimeFindings found; ///< without first and place
};

/// The statistics of a parameter over the flight, or over its steady stretch.
struct KeptStatistics
{
    bool isSteady = false;
    int place = 0; ///< of the parameter in its profile
    QString device;
    QString parameter;
    QString unit;
    int channel = 0;
    int id = 0;
    Statistics found;
    std::optional<double> warningSeconds; ///< see secondsInWarning
};

/// A time during which something was wrong; times in seconds with the offset.
struct KeptEpisode
{
    QString device; ///< empty of lamps and faults, whose name tells all
    QString name;   ///< of the parameter
    int state = StateOk;
    double start = 0.0;
    double end = 0.0;
    std::size_t samples = 0;
    bool isAnnounced = false;
    std::optional<Episode::Peak> peak; ///< without below
};

/// All that is kept of a flight.
struct FlightEntry
{
    FlightHead head;
    QString headerDate; ///< "2026-11-21T12:00:00", empty without one
    double offset = 0.0;
    std::uint32_t busType = 0;
    std::uint32_t ecuSerialNumber = 0;
    QString ecuType;
    QString softwarePartA;
    QString softwarePartB;
    QString emuSwVersion;
    std::optional<TimeRange> steady;
    std::vector<KeptRecording> recordings; ///< in the order of reading
    QStringList remarks;                   ///< see recordRemarks
    std::vector<KeptStatistics> statistics;
    std::vector<KeptEpisode> episodes;
    std::vector<KeptEpisode> lamps;
    std::vector<KeptEpisode> faults;
};

} // namespace TARN
