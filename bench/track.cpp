#include "Suite.h"
#include "Window.h"
#include "track/PaintedTrack.h"
#include "track/TrackDrawing.h"

#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <cmath>

namespace TARN::Bench {

namespace {

constexpr int ManyPositions = 1'000'000;
constexpr int FewPositions = 10'000;
constexpr double Rate = 20.0; // positions a second
constexpr QRectF Area(0.0, 0.0, 1000.0, 700.0);

/// Half a day of circuits that drift with the wind, in an unsteady hand.
std::shared_ptr<const TrackGround> groundOf(int positions)
{
    constexpr double Speed = 2e-5; // degrees between two positions
    PositionTrack track;
    GeoPoint point{48.0, 11.0};
    double course = 0.0;
    Random random;
    const double stretch = double(ManyPositions) / positions;
    for (int k = 0; k < positions; ++k) {
        const double turn = std::sin(k * stretch * 2e-3) > 0.6 ? 2.4e-3 : 0.0;
        course += stretch * turn + (random.below(1000) - 499.5) * 4e-5;
        point.latitude += stretch * Speed * std::cos(course);
        point.longitude += stretch * (1.5 * Speed * std::sin(course) + 1e-7);
        track.append(k * stretch / Rate, point);
    }
    require(track.stretches().size() == 1, "the flight has gaps");
    return std::make_shared<TrackGround>(std::move(track));
}

/// Zooming into the flight and panning over it.
std::vector<TrackView> viewsOf(const TrackGround& ground)
{
    constexpr int Steps = 12;
    std::vector<TrackView> views;
    TrackView view;
    view.area = Area;
    view.fit(ground.path.bounds());
    for (int step = 0; step < Steps; ++step) {
        views.push_back(view);
        view.zoom(0.7, {400.0, 300.0});
        view.pan({60.0 * (step % 3 - 1), 25.0});
    }
    return views;
}

/// A painter on an image of the chart's size.
double secondsOfPainting(const std::function<void(TrackCanvas&)>& paint)
{
    QImage image(Area.size().toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    PaintedTrack canvas(painter, QApplication::font());
    return secondsOf([&] { paint(canvas); });
}

/// No position in sight is farther than a pixel from the lines.
void check(const TrackPath& path, const TrackView& view, const std::vector<TrackPath::Line>& lines)
{
    QImage near(Area.size().toSize(), QImage::Format_Grayscale8);
    near.fill(Qt::white);
    QPainter painter(&near);
    painter.setPen(QPen(Qt::black, 4.0));
    for (const TrackPath::Line& line : lines) {
        painter.drawPolyline(line.points);
    }
    painter.end();
    for (std::size_t k = 0; k < path.size(); ++k) {
        const QPoint pixel = view.toPixel(path.point(k)).toPoint();
        require(!near.valid(pixel) || qGray(near.pixel(pixel)) < 128, "a position is not drawn");
    }
}

double trackRatio()
{
    TrackScene scene;
    scene.ground = groundOf(ManyPositions);
    const TrackStyle style;
    const TrackPath& path = scene.ground->path;
    std::vector<double> ratios;
    for (const TrackView& view : viewsOf(*scene.ground)) {
        const auto lines = path.lines(view, {}, 0, path.size());
        check(path, view, lines);
        const auto ours = [&] {
            return secondsOfPainting(
                [&](TrackCanvas& canvas) { TrackDrawing(scene, style, canvas).draw(view); });
        };
        const auto bare = [&] {
            return secondsOfPainting([&](TrackCanvas& canvas) {
                canvas.fill(Area, style.ground);
                for (const TrackPath::Line& line : lines) {
                    canvas.line(line.points, Qt::blue, 2.0);
                }
            });
        };
        ours();
        const double seconds = ours();
        bare();
        ratios.push_back(seconds / bare());
    }
    std::ranges::sort(ratios);
    return ratios[ratios.size() / 2];
}

/// A step of the wheel with a hundred times the positions of the same flight.
double growth()
{
    const auto secondsOfSteps = [](int positions) {
        TrackScene scene;
        scene.ground = groundOf(positions);
        const TrackStyle style;
        double seconds = 0.0;
        for (const TrackView& view : viewsOf(*scene.ground)) {
            seconds += secondsOfPainting(
                [&](TrackCanvas& canvas) { TrackDrawing(scene, style, canvas).draw(view); });
        }
        return seconds;
    };
    secondsOfSteps(FewPositions);
    return secondsOfSteps(ManyPositions) / secondsOfSteps(FewPositions);
}

} // namespace

void trackFigures(Suite& suite)
{
    suite.figure("track.paint", 1.5, trackRatio);
    suite.figure("track.growth", 6.0, growth);
}

} // namespace TARN::Bench
