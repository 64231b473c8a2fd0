#pragma once

#include "base/Progress.h"
#include "faults/RecordEvent.h"
#include "profile/ProfileTypes.h"

namespace TARN {

class Profile;
class RecordData;

/// Whether the profile knows warning lamps: an enumeration named "WarningLamp".
bool hasWarningLamps(const ProfileInfo& profile);

/// Whether a parameter is a warning lamp.
bool isLamp(const ProfileInfo& profile, const ProfileParameter& parameter);

/// Whether a lamp's next value makes an event; \p previous is the last value that made one, at
/// first 0.
bool isLampEvent(int& previous, int value);

/// Colour of a lamp that shows a value; invalid where its cell's holds.
QColor lampColor(int value);

/// Whether a threshold can make an event: one of its values stands for a warning or a limit.
bool isWatched(const ProfileThr& threshold);

/// Whether a parameter that went from one state to another makes a limit event. The state before
/// the first sample is StateLimit, so that a range that is left already is not entered.
constexpr bool isLimitEvent(int before, int state)
{
    return (before == StateOk && state != StateOk) ||
           (before == StateWarning && state == StateLimit);
}

/// Finds everything that went wrong in a recording: limits (a parameter entered its warning or
/// limit range) and warnings (a warning lamp came on). Ends early, with a part, when it is asked
/// to stop.
///
/// A parameter that is out of range from its first sample on makes no event before it has been
/// back to normal, and a fall from limit to warning is none. Only messages of type FLOAT are
/// watched for limits. A lamp is a parameter whose enumeration is named "WarningLamp"; it makes an
/// event for each value other than 0 that differs from the last such value.
Events detectEvents(const RecordData& data, const Profile& profile, Progress& progress);
Events detectEvents(const RecordData& data, const Profile& profile);

} // namespace TARN
