#include "display/GraphLine.h"

#include <algorithm>
#include <cmath>

namespace TARN {

namespace {

constexpr double SideBySide = 2.0; ///< pixels between columns that touch

struct Values
{
    const double values[4];
    int count;

    explicit Values(const FrameType& frame)
        : values{frame.first, frame.low, frame.high, frame.last}, count(frame.state)
    {}
    const double* begin() const { return values; }
    const double* end() const { return values + count; }
};

} // namespace

/// The transforms of one curve, worked out once.
class GraphLine::Scale
{
public:
    Scale(const ParStruct& curve, const GraphView& view)
        : mLeft(view.x0), mOrigin(view.xmin), mPerSecond(ratio(view.width, view.xmax - view.xmin)),
          mBottom(curve.viewportY), mBase(curve.rangeMin),
          mPerUnit(ratio(curve.viewportHeight, curve.rangeMax - curve.rangeMin))
    {}

    float x(const FrameType& frame) const
    {
        const double x = (frame.time - mOrigin) * mPerSecond + mLeft;
        // The column that the left edge cuts is drawn inside, peaks and all.
        return limited(frame.state > 1 && x < mLeft && x > mLeft - SideBySide ? mLeft : x);
    }
    float y(double value) const { return limited((value - mBase) * mPerUnit + mBottom); }

    bool touch(const FrameType& left, const FrameType& right) const
    {
        return (right.time - left.time) * mPerSecond <= SideBySide;
    }

private:
    /// Far outside the widget is far enough; larger numbers would upset the rasteriser. A range
    /// too large for its numbers gives NaN, which is outside too.
    static float limited(double pixels)
    {
        constexpr double Far = 1e5;
        return static_cast<float>(pixels > -Far ? std::min(pixels, Far) : -Far);
    }

    static double ratio(double extent, double range) { return range != 0.0 ? extent / range : 0.0; }

    double mLeft;
    double mOrigin;
    double mPerSecond;
    double mBottom;
    double mBase;
    double mPerUnit;
};

void GraphLine::buildLine(const ParStruct& curve, const GraphView& view)
{
    mPoints.clear();
    mStrips.clear();
    mStripBegin = 0;
    const Scale scale(curve, view);
    const auto frames = curve.buffer.frames();
    mPoints.reserve(frames.size() * 4);
    bool touchesLeft = false;
    for (std::size_t k = 0; k < frames.size(); ++k) {
        const FrameType& frame = frames[k];
        const bool touchesRight = k + 1 < frames.size() && scale.touch(frame, frames[k + 1]);
        if (frame.state == 4 && touchesLeft && touchesRight) {
            addColumn(frame, scale.x(frame), scale);
        } else {
            addFrame(frame, scale.x(frame), scale);
        }
        touchesLeft = touchesRight;
    }
    endStrip();
}

void GraphLine::addFrame(const FrameType& frame, float x, const Scale& scale)
{
    const auto before = mPoints.size();
    for (const double value : Values(frame)) {
        if (!std::isnan(value)) {
            add(x, scale.y(value));
        }
    }
    if (mPoints.size() == before) {
        endStrip();
    }
}

void GraphLine::addColumn(const FrameType& frame, float x, const Scale& scale)
{
    ValueRange range;
    for (const double value : Values(frame)) {
        range.widen(value);
    }
    if (range.empty()) {
        endStrip();
        return;
    }
    const float low = scale.y(range.low);
    const float high = scale.y(range.high);
    // From the column before to the nearer end: no slanted line across both columns.
    const float from = mPoints.empty() ? low : mPoints.back();
    const bool upwards = std::fabs(from - low) <= std::fabs(from - high);
    add(x, upwards ? low : high);
    add(x, upwards ? high : low);
}

void GraphLine::add(float x, float y)
{
    mPoints.push_back(x);
    mPoints.push_back(y);
}

void GraphLine::endStrip()
{
    const int end = static_cast<int>(mPoints.size() / 2);
    if (end > mStripBegin) {
        mStrips.push_back({mStripBegin, end - mStripBegin});
    }
    mStripBegin = end;
}

void GraphLine::buildSamples(const ParStruct& curve, const GraphView& view)
{
    mPoints.clear();
    mStrips.clear();
    const Scale scale(curve, view);
    for (const FrameType& frame : curve.buffer.frames()) {
        for (const double value : Values(frame)) {
            if (!std::isnan(value)) {
                add(scale.x(frame), scale.y(value));
            }
        }
    }
}

} // namespace TARN
