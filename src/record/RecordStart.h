#pragma once

#include <QtCore/QtGlobal>

namespace TARN {

class Record;

/// When a recording began. The data's own clock knows best; nothing tells the zone of the header's
/// date, which is read as UTC.
struct RecordStart
{
    enum Source
    {
        Unknown,
        Data,  ///< date and time-of-day messages
        Header ///< of the first file
    };

    Source source = Unknown;
    qint64 seconds = 0; ///< since 1970
};

RecordStart recordStart(const Record& record);

} // namespace TARN
