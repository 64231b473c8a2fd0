#include "flight/TimeScale.h"

#include "base/Numbers.h"

#include <cmath>

namespace TARN {

double sliderTime(const RecordInfo& info, int position)
{
    if (position == SliderSteps) {
        return info.stopTime; // the formula may miss it by its last bit
    }
    return info.startTime + position * (info.stopTime - info.startTime) / SliderSteps;
}

int sliderPosition(const RecordInfo& info, double time)
{
    const double span = info.stopTime - info.startTime;
    return span == 0.0 ? 0 : truncatedTo<int>((time - info.startTime) / span * SliderSteps);
}

double timeInRange(double timeOfDay, const TimeRange& range, double now)
{
    constexpr double Day = 86'400.0;
    const auto onDay = [&](double day) { return day * Day + timeOfDay; };
    // Of the moments at this time of day those next to now, then moved into the range.
    double nearest = onDay(std::round((now - timeOfDay) / Day));
    if (nearest < range.start) {
        nearest = onDay(std::ceil((range.start - timeOfDay) / Day));
    } else if (nearest > range.stop) {
        nearest = onDay(std::floor((range.stop - timeOfDay) / Day));
    }
    if (range.contains(nearest)) {
        return nearest;
    }
    const double before = onDay(std::floor((range.start - timeOfDay) / Day));
    const double after = onDay(std::ceil((range.stop - timeOfDay) / Day));
    return range.start - before <= after - range.stop ? before : after;
}

QString dateText(const RecordInfo& info, double time)
{
    if (info.utcTime == 0) {
        return "--.--.---- --:--:--";
    }
    const double seconds = static_cast<double>(info.utcTime) + time - info.startTime;
    return QDateTime::fromSecsSinceEpoch(truncatedTo<qint64>(seconds), Qt::UTC)
        .toString("dd.MM.yyyy hh:mm:ss");
}

} // namespace TARN
