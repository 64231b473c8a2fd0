#include "flight/Statistics.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <future>

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
    // Nearly every list is in the order of time, so that is not found out by a walk of its own.
    mSeries.setInOrder();
    if (!build(offset, progress)) {
        mSeries = mFlight->series(parameter, offset);
        mSeries.isInOrder(); // is found out now: many threads may ask later
        build(offset, progress);
    }
}

/// False where times fall that were thought to be in order. Where gaps are is known at the end
/// only; what has none by the shortest limit has none by any.
bool StatisticsIndex::build(double offset, Progress& progress)
{
    const std::size_t blocks = mSeries.size() / Block;
    mLevels[0].resize(blocks);
    mRule.gaps = QuickRhythm::rule();
    QuickRhythm rhythm;
    std::vector<std::size_t> left;
    Decoded samples;
    for (std::size_t block = 0; block <= blocks; ++block) {
        if (block % FanOut == 0) {
            progress.report(block, blocks + 1);
        }
        if (progress.stopRequested()) {
            return true;
        }
        decode(block * Block, std::min((block + 1) * Block, mSeries.size()), samples);
        rhythm.add(samples.allTimes());
        if (rhythm.falls()) {
            return false;
        }
        if (block == blocks) {
            break; // the samples after the last whole block
        }
        auto plain = plainSummaryOf(samples.allTimes(), samples.allValues(), mRule);
        if (plain) {
            mLevels[0][block] = std::move(*plain);
        } else {
            left.push_back(block);
        }
    }
    if (!rhythm.isProven()) {
        mRule.gaps = mSeries.gapRule([&] { return mFlight->silences(offset); });
    }
    for (const std::size_t block : left) {
        mLevels[0][block] = scan(block * Block, (block + 1) * Block);
    }
    mLevels[1].resize(blocks / FanOut);
    for (std::size_t block = 0; block < blocks / FanOut * FanOut; ++block) {
        mLevels[1][block / FanOut].append(mLevels[0][block], mRule);
    }
    mSize = mSeries.size();
    return true;
}

void StatisticsIndex::decode(std::size_t begin, std::size_t end, Decoded& samples) const
{
    samples.count = end - begin;
    if (mSeries.isInOrder()) {
        const auto entries = mSeries.entries().subspan(begin, samples.count);
        mSeries.timesOf(entries, samples.times.data());
        mSeries.decoder().toDoubles(entries, true, samples.values.data());
        return;
    }
    for (std::size_t k = 0; k < samples.count; ++k) {
        samples.times[k] = mSeries.time(begin + k);
        samples.values[k] = mSeries.value(begin + k);
    }
}

RangeSummary StatisticsIndex::scan(std::size_t begin, std::size_t end) const
{
    Decoded samples;
    decode(begin, end, samples);
    return summaryOf(samples.allTimes(), samples.allValues(), mRule);
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

std::optional<double> StatisticsIndex::valueAt(double time) const
{
    const std::size_t k = mSeries.firstNotBefore(time);
    if (k >= mSize || (k == 0 && mSeries.time(0) != time)) {
        return std::nullopt;
    }
    double value = mSeries.value(k);
    if (mSeries.time(k) != time) {
        const double before = mSeries.time(k - 1);
        if (mRule.gaps.isGap(before, mSeries.time(k))) {
            return std::nullopt;
        }
        const double share = (time - before) / (mSeries.time(k) - before);
        value = mSeries.value(k - 1) + share * (value - mSeries.value(k - 1));
    }
    return std::isnan(value) ? std::nullopt : std::optional(value);
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

StatisticsIndexes makeIndexes(const std::shared_ptr<const Flight>& flight,
                              const std::vector<const ProfileParameter*>& parameters, double offset,
                              Progress& progress)
{
    StatisticsIndexes made(parameters.size());
    std::atomic<std::size_t> next = 0;
    const auto work = [&](Progress& heard) {
        for (std::size_t k = next++; k < made.size(); k = next++) {
            made[k] = std::make_shared<StatisticsIndex>(flight, *parameters[k], offset, heard);
        }
    };
    // Where no thread is to be had the work is done here.
    auto other = std::async(std::launch::async | std::launch::deferred, [&] {
        Progress silent(nullptr, progress.stopToken());
        work(silent);
    });
    work(progress);
    other.get();
    return made;
}

} // namespace TARN
