#pragma once

#include "record/Silences.h"

#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace TARN {

/// Gives the silences of a recording when they are asked for: finding them takes a walk over all
/// its samples.
using SilencesSource = std::function<std::shared_ptr<const Silences>()>;

/// Says where a parameter has no value between two of its samples.
///
/// A step is the time from one sample to the next, both with the offset, in time order. The lower
/// median of n positive steps is number (n - 1) / 2 of them in ascending order, counted from 0.
/// A parameter is without rhythm, sent when something changes, when it has at least 16 positive
/// steps and number 9 (n - 1) / 10 of them is greater than four times the median. Its silence is
/// no loss; it has a gap only where the whole recording is silent. Every other parameter has the
/// gap limit max(2 s, 10 x median), 2 s without a positive step, and a gap where a step is
/// greater.
class GapRule
{
public:
    /// No step up to this is a gap of any parameter; seconds.
    static constexpr double ShortestLimit = 2.0;

    /// Of a parameter that never has a gap.
    GapRule() = default;

    /// From the positive steps of the whole flight, in any order, seconds. \p silences of the
    /// recording at the same offset, asked for only where there is no rhythm.
    GapRule(std::vector<double> positiveSteps, const SilencesSource& silences);

    /// Seconds; nothing for a parameter without rhythm and for one that never has a gap.
    const std::optional<double>& limit() const { return mLimit; }

    /// Seconds; no step up to this is a gap.
    double shortest() const
    {
        return mLimit                 ? *mLimit
               : mSilences != nullptr ? Silences::Shortest
                                      : std::numeric_limits<double>::infinity();
    }

    /// Whether there is no value between samples at these times, which follow each other.
    bool isGap(double from, double to) const
    {
        return mLimit ? to - from > *mLimit : mSilences != nullptr && mSilences->isWithin(from, to);
    }

private:
    std::optional<double> mLimit;
    std::shared_ptr<const Silences> mSilences; ///< of a parameter without rhythm
};

/// The shortest and the longest step from one time to the next; both 0 where there is none.
struct StepRange
{
    double shortest = 0.0;
    double longest = 0.0;
};
StepRange stepsOf(std::span<const double> times);

/// Proves by counting that a series has a rhythm and the shortest limit, as nearly every long one
/// does. That spares finding the median, which takes longer than decoding the series.
class QuickRhythm
{
public:
    /// Takes the next times of the series, seconds with the offset; \p steps are theirs.
    void add(std::span<const double> times, const StepRange& steps);
    void add(std::span<const double> times) { add(times, stepsOf(times)); }

    /// Whether the times taken prove it; else nothing is known. Times that fall prove nothing.
    bool isProven() const;

    /// Whether a time was before the one ahead of it.
    bool falls() const { return mFalls; }

    /// Of a series for which it is proven.
    static GapRule rule();

private:
    bool isEven(const StepRange& steps) const;
    void count(std::span<const double> times);

    double mBound = 0.0; ///< that the median is not below; 0 before there are times
    double mBefore = std::numeric_limits<double>::quiet_NaN(); ///< no step from there
    std::size_t mSteps = 0;                                    ///< that are positive
    std::size_t mBelow = 0;
    std::size_t mBeyond = 0; ///< greater than allowed for a median at the bound
    std::size_t mSlow = 0;   ///< of which the limit would be longer
    bool mFalls = false;
};

} // namespace TARN
