#include "track/TrackDrawing.h"

#include "base/ClockTime.h"
#include "track/ChartCorners.h"
#include "track/Graticule.h"
#include "track/TrackSymbols.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <cmath>
#include <ranges>
#include <set>

namespace TARN {

namespace {

constexpr double PathWidth = 2.0; ///< pixels
constexpr double ColoredWidth = 3.0;
constexpr double NoteEdge = 8.0; ///< between what stands in a corner and the edge

/// The user's texts of this file, declared so that the extraction of texts finds them.
struct DrawingTexts
{
    Q_DECLARE_TR_FUNCTIONS(TrackDrawing)
};

/// Where a line goes from one side of a level or upright line to the other.
std::optional<QPointF> crossing(const QPolygonF& line, bool isUpright, double at)
{
    for (qsizetype k = 0; k + 1 < line.size(); ++k) {
        const QPointF way = line[k + 1] - line[k];
        const double from = (isUpright ? line[k].x() : line[k].y()) - at;
        const double to = from + (isUpright ? way.x() : way.y());
        if ((from <= 0.0) != (to <= 0.0)) {
            return line[k] + from / (from - to) * way;
        }
    }
    return std::nullopt;
}

} // namespace

TrackDrawing::TrackDrawing(const TrackScene& scene, const TrackStyle& style, TrackCanvas& canvas)
    : mScene(scene), mStyle(style), mCanvas(canvas)
{}

void TrackDrawing::draw(const TrackView& view)
{
    mCanvas.fill(view.area, mStyle.ground);
    if (mScene.empty()) {
        return;
    }
    mCanvas.clip(view.area);
    ChartLabels labels(mScene, mStyle, view, mCanvas);
    ChartCorners corners(mScene, mStyle, view, labels, mCanvas); // before labels look for room
    drawGraticule(view, labels);
    drawBands(view);
    drawPath(view);
    drawSymbols(view, labels);
    drawNames(view, labels);
    corners.draw();
    mCanvas.clipNone();
}

void TrackDrawing::drawGraticule(const TrackView& view, ChartLabels& labels)
{
    const auto lines = graticuleOf(mScene.ground->projection, view);
    for (const GraticuleLine& line : lines) {
        mCanvas.line(line.points, mStyle.grid, 1.0);
    }
    std::set<QString> labelled; // on the far side of the earth a line is in pieces
    for (const GraticuleLine& line : lines) {
        if (!labelled.contains(line.label) && labelLine(view, line, labels)) {
            labelled.insert(line.label);
        }
    }
}

/// At the left or the lower edge where neither the path nor another label is, else further in.
bool TrackDrawing::labelLine(const TrackView& view, const GraticuleLine& line, ChartLabels& labels)
{
    constexpr double Inset = 4.0; // pixels
    const QSizeF size = mCanvas.sizeOf(line.label);
    const QRectF area = view.area.adjusted(Inset + size.width() / 2.0, 2.0 + size.height() / 2.0,
                                           -Inset - size.width() / 2.0, -2.0 - size.height() / 2.0);
    const bool isUpright = !line.isMeridian; // what it crosses
    for (const double share : {0.0, 1.0, 0.3, 0.7}) {
        const auto place = crossing(line.points, isUpright,
                                    isUpright ? area.left() + share * area.width()
                                              : area.bottom() - share * area.height());
        if (!place || !area.contains(*place)) {
            continue;
        }
        const QRectF box(*place - QPointF(size.width(), size.height()) / 2.0, size);
        if (!labels.isOnPath(box) && labels.add(line.label, box.topLeft(), mStyle.faint)) {
            return true;
        }
    }
    return false;
}

void TrackDrawing::drawPath(const TrackView& view)
{
    const PositionTrack& track = mScene.ground->track;
    mArrows = 0;
    if (!mScene.range.hasExtent()) {
        drawPart(view, 0, track.size(), false);
        return;
    }
    const std::size_t begin = track.firstNotBefore(mScene.range.start);
    const std::size_t end = track.firstNotBefore(mScene.range.stop);
    drawPart(view, 0, std::min(begin + 1, track.size()), true);
    drawPart(view, end - std::min<std::size_t>(1, end), track.size(), true);
    drawPart(view, begin, end, false);
}

void TrackDrawing::drawPart(const TrackView& view, std::size_t begin, std::size_t end, bool isFaded)
{
    static const TrackColors Plain;
    const TrackColors& colors = mScene.colors != nullptr && !isFaded ? *mScene.colors : Plain;
    const auto lines = mScene.ground->path.lines(view, colors.shades(), begin, end);
    const double width = colors.legend().empty() ? PathWidth : ColoredWidth;
    for (const TrackPath::Line& line : lines) {
        const QColor color = isFaded ? mStyle.faded : colors.color(line.shade, mStyle.light);
        mCanvas.line(line.points, color, line.points.size() == 1 ? 2.0 * width : width);
    }
    for (const TrackPath::Line& line : lines) {
        drawArrows(line.points, isFaded ? mStyle.faded : colors.color(line.shade, mStyle.light));
    }
}

/// Which way it went, now and then.
void TrackDrawing::drawArrows(const QPolygonF& line, const QColor& color)
{
    constexpr double Apart = 150.0; // pixels
    constexpr double Longest = 6.0;
    constexpr int Most = 60;
    static const QPolygonF Arrow = {{0.0, -6.0}, {4.5, 5.0}, {0.0, 2.5}, {-4.5, 5.0}};
    for (qsizetype k = 0; k + 1 < line.size() && mArrows < Most; ++k) {
        const QPointF way = line[k + 1] - line[k];
        const double length = std::hypot(way.x(), way.y());
        mUntilArrow -= length;
        if (mUntilArrow > 0.0 || length < Longest) {
            continue; // a short piece may point anywhere
        }
        const double degrees = std::atan2(way.x(), -way.y()) * 57.29577951308232;
        mCanvas.shape(turned(Arrow, degrees, line[k] + way / 2.0), color, color);
        mUntilArrow = Apart;
        ++mArrows;
    }
}

/// Stretches of the path during which something was wrong.
void TrackDrawing::drawBands(const TrackView& view)
{
    constexpr double Width = 9.0;
    constexpr int Opaque = 150;
    static const TrackShades Plain;
    if (mScene.marks == nullptr) {
        return;
    }
    for (const TrackMark& mark : mScene.marks->marks) {
        QColor color = mStyle.inkOf(mark.color);
        color.setAlpha(Opaque);
        const auto lines = mScene.ground->path.lines(view, Plain, mark.begin, mark.end + 1);
        for (const TrackPath::Line& line : lines) {
            const QSizeF size = line.points.boundingRect().size();
            if (size.width() + size.height() > 1.0) { // else its symbol covers it
                mCanvas.line(line.points, color, Width);
            }
        }
    }
}

void TrackDrawing::drawSymbols(const TrackView& view, ChartLabels& labels)
{
    constexpr double Cell = 4.0; // pixels; of equal ones in a cell the worst is drawn
    if (mScene.marks == nullptr) {
        return;
    }
    std::set<std::tuple<int, int, int>> drawn;
    std::vector<const TrackMark*> shown;
    for (const TrackMark& mark : std::views::reverse(mScene.marks->marks)) {
        const QPointF pixel = view.toPixel(mark.place);
        if (view.area.contains(pixel) &&
            drawn.insert({mark.kind, int(pixel.x() / Cell), int(pixel.y() / Cell)}).second) {
            shown.push_back(&mark);
        }
    }
    const QColor outline = mStyle.light ? QColor("#303030") : QColor("#000000");
    for (const TrackMark* mark : std::views::reverse(shown)) {
        mCanvas.shape(symbolOf(*mark, view.toPixel(mark->place)), mStyle.inkOf(mark->color),
                      outline);
    }
    for (const TrackMark* mark : shown) {
        labels.take(symbolOf(*mark, view.toPixel(mark->place)).boundingRect());
    }
}

/// As many names of the worst as have room beside their symbols.
void TrackDrawing::drawNames(const TrackView& view, ChartLabels& labels)
{
    constexpr int Most = 14;
    if (mScene.marks == nullptr) {
        return;
    }
    int named = 0;
    std::set<QString> names;
    for (const TrackMark& mark : std::views::reverse(mScene.marks->marks)) {
        const QPointF pixel = view.toPixel(mark.place);
        if (named >= Most || !view.area.contains(pixel) || names.contains(mark.name)) {
            continue;
        }
        if (labelMark(view, mark.name, pixel, labels)) {
            names.insert(mark.name);
            ++named;
        }
    }
}

/// Beside, over or under its symbol, where there is room.
bool TrackDrawing::labelMark(const TrackView& view, const QString& name, const QPointF& pixel,
                             ChartLabels& labels)
{
    constexpr double Beside = 12.0; // pixels
    const QSizeF size = mCanvas.sizeOf(name);
    const double right = Beside;
    const double left = -Beside - size.width();
    const double above = -Beside - size.height();
    const double level = -size.height() / 2.0;
    for (const QPointF& place :
         {QPointF(right, level), QPointF(left, level), QPointF(-size.width() / 2.0, above),
          QPointF(-size.width() / 2.0, Beside), QPointF(right, above), QPointF(left, above),
          QPointF(right, Beside), QPointF(left, Beside)}) {
        const QRectF box(pixel + place, size);
        if (view.area.contains(box) && !labels.isOnPath(box) &&
            labels.add(name, box.topLeft(), mStyle.text)) {
            return true;
        }
    }
    return false;
}

void TrackDrawing::drawAircraft(const TrackView& view, double time)
{
    const PositionTrack& track = mScene.ground->track;
    const auto place = track.at(time);
    mCanvas.clip(view.area);
    if (!place || !place->isKnown) {
        const QString words =
            place ? DrawingTexts::tr("No position at %1; shown is the last one, of %2")
                        .arg(clockText(time), clockText(track.time(place->index)))
                  : DrawingTexts::tr("No position at %1 or before").arg(clockText(time));
        // Over what is there: whoever sees an aircraft has to know that it is not there.
        const QSizeF size = mCanvas.sizeOf(words);
        const QRectF box({view.area.center().x() - size.width() / 2.0, view.area.top() + NoteEdge},
                         size);
        mCanvas.fill(box.adjusted(-6.0, -3.0, 6.0, 3.0), mStyle.ground);
        mCanvas.text(box.topLeft(), words, mStyle.text);
    }
    if (place) {
        const QPointF plane = mScene.ground->projection.toPlane(place->point);
        const QPointF pixel = view.toPixel(plane);
        const QColor fill = place->isKnown ? mStyle.text : mStyle.ground;
        const QColor outline = place->isKnown ? mStyle.ground : mStyle.text;
        if (const auto course = track.courseAt(place->index)) {
            const double degrees = *course + mScene.ground->projection.northAt(plane);
            mCanvas.shape(aircraftAt(pixel, degrees), fill, outline);
        } else {
            mCanvas.shape(circleAt(pixel, 6.5), fill, outline);
        }
    }
    mCanvas.clipNone();
}

} // namespace TARN
