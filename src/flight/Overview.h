#pragma once

#include "base/Progress.h"
#include "profile/Profile.h"

#include <QtCore/QString>

#include <list>
#include <memory>
#include <optional>

namespace TARN {

/// What a flight holds, at a glance.
struct Overview
{
    double duration = 0.0; ///< seconds
    qint64 samples = 0;
    qint64 watched = 0; ///< parameters that could have been out of range
    qint64 limits = 0;  ///< as FlightSummary counts them
    qint64 warnings = 0;
    qint64 lamps = 0;
    qint64 faults = 0;
    qint64 remarks = 0;

    friend bool operator==(const Overview&, const Overview&) = default;
};

/// Reads the files as one recording and looks for all that went wrong. Nothing where they can't be
/// read, where it was asked to stop, and where they would take more than a quarter of the memory
/// that is free: it is looked at in passing, beside what the user does.
std::optional<Overview> overviewOf(const std::list<QString>& files,
                                   const std::shared_ptr<const Profile>& profile,
                                   Progress& progress);

} // namespace TARN
