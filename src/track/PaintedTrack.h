#pragma once

#include "track/TrackCanvas.h"

#include <QtGui/QFont>
#include <QtGui/QFontMetricsF>

class QPainter;

namespace TARN {

/// Draws with a painter: in the window, on a page.
class PaintedTrack : public TrackCanvas
{
public:
    /// The painter outlives the canvas.
    PaintedTrack(QPainter& painter, const QFont& font);

    void clip(const QRectF& area) override;
    void clipNone() override;
    void fill(const QRectF& area, const QColor& color) override;
    void line(const QPolygonF& points, const QColor& color, double width) override;
    void shape(const QPolygonF& points, const QColor& fill, const QColor& outline) override;
    void text(const QPointF& topLeft, const QString& text, const QColor& color) override;
    QSizeF sizeOf(const QString& text) const override;

private:
    QPainter& mPainter;
    QFontMetricsF mMetrics;
};

} // namespace TARN
