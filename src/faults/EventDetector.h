#pragma once

namespace TARN {

class Profile;
class Record;
struct ProfileInfo;

/// Whether the profile knows warning lamps: an enumeration named "WarningLamp".
bool hasWarningLamps(const ProfileInfo& profile);

/// Finds everything that went wrong in a recording and puts it into its two event lists, which
/// views and exports read: limits (a parameter entered its warning or limit range) and warnings
/// (a warning lamp came on). Each list is by time, equal times by device, parameter and sample.
///
/// A parameter that is out of range from its first sample on makes no event before it has been
/// back to normal, and a fall from limit to warning is none. A lamp is a parameter whose
/// enumeration is named "WarningLamp"; it makes an event for each value other than 0 that
/// differs from the last such value.
void detectEvents(Record& record, const Profile& profile);

} // namespace TARN
