#pragma once

#include <QtCore/QtGlobal>

namespace TARN {

class Record;

/// When a recording began. The data's own clock knows best; nothing tells the zone of the header's
/// date, which is read as UTC.
///
/// A receiver knows the date some time after the recording began, and one damaged time moves the
/// recording's start by hours: what turns times into moments counts from where the date was told.
struct RecordStart
{
    enum Source
    {
        Unknown,
        Data,  ///< date and time-of-day messages
        Header ///< of the first file
    };

    Source source = Unknown;
    qint64 seconds = 0;  ///< since 1970
    double toldAt = 0.0; ///< the time at which that was the date, seconds on the recording's clock
};

RecordStart recordStart(const Record& record);

} // namespace TARN
