#pragma once

#include "record/RecordIntegrity.h"

#include <algorithm>
#include <limits>

namespace TARN {

/// Watches the times of one file's samples for what TimeFindings counts.
class TimeCheck
{
public:
    static constexpr double LargestBackstep = 1.0;  ///< seconds; buses are buffered apart
    static constexpr double LargestStep = 86'400.0; ///< seconds; no card records for longer
    static constexpr double LongestPause = 10.0;    ///< seconds; more is a gap

    TimeCheck() = default;
    /// Begins within a file, behind a sample of this time that is taken for a possible one.
    explicit TimeCheck(double before) : mBefore(before), mLast(before) {}

    /// Sample \p number of the file, from 1, has the time \p time, seconds.
    void see(std::size_t number, double time)
    {
        mEarliest = std::min(mEarliest, time);
        mLatest = std::max(mLatest, time);
        const double step = time - mLast;
        if (step >= -LargestBackstep && step <= LongestPause) {
            mLast = time;
        } else {
            judge(number, time);
        }
    }

    /// Takes over what another has found of the samples \p first, first + 1 ... that follow. False,
    /// with nothing changed, when it began from something else than is known here.
    bool append(std::size_t first, const TimeCheck& next);

    // Of the samples seen so far, whatever was found of them; call with one at least.
    double earliest() const { return mEarliest; }
    double latest() const { return mLatest; }

    const TimeFindings& findings() const { return mFindings; }

private:
    using Limits = std::numeric_limits<double>;

    static bool isPossible(double step) { return step >= -LargestBackstep && step <= LargestStep; }

    void judge(std::size_t number, double time);

    TimeFindings mFindings;
    double mEarliest = Limits::infinity();
    double mLatest = -Limits::infinity();
    double mBefore = Limits::quiet_NaN(); ///< where it began
    double mLast = Limits::quiet_NaN();   ///< the last possible time; not a number before the first
    double mImpossible = 0.0;             ///< the last impossible one
    std::size_t mImpossibleAt = 0;
};

} // namespace TARN
