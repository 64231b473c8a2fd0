#include "logbook/LogbookTrend.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>

namespace TARN {

namespace {

/// Values, any one of which can be left out.
class SortedValues
{
public:
    explicit SortedValues(std::vector<double> values) : mValues(std::move(values))
    {
        std::ranges::sort(mValues);
    }

    const std::vector<double>& all() const { return mValues; }

    /// Of at least two values, without one of \p value, which is among them.
    double medianWithout(double value) const
    {
        const std::size_t left = placeOf(value);
        const auto at = [&](std::size_t k) { return mValues[k < left ? k : k + 1]; };
        const std::size_t count = mValues.size() - 1;
        return count % 2 == 1 ? at(count / 2) : (at(count / 2 - 1) + at(count / 2)) / 2.0;
    }

    /// The smallest difference of two different ones; 0 where there are none such.
    double smallestStepWithout(double value) const
    {
        const std::size_t left = placeOf(value);
        double smallest = std::numeric_limits<double>::infinity();
        std::optional<double> before;
        for (std::size_t k = 0; k < mValues.size(); ++k) {
            if (k == left) {
                continue;
            }
            if (before && mValues[k] > *before) {
                smallest = std::min(smallest, mValues[k] - *before);
            }
            before = mValues[k];
        }
        return std::isfinite(smallest) ? smallest : 0.0;
    }

private:
    std::size_t placeOf(double value) const
    {
        return static_cast<std::size_t>(std::ranges::lower_bound(mValues, value) - mValues.begin());
    }

    std::vector<double> mValues;
};

/// The flights behind one maintenance mark that have a value, in the order of time.
class Baseline
{
public:
    explicit Baseline(std::vector<TrendPoint*> points)
        : mPoints(std::move(points)), mValues(valuesOf(mPoints))
    {}

    void judge()
    {
        constexpr std::size_t Fewest = 5;
        if (mPoints.size() < Fewest + 1) {
            return;
        }
        for (std::size_t k = 0; k < mPoints.size(); ++k) {
            TrendPoint& point = *mPoints[k];
            point.median = mValues.medianWithout(*point.value);
            point.sigma = sigmaOf(*point.value, *point.median);
            const double away = std::fabs(*point.value - *point.median);
            point.isMarked = away > 3.0 * *point.sigma || isRun(k);
        }
    }

private:
    static std::vector<double> valuesOf(const std::vector<TrendPoint*>& points)
    {
        std::vector<double> values;
        std::ranges::transform(points, std::back_inserter(values),
                               [](const TrendPoint* point) { return *point->value; });
        return values;
    }

    /// Whichever is left out, there are only a few medians.
    const SortedValues& deviationsFrom(double median)
    {
        const auto known = mDeviations.find(median);
        if (known != mDeviations.end()) {
            return known->second;
        }
        std::vector<double> deviations = mValues.all();
        std::ranges::for_each(deviations, [=](double& v) { v = std::fabs(v - median); });
        return mDeviations.emplace(median, SortedValues(std::move(deviations))).first->second;
    }

    double sigmaOf(double value, double median)
    {
        constexpr double OfNormal = 1.4826; // makes it the standard deviation of what is normal
        const double spread = deviationsFrom(median).medianWithout(std::fabs(value - median));
        return spread > 0.0 ? OfNormal * spread : mValues.smallestStepWithout(value);
    }

    /// Whether it goes on with what most of the four before it did.
    bool isRun(std::size_t k) const
    {
        const TrendPoint& point = *mPoints[k];
        const auto sideOf = [&](const TrendPoint& of) {
            const double away = *of.value - *point.median;
            return away > *point.sigma ? 1 : away < -*point.sigma ? -1 : 0;
        };
        const int side = sideOf(point);
        const auto end = mPoints.begin() + static_cast<std::ptrdiff_t>(k);
        const auto begin = end - static_cast<std::ptrdiff_t>(std::min<std::size_t>(k, 4));
        return side != 0 && std::count_if(begin, end, [&](const TrendPoint* before) {
                                return sideOf(*before) == side;
                            }) >= 3;
    }

    std::vector<TrendPoint*> mPoints;
    SortedValues mValues;
    std::map<double, SortedValues> mDeviations; ///< by median
};

} // namespace

void markTrend(std::vector<TrendPoint>& points, const std::vector<MaintenanceMark>& marks)
{
    std::map<std::ptrdiff_t, std::vector<TrendPoint*>> behind; // by number of marks before
    for (TrendPoint& point : points) {
        const auto passed = std::ranges::count_if(marks, [&](const MaintenanceMark& mark) {
            return point.start && mark.date <= *point.start;
        });
        if (point.value) {
            behind[passed].push_back(&point);
        }
    }
    for (auto& [passed, flights] : behind) {
        Baseline(std::move(flights)).judge();
    }
}

} // namespace TARN
