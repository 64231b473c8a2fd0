#pragma once

#include "profile/Profile.h"

namespace TARN {

/// The parameters that tell where the aircraft is.
struct PositionSource
{
    explicit PositionSource(const Profile& profile);

    /// Whether the profile names latitude and longitude and tells them apart.
    bool isNamed() const
    {
        return isNamed(latitude) && isNamed(longitude) &&
               (latitude.channel != longitude.channel || latitude.id != longitude.id);
    }

    /// Whether it names an altitude at all.
    bool hasAltitude() const { return isNamed(altitude); }

    ProfileParameter latitude;
    ProfileParameter longitude;
    ProfileParameter altitude;

private:
    /// What the profile does not name has channel and identifier 0.
    static bool isNamed(const ProfileParameter& parameter)
    {
        return parameter.channel != 0 || parameter.id != 0 || !parameter.name.isEmpty();
    }
};

/// Metres in a unit of height; 0 where it is not known.
double metresIn(const QString& unit);

} // namespace TARN
