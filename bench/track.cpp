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

constexpr int Positions = 1'000'000;
constexpr int Thinned = 100;  // every one of these
constexpr double Rate = 20.0; // positions a second
constexpr QRectF Area(0.0, 0.0, 1000.0, 700.0);

/// Half a day of circuits that drift with the wind, in an unsteady hand; every so many positions.
std::shared_ptr<const TrackGround> groundOf(int every)
{
    constexpr double Speed = 2e-5; // degrees between two positions
    PositionTrack track;
    GeoPoint point{48.0, 11.0};
    double course = 0.0;
    Random random;
    for (int k = 0; k < Positions; ++k) {
        const double turn = std::sin(k * 2e-3) > 0.6 ? 2.4e-3 : 0.0;
        course += turn + (random.below(1000) - 499.5) * 4e-5;
        point.latitude += Speed * std::cos(course);
        point.longitude += 1.5 * Speed * std::sin(course) + 1e-7;
        if (k % every == 0) {
            track.append(k / Rate, point);
        }
    }
    require(track.stretches().size() == 1, "the flight has gaps");
    return std::make_shared<TrackGround>(std::move(track));
}

/// Zooming into the middle of the flight, with a pan after each step.
std::vector<TrackView> viewsOf(const TrackGround& ground)
{
    constexpr int Steps = 16;
    std::vector<TrackView> views;
    TrackView view;
    view.area = Area;
    view.fit(ground.path.bounds());
    for (int step = 0; step < Steps; ++step) {
        views.push_back(view);
        view.zoom(0.7, view.area.center());
        view.middle = ground.path.point(ground.path.size() / 2);
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

/// All steps, each drawn anew, against their lines alone.
double trackRatio()
{
    constexpr int Rounds = 7;
    TrackScene scene;
    scene.ground = groundOf(1);
    const TrackStyle style;
    const TrackPath& path = scene.ground->path;
    const auto views = viewsOf(*scene.ground);
    std::vector<std::vector<TrackPath::Line>> lines;
    for (const TrackView& view : views) {
        lines.push_back(path.lines(view, {}, 0, path.size()));
        check(path, view, lines.back());
    }
    std::vector<double> ratios;
    for (int round = 0; round < Rounds; ++round) {
        double ours = 0.0;
        double bare = 0.0;
        for (std::size_t k = 0; k < views.size(); ++k) {
            ours += secondsOfPainting(
                [&](TrackCanvas& canvas) { TrackDrawing(scene, style, canvas).draw(views[k]); });
            bare += secondsOfPainting([&](TrackCanvas& canvas) {
                canvas.fill(Area, style.ground);
                for (const TrackPath::Line& line : lines[k]) {
                    canvas.line(line.points, Qt::blue, 2.0);
                }
            });
        }
        ratios.push_back(ours / bare);
    }
    std::ranges::sort(ratios);
    return ratios[Rounds / 2];
}

/// A step of the wheel with a hundred times the positions of the same flight.
double growth()
{
    const auto secondsOfSteps = [](int every) {
        TrackScene scene;
        scene.ground = groundOf(every);
        const TrackStyle style;
        double seconds = 0.0;
        for (const TrackView& view : viewsOf(*scene.ground)) {
            seconds += secondsOfPainting(
                [&](TrackCanvas& canvas) { TrackDrawing(scene, style, canvas).draw(view); });
        }
        return seconds;
    };
    secondsOfSteps(Thinned);
    return secondsOfSteps(1) / secondsOfSteps(Thinned);
}

} // namespace

void trackFigures(Suite& suite)
{
    suite.figure("track.paint", 1.5, trackRatio);
    suite.figure("track.growth", 2.0, growth);
}

} // namespace TARN::Bench
