#pragma once

#include "record/RecordInfo.h"
#include "record/TimeRange.h"

#include <QtCore/QString>

namespace TARN {

/// Positions of the time slider run from 0 at the recording's start to this at its stop.
constexpr int SliderSteps = 10000;

/// Time of a slider position, seconds; exactly start and stop at the ends.
double sliderTime(const RecordInfo& info, int position);

/// Slider position of a time (seconds); 0 where start and stop are one.
int sliderPosition(const RecordInfo& info, double time);

/// A time of day, seconds since midnight, on the day on which it lies in a range; of several the
/// one nearest to \p now, where there is none the one nearest to the range.
double timeInRange(double timeOfDay, const TimeRange& range, double now);

/// Date and time of a moment as "dd.MM.yyyy hh:mm:ss", as the recording's own messages count them
/// in whatever zone it is read; dashes while its UTC start is unknown. Counts on past midnight.
QString dateText(const RecordInfo& info, double time);

} // namespace TARN
