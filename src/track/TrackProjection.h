#pragma once

#include "flight/GeoPoint.h"

#include <QtCore/QPointF>

namespace TARN {

class PositionTrack;

/// A plane map about a centre, in which distances and directions from it are true (azimuthal
/// equidistant): at any latitude, over the poles and across 180 degrees. Within 250 km of the
/// centre no length is wrong by more than 0.03 percent. Places are metres to the right (x) and up
/// (y); up is north at the centre.
class TrackProjection
{
public:
    explicit TrackProjection(const GeoPoint& centre = {});
    /// About the middle of all positions.
    explicit TrackProjection(const PositionTrack& track);

    const GeoPoint& centre() const { return mCentre; }

    QPointF toPlane(const GeoPoint& point) const;
    /// Longitudes are from -180 to 180. What is off the map is taken for the place opposite of the
    /// centre.
    GeoPoint toEarth(const QPointF& place) const;

    /// Where north is at a place: degrees clockwise from up.
    double northAt(const QPointF& place) const;

private:
    GeoPoint mCentre;
    double mSin = 0.0; ///< of the centre's latitude
    double mCos = 1.0;
};

} // namespace TARN
