#include "record/GapRule.h"

#include <algorithm>

namespace TARN {

namespace {

constexpr double ShortestLimit = 2.0; // seconds
constexpr double StepsOfLimit = 10.0;
constexpr std::size_t FewestSteps = 16;
constexpr double Unsteadiness = 4.0; ///< of the longer steps against the median

} // namespace

GapRule::GapRule(std::vector<double> positiveSteps, std::shared_ptr<const Silences> silences)
{
    if (positiveSteps.empty()) {
        mLimit = ShortestLimit;
        return;
    }
    const auto at = [&](std::size_t number) {
        return positiveSteps.begin() + static_cast<std::ptrdiff_t>(number);
    };
    const std::size_t last = positiveSteps.size() - 1;
    const auto middle = at(last / 2);
    std::ranges::nth_element(positiveSteps, middle);
    const double median = *middle;
    const auto late = at(9 * last / 10);
    std::ranges::nth_element(middle, late, positiveSteps.end());
    if (positiveSteps.size() >= FewestSteps && *late > Unsteadiness * median) {
        mSilences = std::move(silences);
    } else {
        mLimit = std::max(ShortestLimit, StepsOfLimit * median);
    }
}

} // namespace TARN
