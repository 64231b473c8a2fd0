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

} // namespace TARN
