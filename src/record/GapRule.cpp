#include "record/GapRule.h"

#include <algorithm>
#include <array>

namespace TARN {

namespace {

constexpr double StepsOfLimit = 10.0;
constexpr std::size_t FewestSteps = 16;
constexpr double Unsteadiness = 4.0; ///< of the longer steps against the median

} // namespace

GapRule::GapRule(std::vector<double> positiveSteps, const SilencesSource& silences)
{
    if (positiveSteps.empty()) {
        mLimit = ShortestLimit;
        return;
    }
    const std::size_t last = positiveSteps.size() - 1;
    const auto middle = positiveSteps.begin() + static_cast<std::ptrdiff_t>(last / 2);
    std::ranges::nth_element(positiveSteps, middle);
    const double longest = Unsteadiness * *middle;
    // Counted, which is quicker than finding the step of that number.
    const auto within = static_cast<std::size_t>(
        std::ranges::count_if(positiveSteps, [=](double step) { return step <= longest; }));
    if (positiveSteps.size() >= FewestSteps && within <= 9 * last / 10) {
        mSilences = silences();
    } else {
        mLimit = std::max(ShortestLimit, StepsOfLimit * *middle);
    }
}

StepRange stepsOf(std::span<const double> times)
{
    // Side by side: one comparison alone would wait for the one before.
    constexpr std::size_t Lanes = 4;
    if (times.size() < 2) {
        return {};
    }
    std::array<double, Lanes> low;
    std::array<double, Lanes> high;
    low.fill(times[1] - times[0]);
    high = low;
    std::size_t k = 1;
    for (; k + Lanes <= times.size(); k += Lanes) {
        for (std::size_t lane = 0; lane < Lanes; ++lane) {
            const double step = times[k + lane] - times[k + lane - 1];
            low[lane] = step < low[lane] ? step : low[lane];
            high[lane] = step > high[lane] ? step : high[lane];
        }
    }
    for (; k < times.size(); ++k) {
        const double step = times[k] - times[k - 1];
        low[0] = std::min(low[0], step);
        high[0] = std::max(high[0], step);
    }
    return {std::ranges::min(low), std::ranges::max(high)};
}

/// Whether all of them are steps that count for a rhythm.
bool QuickRhythm::isEven(const StepRange& steps) const
{
    return steps.shortest > 0.0 && steps.shortest >= mBound &&
           steps.longest <= Unsteadiness * mBound &&
           StepsOfLimit * steps.longest <= GapRule::ShortestLimit;
}

void QuickRhythm::add(std::span<const double> times, const StepRange& steps)
{
    if (times.empty()) {
        return;
    }
    if (mBound == 0.0) {
        // Any would do; half the mean of some steps mostly proves it.
        const double span = times.back() - times.front();
        mBound = span / static_cast<double>(times.size()) / 2.0;
    }
    const double ahead[] = {mBefore, times.front()};
    count(ahead);
    if (isEven(steps)) {
        mSteps += times.size() - 1;
    } else {
        count(times);
    }
    mBefore = times.back();
}

/// Without branches, several steps at a time.
void QuickRhythm::count(std::span<const double> times)
{
    const double bound = mBound;
    const double far = Unsteadiness * bound;
    std::size_t steps = 0;
    std::size_t below = 0;
    std::size_t beyond = 0;
    std::size_t slow = 0;
    std::size_t falling = 0;
    for (std::size_t k = 1; k < times.size(); ++k) {
        const double step = times[k] - times[k - 1];
        const std::size_t isStep = step > 0.0 ? 1 : 0;
        steps += isStep;
        below += isStep & (step < bound ? 1U : 0U);
        beyond += step > far ? 1 : 0;
        slow += StepsOfLimit * step > GapRule::ShortestLimit ? 1 : 0;
        falling += step < 0.0 ? 1 : 0;
    }
    mSteps += steps;
    mBelow += below;
    mBeyond += beyond;
    mSlow += slow;
    mFalls |= falling > 0;
}

bool QuickRhythm::isProven() const
{
    if (mSteps == 0 || mFalls || !(mBound > 0.0)) {
        return false;
    }
    const std::size_t last = mSteps - 1;
    return mBelow <= last / 2 && mSteps - mBeyond > 9 * last / 10 && mSteps - mSlow > last / 2;
}

GapRule QuickRhythm::rule()
{
    return {{}, nullptr};
}

} // namespace TARN
