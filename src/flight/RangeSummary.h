#pragma once

#include "record/GapRule.h"

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace TARN {

/// What samples are summarised by.
struct SummaryRule
{
    GapRule gaps;
    std::vector<double> thresholds; ///< on the scale of the values
};

/// What statistics need to know of consecutive samples of a parameter. Summaries of neighbours
/// make that of both, so that those of blocks answer for any range, and what lies outside a range
/// has no influence on it.
///
/// A step is the time from one sample to the next. It is counted where both are inside. NaN is no
/// value: it holds nothing and ends what was held before it. A value holds until the next sample,
/// not across a gap; the last one holds for nothing.
struct RangeSummary
{
    std::size_t samples = 0; ///< the fields below say something where there is one
    std::size_t invalid = 0; ///< of them NaN
    // The outermost samples, NaN or not.
    double frontTime = 0.0;
    double frontValue = 0.0;
    double backTime = 0.0;
    double backValue = 0.0;
    // Of the values, where there are some.
    double first = 0.0;
    double last = 0.0;
    double min = 0.0;
    double minTime = 0.0; ///< the earliest
    double max = 0.0;
    double maxTime = 0.0;  ///< the earliest
    double mean = 0.0;     ///< not finite where an infinity takes part; so are the following
    double squares = 0.0;  ///< sum of squared distances from the mean
    double held = 0.0;     ///< seconds for which values hold
    double heldSum = 0.0;  ///< of values times the seconds that they hold
    double integral = 0.0; ///< of trapezoids between values without a gap, value seconds
    std::size_t gaps = 0;
    double gapSeconds = 0.0;
    /// For each threshold the seconds held by values that are not below it.
    std::vector<double> above;

    std::size_t values() const { return samples - invalid; }

    /// Appends the samples that follow.
    void append(const RangeSummary& next, const SummaryRule& rule);
};

/// The summary of samples in the order of time, equally many times and values, where each has a
/// value and none of their steps can be a gap by \p rule nor by any with a longer limit; nothing
/// else. \p longestStep of the times. Takes a small part of the time that summaryOf takes
/// otherwise.
std::optional<RangeSummary> plainSummaryOf(std::span<const double> times,
                                           std::span<const double> values, double longestStep,
                                           const SummaryRule& rule);

/// The summary of any samples in the order of time; equally many times and values.
RangeSummary summaryOf(std::span<const double> times, std::span<const double> values,
                       const SummaryRule& rule);

} // namespace TARN
