#pragma once

#include <QtCore/QString>
#include <QtGui/QColor>

#include <cstddef>
#include <string>
#include <vector>

namespace TARN {

struct ProfileDevice;
struct ProfileParameter;

/// A moment at which something went wrong, ready to be listed and exported. Refers to the profile
/// that it was found with.
struct RecordEvent
{
    double time = 0.0; ///< seconds on the recording's clock, without the time offset
    std::string name;  ///< device and parameter
    std::string value; ///< value text and unit
    QString text;      ///< device, parameter, value text and unit
    QString shortText; ///< the same with the shortest text that reads back as the value
    QColor color;      ///< invalid when nothing gave one
    int tenths = 0;    ///< time in tenths of a second, rounded
    const ProfileParameter* parameter = nullptr;
    std::size_t place = 0; ///< of its sample in the parameter's list
};

using RecordLimit = RecordEvent;   ///< a parameter entered its warning or its limit range
using RecordWarning = RecordEvent; ///< a warning lamp was switched on

/// What was looked at for one kind of event; nothing that was not looked at is all right.
struct Watched
{
    std::size_t parameters = 0; ///< that the recording has samples of
    std::size_t samples = 0;
};

/// Everything that was found to go wrong in a recording, each list by time, equal times by device,
/// parameter and sample.
struct Events
{
    std::vector<RecordLimit> limits;
    std::vector<RecordWarning> warnings;
    Watched watchedLimits; ///< parameters with a threshold and their samples in FLOAT messages
    Watched watchedLamps;
};

} // namespace TARN
