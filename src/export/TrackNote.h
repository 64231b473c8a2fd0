#pragma once

#include "export/GeoTrack.h"
#include "export/TrackClock.h"

#include <QtCore/QString>

namespace TARN {

// What people are told about tracks.

/// What times and altitudes are, for those who read the file.
QString trackOrigin(const GeoTrack& track, const TrackClock& clock);

/// What whoever wrote the file should know of it: what is not as it seems and what was left out,
/// among it events without a position. Empty when there is nothing of it.
QString trackNote(const GeoTrack& track, const TrackClock& clock, std::size_t eventsLeftOut);

/// When a flight began, as its first recording says; empty where it does not.
QString flightDate(const Flight& flight);

/// There is nothing to draw.
QString noPositionText();
/// The file could not be written.
QString notWrittenText(const QString& path);

} // namespace TARN
