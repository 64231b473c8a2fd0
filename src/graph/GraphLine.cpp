#include "graph/GraphLine.h"

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
    Scale(const GraphStrip& strip, const GraphView& view)
        : mLeft(view.x0), mOrigin(view.xmin), mPerSecond(ratio(view.width, view.xmax - view.xmin)),
          mBottom(strip.y0), mBase(strip.min), mPerUnit(ratio(strip.height, strip.max - strip.min))
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

void GraphLine::buildLine(std::span<const FrameType> frames, const GraphStrip& strip,
                          const GraphView& view, bool withFillings)
{
    mPoints.clear();
    mStrips.clear();
    mFillings.clear();
    mStripBegin = 0;
    const Scale scale(strip, view);
    mPoints.reserve(frames.size() * 8);
    for (std::size_t k = 0; k < frames.size(); ++k) {
        if (frames[k].afterGap) {
            endStrip();
        }
        addFrame(frames[k], scale);
        if (withFillings && k + 1 < frames.size() && !frames[k + 1].afterGap &&
            scale.touch(frames[k], frames[k + 1])) {
            addFilling(frames[k], frames[k + 1], scale);
        }
    }
    endStrip();
}

void GraphLine::addFrame(const FrameType& frame, const Scale& scale)
{
    const float x = scale.x(frame);
    const auto before = mPoints.size();
    for (const double value : Values(frame)) {
        if (!std::isnan(value)) {
            const float y = scale.y(value);
            if (mPoints.size() == before || y != mPoints.back()) {
                add(x, y);
            }
        }
    }
    if (mPoints.size() == before) {
        endStrip();
    }
}

void GraphLine::addFilling(const FrameType& left, const FrameType& right, const Scale& scale)
{
    const float x = std::floor(scale.x(left));
    if (std::floor(scale.x(right)) - x < 2.0F) {
        return;
    }
    const ValueRange a = left.range();
    const ValueRange b = right.range();
    const double low = std::max(a.low, b.low);
    const double high = std::min(a.high, b.high);
    if (low < high) {
        mFillings.insert(mFillings.end(), {x + 1.5F, scale.y(low), x + 1.5F, scale.y(high)});
    }
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
    mFillings.clear();
    const Scale scale(curve.strip, view);
    for (const FrameType& frame : curve.frames.frames()) {
        for (const double value : Values(frame)) {
            if (!std::isnan(value)) {
                add(scale.x(frame), scale.y(value));
            }
        }
    }
}

} // namespace TARN
