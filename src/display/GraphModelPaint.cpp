#include "display/GraphModel.h"

#include <algorithm>
#include <cmath>

namespace TARN {

namespace {

constexpr double Bottom = 40.0; ///< pixels below the plot
constexpr double Top = 10.0;
constexpr double Right = 10.0;
constexpr double LabelGap = 20.0; ///< pixels that stand free left of the widest value label

/// A tenth more on each side; something where there is no extent.
ValueRange widened(double low, double high)
{
    const double margin = std::max(high - low, 0.001) * 0.1;
    return {low - margin, high + margin};
}

void widenVisible(ValueRange& range, double value)
{
    if (std::isfinite(value)) {
        range.widen(value);
    }
}

} // namespace

void GraphModel::setSize(double width, double height)
{
    mWidth = width;
    mView.y0 = Bottom;
    mView.height = std::max(height - Bottom - Top, 1.0);
    placePlot(mView.x0 > 0.0 ? mView.x0 : Bottom + LabelGap);
    mStale = true;
}

void GraphModel::placePlot(double left)
{
    mView.x0 = std::min(left, mWidth / 2.0);
    mView.width = std::max(mWidth - mView.x0 - Right, 1.0);
}

void GraphModel::calcFrame()
{
    mSettled = true;
    if (mAutoScaleY) {
        mView.ymin = mAutoMin;
        mView.ymax = mAutoMax;
    }
    ValueRange times;
    for (ParStruct& curve : mCurves) {
        const ValueRange range = mAutoScaleY ? widened(curve.visibleMin, curve.visibleMax)
                                             : ValueRange{mView.ymin, mView.ymax};
        curve.rangeMin = range.low;
        curve.rangeMax = range.high;
        if (!curve.buffer.empty()) {
            times.widen({curve.buffer.firstTime(), curve.buffer.lastTime()});
        }
    }
    mFirstTime = times.empty() ? 0.0 : times.low;
    mLastTime = times.empty() ? 0.0 : times.high;
    if (mGraphMode == GraphAutomatic) {
        for (unsigned i = 0; i < count(); ++i) {
            const ParStruct& curve = mCurves[i];
            // A line that is past the current time reaches it already.
            if (curve.active && !curve.valueSet && !curve.buffer.empty() &&
                curve.buffer.lastTime() <= mTime) {
                putValue(i, curve.lastValue);
            }
        }
    }
    mTimeChanged = false;
    updateFrames();
}

void GraphModel::updateFrames()
{
    if (!mStale && mFrameWidth == mView.width) {
        return;
    }
    mStale = false;
    mFrameWidth = mView.width;
    for (ParStruct& curve : mCurves) {
        if (curve.active) {
            curve.buffer.rebuildFrames(window());
        } else {
            curve.buffer.clearFrames();
        }
    }
}

std::span<const FrameType> GraphModel::frames(unsigned i)
{
    updateFrames();
    return i < count() ? mCurves[i].buffer.frames() : std::span<const FrameType>();
}

void GraphModel::layoutStrips()
{
    const auto active = std::ranges::count_if(mCurves, &ParStruct::active);
    const double height = mView.height / static_cast<double>(std::max<std::ptrdiff_t>(active, 1));
    int k = 0;
    for (ParStruct& curve : mCurves) {
        if (mDisplayMode == DisplaySingle) {
            curve.rangeMin = mView.ymin;
            curve.rangeMax = mView.ymax;
            curve.viewportY = mView.y0;
            curve.viewportHeight = mView.height;
        } else if (curve.active) {
            curve.viewportY = mView.y0 + mView.height - ++k * height;
            curve.viewportHeight = height;
        }
    }
}

void GraphModel::updateVisible(ParStruct& curve)
{
    curve.buffer.trimFrames(mView.xmin);
    ValueRange range;
    for (const FrameType& frame : curve.buffer.frames()) {
        const double values[] = {frame.first, frame.low, frame.high, frame.last};
        for (int k = 0; k < frame.state; ++k) {
            widenVisible(range, values[k]);
        }
    }
    if (!range.empty()) {
        mSettled = mSettled && curve.visibleMin == range.low && curve.visibleMax == range.high;
        curve.visibleMin = range.low;
        curve.visibleMax = range.high;
    }
}

void GraphModel::finishPaint(double widestLabel)
{
    const GraphView before = mView;
    if (mAutoScaleY) {
        ValueRange all;
        for (const ParStruct& curve : mCurves) {
            if (curve.active && !curve.buffer.frames().empty()) {
                all.widen({curve.visibleMin, curve.visibleMax});
            }
        }
        const ValueRange range = all.empty() ? widened(0.0, 0.0) : widened(all.low, all.high);
        mAutoMin = range.low;
        mAutoMax = range.high;
    }
    placePlot(std::ceil(widestLabel) + LabelGap);
    mSettled = mSettled && mView.x0 == before.x0 &&
               (!mAutoScaleY || (mAutoMin == mView.ymin && mAutoMax == mView.ymax));
}

ParStruct* GraphModel::getParaFromPos(double y)
{
    ParStruct* first = nullptr;
    for (ParStruct& curve : mCurves) {
        if (!curve.active) {
            continue;
        }
        if (y >= curve.viewportY && y < curve.viewportY + curve.viewportHeight) {
            return &curve;
        }
        first = first != nullptr ? first : &curve;
    }
    return first;
}

} // namespace TARN
