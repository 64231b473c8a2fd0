#include "display/CurveBuffer.h"

#include <algorithm>
#include <cmath>

namespace TARN {

namespace {

/// Far enough for memory to answer, near enough for the place to be foretold.
constexpr std::size_t ColumnsAhead = 4;

/// First index of [begin, end) for which \p holds is false, given that it is true before it and
/// false from it on. Searches outwards from \p guess: with a good one it asks twice, and for
/// neighbouring indexes.
template <typename Predicate>
std::size_t partitionNear(std::size_t begin, std::size_t end, std::size_t guess, Predicate holds)
{
    guess = std::clamp(guess, begin, end);
    std::size_t step = 1;
    if (guess < end && holds(guess)) {
        begin = guess + 1;
        for (; end - begin > step; step *= 2) {
            if (!holds(begin + step)) {
                end = begin + step;
                break;
            }
            begin += step + 1;
        }
    } else {
        end = guess;
        for (; end - begin > step; step *= 2) {
            if (holds(end - step)) {
                begin = end - step + 1;
                break;
            }
            end -= step;
        }
    }
    while (begin < end) {
        const std::size_t middle = begin + (end - begin) / 2;
        if (holds(middle)) {
            begin = middle + 1;
        } else {
            end = middle;
        }
    }
    return begin;
}

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

} // namespace

void CurveBuffer::rebuildFrames(const FrameWindow& window)
{
    clearFrames();
    const std::size_t k = firstNotBefore(window.xmin, 0);
    std::size_t begin = k > 1 ? k - 1 : k;
    const std::size_t end = std::min(firstNotBefore(window.xmax, begin) + 1, size());
    const std::size_t first = begin;
    std::size_t count = 1;
    while (begin < end) {
        if (!mFrames.empty()) {
            prefetch(begin + ColumnsAhead * (begin - first) / mFrames.size());
        }
        const std::size_t next = columnEnd(begin, end, begin + count, window.columnWidth);
        mFrames.push_back(frameOf(begin, next));
        count = next - begin;
        begin = next;
    }
}

/// A long recording's columns lie too far apart for the processor to foresee the next one.
void CurveBuffer::prefetch(std::size_t k) const
{
    constexpr std::size_t Around = 8; // the columns' lengths vary a little
    if (k + Around < size()) {
        const double* times = mTimes.data() + mBegin + k;
        __builtin_prefetch(times - std::min(k, Around));
        __builtin_prefetch(times);
        __builtin_prefetch(times + Around);
        mPyramid.prefetch(mValues.data(), mBegin + k);
    }
}

/// End of the column that starts with sample \p begin.
std::size_t CurveBuffer::columnEnd(std::size_t begin, std::size_t end, std::size_t guess,
                                   double columnWidth) const
{
    const double* times = mTimes.data() + mBegin;
    const double start = times[begin];
    return partitionNear(begin + 1, end, guess,
                         [&](std::size_t k) { return times[k] - start <= columnWidth; });
}

FrameType CurveBuffer::frameOf(std::size_t begin, std::size_t end) const
{
    FrameType frame;
    frame.time = time(begin);
    frame.first = value(begin);
    if (end - begin < 4) {
        for (std::size_t k = begin + 1; k < end; ++k) {
            join(frame, value(k));
        }
        return frame;
    }
    const ValueRange range = mPyramid.range(mValues.data(), mBegin + begin + 1, mBegin + end);
    frame.state = 4;
    frame.low = range.empty() ? std::nan("") : range.low;
    frame.high = range.empty() ? std::nan("") : range.high;
    frame.last = value(end - 1);
    return frame;
}

void CurveBuffer::addToFrames(double time, double value, const FrameWindow& window)
{
    if (mFirstFrame < mFrames.size()) {
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

void CurveBuffer::trimFrames(double xmin)
{
    while (mFirstFrame + 1 < mFrames.size() && mFrames[mFirstFrame + 1].time < xmin) {
        ++mFirstFrame;
    }
    if (mFirstFrame > mFrames.size() / 2) {
        mFrames.erase(mFrames.begin(), mFrames.begin() + static_cast<std::ptrdiff_t>(mFirstFrame));
        mFirstFrame = 0;
    }
}

void CurveBuffer::clearFrames()
{
    mFrames.clear();
    mFirstFrame = 0;
}

} // namespace TARN
