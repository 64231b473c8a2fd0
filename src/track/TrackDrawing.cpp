#include "track/TrackDrawing.h"

#include "base/ClockTime.h"
#include "base/CountText.h"
#include "track/Graticule.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QTransform>

#include <algorithm>
#include <cmath>
#include <ranges>
#include <set>

namespace TARN {

namespace {

constexpr double PathWidth = 2.0; ///< pixels
constexpr double ColoredWidth = 3.0;
constexpr double Edge = 8.0; ///< between what stands in a corner and the edge

constexpr double LongestBar = 130.0; ///< pixels, of the scale
constexpr double BarRow = 20.0;
constexpr double NeedleSize = 15.0;
constexpr double ScaleWidth = 170.0; ///< of the legend's colours
constexpr double ScaleHeight = 9.0;

/// The user's texts of this file, declared so that the extraction of texts finds them.
struct DrawingTexts
{
    Q_DECLARE_TR_FUNCTIONS(TrackDrawing)
};

QPolygonF turned(const QPolygonF& shape, double degrees, const QPointF& place)
{
    return QTransform().translate(place.x(), place.y()).rotate(degrees).map(shape);
}

/// Seen from above, flying up.
QPolygonF aircraft()
{
    const QPolygonF half = {{0.0, -13.0}, {1.7, -10.0}, {2.0, -4.0}, {13.0, 2.0}, {13.0, 4.6},
                            {2.0, 2.0},   {1.4, 8.0},   {5.0, 10.6}, {5.0, 12.6}, {0.0, 11.4}};
    QPolygonF whole = half;
    for (const QPointF& point : std::views::reverse(half)) {
        whole.append({-point.x(), point.y()});
    }
    return whole;
}

QPolygonF circle(const QPointF& place, double radius)
{
    constexpr int Corners = 16;
    QPolygonF shape;
    for (int k = 0; k < Corners; ++k) {
        const double angle = 6.283185307179586 * k / Corners;
        shape.append(place + radius * QPointF(std::sin(angle), -std::cos(angle)));
    }
    return shape;
}

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

QPolygonF symbolOf(const TrackMark& mark, const QPointF& place)
{
    const double size = mark.state == StateLimit ? 6.5 : 5.5;
    switch (mark.kind) {
    case TrackMark::Lamp:
        return {place + QPointF(0.0, -size), place + QPointF(size, size * 0.8),
                place + QPointF(-size, size * 0.8)};
    case TrackMark::Fault:
        return QPolygonF(
                   QRectF(place.x() - size * 0.8, place.y() - size * 0.8, size * 1.6, size * 1.6))
            .first(4);
    default:
        return {place + QPointF(0.0, -size), place + QPointF(size, 0.0), place + QPointF(0.0, size),
                place + QPointF(-size, 0.0)};
    }
}

std::vector<const TrackMark*> marksNear(const TrackScene& scene, const TrackView& view,
                                        const QPointF& pixel)
{
    constexpr double Near = 8.0; // pixels
    std::vector<const TrackMark*> found;
    if (scene.marks != nullptr) {
        for (const TrackMark& mark : std::views::reverse(scene.marks->marks)) {
            const QPointF apart = view.toPixel(mark.place) - pixel;
            if (std::hypot(apart.x(), apart.y()) <= Near) {
                found.push_back(&mark);
            }
        }
    }
    return found;
}

TrackDrawing::TrackDrawing(const TrackScene& scene, const TrackStyle& style, TrackCanvas& canvas)
    : mScene(scene), mStyle(style), mCanvas(canvas)
{}

void TrackDrawing::draw(const TrackView& view)
{
    mTaken.clear();
    mCanvas.fill(view.area, mStyle.ground);
    if (mScene.empty()) {
        return;
    }
    mCanvas.clip(view.area);
    placeCorners(view);
    drawGraticule(view);
    drawBands(view);
    drawPath(view);
    drawSymbols(view);
    drawNames(view);
    drawScale(view);
    drawNorth(view);
    drawLegend();
    mCanvas.clipNone();
}

bool TrackDrawing::isFree(const QRectF& box) const
{
    return std::ranges::none_of(mTaken, [&](const QRectF& other) { return other.intersects(box); });
}

void TrackDrawing::plate(const QRectF& box)
{
    constexpr int Opaque = 205;
    QColor color = mStyle.ground;
    color.setAlpha(Opaque);
    mCanvas.fill(box, color);
    mTaken.push_back(box);
}

bool TrackDrawing::label(const QString& text, const QPointF& topLeft, const QColor& color)
{
    const QRectF box(topLeft, mCanvas.sizeOf(text));
    if (!isFree(box.adjusted(-4.0, -1.0, 4.0, 1.0))) {
        return false;
    }
    plate(box.adjusted(-2.0, 0.0, 2.0, 0.0));
    mCanvas.text(topLeft, text, color);
    return true;
}

void TrackDrawing::drawGraticule(const TrackView& view)
{
    const auto lines = graticuleOf(mScene.ground->projection, view);
    for (const GraticuleLine& line : lines) {
        mCanvas.line(line.points, mStyle.grid, 1.0);
    }
    std::set<QString> labelled; // on the far side of the earth a line is in pieces
    for (const GraticuleLine& line : lines) {
        if (!labelled.contains(line.label) && labelLine(view, line)) {
            labelled.insert(line.label);
        }
    }
}

/// At the left or the lower edge where neither the path nor another label is, else further in.
bool TrackDrawing::labelLine(const TrackView& view, const GraticuleLine& line)
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
        if (!isOnPath(view, box) && label(line.label, box.topLeft(), mStyle.faint)) {
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
            if (line.points.size() > 1) {
                mCanvas.line(line.points, color, Width);
            }
        }
    }
}

