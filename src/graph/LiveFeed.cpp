#include "graph/LiveFeed.h"

#include "base/Diagnostics.h"

#include <algorithm>
#include <cmath>

namespace TARN {

void LiveFeed::setTime(double time)
{
    if (!std::isfinite(time)) {
        return;
    }
    CurveSet& curves = mModel.curves();
    if (mModel.graphMode() == GraphAutomatic) {
        TimeWindow& window = mModel.window();
        window.shiftTo(time - window.width());
        mModel.layout().setTimes(window.min(), window.max());
        // What is put one by one adds to its frames; a recording is there already.
        const auto isRecorded = [](const ParStruct& curve) { return curve.series != nullptr; };
        if (std::ranges::any_of(curves.all(), isRecorded)) {
            mModel.layout().refresh();
        }
    }
    mTime = time;
    mTimeChanged = true;
    mTimeValid = true;
    for (ParStruct& curve : curves.all()) {
        curve.valueSet = false;
    }
}

void LiveFeed::putValue(unsigned i, double value)
{
    ParStruct* curve = mModel.curves().curve(i);
    if (curve == nullptr || !mTimeValid) {
        return;
    }
    if (curve->series != nullptr) {
        mModel.layout().refresh(); // its frames are those of other samples
    }
    if (!mModel.curves().put(i, mTime, value)) {
        diagnose("wrong time stamp %s %f skipping...\n", qUtf8Printable(curve->name), mTime);
        mModel.layout().refresh();
        return;
    }
    mModel.layout().add(*curve, mTime, value);
}

void LiveFeed::holdLastValues()
{
    mTimeChanged = false;
    if (mModel.graphMode() != GraphAutomatic) {
        return;
    }
    for (unsigned i = 0; i < mModel.curves().count(); ++i) {
        const ParStruct& curve = *mModel.curves().curve(i);
        // A line that is past the current time reaches it already.
        if (curve.active && !curve.valueSet && curve.series == nullptr && !curve.live.empty() &&
            curve.live.lastTime() <= mTime) {
            putValue(i, curve.lastValue);
        }
    }
}

} // namespace TARN
