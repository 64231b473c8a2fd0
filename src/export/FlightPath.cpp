#include "export/FlightPath.h"

#include "base/Diagnostics.h"
#include "base/Numbers.h"
#include "profile/Decoder.h"
#include "profile/Profile.h"

namespace TARN {

namespace {

constexpr double Missing = -999.0;

constexpr double PathPosition::*Coordinates[] = {&PathPosition::latitude, &PathPosition::longitude,
                                                 &PathPosition::altitude};

} // namespace

FlightPath::FlightPath(const Profile& profile, const RecordData& data, double slotWidth,
                       double start, double stop)
    : mSlotWidth(slotWidth)
{
    const KmlInfo kml = profile.kmlInfo();
    const struct
    {
        int channel;
        int id;
    } sources[] = {{kml.latitudeChannel, kml.latitudeId},
                   {kml.longitudeChannel, kml.longitudeId},
                   {kml.altitudeChannel, kml.altitudeId}};
    for (std::size_t i = 0; i < std::size(sources); ++i) {
        const RecordIdList* list = data.find(static_cast<unsigned>(sources[i].channel),
                                             static_cast<unsigned>(sources[i].id));
        if (list == nullptr) {
            continue;
        }
        // By the identifier, as another device may describe it: the profile's last word counts.
        const Decoder decoder(profile.data(),
                              profile.parameterById(static_cast<unsigned>(sources[i].id)));
        for (const RecordEntry& entry : list->entries) {
            const double time = entry.time() + list->shift(data.offset);
            if (start <= time && time <= stop) {
                mPositions[slotOf(time)].*Coordinates[i] = decoder.toDouble(entry, true);
            }
        }
    }
    fillForward();
    fillBackward();
}

int FlightPath::slotOf(double time) const
{
    return truncatedTo<int>(time / mSlotWidth);
}

const PathPosition* FlightPath::position(int slot) const
{
    const auto found = mPositions.find(slot);
    return found != mPositions.end() ? &found->second : nullptr;
}

void FlightPath::fillForward()
{
    if (mPositions.empty()) {
        return;
    }
    PathPosition last = mPositions.begin()->second; // taken as it stands
    for (auto at = std::next(mPositions.begin()); at != mPositions.end(); ++at) {
        PathPosition& position = at->second;
        for (const auto coordinate : Coordinates) {
            if (position.*coordinate < Missing) {
                position.*coordinate = last.*coordinate;
            } else {
                last.*coordinate = position.*coordinate;
            }
        }
    }
}

void FlightPath::fillBackward()
{
    const PathPosition* next = nullptr;
    for (auto at = mPositions.rbegin(); at != mPositions.rend(); ++at) {
        for (const auto coordinate : Coordinates) {
            const bool isMissing = at->second.*coordinate < Missing; // NaN is a value
            if (next == nullptr || !isMissing) {
                continue;
            }
            at->second.*coordinate = next->*coordinate;
            if (coordinate == &PathPosition::longitude) {
                diagnose("new lons %f\n", at->second.longitude);
            }
        }
        next = &at->second;
    }
}

} // namespace TARN
