#pragma once

#include "flight/Flight.h"

#include <QtCore/QString>

namespace TARN {

/// What a picture of a flight shows, in one line: recording, date, range on the recording's
/// clock, profile.
QString captionOf(const Flight& flight, const TimeRange& range);

} // namespace TARN
