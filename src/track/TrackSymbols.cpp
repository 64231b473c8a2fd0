#include "track/TrackSymbols.h"

#include "base/CountText.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QTransform>

#include <algorithm>
#include <cmath>
#include <ranges>

namespace TARN {

namespace {

/// The user's texts of this file, declared so that the extraction of texts finds them.
struct SymbolTexts
{
    Q_DECLARE_TR_FUNCTIONS(TrackSymbols)
};

} // namespace

QPolygonF turned(const QPolygonF& shape, double degrees, const QPointF& place)
{
    return QTransform().translate(place.x(), place.y()).rotate(degrees).map(shape);
}

QPolygonF aircraftAt(const QPointF& place, double degrees)
{
    const QPolygonF half = {{0.0, -13.0}, {1.7, -10.0}, {2.0, -4.0}, {13.0, 2.0}, {13.0, 4.6},
                            {2.0, 2.0},   {1.4, 8.0},   {5.0, 10.6}, {5.0, 12.6}, {0.0, 11.4}};
    QPolygonF whole = half;
    for (const QPointF& point : std::views::reverse(half)) {
        whole.append({-point.x(), point.y()});
    }
    return turned(whole, degrees, place);
}

QPolygonF circleAt(const QPointF& place, double radius)
{
    constexpr int Corners = 16;
    QPolygonF shape;
    for (int k = 0; k < Corners; ++k) {
        const double angle = 6.283185307179586 * k / Corners;
        shape.append(place + radius * QPointF(std::sin(angle), -std::cos(angle)));
    }
    return shape;
}

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

void drawKey(const TrackScene& scene, const TrackStyle& style, const QRectF& row,
             TrackCanvas& canvas)
{
    constexpr double Gap = 18.0; // pixels
    canvas.fill(row, style.frame);
    if (scene.empty() || scene.marks == nullptr) {
        return;
    }
    const TrackMarks& marks = *scene.marks;
    const std::pair<TrackMark::Kind, QString> kinds[] = {
        {TrackMark::Limit, SymbolTexts::tr("out of range")},
        {TrackMark::Lamp, SymbolTexts::tr("warning lamp")},
        {TrackMark::Fault, SymbolTexts::tr("fault or warning")}};
    double x = row.left() + Gap / 2.0;
    const double top = row.center().y() - canvas.sizeOf("0").height() / 2.0;
    for (const auto& [kind, words] : kinds) {
        if (std::ranges::find(marks.marks, kind, &TrackMark::kind) != marks.marks.end()) {
            TrackMark sample{};
            sample.kind = kind;
            canvas.shape(symbolOf(sample, {x + 5.0, row.center().y()}), style.faint, style.text);
            canvas.text({x + 15.0, top}, words, style.text);
            x += 15.0 + canvas.sizeOf(words).width() + Gap;
        }
    }
    if (marks.elsewhere > 0) {
        canvas.text({x, top},
                    SymbolTexts::tr("Events without a position: %1")
                        .arg(countText(static_cast<qint64>(marks.elsewhere))),
                    style.text);
    }
}

} // namespace TARN
