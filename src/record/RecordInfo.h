#pragma once

#include <QtCore/QDateTime>
#include <QtCore/QString>

#include <cstdint>

namespace TARN {

/// What a recording's header and its time stamps say about it.
struct RecordInfo
{
    QString fileName;     ///< path as it was given
    QDateTime dateTime;   ///< start of the recording; invalid when there is no such date
    double startTime = 0; ///< seconds on the recording's clock
    double stopTime = 0;  ///< seconds on the recording's clock
    qint64 samples = 0;   ///< samples of the (last) file; below 1 when it is shorter than a header
    qint64 utcTime = 0;   ///< start in seconds since 1970 from the data's own clock; 0 unknown
    double utcAt = 0;     ///< when the data told that time, seconds on the recording's clock
    std::uint32_t busType = 0;
    std::uint32_t ecuSerialNumber = 0;
    QString softwarePartA;
    QString ecuType;
    QString engineSerialNr;
    QString engineType;
    QString softwarePartB;
    QString emuSwVersion;
    bool unreadable = false;       ///< the file could not be opened, what is said here is of no use
    qint64 missingHeaderBytes = 0; ///< of a file that is shorter than a header
    qint64 ignoredBytes = 0;       ///< behind the last whole sample

    /// dateTime as every view shows it, "d.M.yyyy h:mm:ss"; empty when there is no such date.
    QString dateTimeText() const;
};

} // namespace TARN
