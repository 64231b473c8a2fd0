#include "flight/Statistics.h"

#include <algorithm>
#include <cmath>

namespace TARN {

namespace {

const ProfileThr* thresholdsOf(const Flight& flight, const ProfileParameter& parameter)
{
    const auto& all = flight.profile()->data().thresholds;
    const auto found = all.find(parameter.thresholdId);
    return found == all.end() ? nullptr : &found->second;
}

std::optional<double> numberOf(double value)
{
    return std::isfinite(value) ? std::optional(value) : std::nullopt;
}

} // namespace

StatisticsIndex::StatisticsIndex(std::shared_ptr<const Flight> flight,
                                 const ProfileParameter& parameter, double offset,
                                 Progress& progress)
    : mFlight(std::move(flight)), mSeries(mFlight->series(parameter, offset)),
      mThresholds(thresholdsOf(*mFlight, parameter))
{
    if (mThresholds != nullptr) {
        for (const ProfileThrValue& threshold : mThresholds->values) {
            mRule.thresholds.push_back(threshold.val * parameter.factor + parameter.offset);
        }
    }
    mRule.gaps = mSeries.gapRule([&] { return mFlight->silences(offset); });
    mSeries.isInOrder(); // is found out now: many threads may ask later
    build(progress);
}

void StatisticsIndex::build(Progress& progress)
{
    const std::size_t blocks = mSeries.size() / Block;
    mLevels[0].reserve(blocks);
    mLevels[1].reserve(blocks / FanOut);
    for (std::size_t block = 0; block < blocks; ++block) {
        if (block % FanOut == 0) {
            progress.report(block, blocks);
        }
        if (progress.stopRequested()) {
            return;
        }
        mLevels[0].push_back(scan(block * Block, (block + 1) * Block));
        if (mLevels[0].size() % FanOut == 0) {
            RangeSummary& above = mLevels[1].emplace_back();
            for (std::size_t k = mLevels[0].size() - FanOut; k < mLevels[0].size(); ++k) {
                above.append(mLevels[0][k], mRule);
            }
        }
    }
    mSize = mSeries.size();
}

/// Of fewer samples than make two blocks.
RangeSummary StatisticsIndex::scan(std::size_t begin, std::size_t end) const
{
    std::array<double, 2 * Block> times;
    std::array<double, 2 * Block> values;
    const std::size_t count = end - begin;
    if (mSeries.isInOrder()) {
        const auto entries = mSeries.entries().subspan(begin, count);
        mSeries.timesOf(entries, times.data());
        mSeries.decoder().toDoubles(entries, true, values.data());
    } else {
        for (std::size_t k = 0; k < count; ++k) {
            times[k] = mSeries.time(begin + k);
            values[k] = mSeries.value(begin + k);
        }
    }
    return summaryOf(std::span(times).first(count), std::span(values).first(count), mRule);
}

RangeSummary StatisticsIndex::summary(std::size_t begin, std::size_t end) const
{
    const std::size_t first = (begin + Block - 1) / Block;
    const std::size_t last = std::min(end / Block, mLevels[0].size());
    if (first >= last) {
        return scan(begin, end);
    }
    RangeSummary all = scan(begin, first * Block);
    for (std::size_t k = first; k < last;) {
        const bool isWhole = k % FanOut == 0 && k + FanOut <= last;
        all.append(isWhole ? mLevels[1][k / FanOut] : mLevels[0][k], mRule);
        k += isWhole ? FanOut : 1;
    }
    all.append(scan(last * Block, end), mRule);
    return all;
}

Statistics StatisticsIndex::range(const TimeRange& range) const
{
    const std::size_t begin = std::min(mSize, mSeries.firstNotBefore(range.start));
    const std::size_t end = std::clamp(mSeries.firstAfter(range.stop), begin, mSize);
    return statistics(summary(begin, end));
}

Statistics StatisticsIndex::statistics(const RangeSummary& summary) const
{
    Statistics result;
    result.samples = summary.samples;
    result.invalid = summary.invalid;
    result.gaps = summary.gaps;
    result.gapSeconds = summary.gapSeconds;
    result.gapLimit = mRule.gaps.limit();
    result.integral = numberOf(summary.integral);
    if (summary.values() > 0) {
        result.first = summary.first;
        result.last = summary.last;
        result.min = {summary.min, summary.minTime};
        result.max = {summary.max, summary.maxTime};
        result.mean = numberOf(summary.mean);
        result.stddev =
            numberOf(std::sqrt(summary.squares / static_cast<double>(summary.values())));
    }
    if (summary.held > 0.0) {
        result.timeMean = numberOf(summary.heldSum / summary.held);
    }
    for (std::size_t i = 0; i < mRule.thresholds.size(); ++i) {
        const ProfileThrValue& threshold = mThresholds->values[i];
        result.above.push_back({mRule.thresholds[i], threshold.color, threshold.state,
                                summary.above.empty() ? 0.0 : summary.above[i]});
    }
    return result;
}

} // namespace TARN
