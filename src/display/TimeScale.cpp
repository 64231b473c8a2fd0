#include "display/TimeScale.h"

#include "base/Numbers.h"

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
