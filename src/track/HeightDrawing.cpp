#include "track/HeightDrawing.h"

#include "base/ClockTime.h"
#include "track/Graticule.h"
#include "track/TrackSymbols.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <array>
#include <cmath>
#include <ranges>
#include <set>

namespace TARN {

namespace {

constexpr double ColumnsApart = 90.0; ///< pixels between two lines of time or distance, at least

/// The user's texts of this file, declared so that the extraction of texts finds them.
struct HeightTexts
{
    Q_DECLARE_TR_FUNCTIONS(HeightDrawing)
};

double timeStep(double least)
{
    constexpr std::array Steps = {1.0,   2.0,   5.0,   10.0,   15.0,   30.0,   60.0,    120.0,
                                  300.0, 600.0, 900.0, 1800.0, 3600.0, 7200.0, 14400.0, 21600.0};
    const auto* found = std::ranges::lower_bound(Steps, least);
    return found != Steps.end() ? *found : std::ceil(least / Steps.back()) * Steps.back();
}

/// The smallest round number that is at least so great.
double roundStep(double least)
{
    const double below = roundLength(least);
    const bool isTwo = below / std::pow(10.0, std::floor(std::log10(below))) > 1.5 &&
                       below / std::pow(10.0, std::floor(std::log10(below))) < 3.0;
    return below >= least ? below : below * (isTwo ? 2.5 : 2.0);
}

} // namespace

std::vector<const TrackMark*> marksNear(const TrackScene& scene, const HeightChart& chart, double x)
{
    constexpr double Near = 5.0; // pixels
    std::vector<const TrackMark*> found;
    if (scene.marks != nullptr) {
        for (const TrackMark& mark : std::views::reverse(scene.marks->marks)) {
            if (std::abs(chart.x(mark.time, mark.metres) - x) <= Near) {
                found.push_back(&mark);
            }
        }
    }
    return found;
}

void HeightDrawing::draw(const QRectF& area)
{
    mCanvas.fill(area, mStyle.frame);
    mCanvas.fill(mChart.plot, mStyle.ground);
    if (!mChart.isShown()) {
        return;
    }
    drawAltitudes();
    mChart.axis == HeightProfile::Time ? drawTimes() : drawDistances();
    mCanvas.clip(mChart.plot);
    const double left = mChart.plot.left();
    for (const QPolygonF& columns : mChart.profile.lines()) {
        QPolygonF line;
        line.reserve(columns.size());
        for (const QPointF& point : columns) {
            line.append({left + point.x() + 0.5, mChart.y(point.y())});
        }
        mCanvas.line(line, TrackColors().color(0, mStyle.light), 1.4);
    }
    mCanvas.clipNone();
    drawMarks();
}

void HeightDrawing::drawAltitudes()
{
    constexpr double Row = 26.0; // pixels between two lines, at least
    const HeightProfile& profile = mChart.profile;
    const double perPixel =
        1.0 / std::max(1e-9, mChart.y(profile.lowest()) - mChart.y(profile.lowest() + 1.0));
    const double step = roundStep(Row * perPixel);
    const double bottom =
        profile.lowest() - (mChart.plot.bottom() - mChart.y(profile.lowest())) * perPixel;
    for (double k = std::ceil(bottom / step); mChart.y(k * step) >= mChart.plot.top(); ++k) {
        const double y = mChart.y(k * step);
        const QString text = QString::number(k * step, 'g', 6);
        const QSizeF size = mCanvas.sizeOf(text);
        mCanvas.line({{mChart.plot.left(), y}, {mChart.plot.right(), y}}, mStyle.grid, 1.0);
        mCanvas.text({mChart.plot.left() - size.width() - 5.0, y - size.height() / 2.0}, text,
                     mStyle.faint);
    }
    const QString& unit = mScene.ground->track.altitudeUnit();
    const QString title =
        unit.isEmpty() ? HeightTexts::tr("Altitude") : HeightTexts::tr("Altitude [%1]").arg(unit);
    mCanvas.text({mChart.plot.left(), mChart.plot.top() - mCanvas.sizeOf(title).height()}, title,
                 mStyle.faint);
}

void HeightDrawing::drawColumn(double x, const QString& text)
{
    const double half = mCanvas.sizeOf(text).width() / 2.0;
    mCanvas.line({{x, mChart.plot.top()}, {x, mChart.plot.bottom()}}, mStyle.grid, 1.0);
    mCanvas.text(
        {std::min(x - half, mChart.plot.right() + 14.0 - 2.0 * half), mChart.plot.bottom() + 3.0},
        text, mStyle.faint);
}

void HeightDrawing::drawTimes()
{
    const HeightProfile& profile = mChart.profile;
    const double range = profile.stop() - profile.start();
    const double step = timeStep(std::max(1.0, ColumnsApart * range / mChart.plot.width()));
    for (double k = std::ceil(profile.start() / step); k * step <= profile.stop(); ++k) {
        drawColumn(mChart.x(k * step, 0.0), clockText(k * step + 0.0005));
    }
}

void HeightDrawing::drawDistances()
{
    constexpr double Kilometre = 1000.0;
    const double range = mChart.profile.stop();
    const double step = roundStep(std::max(1.0, ColumnsApart * range / mChart.plot.width()));
    for (double k = 0; k * step <= range; ++k) {
        drawColumn(mChart.x(0.0, k * step), QString("%1 km").arg(k * step / Kilometre));
    }
}

/// Bands while something was wrong, symbols where the chart has them.
void HeightDrawing::drawMarks()
{
    constexpr int Opaque = 70;
    constexpr double Least = 1.5; // pixels
    if (mScene.marks == nullptr) {
        return;
    }
    const PositionTrack& track = mScene.ground->track;
    std::set<std::pair<int, QRgb>> drawn;
    for (const TrackMark& mark : mScene.marks->marks) {
        const auto xOf = [&](std::size_t k) {
            k = std::min(k, track.size() - 1);
            return mChart.x(track.time(k), track.metres(k));
        };
        const double left = xOf(mark.begin);
        const double width = std::max(Least, xOf(mark.end) - left);
        QColor color = mStyle.inkOf(mark.color);
        color.setAlpha(Opaque);
        if (width > Least || drawn.insert({int(left), color.rgb()}).second) {
            mCanvas.fill({left, mChart.plot.top(), width, mChart.plot.height()}, color);
        }
    }
    const QColor outline = mStyle.light ? QColor("#303030") : QColor("#000000");
    for (const TrackMark& mark : mScene.marks->marks) {
        const double x = mChart.x(mark.time, mark.metres);
        const double y =
            std::isfinite(mark.altitude) ? mChart.y(mark.altitude) : mChart.plot.bottom() - 8.0;
        const auto look = static_cast<QRgb>(4 * mark.state + mark.kind);
        if (drawn.insert({int(x / 3.0), look}).second) {
            mCanvas.shape(symbolOf(mark, {x, y}), mStyle.inkOf(mark.color), outline);
        }
    }
}

void HeightDrawing::drawMoment(double time)
{
    constexpr double Half = 3.5; // pixels
    if (!mChart.isShown()) {
        return;
    }
    const auto place = mScene.ground->track.at(time);
    if (!place && mChart.axis == HeightProfile::Distance) {
        return;
    }
    const double x = mChart.x(time, place ? place->metres : 0.0);
    if (x < mChart.plot.left() - 0.5 || x > mChart.plot.right() + 0.5) {
        return;
    }
    mCanvas.line({{x, mChart.plot.top()}, {x, mChart.plot.bottom()}}, mStyle.text, 1.0);
    if (place && place->isKnown && std::isfinite(place->altitude)) {
        const QPointF at(x, mChart.y(place->altitude));
        mCanvas.shape({at + QPointF(-Half, -Half), at + QPointF(Half, -Half),
                       at + QPointF(Half, Half), at + QPointF(-Half, Half)},
                      mStyle.text, mStyle.ground);
    }
}

} // namespace TARN
