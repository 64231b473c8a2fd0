#include "logbook/TrendDrawing.h"

#include "base/CellColor.h"
#include "graph/GraphPalette.h"
#include "logbook/FlightListModel.h"

#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtGui/QPalette>

#include <algorithm>

namespace TARN {

namespace {

constexpr double DotRadius = 3.5;     // pixels
constexpr double DiamondRadius = 5.5; // a flight that is marked
constexpr double RingRadius = 8.5;

QColor mixed(const QColor& a, const QColor& b, float part)
{
    return QColor::fromRgbF(a.redF() + (b.redF() - a.redF()) * part,
                            a.greenF() + (b.greenF() - a.greenF()) * part,
                            a.blueF() + (b.blueF() - a.blueF()) * part);
}

QPolygonF diamond(const QPointF& middle)
{
    return QPolygonF({middle + QPointF(0.0, -DiamondRadius), middle + QPointF(DiamondRadius, 0.0),
                      middle + QPointF(0.0, DiamondRadius), middle + QPointF(-DiamondRadius, 0.0)});
}

} // namespace

TrendColors TrendColors::of(const QPalette& palette)
{
    const QColor back = palette.color(QPalette::Base);
    const QColor text = palette.color(QPalette::Text);
    const QColor blue(0x2B, 0x86, 0xD6);
    const auto legible = [&](const QColor& color) {
        return legibleOn(GraphColor::of(back), GraphColor::of(color)).toColor();
    };
    return {back,
            text,
            mixed(back, text, 0.12F),
            mixed(back, blue, 0.18F),
            mixed(back, text, 0.5F),
            legible(blue),
            legible(LimitColor)};
}

void TrendDrawing::draw(QPainter& painter, std::optional<std::size_t> chosen) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(painter.viewport(), mColors.back);
    drawBand(painter);
    drawScale(painter);
    drawDates(painter);
    drawNotes(painter);
    drawFlights(painter);
    if (chosen && *chosen < mTrend.points.size() && mTrend.points[*chosen].value) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(mColors.text, 1.5));
        painter.drawEllipse(
            QPointF(mLayout.xOf(*chosen), mLayout.yOf(*mTrend.points[*chosen].value)), RingRadius,
            RingRadius);
    }
}

void TrendDrawing::drawScale(QPainter& painter) const
{
    const QRectF& plot = mLayout.plot();
    const QFontMetricsF metrics(painter.font());
    for (const GraphTick& tick : mLayout.ticks().ticks) {
        const double y = mLayout.yOf(tick.value);
        if (!tick.major || y < plot.top() || y > plot.bottom()) {
            continue;
        }
        painter.setPen(mColors.grid);
        painter.drawLine(QPointF(plot.left(), y), QPointF(plot.right(), y));
        painter.setPen(mColors.text);
        const QString label = valueLabel(tick.value, mLayout.ticks().step);
        painter.drawText(QPointF(plot.left() - 6.0 - metrics.horizontalAdvance(label),
                                 y + metrics.capHeight() / 2.0),
                         label);
    }
    painter.setPen(mColors.median);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(plot);
}

void TrendDrawing::drawDates(QPainter& painter) const
{
    const QRectF& plot = mLayout.plot();
    const QFontMetricsF metrics(painter.font());
    painter.setPen(mColors.text);
    double end = plot.right(); // of the room that is left
    for (std::size_t k = mTrend.points.size(); k > 0; k -= std::min(k, mLayout.dateStep())) {
        const QString date = dateWords(mTrend.points[k - 1].start).left(10);
        const double width = metrics.horizontalAdvance(date);
        const double x = mLayout.xOf(k - 1);
        const bool isLast = k == mTrend.points.size(); // it may stand beside its place
        const double left = isLast ? std::min(x - width / 2.0, end - width) : x - width / 2.0;
        if (left >= 0.0 && left + width <= end) {
            end = left - metrics.averageCharWidth();
            painter.drawLine(QPointF(x, plot.bottom()), QPointF(x, plot.bottom() + 4.0));
            painter.drawText(QPointF(left, plot.bottom() + 5.0 + metrics.ascent()), date);
        }
    }
}

std::size_t TrendDrawing::notesBefore(std::size_t point) const
{
    const auto& start = mTrend.points[point].start;
    return static_cast<std::size_t>(std::ranges::count_if(
        mNotes, [&](const MaintenanceMark& note) { return start && note.date <= *start; }));
}

