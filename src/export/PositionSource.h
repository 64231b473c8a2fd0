#pragma once

#include "profile/Profile.h"

namespace TARN {

/// The parameters that tell where the aircraft is.
struct PositionSource
{
    explicit PositionSource(const Profile& profile);

    /// Whether the profile tells latitude and longitude apart.
    bool isNamed() const
    {
        return latitude.channel != longitude.channel || latitude.id != longitude.id;
    }

    /// Whether it tells an altitude at all.
    bool hasAltitude() const
    {
        return altitude.channel != 0 || altitude.id != 0 || !altitude.name.isEmpty();
    }

    ProfileParameter latitude;
    ProfileParameter longitude;
    ProfileParameter altitude;
};

/// Metres in a unit of height; 0 where it is not known.
double metresIn(const QString& unit);

} // namespace TARN
