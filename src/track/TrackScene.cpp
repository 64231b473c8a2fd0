#include "track/TrackScene.h"

#include <algorithm>
#include <cmath>

namespace TARN {

QColor TrackStyle::inkOf(const QColor& color) const
{
    constexpr float Stronger = 2.0F; // colours of cells are pale
    constexpr float OnLight = 0.85F;
    float hue;
    float saturation;
    float value;
    color.getHsvF(&hue, &saturation, &value);
    saturation = std::min(1.0F, saturation * Stronger);
    return QColor::fromHsvF(std::max(0.0F, hue), saturation, light ? OnLight * value : value);
}

TrackPanes::TrackPanes(const QSizeF& size, bool hasHeights)
{
    constexpr double Share = 0.24;
    constexpr double Least = 90.0; // pixels
    constexpr double Most = 190.0;
    constexpr double Key = 20.0;
    constexpr double Left = 58.0; // for the numbers of the axes
    constexpr double Right = 16.0;
    constexpr double Top = 20.0;
    constexpr double Bottom = 22.0;
    const double below =
        hasHeights ? std::floor(std::clamp(size.height() * Share, Least, Most)) : 0.0;
    chart = {0.0, 0.0, size.width(), std::max(1.0, size.height() - below - Key)};
    key = {0.0, chart.bottom(), size.width(), Key};
    if (hasHeights) {
        heights = {Left, key.bottom() + Top, std::max(1.0, size.width() - Left - Right),
                   below - Top - Bottom};
    }
}

HeightChart::HeightChart(const TrackScene& scene, HeightProfile::Axis over, const QRectF& area)
    : axis(over), plot(area)
{
    if (!scene.empty() && !area.isEmpty()) {
        profile = {scene.ground->track, over, static_cast<int>(area.width())};
    }
}

double HeightChart::x(double time, double metres) const
{
    const double value = axis == HeightProfile::Time ? time : metres;
    const double width = profile.stop() - profile.start();
    return plot.left() + (width > 0.0 ? (value - profile.start()) / width : 0.0) * plot.width();
}

double HeightChart::y(double altitude) const
{
    constexpr double Air = 0.06; // of the height, above and below
    constexpr double LeastRange = 10.0;
    const double range = std::max(LeastRange, profile.highest() - profile.lowest());
    const double middle = (profile.highest() + profile.lowest()) / 2.0;
    return plot.center().y() - (altitude - middle) / range * (1.0 - 2.0 * Air) * plot.height();
}

double HeightChart::timeAt(const PositionTrack& track, double x) const
{
    const double share = std::clamp((x - plot.left()) / plot.width(), 0.0, 1.0);
    const double value = profile.start() + share * (profile.stop() - profile.start());
    return axis == HeightProfile::Time ? value : timeAtMetres(track, value);
}

} // namespace TARN