/// Runs of flights with a value and one baseline: the first and the last.
std::vector<std::pair<std::size_t, std::size_t>> TrendDrawing::baselines() const
{
    std::vector<std::pair<std::size_t, std::size_t>> runs;
    std::optional<std::size_t> notes;
    for (std::size_t k = 0; k < mTrend.points.size(); ++k) {
        if (!mTrend.points[k].median) {
            continue;
        }
        const std::size_t before = notesBefore(k);
        if (notes != before) {
            runs.emplace_back(k, k);
        }
        runs.back().second = k;
        notes = before;
    }
    return runs;
}

void TrendDrawing::drawBand(QPainter& painter) const
{
    for (const auto& [first, last] : baselines()) {
        QPolygonF above;
        QPolygonF below;
        QPolygonF middle;
        for (std::size_t k = first; k <= last; ++k) {
            const TrendPoint& point = mTrend.points[k];
            if (point.median) {
                const double x = mLayout.xOf(k);
                above << QPointF(x, mLayout.yOf(*point.median + 3.0 * *point.sigma));
                below.prepend(QPointF(x, mLayout.yOf(*point.median - 3.0 * *point.sigma)));
                middle << QPointF(x, mLayout.yOf(*point.median));
            }
        }
        painter.setPen(Qt::NoPen);
        painter.setBrush(mColors.band);
        painter.drawPolygon(above + below);
        painter.setPen(QPen(mColors.median, 1.5, Qt::DashLine));
        painter.setBrush(Qt::NoBrush);
        painter.drawPolyline(middle);
    }
}

/// Between the flights that it lies between; its note above as far as there is room.
void TrendDrawing::drawNotes(QPainter& painter) const
{
    const QRectF& plot = mLayout.plot();
    const QFontMetricsF metrics(painter.font());
    double free = plot.left();
    for (std::size_t number = 0; number < mNotes.size(); ++number) {
        std::size_t after = 0;
        while (after < mTrend.points.size() && notesBefore(after) <= number) {
            ++after;
        }
        const double half = plot.width() / static_cast<double>(mTrend.points.size()) / 2.0;
        const double x = after < mTrend.points.size() ? mLayout.xOf(after) - half : plot.right();
        painter.setPen(QPen(mColors.text, 1.0, Qt::DotLine));
        painter.drawLine(QPointF(x, plot.top() - 4.0), QPointF(x, plot.bottom()));
        const MaintenanceMark& note = mNotes[number];
        const QString text = metrics.elidedText(
            dateWords(note.date).left(10) + " " + note.note.simplified(), Qt::ElideRight, 220.0);
        const double left = std::min(x - 2.0, plot.right() - metrics.horizontalAdvance(text));
        if (left >= free) {
            painter.setPen(mColors.text);
            painter.drawText(QPointF(left, plot.top() - 6.0), text);
            free = left + metrics.horizontalAdvance(text) + metrics.averageCharWidth();
        }
    }
}

void TrendDrawing::drawFlights(QPainter& painter) const
{
    QPolygonF line;
    for (std::size_t k = 0; k < mTrend.points.size(); ++k) {
        if (mTrend.points[k].value) {
            line << QPointF(mLayout.xOf(k), mLayout.yOf(*mTrend.points[k].value));
        }
    }
    QColor faint = mColors.flight;
    faint.setAlphaF(0.4F);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(faint, 1.0));
    painter.drawPolyline(line);
    painter.setPen(QPen(mColors.back, 1.0)); // sets them apart where they lie close
    const double width = mLayout.plot().width() / static_cast<double>(mTrend.points.size());
    const double radius = std::clamp(width, 1.5, DotRadius);
    for (const bool isMarked : {false, true}) { // these must not be hidden by others
        painter.setBrush(isMarked ? mColors.marked : mColors.flight);
        for (std::size_t k = 0; k < mTrend.points.size(); ++k) {
            const TrendPoint& point = mTrend.points[k];
            if (!point.value || point.isMarked != isMarked) {
                continue;
            }
            const QPointF place(mLayout.xOf(k), mLayout.yOf(*point.value));
            if (isMarked) {
                painter.drawPolygon(diamond(place));
            } else {
                painter.drawEllipse(place, radius, radius);
            }
        }
    }
}

} // namespace TARN
