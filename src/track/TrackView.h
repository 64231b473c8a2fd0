#pragma once

#include <QtCore/QRectF>

#include <algorithm>

namespace TARN {

/// Which part of the plane stands where: metres of a TrackProjection on pixels, y downwards.
struct TrackView
{
    static constexpr double Nearest = 0.02; ///< metres a pixel
    static constexpr double Farthest = 60e3;

    QRectF area;         ///< pixels
    QPointF middle;      ///< metres, in the middle of the area
    double scale = 10.0; ///< metres a pixel

    QPointF toPixel(const QPointF& place) const
    {
        return {area.center().x() + (place.x() - middle.x()) / scale,
                area.center().y() - (place.y() - middle.y()) / scale};
    }
    QPointF toPlane(const QPointF& pixel) const
    {
        return {middle.x() + (pixel.x() - area.center().x()) * scale,
                middle.y() - (pixel.y() - area.center().y()) * scale};
    }

    /// Smaller by a factor; what stands at a pixel stays there.
    void zoom(double factor, const QPointF& pixel)
    {
        const QPointF fixed = toPlane(pixel);
        scale = std::clamp(scale * factor, Nearest, Farthest);
        middle += fixed - toPlane(pixel);
    }
    void pan(const QPointF& pixels) { middle -= QPointF(pixels.x(), -pixels.y()) * scale; }

    /// Shows a rectangle of the plane as large as can be; one without extent as 500 m.
    void fit(const QRectF& places)
    {
        constexpr double Margin = 40.0; // pixels on each side, for labels
        constexpr double Least = 500.0; // metres
        const double width = std::max(1.0, area.width() - 2.0 * Margin);
        const double height = std::max(1.0, area.height() - 2.0 * Margin);
        middle = places.center();
        scale = std::clamp(std::max({places.width() / width, places.height() / height,
                                     Least / std::max(width, height)}),
                           Nearest, Farthest);
    }
};

} // namespace TARN
