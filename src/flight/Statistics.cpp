#include "flight/Statistics.h"

#include "flight/ValueReader.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <future>
#include <ranges>

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
    mTree.resize(mSeries.size());
    mRule.gaps = QuickRhythm::rule();
    QuickRhythm rhythm;
    std::vector<std::size_t> left;
    Decoded samples;
    for (std::size_t block = 0; block <= blocks; ++block) {
        if (block % SummaryTree::FanOut == 0) {
            progress.report(block, blocks + 1);
        }
        if (progress.stopRequested()) {
            return true;
        }
        decode(block * Block, std::min((block + 1) * Block, mSeries.size()), samples);
        const StepRange steps = stepsOf(samples.allTimes());
        rhythm.add(samples.allTimes(), steps);
        if (rhythm.falls()) {
            return false;
        }
        if (block == blocks) {
            break; // the samples after the last whole block
        }
        auto plain = plainSummaryOf(samples.allTimes(), samples.allValues(), steps.longest, mRule);
        if (plain) {
            mTree.set(block, std::move(*plain));
        } else {
            left.push_back(block);
        }
    }
    if (!rhythm.isProven()) {
        mRule.gaps = mSeries.measuredGapRule([&] { return mFlight->silences(offset); });
    }
    for (const std::size_t block : left) {
        mTree.set(block, scan(block * Block, (block + 1) * Block));
    }
    mTree.finish(mRule);
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

Statistics StatisticsIndex::range(const TimeRange& range, double shift) const
{
    const auto placeOf = [&](auto isBefore) {
        const auto numbers = std::views::iota(std::size_t(0), mSize);
        return static_cast<std::size_t>(std::ranges::partition_point(numbers, isBefore) -
                                        numbers.begin());
    };
    const double slack = shift != 0.0 ? HalfTick : 0.0; // the sums are rounded
    const std::size_t begin =
        placeOf([&](std::size_t k) { return mSeries.time(k) + shift < range.start - slack; });
    const std::size_t end = std::max(begin, placeOf([&](std::size_t k) {
                                         return mSeries.time(k) + shift <= range.stop + slack;
                                     }));
    Statistics found = statistics(mTree.of(
        begin, end, mRule, [this](std::size_t from, std::size_t to) { return scan(from, to); }));
    for (auto* extreme : {&found.min, &found.max}) {
        if (*extreme) {
            (*extreme)->time += shift;
        }
    }
    return found;
}

std::optional<double> StatisticsIndex::valueAt(double time) const
{
    if (mSize == 0) {
        return std::nullopt;
    }
    ValueReader<SeriesSamples> reader({mSeries, mRule.gaps}, Between::Line);
    const double value = reader.at(time);
    return std::isnan(value) ? std::nullopt : std::optional(value);
}

Statistics statisticsOf(const RangeSummary& summary)
{
    Statistics result;
    result.samples = summary.samples;
    result.invalid = summary.invalid;
    result.gaps = summary.gaps;
    result.gapSeconds = summary.gapSeconds;
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
    return result;
}

Statistics StatisticsIndex::statistics(const RangeSummary& summary) const
{
    Statistics result = statisticsOf(summary);
    result.gapLimit = mRule.gaps.limit();
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
