#include "track/Graticule.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace TARN {

namespace {

constexpr double LinesApart = 110.0; ///< pixels between two lines, at least
constexpr double MetresADegree = EarthRadius * std::numbers::pi / 180.0;
// Seconds.
constexpr double Minute = 60.0;
constexpr double Degree = 3600.0;

double stepOf(double leastSeconds)
{
    constexpr std::array Steps = {
        0.01,   0.02,         0.05,         0.1,           0.2,           0.5,
        1.0,    2.0,          5.0,          10.0,          15.0,          30.0,
        Minute, 2.0 * Minute, 5.0 * Minute, 10.0 * Minute, 15.0 * Minute, 30.0 * Minute,
        Degree, 2.0 * Degree, 5.0 * Degree, 10.0 * Degree, 15.0 * Degree, 30.0 * Degree};
    const auto* found = std::ranges::lower_bound(Steps, leastSeconds);
    return found != Steps.end() ? *found : Steps.back();
}

/// What of the earth is in sight, degrees; the east is not below the west.
struct Extent
{
    double south = 90.0;
    double north = -90.0;
    double west = 180.0; ///< from the centre of the map
    double east = -180.0;
    double widest = 0.0; ///< the cosine of the latitude next to the equator
};

Extent extentOf(const TrackProjection& projection, const TrackView& view)
{
    constexpr int Probes = 24; // on each side
    Extent extent;
    const double centre = projection.centre().longitude;
    for (int row = 0; row <= Probes; ++row) {
        for (int column = 0; column <= Probes; ++column) {
            const QPointF pixel(view.area.left() + view.area.width() * column / Probes,
                                view.area.top() + view.area.height() * row / Probes);
            const GeoPoint point = projection.toEarth(view.toPlane(pixel));
            const double turn = turnBetween(centre, point.longitude);
            extent.south = std::min(extent.south, point.latitude);
            extent.north = std::max(extent.north, point.latitude);
            extent.west = std::min(extent.west, turn);
            extent.east = std::max(extent.east, turn);
        }
    }
    for (const double pole : {-90.0, 90.0}) {
        const QPointF place = projection.toPlane({pole, centre});
        if (view.area.contains(view.toPixel(place))) {
            (pole < 0.0 ? extent.south : extent.north) = pole;
            extent.west = -180.0;
            extent.east = 180.0;
        }
    }
    const bool spansEquator = extent.south <= 0.0 && extent.north >= 0.0;
    extent.widest = spansEquator
                        ? 1.0
                        : std::cos(std::min(std::abs(extent.south), std::abs(extent.north)) *
                                   std::numbers::pi / 180.0);
    return extent;
}

/// A line along which one of the two is \p fixed, cut to what is near the sight.
class Liner
{
public:
    Liner(const TrackProjection& projection, const TrackView& view)
        : mProjection(projection), mView(view),
          mSight(view.area.adjusted(-LinesApart, -LinesApart, LinesApart, LinesApart))
    {}

    void add(std::vector<GraticuleLine>& lines, const QString& label, bool isMeridian, double fixed,
             double from, double to) const
    {
        constexpr int Pieces = 48;
        QPolygonF points;
        const auto finish = [&] {
            if (points.size() > 1) {
                lines.push_back({points, label, isMeridian});
            }
            points.clear();
        };
        for (int piece = 0; piece <= Pieces; ++piece) {
            const double moving = from + (to - from) * piece / Pieces;
            const GeoPoint point = isMeridian ? GeoPoint{moving, fixed} : GeoPoint{fixed, moving};
            const QPointF pixel = mView.toPixel(mProjection.toPlane(point));
            // Behind the earth's far side a line goes on elsewhere.
            const bool isFar = !points.isEmpty() && (pixel - points.last()).manhattanLength() >
                                                        2.0 * (mSight.width() + mSight.height());
            if (isFar) {
                finish();
            }
            points.append(pixel);
        }
        finish();
    }

private:
    const TrackProjection& mProjection;
    const TrackView& mView;
    QRectF mSight;
};

} // namespace

QString degreesText(double degrees, bool isLongitude, double stepSeconds)
{
    const double turned = isLongitude ? std::remainder(degrees, 360.0) : degrees;
    // In the smallest unit that is told, so that 59.99 seconds are a minute.
    const bool hasMinutes = stepSeconds < Degree;
    const bool hasSeconds = stepSeconds < Minute;
    const int decimals = stepSeconds >= 1.0 ? 0 : stepSeconds >= 0.1 ? 1 : 2;
    const double unit = !hasMinutes ? Degree : !hasSeconds ? Minute : std::pow(10.0, -decimals);
    const double seconds = std::round(std::abs(turned) * Degree / unit) * unit;
    const double whole = std::floor(seconds / Degree + 1e-9);
    QString text = QString::number(whole, 'f', 0) + QChar(0xB0);
    if (hasMinutes) {
        const double rest = std::max(0.0, seconds - whole * Degree);
        const double minutes = std::floor(rest / Minute + 1e-9);
        text += QString("%1'").arg(minutes, 2, 'f', 0, '0');
        if (hasSeconds) {
            const double last = std::max(0.0, rest - minutes * Minute);
            text += QString("%1\"").arg(last, decimals == 0 ? 2 : 3 + decimals, 'f', decimals, '0');
        }
    }
    if (seconds == 0.0 || (isLongitude && seconds == 180.0 * Degree)) {
        return text;
    }
    return text + (isLongitude ? (turned < 0.0 ? "W" : "E") : (turned < 0.0 ? "S" : "N"));
}

double roundLength(double longest)
{
    const double power = std::pow(10.0, std::floor(std::log10(std::max(longest, 1e-9))));
    return longest >= 5.0 * power ? 5.0 * power : longest >= 2.0 * power ? 2.0 * power : power;
}

std::vector<GraticuleLine> graticuleOf(const TrackProjection& projection, const TrackView& view)
{
    constexpr double LeastCos = 1e-3;
    const Extent extent = extentOf(projection, view);
    const double perPixel = view.scale / MetresADegree * Degree; // seconds of latitude
    const double step = stepOf(LinesApart * perPixel) / Degree;
    const double across =
        stepOf(LinesApart * perPixel / std::max(LeastCos, extent.widest)) / Degree;
    const double south = std::max(extent.south - step, -90.0);
    const double north = std::min(extent.north + step, 90.0);
    const double centre = projection.centre().longitude;
    const double west = centre + std::max(extent.west - across, -180.0);
    const double east = centre + std::min(extent.east + across, 180.0);
    const double poleward = std::min(10.0, step);
    std::vector<GraticuleLine> lines;
    const Liner liner(projection, view);
    for (double k = std::ceil(south / step); k * step <= north; ++k) {
        if (std::abs(k * step) < 90.0 - 1e-9) {
            liner.add(lines, degreesText(k * step, false, step * Degree), false, k * step, west,
                      east);
        }
    }
    const bool isWhole = east - west >= 360.0 - 1e-9;
    for (double k = std::ceil(west / across); k * across <= east; ++k) {
        if (isWhole && k * across >= west + 360.0 - 1e-9) {
            break; // the first one again
        }
        liner.add(lines, degreesText(k * across, true, across * Degree), true, k * across,
                  std::max(south, -90.0 + poleward), std::min(north, 90.0 - poleward));
    }
    return lines;
}

} // namespace TARN
