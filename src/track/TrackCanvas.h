#pragma once

#include <QtGui/QColor>
#include <QtGui/QPolygonF>

namespace TARN {

/// The few shapes that the chart of a track is made of; pixels from the upper left corner.
class TrackCanvas
{
public:
    virtual ~TrackCanvas() = default;

    /// Draws inside this rectangle only, until clipNone.
    virtual void clip(const QRectF& area) = 0;
    virtual void clipNone() = 0;

    virtual void fill(const QRectF& area, const QColor& color) = 0; ///< may be transparent
    virtual void line(const QPolygonF& points, const QColor& color, double width) = 0;
    /// Outlined one pixel wide.
    virtual void shape(const QPolygonF& points, const QColor& fill, const QColor& outline) = 0;
    virtual void text(const QPointF& topLeft, const QString& text, const QColor& color) = 0;

    virtual QSizeF sizeOf(const QString& text) const = 0;
};

} // namespace TARN
