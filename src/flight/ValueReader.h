#pragma once

#include "profile/Series.h"
#include "record/TimeRange.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <vector>

namespace TARN {

/// How a value is found between two samples.
enum class Between
{
    Line, ///< on the straight line from one to the other
    Held  ///< the earlier one's: of bit fields and states
};

/// What \p series says between its samples.
inline Between betweenOf(const Series& series)
{
    const bool isState = !series.decoder().isNumeric() || series.parameter().enumId != 0;
    return isState ? Between::Held : Between::Line;
}

/// A series as samples to read: times carry \p shift, gaps are found without it.
struct SeriesSamples
{
    const Series& series; // both live as long
    const GapRule& gaps;
    double shift = 0.0; ///< seconds

    std::size_t size() const { return series.size(); }
    double time(std::size_t k) const { return series.time(k) + shift; }
    double value(std::size_t k) const { return series.value(k); }
    bool isGapBefore(std::size_t k) const { return gaps.isGap(series.time(k - 1), series.time(k)); }
};

/// First of the samples at the same time as sample \p k, which follow each other.
template <typename Samples>
std::size_t firstAtTimeOf(const Samples& samples, std::size_t k)
{
    std::size_t begin = 0;
    for (std::size_t end = k; begin < end;) {
        const std::size_t middle = begin + (end - begin) / 2;
        samples.time(middle) < samples.time(k) ? begin = middle + 1 : end = middle;
    }
    return begin;
}

/// The values of samples at any time, fastest at times that ascend. Samples are in the order of
/// time and offer size(), time(k), value(k) and isGapBefore(k). Times nearer than HalfTick are the
/// same. No value is NaN: outside of them all, inside a gap, and where a sample that it would be
/// made of has none.
template <typename Samples>
class ValueReader
{
public:
    ValueReader(Samples samples, Between between) : mSamples(std::move(samples)), mBetween(between)
    {}

    /// At a sample's time that sample's value, of equal times number \p which, the last one where
    /// there are fewer.
    double at(double time, std::size_t which = 0)
    {
        moveTo(time);
        const std::size_t size = mSamples.size();
        if (isAt(time)) {
            return mSamples.value(std::min(mNext + which, lastOfRun()));
        }
        if (mNext == 0 || mNext == size || mSamples.isGapBefore(mNext)) {
            return std::numeric_limits<double>::quiet_NaN();
        }
        return between(time);
    }

    /// Whether there are times from one to another, which is after it, at which nothing is known.
    bool isCutWithin(double from, double to)
    {
        moveTo(from);
        const std::size_t size = mSamples.size();
        if (size == 0 || mSamples.time(0) > from + HalfTick ||
            mSamples.time(size - 1) < to - HalfTick) {
            return true;
        }
        std::size_t k = isAt(from) ? lastOfRun() + 1 : mNext;
        for (; k < size && mSamples.time(k - 1) < to - HalfTick; ++k) {
            if (mSamples.isGapBefore(k)) {
                return true;
            }
        }
        return false;
    }

private:
    static constexpr std::size_t Near = 8; ///< samples that are stepped over one by one

    /// Whether the next sample is at a time.
    bool isAt(double time) const
    {
        return mNext < mSamples.size() && mSamples.time(mNext) <= time + HalfTick;
    }

    /// mNext becomes the first sample that is not before a time.
    void moveTo(double time)
    {
        const auto isBefore = [this, first = time - HalfTick](std::size_t k) {
            return mSamples.time(k) < first;
        };
        if (mNext > 0 && !isBefore(mNext - 1)) {
            mNext = 0;
        }
        mNext = firstNot(isBefore, mNext);
    }

    /// Of the samples at the time of the next one.
    std::size_t lastOfRun()
    {
        if (mRun != mNext || mRunEnd == 0) {
            const double time = mSamples.time(mNext);
            mRun = mNext;
            mRunEnd = firstNot([&](std::size_t k) { return mSamples.time(k) <= time; }, mNext);
        }
        return mRunEnd - 1;
    }

    /// First sample from \p k on for which a condition does not hold.
    template <typename Condition>
    std::size_t firstNot(Condition holds, std::size_t k) const
    {
        std::size_t end = mSamples.size();
        for (std::size_t step = 0; step < Near && k < end; ++step, ++k) {
            if (!holds(k)) {
                return k;
            }
        }
        while (k < end) {
            const std::size_t middle = k + (end - k) / 2;
            holds(middle) ? k = middle + 1 : end = middle;
        }
        return k;
    }

    double between(double time) const
    {
        const double before = mSamples.value(mNext - 1);
        if (mBetween == Between::Held) {
            return before;
        }
        const double from = mSamples.time(mNext - 1);
        const double share = (time - from) / (mSamples.time(mNext) - from);
        return before + share * (mSamples.value(mNext) - before);
    }

    Samples mSamples;
    Between mBetween;
    std::size_t mNext = 0;
    std::size_t mRun = 0; ///< first of a run of samples at one time
    std::size_t mRunEnd = 0;
};

/// Appends samples \p begin to before \p end of a flight minus what another one has at their
/// times. A time at which one of the two has no value has NaN; where something is cut between a
/// sample and the next one, which may be behind the end, NaN follows at once, so that the
/// difference does not hold over it.
template <typename Samples, typename Others>
void readDifference(const Samples& samples, ValueReader<Others>& others, std::size_t begin,
                    std::size_t end, std::vector<double>& times, std::vector<double>& values)
{
    std::size_t which = begin < end ? begin - firstAtTimeOf(samples, begin) : 0;
    for (std::size_t k = begin; k < end; ++k) {
        const double time = samples.time(k);
        times.push_back(time);
        values.push_back(samples.value(k) - others.at(time, which));
        if (k + 1 == samples.size()) {
            break;
        }
        const double next = samples.time(k + 1);
        which = next == time ? which + 1 : 0;
        if (samples.isGapBefore(k + 1) || (next > time && others.isCutWithin(time, next))) {
            times.push_back(time);
            values.push_back(std::numeric_limits<double>::quiet_NaN());
        }
    }
}

} // namespace TARN
