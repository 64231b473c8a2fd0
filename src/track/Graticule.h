#pragma once

#include "track/TrackProjection.h"
#include "track/TrackView.h"

#include <QtCore/QString>
#include <QtGui/QPolygonF>

#include <vector>

namespace TARN {

/// A parallel or meridian as far as it is in sight.
struct GraticuleLine
{
    QPolygonF points; ///< pixels
    QString label;    ///< "48°05'N"
    bool isMeridian;
};

/// Parallels and meridians at round degrees, minutes or seconds, some hundred pixels apart. Where a
/// pole is in sight, meridians end short of it.
std::vector<GraticuleLine> graticuleOf(const TrackProjection& projection, const TrackView& view);

/// A latitude or longitude, as exact as a step of so many seconds asks for: degrees, minutes where
/// it is below a degree, seconds where it is below a minute.
QString degreesText(double degrees, bool isLongitude, double stepSeconds = 0.1);

/// The greatest round length of 1, 2 or 5 times a power of ten that is at most so long.
double roundLength(double longest);

} // namespace TARN
