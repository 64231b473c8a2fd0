#include "track/TrackColors.h"

#include "faults/EventWords.h"
#include "flight/ValueReader.h"

#include <QtCore/QCoreApplication>

#include <array>

namespace TARN {

namespace {

constexpr std::uint8_t Values = 60; ///< shades of a scale, from 1 on; 0 is no value
constexpr std::uint8_t Coldest = 1;

/// The user's texts of this file, declared so that the extraction of texts finds them.
struct ColorTexts
{
    Q_DECLARE_TR_FUNCTIONS(TrackColors)
};

/// Dark blue over red to yellow: lighter and lighter, also to eyes that do not see red or green.
QColor onScale(double share)
{
    constexpr std::array<QRgb, 9> Stops = {0x0d0887, 0x4b03a1, 0x7e03a8, 0xa82296, 0xcc4778,
                                           0xe56b5d, 0xf89540, 0xfdc527, 0xf0f921};
    const double place = share * (Stops.size() - 1);
    const auto below = std::min(static_cast<std::size_t>(place), Stops.size() - 2);
    const double rest = place - static_cast<double>(below);
    const auto mix = [&](int from, int to) {
        return static_cast<int>(std::lround(from + rest * (to - from)));
    };
    const QRgb a = Stops[below];
    const QRgb b = Stops[below + 1];
    return {mix(qRed(a), qRed(b)), mix(qGreen(a), qGreen(b)), mix(qBlue(a), qBlue(b))};
}

} // namespace

TrackColors TrackColors::ofStates(const PositionTrack& track, const std::vector<Episode>& limits)
{
    std::vector<std::uint8_t> shades(track.size(), StateOk);
    for (const Episode& episode : limits) {
        const std::size_t end =
            std::max(track.firstNotBefore(episode.end), track.firstNotBefore(episode.start) + 1);
        for (std::size_t k = track.firstNotBefore(episode.start); k < std::min(end, track.size());
             ++k) {
            shades[k] = std::max(shades[k], static_cast<std::uint8_t>(episode.state));
        }
    }
    TrackColors colors;
    colors.mShades = TrackShades(std::move(shades));
    const QStringList words = severityWords(EventKind::Limits);
    colors.mLegend.title = ColorTexts::tr("All parameters");
    colors.mLegend.entries = {{ColorTexts::tr("in range"), StateOk},
                              {words[StateWarning], StateWarning},
                              {words[StateLimit], StateLimit}};
    return colors;
}

TrackColors TrackColors::ofValues(const PositionTrack& track, const Flight& flight, double offset,
                                  const ProfileParameter& parameter, Progress& progress)
{
    constexpr std::size_t Turn = 4096; // positions between two looks
    const Series series = flight.series(parameter, offset);
    const GapRule gaps = series.gapRule([&] { return flight.silences(offset); });
    ValueReader reader(SeriesSamples{series, gaps}, betweenOf(series));
    std::vector<float> values(track.size(), std::numeric_limits<float>::quiet_NaN());
    float low = std::numeric_limits<float>::infinity();
    float high = -low;
    for (std::size_t k = 0; k < track.size(); ++k) {
        if (k % Turn == 0 && progress.stopRequested()) {
            return {};
        }
        values[k] = static_cast<float>(reader.at(track.time(k)));
        if (std::isfinite(values[k])) {
            low = std::min(low, values[k]);
            high = std::max(high, values[k]);
        }
    }
    std::vector<std::uint8_t> shades(track.size(), 0);
    const double width = low < high ? static_cast<double>(high) - low : 1.0;
    for (std::size_t k = 0; k < track.size(); ++k) {
        if (std::isfinite(values[k])) {
            const double share = (static_cast<double>(values[k]) - low) / width;
            shades[k] = static_cast<std::uint8_t>(Coldest + share * (Values - 1) + 0.5);
        }
    }
    TrackColors colors;
    colors.mShades = TrackShades(std::move(shades));
    colors.mLegend.title = parameter.title();
    if (low <= high) {
        const auto text = [](double value) { return QString::number(value, 'g', 5); };
        colors.mLegend.low = text(low);
        colors.mLegend.high = text(high);
        colors.mLegend.lowest = Coldest;
        colors.mLegend.highest = Values;
    } else {
        colors.mLegend.entries = {{ColorTexts::tr("no value"), 0}};
    }
    return colors;
}

QColor TrackColors::color(std::uint8_t shade, bool onLight) const
{
    if (mLegend.empty()) {
        return onLight ? QColor("#1f5fa8") : QColor("#7fb8f0");
    }
    if (mLegend.isScale() || shade == 0) {
        // The end of the scale that would not stand out from the ground is left out.
        constexpr double LightEnd = 0.8;
        constexpr double DarkEnd = 0.3;
        if (mLegend.isScale() && shade > 0) {
            const double share = double(shade - Coldest) / (Values - Coldest);
            return onScale(onLight ? share * LightEnd : DarkEnd + share * (1.0 - DarkEnd));
        }
        return onLight ? QColor("#7d8894") : QColor("#8a94a0");
    }
    return shade == StateLimit ? (onLight ? QColor("#d01010") : QColor("#ff5050"))
                               : (onLight ? QColor("#c98a00") : QColor("#ffd23c"));
}

} // namespace TARN
