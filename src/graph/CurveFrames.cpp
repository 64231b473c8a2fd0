#include "graph/CurveFrames.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace TARN {

namespace {

/// Adds a sample to a column that it lies in.
void join(FrameType& frame, double value)
{
    switch (frame.state) {
    case 1:
        frame.state = 2;
        frame.low = value;
        break;
    case 2:
        frame.state = 3;
        frame.high = value;
        break;
    case 3: {
        // Until now low and high were the second and third sample. In order before they are
        // widened, or a peak between them would be lost.
        const double low = std::fmin(frame.low, frame.high);
        frame.high = std::fmax(frame.low, frame.high);
        frame.low = low;
        frame.state = 4;
        [[fallthrough]];
    }
    default:
        frame.low = std::fmin(frame.low, value);
        frame.high = std::fmax(frame.high, value);
        frame.last = value;
        break;
    }
}

FrameType frameOf(const CurveSamples& samples, std::size_t begin, std::size_t end)
{
    FrameType frame;
    frame.time = samples.time(begin);
    frame.first = samples.value(begin);
    frame.afterGap = begin > 0 && samples.isGapBefore(begin);
    if (end - begin < 4) {
        for (std::size_t k = begin + 1; k < end; ++k) {
            join(frame, samples.value(k));
        }
        return frame;
    }
    const ValueRange range = samples.range(begin + 1, end);
    frame.state = 4;
    frame.low = range.empty() ? std::nan("") : range.low;
    frame.high = range.empty() ? std::nan("") : range.high;
    frame.last = samples.value(end - 1);
    return frame;
}

/// Index of the first sample that a window's columns hold, and of the one behind the last.
std::pair<std::size_t, std::size_t> stretchOf(const CurveSamples& samples,
                                              const FrameWindow& window)
{
    const std::size_t k = samples.firstNotBefore(window.xmin, 0);
    const std::size_t begin = k > 1 ? k - 1 : k;
    return {begin, std::min(samples.firstNotBefore(window.xmax, begin) + 1, samples.size())};
}

void widenByFinite(ValueRange& range, const ValueRange& part)
{
    if (std::isfinite(part.low)) {
        range.widen(part.low);
    }
    if (std::isfinite(part.high)) {
        range.widen(part.high);
    }
}

} // namespace

ValueRange FrameType::range() const
{
    const double values[] = {first, low, high, last};
    ValueRange range;
    for (int k = 0; k < state; ++k) {
        range.widen(values[k]);
    }
    return range;
}

void CurveFrames::rebuild(const CurveSamples& samples, const FrameWindow& window)
{
    /// Far enough for memory to answer, near enough for the place to be foretold.
    constexpr std::size_t ColumnsAhead = 4;
    clear();
    const auto [first, end] = stretchOf(samples, window);
    std::size_t begin = first;
    std::size_t count = 1;
    while (begin < end) {
        if (!mFrames.empty()) {
            samples.prefetch(begin + ColumnsAhead * (begin - first) / mFrames.size());
        }
        const std::size_t next = samples.columnEnd(begin, end, begin + count, window.columnWidth);
        mFrames.push_back(frameOf(samples, begin, next));
        count = next - begin;
        begin = next;
    }
}

void CurveFrames::foresee(const CurveSamples& samples, const FrameWindow& window)
{
    clear();
    const auto [begin, end] = stretchOf(samples, window);
    widenByFinite(mForeseen, samples.range(begin, end));
}

ValueRange CurveFrames::range() const
{
    ValueRange range = mForeseen;
    for (const FrameType& frame : frames()) {
        widenByFinite(range, frame.range());
    }
    return range;
}

void CurveFrames::add(double time, double value, const FrameWindow& window)
{
    if (mFirst < mFrames.size()) {
        if (time - mFrames.back().time <= window.columnWidth) {
            join(mFrames.back(), value);
            return;
        }
        if (mFrames.back().time > window.xmax) {
            return; // the line has left the window
        }
    }
    FrameType frame;
    frame.time = time;
    frame.first = value;
    mFrames.push_back(frame);
}

void CurveFrames::trim(double xmin)
{
    while (mFirst + 1 < mFrames.size() && mFrames[mFirst + 1].time < xmin) {
        ++mFirst;
    }
    if (mFirst > mFrames.size() / 2) {
        mFrames.erase(mFrames.begin(), mFrames.begin() + static_cast<std::ptrdiff_t>(mFirst));
        mFirst = 0;
    }
}

void CurveFrames::clear()
{
    mFrames.clear();
    mFirst = 0;
    mForeseen = {};
}

} // namespace TARN
