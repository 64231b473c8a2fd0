#include "flight/Comparison.h"

#include <algorithm>

namespace TARN {

namespace {

std::optional<double> numberOf(double value)
{
    return std::isnan(value) ? std::nullopt : std::optional(value);
}

} // namespace

ComparisonIndex::ComparisonIndex(Index flight, Index reference, double shift, Progress& progress)
    : mFlight(std::move(flight)), mReference(std::move(reference)), mShift(shift)
{
    const std::size_t size = mFlight->series().size();
    mTree.resize(size);
    for (std::size_t block = 0; block < mTree.blocks(); ++block) {
        if (progress.stopRequested()) {
            mTree = {};
            return;
        }
        progress.report(block, mTree.blocks());
        mTree.set(block, scan(block * SummaryTree::Block, (block + 1) * SummaryTree::Block));
    }
    mTree.finish(mRule);
    mSize = size;
}

ValueReader<SeriesSamples> ComparisonIndex::others() const
{
    const Series& series = mReference->series();
    return {SeriesSamples{series, mReference->gaps(), mShift}, betweenOf(series)};
}

RangeSummary ComparisonIndex::scan(std::size_t begin, std::size_t end) const
{
    std::vector<double> times;
    std::vector<double> values;
    ValueReader<SeriesSamples> reader = others();
    readDifference(SeriesSamples{mFlight->series(), mFlight->gaps()}, reader, begin, end, times,
                   values);
    return summaryOf(times, values, mRule);
}

Statistics ComparisonIndex::difference(const TimeRange& range) const
{
    const Series& series = mFlight->series();
    const std::size_t begin = std::min(mSize, series.firstNotBefore(range.start));
    const std::size_t end = std::clamp(series.firstAfter(range.stop), begin, mSize);
    const RangeSummary summary = mTree.of(
        begin, end, mRule, [this](std::size_t from, std::size_t to) { return scan(from, to); });
    Statistics result = statisticsOf(summary);
    result.samples = summary.values();
    result.invalid = 0;
    return result;
}

Comparison ComparisonIndex::range(const TimeRange& range) const
{
    return {mFlight->range(range), reference(range), difference(range)};
}

std::optional<double> ComparisonIndex::referenceAt(double time) const
{
    return numberOf(others().at(time));
}

std::optional<double> ComparisonIndex::differenceAt(double time) const
{
    const Series& series = mFlight->series();
    ValueReader<SeriesSamples> own({series, mFlight->gaps()}, betweenOf(series));
    return numberOf(own.at(time) - others().at(time));
}

TimeRange commonRange(const TimeRange& flight, const TimeRange& reference, double shift)
{
    TimeRange common = {std::max(flight.start, reference.start + shift),
                        std::min(flight.stop, reference.stop + shift)};
    // Ends that are the same moment are both inside.
    if (std::fabs(flight.start - (reference.start + shift)) <= HalfTick) {
        common.start = std::min(flight.start, reference.start + shift);
    }
    if (std::fabs(flight.stop - (reference.stop + shift)) <= HalfTick) {
        common.stop = std::max(flight.stop, reference.stop + shift);
    }
    return common;
}

} // namespace TARN
