#pragma once

#include "profile/ProfileTypes.h"

#include <vector>

namespace TARN {

/// The values of a parameter's threshold, scaled, in document order. They are meant to ascend; a
/// reading has reached all up to the first that is greater than it. NaN reaches the last.
class ThresholdSteps
{
public:
    /// \p threshold may be null; it outlives the steps.
    ThresholdSteps(const ProfileThr* threshold, double factor, double offset)
        : mThreshold(threshold)
    {
        if (threshold != nullptr) {
            for (const ProfileThrValue& step : threshold->values) {
                mLimits.push_back(step.val * factor + offset);
            }
        }
    }

    /// Null where there is none.
    const ProfileThr* threshold() const { return mThreshold; }
    /// Values times factor plus offset, as readings are compared with them.
    const std::vector<double>& limits() const { return mLimits; }

    /// The last value that a reading has reached, as a place in limits(); -1 where it is none.
    int reachedBy(double reading) const
    {
        int reached = -1;
        for (const double limit : mLimits) {
            if (limit > reading) {
                break;
            }
            ++reached;
        }
        return reached;
    }

    /// Its state; StateOk where none is reached.
    int stateOf(int reached) const { return reached < 0 ? StateOk : value(reached).state; }

    /// Its colour, which may be invalid; white where none is reached.
    QColor colorOf(int reached) const
    {
        return reached < 0 ? QColor(Qt::white) : value(reached).color;
    }

private:
    const ProfileThrValue& value(int place) const
    {
        return mThreshold->values[static_cast<std::size_t>(place)];
    }

    const ProfileThr* mThreshold;
    std::vector<double> mLimits;
};

} // namespace TARN
