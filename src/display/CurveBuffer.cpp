#include "display/CurveBuffer.h"

#include <algorithm>
#include <cmath>

namespace TARN {

bool CurveBuffer::put(double time, double value)
{
    if (size() > 1 && lastTime() > time) {
        removeLast();
        return false;
    }
    append(time, value);
    return true;
}

bool CurveBuffer::putSeries(std::span<const double> times, std::span<const double> values,
                            const std::function<void(double time)>& refused)
{
    bool stored = false;
    for (std::size_t k = 0; k < times.size();) {
        if (size() < 2 || lastTime() > times[k]) {
            stored = put(times[k], values[k]);
            if (!stored) {
                refused(times[k]);
            }
            ++k;
            continue;
        }
        const auto from = times.begin() + static_cast<std::ptrdiff_t>(k);
        const auto count = static_cast<std::size_t>(std::is_sorted_until(from, times.end()) - from);
        const std::span<const double> run = values.subspan(k, count);
        mTimes.insert(mTimes.end(), from, from + static_cast<std::ptrdiff_t>(count));
        mValues.insert(mValues.end(), run.begin(), run.end());
        mPyramid.grow(mValues.data(), mValues.size());
        std::ranges::for_each(run, [this](double value) { widenData(value); });
        dropOldest();
        stored = true;
        k += count;
    }
    return stored;
}

void CurveBuffer::append(double time, double value)
{
    mTimes.push_back(time);
    mValues.push_back(value);
    mPyramid.grow(mValues.data(), mValues.size());
    if (size() < 2) {
        mDataMin = value;
        mDataMax = value;
    } else {
        widenData(value);
    }
    dropOldest();
}

void CurveBuffer::widenData(double value)
{
    // NaN gives way to the first number.
    if (value < mDataMin || std::isnan(mDataMin)) {
        mDataMin = value;
    }
    if (value > mDataMax || std::isnan(mDataMax)) {
        mDataMax = value;
    }
}

void CurveBuffer::removeLast()
{
    mTimes.pop_back();
    mValues.pop_back();
    mPyramid.shrink(mValues.size());
}

void CurveBuffer::dropOldest()
{
    constexpr std::size_t Spare = MaxSamples / 8; // moved rarely enough to cost a few ns a sample
    if (size() > MaxSamples) {
        mBegin = mTimes.size() - MaxSamples;
    }
    if (mBegin < Spare) {
        return;
    }
    mTimes.erase(mTimes.begin(), mTimes.begin() + static_cast<std::ptrdiff_t>(mBegin));
    mValues.erase(mValues.begin(), mValues.begin() + static_cast<std::ptrdiff_t>(mBegin));
    mBegin = 0;
    mPyramid.clear();
    mPyramid.grow(mValues.data(), mValues.size());
}

void CurveBuffer::clear()
{
    // A recording's worth of memory goes back; the next may be small.
    mTimes = {};
    mValues = {};
    mBegin = 0;
    mPyramid.clear();
    clearFrames();
}

bool CurveBuffer::valueAt(double time, double& value) const
{
    value = 0.0;
    if (empty() || !(time >= firstTime()) || !(time <= lastTime())) {
        return false;
    }
    const std::size_t k = firstNotBefore(time, 0);
    if (k == 0) {
        value = this->value(0);
        return true;
    }
    const double before = this->time(k - 1);
    const double share = (time - before) / (this->time(k) - before);
    value = this->value(k - 1) + share * (this->value(k) - this->value(k - 1));
    return true;
}

/// First sample from \p begin on, in stored order, whose time is not before \p time; size() when
/// there is none.
std::size_t CurveBuffer::firstNotBefore(double time, std::size_t begin) const
{
    if (begin == 0 && !empty()) {
        if (firstTime() >= time) {
            return 0;
        }
        begin = 1; // the times ascend from here
    }
    const auto first = mTimes.begin() + static_cast<std::ptrdiff_t>(mBegin);
    const auto from = first + static_cast<std::ptrdiff_t>(std::min(begin, size()));
    return static_cast<std::size_t>(std::lower_bound(from, mTimes.end(), time) - first);
}

} // namespace TARN
