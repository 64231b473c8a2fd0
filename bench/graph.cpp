#include "Suite.h"
#include "graph/CurveFrames.h"

#include <algorithm>
#include <cmath>

namespace TARN::Bench {

namespace {

constexpr int Curves = 30;
constexpr double Hour = 3600.0; // seconds
constexpr double Columns = 1000.0;

struct Curve
{
    CurveSamples samples;
    CurveFrames frames;
};

/// Curves of \p count samples over an hour; their times jitter as those of a bus do.
std::vector<Curve> makeCurves(std::size_t count)
{
    std::vector<Curve> curves(Curves);
    Random random;
    std::vector<double> times(count);
    std::vector<double> values(count);
    const double period = Hour / static_cast<double>(count);
    for (Curve& curve : curves) {
        for (std::size_t k = 0; k < count; ++k) {
            const double jitter = random.below(1000) * 1e-4;
            times[k] = (static_cast<double>(k) + jitter) * period;
            values[k] = std::sin(times[k]) + random.below(1000) * 1e-3;
        }
        curve.samples.putSeries(times, values);
    }
    return curves;
}

Measurement rebuildOf(std::vector<Curve>& curves, double from, double to)
{
    return [&curves, from, to] {
        return secondsOf([&] {
            for (Curve& curve : curves) {
                curve.frames.rebuild(curve.samples, {from, to, (to - from) / Columns});
            }
        });
    };
}

/// First, lowest, highest and last value of a column.
struct Column
{
    double time;
    double first;
    double low;
    double high;
    double last;
};

/// Every sample of a curve looked at once, in plain arrays.
std::vector<Column> scanned(const std::vector<double>& times, const std::vector<double>& values,
                            double width)
{
    std::vector<Column> columns;
    columns.reserve(2 * static_cast<std::size_t>(Columns));
    Column column{times[0], values[0], values[0], values[0], values[0]}; // in registers
    for (std::size_t k = 1; k < times.size(); ++k) {
        const double value = values[k];
        if (times[k] - column.time > width) {
            column.last = values[k - 1];
            columns.push_back(column);
            column = {times[k], value, value, value, value};
        } else {
            column.low = value < column.low ? value : column.low;
            column.high = value > column.high ? value : column.high;
        }
    }
    column.last = values.back();
    columns.push_back(column);
    return columns;
}

void checkFrames(const CurveFrames& curve, const std::vector<Column>& columns)
{
    const auto frames = curve.frames();
    require(frames.size() == columns.size(), "wrong number of columns");
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const FrameType& frame = frames[i];
        const double low = std::min({frame.first, frame.low, frame.high, frame.last});
        const double high = std::max({frame.first, frame.low, frame.high, frame.last});
        require(frame.time == columns[i].time && frame.first == columns[i].first,
                "a column differs");
        require(frame.state < 4 || (low == columns[i].low && high == columns[i].high &&
                                    frame.last == columns[i].last),
                "a column hides an extreme");
    }
}

double rebuildRatio()
{
    constexpr double Margin = 0.1 * Hour; // as a newly loaded recording is shown
    constexpr double Width = (Hour + 2 * Margin) / Columns;
    std::vector<Curve> curves = makeCurves(1'000'000);
    std::vector<std::vector<double>> times(Curves);
    std::vector<std::vector<double>> values(Curves);
    for (std::size_t c = 0; c < Curves; ++c) {
        for (std::size_t k = 0; k < curves[c].samples.size(); ++k) {
            times[c].push_back(curves[c].samples.time(k));
            values[c].push_back(curves[c].samples.value(k));
        }
    }
    const auto scan = [&] {
        return secondsOf([&] {
            for (std::size_t c = 0; c < Curves; ++c) {
                keep(scanned(times[c], values[c], Width));
            }
        });
    };
    const auto rebuild = rebuildOf(curves, -Margin, Hour + Margin);
    rebuild();
    checkFrames(curves[7].frames, scanned(times[7], values[7], Width));
    return ratioOf(rebuild, scan, 9);
}

/// A step takes a few milliseconds: whatever else runs doubles one of them or none.
Measurement quickestOf(const Measurement& step)
{
    return [step] {
        double seconds = step();
        for (int i = 1; i < 5; ++i) {
            seconds = std::min(seconds, step());
        }
        return seconds;
    };
}

double zoomGrowth()
{
    std::vector<Curve> large = makeCurves(1'000'000);
    std::vector<Curve> small = makeCurves(10'000);
    return ratioOf(quickestOf(rebuildOf(large, 0.05 * Hour, 0.95 * Hour)),
                   quickestOf(rebuildOf(small, 0.05 * Hour, 0.95 * Hour)), 15);
}

} // namespace

void graphFigures(Suite& suite)
{
    suite.figure("graph.rebuild", 0.25, rebuildRatio);
    suite.figure("graph.growth", 6.0, zoomGrowth);
}

} // namespace TARN::Bench
