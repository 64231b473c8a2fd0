#pragma once

#include "flight/Flight.h"
#include "flight/SummaryTree.h"

#include <QtGui/QColor>

#include <array>

namespace TARN {

/// What is said about the values of a parameter between two times. Sample values are
/// Decoder::toDouble, scaled, in the order of time. What has no number is nothing; infinities are
/// values, and a sum that meets one is nothing.
struct Statistics
{
    struct Moment
    {
        double value;
        double time; ///< the earliest at which it stands
    };
    struct Above
    {
        double value;   ///< of the threshold: val x factor + offset
        QColor color;   ///< as ProfileThrValue
        int state;      ///< as ProfileThrValue
        double seconds; ///< held by values that are greater or equal
    };

    std::size_t samples = 0;
    std::size_t invalid = 0; ///< of them NaN
    std::optional<double> first;
    std::optional<double> last;
    std::optional<Moment> min;
    std::optional<Moment> max;
    std::optional<double> mean;
    std::optional<double> stddev;   ///< of the population: sqrt(sum (v - mean)^2 / n)
    std::optional<double> timeMean; ///< sum of v x seconds held / sum of seconds held
    std::optional<double> integral; ///< trapezoids, value seconds; 0 without a step
    std::size_t gaps = 0;           ///< between two samples of the range
    double gapSeconds = 0.0;
    std::optional<double> gapLimit; ///< see GapRule
    std::vector<Above> above;       ///< for each threshold value in document order
};

/// What a summary says of values, without gap limit and thresholds.
Statistics statisticsOf(const RangeSummary& summary);

/// Answers for the statistics of a parameter between any two times at once, however many samples
/// lie between: sums and extremes of blocks are kept, and blocks of blocks. Never changes; any
/// number of threads may ask it.
class StatisticsIndex
{
public:
    /// Takes a walk over all samples; ends early, and knows of none, when it is asked to stop.
    StatisticsIndex(std::shared_ptr<const Flight> flight, const ProfileParameter& parameter,
                    double offset, Progress& progress);

    const ProfileParameter& parameter() const { return mSeries.parameter(); }
    const Series& series() const { return mSeries; } ///< whose order of time is known
    const GapRule& gaps() const { return mRule.gaps; }

    /// Of the samples from start to stop, both included. The range and the times told are on a
    /// clock that is \p shift seconds ahead of the series's.
    Statistics range(const TimeRange& range, double shift = 0.0) const;

    /// The value at a time: a sample's, the first of equal times, or interpolated between two.
    /// Nothing outside of them all, inside a gap, and where there is no number.
    std::optional<double> valueAt(double time) const;

private:
    static constexpr std::size_t Block = SummaryTree::Block;

    /// Samples decoded at once, fewer than make two blocks.
    struct Decoded
    {
        std::array<double, 2 * Block> times;
        std::array<double, 2 * Block> values;
        std::size_t count;

        std::span<const double> allTimes() const { return std::span(times).first(count); }
        std::span<const double> allValues() const { return std::span(values).first(count); }
    };

    bool build(double offset, Progress& progress);
    void decode(std::size_t begin, std::size_t end, Decoded& samples) const;
    RangeSummary scan(std::size_t begin, std::size_t end) const;
    Statistics statistics(const RangeSummary& summary) const;

    std::shared_ptr<const Flight> mFlight;
    Series mSeries;
    const ProfileThr* mThresholds; ///< null when there are none
    SummaryRule mRule;
    std::size_t mSize = 0; ///< samples that are known
    SummaryTree mTree;
};

using StatisticsIndexes = std::vector<std::shared_ptr<const StatisticsIndex>>;

/// One for each parameter, in their order, made on two threads.
StatisticsIndexes makeIndexes(const std::shared_ptr<const Flight>& flight,
                              const std::vector<const ProfileParameter*>& parameters, double offset,
                              Progress& progress);

} // namespace TARN
