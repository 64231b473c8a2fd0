#include "record/TimeCheck.h"

#include <cmath>

namespace TARN {

void TimeCheck::judge(std::size_t number, double time)
{
    const double step = time - mLast;
    const bool clockJumped = mImpossibleAt + 1 == number && isPossible(time - mImpossible);
    if (isPossible(step)) {
        ++mFindings.gaps; // see() lets shorter steps pass
        if (step > mFindings.longestGap) {
            mFindings.longestGap = step;
            mFindings.longestGapStart = mLast;
        }
    } else if (!std::isnan(mLast) && !clockJumped) {
        if (mFindings.impossibleTimes++ == 0) {
            mFindings.firstImpossible = number;
        }
        mImpossible = time;
        mImpossibleAt = number;
        return;
    }
    mLast = time;
}

bool TimeCheck::append(std::size_t first, const TimeCheck& next)
{
    const bool followsImpossible = mImpossibleAt > 0 && mImpossibleAt + 1 == first;
    if (mLast != next.mBefore || followsImpossible) {
        return false;
    }
    mEarliest = std::min(mEarliest, next.mEarliest);
    mLatest = std::max(mLatest, next.mLatest);
    const TimeFindings& found = next.mFindings;
    if (mFindings.impossibleTimes == 0) {
        mFindings.firstImpossible = found.firstImpossible;
    }
    mFindings.impossibleTimes += found.impossibleTimes;
    mFindings.gaps += found.gaps;
    if (found.longestGap > mFindings.longestGap) {
        mFindings.longestGap = found.longestGap;
        mFindings.longestGapStart = found.longestGapStart;
    }
    mLast = next.mLast;
    mImpossible = next.mImpossible;
    mImpossibleAt = next.mImpossibleAt;
    return true;
}

} // namespace TARN
