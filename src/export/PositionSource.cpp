#include "export/PositionSource.h"

#include <utility>

namespace TARN {

namespace {

/// By the identifier, as another device may describe it: the profile's last word counts.
ProfileParameter parameterOf(const Profile& profile, int channel, int id)
{
    ProfileParameter parameter = profile.parameterById(static_cast<unsigned>(id));
    parameter.channel = channel;
    parameter.id = id;
    return parameter;
}

} // namespace

PositionSource::PositionSource(const Profile& profile)
{
    const KmlInfo kml = profile.kmlInfo();
    latitude = parameterOf(profile, kml.latitudeChannel, kml.latitudeId);
    longitude = parameterOf(profile, kml.longitudeChannel, kml.longitudeId);
    altitude = parameterOf(profile, kml.altitudeChannel, kml.altitudeId);
}

double metresIn(const QString& unit)
{
    static const std::pair<const char*, double> Units[] = {
        {"m", 1.0}, {"ft", 0.3048}, {"feet", 0.3048}, {"km", 1000.0}, {"fl", 30.48}};
    const QString word = unit.trimmed().toLower();
    for (const auto& [name, metres] : Units) {
        if (word == name) {
            return metres;
        }
    }
    return 0.0;
}

} // namespace TARN