void TrackDrawing::drawSymbols(const TrackView& view)
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
        mTaken.push_back(symbolOf(*mark, view.toPixel(mark->place)).boundingRect());
    }
}

/// As many names of the worst as have room beside their symbols.
void TrackDrawing::drawNames(const TrackView& view)
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
        if (labelMark(view, mark.name, pixel)) {
            names.insert(mark.name);
            ++named;
        }
    }
}

/// Beside, over or under its symbol, where there is room.
bool TrackDrawing::labelMark(const TrackView& view, const QString& name, const QPointF& pixel)
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
        if (view.area.contains(box) && !isOnPath(view, box) &&
            label(name, box.topLeft(), mStyle.text)) {
            return true;
        }
    }
    return false;
}

/// Whether the path runs through a box.
bool TrackDrawing::isOnPath(const TrackView& view, const QRectF& box) const
{
    static const TrackShades Plain;
    constexpr double Margin = 5.0; // pixels that are looked at around any area
    TrackView part = view;
    part.area = box.adjusted(Margin, Margin, -Margin, -Margin);
    part.middle = view.toPlane(box.center());
    return !mScene.ground->path.lines(part, Plain, 0, mScene.ground->track.size()).empty();
}

/// The first of the corners in which neither the path nor anything else is, or the first of all.
QRectF TrackDrawing::corner(const TrackView& view, const QSizeF& size,
                            std::initializer_list<Qt::Corner> corners)
{
    constexpr double Labels = 20.0; // of the meridians, at the lower edge
    const QRectF area = view.area.adjusted(Edge, Edge, -Edge, -Edge - Labels);
    std::optional<QRectF> first;
    for (const Qt::Corner corner : corners) {
        QRectF box(area.topLeft(), size);
        if (corner == Qt::TopRightCorner || corner == Qt::BottomRightCorner) {
            box.moveRight(area.right());
        }
        if (corner == Qt::BottomLeftCorner || corner == Qt::BottomRightCorner) {
            box.moveBottom(area.bottom());
        }
        first = first.value_or(box);
        if (isFree(box) && !isOnPath(view, box)) {
            mTaken.push_back(box);
            return box;
        }
    }
    mTaken.push_back(*first);
    return *first;
}

/// Corners are taken before labels look for room.
void TrackDrawing::placeCorners(const TrackView& view)
{
    mNorth = corner(view, {2.0 * NeedleSize + 6.0, 3.6 * NeedleSize},
                    {Qt::TopRightCorner, Qt::TopLeftCorner, Qt::BottomLeftCorner});
    mScale = corner(view, {LongestBar + 12.0, 2.0 * BarRow + 4.0},
                    {Qt::BottomRightCorner, Qt::BottomLeftCorner, Qt::TopLeftCorner});
    mLegend = {};
    if (mScene.colors == nullptr || mScene.colors->legend().empty()) {
        return;
    }
    const TrackColors::Legend& legend = mScene.colors->legend();
    const double row = mCanvas.sizeOf("0").height();
    const double below =
        legend.isScale() ? ScaleHeight + row + 6.0 : row * double(legend.entries.size()) + 2.0;
    mLegend = corner(
        view, {std::max(ScaleWidth, mCanvas.sizeOf(legend.title).width()) + 8.0, row + below + 4.0},
        {Qt::TopLeftCorner, Qt::BottomLeftCorner, Qt::BottomRightCorner, Qt::TopRightCorner});
}

void TrackDrawing::drawScale(const TrackView& view)
{
    constexpr double Mile = 1852.0; // metres
    constexpr double LeastMiles = 0.01;
    const double metres = roundLength(LongestBar * view.scale);
    const double miles = roundLength(LongestBar * view.scale / Mile);
    double bottom = mScale.bottom() - 3.0;
    const double right = mScale.right() - 4.0;
    plate(mScale);
    const auto bar = [&](double length, const QString& text) {
        const double left = right - length / view.scale;
        mCanvas.line({{left, bottom - 4.0}, {left, bottom}, {right, bottom}, {right, bottom - 4.0}},
                     mStyle.text, 1.0);
        const QSizeF size = mCanvas.sizeOf(text);
        mCanvas.text({right - size.width() - 3.0, bottom - size.height() - 1.0}, text, mStyle.text);
        bottom -= BarRow;
    };
    const bool isFar = metres >= 1000.0;
    bar(metres, QString("%1 %2").arg(isFar ? metres / 1000.0 : metres).arg(isFar ? "km" : "m"));
    if (miles >= LeastMiles) {
        bar(miles * Mile, QString("%1 NM").arg(miles));
    }
}

