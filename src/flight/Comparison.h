#pragma once

#include "flight/Statistics.h"
#include "flight/ValueReader.h"

namespace TARN {

/// What is said about a parameter of two flights between two times, which are on the clock of the
/// first one.
struct Comparison
{
    Statistics flight;
    Statistics reference;
    /// Flight minus reference at the sample times of the flight. Samples are those at which both
    /// have a value, no other is counted; neither gaps nor thresholds are told.
    Statistics difference;
};

/// Answers for a parameter of two flights between any two times at once. The reference is
/// interpolated between its samples, that of a bit field or a state held; nothing is found inside
/// gaps of either. Never changes; any number of threads may ask it.
class ComparisonIndex
{
public:
    using Index = std::shared_ptr<const StatisticsIndex>;

    /// \p shift in seconds brings times of the reference to the clock of the flight. Takes a walk
    /// over the samples of both; ends early, and knows of none, when it is asked to stop.
    ComparisonIndex(Index flight, Index reference, double shift, Progress& progress);

    double shift() const { return mShift; }

    Comparison range(const TimeRange& range) const;
    /// Of the three alone.
    Statistics reference(const TimeRange& range) const { return mReference->range(range, mShift); }
    Statistics difference(const TimeRange& range) const;

    /// What the reference has at a time of the flight's clock; nothing where it has no value.
    std::optional<double> referenceAt(double time) const;
    /// The difference at any time: both are interpolated.
    std::optional<double> differenceAt(double time) const;

private:
    RangeSummary scan(std::size_t begin, std::size_t end) const;
    ValueReader<SeriesSamples> others() const;

    Index mFlight;
    Index mReference;
    double mShift;
    SummaryRule mRule; ///< what is cut is marked by NaN
    std::size_t mSize = 0;
    SummaryTree mTree;
};

/// Where both flights have samples, on the clock of the first one; without extent, and stop before
/// start, where they have no time in common.
TimeRange commonRange(const TimeRange& flight, const TimeRange& reference, double shift);

} // namespace TARN
