#include "flight/SteadyStretch.h"

#include <algorithm>
#include <cmath>
#include <deque>
#include <limits>

namespace TARN {

namespace {

constexpr double Never = std::numeric_limits<double>::infinity();

double durationOf(const TimeRange& range)
{
    return range.stop - range.start;
}

/// A marked parameter, as far as it was read: whether it is steady from a time on. Both times only
/// ascend.
class SteadyParameter
{
public:
    SteadyParameter(const Flight& flight, const ProfileParameter& parameter, double offset)
        : mSeries(flight.series(parameter, offset)),
          mGaps(mSeries.gapRule([&] { return flight.silences(offset); })),
          mPercent(*parameter.steady), mAbove(parameter.steadyAbove.value_or(-Never)),
          mNextTime(timeOf(0))
    {}

    const Series& series() const { return mSeries; }

    /// Reads on, up to a time that is included.
    void readTo(double time)
    {
        for (; mNextTime <= time; mNextTime = timeOf(mNext)) {
            mLastTime = mNextTime;
            add(mNext++);
        }
        mIsAbsent = mLastTime < time && mIsGapNext;
    }

    /// Whether it is from \p start up to where it was read.
    bool isSteadyFrom(double start)
    {
        if (mIsAbsent || start < mEarliest) {
            return false;
        }
        drop(mLowest, start);
        drop(mHighest, start);
        const double low = mLowest.front().value;
        const double high = mHighest.front().value;
        return low > mAbove && std::isfinite(high) &&
               100.0 * (high - low) <= mPercent * std::max(std::fabs(low), std::fabs(high));
    }

private:
    struct Extreme
    {
        double value;
        double time;
        double until; ///< the next sample
    };

    double timeOf(std::size_t k) const { return k < mSeries.size() ? mSeries.time(k) : Never; }

    /// What is no number is out of all bounds.
    void add(std::size_t k)
    {
        const double value = mSeries.value(k);
        const double low = std::isnan(value) ? -Never : value;
        const double high = std::isnan(value) ? Never : value;
        while (!mLowest.empty() && mLowest.back().value >= low) {
            mLowest.pop_back();
        }
        while (!mHighest.empty() && mHighest.back().value <= high) {
            mHighest.pop_back();
        }
        const double until = timeOf(k + 1);
        mLowest.push_back({low, mLastTime, until});
        mHighest.push_back({high, mLastTime, until});
        if (mIsGapNext) {
            mEarliest = mLastTime;
        }
        mIsGapNext = until == Never || mGaps.isGap(mLastTime, until);
    }

    /// Leaves away what neither lies behind a start nor holds there. The last value always holds.
    static void drop(std::deque<Extreme>& extremes, double start)
    {
        while (extremes.front().time < start && extremes.front().until <= start) {
            extremes.pop_front();
        }
    }

    Series mSeries;
    GapRule mGaps;
    double mPercent;
    double mAbove;
    std::size_t mNext = 0;        ///< sample to read
    double mNextTime;             ///< of it; Never behind the last one
    double mLastTime = -Never;    ///< of the one before
    bool mIsGapNext = true;       ///< there is no value between those two
    bool mIsAbsent = true;        ///< there is none where it was read to
    double mEarliest = Never;     ///< since then it has values
    std::deque<Extreme> mLowest;  ///< later ones are greater
    std::deque<Extreme> mHighest; ///< later ones are smaller
};

std::vector<SteadyParameter> markedOf(const Flight& flight, double offset)
{
    std::vector<SteadyParameter> marked;
    for (const auto& [device, parameter] : flight.profile()->parameters()) {
        if (parameter->steady) {
            marked.emplace_back(flight, *parameter, offset);
        }
    }
    return marked;
}

/// Of all samples, ascending.
std::vector<double> timesOf(const std::vector<SteadyParameter>& marked)
{
    std::vector<double> all;
    for (const SteadyParameter& parameter : marked) {
        const auto known = static_cast<std::ptrdiff_t>(all.size());
        for (std::size_t k = 0; k < parameter.series().size(); ++k) {
            all.push_back(parameter.series().time(k));
        }
        std::inplace_merge(all.begin(), all.begin() + known, all.end());
    }
    return all;
}

} // namespace

bool isLongEnough(const TimeRange& stretch)
{
    constexpr double Shortest = 180.0; // seconds
    return durationOf(stretch) >= Shortest - HalfTick;
}

std::optional<TimeRange> steadyStretch(const Flight& flight, double offset, Progress& progress)
{
    constexpr std::size_t Often = 4096; // steps of which each looks whether to stop
    std::vector<SteadyParameter> marked = markedOf(flight, offset);
    const std::vector<double> times = timesOf(marked);
    std::optional<TimeRange> longest;
    std::size_t start = 0;
    for (std::size_t end = 0; end < times.size(); ++end) {
        if (end % Often == 0 && progress.stopRequested()) {
            return std::nullopt;
        }
        std::ranges::for_each(marked, [&](SteadyParameter& one) { one.readTo(times[end]); });
        const auto isSteady = [&](SteadyParameter& one) { return one.isSteadyFrom(times[start]); };
        while (start <= end && !std::ranges::all_of(marked, isSteady)) {
            ++start;
        }
        const TimeRange found{times[std::min(start, end)], times[end]};
        if (isLongEnough(found) &&
            (!longest || durationOf(found) > durationOf(*longest) + HalfTick)) {
            longest = found;
        }
    }
    return longest;
}

} // namespace TARN
