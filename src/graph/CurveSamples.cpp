#include "graph/CurveSamples.h"

#include <algorithm>
#include <cmath>

namespace TARN {

namespace {

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

} // namespace

void CurveSamples::reserve(std::size_t count)
{
    mTimes.reserve(count);
    mValues.reserve(count);
}

bool CurveSamples::put(double time, double value)
{
    if (size() > 1 && lastTime() > time) {
        removeLast();
        return false;
    }
    append(time, value);
    dropOldest();
    return true;
}

std::size_t CurveSamples::putSeries(std::span<const double> times, std::span<const double> values)
{
    std::size_t leftOut = 0;
    for (std::size_t k = 0; k < times.size();) {
        if (size() > 1 && lastTime() > times[k]) {
            removeLast();
            leftOut += 2;
            ++k;
            continue;
        }
        if (size() < 2) {
            append(times[k], values[k]);
            ++k;
            continue;
        }
        const auto from = times.begin() + static_cast<std::ptrdiff_t>(k);
        const auto count = static_cast<std::size_t>(std::is_sorted_until(from, times.end()) - from);
        const std::span<const double> run = values.subspan(k, count);
        mTimes.insert(mTimes.end(), from, from + static_cast<std::ptrdiff_t>(count));
        mValues.insert(mValues.end(), run.begin(), run.end());
        mPyramid.grow(mValues.data(), mValues.size());
        const ValueRange range =
            mPyramid.range(mValues.data(), mValues.size() - count, mValues.size());
        if (!range.empty()) {
            widenData(range.low);
            widenData(range.high);
        }
        k += count;
    }
    return leftOut;
}

void CurveSamples::append(double time, double value)
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
}

void CurveSamples::widenData(double value)
{
    // NaN gives way to the first number.
    if (value < mDataMin || std::isnan(mDataMin)) {
        mDataMin = value;
    }
    if (value > mDataMax || std::isnan(mDataMax)) {
        mDataMax = value;
    }
}

void CurveSamples::removeLast()
{
    mTimes.pop_back();
    mValues.pop_back();
    mPyramid.shrink(mValues.size());
}

void CurveSamples::dropOldest()
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

void CurveSamples::clear()
{
    // A recording's worth of memory goes back; the next may be small.
    mTimes = {};
    mValues = {};
    mBegin = 0;
    mPyramid.clear();
}

bool CurveSamples::valueAt(double time, double& value) const
{
    value = 0.0;
    if (empty() || !(time >= firstTime()) || !(time <= lastTime())) {
        return false;
    }
    const std::size_t k = firstNotBefore(time, 0);
    if (k == 0 || this->time(k) == time) {
        value = this->value(k);
        return true;
    }
    if (isGapBefore(k)) {
        return false;
    }
    const double before = this->time(k - 1);
    const double share = (time - before) / (this->time(k) - before);
    value = this->value(k - 1) + share * (this->value(k) - this->value(k - 1));
    return true;
}

std::size_t CurveSamples::firstNotBefore(double time, std::size_t begin) const
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

std::size_t CurveSamples::columnEnd(std::size_t begin, std::size_t end, std::size_t guess,
                                    double width) const
{
    const double* times = mTimes.data() + mBegin;
    const double start = times[begin];
    return partitionNear(begin + 1, end, guess,
                         [&](std::size_t k) { return times[k] - start <= width; });
}

/// A long recording's columns lie too far apart for the processor to foresee the next one.
void CurveSamples::prefetch(std::size_t k) const
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

} // namespace TARN
