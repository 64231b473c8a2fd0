#pragma once

#include "record/Silences.h"

#include <memory>
#include <optional>
#include <vector>

namespace TARN {

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
    /// Of a parameter that never has a gap.
    GapRule() = default;

    /// From the positive steps of the whole flight, in any order, seconds. \p silences of the
    /// recording at the same offset.
    GapRule(std::vector<double> positiveSteps, std::shared_ptr<const Silences> silences);

    /// Seconds; nothing for a parameter without rhythm and for one that never has a gap.
    const std::optional<double>& limit() const { return mLimit; }

    /// Whether there is no value between samples at these times, which follow each other.
    bool isGap(double from, double to) const
    {
        return mLimit ? to - from > *mLimit : mSilences != nullptr && mSilences->isWithin(from, to);
    }

private:
    std::optional<double> mLimit;
    std::shared_ptr<const Silences> mSilences; ///< of a parameter without rhythm
};

} // namespace TARN
