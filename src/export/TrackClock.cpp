#include "export/TrackClock.h"

#include "base/Numbers.h"

#include <QtCore/QDateTime>

#include <algorithm>
#include <cmath>

namespace TARN {

TrackClock::TrackClock(const Record& record) : mStart(recordStart(record)) {}

std::string TrackClock::text(double time) const
{
    constexpr qint64 Earliest = -62'135'596'800'000; // 0001-01-01
    constexpr qint64 Latest = 253'402'300'799'999;   // 9999-12-31
    const double since = std::round((time - mStart.toldAt) * 1000.0);
    const double moment = static_cast<double>(mStart.seconds) * 1000.0 + since;
    const qint64 milliseconds = std::clamp(truncatedTo<qint64>(moment), Earliest, Latest);
    return QDateTime::fromMSecsSinceEpoch(milliseconds, Qt::UTC)
        .toString(Qt::ISODateWithMs)
        .toStdString();
}

} // namespace TARN