void TrackDrawing::drawNorth(const TrackView& view)
{
    static const QPolygonF Needle = {{0.0, -NeedleSize},
                                     {5.0, NeedleSize * 0.6},
                                     {0.0, NeedleSize * 0.25},
                                     {-5.0, NeedleSize * 0.6}};
    plate(mNorth);
    const double middle = mNorth.center().x();
    mCanvas.text({middle - mCanvas.sizeOf("N").width() / 2.0, mNorth.top()}, "N", mStyle.text);
    mCanvas.shape(turned(Needle, mScene.ground->projection.northAt(view.middle),
                         {middle, mNorth.bottom() - 1.2 * NeedleSize}),
                  mStyle.text, mStyle.text);
}

void TrackDrawing::drawLegend()
{
    constexpr int Steps = 30;
    if (mLegend.isEmpty()) {
        return;
    }
    const TrackColors& colors = *mScene.colors;
    const TrackColors::Legend& legend = colors.legend();
    const double row = mCanvas.sizeOf("0").height();
    const QPointF at = mLegend.topLeft() + QPointF(4.0, 2.0);
    plate(mLegend);
    mCanvas.text(at, legend.title, mStyle.text);
    double y = at.y() + row + 2.0;
    for (const auto& [words, shade] : legend.entries) {
        mCanvas.line({{at.x(), y + row / 2.0}, {at.x() + 18.0, y + row / 2.0}},
                     colors.color(shade, mStyle.light), 4.0);
        mCanvas.text({at.x() + 26.0, y}, words, mStyle.text);
        y += row;
    }
    if (!legend.isScale()) {
        return;
    }
    for (int step = 0; step < Steps; ++step) {
        const int shade = legend.lowest + (legend.highest - legend.lowest) * step / (Steps - 1);
        mCanvas.fill({at.x() + ScaleWidth * step / Steps, y, ScaleWidth / Steps + 0.5, ScaleHeight},
                     colors.color(static_cast<std::uint8_t>(shade), mStyle.light));
    }
    y += ScaleHeight + 2.0;
    mCanvas.text({at.x(), y}, legend.low, mStyle.text);
    mCanvas.text({at.x() + ScaleWidth - mCanvas.sizeOf(legend.high).width(), y}, legend.high,
                 mStyle.text);
}

/// What the symbols mean, and how many are not on the path.
void TrackDrawing::drawKey(const QRectF& row)
{
    constexpr double Gap = 18.0; // pixels
    mCanvas.fill(row, mStyle.frame);
    if (mScene.empty() || mScene.marks == nullptr) {
        return;
    }
    const TrackMarks& marks = *mScene.marks;
    const std::pair<TrackMark::Kind, QString> kinds[] = {
        {TrackMark::Limit, DrawingTexts::tr("out of range")},
        {TrackMark::Lamp, DrawingTexts::tr("warning lamp")},
        {TrackMark::Fault, DrawingTexts::tr("fault or warning")}};
    double x = row.left() + Edge;
    const double top = row.center().y() - mCanvas.sizeOf("0").height() / 2.0;
    for (const auto& [kind, words] : kinds) {
        if (std::ranges::find(marks.marks, kind, &TrackMark::kind) != marks.marks.end()) {
            TrackMark sample{};
            sample.kind = kind;
            mCanvas.shape(symbolOf(sample, {x + 5.0, row.center().y()}), mStyle.faint, mStyle.text);
            mCanvas.text({x + 15.0, top}, words, mStyle.text);
            x += 15.0 + mCanvas.sizeOf(words).width() + Gap;
        }
    }
    if (marks.elsewhere > 0) {
        mCanvas.text({x, top},
                     DrawingTexts::tr("Events without a position: %1")
                         .arg(countText(static_cast<qint64>(marks.elsewhere))),
                     mStyle.text);
    }
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
        const QSizeF size = mCanvas.sizeOf(words);
        mTaken.clear();
        label(words, {view.area.center().x() - size.width() / 2.0, view.area.top() + Edge},
              mStyle.text);
    }
    if (place) {
        const QPointF plane = mScene.ground->projection.toPlane(place->point);
        const QPointF pixel = view.toPixel(plane);
        const QColor fill = place->isKnown ? mStyle.text : mStyle.ground;
        const QColor outline = place->isKnown ? mStyle.ground : mStyle.text;
        if (const auto course = track.courseAt(place->index)) {
            const double degrees = *course + mScene.ground->projection.northAt(plane);
            mCanvas.shape(turned(aircraft(), degrees, pixel), fill, outline);
        } else {
            mCanvas.shape(circle(pixel, 6.5), fill, outline);
        }
    }
    mCanvas.clipNone();
}

} // namespace TARN
