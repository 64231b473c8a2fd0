#include "flight/RangeSummary.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace TARN {

namespace {

/// Sums and extremes run side by side: one alone would wait for each operation to end.
constexpr std::size_t Lanes = 4;

struct Lane
{
    double a = 0.0;
    double b = 0.0;
};

/// Calls \p add(lane, k) for every k below \p count; neighbours fall into different lanes.
template <typename Add>
void inLanes(std::size_t count, Add add)
{
    std::size_t k = 0;
    for (; k + Lanes <= count; k += Lanes) {
        for (std::size_t lane = 0; lane < Lanes; ++lane) {
            add(lane, k + lane);
        }
    }
    for (; k < count; ++k) {
        add(k % Lanes, k);
    }
}

RangeSummary summaryOfOne(double time, double value, const SummaryRule& rule)
{
    RangeSummary one;
    one.samples = 1;
    one.invalid = std::isnan(value) ? 1 : 0;
    one.frontTime = one.backTime = one.minTime = one.maxTime = time;
    one.frontValue = one.backValue = value;
    one.first = one.last = one.min = one.max = one.mean = value;
    one.squares = std::isfinite(value) ? 0.0 : value;
    one.above.resize(rule.thresholds.size());
    return one;
}

void addExtremes(std::span<const double> times, std::span<const double> values, RangeSummary& all)
{
    std::array<double, Lanes> sum{};
    std::array<double, Lanes> low;
    std::array<double, Lanes> high;
    low.fill(values[0]);
    high.fill(values[0]);
    inLanes(values.size(), [&](std::size_t lane, std::size_t k) {
        sum[lane] += values[k];
        low[lane] = values[k] < low[lane] ? values[k] : low[lane];
        high[lane] = values[k] > high[lane] ? values[k] : high[lane];
    });
    const auto place = [&](double value) { // the first value where NaN has taken part
        const auto found = std::ranges::find(values, value) - values.begin();
        return static_cast<std::size_t>(found) % values.size();
    };
    const std::size_t lowest = place(std::ranges::min(low));
    const std::size_t highest = place(std::ranges::max(high));
    all.min = values[lowest];
    all.minTime = times[lowest];
    all.max = values[highest];
    all.maxTime = times[highest];
    all.mean = ((sum[0] + sum[1]) + (sum[2] + sum[3])) / static_cast<double>(values.size());
    std::array<double, Lanes> squares{};
    inLanes(values.size(), [&](std::size_t lane, std::size_t k) {
        const double distance = values[k] - all.mean;
        squares[lane] += distance * distance;
    });
    all.squares = (squares[0] + squares[1]) + (squares[2] + squares[3]);
}

void addSteps(std::span<const double> times, std::span<const double> values,
              const SummaryRule& rule, RangeSummary& all)
{
    std::array<Lane, Lanes> sums{};
    inLanes(times.size() - 1, [&](std::size_t lane, std::size_t k) {
        const double step = times[k + 1] - times[k];
        sums[lane].a += values[k] * step;
        sums[lane].b += 0.5 * (values[k] + values[k + 1]) * step;
    });
    all.held = times.back() - times.front();
    all.heldSum = (sums[0].a + sums[1].a) + (sums[2].a + sums[3].a);
    all.integral = (sums[0].b + sums[1].b) + (sums[2].b + sums[3].b);
    for (const double threshold : rule.thresholds) {
        double seconds = all.min >= threshold ? all.held : 0.0;
        if (all.min < threshold && all.max >= threshold) {
            std::array<double, Lanes> held{};
            inLanes(times.size() - 1, [&](std::size_t lane, std::size_t k) {
                const double step = times[k + 1] - times[k];
                held[lane] += values[k] >= threshold ? step : 0.0;
            });
            seconds = (held[0] + held[1]) + (held[2] + held[3]);
        }
        all.above.push_back(seconds);
    }
}

/// Adds what lies between two samples.
void addStep(RangeSummary& left, const RangeSummary& right, const SummaryRule& rule)
{
    const double step = right.frontTime - left.backTime;
    if (rule.gaps.isGap(left.backTime, right.frontTime)) {
        ++left.gaps;
        left.gapSeconds += step;
        return;
    }
    if (std::isnan(left.backValue)) {
        return;
    }
    left.held += step;
    left.heldSum += left.backValue * step;
    for (std::size_t i = 0; i < rule.thresholds.size(); ++i) {
        left.above[i] += left.backValue >= rule.thresholds[i] ? step : 0.0;
    }
    if (!std::isnan(right.frontValue)) {
        left.integral += 0.5 * (left.backValue + right.frontValue) * step;
    }
}

void addValues(RangeSummary& left, const RangeSummary& right)
{
    if (right.values() == 0) {
        return;
    }
    if (left.values() == 0) {
        left.first = right.first;
    }
    left.last = right.last;
    if (left.values() == 0 || right.min < left.min) {
        left.min = right.min;
        left.minTime = right.minTime;
    }
    if (left.values() == 0 || right.max > left.max) {
        left.max = right.max;
        left.maxTime = right.maxTime;
    }
    const auto a = static_cast<double>(left.values());
    const auto b = static_cast<double>(right.values());
    const double distance = left.values() == 0 ? 0.0 : right.mean - left.mean;
    left.mean = left.values() == 0 ? right.mean : left.mean + distance * (b / (a + b));
    left.squares = (left.values() == 0 ? 0.0 : left.squares) + right.squares +
                   distance * distance * (a * b / (a + b));
}

} // namespace

void RangeSummary::append(const RangeSummary& next, const SummaryRule& rule)
{
    if (samples == 0 || next.samples == 0) {
        *this = samples == 0 ? next : *this;
        return;
    }
    addStep(*this, next, rule);
    addValues(*this, next);
    samples += next.samples;
    invalid += next.invalid;
    backTime = next.backTime;
    backValue = next.backValue;
    held += next.held;
    heldSum += next.heldSum;
    integral += next.integral;
    gaps += next.gaps;
    gapSeconds += next.gapSeconds;
    for (std::size_t i = 0; i < above.size(); ++i) {
        above[i] += next.above[i];
    }
}

std::optional<RangeSummary> plainSummaryOf(std::span<const double> times,
                                           std::span<const double> values, double longestStep,
                                           const SummaryRule& rule)
{
    if (times.empty() || !(longestStep <= rule.gaps.shortest())) {
        return std::nullopt;
    }
    RangeSummary all;
    all.samples = times.size();
    all.frontTime = times.front();
    all.frontValue = all.first = values.front();
    all.backTime = times.back();
    all.backValue = all.last = values.back();
    addExtremes(times, values, all);
    // Of no number nothing but no number can come.
    if (std::isnan(all.mean) &&
        std::ranges::any_of(values, [](double value) { return std::isnan(value); })) {
        return std::nullopt;
    }
    addSteps(times, values, rule, all);
    return all;
}

RangeSummary summaryOf(std::span<const double> times, std::span<const double> values,
                       const SummaryRule& rule)
{
    if (auto plain = plainSummaryOf(times, values, stepsOf(times).longest, rule)) {
        return *plain;
    }
    RangeSummary all;
    for (std::size_t k = 0; k < times.size(); ++k) {
        all.append(summaryOfOne(times[k], values[k], rule), rule);
    }
    return all;
}

} // namespace TARN
