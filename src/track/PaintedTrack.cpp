#include "track/PaintedTrack.h"

#include <QtGui/QPainter>

#include <algorithm>
#include <cmath>

namespace TARN {

PaintedTrack::PaintedTrack(QPainter& painter, const QFont& font) : mPainter(painter), mMetrics(font)
{
    painter.setFont(font);
    painter.setRenderHint(QPainter::Antialiasing, true);
}

void PaintedTrack::clip(const QRectF& area)
{
    mPainter.setClipRect(area);
}

void PaintedTrack::clipNone()
{
    mPainter.setClipping(false);
}

void PaintedTrack::fill(const QRectF& area, const QColor& color)
{
    mPainter.fillRect(area, color);
}

/// In pieces: what a long line is filled with is looked for in all of it.
void PaintedTrack::line(const QPolygonF& points, const QColor& color, double width)
{
    constexpr qsizetype Piece = 64; // points
    mPainter.setPen(QPen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    if (points.size() == 1) {
        mPainter.drawPoint(points.front());
    }
    for (qsizetype k = 0; k + 1 < points.size(); k += Piece - 1) {
        mPainter.drawPolyline(points.data() + k,
                              static_cast<int>(std::min(Piece, points.size() - k)));
    }
}

void PaintedTrack::shape(const QPolygonF& points, const QColor& fill, const QColor& outline)
{
    mPainter.setPen(QPen(outline, 1.0));
    mPainter.setBrush(fill);
    mPainter.drawPolygon(points);
    mPainter.setBrush(Qt::NoBrush);
}

void PaintedTrack::text(const QPointF& topLeft, const QString& text, const QColor& color)
{
    mPainter.setPen(color);
    mPainter.drawText(topLeft + QPointF(0.0, mMetrics.ascent()), text);
}

QSizeF PaintedTrack::sizeOf(const QString& text) const
{
    return {std::ceil(mMetrics.horizontalAdvance(text)), std::ceil(mMetrics.height())};
}

} // namespace TARN
