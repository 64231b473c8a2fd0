#pragma once

#include "graph/MinMaxPyramid.h"
#include "record/GapRule.h"

#include <span>
#include <vector>

namespace TARN {

/// The samples of one curve, oldest first, with the ranges of their blocks. Either put one by one
/// while they happen, the last million of them, or as the whole series of a recording.
///
/// Times never fall, but that the second sample held may lie before the first. Reading is safe
/// from any number of threads.
class CurveSamples
{
public:
    /// Samples held at most of those that are put one by one; the oldest go first.
    static constexpr std::size_t MaxSamples = 1'000'000;

    std::size_t size() const { return mTimes.size() - mBegin; }
    bool empty() const { return size() == 0; }

    // Sample k, below size().
    double time(std::size_t k) const { return mTimes[mBegin + k]; }
    double value(std::size_t k) const { return mValues[mBegin + k]; }

    // Of samples that are some.
    double firstTime() const { return mTimes[mBegin]; }
    double lastTime() const { return mTimes.back(); }

    // Smallest and largest value put since there were last none, those dropped included; clearing
    // keeps them.
    double dataMin() const { return mDataMin; }
    double dataMax() const { return mDataMax; }

    /// Makes room for a series of this many samples, so that it is not moved while it grows.
    void reserve(std::size_t count);

    /// Adds a sample. A time before that of the last of several samples is refused: neither
    /// sample can be trusted, so the last one goes too, and the result is false.
    bool put(double time, double value);

    /// As put for each sample in turn, but that all are held. Returns how many are not, because
    /// their time falls. Times and values are equally many.
    std::size_t putSeries(std::span<const double> times, std::span<const double> values);

    void clear();

    /// Where there is no value between two samples; nowhere by default.
    void setGapRule(const GapRule& rule) { mGaps = rule; }
    const GapRule& gapRule() const { return mGaps; }
    /// Whether there is no value between sample k, above 0, and the one before it.
    bool isGapBefore(std::size_t k) const { return mGaps.isGap(time(k - 1), time(k)); }

    /// The value at a time, interpolated between samples. False and 0 outside of their span and
    /// inside a gap.
    bool valueAt(double time, double& value) const;

    /// First sample from \p begin on, in stored order, whose time is not before \p time; size()
    /// when there is none.
    std::size_t firstNotBefore(double time, std::size_t begin) const;

    /// Smallest and largest value of samples \p begin to \p end - 1.
    ValueRange range(std::size_t begin, std::size_t end) const
    {
        return mPyramid.range(mValues.data(), mBegin + begin, mBegin + end);
    }

    /// End of the column of samples that starts with \p begin and lies within \p width seconds;
    /// at most \p end. Near \p guess it is found fastest.
    std::size_t columnEnd(std::size_t begin, std::size_t end, std::size_t guess,
                          double width) const;

    /// Tells the processor that samples near \p k are about to be asked for.
    void prefetch(std::size_t k) const;

private:
    void append(double time, double value);
    void removeLast();
    void dropOldest();
    void widenData(double value);

    // Parallel arrays: searching reads times only, drawing mostly values. Dropped samples stay
    // in front until enough of them are worth the move.
    std::vector<double> mTimes;
    std::vector<double> mValues;
    std::size_t mBegin = 0;
    MinMaxPyramid mPyramid; ///< over all of mValues
    double mDataMin = 0.0;
    double mDataMax = 0.0;
    GapRule mGaps;
};

} // namespace TARN
